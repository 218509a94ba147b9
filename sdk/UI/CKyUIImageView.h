#pragma once

#include "UI/CKyUIBaseView.h"

class QPainter;
class QPixmap;

/// A view that renders into an off-screen image of its own size and shows it
/// nowhere (see \ref behaviours_controls "behaviours"). On every size change
/// and update() it hands a paint event to paintEvent(), during which
/// GetPainter() draws on that image. The view has no toolkit widget.
///
/// Override paintEvent() to draw; the image's pixels are not cleared before,
/// so cover the whole rectangle. A size with a zero width or height renders
/// nothing.
class COMMONUI_EXPORT CKyUIImageView : public CKyUIBaseView
{
public:
    /// An image view without a widget.
    CKyUIImageView();
    ~CKyUIImageView() override;

    /// Stored only; nothing is redrawn until the next update.
    void setPixmap(const QPixmap& pixmap);
    /// Never null.
    QPixmap* pixmap() const;

    /// The painter of the update in progress; null outside one.
    QPainter* GetPainter();

    /// Draws the pixmap stretched over the whole image, ignoring its aspect ratio.
    void paintEvent(CKyUIPaintEvent* event) override;
};
