#pragma once

#include "platform/export.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

/// Property lists, XML and binary. They come from other programs and are not trusted: a file that
/// is damaged, too large, too deep, or no regular file reads as missing, without blocking.
///
/// A value is a QVariant of one of these types: bool, qlonglong (qulonglong above its range),
/// double, QString, QByteArray, QDateTime (UTC), QVariantList, QVariantMap. An invalid QVariant is
/// "missing". A list that holds anything else (null, identifier, set) is missing as a whole. Of
/// equal keys in a dictionary the later one counts.
namespace platform {

namespace property_list_limits {
inline constexpr qint64 bytes = 1024 * 1024; ///< size of a file
inline constexpr int depth = 64;             ///< containers within one another
/// Containers and leaves, but no keys; what stands in several places counts in each.
inline constexpr int values = 20'000;
} // namespace property_list_limits

/// Reads a file at a real path (see platform::resolved()). Opens without blocking, accepts regular
/// files only. A null path is missing.
[[nodiscard]] PLATFORM_EXPORT QVariant readPropertyList(const QString &realPath);

/// The same, from bytes.
[[nodiscard]] PLATFORM_EXPORT QVariant parsePropertyList(const QByteArray &bytes);

/// The list as an XML document, keys in sorted order, dates in whole seconds. Null when a value has
/// another type than above (or int), when it is too deep, or when XML cannot carry a text in it.
[[nodiscard]] PLATFORM_EXPORT QByteArray propertyListXml(const QVariant &list);

/// The value under @p key when @p dictionary is a dictionary that has it, else missing.
[[nodiscard]] PLATFORM_EXPORT QVariant valueForKey(const QVariant &dictionary, const QString &key);

} // namespace platform
