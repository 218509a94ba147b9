#pragma once

#include "UI/Impl/CKyUIBaseViewImpl.h"

class QBoxLayout;

// What the horizontal and the vertical layout share: a borderless group box
// carrying a box layout in which child views' widgets are placed.
class CKyUIBoxLayoutImpl : public CKyUIBaseViewImpl
{
public:
    enum class Direction { Horizontal, Vertical };

    CKyUIBoxLayoutImpl(CKyUIObject* owner, Direction direction);

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    void AddViewImpl(CKyUIBaseView* view, float stretch) override;
    void InsertViewImpl(CKyUIBaseView* view, int index, float stretch) override;

    // The title is kept but shown nowhere.
    void SetTitle(const QString& title);
    const QString& Title() const { return m_title; }
    void SetTitleImpl(const QString& title);

    void UseMarginImpl(bool use);
    void SetContentsMarginsImpl(int left, int top, int right, int bottom);
    void SetSpacingImpl(int spacing);

protected:
    // Removes the child's widget from the box layout.
    void RemoveWidgetImpl(CKyUIBaseView* view);

private:
    QBoxLayout* GetBoxLayout() const;

    const Direction m_direction;
    QString m_title;
};

class CKyUIHorizontalLayoutImpl : public CKyUIBoxLayoutImpl
{
public:
    explicit CKyUIHorizontalLayoutImpl(CKyUIObject* owner);

    // The widget stays in the row unless the owner follows its user.
    void RemoveViewImpl(CKyUIBaseView* view) override;
};

class CKyUIVerticalLayoutImpl : public CKyUIBoxLayoutImpl
{
public:
    explicit CKyUIVerticalLayoutImpl(CKyUIObject* owner);

    void RemoveViewImpl(CKyUIBaseView* view) override;
};
