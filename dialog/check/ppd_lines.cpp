#include "dialog/check/ppd_lines.h"

#include <QByteArrayView>

#include <algorithm>
#include <optional>

namespace dialog::check {
namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

QByteArrayView trimmed(QByteArrayView view)
{
    while (!view.isEmpty() && isBlank(view.front()))
        view = view.sliced(1);
    while (!view.isEmpty() && isBlank(view.back()))
        view.chop(1);
    return view;
}

/// "Gr<FC>n" as bytes; what is no even number of hex digits stands as it is.
QByteArray withHexPieces(QByteArrayView text)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype end = text[i] == '<' ? text.indexOf('>', i) : -1;
        const QByteArray digits =
            end < 0 ? QByteArray() : text.sliced(i + 1, end - i - 1).toByteArray().simplified();
        const QByteArray piece = QByteArray::fromHex(digits);
        if (end >= 0 && !digits.isEmpty() && piece.toHex() == digits.toLower().replace(" ", "")) {
            bytes += piece;
            i = end;
        } else {
            bytes += text[i];
        }
    }
    return bytes;
}

QByteArray withoutQuotes(QByteArrayView value)
{
    QByteArrayView inner = trimmed(value);
    if (inner.startsWith('"'))
        inner = inner.sliced(1);
    if (inner.endsWith('"'))
        inner.chop(1);
    return inner.toByteArray();
}

std::optional<PpdLine> parseLine(QByteArrayView line, int number)
{
    if (!line.startsWith('*') || line.startsWith("*%"))
        return std::nullopt;
    const qsizetype colon = line.indexOf(':');
    const QByteArrayView head = line.sliced(1, (colon < 0 ? line.size() : colon) - 1);
    const auto blank = std::find_if(head.begin(), head.end(), isBlank);
    PpdLine parsed;
    parsed.number = number;
    parsed.keyword = head.first(blank - head.begin()).toByteArray();
    const QByteArrayView rest = trimmed(head.sliced(blank - head.begin()));
    const qsizetype slash = rest.indexOf('/');
    parsed.option = trimmed(slash < 0 ? rest : rest.first(slash)).toByteArray();
    parsed.text = slash < 0 ? QByteArray() : withHexPieces(rest.sliced(slash + 1));
    parsed.value = colon < 0 ? QByteArray() : withoutQuotes(line.sliced(colon + 1));
    return parsed;
}

/// Lines end with LF, CR or both.
std::vector<QByteArrayView> splitLines(QByteArrayView bytes)
{
    std::vector<QByteArrayView> lines;
    while (!bytes.isEmpty()) {
        const auto end =
            std::find_if(bytes.begin(), bytes.end(), [](char c) { return c == '\n' || c == '\r'; });
        const qsizetype length = end - bytes.begin();
        lines.push_back(bytes.first(length));
        const bool isBoth = bytes.sliced(length).startsWith("\r\n");
        bytes = bytes.sliced(std::min(length + (isBoth ? 2 : 1), bytes.size()));
    }
    return lines;
}

bool leavesQuoteOpen(QByteArrayView line)
{
    return line.startsWith('*') && !line.startsWith("*%") &&
           std::count(line.begin(), line.end(), '"') % 2 == 1;
}

} // namespace

PpdLines::PpdLines(const QByteArray &bytes)
{
    bool isInsideQuotes = false;
    int number = 0;
    for (const QByteArrayView line : splitLines(bytes)) {
        ++number;
        if (isInsideQuotes) {
            isInsideQuotes = !line.contains('"');
            continue;
        }
        if (auto parsed = parseLine(line, number))
            lines_.push_back(std::move(*parsed));
        isInsideQuotes = leavesQuoteOpen(line);
    }
}

QByteArray PpdLines::openedOption(const PpdLine &line)
{
    const bool isOpening = line.keyword == "OpenUI" || line.keyword == "JCLOpenUI";
    return isOpening && line.option.startsWith('*') ? line.option.mid(1) : QByteArray();
}

int PpdLines::lineOf(const QString &option, const QString &choice) const
{
    const QByteArray keyword = option.toUtf8();
    const QByteArray wanted = choice.toUtf8();
    const auto find = [this](auto isWanted) {
        const auto found = std::find_if(lines_.begin(), lines_.end(), isWanted);
        return found == lines_.end() ? 0 : found->number;
    };
    int number = 0;
    if (!choice.isNull())
        number = find(
            [&](const PpdLine &line) { return line.keyword == keyword && line.option == wanted; });
    if (number == 0)
        number = find([&](const PpdLine &line) { return openedOption(line) == keyword; });
    if (number == 0)
        number = find([&](const PpdLine &line) { return line.keyword == keyword; });
    return std::max(number, 1);
}

bool PpdLines::hasKeyword(const char *keyword) const
{
    return std::any_of(lines_.begin(), lines_.end(),
                       [&](const PpdLine &line) { return line.keyword == keyword; });
}

QByteArray PpdLines::valueOf(const char *keyword) const
{
    const auto found = std::find_if(lines_.begin(), lines_.end(),
                                    [&](const PpdLine &line) { return line.keyword == keyword; });
    return found == lines_.end() ? QByteArray() : found->value;
}

} // namespace dialog::check
