#include "platform/property_list.h"

#include "platform/property_list_readers.h"
#include "platform/regular_file.h"

namespace platform {

using namespace property_list_detail;

QVariant readPropertyList(const QString &realPath)
{
    const std::optional<QByteArray> bytes = readRegularFile(realPath, property_list_limits::bytes);
    return bytes ? parsePropertyList(*bytes) : QVariant();
}

QVariant parsePropertyList(const QByteArray &bytes)
{
    if (bytes.size() > property_list_limits::bytes)
        return {};
    return bytes.startsWith(kBinaryMagic) ? parseBinary(bytes) : parseXml(bytes);
}

QVariant valueForKey(const QVariant &dictionary, const QString &key)
{
    if (dictionary.typeId() != QMetaType::QVariantMap || key.isNull())
        return {};
    return dictionary.toMap().value(key);
}

} // namespace platform
