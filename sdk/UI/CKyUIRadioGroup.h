#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

class CKyUIRadioButton;

/// Collects radio buttons and places them, one under another, in the box
/// layout of the group box that contains the group. The group itself is no
/// widget and takes no place in a layout.
///
/// Add the group to a CKyUIGroupBox first, then its buttons:
/// \code
/// auto* box = new CKyUIGroupBox(CKyUIGroupBox::Vertical, true);
/// auto* group = new CKyUIRadioGroup;
/// box->addView(group);
/// group->addRadioButton(first);
/// \endcode
///
/// Under setInteractive(true) the group follows its user: a click on one of
/// its buttons checks that button and unchecks the others (isChecked() of
/// each follows), then currentIndexChanged reports the button's index; the
/// title shows as the group box's title. Buttons added to an interactive group
/// become interactive too.
class COMMONUI_EXPORT CKyUIRadioGroup : public CKyUIBaseView
{
public:
    /// An empty group.
    CKyUIRadioGroup();
    ~CKyUIRadioGroup() override;

    /// Kept; shown, as the title of the group box holding the group, only
    /// while the group is interactive.
    void setTitle(const QString& title);
    /// Takes ownership of the button. The group must already be a child of a
    /// group box whose widget carries a box layout.
    void addRadioButton(CKyUIRadioButton* button);

    /// The index, in the order added, of the first button whose isChecked()
    /// is true; -1 when none is.
    int currentIndex() const;
    /// Emitted by an interactive group, with currentIndex(), when one of its
    /// buttons becomes checked on screen (by a click or by setChecked), after
    /// the buttons' own toggled signals. Never emitted otherwise.
    CKyUISignal<void(int)>& currentIndexChanged();
};
