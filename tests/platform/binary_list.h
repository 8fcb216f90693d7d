#pragma once

#include <QByteArray>
#include <QList>
#include <QVariant>

namespace test {

/// Puts a binary property list together object by object, sound or not.
class BinaryList
{
public:
    /// Widths in bytes of the offsets in the table and of the indices in containers.
    explicit BinaryList(int offsetSize = 4, int indexSize = 3)
        : offsetSize_(offsetSize), indexSize_(indexSize)
    {
    }

    /// Appends an object as it stands and returns its index.
    int add(const QByteArray &object);
    /// Appends a table entry only, which may point anywhere.
    int addOffset(qint64 offset);

    int addText(const QByteArray &ascii);
    int addArray(const QList<int> &indices);
    int addDictionary(const QList<int> &keys, const QList<int> &values);
    /// Appends a value with all that it holds.
    int addValue(const QVariant &value);

    [[nodiscard]] qint64 nextOffset() const { return objects_.size(); }
    /// The list with that object as its root.
    [[nodiscard]] QByteArray bytes(quint64 root) const;
    /// The same with other numbers in the trailer.
    [[nodiscard]] QByteArray bytes(quint64 root, quint64 count, quint64 tableStart) const;

    [[nodiscard]] static QByteArray number(quint64 value, int size);
    /// Marker of that kind (upper half) with a count.
    [[nodiscard]] static QByteArray counted(int kind, qint64 count);

private:
    QByteArray objects_ = "bplist00";
    QList<qint64> offsets_;
    int offsetSize_;
    int indexSize_;
};

/// A whole value in the binary form.
[[nodiscard]] QByteArray binaryList(const QVariant &value);

} // namespace test
