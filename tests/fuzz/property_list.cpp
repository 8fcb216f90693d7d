// Property lists of any bytes: what is read can be written as XML, and reads as the same then.

#include "platform/property_list.h"

#include <cstdio>
#include <cstdlib>

namespace {

/// Dates lose their fractions of a second in XML.
bool isSameOnceWritten(const QVariant &list)
{
    const QByteArray xml = platform::propertyListXml(list);
    if (xml.isNull() || xml.size() > platform::property_list_limits::bytes)
        return true;
    const QByteArray again = platform::propertyListXml(platform::parsePropertyList(xml));
    return again == xml;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QVariant list = platform::parsePropertyList(bytes);
    if (list.isValid() && !isSameOnceWritten(list)) {
        std::fputs("the list reads differently once written\n", stderr);
        std::abort();
    }
    return 0;
}
