#pragma once

#include <QtGlobal>

/// Marks what the platform library offers to the plug-in and to the dialog.
#if defined(KORVANE_PLATFORM_BUILD)
#define PLATFORM_EXPORT Q_DECL_EXPORT
#else
#define PLATFORM_EXPORT Q_DECL_IMPORT
#endif
