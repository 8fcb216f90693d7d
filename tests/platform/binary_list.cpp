#include "tests/platform/binary_list.h"

#include <QDateTime>
#include <QTimeZone>

#include <bit>

namespace test {
namespace {

QByteArray doubleBytes(double value)
{
    return BinaryList::number(std::bit_cast<quint64>(value), 8);
}

QByteArray textObject(const QString &text)
{
    QByteArray units;
    for (const QChar unit : text)
        units += BinaryList::number(unit.unicode(), 2);
    return BinaryList::counted(0x6, text.size()) + units;
}

double secondsOf(const QDateTime &date)
{
    const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    return static_cast<double>(reference.msecsTo(date)) / 1000;
}

QByteArray leafObject(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? "\x09" : "\x08";
    case QMetaType::LongLong:
        return "\x13" + BinaryList::number(static_cast<quint64>(value.toLongLong()), 8);
    case QMetaType::ULongLong:
        return "\x14" + BinaryList::number(0, 8) + BinaryList::number(value.toULongLong(), 8);
    case QMetaType::Double:
        return "\x23" + doubleBytes(value.toDouble());
    case QMetaType::QDateTime:
        return "\x33" + doubleBytes(secondsOf(value.toDateTime()));
    case QMetaType::QByteArray:
        return BinaryList::counted(0x4, value.toByteArray().size()) + value.toByteArray();
    default:
        return textObject(value.toString());
    }
}

} // namespace

int BinaryList::add(const QByteArray &object)
{
    const int index = addOffset(objects_.size());
    objects_ += object;
    return index;
}

int BinaryList::addOffset(qint64 offset)
{
    offsets_.append(offset);
    return static_cast<int>(offsets_.size() - 1);
}

int BinaryList::addText(const QByteArray &ascii)
{
    return add(counted(0x5, ascii.size()) + ascii);
}

int BinaryList::addArray(const QList<int> &indices)
{
    QByteArray object = counted(0xA, indices.size());
    for (const int index : indices)
        object += number(static_cast<quint64>(index), indexSize_);
    return add(object);
}

int BinaryList::addDictionary(const QList<int> &keys, const QList<int> &values)
{
    QByteArray object = counted(0xD, keys.size());
    for (const int index : keys + values)
        object += number(static_cast<quint64>(index), indexSize_);
    return add(object);
}

int BinaryList::addValue(const QVariant &value)
{
    QList<int> keys;
    QList<int> values;
    if (value.typeId() == QMetaType::QVariantList) {
        const QVariantList list = value.toList();
        for (const QVariant &item : list)
            values.append(addValue(item));
        return addArray(values);
    }
    if (value.typeId() != QMetaType::QVariantMap)
        return add(leafObject(value));
    const QVariantMap map = value.toMap();
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        keys.append(add(textObject(entry.key())));
        values.append(addValue(entry.value()));
    }
    return addDictionary(keys, values);
}

QByteArray BinaryList::bytes(quint64 root) const
{
    return bytes(root, static_cast<quint64>(offsets_.size()),
                 static_cast<quint64>(objects_.size()));
}

QByteArray BinaryList::bytes(quint64 root, quint64 count, quint64 tableStart) const
{
    QByteArray result = objects_;
    for (const qint64 offset : offsets_)
        result += number(static_cast<quint64>(offset), offsetSize_);
    return result + QByteArray(6, '\0') + number(static_cast<quint64>(offsetSize_), 1) +
           number(static_cast<quint64>(indexSize_), 1) + number(count, 8) + number(root, 8) +
           number(tableStart, 8);
}

QByteArray BinaryList::number(quint64 value, int size)
{
    QByteArray bytes(size, '\0');
    for (int i = size - 1; i >= 0; --i, value >>= 8)
        bytes[i] = static_cast<char>(value & 0xFF);
    return bytes;
}

QByteArray BinaryList::counted(int kind, qint64 count)
{
    const bool isShort = count < 15;
    const QByteArray marker(
        1, static_cast<char>(kind << 4 | (isShort ? static_cast<int>(count) : 15)));
    return isShort ? marker : marker + "\x12" + number(static_cast<quint64>(count), 4);
}

QByteArray binaryList(const QVariant &value)
{
    BinaryList list;
    const int root = list.addValue(value);
    return list.bytes(static_cast<quint64>(root));
}

} // namespace test
