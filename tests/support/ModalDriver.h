#pragma once

#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <functional>

// Drives the next modal window from inside its run: armed before the run
// starts, `during` gets the window once it is on screen. A window still shown
// after 20 s is rejected, and the test fails.
inline void DriveNextModal(const std::function<void(QWidget*)>& during)
{
    QTimer::singleShot(0, [during]() {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal) {
            ADD_FAILURE() << "no modal window runs";
            return;
        }
        EXPECT_TRUE(QTest::qWaitForWindowExposed(modal));
        QTimer::singleShot(20000, modal, [modal]() {
            if (!modal->isVisible())
                return;
            ADD_FAILURE() << "the modal run did not end";
            if (auto* dialog = qobject_cast<QDialog*>(modal))
                dialog->reject();
        });
        during(modal);
    });
}
