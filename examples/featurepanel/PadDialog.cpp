#include "PadDialog.h"

#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtCore/QLocale>

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

CKyUITextEdit* LengthField(const QString& text)
{
    auto* field = new CKyUITextEdit(CKyUITextEdit::Small);
    field->setInputType(CKyUITextEdit::DecimalInput);
    field->setText(text);
    return field;
}

// The field's number in the user's locale, or in the C locale's notation.
double NumberIn(const CKyUITextEdit* field)
{
    bool ok = false;
    const double value = QLocale().toDouble(field->text(), &ok);
    return ok ? value : QLocale::c().toDouble(field->text());
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
    mode->currentIndexChanged().connect([this](int index) { ShowRowsFor(index); });
    layout->addView(CaptionedRow("Type", mode));

    length = LengthField("10");
    m_lengthRow = CaptionedRow("Length (mm)", length);
    layout->addView(m_lengthRow);

    secondLength = LengthField("0");
    m_secondLengthRow = CaptionedRow("Second length (mm)", secondLength);
    layout->addView(m_secondLengthRow);

    symmetric = new CKyUICheckBox;
    symmetric->setText("Symmetric to plane");
    layout->addView(symmetric);

    reversed = new CKyUICheckBox;
    reversed->setText("Reversed");
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
    chosen.length = NumberIn(length);
    chosen.secondLength = NumberIn(secondLength);
    chosen.reversed = reversed->isChecked();
    chosen.symmetric = symmetric->isChecked();
    return chosen;
}
