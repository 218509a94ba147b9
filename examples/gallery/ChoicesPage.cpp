// "Choices": sliders and the list box.

#include "GalleryPages.h"
#include "GalleryRows.h"

#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIListBox.h"
#include "UI/CKyUISlider.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtGui/QPalette>

using namespace GalleryRows;

namespace
{

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
    AddSliders(page, report);
    AddListBox(page);
    AddPageFiller(page);
    return {"Choices", page, {}};
}
