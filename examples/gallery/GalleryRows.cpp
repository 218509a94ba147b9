#include "GalleryRows.h"

#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtGui/QPainter>

namespace GalleryRows
{

const QColor Panel(0x33, 0x35, 0x38);
const QColor Field(0x14, 0x15, 0x18);
const QColor Accent(0x21, 0x4B, 0x98);
const QColor Text(0xFF, 0xFF, 0xFF);

namespace
{
const int NameWidth = 120;
}

CKyUIVerticalLayout* NewPage()
{
    auto* page = new CKyUIVerticalLayout;
    page->setContentsMargins(10, 10, 10, 10);
    page->setSpacing(6);
    return page;
}

CKyUIHorizontalLayout* AddRow(CKyUIVerticalLayout* page, const QString& name)
{
    auto* row = new CKyUIHorizontalLayout;
    row->setSpacing(8);
    auto* label = NewLabel(name);
    label->setBoldText(true);
    label->setMinimumWidth(NameWidth);
    label->setMaximumWidth(NameWidth);
    row->addView(label);
    page->addView(row);
    return row;
}

void AddFiller(CKyUIBaseView* row)
{
    row->addView(new CKyUILabel, 1.0f);
}

void AddPageFiller(CKyUIVerticalLayout* page)
{
    page->addView(new CKyUILabel, 1.0f);
}

CKyUILabel* NewLabel(const QString& text)
{
    auto* label = new CKyUILabel;
    label->setText(text);
    return label;
}

CKyUILabel* Caption(const QString& text)
{
    auto* label = NewLabel(text);
    label->setBoldText(true);
    return label;
}

CKyUIPushButton* NewButton(const QString& text)
{
    auto* button = new CKyUIPushButton;
    button->setText(text);
    return button;
}

QPixmap HoleIcon(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal centre = size / 2.0;
    const qreal radius = size * 0.3;
    painter.setPen(QPen(Text, 1.5));
    painter.setBrush(Accent);
    painter.drawEllipse(QPointF(centre, centre), radius, radius);
    painter.setPen(QPen(Text, 1.0, Qt::DashLine));
    painter.drawLine(QPointF(1, centre), QPointF(size - 1, centre));
    painter.drawLine(QPointF(centre, 1), QPointF(centre, size - 1));
    return pixmap;
}

} // namespace GalleryRows
