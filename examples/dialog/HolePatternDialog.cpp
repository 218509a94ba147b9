#include "HolePatternDialog.h"

#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIVerticalLayout.h"

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
    details->setText("3 rows by 4 columns, 12.5 mm apart, 6 mm holes");
    layout->addView(details);

    auto* preview = new CKyUIPushButton;
    preview->setText("Preview on the part");
    preview->setBoldText(true);
    layout->addView(preview);

    m_status = new CKyUILabel;
    m_status->setText("No preview yet");
    layout->addView(m_status);

    preview->clicked().connect([this](bool) { m_status->setText("Preview drawn: 12 holes"); });

    // Last, so that it lands at the bottom. It never closes the dialog itself.
    auto* buttons = new CKyUIDialogButtonBox(this);
    buttons->accepted().connect([this]() { accept(); });
    buttons->rejected().connect([this]() { reject(); });
}
