#include "platform/property_list_readers.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <optional>

// The XML form. The bytes are decoded here and not by the reader, so that the text which is checked
// is the text which is read.

namespace platform::property_list_detail {
namespace {

/// Longest tag or document type; lists need 130 characters. The reader compares every two
/// attributes of a tag, which takes it 20 seconds for the tag that fills a list.
constexpr qsizetype kLongestTag = 512;

QByteArray declaredEncoding(const QByteArray &bytes)
{
    static const QRegularExpression declaration(
        QStringLiteral(R"(^<\?xml[^>]*\sencoding\s*=\s*["']([A-Za-z0-9._-]+)["'])"));
    return declaration.match(QString::fromLatin1(bytes.first(qMin(bytes.size(), qsizetype{256}))))
        .captured(1)
        .toLatin1();
}

QStringDecoder decoderFor(const QByteArray &bytes)
{
    if (const auto encoding = QStringConverter::encodingForData(bytes, u'<'))
        return QStringDecoder(*encoding);
    const QByteArray name = declaredEncoding(bytes);
    return name.isEmpty() ? QStringDecoder(QStringConverter::Utf8)
                          : QStringDecoder(name.constData());
}

/// Encoding: by the byte order mark or the first bytes, else as declared, else UTF-8.
std::optional<QString> decodedXml(const QByteArray &bytes)
{
    QStringDecoder decoder = decoderFor(bytes);
    if (!decoder.isValid())
        return std::nullopt;
    const QString text = decoder.decode(bytes);
    return decoder.hasError() || !text.isValidUtf16() ? std::nullopt : std::optional(text);
}

bool endsOutsideQuotes(QStringView tag)
{
    QChar openQuote;
    for (const QChar c : tag) {
        if (c == openQuote)
            openQuote = QChar();
        else if (openQuote.isNull() && (c == u'"' || c == u'\''))
            openQuote = c;
    }
    return openQuote.isNull();
}

/// A tag as lists have them: short, without ">" in quotes, and no document type with declarations
/// of its own. So no entity is ever declared: entities can unfold to gigabytes, inside the document
/// type without any limit of the reader's.
bool isPlainTag(QStringView tag)
{
    return tag.size() <= kLongestTag && endsOutsideQuotes(tag) &&
           !(tag.startsWith(u"<!") && tag.contains(u'['));
}

/// Where the markup at the beginning of @p text ends; -1 when it does not, or is a tag that is not
/// plain.
qsizetype markupLength(QStringView text)
{
    const auto through = [text](QStringView end, qsizetype from) {
        const qsizetype position = text.indexOf(end, from);
        return position < 0 ? position : position + end.size();
    };
    if (text.startsWith(u"<!--"))
        return through(u"-->", 4);
    if (text.startsWith(u"<![CDATA["))
        return through(u"]]>", 9);
    if (text.startsWith(u"<?"))
        return through(u"?>", 2);
    const qsizetype length = through(u">", 1);
    return length > 0 && isPlainTag(text.first(length)) ? length : -1;
}

bool hasPlainMarkup(QStringView text)
{
    for (qsizetype at = text.indexOf(u'<'); at >= 0; at = text.indexOf(u'<', at)) {
        const qsizetype length = markupLength(text.sliced(at));
        if (length < 0)
            return false;
        at += length;
    }
    return true;
}

QVariant integerFrom(const QString &text)
{
    const int base = text.contains(QStringLiteral("0x"), Qt::CaseInsensitive) ? 16 : 10;
    bool isRead = false;
    const qlonglong withSign = text.toLongLong(&isRead, base);
    if (isRead)
        return withSign;
    const qulonglong large = text.toULongLong(&isRead, base);
    return isRead ? QVariant(large) : QVariant();
}

QVariant realFrom(const QString &text)
{
    bool isRead = false;
    const double value = text.toDouble(&isRead);
    return isRead ? QVariant(value) : QVariant();
}

/// "2009-03-01T12:00:00Z" and nothing else.
QVariant dateFrom(const QString &text)
{
    const QString trimmed = text.trimmed();
    const QDateTime date = QDateTime::fromString(trimmed, Qt::ISODate);
    const bool isComplete = trimmed.size() == 20 && trimmed.endsWith(u'Z');
    return isComplete && date.isValid() ? QVariant(date) : QVariant();
}

QVariant dataFrom(const QString &text)
{
    static const QRegularExpression whiteSpace(QStringLiteral("\\s+"));
    QString digits = text;
    const auto result = QByteArray::fromBase64Encoding(digits.remove(whiteSpace).toLatin1(),
                                                       QByteArray::AbortOnBase64DecodingErrors);
    return result ? QVariant(*result) : QVariant();
}

QVariant booleanFrom(bool value, const QString &text)
{
    return text.isEmpty() ? QVariant(value) : QVariant();
}

class ListReader
{
public:
    explicit ListReader(const QString &text) : xml_(text) { xml_.setNamespaceProcessing(false); }

    /// The one value of the document.
    [[nodiscard]] QVariant document();

private:
    using Token = QXmlStreamReader::TokenType;

    Token nextToken();
    /// The next tag or the end, with only white space before it.
    Token nextTag();
    [[nodiscard]] bool startsElement(Token token, QLatin1String name) const;
    [[nodiscard]] std::optional<QString> text();
    [[nodiscard]] QVariant value();
    [[nodiscard]] QVariant container();
    [[nodiscard]] QVariant array();
    [[nodiscard]] QVariant dictionary();
    [[nodiscard]] QVariant leaf();

    QXmlStreamReader xml_;
    Allowance allowance_;
};

QVariant ListReader::document()
{
    if (!startsElement(nextTag(), QLatin1String("plist")))
        return {};
    if (nextTag() != Token::StartElement)
        return {};
    const QVariant list = value();
    const bool isWhole = nextTag() == Token::EndElement && nextTag() == Token::EndDocument;
    return isWhole && !xml_.hasError() ? list : QVariant();
}

/// Skips what says nothing in a list.
ListReader::Token ListReader::nextToken()
{
    Token token = xml_.readNext();
    while (token == Token::StartDocument || token == Token::DTD || token == Token::Comment ||
           token == Token::ProcessingInstruction)
        token = xml_.readNext();
    return token;
}

ListReader::Token ListReader::nextTag()
{
    Token token = nextToken();
    while (token == Token::Characters && xml_.isWhitespace())
        token = nextToken();
    return token;
}

bool ListReader::startsElement(Token token, QLatin1String name) const
{
    return token == Token::StartElement && xml_.qualifiedName() == name;
}

/// The text up to the end of the element; nothing when it holds other elements.
std::optional<QString> ListReader::text()
{
    QString text = QStringLiteral("");
    Token token = nextToken();
    for (; token == Token::Characters; token = nextToken())
        text.append(xml_.text());
    return token == Token::EndElement ? std::optional(text) : std::nullopt;
}

/// The value whose start tag was read last, through its end tag.
QVariant ListReader::value()
{
    if (!allowance_.takeValue())
        return {};
    const bool isContainer = xml_.qualifiedName() == QLatin1String("dict") ||
                             xml_.qualifiedName() == QLatin1String("array");
    return isContainer ? container() : leaf();
}

QVariant ListReader::container()
{
    const bool isArray = xml_.qualifiedName() == QLatin1String("array");
    if (!allowance_.enterLevel())
        return {};
    const QVariant value = isArray ? array() : dictionary();
    allowance_.leaveLevel();
    return value;
}

QVariant ListReader::array()
{
    QVariantList list;
    Token token = nextTag();
    for (; token == Token::StartElement; token = nextTag()) {
        list.append(value());
        if (!list.constLast().isValid())
            return {};
    }
    return token == Token::EndElement ? QVariant(list) : QVariant();
}

QVariant ListReader::dictionary()
{
    QVariantMap map;
    Token token = nextTag();
    for (; startsElement(token, QLatin1String("key")); token = nextTag()) {
        const std::optional<QString> key = text();
        const QVariant entry = key && nextTag() == Token::StartElement ? value() : QVariant();
        if (!entry.isValid())
            return {};
        map.insert(*key, entry);
    }
    return token == Token::EndElement ? QVariant(map) : QVariant();
}

QVariant ListReader::leaf()
{
    const QString name = xml_.qualifiedName().toString();
    const std::optional<QString> content = text();
    if (!content)
        return {};
    if (name == QLatin1String("string"))
        return *content;
    if (name == QLatin1String("integer"))
        return integerFrom(*content);
    if (name == QLatin1String("true") || name == QLatin1String("false"))
        return booleanFrom(name == QLatin1String("true"), *content);
    if (name == QLatin1String("real"))
        return realFrom(*content);
    if (name == QLatin1String("date"))
        return dateFrom(*content);
    return name == QLatin1String("data") ? dataFrom(*content) : QVariant();
}

} // namespace

QVariant parseXml(const QByteArray &bytes)
{
    const std::optional<QString> text = decodedXml(bytes);
    return text && hasPlainMarkup(*text) ? ListReader(*text).document() : QVariant();
}

} // namespace platform::property_list_detail
