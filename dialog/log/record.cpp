#include "dialog/log/record.h"

#include <cstring>
#include <optional>

namespace dialog::debuglog {
namespace {

constexpr qsizetype kFewestProcessDigits = 6;
constexpr qsizetype kMostDigits = 10;
constexpr qsizetype kLongestOperation = 512;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// What is left of a line while its parts are read one by one.
class Scanner
{
public:
    explicit Scanner(QByteArrayView rest) : rest_(rest) {}

    [[nodiscard]] QByteArrayView rest() const { return rest_; }
    [[nodiscard]] bool skip(QByteArrayView text)
    {
        if (!rest_.startsWith(text))
            return false;
        rest_ = rest_.sliced(text.size());
        return true;
    }
    [[nodiscard]] std::optional<char> character()
    {
        if (rest_.isEmpty())
            return std::nullopt;
        const char c = rest_.front();
        rest_ = rest_.sliced(1);
        return c;
    }
    [[nodiscard]] std::optional<qint64> number(qsizetype fewest, qsizetype most)
    {
        qint64 value = 0;
        qsizetype count = 0;
        while (count < rest_.size() && count <= most && isDigit(rest_[count]))
            value = 10 * value + (rest_[count++] - '0');
        if (count < fewest || count > most)
            return std::nullopt;
        rest_ = rest_.sliced(count);
        return value;
    }
    [[nodiscard]] std::optional<QByteArrayView> upTo(QByteArrayView mark)
    {
        const qsizetype end = rest_.indexOf(mark);
        if (end < 0)
            return std::nullopt;
        const QByteArrayView part = rest_.first(end);
        rest_ = rest_.sliced(end + mark.size());
        return part;
    }

private:
    QByteArrayView rest_;
};

/// "hh:mm:ss.mmm"
std::optional<int> readTime(Scanner &scanner)
{
    const auto hours = scanner.number(2, 2);
    const bool hasMinutes = scanner.skip(":");
    const auto minutes = scanner.number(2, 2);
    const bool hasSeconds = scanner.skip(":");
    const auto seconds = scanner.number(2, 2);
    const bool hasThousandths = scanner.skip(".");
    const auto thousandths = scanner.number(3, 3);
    if (!hours || !minutes || !seconds || !thousandths)
        return std::nullopt;
    if (!hasMinutes || !hasSeconds || !hasThousandths)
        return std::nullopt;
    constexpr int kLeapSecond = 60;
    if (*hours > 23 || *minutes > 59 || *seconds > kLeapSecond)
        return std::nullopt;
    return int(((*hours * 60 + *minutes) * 60 + *seconds) * 1000 + *thousandths);
}

std::optional<int> readSourceLine(Scanner &scanner)
{
    const bool isNegative = scanner.skip("-");
    const auto number = scanner.number(1, kMostDigits - 1);
    if (!number)
        return std::nullopt;
    return int(isNegative ? -*number : *number);
}

bool readLetters(Scanner &scanner, Record &record)
{
    const auto module = scanner.character();
    const auto kind = scanner.character();
    if (!module || !kind || *kind == '\0' || !std::strchr(kKinds, *kind))
        return false;
    record.module = *module;
    record.kind = *kind;
    return true;
}

/// The record that begins with this line; nothing when none does.
std::optional<Record> parseFirstLine(QByteArrayView line)
{
    Record record;
    Scanner scanner(line);
    if (!readLetters(scanner, record))
        return std::nullopt;
    const auto process = scanner.number(kFewestProcessDigits, kMostDigits);
    if (!process || !scanner.skip("\t["))
        return std::nullopt;
    const auto time = readTime(scanner);
    if (!time || !scanner.skip("]\t"))
        return std::nullopt;
    const auto operation = scanner.upTo("\tL");
    if (!operation || operation->size() > kLongestOperation)
        return std::nullopt;
    const auto sourceLine = readSourceLine(scanner);
    if (!sourceLine || !scanner.skip("\t"))
        return std::nullopt;
    record.process = *process;
    record.milliseconds = *time;
    record.operation = operation->toByteArray();
    record.sourceLine = *sourceLine;
    record.message = scanner.rest().toByteArray();
    return record;
}

/// Whether a time stamp between tabs stands in the line: then it is the rest of a record.
bool isTornRecord(QByteArrayView line)
{
    Scanner scanner(line);
    while (scanner.upTo("\t[")) {
        Scanner stamp = scanner;
        if (readTime(stamp) && stamp.skip("]"))
            return true;
    }
    return false;
}

/// Braces end with their line, and so do the log's own notes.
bool mayContinue(const Record &record)
{
    return std::strchr("IED", record.kind) && !record.isBegin() && !record.isEnd();
}

QByteArrayView withoutLeadingNuls(QByteArrayView line)
{
    while (line.startsWith('\0'))
        line = line.sliced(1);
    return line;
}

void keepWithinLimit(Record &record)
{
    if (record.message.size() <= RecordReader::kLongestMessage)
        return;
    record.message.truncate(RecordReader::kLongestMessage);
    record.isCut = true;
}

} // namespace

void Damage::add(qint64 fileLine)
{
    ++lines;
    if (firstPlaces.size() < kMostPlaces)
        firstPlaces.push_back(fileLine);
}

void RecordReader::takeLine(QByteArrayView line, LineEnd end)
{
    ++fileLine_;
    // A computer that went down leaves a run of NULs, and the next record right behind it.
    const QByteArrayView text = withoutLeadingNuls(line);
    auto record = parseFirstLine(text);
    const bool isDamaged = line.contains('\0') || end == LineEnd::Cut;
    const bool fits =
        record || (hasOpen_ && mayContinue(open_) && !line.contains('\0') && !isTornRecord(text));
    if (isDamaged || !fits)
        damage_.add(fileLine_);
    if (!fits)
        return;
    if (record)
        begin(std::move(*record));
    else
        continueMessage(text);
    open_.isCut = open_.isCut || end != LineEnd::Whole;
}

void RecordReader::begin(Record &&record)
{
    finish();
    open_ = std::move(record);
    open_.fileLine = fileLine_;
    hasOpen_ = true;
    keepWithinLimit(open_);
}

void RecordReader::continueMessage(QByteArrayView line)
{
    if (open_.isCut)
        return;
    open_.message += '\n';
    open_.message += line;
    keepWithinLimit(open_);
}

void RecordReader::finish()
{
    if (hasOpen_)
        sink_(std::move(open_));
    hasOpen_ = false;
    open_ = {};
}

} // namespace dialog::debuglog
