#pragma once

#include <QString>
#include <QStringList>

namespace test {

/// A source file of the system, by its path in the source folder. A missing one fails the test.
[[nodiscard]] QString sourceText(const QString &path);

/// The names under which the source files of the rooms trace, sorted, one per KV_TRACE(). Knows the
/// four ways in which they are written: as a text, as a constant of that function, as a setter's
/// name in the model's macros, and as class name and operation in what both panel objects share.
[[nodiscard]] QStringList selectorsTracedInSource();

/// Names of the functions that a class declares in public, constructors and destructor left out,
/// sorted, without repetition.
[[nodiscard]] QStringList publicFunctions(const QString &headerPath, const QString &className);

} // namespace test
