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
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>

// A plug-in may delete a control from inside a slot of one of the control's
// own signals. Where one operation reports through several signals, it must
// stop at that point instead of going on in the deleted object, and the
// widget, deleted later by the event loop, must not report any more.

namespace
{

// Deletes the control from the first slot of the signal it is attached to,
// and records what else was reported after that.
template <class Control> Control* NewControl()
{
    return new Control;
}
template <> CKyUITextEdit* NewControl<CKyUITextEdit>()
{
    return new CKyUITextEdit(CKyUITextEdit::Medium);
}

template <class Control> struct DeletedInSlot
{
    Control* control = NewControl<Control>();
    QPointer<QWidget> widget{qobject_cast<QWidget*>(control->getHandle())};
    bool deleted = false;
    Recorder afterwards;

    // The slot's own captures go with the control: it copies what it needs.
    std::function<void()> DeleteNow()
    {
        return [this] {
            DeletedInSlot* const self = this;
            delete self->control;
            self->control = nullptr;
            self->deleted = true;
        };
    }
    std::function<void()> Count()
    {
        return [this] {
            if (deleted)
                afterwards.add("reported");
        };
    }
    void Finish()
    {
        EXPECT_TRUE(deleted);
        EXPECT_TRUE(afterwards.lines.isEmpty());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(widget.isNull());
    }
};

} // namespace

TEST(DeletedFromItsOwnSlot, TextEditDeletedWhenItsTextChanges)
{
    // Set by the program: textChanged, textEdited, textChanged.
    {
        DeletedInSlot<CKyUITextEdit> edit;
        const auto deleteNow = edit.DeleteNow();
        const auto count = edit.Count();
        edit.control->textChanged().connect([deleteNow](QString) { deleteNow(); });
        edit.control->textEdited().connect([count](QString) { count(); });
        edit.control->setText("x");
        edit.Finish();
    }
    // Typed: textChanged, textEdited.
    {
        DeletedInSlot<CKyUITextEdit> edit;
        const auto deleteNow = edit.DeleteNow();
        const auto count = edit.Count();
        edit.control->textChanged().connect([deleteNow](QString) { deleteNow(); });
        edit.control->textEdited().connect([count](QString) { count(); });
        edit.widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(edit.widget.data()));
        QTest::keyClicks(edit.widget.data(), "ab");
        edit.Finish();
    }
    // Return: the toolkit's key handling goes on after the slot.
    {
        DeletedInSlot<CKyUITextEdit> edit;
        const auto deleteNow = edit.DeleteNow();
        edit.control->returnPressed().connect(deleteNow);
        edit.widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(edit.widget.data()));
        QTest::keyClick(edit.widget.data(), Qt::Key_Return);
        edit.Finish();
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
        view.Finish();
    }
    {
        DeletedInSlot<CKyUITextView> view;
        view.control->setAdjustHeightToContent(true);
        view.control->textChanged().connect(view.DeleteNow());
        view.widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view.widget.data()));
        QTest::keyClicks(view.widget.data(), "typed");
        view.Finish();
    }
    {
        QLineEdit neighbour;
        neighbour.show();
        DeletedInSlot<CKyUITextView> view;
        view.control->focusInEventSignal().connect(view.DeleteNow());
        view.control->focusOutEventSignal().connect(view.Count());
        view.widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view.widget.data()));
        QApplication::setActiveWindow(view.widget.data());
        view.widget->setFocus(Qt::OtherFocusReason);
        QApplication::setActiveWindow(&neighbour);
        neighbour.setFocus(Qt::OtherFocusReason);
        view.Finish();
    }
}

TEST(DeletedFromItsOwnSlot, ChoicesDeletedWhenTheyChange)
{
    // The check box reports stateChanged, then toggled.
    {
        DeletedInSlot<CKyUICheckBox> check;
        const auto deleteNow = check.DeleteNow();
        const auto count = check.Count();
        check.control->stateChanged().connect([deleteNow](int) { deleteNow(); });
        check.control->toggled().connect([count](bool) { count(); });
        check.control->setChecked(true);
        check.Finish();
    }
    // The combo box reports currentIndexChanged, then currentStringChanged,
    // and then tells its widget.
    {
        DeletedInSlot<CKyUIComboBox> combo;
        combo.control->addItem(QIcon(), "a", 1);
        combo.control->addItem(QIcon(), "b", 2);
        const auto deleteNow = combo.DeleteNow();
        const auto count = combo.Count();
        combo.control->currentIndexChanged().connect([deleteNow](int) { deleteNow(); });
        combo.control->currentStringChanged().connect([count](const QString&) { count(); });
        combo.control->setCurrentIndex(1);
        combo.Finish();
    }
    // Single reports, from the toolkit's own handling of a click or a key.
    {
        DeletedInSlot<CKyUIPushButton> button;
        const auto deleteNow = button.DeleteNow();
        button.control->clicked().connect([deleteNow](bool) { deleteNow(); });
        button.widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(button.widget.data()));
        QTest::mouseClick(button.widget.data(), Qt::LeftButton);
        button.Finish();
    }
    {
        DeletedInSlot<CKyUISlider> slider;
        const auto deleteNow = slider.DeleteNow();
        slider.control->valueChanged().connect([deleteNow](int) { deleteNow(); });
        slider.widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(slider.widget.data()));
        QTest::keyClick(slider.widget.data(), Qt::Key_PageUp);
        slider.Finish();
    }
}
