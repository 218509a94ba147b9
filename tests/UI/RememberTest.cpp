#include "support/QtPrinters.h"
#include "support/TestDialogs.h"

#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIColorButton.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIDoubleSpinBox.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIRadioButton.h"
#include "UI/CKyUIRadioGroup.h"
#include "UI/CKyUISettingsStore.h"
#include "UI/CKyUISlider.h"
#include "UI/CKyUISpinBox.h"
#include "UI/CKyUISplitter.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITreeView.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"
#include "UI/Impl/KySettingsStore.h"
#include "UI/Impl/qt/KyWindowPlacement.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtGui/QScreen>

#include <cstdio>
#include <memory>

namespace
{
// What a run shows, as the getters answer: diameter, unit, through, side, count.
using Shown = std::tuple<QString, QString, bool, int, int>;
const Shown kDefaults{"10", "mm", false, 0, 5};

// A dialog whose five controls remember, built with kDefaults.
struct RememberingDialog : SampleDialog
{
    RememberingDialog()
    {
        afterSetup = [this](SampleDialog&) {
            diameter->setText("10");
            unit->insertItems(0, {"mm", "cm", "in"});
            unit->setCurrentIndex(0);
            // A restore is a program change, made before the window shows.
            unit->currentIndexChanged().connect([this](int) {
                if (!running)
                    restoredWhileShown |= widget()->isVisible(), ++restores;
            });
            for (auto* button : buttons)
                side->addRadioButton(button);
            buttons[0]->setChecked(true);
            count->setRange(0, 20);
            count->setValue(5);
            diameter->remember("diameter"), unit->remember("unit"), through->remember("through");
            side->remember("side"), count->remember("count");
            for (CKyUIBaseView* view :
                 std::initializer_list<CKyUIBaseView*>{diameter, unit, through, side, count})
                GetLayout()->addView(view);
        };
    }
    Shown shown() const
    {
        return {diameter->text(), unit->currentText(), through->isChecked(), side->currentIndex(),
                count->value()};
    }
    void show(const Shown& values)
    {
        diameter->setText(std::get<0>(values));
        unit->setCurrentIndex(unit->findText(std::get<1>(values)));
        through->setChecked(std::get<2>(values));
        for (int i = 0; i < 3; ++i)
            buttons[i]->setChecked(i == std::get<3>(values));
        count->setValue(std::get<4>(values));
    }

    CKyUITextEdit* diameter = new CKyUITextEdit(CKyUITextEdit::Small);
    CKyUIComboBox* unit = new CKyUIComboBox;
    CKyUICheckBox* through = new CKyUICheckBox;
    CKyUIRadioGroup* side = new CKyUIRadioGroup;
    CKyUIRadioButton* buttons[3] = {new CKyUIRadioButton, new CKyUIRadioButton, new CKyUIRadioButton};
    CKyUISlider* count = new CKyUISlider;
    bool running = false;
    bool restoredWhileShown = false;
    int restores = 0;
};

// Runs a fresh dialog: returns what it showed, after `during` closed it.
Shown RunOnce(const std::function<void(RememberingDialog&)>& during, const QString& key = "hole-pattern")
{
    RememberingDialog dialog;
    dialog.setRememberKey(key);
    Shown seen;
    RunModally(dialog, [&](SampleDialog&) {
        dialog.running = true;
        seen = dialog.shown();
        during(dialog);
    });
    EXPECT_FALSE(dialog.restoredWhileShown);
    return seen;
}

class RememberTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        CKyUISettingsStore::setFile(file);
    }
    void TearDown() override
    {
        CKyUISettingsStore::setFile(QString());
        CKyUISettingsStore::setHostFile(QString());
    }
    void Store(const QVariantMap& entries)
    {
        QSettings settings(file, QSettings::IniFormat);
        for (auto it = entries.cbegin(); it != entries.cend(); ++it)
            settings.setValue("hole-pattern/" + it.key(), it.value());
    }

    QTemporaryDir dir;
    const QString file = dir.filePath("plugin.ini");
};
} // namespace

// Accept saves, Cancel and Escape do not, the next run restores; a dialog
// without a key touches no file; reset forgets.
TEST_F(RememberTest, AcceptSavesCancelDoesNotAndReopenRestores)
{
    const Shown chosen{"12.5, deep", "in", true, 2, 17};
    const Shown other{"3", "cm", false, 1, 0};
    RunOnce([&](RememberingDialog& d) { d.show(chosen), d.accept(); }, QString());
    EXPECT_FALSE(QFile::exists(file));

    EXPECT_EQ(RunOnce([&](RememberingDialog& d) { d.show(chosen), d.accept(); }), kDefaults);
    EXPECT_EQ(RunOnce([&](RememberingDialog& d) {
                  EXPECT_EQ(d.restores, 1);
                  d.show(other), d.reject();
              }),
              chosen);
    EXPECT_EQ(RunOnce([&](RememberingDialog& d) {
                  d.show(other);
                  QTest::keyClick(d.widget(), Qt::Key_Escape);
              }),
              chosen);
    EXPECT_EQ(RunOnce([&](RememberingDialog& d) { d.resetRemembered(), d.done(0); }), chosen);
    EXPECT_EQ(RunOnce([](RememberingDialog& d) { d.accept(); }), kDefaults);

    // The host's file wins over the plug-in's.
    CKyUISettingsStore::setHostFile(dir.filePath("host.ini"));
    EXPECT_EQ(CKyUISettingsStore::location(), dir.filePath("host.ini"));
    RunOnce([&](RememberingDialog& d) { d.show(other), d.accept(); });
    EXPECT_EQ(QSettings(dir.filePath("host.ini"), QSettings::IniFormat).value("hole-pattern/values/diameter"),
              "3");
    EXPECT_EQ(QSettings(file, QSettings::IniFormat).value("hole-pattern/values/diameter"), "10");
}

// A value a control cannot take leaves it at its default; so does a damaged
// file, which a later accept still writes over.
TEST_F(RememberTest, ForeignValuesAndADamagedFileLeaveTheDefaults)
{
    const QVariantMap foreign[] = {
        {{"values/diameter", QStringList{"a", "b"}},
         {"values/unit", "mm"},
         {"values/through", "yes"},
         {"values/side", 3},
         {"values/count", 21},
         {"window/width", "wide"}},
        {{"values/unit", QStringList{"ft", "7"}},
         {"values/through", 1},
         {"values/side", "-1"},
         {"values/count", "five"},
         {"values/diameter", QVariant()}},
    };
    for (const QVariantMap& entries : foreign) {
        Store(entries);
        EXPECT_EQ(RunOnce([](RememberingDialog& d) { d.reject(); }), kDefaults);
        QFile::remove(file);
    }
    static const char damage[] = "[hole-pattern]\nvalues/count=@Variant(\0\0\0\x7f\xff\xff\xff\xff\x01\n"
                                 "values/side=@Invalid(\n\xff\xfe[[[=\\x\nvalues\\through=\"true\n";
    QFile damaged(file);
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write(damage, sizeof damage - 1);
    damaged.close();
    const Shown other{"3", "cm", true, 1, 0};
    EXPECT_EQ(RunOnce([&](RememberingDialog& d) { d.show(other), d.accept(); }), kDefaults);
    EXPECT_EQ(RunOnce([](RememberingDialog& d) { d.reject(); }), other);
}

// The window comes back where it was closed, or, when that place is far
// outside every screen, inside the nearest screen's available area.
TEST_F(RememberTest, TheWindowReturnsToItsPlaceClampedToAScreen)
{
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    RunOnce([](RememberingDialog& d) {
        d.widget()->move(37, 41);
        d.widget()->resize(350, 250);
        d.reject();
    });
    RunOnce([](RememberingDialog& d) {
        EXPECT_EQ(d.widget()->pos(), QPoint(37, 41));
        EXPECT_EQ(d.widget()->size(), QSize(350, 250));
        d.reject();
    });
    Store({{"window/x", 50000}, {"window/y", -40000}, {"window/width", 300}, {"window/height", 100000}});
    RunOnce([&](RememberingDialog& d) {
        EXPECT_EQ(d.widget()->pos(), QPoint(area.right() + 1 - 300, area.top()));
        EXPECT_EQ(d.widget()->size(), QSize(300, area.height()));
        d.reject();
    });
}

TEST(WindowPlacementTest, PlacesOnTheNamedOrNearestScreenInsideItsArea)
{
    const QVector<KyWindowPlacement::Screen> screens = {{"left", QRect(0, 0, 1920, 1040)},
                                                        {"right", QRect(1920, 0, 1280, 760)}};
    const std::tuple<QRect, QString, QSize, QRect> rows[] = {
        {{3000, 700, 400, 300}, "right", {}, {2800, 460, 400, 300}},         // lower resolution
        {{5000, 100, 400, 300}, "gone", {}, {2800, 100, 400, 300}},          // nearest screen
        {{-900, 500, 400, 300}, "gone", {}, {0, 500, 400, 300}},             // left of everything
        {{2000, 10, 2000, 2000}, "right", {}, {1920, 0, 1280, 760}},         // shrunk to fit
        {{2000, 10, 200, 200}, "right", {1500, 100}, {1920, 10, 1500, 200}}, // minimum wins
        {{100, 100, 400, 300}, "right", {}, {1920, 100, 400, 300}},          // screen by name
    };
    for (const auto& [stored, screen, minimum, placed] : rows)
        EXPECT_TRUE(KyWindowPlacement::Place(stored, screen, screens, minimum) == placed)
            << stored.x() << " " << stored.width();
    EXPECT_TRUE(KyWindowPlacement::Place({5, 5, 10, 10}, "x", {}, {}) == QRect(5, 5, 10, 10));
}

// A writer killed in the middle leaves a whole version behind: the file is
// replaced in one step, never rewritten in place. The writer is this test,
// started again with the file to write until it is killed.
TEST_F(RememberTest, AWriterKilledWhileWritingLeavesAWholeVersion)
{
    if (qEnvironmentVariableIsSet("COMMONUI_WRITE_UNTIL_KILLED")) {
        QSettings settings(QString::fromLocal8Bit(qgetenv("COMMONUI_WRITE_UNTIL_KILLED")),
                           QSettings::IniFormat);
        for (int version = 1;; ++version) {
            settings.setValue("blob", QString(4 << 20, QChar('a' + version % 26)));
            settings.setValue("version", version);
            settings.sync();
            std::printf("written %d\n", version);
            std::fflush(stdout);
        }
    }
    QProcess writer;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("COMMONUI_WRITE_UNTIL_KILLED", file);
    writer.setProcessEnvironment(environment);
    writer.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=RememberTest.AWriterKilled*"});
    QByteArray written;
    while (written.count("written") < 3 && writer.waitForReadyRead(20000))
        written += writer.readAllStandardOutput();
    ASSERT_GE(written.count("written"), 3) << written.constData();
    writer.kill();
    ASSERT_TRUE(writer.waitForFinished(20000));

    QSettings settings(file, QSettings::IniFormat);
    const int version = settings.value("version").toInt();
    EXPECT_TRUE(settings.value("blob").toString() == QString(4 << 20, QChar('a' + version % 26)));
}

// The newer controls keep what their getters say, through an INI file as it
// gives values back, and refuse what they cannot take.
TEST_F(RememberTest, NewerControlsKeepTheirStateThroughTheFileAndRefuseForeignValues)
{
    struct Row
    {
        const char* control;
        std::function<CKyUIBaseView*()> make;
        std::function<void(CKyUIBaseView*)> choose;
        std::function<QString(CKyUIBaseView*)> state;
        QVariant foreign;
    };
    const auto spin = [] {
        auto* box = new CKyUISpinBox;
        box->setRange(0, 50);
        return box;
    };
    const auto decimal = [] {
        auto* box = new CKyUIDoubleSpinBox;
        box->setRange(0, 20);
        box->setDecimals(3);
        return box;
    };
    const auto splitter = [] {
        auto* split = new CKyUISplitter;
        split->addView(new CKyUILabel, 1.0f);
        split->addView(new CKyUILabel, 1.0f);
        return split;
    };
    const auto tree = [] {
        auto* view = new CKyUITreeView;
        view->setHeaderLabels({"Parameter", "Value"});
        return view;
    };
    const std::vector<Row> rows{
        {"spin box", spin, [](CKyUIBaseView* v) { static_cast<CKyUISpinBox*>(v)->setValue(42); },
         [](CKyUIBaseView* v) { return QString::number(static_cast<CKyUISpinBox*>(v)->value()); }, "51"},
        {"decimal spin box", decimal,
         [](CKyUIBaseView* v) { static_cast<CKyUIDoubleSpinBox*>(v)->setValue(12.125); },
         [](CKyUIBaseView* v) {
             return QString::number(static_cast<CKyUIDoubleSpinBox*>(v)->value(), 'g', 17);
         },
         "twelve"},
        {"colour button", [] { return new CKyUIColorButton; },
         [](CKyUIBaseView* v) { static_cast<CKyUIColorButton*>(v)->setColor(QColor(70, 130, 180, 200)); },
         [](CKyUIBaseView* v) { return static_cast<CKyUIColorButton*>(v)->color().name(QColor::HexArgb); },
         "not a colour"},
        {"splitter", splitter,
         [](CKyUIBaseView* v) {
             static_cast<CKyUISplitter*>(v)->setSizes({120, 380});
         },
         [](CKyUIBaseView* v) {
             return KySettingsStore::IntListValue(static_cast<CKyUISplitter*>(v)->sizes())
                 .toStringList()
                 .join(',');
         },
         QStringList{"120", "wide"}},
        {"tree", tree,
         [](CKyUIBaseView* v) {
             static_cast<CKyUITreeView*>(v)->setColumnWidths({150, 90});
         },
         [](CKyUIBaseView* v) {
             return KySettingsStore::IntListValue(static_cast<CKyUITreeView*>(v)->columnWidths())
                 .toStringList()
                 .join(',');
         },
         QStringList{"-5", "90"}},
    };
    const auto impl = [](CKyUIBaseView* view) { return static_cast<CKyUIBaseViewImpl*>(view->impl()); };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.control);
        std::unique_ptr<CKyUIBaseView> chosen(row.make()), fresh(row.make()), untouched(row.make()),
            refusing(row.make());
        row.choose(chosen.get());
        {
            QSettings settings(file, QSettings::IniFormat);
            settings.setValue(row.control, impl(chosen.get())->RememberedValue());
        }
        EXPECT_TRUE(impl(fresh.get())
                        ->RestoreRememberedValue(QSettings(file, QSettings::IniFormat).value(row.control)));
        EXPECT_EQ(row.state(fresh.get()), row.state(chosen.get()));
        EXPECT_FALSE(impl(refusing.get())->RestoreRememberedValue(row.foreign));
        EXPECT_EQ(row.state(refusing.get()), row.state(untouched.get()));
    }
}
