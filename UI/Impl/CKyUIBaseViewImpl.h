#pragma once

#include "UI/Impl/CKyUIObjectImpl.h"

#include <QtGui/QPalette>

#include <array>
#include <memory>

class CKyUIBaseView;
class QWidget;

// Base of every view implementation. Keeps the view's own record of size,
// flags and palette; getters answer from it, not from the widget.
class CKyUIBaseViewImpl : public CKyUIObjectImpl
{
public:
    explicit CKyUIBaseViewImpl(CKyUIObject* owner);
    ~CKyUIBaseViewImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    // Containers and layouts place child views in their toolkit layout here.
    virtual void AddViewImpl(CKyUIBaseView* view, float stretch);
    virtual void InsertViewImpl(CKyUIBaseView* view, int index, float stretch);
    virtual void RemoveViewImpl(CKyUIBaseView* view);
    virtual void SetEnabled(bool enabled);
    virtual void OnSizeChanged(int width, int height);
    virtual void UpdateImpl();
    virtual void AddStyleClassImpl(const QString& name, bool value);
    virtual void RemoveStyleClassImpl(const QString& name, bool value);

    // Switched on, gives the widget what the record only kept: its size, its
    // preferable size and its corner radius. A view's override calls this
    // first.
    void SetInteractiveImpl(bool interactive) override;

    // A dialog with a remember key saves the control's value under its name
    // when it is accepted and gives it back before its next run shows.
    // RememberedValue() answers from the stored state, what the getters say;
    // invalid means nothing to keep. RestoreRememberedValue() checks type and
    // range, goes through the control's own setter (so its signals fire as for
    // a program change) and answers false, changing nothing, for a value it
    // cannot take. The base keeps nothing; each control overrides both.
    virtual QVariant RememberedValue() const;
    virtual bool RestoreRememberedValue(const QVariant& value);
    void SetRememberName(const QString& name) { m_rememberName = name; }
    const QString& RememberName() const { return m_rememberName; }

    // Bookkeeping; each setter stores first, then calls its toolkit step.
    void SetVisible(bool visible);
    bool IsVisible() const { return m_visible; }
    bool IsEnabled() const { return m_enabled; }
    bool HasFocus() const { return m_hasFocus; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    // The record only, unless the owner follows its user: then the widget
    // is resized as well.
    void SetWidth(int width);
    void SetHeight(int height);
    void Resize(int width, int height);
    void SetPreferableSize(int width, int height);
    void SetCornerRadius(float radius);
    // Does nothing unless the owner follows its user.
    void SetFocus(int reason);
    int PreferableWidth() const { return m_preferableWidth; }
    int PreferableHeight() const { return m_preferableHeight; }
    void SetPalette(const QPalette& palette);
    const QPalette& Palette() const { return m_palette; }

    // Help and accessibility texts, kept apart so that a view that has none
    // carries one pointer.
    enum class HelpText { ToolTip, StatusTip, WhatsThis, AccessibleName, AccessibleDescription, Count };
    void SetHelpText(HelpText kind, const QString& text);
    QString GetHelpText(HelpText kind) const;
    // Records a text that a view's own setter already gave the widget.
    void RecordHelpText(HelpText kind, const QString& text);
    // Lets a view that keeps a text of its own (the label's tool tip) follow
    // one set through the common setter.
    virtual void OnHelpTextSet(HelpText kind, const QString& text);

    // Toolkit steps; each does nothing unless the handle is a widget.
    void SetEnabledImpl(bool enabled);
    void SetVisibleImpl(bool visible);
    void SetMinimumWidthImpl(int width);
    void SetMinimumHeightImpl(int height);
    void SetMaximumWidthImpl(int width);
    void SetMaximumHeightImpl(int height);
    void SetFocusImpl();
    void SetFocusReasonImpl(int reason);
    // A negative width or height keeps the widget's own.
    void ResizeImpl(int width, int height);
    void SetFocusPolicyImpl(int policy);
    void SetTabOrderImpl(CKyUIObject* first, CKyUIObject* second);
    void SetPreferrableSizeImpl(int width, int height);
    void SetCornerRadiusImpl(float radius);
    void SetBorderWidthImpl(float width);
    void SetBorderWidthImpl(float left, float top, float right, float bottom);
    void SetBorderColorImpl(int red, int green, int blue);
    void SetBackgroundColorImpl(int red, int green, int blue);
    void SetTextColorImpl(int red, int green, int blue);
    void SetHelpTextImpl(HelpText kind, const QString& text);

    // The owner's handle as a widget, or null when it is none.
    QWidget* GetWidget() const;
    // Any object's handle as a widget, or null when it is none.
    static QWidget* WidgetOf(const CKyUIObject* object);

private:
    QString m_rememberName;
    QPalette m_palette;
    bool m_visible = false;
    bool m_enabled = true;
    bool m_hasFocus = false;
    int m_width = 0;
    int m_height = 0;
    int m_preferableWidth = 0;
    int m_preferableHeight = 0;
    float m_cornerRadius = 0;
    bool m_cornerRadiusGiven = false;
    std::unique_ptr<std::array<QString, static_cast<int>(HelpText::Count)>> m_helpTexts;
};
