#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtGui/QColor>

/// A button that shows a swatch of its colour with the colour's name
/// ("#4682B4") and, on a click, lets the user choose another in the toolkit's
/// colour chooser.
///
/// The chooser runs modally, in the theme of the library's dialogs; the host
/// is told that a modal run starts and ends, as for CKyUIDialog. colorChanged
/// is emitted once for every real change, by the user or by setColor(); a
/// chooser closed with Cancel, or with the colour it started with, emits
/// nothing.
///
/// \image html choosers-and-trees.png "Colour buttons among the choosers"
class COMMONUI_EXPORT CKyUIColorButton : public CKyUIBaseView
{
public:
    /// A black swatch, created with its widget.
    CKyUIColorButton();
    ~CKyUIColorButton() override;

    /// Shows @p color and emits colorChanged if it differs from color(). An
    /// invalid colour is ignored.
    void setColor(const QColor& color);
    /// The colour shown.
    QColor color() const;
    /// The title of the chooser's window; the toolkit's own unless set.
    void setChooserTitle(const QString& title);
    /// The title last set.
    QString chooserTitle() const;

    /// Emitted with the new colour whenever it changes.
    CKyUISignal<void(QColor)>& colorChanged();
};
