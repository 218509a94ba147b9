#pragma once

#include "UI/CKyUIBaseView.h"

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
class COMMONUI_EXPORT CKyUIRadioGroup : public CKyUIBaseView
{
public:
    /// An empty group.
    CKyUIRadioGroup();
    ~CKyUIRadioGroup() override;

    /// Kept, shown nowhere.
    void setTitle(const QString& title);
    /// Takes ownership of the button. The group must already be a child of a
    /// group box whose widget carries a box layout.
    void addRadioButton(CKyUIRadioButton* button);
};
