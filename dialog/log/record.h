#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <functional>
#include <vector>

/// The debug log as a support person reads it: records, the calls that they make up, and their
/// print. Nothing here holds a whole log in memory.
namespace dialog::debuglog {

inline constexpr int kMillisecondsOfDay = 24 * 60 * 60 * 1000;

/// One record of a log. Bytes stand as they are in the file.
struct Record
{
    char module = 0;
    char kind = 0;        ///< one of kKinds
    qint64 process = 0;   ///< process id
    int milliseconds = 0; ///< since midnight, local time
    QByteArray operation;
    int sourceLine = 0;
    QByteArray message;  ///< may have several lines
    qint64 fileLine = 0; ///< line of the log on which the record begins, from 1
    bool isCut = false;  ///< the message is longer than what is kept of it

    [[nodiscard]] bool isBegin() const { return kind == 'I' && message == "{"; }
    [[nodiscard]] bool isEnd() const { return kind == 'I' && message == "}"; }
};

inline constexpr char kKinds[] = "IEDANZ";

/// Lines of a log that make no sense, and where the first of them are.
struct Damage
{
    static constexpr std::size_t kMostPlaces = 5;

    qint64 lines = 0;
    std::vector<qint64> firstPlaces = {}; ///< file lines, kMostPlaces at most

    void add(qint64 fileLine);
};

/// How a line of the file ends.
enum class LineEnd {
    Whole,  ///< with a line feed
    Cut,    ///< with the file
    TooLong ///< what follows up to the line feed was left out
};

/// Makes records of lines. A message goes on with every line that begins no record; where none can
/// go on (after "{", for example), such a line is damage, and so is one with a NUL in it or with
/// the rest of a torn record.
class RecordReader
{
public:
    using Sink = std::function<void(Record &&)>;

    /// What is kept of a message.
    static constexpr qsizetype kLongestMessage = 64 * 1024;

    explicit RecordReader(Sink sink) : sink_(std::move(sink)) {}

    /// The next line, without its line feed.
    void takeLine(QByteArrayView line, LineEnd end);
    /// Hands over the last record. To be called once, at the end.
    void finish();

    [[nodiscard]] const Damage &damage() const { return damage_; }

private:
    void begin(Record &&record);
    void continueMessage(QByteArrayView line);

    Sink sink_;
    Record open_;
    bool hasOpen_ = false;
    qint64 fileLine_ = 0;
    Damage damage_;
};

} // namespace dialog::debuglog
