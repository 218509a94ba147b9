// "Buttons and text": push buttons, a menu of actions, labels.

#include "GalleryPages.h"
#include "GalleryRows.h"

#include "UI/CKyUIAction.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIMenu.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtGui/QIcon>

using namespace GalleryRows;

namespace
{

void AddPushButtons(CKyUIVerticalLayout* page, const GalleryReport& report)
{
    CKyUIHorizontalLayout* states = AddRow(page, "Push button");
    auto* plain = NewButton("Plain");
    auto* bold = NewButton("Bold");
    bold->setBoldText(true);
    auto* disabled = NewButton("Disabled");
    disabled->setEnabled(false);
    auto* checkable = NewButton("Checkable");
    checkable->setCheckable(true);
    for (CKyUIPushButton* button : {plain, bold, disabled, checkable}) {
        button->setMinimumWidth(90);
        button->clicked().connect([report, button](bool) { report("Clicked \"" + button->text() + "\""); });
        states->addView(button);
    }
    AddFiller(states);

    CKyUIHorizontalLayout* aligned = AddRow(page, "Text alignment");
    const struct
    {
        const char* text;
        CKyUIPushButton::TextAlignment alignment;
    } alignments[] = {{"Left", CKyUIPushButton::Left},
                      {"Center", CKyUIPushButton::Center},
                      {"Right", CKyUIPushButton::Right}};
    for (const auto& each : alignments) {
        auto* button = NewButton(each.text);
        button->setTextAlignment(each.alignment);
        aligned->addView(button, 1.0f);
    }

    CKyUIHorizontalLayout* icons = AddRow(page, "Icon and menu");
    auto* drill = NewButton("Drill");
    drill->setIcon(QIcon(HoleIcon(16)));
    drill->setToolTip("Drills the selected holes");
    drill->setMinimumWidth(90);
    drill->clicked().connect([report](bool) { report("Clicked \"Drill\""); });
    icons->addView(drill);

    // The menu opens under the button; its actions report themselves.
    auto* options = NewButton("Options...");
    options->setMinimumWidth(90);
    auto* menu = new CKyUIMenu;
    for (const char* text : {"Countersink", "Tap a thread", "Through all"}) {
        auto* action = new CKyUIAction;
        action->setText(text);
        action->setCheckable(true);
        action->setChecked(false);
        action->triggered().connect(
            [report, action](bool checked) { report(action->text() + (checked ? " on" : " off")); });
        menu->addAction(action);
        if (QString(text) == "Tap a thread")
            menu->addSeparator();
    }
    options->clicked().connect([menu, options](bool) { menu->popup(options); });
    icons->addView(options);
    // The menu lives as long as the button that opens it.
    menu->setParent(options);
    AddFiller(icons);
}

void AddLabels(CKyUIVerticalLayout* page)
{
    CKyUIHorizontalLayout* texts = AddRow(page, "Label");
    texts->addView(NewLabel("Plain text"));
    auto* bold = NewLabel("Bold text");
    bold->setBoldText(true);
    texts->addView(bold);
    auto* large = NewLabel("18 px text");
    large->setFontSize(18);
    texts->addView(large);
    auto* disabled = NewLabel("Disabled");
    disabled->setEnabled(false);
    texts->addView(disabled);
    AddFiller(texts);

    CKyUIHorizontalLayout* wrapped = AddRow(page, "Word wrap");
    auto* paragraph = NewLabel("A label with word wrap breaks a long explanation into lines "
                               "at the width its row leaves it.");
    paragraph->setWordWrap(true);
    paragraph->setMinimumWidth(300);
    wrapped->addView(paragraph, 1.0f);

    CKyUIHorizontalLayout* icon = AddRow(page, "Label with icon");
    auto* hole = new CKyUILabel;
    hole->setIcon(QIcon(HoleIcon(25)));
    hole->setToolTip("A 6 mm hole");
    icon->addView(hole);
    icon->addView(NewLabel("6 mm hole, 12 mm deep"));
    AddFiller(icon);
}

} // namespace

GalleryPage BuildButtonsAndTextPage(const GalleryReport& report)
{
    CKyUIVerticalLayout* page = NewPage();
    AddPushButtons(page, report);
    AddLabels(page);
    AddPageFiller(page);
    return {"Buttons and text", page, {}};
}
