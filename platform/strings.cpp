#include "platform/strings.h"

#include <QStringDecoder>

#include <algorithm>
#include <cmath>
#include <limits>

namespace platform {
namespace {

constexpr int kMax = std::numeric_limits<int>::max();
constexpr int kMin = std::numeric_limits<int>::min();

/// What the Shift_JIS decoder writes for bytes that it cannot read.
constexpr QChar kSubstitute(u'\x1A');

bool isSign(QChar c)
{
    return c == u'+' || c == u'-';
}

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

qsizetype afterWhiteSpace(const QString &text)
{
    qsizetype i = 0;
    while (i < text.size() && text.at(i).isSpace())
        ++i;
    return i;
}

int saturated(double value)
{
    if (std::isnan(value))
        return 0;
    if (value >= static_cast<double>(kMax))
        return kMax;
    if (value <= static_cast<double>(kMin))
        return kMin;
    return static_cast<int>(value);
}

bool readsAsTrue(const QString &text)
{
    qsizetype i = afterWhiteSpace(text);
    if (i < text.size() && QStringLiteral("YyTt").contains(text.at(i)))
        return true;
    if (i < text.size() && isSign(text.at(i)))
        ++i;
    while (i < text.size() && text.at(i) == u'0')
        ++i;
    return i < text.size() && isAsciiDigit(text.at(i));
}

/// Name by which QStringDecoder knows an encoding number; null for an unknown number.
const char *decoderName(unsigned long stringEncoding)
{
    switch (stringEncoding) {
    case encoding::utf8:
        return "UTF-8";
    case encoding::isoLatin1:
        return "ISO-8859-1";
    case encoding::shiftJis:
        return "Shift_JIS";
    case encoding::windowsLatin1:
        return "windows-1252";
    case encoding::macRoman:
        return "macintosh";
    default:
        return nullptr;
    }
}

QString decodedAscii(const QByteArray &bytes)
{
    for (const char byte : bytes) {
        if (static_cast<unsigned char>(byte) > 127)
            return {};
    }
    return bytes.isEmpty() ? QStringLiteral("") : QString::fromLatin1(bytes);
}

} // namespace

bool isEqual(const QString &a, const QString &b)
{
    return a.isNull() == b.isNull() && a == b;
}

bool isSameObject(const QString &a, const QString &b)
{
    return a.isNull() == b.isNull() && a.size() == b.size() &&
           (a.isEmpty() || a.constData() == b.constData());
}

QString described(const QString &text)
{
    return text.isNull() ? QStringLiteral("(null)") : text;
}

int integerValue(const QString &text)
{
    qsizetype i = afterWhiteSpace(text);
    const bool negative = i < text.size() && text.at(i) == u'-';
    if (i < text.size() && isSign(text.at(i)))
        ++i;
    qint64 value = 0;
    for (; i < text.size() && isAsciiDigit(text.at(i)); ++i) {
        value = value * 10 + (text.at(i).unicode() - u'0');
        if (value > qint64{kMax} + 1)
            return negative ? kMin : kMax;
    }
    return static_cast<int>(std::clamp<qint64>(negative ? -value : value, kMin, kMax));
}

int integerValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? 1 : 0;
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::LongLong:
        return static_cast<int>(std::clamp<qint64>(value.toLongLong(), kMin, kMax));
    case QMetaType::ULongLong:
        return static_cast<int>(std::min<quint64>(value.toULongLong(), quint64{kMax}));
    case QMetaType::Double:
        return saturated(value.toDouble());
    case QMetaType::QString:
        return integerValue(value.toString());
    default:
        return 0;
    }
}

bool booleanValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
        return value.toInt() != 0;
    case QMetaType::LongLong:
        return value.toLongLong() != 0;
    case QMetaType::ULongLong:
        return value.toULongLong() != 0;
    case QMetaType::Double:
        return value.toDouble() != 0.0;
    case QMetaType::QString:
        return readsAsTrue(value.toString());
    default:
        return false;
    }
}

QString droppingLastPathComponent(const QString &path)
{
    if (path.isNull())
        return path;
    qsizetype end = path.size();
    while (end > 1 && path.at(end - 1) == u'/')
        --end;
    while (end > 0 && path.at(end - 1) != u'/')
        --end;
    while (end > 1 && path.at(end - 1) == u'/')
        --end;
    return end == 0 ? QStringLiteral("") : path.left(end);
}

QString trimmingCharacters(const QString &text, const QString &set)
{
    if (text.isNull())
        return text;
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && set.contains(text.at(first)))
        ++first;
    while (last > first && set.contains(text.at(last - 1)))
        --last;
    return first == last ? QStringLiteral("") : text.mid(first, last - first);
}

bool containsText(const QString &text, const QString &needle)
{
    return !needle.isEmpty() && text.contains(needle, Qt::CaseSensitive);
}

QString decoded(const char *bytes, unsigned long stringEncoding)
{
    if (!bytes)
        return {};
    const QByteArray data(bytes);
    if (stringEncoding == encoding::ascii)
        return decodedAscii(data);
    const char *name = decoderName(stringEncoding);
    if (!name)
        return {};
    // Stateless: a character that is cut off at the end shows as one that cannot be read.
    QStringDecoder decoder(name, QStringConverter::Flag::Stateless);
    QString text = decoder.decode(data);
    if (stringEncoding == encoding::shiftJis)
        text.replace(kSubstitute, QChar(QChar::ReplacementCharacter));
    return text.isEmpty() ? QStringLiteral("") : text;
}

QString decodedUtf8(const char *bytes)
{
    return decoded(bytes, encoding::utf8);
}

} // namespace platform
