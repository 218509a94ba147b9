#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

/// A titled frame laying its child views out in one row or one column, whose
/// collapsing hides nothing (see \ref behaviours_containers "behaviours"). It
/// has a thin black outline. Collapsing is bookkeeping only: it is stored and
/// announced.
///
/// Add child views with addView() and insertView(); a CKyUIRadioGroup added
/// here places its radio buttons in the box.
///
/// **Interactive** (setInteractive()): collapsing hides the box's content and
/// expanding shows it again (a child hidden by its client stays hidden), and a
/// title gets room of its own above the children, which otherwise cover it
/// under the dialog's theme.
///
/// \image html containers.png "Group boxes (one collapsed) among the containers"
class COMMONUI_EXPORT CKyUIGroupBox : public CKyUIBaseView
{
public:
    /// Only Vertical (1) gives a column; every other value gives a row.
    enum Orientation : int {
        Horizontal = 0, ///< Children side by side.
        Vertical = 1,   ///< Children one under another.
    };

    /// A box laying its children out in the given direction, with margins of
    /// 5 on every side when @p useMargin is true.
    CKyUIGroupBox(Orientation orientation, bool useMargin);
    ~CKyUIGroupBox() override;

    /// Stores the title and shows it on the frame.
    void setTitle(const QString& title);
    /// Contents margins of 5 on every side, or none.
    void UseMargin(bool use);
    /// Sets the layout's contents margins.
    void setContentsMargins(int left, int top, int right, int bottom);
    /// Sets the spacing between children.
    void setSpacing(int spacing);

    /// Stores the state, asks the parent view to repaint and emits
    /// onCollapsedStateChanged(), only when the state changes. The box and its
    /// children stay visible, unless the box is interactive: then its content
    /// hides while it is collapsed.
    void setCollapsed(bool collapsed);
    /// The stored state; false at first.
    bool isCollapsed() const;

    /// Emitted by setCollapsed() with the new state.
    CKyUISignal<void(bool)>& onCollapsedStateChanged();
};
