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
///
/// Beside it the library carries a dark and a light variant with visible
/// disabled, checked, focus, hover and pressed states, and icons painted for
/// screens scaled up to 200 %. A plug-in opts in with setVariant(); until it
/// does, every dialog takes the compiled-in sheet above, unchanged.
class COMMONUI_EXPORT CKyUIStyle
{
public:
    /// The look the next dialog runs take.
    enum class Variant {
        /// The compiled-in theme, as styleSheet holds it. The default.
        Default,
        /// The compiled-in dark look, with every state shown and room for
        /// group box titles.
        Dark,
        /// The light counterpart of Dark.
        Light,
        /// Light or Dark, whichever fits the application palette's window
        /// colour at each dialog run. A dialog that runs while the host
        /// changes its palette follows the change.
        FollowHost
    };

    /// Chooses the look of every dialog run from now on; a dialog already
    /// running keeps its look until its next run. Controls that carry a sheet
    /// of their own follow the chosen variant too. User-interface thread only.
    static void setVariant(Variant variant);

    /// The look last chosen with setVariant(); Variant::Default until then.
    static Variant variant();

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
