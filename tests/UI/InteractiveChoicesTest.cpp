#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIListBox.h"
#include "UI/CKyUIRadioButton.h"
#include "UI/CKyUIRadioGroup.h"
#include "UI/Impl/CKyUIObjectImpl.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QPointer>
#include <QtGui/QValidator>
#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

#include <functional>
#include <memory>
#include <vector>

namespace
{
// One control (a radio group comes in its group box) on screen: what the user
// does to it, what the program does to it, and what it then says.
struct Scene
{
    QWidget* widget() const { return qobject_cast<QWidget*>(root->getHandle()); }
    void Switch(bool on) { SetInteractiveTree(root.get(), on); }

    Recorder log;
    std::unique_ptr<CKyUIBaseView> root;
    std::function<void()> act;
    std::function<void(int)> apply;
    std::function<QString()> state;
    // Connects to the signal the user's action reports first.
    std::function<void(std::function<void()>)> first;
    std::vector<std::unique_ptr<QObject>> keep;
};
using Build = std::function<void(Scene&)>;

void Click(QWidget* widget, QPoint at)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, at);
}

void Wheel(QWidget* widget, int delta)
{
    const QPoint at = widget->rect().center();
    QWheelEvent event(at, QPointF(widget->mapToGlobal(at)), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

// Opens the drop-down from the keyboard, then picks the row with the mouse.
void PickWithMouse(QComboBox* combo, int row)
{
    if (combo->count() <= row)
        return;
    QTest::keyClick(combo, Qt::Key_F4);
    // A slot may delete the box on the pick.
    QPointer<QAbstractItemView> view = combo->view();
    QTRY_VERIFY(view->isVisible());
    // The row may be wider than the drop-down.
    const QRect item = view->visualRect(view->model()->index(row, 0)) & view->viewport()->rect();
    Click(view->viewport(), item.center());
    QTRY_VERIFY(!view || !view->isVisible());
}

CKyUICheckBox* MakeCheckBox(Scene& scene)
{
    auto* box = new CKyUICheckBox;
    box->setText("Reversed");
    scene.root.reset(box);
    scene.log.on(box->stateChanged(), "state").on(box->toggled(), "toggled").on(box->clicked(), "clicked");
    scene.state = [box] { return QString(box->isChecked() ? "checked" : "unchecked"); };
    scene.first = [box](std::function<void()> slot) { box->stateChanged().connect([slot](int) { slot(); }); };
    return box;
}

// Three items without icons, the first one current.
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
    scene.first = [box](std::function<void()> slot) { box->currentIndexChanged().connect([slot](int) { slot(); }); };
    return box;
}

// "a", "b", "c" with "a" selected; the state is the flags, currentRow() and
// selectedItems().
CKyUIListBox* MakeListBox(Scene& scene)
{
    auto* list = new CKyUIListBox;
    for (const char* text : {"a", "b", "c"})
        list->addItem(text);
    list->setItemSelected(0, true);
    scene.root.reset(list);
    scene.log.on(list->valueChanged(), "value");
    scene.state = [list] {
        QString flags;
        for (int row = 0; row < list->count(); ++row)
            flags += list->isItemSelected(row) ? '1' : '0';
        QStringList selected;
        for (int row : list->selectedItems())
            selected << QString::number(row);
        return QString("%1 row %2 sel %3").arg(flags).arg(list->currentRow()).arg(selected.join(','));
    };
    scene.first = [list](std::function<void()> slot) { list->valueChanged().connect([slot](int) { slot(); }); };
    return list;
}

// A group box with a radio group of "A", "B" and "C", "A" checked by the program.
CKyUIRadioGroup* MakeRadioGroup(Scene& scene, QList<CKyUIRadioButton*>& buttons)
{
    auto* box = new CKyUIGroupBox(CKyUIGroupBox::Vertical, true);
    scene.root.reset(box);
    auto* group = new CKyUIRadioGroup;
    box->addView(group);
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
        QString flags;
        for (CKyUIRadioButton* button : buttons)
            flags += button->isChecked() ? '1' : '0';
        return QString("%1 current %2").arg(flags).arg(group->currentIndex());
    };
    scene.first = [buttons](std::function<void()> slot) {
        buttons.first()->toggled().connect([slot](bool) { slot(); });
    };
    return group;
}

// The emissions so far, readable in a failure.
std::string Lines(Recorder& log)
{
    return log.take().join(" | ").toStdString();
}

template <class Widget> Widget* Shown(const CKyUIObject* object)
{
    return qobject_cast<Widget*>(object->getHandle());
}

// What the user does, what the model says after it while inert, what is
// emitted and said once switched on, and what is said after the same action
// once switched off again (with nothing emitted).
struct UserRow
{
    const char* name;
    Build build;
    QString off;
    QStringList on;
    QString stateOn;
    QString offAgain;
};

std::vector<UserRow> UserRows()
{
    const Build checkBoxClick = [](Scene& scene) {
        QCheckBox* widget = Shown<QCheckBox>(MakeCheckBox(scene));
        scene.act = [widget] { Click(widget, QPoint(8, widget->height() / 2)); };
    };
    const Build checkBoxSpace = [](Scene& scene) {
        QCheckBox* widget = Shown<QCheckBox>(MakeCheckBox(scene));
        scene.act = [widget] { QTest::keyClick(widget, Qt::Key_Space); };
    };
    // Clicks the button after the one checked on screen.
    const Build radioClick = [](Scene& scene) {
        QList<CKyUIRadioButton*> buttons;
        MakeRadioGroup(scene, buttons);
        scene.act = [buttons] {
            int checked = 0;
            while (!Shown<QRadioButton>(buttons.at(checked))->isChecked())
                ++checked;
            QRadioButton* next = Shown<QRadioButton>(buttons.at((checked + 1) % buttons.size()));
            Click(next, QPoint(8, next->height() / 2));
        };
    };
    const auto combo = [](std::function<void(QComboBox*)> act) -> Build {
        return [act](Scene& scene) {
            QComboBox* widget = Shown<QComboBox>(MakeComboBox(scene));
            scene.act = [act, widget] { act(widget); };
        };
    };
    // Clicks the first row that is not selected on screen.
    const Build listClick = [](Scene& scene) {
        QListWidget* widget = Shown<QListWidget>(MakeListBox(scene));
        scene.act = [widget] {
            for (int row = 0; row < widget->count(); ++row) {
                if (!widget->item(row)->isSelected())
                    return Click(widget->viewport(), widget->visualItemRect(widget->item(row)).center());
            }
        };
    };
    const Build listDown = [](Scene& scene) {
        QListWidget* widget = Shown<QListWidget>(MakeListBox(scene));
        // The first press only makes the selected first row current.
        scene.act = [widget] {
            QTest::keyClick(widget, Qt::Key_Down);
            QTest::keyClick(widget, Qt::Key_Down);
        };
    };
    const QStringList comboOn = {"index:1", "text:B", "activated:1"};
    return {
        {"check box, click", checkBoxClick, "unchecked", {"state:1", "toggled:true", "clicked:true"}, "checked",
         "checked"},
        {"check box, space", checkBoxSpace, "unchecked", {"state:1", "toggled:true", "clicked:true"}, "checked",
         "checked"},
        {"radio group, click",
         radioClick,
         "100 current 0",
         {"A:false", "B:true", "group:1", "B released", "B clicked"},
         "010 current 1",
         "010 current 1"},
        {"combo box, pick", combo([](QComboBox* widget) { PickWithMouse(widget, widget->currentIndex() + 1); }),
         "0 A", comboOn, "1 B", "1 B"},
        {"combo box, down", combo([](QComboBox* widget) { QTest::keyClick(widget, Qt::Key_Down); }), "0 A",
         comboOn, "1 B", "1 B"},
        {"combo box, wheel", combo([](QComboBox* widget) { Wheel(widget, -120); }), "0 A", comboOn, "1 B", "1 B"},
        {"list box, click", listClick, "100 row 0 sel ", {"value:1"}, "010 row 1 sel 1", "010 row 0 sel "},
        {"list box, down", listDown, "100 row 0 sel ", {"value:1"}, "010 row 1 sel 1", "010 row 0 sel "},
    };
}
} // namespace

// Inert, the user's action changes only the screen; switched on, it reaches
// the model and the signals once each, in the toolkit's order; switched off
// again, it is ignored again.
TEST(InteractiveChoicesTest, TheUsersChoiceIsHeardOnlyWhileSwitchedOn)
{
    for (const UserRow& row : UserRows()) {
        SCOPED_TRACE(row.name);
        Scene scene;
        row.build(scene);
        scene.widget()->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(scene.widget()));
        scene.act();
        EXPECT_EQ(Lines(scene.log), "");
        EXPECT_EQ(scene.state().toStdString(), row.off.toStdString());

        scene.Switch(true);
        EXPECT_EQ(Lines(scene.log), "");
        scene.act();
        EXPECT_EQ(Lines(scene.log), row.on.join(" | ").toStdString());
        EXPECT_EQ(scene.state().toStdString(), row.stateOn.toStdString());

        scene.Switch(false);
        scene.act();
        EXPECT_EQ(Lines(scene.log), "");
        EXPECT_EQ(scene.state().toStdString(), row.offAgain.toStdString());
    }
}

namespace
{
// What the program does (apply(1), apply(2), ...) and what the widget shows:
// while inert, once switched on (what was kept is applied), after a second
// call while on, and after a third call once switched off again (the widget
// unchanged, as after the second unless told).
struct OperationRow
{
    const char* name;
    Build build;
    QString off;
    QString on;
    QString onAgain;
    QString offAgain = QString();
};

std::vector<OperationRow> OperationRows()
{
    const auto checkBox = [](std::function<void(CKyUICheckBox*, int)> apply,
                             std::function<QString(QCheckBox*)> shown) -> Build {
        return [apply, shown](Scene& scene) {
            CKyUICheckBox* box = MakeCheckBox(scene);
            scene.apply = [apply, box](int call) { apply(box, call); };
            scene.state = [shown, box] { return shown(Shown<QCheckBox>(box)); };
        };
    };
    const auto comboBox = [](std::function<void(CKyUIComboBox*, int)> apply,
                             std::function<QString(QComboBox*)> shown) -> Build {
        return [apply, shown](Scene& scene) {
            CKyUIComboBox* box = MakeComboBox(scene);
            scene.apply = [apply, box](int call) { apply(box, call); };
            scene.state = [shown, box] { return shown(Shown<QComboBox>(box)); };
        };
    };
    // The widget's rows, a selected one marked with "*", then the model's.
    const auto listBox = [](std::function<void(CKyUIListBox*, int)> apply) -> Build {
        return [apply](Scene& scene) {
            CKyUIListBox* list = MakeListBox(scene);
            scene.apply = [apply, list](int call) { apply(list, call); };
            scene.state = [list] {
                QListWidget* widget = Shown<QListWidget>(list);
                QStringList rows;
                for (int row = 0; row < widget->count(); ++row)
                    rows << widget->item(row)->text() + (widget->item(row)->isSelected() ? "*" : "");
                rows << "|";
                for (int row = 0; row < list->count(); ++row)
                    rows << list->item(row) + (list->isItemSelected(row) ? "*" : "");
                return rows.join(' ');
            };
        };
    };
    const Build radioTitle = [](Scene& scene) {
        QList<CKyUIRadioButton*> buttons;
        CKyUIRadioGroup* group = MakeRadioGroup(scene, buttons);
        scene.apply = [group](int call) { group->setTitle(QString("Units %1").arg(call)); };
        scene.state = [&scene] { return qobject_cast<QGroupBox*>(scene.widget())->title(); };
    };
    const Build validator = [](Scene& scene) {
        CKyUIComboBox* box = MakeComboBox(scene);
        box->setEditable(true);
        for (const char* name : {"digits", "letters", "any"}) {
            scene.keep.emplace_back(new QRegExpValidator(QRegExp(name[0] == 'd' ? "[0-9]*" : "[a-z]*")));
            scene.keep.back()->setObjectName(name);
        }
        scene.apply = [&scene, box](int call) {
            box->setValidator(static_cast<QValidator*>(scene.keep.at(call - 1).get()));
        };
        scene.state = [box] {
            const QValidator* used = Shown<QComboBox>(box)->validator();
            return used ? used->objectName() : QString("none");
        };
    };
    const Build hideEmpty = [](Scene& scene) {
        CKyUIComboBox* box = MakeComboBox(scene);
        box->insertItem(1, "");
        scene.apply = [box](int call) { box->setHideEmptyText(call != 2); };
        scene.state = [box] {
            QString hidden;
            for (int row = 0; row < Shown<QComboBox>(box)->count(); ++row)
                hidden += qobject_cast<QListView*>(Shown<QComboBox>(box)->view())->isRowHidden(row) ? '1' : '0';
            return hidden;
        };
    };
    const auto size = [](QSize value) { return QString("%1x%2").arg(value.width()).arg(value.height()); };
    return {
        {"check box, text size",
         checkBox([](CKyUICheckBox* box, int call) { box->setTextSize(call == 2 ? 10.5f : 12.0f + call); },
                  [](QCheckBox* widget) { return widget->styleSheet(); }),
         "QCheckBox { }", "QCheckBox { font-size: 13pt;}", "QCheckBox { font-size: 10.5pt;}"},
        {"check box, resource icon",
         checkBox(
             [](CKyUICheckBox* box, int call) {
                 box->setResourceIcon(call == 2 ? ":/commonui/resources/icons/checkbox_active.png"
                                                : ":/commonui/resources/icons/chevron_down.png");
             },
             [size](QCheckBox* widget) {
                 return widget->icon().isNull() ? QString("none") : size(widget->icon().availableSizes().value(0));
             }),
         "none", "16x10", "72x72"},
        {"radio group, title", radioTitle, "", "Units 1", "Units 2"},
        {"combo box, item text",
         comboBox([](CKyUIComboBox* box, int call) { box->setItemText(1, QString("T%1").arg(call)); },
                  [](QComboBox* widget) { return widget->itemText(1); }),
         "", "B", "T2"},
        {"combo box, icon size",
         comboBox([](CKyUIComboBox* box, int call) { box->setIconSize(QSize(10 * call, 8)); },
                  [size](QComboBox* widget) { return size(widget->iconSize()); }),
         "16x16", "10x8", "20x8"},
        {"combo box, visible items",
         comboBox([](CKyUIComboBox* box, int call) { box->setMaxVisibleItems(call); },
                  [](QComboBox* widget) { return QString::number(widget->maxVisibleItems()); }),
         "10", "1", "2"},
        {"combo box, insert policy",
         comboBox(
             [](CKyUIComboBox* box, int call) {
                 box->setInsertPolicy(call == 2 ? CKyUIComboBox::InsertAlphabetically : CKyUIComboBox::NoInsert);
             },
             [](QComboBox* widget) { return QString::number(widget->insertPolicy()); }),
         "3", "0", "6"},
        {"combo box, validator", validator, "none", "digits", "letters"},
        {"combo box, hide empty text", hideEmpty, "0", "0100", "0000"},
        {"list box, items and selection",
         listBox([](CKyUIListBox* list, int call) {
             list->addItem(QString("n%1").arg(call));
             list->setItemSelected(list->count() - 1, true);
         }),
         "| a* b c n1*", "a* b c n1* | a* b c n1*", "a* b c n1* n2* | a* b c n1* n2*",
         "a* b c n1* n2* | a* b c n1* n2* n3*"},
        {"list box, item text", listBox([](CKyUIListBox* list, int call) {
             list->setItemText(1, QString("t%1").arg(call));
         }),
         "| a* b c", "a* b c | a* b c", "a* t2 c | a* t2 c"},
        {"list box, clear selection", listBox([](CKyUIListBox* list, int call) {
             list->setItemSelected(call, true);
             list->clearSelection();
         }),
         "| a* b* c", "a* b* c | a* b* c", "a b c | a b c"},
    };
}
} // namespace

TEST(InteractiveChoicesTest, InertOperationsTakeEffectWhileSwitchedOn)
{
    for (const OperationRow& row : OperationRows()) {
        SCOPED_TRACE(row.name);
        Scene scene;
        row.build(scene);
        scene.apply(1);
        EXPECT_EQ(scene.state().toStdString(), row.off.toStdString());
        scene.Switch(true);
        EXPECT_EQ(scene.state().toStdString(), row.on.toStdString());
        scene.apply(2);
        EXPECT_EQ(scene.state().toStdString(), row.onAgain.toStdString());
        scene.Switch(false);
        scene.apply(3);
        EXPECT_EQ(scene.state().toStdString(), (row.offAgain.isNull() ? row.onAgain : row.offAgain).toStdString());
        EXPECT_EQ(Lines(scene.log), "");
    }
}

namespace
{
// An editable box of "A", "B" and "C", "A" current, beside a line edit to
// take the focus: the user replaces the text, then ends with Return or Tab.
struct EditRow
{
    const char* name;
    bool interactive;
    int policy;
    const char* typed;
    Qt::Key end;
    QStringList emitted;
    QString model;
};
} // namespace

TEST(InteractiveChoicesTest, AnEditableBoxReportsTypingAndKeepsWhatReturnInsertsInItsModel)
{
    const int bottom = CKyUIComboBox::InsertAtBottom;
    const QStringList edits = {"edit:F", "edit:Fe", "edit:Fee", "edit:Feet"};
    const std::vector<EditRow> rows = {
        {"inert", false, bottom, "Feet", Qt::Key_Return, {}, "0 A: A B C"},
        {"at the bottom", true, bottom, "Feet", Qt::Key_Return,
         edits + QStringList{"index:3", "text:Feet", "activated:3", "finished"}, "3 Feet: A B C Feet"},
        // The current item moves down first.
        {"at the top", true, CKyUIComboBox::InsertAtTop, "Feet", Qt::Key_Return,
         edits + QStringList{"index:1", "text:A", "index:0", "text:Feet", "activated:0", "finished"},
         "0 Feet: Feet A B C"},
        {"replacing the current", true, CKyUIComboBox::InsertAtCurrent, "cm", Qt::Key_Return,
         {"edit:c", "edit:cm", "finished"}, "0 cm: cm B C"},
        {"not inserted", true, CKyUIComboBox::NoInsert, "Feet", Qt::Key_Return, edits + QStringList{"finished"},
         "0 Feet: A B C"},
        {"an item already there", true, bottom, "C", Qt::Key_Return,
         {"edit:C", "index:2", "text:C", "activated:2", "finished"}, "2 C: A B C"},
        {"digits only", true, bottom, "1a2", Qt::Key_Return,
         {"edit:1", "edit:12", "index:3", "text:12", "activated:3", "finished"}, "3 12: A B C 12"},
        {"leaving the field", true, bottom, "Feet", Qt::Key_Tab, edits + QStringList{"finished"}, "0 Feet: A B C"},
    };
    QRegExpValidator digits(QRegExp("[0-9]*"));
    for (const EditRow& row : rows) {
        SCOPED_TRACE(row.name);
        QWidget window; // holds the box's widget, so it goes after the box
        Scene scene;
        CKyUIComboBox* box = MakeComboBox(scene);
        scene.log.take();
        box->setEditable(true);
        box->setInsertPolicy(static_cast<CKyUIComboBox::InsertPolicy>(row.policy));
        if (row.name == std::string("digits only"))
            box->setValidator(&digits);
        box->setInteractive(row.interactive);
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(scene.widget());
        layout->addWidget(new QLineEdit);
        window.show();
        QApplication::setActiveWindow(&window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        // The box takes the keys for its edit field.
        QComboBox* widget = Shown<QComboBox>(box);
        widget->lineEdit()->setFocus();
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(widget, row.typed);
        QTest::keyClick(widget, row.end);
        EXPECT_EQ(Lines(scene.log), row.emitted.join(" | ").toStdString());
        QStringList model;
        for (int i = 0; i < box->count(); ++i)
            model << box->itemText(i);
        EXPECT_EQ((scene.state() + ": " + model.join(' ')).toStdString(), row.model.toStdString());
        // The widget's items are the model's, once it follows its user.
        if (row.interactive) {
            EXPECT_EQ(widget->count(), box->count());
        }
    }
}

// Each action's first report may delete the control: the later ones are not
// made, and nothing is touched afterwards.
TEST(InteractiveChoicesTest, ASlotMayDeleteTheControlItHears)
{
    for (const UserRow& row : UserRows()) {
        SCOPED_TRACE(row.name);
        Scene scene;
        row.build(scene);
        scene.widget()->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(scene.widget()));
        scene.Switch(true);
        scene.first([&scene] { scene.root.reset(); });
        scene.act();
        EXPECT_EQ(scene.root, nullptr);
        EXPECT_EQ(Lines(scene.log), row.on.first().toStdString());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
