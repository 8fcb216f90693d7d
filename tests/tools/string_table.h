#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// The plug-in's string table, as its sources hold it.
namespace strings {

using Texts = QMap<QString, QString>; ///< key to text
using Table = QMap<QString, Texts>;   ///< language to texts

inline const QStringList languages{
    QStringLiteral("de"), QStringLiteral("en"), QStringLiteral("es"), QStringLiteral("fr"),
    QStringLiteral("it"), QStringLiteral("ja"), QStringLiteral("pt"), QStringLiteral("zh_CN"),
};

struct Source
{
    Texts texts;
    QStringList keysInOrder;
    QStringList faults; ///< what the file says that it should not: other contexts, unfinished texts
};
[[nodiscard]] Source readSource(const QString &path);
[[nodiscard]] QString sourcePath(const QString &language);
[[nodiscard]] Table readTable();

/// Texts of an interface file that the loader looks up in the table.
[[nodiscard]] QStringList translatableTexts(const QString &interfaceFile);

/// One line per fault: a key that a language lacks or has beside English, an English text that is
/// not its key, an empty text, other blanks at the ends, a placeholder that is not allowed, another
/// step number.
[[nodiscard]] QStringList faultsOf(const Table &table);

} // namespace strings
