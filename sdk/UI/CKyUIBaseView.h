#pragma once

#include "UI/CKyUIObject.h"

#include <QtGui/QPalette>

class CKyUIShowEvent;
class CKyUIHideEvent;
class CKyUIPaintEvent;
class CKyUIResizeEvent;
class CKyUIFocusEvent;

// Base of every visible element. Width and height are a record kept by the
// view, not a query of the widget: resize() and friends only change the record,
// and size limits reach the widget through the minimum and maximum operations.
class COMMONUI_EXPORT CKyUIBaseView : public CKyUIObject
{
public:
    CKyUIBaseView();
    ~CKyUIBaseView() override;

    // A view is added once; to move it, remove it first. insertView, unlike
    // addView, also takes a view that belongs to another parent.
    void addView(CKyUIBaseView* view, float stretch = 0.0f);
    void insertView(CKyUIBaseView* view, int index, float stretch = 0.0f);
    // Gives ownership of the view back to the caller.
    void removeView(CKyUIBaseView* view);

    void setEnabled(bool enabled);
    void setDisabled(bool disabled);
    bool isEnabled() const;

    void setVisible(bool visible);
    bool isVisible() const;

    void setFocus();
    void setFocus(int reason);
    bool hasFocus() const;
    void setFocusPolicy(int policy);
    void setTabOrder(CKyUIObject* first, CKyUIObject* second);

    int width() const;
    int height() const;
    void setWidth(int width);
    void setHeight(int height);
    void resize(int width, int height);
    void setPreferableSize(int width, int height);
    void setMinimumWidth(int width);
    void setMinimumHeight(int height);
    void setMaximumWidth(int width);
    void setMaximumHeight(int height);

    void update();

    // The palette's base, text and alternate-base colours become the view's
    // background, text and border colours.
    void setPalette(const QPalette& palette);
    const QPalette& palette() const;
    int backgroundRole() const;

    void setBorderWidth(float width);
    void setBorderWidth(float left, float top, float right, float bottom);
    void setBorderColor(int red, int green, int blue);
    void setCornerRadius(float radius);
    void addStyleClass(const QString& name, bool value);
    void removeStyleClass(const QString& name, bool value);

    virtual void showEvent(CKyUIShowEvent* event);
    virtual void hideEvent(CKyUIHideEvent* event);
    virtual void paintEvent(CKyUIPaintEvent* event);
    virtual void resizeEvent(CKyUIResizeEvent* event);
    virtual void focusInEvent(CKyUIFocusEvent* event);
    virtual void focusOutEvent(CKyUIFocusEvent* event);
};
