#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUISlider.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITextView.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QWidget>

// A plug-in may delete a control from inside a slot of one of the control's
// own signals. Where one operation reports through several signals, it must
// stop at that point instead of going on in the deleted object, and the
// widget, deleted later by the event loop, must not report any more.

namespace
{

// Deletes the control from the first slot of the signal it is attached to,
// records what else was reported after that, and at its end checks that
// nothing was and that the widget went with the next deferred deletions.
template <class Control> struct DeletedInSlot
{
    explicit DeletedInSlot(Control* made = new Control)
        : control(made)
    {}

    Control* control;
    QPointer<QWidget> widget{qobject_cast<QWidget*>(control->getHandle())};
    bool deleted = false;
    Recorder afterwards;

    // Slots for a signal of any arguments. The slot's own captures go with
    // the control: it copies what it needs.
    auto DeleteNow()
    {
        return [this](const auto&...) {
            DeletedInSlot* const self = this;
            delete self->control;
            self->control = nullptr;
            self->deleted = true;
        };
    }
    auto Count()
    {
        return [this](const auto&...) {
            if (deleted)
                afterwards.add("reported");
        };
    }
    // For what the toolkit delivers to shown widgets only.
    bool Show()
    {
        widget->show();
        return QTest::qWaitForWindowExposed(widget.data());
    }
    // Checked when the block ends.
    ~DeletedInSlot()
    {
        EXPECT_TRUE(deleted);
        EXPECT_TRUE(afterwards.lines.isEmpty());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(widget.isNull());
    }
};

CKyUITextEdit* NewEdit()
{
    return new CKyUITextEdit(CKyUITextEdit::Medium);
}

} // namespace

TEST(DeletedFromItsOwnSlot, TextEditDeletedWhenItsTextChanges)
{
    // Set by the program: textChanged, textEdited, textChanged.
    {
        DeletedInSlot<CKyUITextEdit> edit(NewEdit());
        edit.control->textChanged().connect(edit.DeleteNow());
        edit.control->textEdited().connect(edit.Count());
        edit.control->setText("x");
    }
    // Typed: textChanged, textEdited.
    {
        DeletedInSlot<CKyUITextEdit> edit(NewEdit());
        edit.control->textChanged().connect(edit.DeleteNow());
        edit.control->textEdited().connect(edit.Count());
        ASSERT_TRUE(edit.Show());
        QTest::keyClicks(edit.widget.data(), "ab");
    }
    // Return: the toolkit's key handling goes on after the slot.
    {
        DeletedInSlot<CKyUITextEdit> edit(NewEdit());
        edit.control->returnPressed().connect(edit.DeleteNow());
        ASSERT_TRUE(edit.Show());
        QTest::keyClick(edit.widget.data(), Qt::Key_Return);
    }
}

TEST(DeletedFromItsOwnSlot, TextViewDeletedWhenItsContentOrFocusChanges)
{
    for (bool adjustHeight : {false, true}) {
        SCOPED_TRACE(adjustHeight);
        DeletedInSlot<CKyUITextView> view;
        view.control->setAdjustHeightToContent(adjustHeight);
        view.control->textChanged().connect(view.DeleteNow());
        view.control->textChanged().connect(view.Count());
        view.control->setText("replaced");
    }
    {
        DeletedInSlot<CKyUITextView> view;
        view.control->setAdjustHeightToContent(true);
        view.control->textChanged().connect(view.DeleteNow());
        ASSERT_TRUE(view.Show());
        QTest::keyClicks(view.widget.data(), "typed");
    }
    {
        QLineEdit neighbour;
        neighbour.show();
        DeletedInSlot<CKyUITextView> view;
        view.control->focusInEventSignal().connect(view.DeleteNow());
        view.control->focusOutEventSignal().connect(view.Count());
        ASSERT_TRUE(view.Show());
        QApplication::setActiveWindow(view.widget.data());
        view.widget->setFocus(Qt::OtherFocusReason);
        QApplication::setActiveWindow(&neighbour);
        neighbour.setFocus(Qt::OtherFocusReason);
    }
}

TEST(DeletedFromItsOwnSlot, ChoicesDeletedWhenTheyChange)
{
    // The check box reports stateChanged, then toggled.
    {
        DeletedInSlot<CKyUICheckBox> check;
        check.control->stateChanged().connect(check.DeleteNow());
        check.control->toggled().connect(check.Count());
        check.control->setChecked(true);
    }
    // The combo box reports currentIndexChanged, then currentStringChanged,
    // and then tells its widget.
    {
        DeletedInSlot<CKyUIComboBox> combo;
        combo.control->addItem(QIcon(), "a", 1);
        combo.control->addItem(QIcon(), "b", 2);
        combo.control->currentIndexChanged().connect(combo.DeleteNow());
        combo.control->currentStringChanged().connect(combo.Count());
        combo.control->setCurrentIndex(1);
    }
    // Single reports, from the toolkit's own handling of a click or a key.
    {
        DeletedInSlot<CKyUIPushButton> button;
        button.control->clicked().connect(button.DeleteNow());
        ASSERT_TRUE(button.Show());
        QTest::mouseClick(button.widget.data(), Qt::LeftButton);
    }
    {
        DeletedInSlot<CKyUISlider> slider;
        slider.control->valueChanged().connect(slider.DeleteNow());
        ASSERT_TRUE(slider.Show());
        QTest::keyClick(slider.widget.data(), Qt::Key_PageUp);
    }
}
