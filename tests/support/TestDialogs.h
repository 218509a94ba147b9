#pragma once

#include "UI/CKyUIDialog.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIVerticalLayout.h"
#include "UI/Impl/CKyUIDialogImpl.h"

#include "KyHostKernel.h"

#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <functional>
#include <vector>

// A client dialog as a plug-in writes it: a label and a button, then the
// button box last, whose accepted/rejected close the dialog.
class SampleDialog : public CKyUIDialog
{
public:
    void SetupUI() override
    {
        ++setups;
        label = new CKyUILabel;
        label->setText("Length");
        GetLayout()->addView(label);
        button = new CKyUIPushButton;
        button->setText("Apply");
        GetLayout()->addView(button);
        box = new CKyUIDialogButtonBox(this);
        box->accepted().connect([this]() { accept(); });
        box->rejected().connect([this]() { reject(); });
        if (afterSetup)
            afterSetup(*this);
    }

    QDialog* widget() const { return qobject_cast<QDialog*>(getHandle()); }
    // The toolkit button behind one of the box's wrappers.
    QWidget* boxButton(CKyUIDialogButtonBox::StandardButton which) const
    {
        return qobject_cast<QWidget*>(box->button(which)->getHandle());
    }

    int setups = 0;
    CKyUILabel* label = nullptr;
    CKyUIPushButton* button = nullptr;
    CKyUIDialogButtonBox* box = nullptr;
    std::function<void(SampleDialog&)> afterSetup;
};

// Sets the dialog up and shows it without a modal loop, as the tests of the
// box need it.
inline void SetUpAndShow(SampleDialog& dialog)
{
    static_cast<CKyUIDialogImpl*>(dialog.impl())->SetupUIImpl(nullptr);
    dialog.setVisible(true);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(dialog.widget()));
}

// Runs the dialog modally; `during` is called from inside the modal loop once
// the dialog is on screen. A run that does not end is ended by a watchdog
// with kStuckResult, and the test fails.
constexpr int kStuckResult = -99;
inline int RunModally(SampleDialog& dialog, const std::function<void(SampleDialog&)>& during,
                      bool flag = true)
{
    QObject run; // the timers end with the run
    QTimer::singleShot(20000, &run, [&dialog]() {
        ADD_FAILURE() << "the modal run did not end";
        if (QDialog* widget = dialog.widget())
            widget->done(kStuckResult);
    });
    QTimer::singleShot(0, &run, [&dialog, &during]() {
        QDialog* widget = dialog.widget();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(widget));
        EXPECT_EQ(QApplication::activeModalWidget(), widget);
        during(dialog);
    });
    return dialog.exec(flag);
}

// Records what the host is told, and installs itself as the active
// document's host object for its lifetime.
class RecordingHost : public CKyDocumentHost
{
public:
    RecordingHost()
        : m_previous(ACTIVE_DOCUMENT()->host)
    {
        ACTIVE_DOCUMENT()->host = this;
    }
    ~RecordingHost() override { ACTIVE_DOCUMENT()->host = m_previous; }

    void SetModalDialogRunning(bool running) override { calls.push_back(running); }

    std::vector<bool> calls;

private:
    CKyDocumentHost* const m_previous;
};
