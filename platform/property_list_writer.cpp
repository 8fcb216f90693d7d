#include "platform/property_list.h"

#include <QDateTime>
#include <QTimeZone>

#include <algorithm>
#include <optional>

namespace platform {
namespace {

/// What XML can carry: no control characters but tab and the line ends, no half pairs.
bool isXmlText(const QString &text)
{
    const auto isAllowed = [](QChar c) {
        return c >= u' ' ? c != u'\uFFFE' && c != u'\uFFFF'
                         : c == u'\t' || c == u'\n' || c == u'\r';
    };
    return text.isValidUtf16() && std::all_of(text.begin(), text.end(), isAllowed);
}

class ListWriter
{
public:
    /// False when the list holds something that the form cannot express; then the text is
    /// unfinished.
    [[nodiscard]] bool writeDocument(const QVariant &list);
    [[nodiscard]] const QByteArray &xml() const { return xml_; }

private:
    [[nodiscard]] bool writeValue(const QVariant &value, int level);
    [[nodiscard]] bool writeArray(const QVariantList &list, int level);
    [[nodiscard]] bool writeDictionary(const QVariantMap &map, int level);
    [[nodiscard]] bool writeText(const char *element, const QString &text, int level);
    void writeLine(const QByteArray &line, int level);

    QByteArray xml_;
};

bool ListWriter::writeDocument(const QVariant &list)
{
    writeLine("<?xml version=\"1.0\" encoding=\"UTF-8\"?>", 0);
    writeLine("<plist version=\"1.0\">", 0);
    const bool isWritten = writeValue(list, 0);
    writeLine("</plist>", 0);
    return isWritten;
}

bool ListWriter::writeValue(const QVariant &value, int level)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        writeLine(value.toBool() ? "<true/>" : "<false/>", level);
        return true;
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return writeText("integer", value.toString(), level);
    case QMetaType::Double:
        return writeText(
            "real", QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest), level);
    case QMetaType::QString:
        return writeText("string", value.toString(), level);
    case QMetaType::QByteArray:
        return writeText("data", QString::fromLatin1(value.toByteArray().toBase64()), level);
    case QMetaType::QDateTime:
        return writeText("date", value.toDateTime().toUTC().toString(Qt::ISODate), level);
    case QMetaType::QVariantList:
        return writeArray(value.toList(), level);
    case QMetaType::QVariantMap:
        return writeDictionary(value.toMap(), level);
    default:
        return false;
    }
}

bool ListWriter::writeArray(const QVariantList &list, int level)
{
    if (level == property_list_limits::depth)
        return false;
    writeLine("<array>", level);
    const bool isWritten = std::all_of(list.begin(), list.end(), [&](const QVariant &item) {
        return writeValue(item, level + 1);
    });
    writeLine("</array>", level);
    return isWritten;
}

bool ListWriter::writeDictionary(const QVariantMap &map, int level)
{
    if (level == property_list_limits::depth)
        return false;
    writeLine("<dict>", level);
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        if (!writeText("key", entry.key(), level + 1) || !writeValue(entry.value(), level + 1))
            return false;
    }
    writeLine("</dict>", level);
    return true;
}

bool ListWriter::writeText(const char *element, const QString &text, int level)
{
    QByteArray content = text.toHtmlEscaped().toUtf8();
    // Readers turn a bare carriage return into a line feed.
    content.replace('\r', "&#13;");
    const QByteArray name(element);
    writeLine('<' + name + '>' + content + "</" + name + '>', level);
    return isXmlText(text);
}

void ListWriter::writeLine(const QByteArray &line, int level)
{
    xml_ += QByteArray(level, '\t') + line + '\n';
}

} // namespace

QByteArray propertyListXml(const QVariant &list)
{
    ListWriter writer;
    return writer.writeDocument(list) ? writer.xml() : QByteArray();
}

} // namespace platform
