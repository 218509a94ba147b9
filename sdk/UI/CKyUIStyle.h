#pragma once

#include "commonui_export.h"

#include <QtCore/QString>

#include <memory>

/// \file
/// The theme: the library's style sheet and the shared object that holds it.

/// The library's one look: the compiled-in style sheet with the compiled-in
/// palette's colours substituted into it. Dialogs set it on their top-level
/// widget when exec() sets them up, and it cascades to every control in the
/// dialog; controls never set it themselves.
class COMMONUI_EXPORT CKyUIStyle
{
public:
    /// Starts with an empty sheet, then calls Load().
    CKyUIStyle();

    /// Reads the palette and the sheet from the resources and fills styleSheet.
    /// A resource that cannot be opened leaves styleSheet empty, and dialogs
    /// then show the toolkit's default look.
    void Load();

    /// The finished sheet; empty until Load succeeds.
    QString styleSheet;
};

/// The shared theme, created on the first call of GetStyle() and kept until
/// the library is unloaded.
extern COMMONUI_EXPORT std::shared_ptr<CKyUIStyle> g_pStyle;

/// Returns the shared theme, reading the resources on the first call only;
/// every later call returns the same object. User-interface thread only.
COMMONUI_EXPORT std::shared_ptr<CKyUIStyle> GetStyle();
