#include <QByteArray>

/// Leaves a trace in the process that loads this library.
[[gnu::constructor]] static void leaveTrace()
{
    qputenv("CONTROLS_FOREIGN_LIBRARY_WAS_LOADED", QByteArrayLiteral("yes"));
}
