#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIListBox.h"
#include "UI/CKyUIRadioButton.h"
#include "UI/CKyUIRadioGroup.h"
#include "UI/Impl/CKyUIObjectImpl.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <QtCore/QPointer>
#include <QtGui/QValidator>
#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QRadioButton>

#include <functional>
#include <memory>
#include <vector>

namespace
{
// One control (a radio group comes in its group box), what it emits and what
// its model says.
struct Scene
{
    QWidget* widget() const { return qobject_cast<QWidget*>(root->getHandle()); }
    void Switch(bool on) { SetInteractiveTree(root.get(), on); }
    // The emissions so far, readable in a failure.
    std::string Lines() { return log.take().join(" | ").toStdString(); }

    Recorder log;
    std::unique_ptr<CKyUIBaseView> root;
    std::function<QString()> state;
    // Connects a slot to the signal that the user's action reports first.
    std::function<void(std::function<void()>)> hear;
};

template <class Control, class Signal> void Hear(Scene& scene, Control* control, Signal& (Control::*signal)())
{
    scene.hear = [control, signal](std::function<void()> slot) {
        (control->*signal)().connect([slot](const auto&...) { slot(); });
    };
}

CKyUICheckBox* MakeCheckBox(Scene& scene)
{
    auto* box = new CKyUICheckBox;
    scene.root.reset(box);
    scene.log.on(box->stateChanged(), "state").on(box->toggled(), "toggled").on(box->clicked(), "clicked");
    scene.state = [box] { return QString(box->isChecked() ? "checked" : "unchecked"); };
    Hear(scene, box, &CKyUICheckBox::stateChanged);
    return box;
}

// "A", "B", "C", added without icons, so that the inert widget shows none.
CKyUIComboBox* MakeComboBox(Scene& scene)
{
    auto* box = new CKyUIComboBox;
    for (const char* text : {"A", "B", "C"})
        box->addItem(text);
    box->setCurrentIndex(0);
    scene.root.reset(box);
    scene.log.on(box->currentIndexChanged(), "index").on(box->currentTextChanged(), "text");
    scene.log.on(box->activated(), "activated").on(box->editTextChanged(), "edit");
    scene.log.on(box->editingFinished(), "finished");
    scene.state = [box] { return QString("%1 %2").arg(box->currentIndex()).arg(box->currentText()); };
    Hear(scene, box, &CKyUIComboBox::currentIndexChanged);
    return box;
}

// "a", "b", "c", "a" selected: the flags, currentRow() and selectedItems().
CKyUIListBox* MakeListBox(Scene& scene)
{
    auto* list = new CKyUIListBox;
    for (const char* text : {"a", "b", "c"})
        list->addItem(text);
    list->setItemSelected(0, true);
    scene.root.reset(list);
    scene.log.on(list->valueChanged(), "value");
    scene.state = [list] {
        QString said;
        for (int row = 0; row < list->count(); ++row)
            said += list->isItemSelected(row) ? '1' : '0';
        said += QString(" row %1 sel").arg(list->currentRow());
        for (int row : list->selectedItems())
            said += QString(" %1").arg(row);
        return said;
    };
    Hear(scene, list, &CKyUIListBox::valueChanged);
    return list;
}

// A group box with a radio group of "A", "B" and "C", "A" checked by the
// program: the buttons' states, then the group's current index.
CKyUIRadioGroup* MakeRadioGroup(Scene& scene)
{
    scene.root.reset(new CKyUIGroupBox(CKyUIGroupBox::Vertical, true));
    auto* group = new CKyUIRadioGroup;
    scene.root->addView(group);
    QList<CKyUIRadioButton*> buttons;
    for (const char* text : {"A", "B", "C"}) {
        buttons << new CKyUIRadioButton;
        buttons.last()->setText(text);
        group->addRadioButton(buttons.last());
    }
    buttons.first()->setChecked(true);
    for (CKyUIRadioButton* button : buttons) {
        scene.log.on(button->toggled(), button->text()).on(button->released(), button->text() + " released");
        scene.log.on(button->clicked(), button->text() + " clicked");
    }
    scene.log.on(group->currentIndexChanged(), "group");
    scene.state = [buttons, group] {
        QString said;
        for (CKyUIRadioButton* button : buttons)
            said += button->isChecked() ? '1' : '0';
        return said + QString(" current %1").arg(group->currentIndex());
    };
    Hear(scene, buttons.at(1), &CKyUIRadioButton::toggled);
    return group;
}

void Click(QWidget* widget, QPoint at)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, at);
}

// On the indicator of a check box or radio button.
void ClickIndicator(QWidget* button)
{
    Click(button, QPoint(8, button->height() / 2));
}

void KeyDown(QWidget* widget)
{
    QTest::keyClick(widget, Qt::Key_Down);
}

void WheelDown(QWidget* widget)
{
    const QPoint at = widget->rect().center();
    QWheelEvent event(at, QPointF(widget->mapToGlobal(at)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

// Opens the drop-down from the keyboard, then picks the next row with the mouse.
void PickNext(QWidget* widget)
{
    auto* combo = qobject_cast<QComboBox*>(widget);
    const int row = combo->currentIndex() + 1;
    if (combo->count() <= row)
        return;
    QTest::keyClick(combo, Qt::Key_F4);
    QPointer<QAbstractItemView> view = combo->view(); // a slot may delete the box
    QTRY_VERIFY(view->isVisible());
    // The row may be wider than the drop-down.
    Click(view->viewport(),
          (view->visualRect(view->model()->index(row, 0)) & view->viewport()->rect()).center());
    QTRY_VERIFY(!view || !view->isVisible());
}

// Clicks the button after the one checked on screen.
void ClickNextRadio(QWidget* box)
{
    const QList<QRadioButton*> buttons = box->findChildren<QRadioButton*>();
    int checked = 0;
    while (!buttons.at(checked)->isChecked())
        ++checked;
    ClickIndicator(buttons.at((checked + 1) % buttons.size()));
}

// Clicks the first row not selected on screen.
void ClickUnselectedRow(QWidget* widget)
{
    auto* list = qobject_cast<QListWidget*>(widget);
    for (int row = 0; row < list->count(); ++row) {
        if (!list->item(row)->isSelected())
            return Click(list->viewport(), list->visualItemRect(list->item(row)).center());
    }
}
} // namespace

// Inert, the user's action changes only the screen; switched on, it reaches
// the model and the signals once each, in the toolkit's order; switched off
// again, it is ignored again. Switched on once more, a slot may delete the
// control: nothing after it is reported or touched.
TEST(InteractiveChoicesTest, TheUsersChoiceIsHeardOnlyWhileSwitchedOn)
{
    struct Row
    {
        const char* name;
        std::function<void(Scene&)> make;
        std::function<void(QWidget*)> act;
        QString off;
        QStringList on;
        QString stateOn;
        QString offAgain;
    };
    const QStringList checked = {"state:1", "toggled:true", "clicked:true"};
    const QStringList moved = {"A:false", "B:true", "group:1", "B released", "B clicked"};
    const QStringList chosen = {"index:1", "text:B", "activated:1"};
    const QStringList selected = {"value:1"};
    const std::vector<Row> rows = {
        {"check box, click", MakeCheckBox, ClickIndicator, "unchecked", checked, "checked", "checked"},
        {"radio group, click", MakeRadioGroup, ClickNextRadio, "100 current 0", moved, "010 current 1",
         "010 current 1"},
        {"combo box, pick", MakeComboBox, PickNext, "0 A", chosen, "1 B", "1 B"},
        {"combo box, down", MakeComboBox, KeyDown, "0 A", chosen, "1 B", "1 B"},
        {"combo box, wheel", MakeComboBox, WheelDown, "0 A", chosen, "1 B", "1 B"},
        {"list box, click", MakeListBox, ClickUnselectedRow, "100 row 0 sel", selected, "010 row 1 sel 1",
         "010 row 0 sel"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Scene scene;
        row.make(scene);
        QWidget* widget = scene.widget();
        widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));
        row.act(widget);
        EXPECT_EQ(scene.Lines(), "");
        EXPECT_EQ(scene.state(), row.off);

        scene.Switch(true);
        EXPECT_EQ(scene.Lines(), "");
        row.act(widget);
        EXPECT_EQ(scene.Lines(), row.on.join(" | ").toStdString());
        EXPECT_EQ(scene.state(), row.stateOn);

        scene.Switch(false);
        row.act(widget);
        EXPECT_EQ(scene.Lines(), "");
        EXPECT_EQ(scene.state(), row.offAgain);

        scene.Switch(true);
        scene.hear([&scene] { scene.root.reset(); });
        row.act(widget);
        EXPECT_EQ(scene.root, nullptr);
        const QStringList lines = scene.log.take();
        EXPECT_EQ(lines.size(), 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

// The program's calls while inert are kept and show once the controls are
// switched on; calls while on show at once; calls once off again do not.
// Nothing is emitted.
TEST(InteractiveChoicesTest, InertOperationsTakeEffectWhileSwitchedOn)
{
    Scene check, radio, combo, list;
    CKyUICheckBox* checkBox = MakeCheckBox(check);
    CKyUIRadioGroup* group = MakeRadioGroup(radio);
    CKyUIComboBox* comboBox = MakeComboBox(combo);
    comboBox->insertItem(2, "");
    CKyUIListBox* listBox = MakeListBox(list);
    const auto apply = [&](int call) {
        checkBox->setTextSize(call == 2 ? 10.5f : 12.0f + call);
        checkBox->setResourceIcon(call == 2 ? ":/commonui/resources/icons/checkbox_active.png"
                                            : ":/commonui/resources/icons/chevron_down.png");
        group->setTitle(QString("Units %1").arg(call));
        comboBox->setItemText(1, QString("T%1").arg(call));
        comboBox->setIconSize(QSize(10 * call, 8));
        comboBox->setMaxVisibleItems(call);
        comboBox->setHideEmptyText(call != 2);
        listBox->clearSelection();
        listBox->addItem(QString("n%1").arg(call));
        listBox->setItemSelected(listBox->count() - 1, true);
        listBox->setItemText(1, QString("t%1").arg(call));
    };
    // Widget, then model where both have one, selected rows marked "*".
    const auto shown = [&] {
        auto* checkWidget = qobject_cast<QCheckBox*>(check.widget());
        auto* comboWidget = qobject_cast<QComboBox*>(combo.widget());
        auto* listWidget = qobject_cast<QListWidget*>(list.widget());
        QString said = QString("%1 %2 / %3 / %4|%5 %6 %7 ")
                           .arg(checkWidget->styleSheet())
                           .arg(checkWidget->icon().availableSizes().value(0).width())
                           .arg(qobject_cast<QGroupBox*>(radio.widget())->title())
                           .arg(comboWidget->itemText(1), comboBox->itemText(1))
                           .arg(comboWidget->iconSize().width())
                           .arg(comboWidget->maxVisibleItems());
        for (int row = 0; row < comboWidget->count(); ++row)
            said += qobject_cast<QListView*>(comboWidget->view())->isRowHidden(row) ? '1' : '0';
        said += " /";
        for (int row = 0; row < listWidget->count(); ++row)
            said += " " + listWidget->item(row)->text() + (listWidget->item(row)->isSelected() ? "*" : "");
        said += " |";
        for (int row = 0; row < listBox->count(); ++row)
            said += " " + listBox->item(row) + (listBox->isItemSelected(row) ? "*" : "");
        return said.toStdString();
    };
    const auto all = [&](bool on) {
        for (Scene* scene : {&check, &radio, &combo, &list})
            scene->Switch(on);
    };
    apply(1);
    EXPECT_EQ(shown(), "QCheckBox { } -1 /  / |B 16 10 0 / | a* b c n1*");
    all(true);
    EXPECT_EQ(shown(),
              "QCheckBox { font-size: 13pt;} 16 / Units 1 / B|B 10 1 0010 / a* b c n1* | a* b c n1*");
    apply(2);
    const std::string on = "QCheckBox { font-size: 10.5pt;} 72 / Units 2 / T2|T2 20 2 0000 / a t2 c n1 n2*";
    EXPECT_EQ(shown(), on + " | a t2 c n1 n2*");
    all(false);
    apply(3);
    EXPECT_EQ(shown(), on + " | a t2 c n1 n2* n3*");
    for (Scene* scene : {&check, &radio, &combo, &list})
        EXPECT_EQ(scene->Lines(), "");
}

// The user replaces the text of an editable box and presses Return. The
// insertion policy and the validator, set while the box is inert, apply once
// it is on.
TEST(InteractiveChoicesTest, AnEditableBoxReportsTypingAndItsModelKeepsWhatReturnInserts)
{
    struct Row
    {
        const char* name;
        bool interactive;
        CKyUIComboBox::InsertPolicy policy;
        const char* typed;
        QStringList emitted;
        QString model; // index, text: items
    };
    const std::vector<Row> rows = {
        {"inert", false, CKyUIComboBox::InsertAtBottom, "Feet", {}, "0 A: A B C"},
        // The validator refuses the letter.
        {"digits at the bottom",
         true,
         CKyUIComboBox::InsertAtBottom,
         "1a2",
         {"edit:1", "edit:12", "index:3", "text:12", "activated:3", "finished"},
         "3 12: A B C 12"},
        {"replacing the current",
         true,
         CKyUIComboBox::InsertAtCurrent,
         "cm",
         {"edit:c", "edit:cm", "finished"},
         "0 cm: cm B C"},
    };
    QIntValidator digits(0, 999);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Scene scene;
        CKyUIComboBox* box = MakeComboBox(scene);
        box->setEditable(true);
        box->setInsertPolicy(row.policy);
        box->setValidator(row.typed == QString("1a2") ? &digits : nullptr);
        box->setInteractive(row.interactive);
        auto* widget = qobject_cast<QComboBox*>(scene.widget());
        widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));
        // The box hands the keys to its edit field.
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(widget, row.typed);
        QTest::keyClick(widget, Qt::Key_Return);

        EXPECT_EQ(scene.Lines(), row.emitted.join(" | ").toStdString());
        QStringList items;
        for (int i = 0; i < box->count(); ++i)
            items << box->itemText(i);
        EXPECT_EQ(scene.state() + ": " + items.join(' '), row.model);
        // Inert, the widget alone has what Return inserted.
        EXPECT_EQ(widget->count(), row.interactive ? box->count() : 1);
    }
}
