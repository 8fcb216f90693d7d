#include "platform/property_list_readers.h"

#include <QDateTime>
#include <QHash>
#include <QTimeZone>

#include <bit>
#include <cmath>
#include <limits>
#include <optional>

// The binary form: the magic, the objects, a table of the objects' offsets, and a trailer of fixed
// size. An object begins with a marker byte: its kind in the upper half, and a size, a count or a
// variant in the lower half. Containers hold indices into the table, so one object may stand in
// many places, in itself as well. All numbers are big-endian.

namespace platform::property_list_detail {
namespace {

constexpr qsizetype kTrailerSize = 32;
constexpr int kLargestNumber = 8;     // bytes of an offset, an index or a count
constexpr quint8 kCountFollows = 0xF; // lower half of the marker: the count is an object of its own

enum class Kind : quint8 {
    Simple = 0x0,
    Integer = 0x1,
    Real = 0x2,
    Date = 0x3,
    Data = 0x4,
    AsciiText = 0x5,
    Utf16Text = 0x6,
    Array = 0xA,
    Dictionary = 0xD,
};

struct Marker
{
    Kind kind;
    quint8 low;
};

quint64 bigEndian(QByteArrayView bytes)
{
    quint64 value = 0;
    for (const char byte : bytes)
        value = value << 8 | static_cast<quint8>(byte);
    return value;
}

/// Takes bytes from the front of a view; nothing once too few are left.
class Cursor
{
public:
    explicit Cursor(QByteArrayView bytes) : rest_(bytes) {}

    [[nodiscard]] qsizetype left() const { return rest_.size(); }

    [[nodiscard]] std::optional<QByteArrayView> take(quint64 count, quint64 itemSize = 1)
    {
        if (count > static_cast<quint64>(rest_.size()) / itemSize)
            return std::nullopt;
        const auto size = static_cast<qsizetype>(count * itemSize);
        const QByteArrayView taken = rest_.first(size);
        rest_ = rest_.sliced(size);
        return taken;
    }

    [[nodiscard]] std::optional<quint64> takeNumber(int size)
    {
        const std::optional<QByteArrayView> bytes = take(static_cast<quint64>(size));
        return bytes ? std::optional(bigEndian(*bytes)) : std::nullopt;
    }

    [[nodiscard]] std::optional<Marker> takeMarker()
    {
        const std::optional<quint64> byte = takeNumber(1);
        if (!byte)
            return std::nullopt;
        return Marker{static_cast<Kind>(*byte >> 4), static_cast<quint8>(*byte & 0xF)};
    }

    [[nodiscard]] std::optional<quint64> takeCount(quint8 low)
    {
        if (low != kCountFollows)
            return low;
        const std::optional<Marker> marker = takeMarker();
        if (!marker || marker->kind != Kind::Integer || marker->low > 3)
            return std::nullopt;
        return takeNumber(1 << marker->low);
    }

private:
    QByteArrayView rest_;
};

QVariant simple(quint8 variant)
{
    switch (variant) {
    case 0x8:
        return false;
    case 0x9:
        return true;
    default:
        return {};
    }
}

QVariant unsignedInteger(quint64 value)
{
    if (value > static_cast<quint64>(std::numeric_limits<qint64>::max()))
        return QVariant::fromValue<qulonglong>(value);
    return QVariant::fromValue<qlonglong>(static_cast<qlonglong>(value));
}

/// Integers of 1, 2 and 4 bytes have no sign, those of 8 have one, those of 16 must fit in 8
/// without.
QVariant integer(quint8 sizeExponent, Cursor &cursor)
{
    if (sizeExponent > 4)
        return {};
    const std::optional<quint64> high = sizeExponent == 4 ? cursor.takeNumber(8) : 0;
    const std::optional<quint64> low = cursor.takeNumber(std::min(1 << sizeExponent, 8));
    if (!low || high != quint64{0})
        return {};
    return sizeExponent == 3 ? QVariant::fromValue<qlonglong>(static_cast<qlonglong>(*low))
                             : unsignedInteger(*low);
}

std::optional<double> takeDouble(Cursor &cursor)
{
    const std::optional<quint64> bits = cursor.takeNumber(8);
    return bits ? std::optional(std::bit_cast<double>(*bits)) : std::nullopt;
}

std::optional<double> takeFloat(Cursor &cursor)
{
    const std::optional<quint64> bits = cursor.takeNumber(4);
    return bits ? std::optional<double>(std::bit_cast<float>(static_cast<quint32>(*bits)))
                : std::nullopt;
}

QVariant real(quint8 sizeExponent, Cursor &cursor)
{
    const std::optional<double> value = sizeExponent == 3   ? takeDouble(cursor)
                                        : sizeExponent == 2 ? takeFloat(cursor)
                                                            : std::nullopt;
    return value ? QVariant(*value) : QVariant();
}

/// Seconds from the beginning of 2001, UTC; within the years that the XML form can write.
QVariant date(quint8 sizeExponent, Cursor &cursor)
{
    const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime earliest(QDate(1, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime latest(QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC);
    const std::optional<double> seconds = sizeExponent == 3 ? takeDouble(cursor) : std::nullopt;
    if (!seconds || !(*seconds >= static_cast<double>(reference.secsTo(earliest)) &&
                      *seconds <= static_cast<double>(reference.secsTo(latest))))
        return {};
    return reference.addMSecs(std::llround(*seconds * 1000));
}

QVariant data(quint8 low, Cursor &cursor)
{
    const std::optional<quint64> count = cursor.takeCount(low);
    const std::optional<QByteArrayView> bytes = count ? cursor.take(*count) : std::nullopt;
    return bytes ? QVariant(bytes->toByteArray()) : QVariant();
}

QVariant asciiText(quint8 low, Cursor &cursor)
{
    const std::optional<quint64> count = cursor.takeCount(low);
    const std::optional<QByteArrayView> bytes = count ? cursor.take(*count) : std::nullopt;
    const auto isAscii = [](char byte) { return static_cast<quint8>(byte) < 0x80; };
    if (!bytes || !std::all_of(bytes->begin(), bytes->end(), isAscii))
        return {};
    return bytes->isEmpty() ? QStringLiteral("") : QString::fromLatin1(*bytes);
}

QVariant utf16Text(quint8 low, Cursor &cursor)
{
    const std::optional<quint64> count = cursor.takeCount(low);
    const std::optional<QByteArrayView> bytes = count ? cursor.take(*count, 2) : std::nullopt;
    if (!bytes)
        return {};
    QString text = QStringLiteral("");
    text.reserve(bytes->size() / 2);
    for (qsizetype i = 0; i < bytes->size(); i += 2)
        text.append(QChar(static_cast<char16_t>(bigEndian(bytes->sliced(i, 2)))));
    return text.isValidUtf16() ? QVariant(text) : QVariant();
}

/// What holds no other object. Null, identifiers, sets and unknown kinds are none of our types.
QVariant leaf(Cursor &cursor)
{
    const std::optional<Marker> marker = cursor.takeMarker();
    if (!marker)
        return {};
    switch (marker->kind) {
    case Kind::Simple:
        return simple(marker->low);
    case Kind::Integer:
        return integer(marker->low, cursor);
    case Kind::Real:
        return real(marker->low, cursor);
    case Kind::Date:
        return date(marker->low, cursor);
    case Kind::Data:
        return data(marker->low, cursor);
    case Kind::AsciiText:
        return asciiText(marker->low, cursor);
    case Kind::Utf16Text:
        return utf16Text(marker->low, cursor);
    default:
        return {};
    }
}

/// Where objects and table lie; made by layoutOf(), which checks it.
struct Layout
{
    QByteArrayView objects; ///< from the beginning of the list, so that offsets are positions
    QByteArrayView table;
    quint64 objectCount = 0;
    quint64 topObject = 0;
    int offsetSize = 0;
    int indexSize = 0;
};

bool isNumberSize(int size)
{
    return size >= 1 && size <= kLargestNumber;
}

std::optional<Layout> layoutOf(QByteArrayView bytes)
{
    if (bytes.size() < kBinaryMagic.size() + kTrailerSize)
        return std::nullopt;
    const QByteArrayView body = bytes.chopped(kTrailerSize);
    const QByteArrayView trailer = bytes.last(kTrailerSize);
    const quint64 tableStart = bigEndian(trailer.sliced(24, 8));
    if (tableStart > static_cast<quint64>(body.size()))
        return std::nullopt;
    const Layout layout{.objects = body.first(static_cast<qsizetype>(tableStart)),
                        .table = body.sliced(static_cast<qsizetype>(tableStart)),
                        .objectCount = bigEndian(trailer.sliced(8, 8)),
                        .topObject = bigEndian(trailer.sliced(16, 8)),
                        .offsetSize = static_cast<quint8>(trailer.at(6)),
                        .indexSize = static_cast<quint8>(trailer.at(7))};
    if (!isNumberSize(layout.offsetSize) || !isNumberSize(layout.indexSize))
        return std::nullopt;
    // The table fills the place between objects and trailer.
    const auto entries = static_cast<quint64>(layout.table.size() / layout.offsetSize);
    const bool isFilled = layout.table.size() % layout.offsetSize == 0;
    return isFilled && entries == layout.objectCount ? std::optional(layout) : std::nullopt;
}

class BinaryReader
{
public:
    explicit BinaryReader(const Layout &layout) : layout_(layout) {}

    /// The object of that index with all that it holds.
    [[nodiscard]] QVariant object(quint64 index);

private:
    [[nodiscard]] std::optional<qsizetype> offsetOf(quint64 index) const;
    [[nodiscard]] QVariant leafAt(qsizetype offset);
    [[nodiscard]] QVariant container(Marker marker, Cursor cursor);
    [[nodiscard]] QVariant array(QByteArrayView indices);
    [[nodiscard]] QVariant dictionary(QByteArrayView keys, QByteArrayView values);
    [[nodiscard]] quint64 indexAt(QByteArrayView indices, qsizetype position) const;

    Layout layout_;
    Allowance allowance_;
    QHash<qsizetype, QVariant> leaves_; ///< by offset, so that a shared text is kept once
    qsizetype leafBytes_ = 0;
};

QVariant BinaryReader::object(quint64 index)
{
    const std::optional<qsizetype> offset = offsetOf(index);
    if (!offset || !allowance_.takeValue())
        return {};
    Cursor cursor(layout_.objects.sliced(*offset));
    const std::optional<Marker> marker = cursor.takeMarker();
    if (marker->kind != Kind::Array && marker->kind != Kind::Dictionary)
        return leafAt(*offset);
    // A container that holds itself ends here too.
    const QVariant value = allowance_.enterLevel() ? container(*marker, cursor) : QVariant();
    allowance_.leaveLevel();
    return value;
}

std::optional<qsizetype> BinaryReader::offsetOf(quint64 index) const
{
    if (index >= layout_.objectCount)
        return std::nullopt;
    const auto position = static_cast<qsizetype>(index) * layout_.offsetSize;
    const quint64 offset = bigEndian(layout_.table.sliced(position, layout_.offsetSize));
    const bool isInside = offset >= static_cast<quint64>(kBinaryMagic.size()) &&
                          offset < static_cast<quint64>(layout_.objects.size());
    return isInside ? std::optional(static_cast<qsizetype>(offset)) : std::nullopt;
}

QVariant BinaryReader::leafAt(qsizetype offset)
{
    const auto known = leaves_.constFind(offset);
    if (known != leaves_.constEnd())
        return *known;
    Cursor cursor(layout_.objects.sliced(offset));
    const QVariant value = leaf(cursor);
    // Objects do not overlap, so together they are no longer than the list. (Overlapping texts
    // could unfold to gigabytes.)
    leafBytes_ += layout_.objects.size() - offset - cursor.left();
    if (leafBytes_ > layout_.objects.size())
        return {};
    leaves_.insert(offset, value);
    return value;
}

QVariant BinaryReader::container(Marker marker, Cursor cursor)
{
    const std::optional<quint64> count = cursor.takeCount(marker.low);
    const auto indexSize = static_cast<quint64>(layout_.indexSize);
    const auto first = count ? cursor.take(*count, indexSize) : std::nullopt;
    if (!first)
        return {};
    if (marker.kind == Kind::Array)
        return array(*first);
    const auto second = cursor.take(*count, indexSize);
    return second ? dictionary(*first, *second) : QVariant();
}

QVariant BinaryReader::array(QByteArrayView indices)
{
    QVariantList list;
    for (qsizetype i = 0; i < indices.size() / layout_.indexSize; ++i) {
        list.append(object(indexAt(indices, i)));
        if (!list.constLast().isValid())
            return {};
    }
    return list;
}

QVariant BinaryReader::dictionary(QByteArrayView keys, QByteArrayView values)
{
    QVariantMap map;
    for (qsizetype i = 0; i < keys.size() / layout_.indexSize; ++i) {
        const std::optional<qsizetype> keyOffset = offsetOf(indexAt(keys, i));
        const QVariant key = keyOffset ? leafAt(*keyOffset) : QVariant();
        const QVariant value = object(indexAt(values, i));
        if (key.typeId() != QMetaType::QString || !value.isValid())
            return {};
        map.insert(key.toString(), value);
    }
    return map;
}

quint64 BinaryReader::indexAt(QByteArrayView indices, qsizetype position) const
{
    return bigEndian(indices.sliced(position * layout_.indexSize, layout_.indexSize));
}

} // namespace

QVariant parseBinary(const QByteArray &bytes)
{
    const std::optional<Layout> layout = layoutOf(bytes);
    return layout ? BinaryReader(*layout).object(layout->topObject) : QVariant();
}

} // namespace platform::property_list_detail
