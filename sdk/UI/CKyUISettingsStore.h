#pragma once

#include "commonui_export.h"

#include <QtCore/QString>

/// Where dialogs that remember (CKyUIDialog::setRememberKey(),
/// CKyUIBaseView::remember()) keep their values from one run to the next,
/// across restarts of the host. Nothing is read or written for a dialog without
/// a remember key.
///
/// A plug-in names its store once, before its first dialog runs: with
/// setApplication() (the toolkit's settings in the user's configuration folder,
/// under an organisation and an application name) or with setFile() (an INI
/// file of its own). Unnamed, the store is the toolkit's settings of the host
/// application's own organisation and application names. A host may send
/// every plug-in to one file of its own with setHostFile(), which wins over
/// whatever the plug-ins named.
///
/// The store is process-wide: plug-ins that share a host share it too, so their
/// remember keys should differ (a plug-in's name as prefix will do).
///
/// Writes go through a temporary file that replaces the old one in one step:
/// a host killed while a dialog saves leaves the previous values readable. A
/// damaged or foreign file is read as far as it can be; what does not fit a
/// control is ignored, and the control keeps its default.
///
/// See \ref remember.
class COMMONUI_EXPORT CKyUISettingsStore
{
public:
    CKyUISettingsStore() = delete;

    /// The toolkit's settings in the user's configuration folder, for
    /// @p organization and @p application. Replaces an earlier setFile(); two
    /// empty names go back to the default.
    static void setApplication(const QString& organization, const QString& application);
    /// An INI file at @p path, created when first written. Replaces an earlier
    /// setApplication(); an empty path goes back to the default.
    static void setFile(const QString& path);
    /// For the host: an INI file at @p path that every dialog of every plug-in
    /// uses, whatever the plug-ins named. An empty path hands the choice back
    /// to the plug-ins.
    static void setHostFile(const QString& path);
    /// The path given to setHostFile(), or an empty string.
    static QString hostFile();
    /// The file (or, where the toolkit keeps settings elsewhere, the location)
    /// that the store reads and writes now.
    static QString location();
    /// Forgets everything stored under @p rememberKey: the window's place and
    /// every remembered control value. The next run of such a dialog opens with
    /// its defaults.
    static void forget(const QString& rememberKey);
};
