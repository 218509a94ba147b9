#pragma once

/// \file
/// The version of the headers a plug-in is compiled against. The build reads
/// its package version from this file, so the CMake package, the pkg-config
/// file and these macros always agree.

/// \addtogroup classes_theme
/// @{

/// Major version: changes when a plug-in built against an earlier one may no
/// longer build or load.
#define COMMONUI_VERSION_MAJOR 1
/// Minor version: new operations and options, none of which changes what
/// existing code sees.
#define COMMONUI_VERSION_MINOR 0
/// Patch version: fixes only.
#define COMMONUI_VERSION_PATCH 0

/// The version as one number, 0xMMNNPP, for comparisons in the preprocessor:
/// `#if COMMONUI_VERSION >= COMMONUI_VERSION_CHECK(1, 1, 0)`.
#define COMMONUI_VERSION_CHECK(major, minor, patch) (((major) << 16) | ((minor) << 8) | (patch))

/// The version of these headers, as COMMONUI_VERSION_CHECK() makes it.
#define COMMONUI_VERSION                                                                                     \
    COMMONUI_VERSION_CHECK(COMMONUI_VERSION_MAJOR, COMMONUI_VERSION_MINOR, COMMONUI_VERSION_PATCH)

/// The version as text, "major.minor.patch"; the CMake package and pkg-config
/// file carry the same.
#define COMMONUI_VERSION_STR "1.0.0"

/// @}
