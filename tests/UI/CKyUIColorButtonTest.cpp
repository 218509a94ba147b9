#include "UI/CKyUIColorButton.h"
#include "support/ModalDriver.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestDialogs.h"

#include <QtWidgets/QColorDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace
{
QPushButton* ButtonOf(const CKyUIColorButton& button)
{
    return qobject_cast<QPushButton*>(button.getHandle());
}

void Record(CKyUIColorButton& button, Recorder& recorder)
{
    button.colorChanged().connect([&recorder](QColor color) { recorder.add("color", color.name()); });
}
} // namespace

// A click runs the chooser (host told around it). Only a real change is
// reported: a new colour once, Cancel and the same colour not at all.
TEST(CKyUIColorButtonTest, AClickRunsTheChooserAndReportsARealChangeOnce)
{
    const struct
    {
        QString typed; // into the chooser's "HTML" field; empty: keep the colour
        Qt::Key key;
        QStringList reported;
        QString shown;
    } cases[] = {
        {"#b82115", Qt::Key_Return, {"color:#b82115"}, "#B82115"},
        {"#ff0000", Qt::Key_Escape, {}, "#B82115"},
        {"", Qt::Key_Return, {}, "#B82115"},
    };
    CKyUIColorButton button;
    button.setChooserTitle("Hole colour");
    ButtonOf(button)->show();
    button.setColor(QColor("#4682b4"));
    Recorder recorder;
    Record(button, recorder);
    for (const auto& each : cases) {
        RecordingHost host;
        QString title;
        DriveNextModal([&each, &title](QWidget* modal) {
            auto* chooser = qobject_cast<QColorDialog*>(modal);
            ASSERT_NE(chooser, nullptr);
            title = chooser->windowTitle();
            QLineEdit* html = nullptr;
            for (QLineEdit* edit : chooser->findChildren<QLineEdit*>())
                if (edit->text().startsWith('#'))
                    html = edit;
            ASSERT_NE(html, nullptr);
            html->setFocus();
            if (!each.typed.isEmpty()) {
                html->selectAll();
                QTest::keyClicks(html, each.typed);
            }
            QTest::keyClick(html, each.key); // reaches the dialog: OK or Cancel
        });
        QTest::mouseClick(ButtonOf(button), Qt::LeftButton);
        EXPECT_EQ(recorder.take(), each.reported) << each.typed.toStdString();
        EXPECT_EQ(ButtonOf(button)->text(), each.shown);
        EXPECT_EQ(title, "Hole colour");
        EXPECT_EQ(host.calls, std::vector<bool>({true, false}));
    }
}

// setColor reports a change once; the same colour and an invalid one nothing.
TEST(CKyUIColorButtonTest, SetColorReportsOnlyRealChanges)
{
    CKyUIColorButton button;
    EXPECT_EQ(button.color(), QColor(Qt::black));
    Recorder recorder;
    Record(button, recorder);
    for (const QColor& color : {QColor(Qt::black), QColor(Qt::red), QColor(Qt::red), QColor()})
        button.setColor(color);
    EXPECT_EQ(recorder.take(), QStringList({"color:#ff0000"}));
    EXPECT_EQ(button.color(), QColor(Qt::red));
    EXPECT_EQ(ButtonOf(button)->text(), "#FF0000");
}

// Deleted while its chooser runs: the chooser closes, the host hears the end.
TEST(CKyUIColorButtonTest, DeletedWhileItsChooserRunsEndsTheRun)
{
    RecordingHost host;
    auto* button = new CKyUIColorButton;
    QPushButton* widget = ButtonOf(*button);
    widget->show();
    DriveNextModal([button](QWidget*) { delete button; });
    QTest::mouseClick(widget, Qt::LeftButton);
    EXPECT_EQ(host.calls, std::vector<bool>({true, false}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}
