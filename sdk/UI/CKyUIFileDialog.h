#pragma once

#include "UI/CKyUIObject.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

class CKyUIBaseView;

/// A modal chooser of files or of a folder that starts in the folder last
/// chosen under a key of the caller's, and returns nothing on cancel.
///
/// It is the toolkit's own (not the desktop's) file dialog in the theme of
/// the library's dialogs, standing over the window of the view it is given
/// without being that view's child. While it runs the host is told that a
/// modal run starts and, however it ends, that it ended, as for CKyUIDialog.
///
/// The folder key: give the same key to every chooser of one kind of file
/// ("drawings", "exports") and each opens where the last one ended. A chooser
/// without a key, or whose key has no folder yet, starts in directory(). The
/// folders are remembered for the life of the process.
///
/// \code
/// const QString drawing = CKyUIFileDialog::getOpenFileName(
///     view, "Open drawing", "Drawings (*.dxf *.dwg);;All files (*)", "drawings");
/// if (!drawing.isEmpty())
///     load(drawing);
/// \endcode
///
/// \image html choosers-and-trees.png "The file dialog is opened from the gallery's Choosers and trees page"
class COMMONUI_EXPORT CKyUIFileDialog : public CKyUIObject
{
public:
    /// What the user chooses.
    enum Mode {
        OpenFile,    ///< one file that exists
        OpenFiles,   ///< one or more files that exist
        SaveFile,    ///< a file name to save to; an existing file is confirmed first
        ChooseFolder ///< a folder that exists
    };

    /// A chooser for one existing file, standing over @p parent's window (null:
    /// over nothing in particular).
    explicit CKyUIFileDialog(CKyUIBaseView* parent = nullptr);
    /// Deleted while it runs (from a slot during the run), it closes: exec()
    /// then returns an empty list.
    ~CKyUIFileDialog() override;

    /// Sets what the user chooses.
    void setMode(Mode mode);
    /// The mode last set; OpenFile unless set.
    Mode mode() const;
    /// Sets the window's title.
    void setWindowTitle(const QString& title);
    /// The title last set.
    QString windowTitle() const;
    /// The filters the user picks from, each as "Drawings (*.dxf *.dwg)"; the
    /// first is in force when the dialog opens. Empty shows every file.
    void setNameFilters(const QStringList& filters);
    /// The filters last set.
    QStringList nameFilters() const;
    /// The key under which the folder is remembered; empty (the default)
    /// remembers nothing. The folders are kept in the dialogs' store (see
    /// CKyUISettingsStore), so the next session under the same key starts
    /// there too, unless the folder has gone since.
    void setFolderKey(const QString& key);
    /// The key last set.
    QString folderKey() const;
    /// The folder to start in when the key has none; the toolkit's choice
    /// (the working folder) when empty.
    void setDirectory(const QString& folder);
    /// The folder last given to setDirectory().
    QString directory() const;

    /// Runs the dialog modally and returns the absolute paths chosen: one for
    /// every mode but OpenFiles, which may give several; empty when the user
    /// cancels or the dialog is deleted during the run. A choice stores its
    /// folder under the key (the chosen folder itself in ChooseFolder).
    QStringList exec();
    /// The paths of the last run; empty before the first and after a cancel.
    QStringList selectedFiles() const;

    /// One existing file, or an empty string on cancel. @p filter holds the
    /// name filters separated by ";;".
    static QString getOpenFileName(CKyUIBaseView* parent, const QString& title,
                                   const QString& filter = QString(), const QString& folderKey = QString());
    /// Existing files, or an empty list on cancel.
    static QStringList getOpenFileNames(CKyUIBaseView* parent, const QString& title,
                                        const QString& filter = QString(),
                                        const QString& folderKey = QString());
    /// A file name to save to, or an empty string on cancel.
    static QString getSaveFileName(CKyUIBaseView* parent, const QString& title,
                                   const QString& filter = QString(), const QString& folderKey = QString());
    /// An existing folder, or an empty string on cancel.
    static QString getExistingDirectory(CKyUIBaseView* parent, const QString& title,
                                        const QString& folderKey = QString());
};
