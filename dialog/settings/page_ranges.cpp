#include "dialog/settings/page_ranges.h"

#include <QCoreApplication>

#include <algorithm>

namespace dialog {
namespace {

constexpr int kMostPages = 9'999'999;

struct RangeTexts
{
    Q_DECLARE_TR_FUNCTIONS(RangeTexts)
};

bool isComma(QChar c)
{
    return QStringView(u",;，、；،").contains(c);
}

bool isHyphen(QChar c)
{
    return QStringView(u"-‐‑–—−－〜～").contains(c);
}

/// A stretch between two commas, without the blanks around it.
struct Part
{
    QString text;
    qsizetype place;
};

Part trimmed(const QString &text, qsizetype from, qsizetype to)
{
    while (from < to && text[from].isSpace())
        ++from;
    while (to > from && text[to - 1].isSpace())
        --to;
    return {text.mid(from, to - from), from};
}

/// Empty stretches say nothing: a comma that has just been typed waits for its number.
std::vector<Part> partsOf(const QString &text)
{
    std::vector<Part> parts;
    qsizetype from = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size() && !isComma(text[i]))
            continue;
        const Part part = trimmed(text, from, i);
        if (!part.text.isEmpty())
            parts.push_back(part);
        from = i + 1;
    }
    return parts;
}

struct Number
{
    RangeProblem problem = RangeProblem::None;
    int value = 0;
};

Number readNumber(const QString &text)
{
    qint64 value = 0;
    for (const QChar c : text) {
        if (c.digitValue() < 0)
            return {RangeProblem::NoNumber};
        value = std::min<qint64>(value * 10 + c.digitValue(), kMostPages + 1);
    }
    if (value == 0)
        return {RangeProblem::Zero};
    return {value > kMostPages ? RangeProblem::TooLarge : RangeProblem::None,
            static_cast<int>(value)};
}

struct ReadRange
{
    RangeProblem problem = RangeProblem::None;
    PageRange range = {};
};

/// An end that is left out is the document's.
ReadRange readRange(const QString &text)
{
    const auto hyphen = std::find_if(text.begin(), text.end(), isHyphen);
    const bool isRange = hyphen != text.end();
    const qsizetype at = hyphen - text.begin();
    const QString first = text.left(at).trimmed();
    const QString last = isRange ? text.mid(at + 1).trimmed() : first;
    if ((first.isEmpty() && last.isEmpty()) || std::any_of(last.begin(), last.end(), isHyphen))
        return {RangeProblem::Hyphens};
    const Number from = first.isEmpty() ? Number{RangeProblem::None, 1} : readNumber(first);
    const Number to =
        last.isEmpty() ? Number{RangeProblem::None, PageRange::kEnd} : readNumber(last);
    if (from.problem != RangeProblem::None)
        return {from.problem};
    if (to.problem != RangeProblem::None)
        return {to.problem};
    return {from.value > to.value ? RangeProblem::Backwards : RangeProblem::None,
            {from.value, to.value}};
}

PageRanges failed(RangeProblem problem, const Part &part)
{
    return {problem, part.place, part.text};
}

/// In order; ranges that meet or overlap are one.
std::vector<PageRange> merged(std::vector<PageRange> ranges)
{
    std::sort(ranges.begin(), ranges.end(),
              [](const PageRange &a, const PageRange &b) { return a.first < b.first; });
    std::vector<PageRange> result;
    for (const PageRange &range : ranges) {
        if (!result.empty() && range.first - 1 <= result.back().last)
            result.back().last = std::max(result.back().last, range.last);
        else
            result.push_back(range);
    }
    return result;
}

QString rangeText(const PageRange &range)
{
    const QString first = QString::number(range.first);
    if (range.first == range.last)
        return first;
    return first + u'-' + (range.last == PageRange::kEnd ? QString() : QString::number(range.last));
}

QString swapped(const QString &part)
{
    const PageRange range = readRange(part).range;
    return rangeText({range.last, range.first});
}

} // namespace

PageRanges readPageRanges(const QString &text, std::optional<int> pageCount)
{
    PageRanges result;
    for (const Part &part : partsOf(text)) {
        const auto [problem, range] = readRange(part.text);
        if (problem != RangeProblem::None)
            return failed(problem, part);
        if (pageCount && range.first > *pageCount)
            return failed(RangeProblem::BehindEnd, part);
        result.isCut =
            result.isCut || (pageCount && range.last != PageRange::kEnd && range.last > *pageCount);
        result.ranges.push_back(range);
    }
    if (result.ranges.empty())
        return failed(RangeProblem::Nothing, {text, 0});
    result.ranges = merged(std::move(result.ranges));
    return result;
}

QString pageRangesSetting(const std::vector<PageRange> &ranges)
{
    QStringList words;
    for (const PageRange &range : ranges)
        words.append(rangeText(range));
    return words.join(u',');
}

std::vector<PageRange> pagesOnSides(const std::vector<PageRange> &sides, int pagesPerSheet,
                                    std::optional<int> pageCount)
{
    std::vector<PageRange> pages;
    for (const PageRange &range : sides) {
        const int first = (range.first - 1) * pagesPerSheet + 1;
        const int last =
            range.last == PageRange::kEnd ? PageRange::kEnd : range.last * pagesPerSheet;
        const bool isCut = pageCount && last != PageRange::kEnd;
        pages.push_back({first, isCut ? std::min(last, *pageCount) : last});
    }
    return pages;
}

QString rangeProblemText(const PageRanges &ranges, std::optional<int> pageCount)
{
    const QString &part = ranges.part;
    switch (ranges.problem) {
    case RangeProblem::None:
        return {};
    case RangeProblem::Nothing:
        return RangeTexts::tr("Type the pages to print, such as 1-3, 5, 8-.");
    case RangeProblem::NoNumber:
        return RangeTexts::tr("“%1” is no page number. Write pages as 1-3, 5, 8-.").arg(part);
    case RangeProblem::Zero:
        return RangeTexts::tr("“%1”: pages count from 1.").arg(part);
    case RangeProblem::TooLarge:
        return RangeTexts::tr("“%1”: no document has so many pages.").arg(part);
    case RangeProblem::Backwards:
        return RangeTexts::tr("“%1” runs backwards. Write %2.").arg(part, swapped(part));
    case RangeProblem::Hyphens:
        return RangeTexts::tr("“%1” is no range. Write a range as 1-3.").arg(part);
    case RangeProblem::BehindEnd:
        return RangeTexts::tr("“%1”: the document has only %n page(s).", nullptr,
                              pageCount.value_or(0))
            .arg(part);
    }
    return {};
}

} // namespace dialog
