#include "UI/CKyUIRadioGroup.h"
#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIRadioButton.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QRadioButton>

#include <memory>

namespace
{
const auto WidgetOf = [](const CKyUIRadioButton* button) {
    return qobject_cast<QRadioButton*>(button->getHandle());
};

// A group box holding a group of three buttons, "A", "B" and "C".
struct Units
{
    Units()
    {
        box.addView(group);
        for (const char* text : {"A", "B", "C"}) {
            buttons.append(new CKyUIRadioButton);
            buttons.last()->setText(text);
            group->addRadioButton(buttons.last());
        }
    }
    QGroupBox* widget() const { return qobject_cast<QGroupBox*>(box.getHandle()); }

    CKyUIGroupBox box{CKyUIGroupBox::Vertical, true};
    CKyUIRadioGroup* group = new CKyUIRadioGroup;
    QList<CKyUIRadioButton*> buttons;
};
} // namespace

// The buttons join the box's layout in order, the group owns them, and the
// box takes group, buttons and the button group with it. A button added
// again is listed once, at the end; one taken from another group moves.
TEST(CKyUIRadioGroupTest, ButtonsJoinTheGroupBoxLayoutInOrderAndTheGroupOwnsThem)
{
    auto units = std::make_unique<Units>();
    auto* layout = qobject_cast<QBoxLayout*>(units->widget()->layout());
    ASSERT_EQ(layout->count(), 3);
    for (int i = 0; i < 3; ++i) {
        QWidget* widget = WidgetOf(units->buttons.at(i));
        EXPECT_EQ(layout->itemAt(i)->widget(), widget);
        EXPECT_EQ(layout->stretch(i), 0);
        EXPECT_EQ(widget->sizePolicy(),
                  QSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding));
        EXPECT_EQ(units->buttons.at(i)->parent(), units->group);
    }
    EXPECT_EQ(units->box.children(), QList<CKyUIObject*>({units->group}));
    // The group's own toolkit object is no widget and holds no button.
    QPointer<QButtonGroup> buttonGroup(qobject_cast<QButtonGroup*>(units->group->getHandle()));
    ASSERT_FALSE(buttonGroup.isNull());
    EXPECT_TRUE(buttonGroup->buttons().isEmpty());
    units->group->setTitle("Units");
    EXPECT_TRUE(units->widget()->title().isEmpty());
    EXPECT_EQ(layout->count(), 3);

    CKyUIRadioGroup loose;
    loose.addRadioButton(nullptr);
    auto* stray = new CKyUIRadioButton;
    loose.addRadioButton(stray);
    units->group->addRadioButton(units->buttons[0]);
    units->group->addRadioButton(stray);
    EXPECT_TRUE(loose.children().isEmpty());
    EXPECT_EQ(units->group->children(),
              (QList<CKyUIObject*>{units->buttons[1], units->buttons[2], units->buttons[0], stray}));
    units.reset();
    EXPECT_TRUE(buttonGroup.isNull());
}

TEST(CKyUIRadioGroupTest, ExclusionIsShownOnScreenOnlyAndNoClickMovesTheModel)
{
    Units units;
    Recorder log;
    for (CKyUIRadioButton* button : units.buttons) {
        log.on(button->toggled(), button->text()).on(button->clicked(), "clicked");
        log.on(button->released(), "released");
    }
    units.widget()->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(units.widget()));
    units.buttons.at(0)->setChecked(true);
    units.buttons.at(1)->setChecked(true);
    EXPECT_FALSE(WidgetOf(units.buttons.at(0))->isChecked());
    EXPECT_TRUE(WidgetOf(units.buttons.at(1))->isChecked());
    EXPECT_TRUE(units.buttons.at(0)->isChecked());
    EXPECT_EQ(log.lines, QStringList({"A:true", "B:true"}));

    QRadioButton* third = WidgetOf(units.buttons.at(2));
    QTest::mouseClick(third, Qt::LeftButton, Qt::NoModifier, QPoint(8, third->height() / 2));
    EXPECT_TRUE(third->isChecked());
    EXPECT_FALSE(WidgetOf(units.buttons.at(1))->isChecked());
    EXPECT_FALSE(units.buttons.at(2)->isChecked());
    EXPECT_TRUE(units.buttons.at(1)->isChecked());
    EXPECT_EQ(log.lines, QStringList({"A:true", "B:true"}));
}
