// "Containers": group boxes, layouts and the appearance calls, the scrollable
// area, the dock widget, the preview view and the stacked widget that holds
// the pages.

#include "GalleryPages.h"
#include "GalleryRows.h"

#include "UI/CKyUIDockWidget.h"
#include "UI/CKyUIEvent.h"
#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIPreviewView.h"
#include "UI/CKyUIScrollableArea.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

using namespace GalleryRows;

namespace
{

// Draws a hole pattern into the off-screen image of the preview view and keeps
// a copy: the view has no widget of its own, so a label shows the picture.
class HolePatternPreview : public CKyUIPreviewView
{
public:
    void paintEvent(CKyUIPaintEvent* event) override
    {
        QPainter* painter = GetPainter();
        if (!painter)
            return;
        const QRect area = event->rect();
        painter->fillRect(area, Field);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(Accent);
        const qreal step = area.width() / 3.0;
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 3; ++column)
                painter->drawEllipse(QPointF(step * (column + 0.5), step * (row + 0.5)), step / 3.2,
                                     step / 3.2);
        if (auto* image = dynamic_cast<QImage*>(painter->device()))
            picture = image->copy();
    }

    QImage picture;
};

void Outline(CKyUIBaseView* view)
{
    view->setBorderWidth(1);
    view->setBorderColor(Accent.red(), Accent.green(), Accent.blue());
}

void AddGroupBoxes(CKyUIVerticalLayout* page)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Group box");
    // The theme gives group box titles no room, so labels name the boxes.
    auto* column = new CKyUIGroupBox(CKyUIGroupBox::Vertical, true);
    column->addView(Caption("Vertical"));
    column->addView(NewLabel("Second line"));
    row->addView(column, 1.0f);

    auto* across = new CKyUIGroupBox(CKyUIGroupBox::Horizontal, true);
    across->addView(Caption("Horizontal"));
    across->addView(NewLabel("Next"));
    row->addView(across, 1.0f);

    // Collapsing is bookkeeping: the state and its signal, the box stays open.
    auto* collapsed = new CKyUIGroupBox(CKyUIGroupBox::Vertical, true);
    collapsed->addView(Caption("Collapsed"));
    collapsed->addView(NewLabel("Its children stay"));
    collapsed->setCollapsed(true);
    row->addView(collapsed, 1.0f);
}

void AddLayouts(CKyUIVerticalLayout* page)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Box layouts");
    auto* across = new CKyUIHorizontalLayout;
    across->UseMargin(true);
    Outline(across);
    for (const char* text : {"Left", "Middle", "Right"})
        across->addView(NewLabel(text));
    row->addView(across, 1.0f);

    auto* down = new CKyUIVerticalLayout;
    down->UseMargin(true);
    down->setSpacing(0);
    Outline(down);
    for (const char* text : {"Top", "Bottom"})
        down->addView(NewLabel(text));
    row->addView(down, 1.0f);
}

void AddAppearance(CKyUIVerticalLayout* page)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Appearance");
    auto* border = NewLabel("2 px border");
    border->setBorderWidth(2);
    border->setBorderColor(0xCF, 0xCF, 0xCF);
    row->addView(border);

    auto* underline = NewLabel("Bottom border");
    underline->setBorderWidth(0, 0, 0, 3);
    underline->setBorderColor(Accent.red(), Accent.green(), Accent.blue());
    row->addView(underline);

    // Base is the background, Text the text colour, AlternateBase the border.
    auto* coloured = NewLabel("Palette colours");
    QPalette palette;
    palette.setColor(QPalette::Base, Accent);
    palette.setColor(QPalette::Text, Text);
    coloured->setPalette(palette);
    row->addView(coloured);
    AddFiller(row);
}

GalleryPage::ShownFunction AddScrollableArea(CKyUIVerticalLayout* page)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Scrollable area");
    auto* area = new CKyUIScrollableArea;
    area->setMinimumHeight(77);
    area->setMaximumHeight(77);
    auto* holes = new CKyUIVerticalLayout;
    holes->setSpacing(0);
    CKyUILabel* target = nullptr;
    for (int hole = 1; hole <= 12; ++hole) {
        auto* label = NewLabel(QString("Hole %1 at x %2 mm, y %3 mm")
                                   .arg(hole)
                                   .arg(12.5 * ((hole - 1) % 4), 0, 'f', 1)
                                   .arg(12.5 * ((hole - 1) / 4), 0, 'f', 1));
        holes->addView(label);
        if (hole == 7)
            target = label;
    }
    area->addView(holes);
    row->addView(area, 1.0f);
    // Scrolling needs the page's geometry, so it waits until the page shows.
    return [area, target]() { area->scrollTo(target); };
}

void AddDockWidget(CKyUIVerticalLayout* page)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Dock widget");
    auto* layers = new CKyUIVerticalLayout;
    layers->UseMargin(true);
    layers->setSpacing(0);
    Outline(layers);
    layers->addView(NewLabel("Layers"));
    row->addView(layers);
    row->addView(NewLabel("Held by a dock widget titled \"Layers\" for a host to dock"), 1.0f);

    // The dock widget makes no widget of its own, so it joins the page's object
    // tree (which owns it) but no layout.
    auto* dock = new CKyUIDockWidget(Qt::RightDockWidgetArea);
    dock->setTitle("Layers");
    dock->setWidget(layers);
    dock->setParent(page);
}

void AddPreview(CKyUIVerticalLayout* page)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Preview view");
    auto* preview = new HolePatternPreview;
    preview->setParent(page);
    preview->resize(25, 25);
    preview->update();
    auto* picture = new CKyUILabel;
    picture->setIcon(QIcon(QPixmap::fromImage(preview->picture)));
    row->addView(picture);
    row->addView(NewLabel("Drawn off screen by a preview view, shown by a label"), 1.0f);
}

} // namespace

GalleryPage BuildContainersPage(const GalleryReport&)
{
    CKyUIVerticalLayout* page = NewPage();
    AddGroupBoxes(page);
    AddLayouts(page);
    AddAppearance(page);
    GalleryPage::ShownFunction scroll = AddScrollableArea(page);
    AddDockWidget(page);
    AddPreview(page);

    CKyUIHorizontalLayout* stacked = AddRow(page, "Stacked widget");
    auto* note = NewLabel("Holds the pages of this dialog under their tabs");
    stacked->addView(note, 1.0f);
    AddPageFiller(page);
    return {"Containers", page, scroll};
}
