#include "UI/CKyUIAction.h"
#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIDockWidget.h"
#include "UI/CKyUIEvent.h"
#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUIImageView.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIListBox.h"
#include "UI/CKyUIMenu.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIRadioButton.h"
#include "UI/CKyUIRadioGroup.h"
#include "UI/CKyUIScrollableArea.h"
#include "UI/CKyUISignal.h"
#include "UI/CKyUISlider.h"
#include "UI/CKyUIStackedWidget.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITextView.h"
#include "UI/CKyUITimer.h"
#include "UI/CKyUIVerticalLayout.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTabWidget>

#include <climits>
#include <cmath>
#include <limits>
#include <memory>

// Every public operation that takes a pointer, an index or a row, given null,
// negative, too large and stale values. Where the result is defined it is
// checked; elsewhere the call must do nothing and must not crash (the
// sanitized suite turns any stray access into a failure).

namespace
{
void RunDeferredDeletions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget* WidgetOf(const CKyUIObject& object)
{
    return qobject_cast<QWidget*>(object.getHandle());
}

QBoxLayout* BoxLayoutOf(const CKyUIBaseView& layout)
{
    auto* box = qobject_cast<QGroupBox*>(layout.getHandle());
    return box ? qobject_cast<QBoxLayout*>(box->layout()) : nullptr;
}

QString SheetOf(const CKyUIObject& object)
{
    return WidgetOf(object)->styleSheet();
}

// A view with an implementation but no toolkit object.
HandleView* NewViewWithoutWidget()
{
    return new HandleView(nullptr);
}
} // namespace

TEST(BadInput, ObjectTreeRefusesNullSelfAndAncestors)
{
    CKyUIObject root;
    auto* child = new CKyUIObject;
    child->setParent(&root);
    auto* grandChild = new CKyUIObject;
    grandChild->setParent(child);

    root.setParent(&root);
    root.setParent(grandChild);
    EXPECT_EQ(root.parent(), nullptr);
    child->setParent(child);
    EXPECT_EQ(child->parent(), &root);
    child->setParent(nullptr);
    child->setParent(nullptr);
    EXPECT_TRUE(root.children().isEmpty());
    child->setParent(&root);

    EXPECT_FALSE(root.setProperty(nullptr, 1));
    EXPECT_FALSE(root.property(nullptr).isValid());
    root.setObjectName("no handle, no implementation");
    EXPECT_EQ(root.objectName(), "no handle, no implementation");

    // Guards and signals without an object to report to.
    {
        CKyUIEmitScope scope(nullptr, &root);
    }
    CKyUISignal<void(int)> orphan(nullptr);
    int received = 0;
    orphan.connect([&received](int value) { received = value; });
    orphan.Emit(7);
    EXPECT_EQ(received, 7);
}

TEST(BadInput, ViewsIgnoreNullSelfAncestorsAndStrangers)
{
    CKyUIVerticalLayout column;
    auto* row = new CKyUIHorizontalLayout;
    column.addView(row);
    auto* label = new CKyUILabel;
    row->addView(label);

    for (CKyUIBaseView* container :
         {static_cast<CKyUIBaseView*>(&column), static_cast<CKyUIBaseView*>(row)}) {
        container->addView(nullptr, 1.0f);
        container->insertView(nullptr, 0, 1.0f);
        container->removeView(nullptr);
        container->addView(container);
        container->insertView(container, 0);
    }
    // An ancestor cannot become a child of its own descendant.
    row->addView(&column);
    row->insertView(&column, 0);
    EXPECT_EQ(column.parent(), nullptr);
    EXPECT_EQ(row->children(), QList<CKyUIObject*>{label});

    // Removing what is not one's own child, or no longer is, changes nothing.
    column.removeView(label);
    EXPECT_EQ(label->parent(), row);
    row->removeView(label);
    row->removeView(label);
    EXPECT_EQ(label->parent(), nullptr);
    delete label;

    // Tab order and event handlers with nothing to work on.
    column.setTabOrder(nullptr, nullptr);
    column.setTabOrder(row, nullptr);
    column.setTabOrder(nullptr, row);
    column.setTabOrder(row, row);
    std::unique_ptr<HandleView> bare(NewViewWithoutWidget());
    column.setTabOrder(bare.get(), row);
    column.showEvent(nullptr);
    column.hideEvent(nullptr);
    column.paintEvent(nullptr);
    column.resizeEvent(nullptr);
    column.focusInEvent(nullptr);
    column.focusOutEvent(nullptr);
}

TEST(BadInput, InsertPositionsOutsideALayoutOrGroupBoxAppend)
{
    CKyUIHorizontalLayout row;
    CKyUIVerticalLayout column;
    CKyUIGroupBox rowBox(CKyUIGroupBox::Horizontal, false);
    CKyUIGroupBox columnBox(CKyUIGroupBox::Vertical, true);
    for (CKyUIBaseView* layout :
         {static_cast<CKyUIBaseView*>(&row), static_cast<CKyUIBaseView*>(&column),
          static_cast<CKyUIBaseView*>(&rowBox), static_cast<CKyUIBaseView*>(&columnBox)}) {
        auto* first = new CKyUILabel;
        layout->addView(first);
        auto* beforeStart = new CKyUILabel;
        layout->insertView(beforeStart, -1);
        auto* pastEnd = new CKyUILabel;
        layout->insertView(pastEnd, 1000);
        auto* farPastEnd = new CKyUILabel;
        layout->insertView(farPastEnd, INT_MAX);
        auto* farBeforeStart = new CKyUILabel;
        layout->insertView(farBeforeStart, INT_MIN);

        // Nothing is lost: a position that is not in the layout is its end.
        QBoxLayout* box = BoxLayoutOf(*layout);
        ASSERT_EQ(box->count(), 5);
        EXPECT_EQ(box->itemAt(0)->widget(), WidgetOf(*first));
        EXPECT_EQ(box->itemAt(1)->widget(), WidgetOf(*beforeStart));
        EXPECT_EQ(box->itemAt(2)->widget(), WidgetOf(*pastEnd));
        EXPECT_EQ(box->itemAt(3)->widget(), WidgetOf(*farPastEnd));
        EXPECT_EQ(box->itemAt(4)->widget(), WidgetOf(*farBeforeStart));
        EXPECT_EQ(layout->children().size(), 5);
    }
}

// A removed view is given back to its caller, but its widget stays with the
// former container on the toolkit's side and goes when that container goes.
TEST(BadInput, AViewWhoseWidgetWentWithItsFormerContainerIsQuiet)
{
    auto* row = new CKyUIHorizontalLayout;
    auto* column = new CKyUIVerticalLayout;
    auto* area = new CKyUIScrollableArea;
    std::unique_ptr<CKyUIPushButton> inRow(new CKyUIPushButton);
    std::unique_ptr<CKyUILabel> inColumn(new CKyUILabel);
    std::unique_ptr<CKyUISlider> inArea(new CKyUISlider);
    row->addView(inRow.get());
    column->addView(inColumn.get());
    area->addView(inArea.get());
    row->removeView(inRow.get());
    column->removeView(inColumn.get());
    area->removeView(inArea.get());
    QPointer<QWidget> rowWidget(WidgetOf(*inRow));
    QPointer<QWidget> areaWidget(WidgetOf(*inArea));

    delete row;
    delete column;
    delete area;
    RunDeferredDeletions();
    ASSERT_TRUE(rowWidget.isNull());
    ASSERT_TRUE(areaWidget.isNull());
    EXPECT_EQ(inRow->getHandle(), nullptr);
    EXPECT_EQ(inArea->getHandle(), nullptr);

    // What is stored is still answered; nothing reaches for the gone widgets.
    inRow->setText("kept");
    inRow->setTextAlignment(CKyUIPushButton::Left);
    inRow->setBorderWidth(2.0f);
    inRow->setVisible(true);
    EXPECT_EQ(inRow->text(), "kept");
    EXPECT_TRUE(inRow->isVisible());
    inArea->setValue(12);
    EXPECT_EQ(inArea->value(), 12);
    inColumn->setText("column");
    EXPECT_EQ(inColumn->text(), "column");

    // And they can join another container without their widgets.
    CKyUIVerticalLayout other;
    other.addView(inRow.release());
    other.insertView(inArea.release(), 0);
    EXPECT_EQ(other.children().size(), 2);
}

TEST(BadInput, WidgetNumbersOutOfRangeAreHandedOnOrStored)
{
    CKyUIPushButton button;
    for (int size : {-1, INT_MIN, INT_MAX}) {
        button.setMinimumWidth(size);
        button.setMinimumHeight(size);
        button.setMaximumWidth(size);
        button.setMaximumHeight(size);
    }
    button.resize(-5, INT_MIN);
    EXPECT_EQ(button.width(), -5);
    EXPECT_EQ(button.height(), INT_MIN);
    button.setPreferableSize(INT_MAX, -1);
    EXPECT_EQ(button.width(), INT_MAX);
    EXPECT_EQ(button.height(), -1);

    // Only the toolkit's focus policies are passed on; other numbers change
    // nothing.
    button.setFocusPolicy(Qt::ClickFocus);
    for (int policy : {-1, 3, 16, INT_MAX, INT_MIN})
        button.setFocusPolicy(policy);
    EXPECT_EQ(WidgetOf(button)->focusPolicy(), Qt::ClickFocus);
    button.setFocusPolicy(Qt::NoFocus);
    EXPECT_EQ(WidgetOf(button)->focusPolicy(), Qt::NoFocus);

    // Widths are written as given; colours outside 0 to 255 leave the
    // toolkit's invalid colour, whose name is black.
    CKyUILabel label;
    label.setBorderWidth(-1.0f);
    EXPECT_TRUE(SheetOf(label).contains("border-width:-1px;"));
    label.setBorderWidth(-1.5f, 1e30f, 0.0f, -0.0f);
    EXPECT_TRUE(SheetOf(label).contains("border-left-width:-1.5px;border-top-width:1e+30px;"));
    label.setBorderWidth(std::numeric_limits<float>::quiet_NaN());
    label.setBorderWidth(std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                         std::numeric_limits<float>::quiet_NaN(), 1.0f);
    label.setBorderColor(-1, 256, INT_MAX);
    EXPECT_TRUE(SheetOf(label).endsWith("border-color: #000000;}"));
    QPalette wild;
    wild.setColor(QPalette::Base, QColor(255, 0, 0));
    label.setPalette(wild);
    EXPECT_TRUE(SheetOf(label).contains("background-color: #ff0000;"));

    // The label writes any size, a minus sign included.
    label.setFontSize(INT_MIN);
    EXPECT_TRUE(SheetOf(label).contains("font-size:-2147483648px;"));
    label.setFontSize(INT_MAX);
    EXPECT_TRUE(SheetOf(label).endsWith("font-size:2147483647px;}"));
    // An alignment that is none writes no alignment.
    button.setTextAlignment(CKyUIPushButton::TextAlignment(7));
    EXPECT_FALSE(SheetOf(button).contains("text-align"));
}

TEST(BadInput, SliderTakesExtremeAndInvertedRanges)
{
    CKyUISlider slider;
    auto* widget = qobject_cast<QSlider*>(slider.getHandle());
    widget->resize(200, 25);
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));

    slider.setRange(INT_MIN, INT_MAX);
    slider.setValue(INT_MAX);
    widget->repaint();
    EXPECT_EQ(slider.value(), INT_MAX);
    slider.setValue(INT_MIN);
    widget->repaint();
    EXPECT_EQ(slider.value(), INT_MIN);
    // An inverted range follows the toolkit: the maximum wins.
    slider.setRange(50, 10);
    EXPECT_EQ(widget->minimum(), 10);
    EXPECT_EQ(widget->maximum(), 10);
    EXPECT_EQ(slider.value(), 10);
    QTest::keyClick(widget, Qt::Key_End);
    QTest::keyClick(widget, Qt::Key_PageDown);
}

TEST(BadInput, ListBoxRowsOutsideTheListOrPastAClear)
{
    CKyUIListBox list;
    list.addItem("a");
    list.addItem("b");
    list.setItemData(1, "data of b");
    list.setItemSelected(1, true);
    list.clear();

    // Rows that were valid before the clear, and rows that never were.
    for (int row : {-1, 0, 1, 2, INT_MAX, INT_MIN}) {
        SCOPED_TRACE(row);
        list.setItemData(row, 5);
        EXPECT_FALSE(list.itemData(row).isValid());
        list.setItemSelected(row, true);
        EXPECT_FALSE(list.isItemSelected(row));
        list.setItemText(row, "ignored");
        // The text of a row that does not exist is an empty scratch string;
        // writing to it changes no item.
        list.item(row) = "scribble";
        EXPECT_TRUE(list.item(row).isEmpty());
    }
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.row(QString()), -1);
    list.addItem(QString());
    EXPECT_EQ(list.row(QString()), 0);
    EXPECT_EQ(list.item(0), QString());
    EXPECT_EQ(list.count(), 1);
}

TEST(BadInput, StackedWidgetIndexesAndPagesThatAreNone)
{
    CKyUIStackedWidget tabs;
    int changes = 0;
    tabs.currentChanged().connect([&changes](int) { ++changes; });
    auto* toolkit = qobject_cast<QTabWidget*>(tabs.getHandle());

    tabs.addTab(nullptr, "nothing");
    EXPECT_EQ(toolkit->count(), 0);
    EXPECT_EQ(tabs.indexOf(nullptr), 0);
    tabs.setCurrentWidget(nullptr);
    for (int index : {-1, 0, 1, INT_MAX, INT_MIN}) {
        tabs.setCurrentIndex(index);
        tabs.setTabText(index, "x");
    }
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(tabs.currentIndex(), 0);

    // A page without a widget is a page of the library only.
    auto* first = new CKyUILabel;
    tabs.addTab(first, "first");
    tabs.addTab(NewViewWithoutWidget(), "no widget");
    EXPECT_EQ(tabs.children().size(), 2);
    EXPECT_EQ(toolkit->count(), 1);
    tabs.setTabText(1, "renamed");
    tabs.setCurrentIndex(1);
    EXPECT_EQ(tabs.currentIndex(), 1);
    EXPECT_EQ(changes, 1);

    // A page whose widget went with a removed view still counts as a page.
    tabs.removeView(first);
    delete first;
    RunDeferredDeletions();
    EXPECT_EQ(toolkit->count(), 0);
    tabs.setCurrentIndex(0);
    tabs.setTabText(0, "gone");
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_EQ(changes, 2);
}

TEST(BadInput, ContainersMenusAndImagesWithNothingToWorkOn)
{
    CKyUIScrollableArea area;
    area.scrollTo(nullptr);
    std::unique_ptr<CKyUILabel> stranger(new CKyUILabel);
    area.scrollTo(stranger.get());
    auto* bare = NewViewWithoutWidget();
    area.addView(bare);
    area.scrollTo(bare);
    EXPECT_EQ(qobject_cast<QScrollArea*>(area.getHandle())->widget(), nullptr);

    CKyUIDockWidget dock(-1);
    dock.setWidget(nullptr);
    dock.showEvent(nullptr);
    dock.hideEvent(nullptr);
    dock.raise();
    CKyUILabel content;
    dock.setWidget(&content);
    dock.showEvent(nullptr);
    dock.hideEvent(nullptr);
    dock.setWidget(nullptr);
    EXPECT_EQ(dock.widget(), nullptr);

    CKyUIMenu menu;
    menu.addAction(nullptr);
    menu.popup(nullptr);
    std::unique_ptr<HandleView> noWidget(NewViewWithoutWidget());
    menu.popup(noWidget.get());
    EXPECT_TRUE(menu.children().isEmpty());
    // An action moved from one menu to another belongs to the last one.
    auto* action = new CKyUIAction;
    CKyUIMenu other;
    menu.addAction(action);
    other.addAction(action);
    EXPECT_EQ(action->parent(), &other);
    menu.clear();
    other.clear();

    CKyUIImageView image;
    image.paintEvent(nullptr);
    EXPECT_EQ(image.GetPainter(), nullptr);
    for (auto size : {QSize(-5, 10), QSize(10, -5), QSize(INT_MIN, INT_MIN), QSize(0, 0)}) {
        image.resize(size.width(), size.height());
        image.update();
    }
    image.setPixmap(QPixmap());
    image.resize(4, 4);
    image.update();
    EXPECT_NE(image.pixmap(), nullptr);
}

TEST(BadInput, TimersAndButtonBoxesTakeAnyNumber)
{
    CKyUITimer timer;
    int timeouts = 0;
    timer.timeout().connect([&timeouts] { ++timeouts; });
    timer.start(-1);
    timer.start(INT_MIN);
    timer.stop();
    bool ran = false;
    CKyUITimer::singleShot(-5, [&ran] { ran = true; });
    CKyUITimer::singleShot(0, std::function<void()>());
    QCoreApplication::processEvents();
    EXPECT_EQ(timeouts, 0);
    EXPECT_FALSE(ran);

    // A box without a dialog, asked for buttons it does not have.
    CKyUIDialogButtonBox box(nullptr);
    EXPECT_EQ(box.button(CKyUIDialogButtonBox::StandardButton(0)), nullptr);
    EXPECT_EQ(box.button(CKyUIDialogButtonBox::StandardButton(CKyUIDialogButtonBox::Ok +
                                                              CKyUIDialogButtonBox::Help)),
              nullptr);
    EXPECT_NE(box.button(CKyUIDialogButtonBox::Ok), nullptr);
}

TEST(BadInput, ComboBoxIndexesOutsideTheModelOrPastAClear)
{
    CKyUIComboBox combo;
    auto* widget = qobject_cast<QComboBox*>(combo.getHandle());
    int emissions = 0;
    combo.currentIndexChanged().connect([&emissions](int) { ++emissions; });
    combo.currentStringChanged().connect([&emissions](const QString&) { ++emissions; });
    combo.addItem(QIcon(), "a", 1);
    combo.addItem(QIcon(), "b", 2);
    combo.setCurrentIndex(1);
    ASSERT_EQ(emissions, 2);
    combo.clear();

    // Indexes that were valid before the clear, and ones that never were.
    for (int index : {-1, 0, 1, 2, INT_MAX, INT_MIN}) {
        SCOPED_TRACE(index);
        combo.removeItem(index);
        combo.setCurrentIndex(index);
        combo.setItemData(index, 5);
        combo.setItemText(index, "ignored");
        EXPECT_TRUE(combo.itemText(index).isEmpty());
        EXPECT_FALSE(combo.itemData(index).isValid());
    }
    EXPECT_EQ(emissions, 2);
    EXPECT_EQ(combo.count(), 0);
    EXPECT_EQ(widget->count(), 0);
    // The current item is what was last set, list or no list.
    EXPECT_EQ(combo.currentIndex(), 1);
    EXPECT_EQ(combo.currentText(), "b");

    // Insertions outside the list go to its nearest end, in the list's order,
    // in the model and on screen alike.
    combo.insertItem(INT_MIN, "first");
    combo.insertItem(INT_MAX, QIcon(), "last");
    combo.insertItems(INT_MAX, {"x", "y"});
    combo.insertItems(-5, {"p", "q"});
    const QStringList expected{"p", "q", "first", "last", "x", "y"};
    ASSERT_EQ(combo.count(), expected.size());
    ASSERT_EQ(widget->count(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(combo.itemText(i), expected[i]);
        EXPECT_EQ(widget->itemText(i), expected[i]);
    }
    combo.setValidator(nullptr);
    combo.setMaxVisibleItems(-1);
    combo.setIconSize(QSize(-1, -1));
}

TEST(BadInput, RadioGroupsAndInputControlsWithNothingToWorkOn)
{
    // A group outside any group box has no layout to put its buttons in.
    CKyUIRadioGroup loose;
    loose.addRadioButton(nullptr);
    auto* stray = new CKyUIRadioButton;
    loose.addRadioButton(stray);
    EXPECT_EQ(stray->parent(), &loose);

    // The same button twice, and a button taken from another group.
    CKyUIGroupBox box(CKyUIGroupBox::Vertical, false);
    auto* group = new CKyUIRadioGroup;
    box.addView(group);
    auto* button = new CKyUIRadioButton;
    group->addRadioButton(button);
    group->addRadioButton(button);
    group->addRadioButton(stray);
    EXPECT_EQ(stray->parent(), group);
    EXPECT_EQ(group->children(), (QList<CKyUIObject*>{button, stray}));
    button->setChecked(true);
    stray->setChecked(true);
    EXPECT_TRUE(button->isChecked());

    // Width classes and input types that name nothing.
    for (int size : {-1, 5, 99, INT_MIN, INT_MAX}) {
        CKyUITextEdit edit{CKyUITextEdit::_Size(size)};
        edit.setInputType(size);
        edit.setText("still a field");
        EXPECT_EQ(edit.text(), "still a field");
    }
    CKyUIGroupBox odd(CKyUIGroupBox::Orientation(INT_MIN), true);
    odd.addView(nullptr);
    odd.insertView(nullptr, -1);
    CKyUITextView view;
    view.setText(QString(5000, QLatin1Char('}')));
    view.setText(QStringLiteral("replaced"));
    view.addText(QString());
    view.addHtmlText("<b><i>never closed");
    CKyUICheckBox check;
    check.setText(QString());
    check.setChecked(true);
    EXPECT_TRUE(check.isChecked());
}
