#include "HolePatternDialog.h"

#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIRadioButton.h"
#include "UI/CKyUIRadioGroup.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUIVerticalLayout.h"

namespace
{
// A row of a caption and the control it names.
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
} // namespace

void HolePatternDialog::SetupUI()
{
    setWindowTitle("Hole pattern");
    CKyUIVerticalLayout* layout = GetLayout();
    layout->UseMargin(true);
    layout->setMinimumWidth(360);

    auto* title = new CKyUILabel;
    title->setText("Drill a hole pattern");
    title->setFontSize(18);
    title->setBoldText(true);
    layout->addView(title);

    auto* details = new CKyUILabel;
    details->setText("3 rows by 4 columns, 12.5 mm apart");
    layout->addView(details);

    // Items inserted with insertItems reach the list on screen; addItem
    // without an icon would fill the model only.
    auto* pattern = new CKyUIComboBox;
    pattern->insertItems(0, {"Grid", "Circle", "Row"});
    pattern->setCurrentIndex(0);
    layout->addView(CaptionedRow("Pattern", pattern));

    m_diameter = new CKyUITextEdit(CKyUITextEdit::Small);
    m_diameter->setPlaceholderText("mm");
    m_diameter->setText("6");
    layout->addView(CaptionedRow("Hole diameter", m_diameter));

    auto* countersink = new CKyUICheckBox;
    countersink->setText("Countersink the holes");
    layout->addView(countersink);

    // The radio group places its buttons in the group box that holds it.
    // The theme leaves a group box's title unstyled, so a caption names it.
    auto* units = new CKyUIGroupBox(CKyUIGroupBox::Horizontal, true);
    layout->addView(CaptionedRow("Units", units));
    auto* unitButtons = new CKyUIRadioGroup;
    units->addView(unitButtons);
    auto* millimetres = new CKyUIRadioButton;
    millimetres->setText("Millimetres");
    unitButtons->addRadioButton(millimetres);
    auto* inches = new CKyUIRadioButton;
    inches->setText("Inches");
    unitButtons->addRadioButton(inches);
    millimetres->setChecked(true);

    auto* preview = new CKyUIPushButton;
    preview->setText("Preview on the part");
    preview->setBoldText(true);
    layout->addView(preview);

    m_status = new CKyUILabel;
    m_status->setText("No preview yet");
    layout->addView(m_status);

    // The text edit's text follows what the user types; Return in it only
    // reports returnPressed and does not press OK.
    const auto showPreview = [this]() {
        m_status->setText("Preview drawn: 12 holes of " + m_diameter->text() + " mm");
    };
    preview->clicked().connect([showPreview](bool) { showPreview(); });
    m_diameter->returnPressed().connect(showPreview);

    // Last, so that it lands at the bottom. It never closes the dialog itself.
    auto* buttons = new CKyUIDialogButtonBox(this);
    buttons->accepted().connect([this]() { accept(); });
    buttons->rejected().connect([this]() { reject(); });
}
