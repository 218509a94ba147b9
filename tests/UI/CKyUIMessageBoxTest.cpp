#include "UI/CKyUIMessageBox.h"
#include "UI/CKyUIPushButton.h"
#include "support/ModalDriver.h"
#include "support/TestDialogs.h"

#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

using Box = CKyUIMessageBox;

// Each one-line form shows its icon, title, text and buttons, answers the
// button the user pressed (Return: the default, Escape: the one that cancels,
// or a click) and tells the host once that the run starts, once that it ends.
TEST(CKyUIMessageBoxTest, OneLineFormsReturnTheButtonTheUserPressed)
{
    using Form = Box::StandardButton (*)(CKyUIBaseView*, const QString&, const QString&, Box::StandardButtons,
                                         Box::StandardButton);
    const struct
    {
        Form form;
        QMessageBox::Icon icon;
        Box::StandardButtons buttons;
        Box::StandardButton defaultButton;
        int key; // 0: click the expected button
        Box::StandardButton expected;
    } cases[] = {
        {&Box::information, QMessageBox::Information, Box::Ok, Box::NoButton, Qt::Key_Return, Box::Ok},
        {&Box::question, QMessageBox::Question, Box::Yes | Box::No, Box::No, Qt::Key_Return, Box::No},
        {&Box::question, QMessageBox::Question, Box::Yes | Box::No, Box::Yes, Qt::Key_Escape, Box::No},
        {&Box::warning, QMessageBox::Warning, Box::Save | Box::Discard | Box::Cancel, Box::Save,
         Qt::Key_Escape, Box::Cancel},
        {&Box::critical, QMessageBox::Critical, Box::Retry | Box::Abort, Box::Retry, 0, Box::Abort},
    };
    CKyUIPushButton parent;
    for (const auto& each : cases) {
        RecordingHost host;
        DriveNextModal([&each](QWidget* modal) {
            auto* box = qobject_cast<QMessageBox*>(modal);
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->icon(), each.icon);
            EXPECT_EQ(box->windowTitle(), "Hole");
            EXPECT_EQ(box->text(), "Drill through?");
            EXPECT_FALSE(box->styleSheet().isEmpty());
            if (each.key)
                QTest::keyClick(box, Qt::Key(each.key));
            else
                QTest::mouseClick(box->button(QMessageBox::Abort), Qt::LeftButton);
        });
        EXPECT_EQ(each.form(each.key == Qt::Key_Escape ? nullptr : &parent, "Hole", "Drill through?",
                            each.buttons, each.defaultButton),
                  each.expected);
        EXPECT_EQ(host.calls, std::vector<bool>({true, false}));
    }
}

// The values are stored as given; a default the box does not show is ignored
// by the toolkit, not by the getter.
TEST(CKyUIMessageBoxTest, StoresWhatItIsGivenAndRemembersTheButtonPressed)
{
    Box box;
    EXPECT_EQ(box.standardButtons(), Box::Ok);
    EXPECT_EQ(box.clickedButton(), Box::NoButton);
    box.setIcon(Box::Warning);
    box.setInformativeText("The thread goes too.");
    box.setStandardButtons(Box::Ok | Box::Cancel);
    box.setDefaultButton(Box::Yes);
    EXPECT_EQ(box.icon(), Box::Warning);
    EXPECT_EQ(box.informativeText(), "The thread goes too.");
    EXPECT_EQ(box.defaultButton(), Box::Yes);
    auto* widget = qobject_cast<QMessageBox*>(box.getHandle());
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->informativeText(), "The thread goes too.");
    EXPECT_EQ(widget->standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
    DriveNextModal([](QWidget* modal) { QTest::keyClick(modal, Qt::Key_Escape); });
    EXPECT_EQ(box.exec(), Box::Cancel);
    EXPECT_EQ(box.clickedButton(), Box::Cancel);
}

// Deleted from inside its own run: the run ends, nothing is pressed, and the
// host still hears that it ended.
TEST(CKyUIMessageBoxTest, DeletedDuringItsRunEndsTheRun)
{
    RecordingHost host;
    auto* box = new Box;
    DriveNextModal([box](QWidget*) { delete box; });
    EXPECT_EQ(box->exec(), Box::NoButton);
    EXPECT_EQ(host.calls, std::vector<bool>({true, false}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}
