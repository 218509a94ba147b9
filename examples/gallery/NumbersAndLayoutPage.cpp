// "Numbers and layout": spin boxes with units, progress bars, a grid and a
// form, separators and a splitter; every control carries a tool tip.

#include "GalleryPages.h"
#include "GalleryRows.h"

#include "UI/CKyUIDoubleSpinBox.h"
#include "UI/CKyUIFormLayout.h"
#include "UI/CKyUIGridLayout.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIProgressBar.h"
#include "UI/CKyUISeparator.h"
#include "UI/CKyUISpinBox.h"
#include "UI/CKyUISplitter.h"
#include "UI/CKyUITextView.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtGui/QIcon>
#include <QtGui/QPalette>

using namespace GalleryRows;

namespace
{

CKyUIDoubleSpinBox* Length(double value, const QString& tip)
{
    auto* field = new CKyUIDoubleSpinBox;
    field->setRange(0, 500);
    field->setDecimals(2);
    field->setSingleStep(0.5);
    field->setSuffix(" mm");
    field->setValue(value);
    field->setToolTip(tip);
    field->setMinimumWidth(110);
    return field;
}

void AddSpinBoxes(CKyUIVerticalLayout* page, const GalleryReport& report)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Spin box");
    auto* holes = new CKyUISpinBox;
    holes->setRange(1, 24);
    holes->setValue(6);
    holes->setSuffix(" holes");
    holes->setToolTip("Number of holes on the circle");
    holes->setMinimumWidth(90);
    holes->valueChanged().connect([report](int count) { report(QString("%1 holes").arg(count)); });
    row->addView(holes);

    CKyUIDoubleSpinBox* depth = Length(12.5, "Depth of each hole");
    depth->valueChanged().connect([report](double mm) { report(QString("Depth %1 mm").arg(mm)); });
    row->addView(depth);

    auto* angle = new CKyUIDoubleSpinBox;
    angle->setRange(-180, 180);
    angle->setDecimals(1);
    angle->setSuffix("°");
    angle->setValue(45);
    angle->setToolTip("Angle of the first hole");
    angle->setMinimumWidth(80);
    row->addView(angle);

    auto* fixed = new CKyUISpinBox;
    fixed->setPrefix("M");
    fixed->setValue(8);
    fixed->setEnabled(false);
    fixed->setMinimumWidth(60);
    row->addView(fixed);
    AddFiller(row);
}

void AddProgressBars(CKyUIVerticalLayout* page)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Progress bar");
    auto* download = new CKyUIProgressBar;
    download->setProgress(3 * 1024 * 1024, 8 * 1024 * 1024);
    download->setToolTip("Bytes received of the bytes expected");
    row->addView(download, 1.0f);

    auto* steps = new CKyUIProgressBar;
    steps->setRange(0, 12);
    steps->setValue(9);
    steps->setFormat("Face %v of %m");
    row->addView(steps, 1.0f);

    auto* disabled = new CKyUIProgressBar;
    disabled->setValue(60);
    disabled->setEnabled(false);
    row->addView(disabled, 1.0f);
}

// A grid in the row: labels and fields, a preview two rows high, and a form
// beside it, divided by an upright separator.
void AddGridAndForm(CKyUIVerticalLayout* page)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Grid and form");
    auto* grid = new CKyUIGridLayout;
    grid->setHorizontalSpacing(6);
    grid->addView(NewLabel("Width"), 0, 0);
    grid->addView(Length(40, "Width of the pocket"), 0, 1);
    grid->addView(NewLabel("Height"), 1, 0);
    grid->addView(Length(25, "Height of the pocket"), 1, 1);
    auto* preview = new CKyUILabel;
    preview->setIcon(QIcon(HoleIcon(48)));
    preview->setToolTip("Where the pocket goes");
    grid->addView(preview, 0, 2, 2, 1, Qt::AlignCenter);
    auto* note = NewLabel("Spans two columns");
    grid->addView(note, 2, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    row->addView(grid, 1.0f);

    row->addView(new CKyUISeparator(Qt::Vertical));

    auto* form = new CKyUIFormLayout;
    form->setHorizontalSpacing(6);
    auto* corner = new CKyUIDoubleSpinBox;
    corner->setSuffix(" mm");
    corner->setValue(2);
    corner->setToolTip("Radius of the corners");
    form->addRow("Corner radius", corner);
    auto* count = new CKyUISpinBox;
    count->setValue(4);
    form->addRow("Pockets", count);
    form->addRow(NewLabel("A form is a grid of two columns"));
    row->addView(form, 1.0f);
}

// The theme has no rule for text views; the palette gives them the colours
// of the fields (Base: background, Text: text, AlternateBase: border).
CKyUITextView* Notes(const QString& text)
{
    auto* notes = new CKyUITextView;
    QPalette colours;
    colours.setColor(QPalette::Base, Field);
    colours.setColor(QPalette::Text, Text);
    colours.setColor(QPalette::AlternateBase, Qt::black);
    notes->setPalette(colours);
    notes->setBorderWidth(1);
    notes->setText(text);
    return notes;
}

void AddSplitter(CKyUIVerticalLayout* page)
{
    page->addView(new CKyUISeparator);
    CKyUIHorizontalLayout* row = AddRow(page, "Splitter");
    auto* split = new CKyUISplitter;
    split->addView(Notes("Pocket\nHole pattern\nFillet"), 1.0f);
    split->addView(Notes("Drag the handle between the two views: sizes() reads the share, "
                         "setSizes() restores it."),
                   2.0f);
    split->setSizes({150, 350});
    split->setMaximumHeight(70);
    split->setToolTip("A splitter with two views");
    row->addView(split, 1.0f);
}

} // namespace

GalleryPage BuildNumbersAndLayoutPage(const GalleryReport& report)
{
    CKyUIVerticalLayout* page = NewPage();
    AddSpinBoxes(page, report);
    AddProgressBars(page);
    AddGridAndForm(page);
    AddSplitter(page);
    AddPageFiller(page);
    return {"Numbers and layout", page, {}};
}
