// "Buttons and text": push buttons, a menu of actions, labels, text edits and
// a text view.

#include "GalleryPages.h"
#include "GalleryRows.h"

#include "UI/CKyUIAction.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIMenu.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITextView.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtGui/QIcon>
#include <QtGui/QPalette>

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
    auto* paragraph = NewLabel("A label with word wrap breaks a long explanation into lines at "
                               "the width that its row leaves for it, here 400 pixels.");
    paragraph->setWordWrap(true);
    paragraph->setMinimumWidth(400);
    paragraph->setMaximumWidth(400);
    wrapped->addView(paragraph);
    AddFiller(wrapped);

    CKyUIHorizontalLayout* icon = AddRow(page, "Label with icon");
    auto* hole = new CKyUILabel;
    hole->setIcon(QIcon(HoleIcon(25)));
    hole->setToolTip("A 6 mm hole");
    icon->addView(hole);
    icon->addView(NewLabel("6 mm hole, 12 mm deep"));
    AddFiller(icon);
}

void AddTextFields(CKyUIVerticalLayout* page, const GalleryReport& report)
{
    CKyUIHorizontalLayout* edits = AddRow(page, "Text edit");
    auto* thread = new CKyUITextEdit(CKyUITextEdit::Medium);
    thread->setText("M6 x 1");
    thread->setClearButtonEnabled(true);
    thread->textEdited().connect([report](QString text) { report("Thread \"" + text + "\""); });
    thread->returnPressed().connect([report]() { report("Return pressed in the thread field"); });
    auto* diameter = new CKyUITextEdit(CKyUITextEdit::Medium);
    diameter->setPlaceholderText("Diameter in mm");
    diameter->textEdited().connect([report](QString text) { report("Diameter \"" + text + "\""); });
    auto* disabled = new CKyUITextEdit(CKyUITextEdit::Medium);
    disabled->setText("Disabled");
    disabled->setEnabled(false);
    for (CKyUITextEdit* edit : {thread, diameter, disabled})
        edits->addView(edit, 1.0f);

    CKyUIHorizontalLayout* views = AddRow(page, "Text view");
    auto* notes = new CKyUITextView;
    // The theme has no rule for text views; the palette gives this one the
    // colours of the text edits (Base: background, Text: text colour).
    QPalette colours;
    colours.setColor(QPalette::Base, Field);
    colours.setColor(QPalette::Text, Text);
    colours.setColor(QPalette::AlternateBase, Qt::black);
    notes->setPalette(colours);
    notes->setBorderWidth(1);
    notes->setMinimumHeight(64);
    notes->setMaximumHeight(64);
    notes->setText("Plain text set with setText.");
    notes->addHtmlText("Appended HTML: <b>bold</b>, <i>italic</i> and "
                       "<span style=\"color:#7FA7F0\">coloured</span> text.");
    notes->addText("Appended plain text keeps <tags> & entities literal.");
    notes->textChanged().connect([report]() { report("The notes changed"); });
    views->addView(notes, 1.0f);
}

} // namespace

GalleryPage BuildButtonsAndTextPage(const GalleryReport& report)
{
    CKyUIVerticalLayout* page = NewPage();
    AddPushButtons(page, report);
    AddLabels(page);
    AddTextFields(page, report);
    AddPageFiller(page);
    return {"Buttons and text", page, {}};
}
