// "Choices": check boxes, radio buttons, combo boxes, sliders and the list box.

#include "GalleryPages.h"
#include "GalleryRows.h"

#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIListBox.h"
#include "UI/CKyUIRadioButton.h"
#include "UI/CKyUIRadioGroup.h"
#include "UI/CKyUISlider.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtGui/QPalette>

using namespace GalleryRows;

namespace
{

void AddCheckBoxes(CKyUIVerticalLayout* page, const GalleryReport& report)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Check box");
    const struct
    {
        const char* text;
        bool checked;
        bool enabled;
    } boxes[] = {{"Checked", true, true},
                 {"Unchecked", false, true},
                 {"Disabled, checked", true, false},
                 {"Disabled", false, false}};
    for (const auto& each : boxes) {
        auto* box = new CKyUICheckBox;
        box->setText(each.text);
        box->setChecked(each.checked);
        box->setEnabled(each.enabled);
        // Follows the program's setChecked only: a click is not reported.
        box->toggled().connect(
            [report, each](bool on) { report(QString(each.text) + (on ? " checked" : " unchecked")); });
        row->addView(box);
    }
    AddFiller(row);
}

// A group box holding a radio group, which puts its buttons into the box. The
// theme gives group box titles no room, so a label names the box instead.
CKyUIGroupBox* RadioBox(const QString& title, const QStringList& texts, int checked)
{
    auto* box = new CKyUIGroupBox(CKyUIGroupBox::Vertical, true);
    box->addView(Caption(title));
    auto* group = new CKyUIRadioGroup;
    group->setTitle(title);
    box->addView(group);
    for (int i = 0; i < texts.size(); ++i) {
        auto* button = new CKyUIRadioButton;
        button->setText(texts[i]);
        group->addRadioButton(button);
        button->setChecked(i == checked);
    }
    return box;
}

void AddRadioButtons(CKyUIVerticalLayout* page)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Radio buttons");
    row->addView(RadioBox("Units", {"Millimetres", "Inches"}, 0), 1.0f);
    CKyUIGroupBox* threads = RadioBox("Thread (disabled)", {"Metric", "Imperial"}, 1);
    threads->setEnabled(false);
    row->addView(threads, 1.0f);
}

void AddComboBoxes(CKyUIVerticalLayout* page, const GalleryReport& report)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Combo box");
    // insertItems reaches the list on screen; addItem without an icon would
    // fill the model only.
    auto* material = new CKyUIComboBox;
    material->insertItems(0, {"Steel", "Aluminium", "Brass"});
    material->setCurrentIndex(1);
    material->currentStringChanged().connect([report](const QString& text) { report("Material " + text); });
    row->addView(material);

    auto* thread = new CKyUIComboBox;
    thread->setEditable(true);
    thread->insertItems(0, {"M5", "M6", "M8"});
    thread->setEditText("M6 x 0.75");
    row->addView(thread);

    auto* disabled = new CKyUIComboBox;
    disabled->insertItems(0, {"Disabled"});
    disabled->setCurrentIndex(0);
    disabled->setEnabled(false);
    row->addView(disabled);
    row->addView(NewLabel("The middle one is editable"), 1.0f);
}

void AddSliders(CKyUIVerticalLayout* page, const GalleryReport& report)
{
    CKyUIHorizontalLayout* depth = AddRow(page, "Slider");
    auto* slider = new CKyUISlider;
    slider->setRange(0, 50);
    slider->setValue(12);
    auto* value = NewLabel("12 mm");
    value->setMinimumWidth(60);
    slider->valueChanged().connect([value, report](int mm) {
        value->setText(QString::number(mm) + " mm");
        report("Depth " + QString::number(mm) + " mm");
    });
    depth->addView(slider, 1.0f);
    depth->addView(value);

    CKyUIHorizontalLayout* disabled = AddRow(page, "Disabled slider");
    auto* fixed = new CKyUISlider;
    fixed->setRange(0, 100);
    fixed->setValue(75);
    fixed->setEnabled(false);
    disabled->addView(fixed, 1.0f);
    auto* note = NewLabel("75 %");
    note->setMinimumWidth(60);
    disabled->addView(note);
}

void AddListBox(CKyUIVerticalLayout* page)
{
    CKyUIHorizontalLayout* row = AddRow(page, "List box");
    auto* materials = new CKyUIListBox;
    for (const char* material : {"Steel", "Aluminium", "Brass", "Cast iron"})
        materials->addItem(material);
    materials->setItemData(materials->row("Brass"), 8.5);
    materials->setItemSelected(materials->row("Brass"), true);
    // The theme leaves list widgets alone; the palette gives this one the
    // colours of the fields around it (AlternateBase is the border colour).
    QPalette colours;
    colours.setColor(QPalette::Base, Field);
    colours.setColor(QPalette::AlternateBase, Qt::black);
    materials->setPalette(colours);
    materials->setBorderWidth(1);
    materials->setMaximumHeight(80);
    materials->setMinimumWidth(150);
    materials->setMaximumWidth(150);
    row->addView(materials);

    // The list keeps its items in the model and leaves the widget empty.
    QString items;
    for (int i = 0; i < materials->count(); ++i)
        items += (i ? ", " : "") + materials->item(i) + (materials->isItemSelected(i) ? " (selected)" : "");
    auto* model = NewLabel(QString("%1 items: %2. The items live in the model; the "
                                   "list on screen stays empty.")
                               .arg(materials->count())
                               .arg(items));
    model->setWordWrap(true);
    row->addView(model, 1.0f);
}

} // namespace

GalleryPage BuildChoicesPage(const GalleryReport& report)
{
    CKyUIVerticalLayout* page = NewPage();
    AddCheckBoxes(page, report);
    AddRadioButtons(page);
    AddComboBoxes(page, report);
    AddSliders(page, report);
    AddListBox(page);
    AddPageFiller(page);
    return {"Choices", page, {}};
}
