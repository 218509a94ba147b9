#include "UI/CKyUIFormLayout.h"
#include "UI/CKyUIGridLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIRadioGroup.h"
#include "UI/CKyUISeparator.h"
#include "UI/CKyUISplitter.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtGui/QMouseEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QSplitter>

namespace
{
QGridLayout* GridOf(const CKyUIGridLayout& grid)
{
    return qobject_cast<QGridLayout*>(HandleAs<QGroupBox>(grid)->layout());
}

// "row,column rowSpan x columnSpan", or "-" for a view not in the grid.
QString CellOf(const CKyUIGridLayout& grid, const CKyUIBaseView* view)
{
    const int index = GridOf(grid)->indexOf(HandleAs<QWidget>(*view));
    if (index < 0)
        return "-";
    int row, column, rowSpan, columnSpan;
    GridOf(grid)->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
    return QString("%1,%2 %3x%4").arg(row).arg(column).arg(rowSpan).arg(columnSpan);
}
} // namespace

// Each view lands where it was told, or, by the plain addView, in a new row
// across the columns; cells beyond the grid's reach are brought into it.
TEST(GridLayoutTest, PlacesSpansAndClampsCells)
{
    CKyUIGridLayout grid;
    EXPECT_EQ(HandleAs<QGroupBox>(grid)->styleSheet(), "QGroupBox { border: none; padding: 0px; }");
    auto* a = new CKyUILabel;
    auto* b = new CKyUILabel;
    auto* tall = new CKyUILabel;
    auto* below = new CKyUILabel;
    auto* far = new CKyUILabel;
    grid.addView(a, 0, 0);
    grid.addView(b, 0, 1, 1, 1, Qt::AlignRight);
    grid.addView(tall, 0, 2, 2, -4);
    grid.addView(below, 1.9f);
    EXPECT_EQ(QStringList({CellOf(grid, a), CellOf(grid, b), CellOf(grid, tall), CellOf(grid, below)}),
              QStringList({"0,0 1x1", "0,1 1x1", "0,2 2x1", "2,0 1x3"}));
    EXPECT_EQ(GridOf(grid)->itemAtPosition(0, 1)->alignment(), Qt::AlignRight);
    EXPECT_EQ(std::make_pair(grid.rowCount(), grid.columnCount()), std::make_pair(3, 3));
    EXPECT_EQ(std::make_pair(grid.rowStretch(2), GridOf(grid)->rowStretch(2)), std::make_pair(1, 1));
    grid.addView(far, -3, 5000, 9, 9);
    EXPECT_EQ(CellOf(grid, far), "0,999 9x1");
    grid.setColumnStretch(1, 3);
    grid.setColumnStretch(-1, 3);
    EXPECT_EQ(std::make_pair(grid.columnStretch(1), GridOf(grid)->columnStretch(1)), std::make_pair(3, 3));

    // A view with a parent, null and the grid itself are ignored; a radio
    // group joins the tree only.
    auto* group = new CKyUIRadioGroup;
    const int items = GridOf(grid)->count();
    grid.addView(a, 5, 5);
    grid.addView(nullptr, 0, 0);
    grid.addView(&grid, 0, 0);
    grid.addView(group, 4, 0);
    EXPECT_EQ(CellOf(grid, a), "0,0 1x1");
    EXPECT_EQ(GridOf(grid)->count(), items);
    EXPECT_EQ(group->parent(), &grid);
    grid.removeView(b);
    EXPECT_EQ(CellOf(grid, b), "-");
    delete b;
}

// A grid that follows its user passes the switch to what it is given.
TEST(GridLayoutTest, ViewsAddedToAnInteractiveGridFollowTheirUser)
{
    CKyUIGridLayout grid;
    grid.setInteractive(true);
    auto* button = new CKyUIPushButton;
    grid.addView(button, 1, 1);
    EXPECT_TRUE(button->isInteractive());
}

// Rows of label and field; the label made by the form is the form's child.
TEST(GridLayoutTest, FormRows)
{
    CKyUIFormLayout form;
    EXPECT_EQ(form.columnStretch(1), 1);
    auto* depth = new CKyUILabel;
    CKyUILabel* caption = form.addRow("Depth", depth);
    auto* wide = new CKyUILabel;
    form.addRow(wide);
    form.addRow("Empty", nullptr);
    EXPECT_EQ(caption->text(), "Depth");
    EXPECT_EQ(caption->parent(), &form);
    EXPECT_EQ(QStringList({CellOf(form, caption), CellOf(form, depth), CellOf(form, wide)}),
              QStringList({"0,0 1x1", "0,1 1x1", "1,0 1x2"}));
    EXPECT_EQ(form.rowCount(), 3);
}

// A line of one pixel across or upright.
TEST(SeparatorTest, OnePixelLineEitherWay)
{
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        CKyUISeparator line(orientation);
        auto* frame = HandleAs<QFrame>(line);
        ASSERT_NE(frame, nullptr);
        EXPECT_EQ(line.orientation(), orientation);
        const bool across = orientation == Qt::Horizontal;
        EXPECT_EQ(frame->frameShape(), across ? QFrame::HLine : QFrame::VLine);
        EXPECT_EQ(across ? frame->maximumHeight() : frame->maximumWidth(), 1);
        EXPECT_TRUE(frame->styleSheet().contains("background-color: #000000;"));
    }
}

// Sizes set before the views come are kept until the splitter is laid out;
// a drag reports each move, and a saved state brings the drag's sizes back.
TEST(SplitterTest, DragSaveAndRestore)
{
    CKyUISplitter split;
    split.setSizes({100, 300});
    EXPECT_EQ(split.sizes(), QList<int>({100, 300}));
    split.addView(new CKyUILabel, 1.0f);
    split.addView(new CKyUILabel, 1.0f);
    auto* splitter = HandleAs<QSplitter>(split);
    splitter->resize(405, 50);
    splitter->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(splitter));
    EXPECT_EQ(split.sizes(), QList<int>({100, 300}));

    Recorder moves;
    moves.on(split.splitterMoved(), "moved");
    QSplitterHandle* handle = splitter->handle(1);
    const QPoint grip(handle->width() / 2, 25);
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, grip);
    QMouseEvent drag(QEvent::MouseMove, grip + QPoint(60, 0), handle->mapToGlobal(grip + QPoint(60, 0)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(handle, &drag);
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, grip + QPoint(60, 0));
    EXPECT_EQ(moves.take(), QStringList({"moved:160,1"}));
    const QList<int> dragged = split.sizes();
    EXPECT_EQ(dragged, QList<int>({160, 240}));

    const QByteArray state = split.saveState();
    split.setSizes({300, 100});
    EXPECT_NE(split.sizes(), dragged);
    EXPECT_FALSE(split.restoreState("not a state"));
    EXPECT_TRUE(split.restoreState(state));
    EXPECT_EQ(split.sizes(), dragged);
    EXPECT_TRUE(moves.lines.isEmpty()) << "only the user's drags are reported";
}
