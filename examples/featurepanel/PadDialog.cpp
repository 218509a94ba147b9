#include "PadDialog.h"

#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIDoubleSpinBox.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIVerticalLayout.h"

namespace
{
enum Mode { Dimension, TwoDimensions, ThroughAll, UpToFace };

CKyUIHorizontalLayout* CaptionedRow(const QString& caption, CKyUIBaseView* control)
{
    auto* row = new CKyUIHorizontalLayout;
    row->setSpacing(8);
    auto* label = new CKyUILabel;
    label->setText(caption);
    row->addView(label, 1);
    row->addView(control);
    return row;
}

// A length in millimetres; typed with a point or a comma, whatever the
// user's locale shows.
CKyUIDoubleSpinBox* LengthField(double value, const QString& tip)
{
    auto* field = new CKyUIDoubleSpinBox;
    field->setRange(0, 10000);
    field->setSuffix(" mm");
    field->setValue(value);
    field->setToolTip(tip);
    field->setMinimumWidth(110);
    return field;
}
} // namespace

PadDialog::PadDialog()
{
    // The one call that makes the whole panel answer its user.
    setInteractive(true);
    //! [remember]
    // Opens where and as the user left it: values kept on OK, the window's
    // place on every close.
    setRememberKey("pad");
    //! [remember]
}

void PadDialog::SetupUI()
{
    setWindowTitle("Pad");
    CKyUIVerticalLayout* layout = GetLayout();
    layout->UseMargin(true);
    layout->setMinimumWidth(320);

    mode = new CKyUIComboBox;
    mode->insertItems(0, {"Dimension", "Two dimensions", "Through all", "Up to face"});
    mode->setCurrentIndex(Dimension);
    mode->setToolTip("How far the sketch is extruded");
    mode->currentIndexChanged().connect([this](int index) { ShowRowsFor(index); });
    layout->addView(CaptionedRow("Type", mode));

    length = LengthField(10, "Distance from the sketch plane");
    m_lengthRow = CaptionedRow("Length", length);
    layout->addView(m_lengthRow);

    secondLength = LengthField(0, "Distance on the other side of the sketch plane");
    m_secondLengthRow = CaptionedRow("Second length", secondLength);
    layout->addView(m_secondLengthRow);

    symmetric = new CKyUICheckBox;
    symmetric->setText("Symmetric to plane");
    symmetric->setToolTip("Half the length on each side of the sketch plane");
    layout->addView(symmetric);

    reversed = new CKyUICheckBox;
    reversed->setText("Reversed");
    reversed->setToolTip("Extrude away from the sketch's normal");
    layout->addView(reversed);

    auto* buttons = new CKyUIDialogButtonBox(this);
    buttons->setStandardButtons(CKyUIDialogButtonBox::Ok | CKyUIDialogButtonBox::Cancel);
    buttons->accepted().connect([this]() { accept(); });
    buttons->rejected().connect([this]() { reject(); });

    ShowRowsFor(mode->currentIndex());
    //! [remember-controls]
    // Given back after SetupUI(), through the setters: the mode's
    // currentIndexChanged shows the rows again.
    mode->remember("mode");
    length->remember("length");
    secondLength->remember("second-length");
    symmetric->remember("symmetric");
    reversed->remember("reversed");
    //! [remember-controls]
}

void PadDialog::ShowRowsFor(int modeIndex)
{
    m_lengthRow->setVisible(modeIndex == Dimension || modeIndex == TwoDimensions);
    m_secondLengthRow->setVisible(modeIndex == TwoDimensions);
    symmetric->setVisible(modeIndex == Dimension);
}

PadDialog::Values PadDialog::values() const
{
    Values chosen;
    chosen.mode = mode->currentText();
    chosen.length = length->value();
    chosen.secondLength = secondLength->value();
    chosen.reversed = reversed->isChecked();
    chosen.symmetric = symmetric->isChecked();
    return chosen;
}
