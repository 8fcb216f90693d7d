#include "diag/debug_log.h"
#include "diag/formatted.h"
#include "platform/property_list.h"

using diag::formatted;

namespace {

std::string hexDigits(const unsigned char *bytes, std::size_t count)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    text.reserve(count * 2);
    for (std::size_t i = 0; i < count; ++i) {
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 0xF];
    }
    return text;
}

} // namespace

void dumpBytesBody(const char *operation, int line, const char *label, const void *bytes,
                   std::size_t count)
{
    if (!diag::isLevelOn(diag::kDumpLevel))
        return;
    if (!bytes && count > 0)
        LogErrorBody("dumpBytesBody", 216, "ERR cstr ERR");
    const std::string message =
        formatted("%s L%d: %s %ub\n{", operation, line, label, unsigned(count)) +
        hexDigits(static_cast<const unsigned char *>(bytes), bytes ? count : 0) + '}';
    LogFormatAndSend(operation, line, 'D', message.c_str());
}

void dumpDataBody(const char *operation, int line, const char *label, const QByteArray &data)
{
    if (diag::isLevelOn(diag::kDumpLevel))
        dumpBytesBody(operation, line, label, data.constData(), std::size_t(data.size()));
}

void dumpDictBody(const char *operation, int line, const char *label, const QVariant &list)
{
    if (!diag::isLevelOn(diag::kDumpLevel))
        return;
    const QByteArray xml = platform::propertyListXml(list);
    if (xml.isNull())
        LogErrorBody("dumpDictBody", 236, "ERR cstr ERR");
    const std::string message = formatted("%s L%d: %s\n%s", operation, line, label,
                                          xml.isNull() ? "(null)" : xml.constData());
    LogFormatAndSend(operation, line, 'D', message.c_str());
}
