#include "UI/CKyUIFileDialog.h"
#include "UI/CKyUISettingsStore.h"
#include "UI/Impl/KyLastFolder.h"
#include "UI/Impl/KySettingsStore.h"
#include "support/ModalDriver.h"
#include "support/TestDialogs.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>

namespace
{
// Types into the dialog's file name field and presses a key there.
void TypeAndPress(const QString& typed, Qt::Key key)
{
    DriveNextModal([typed, key](QWidget* modal) {
        auto* edit = modal->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(edit, nullptr);
        edit->setFocus();
        QTest::keyClicks(edit, typed);
        QTest::keyClick(edit, key);
    });
}

struct Folder
{
    Folder()
    {
        QDir(dir.path()).mkdir("parts");
        for (const char* name : {"a.dxf", "b.dxf"}) {
            QFile file(QDir(dir.path()).filePath(name));
            file.open(QIODevice::WriteOnly);
        }
    }
    QString path(const QString& name = QString()) const
    {
        return QDir::cleanPath(QDir(dir.path()).absolutePath() + '/' + name);
    }
    QTemporaryDir dir;
};
} // namespace

// Each mode answers the absolute paths typed, stores the folder under its key
// (the chosen folder itself when choosing one) and tells the host around the
// run.
TEST(CKyUIFileDialogTest, EveryModeReturnsWhatWasTypedAndRemembersTheFolder)
{
    const Folder folder;
    const struct
    {
        CKyUIFileDialog::Mode mode;
        QString typed;
        QStringList chosen;
        QString remembered;
    } cases[] = {
        {CKyUIFileDialog::OpenFile, "a.dxf", {"a.dxf"}, ""},
        {CKyUIFileDialog::OpenFiles, "\"a.dxf\" \"b.dxf\"", {"a.dxf", "b.dxf"}, ""},
        {CKyUIFileDialog::SaveFile, "new.dxf", {"new.dxf"}, ""},
        {CKyUIFileDialog::ChooseFolder, "parts", {"parts"}, "parts"},
    };
    for (const auto& each : cases) {
        const QString key = QString("mode%1").arg(each.mode);
        RecordingHost host;
        CKyUIFileDialog dialog;
        dialog.setMode(each.mode);
        dialog.setDirectory(folder.path());
        dialog.setFolderKey(key);
        dialog.setNameFilters({"Drawings (*.dxf)", "All files (*)"});
        TypeAndPress(each.typed, Qt::Key_Return);
        QStringList expected;
        for (const QString& name : each.chosen)
            expected << folder.path(name);
        EXPECT_EQ(dialog.exec(), expected) << each.mode;
        EXPECT_EQ(dialog.selectedFiles(), expected);
        EXPECT_EQ(KyLastFolder::Get(key), folder.path(each.remembered));
        EXPECT_EQ(host.calls, std::vector<bool>({true, false}));
    }
}

// A later dialog under the same key starts in the remembered folder, not in
// its own directory(); a cancel answers nothing and keeps the folder.
TEST(CKyUIFileDialogTest, StartsInTheRememberedFolderAndCancelReturnsNothing)
{
    const Folder folder;
    KyLastFolder::Set("drawings", folder.path("parts"));
    CKyUIFileDialog dialog;
    dialog.setDirectory(QDir::tempPath());
    dialog.setFolderKey("drawings");
    QString shown;
    DriveNextModal([&shown](QWidget* modal) {
        shown = qobject_cast<QFileDialog*>(modal)->directory().absolutePath();
        QTest::keyClick(modal, Qt::Key_Escape);
    });
    EXPECT_TRUE(dialog.exec().isEmpty());
    EXPECT_EQ(shown, folder.path("parts"));
    EXPECT_EQ(KyLastFolder::Get("drawings"), folder.path("parts"));
    EXPECT_EQ(KyLastFolder::Get(""), "");

    TypeAndPress(folder.path("b.dxf"), Qt::Key_Return);
    EXPECT_EQ(CKyUIFileDialog::getOpenFileName(nullptr, "Open", "Drawings (*.dxf)", "drawings"),
              folder.path("b.dxf"));
    EXPECT_EQ(KyLastFolder::Get("drawings"), folder.path());
}

// The folders outlive the process through the dialogs' store: what a dialog
// keeps is written there, and a key only the store knows (an earlier session)
// is read from it, unless its folder has gone since.
TEST(CKyUIFileDialogTest, RememberedFoldersGoThroughTheStore)
{
    const Folder folder;
    CKyUISettingsStore::setFile(folder.path("store.ini"));
    KyLastFolder::Set("exports", folder.path("parts"));
    EXPECT_EQ(KySettingsStore::ReadImpl("file-dialogs/exports").value("folder"), folder.path("parts"));

    KySettingsStore::WriteImpl("file-dialogs/earlier", {{"folder", folder.path()}});
    KySettingsStore::WriteImpl("file-dialogs/gone", {{"folder", folder.path("gone")}});
    EXPECT_EQ(KyLastFolder::Get("earlier"), folder.path());
    EXPECT_EQ(KyLastFolder::Get("gone"), "");
    CKyUISettingsStore::setFile(QString());
}
