#include "dialog/preview/preview_words.h"

#include <QLocale>

#include <array>

namespace dialog {
namespace {

constexpr const char *kContext = "dialog::PreviewWords";

struct ProblemWords
{
    DocumentProblem problem;
    const char *text;
};

// clang-format off
constexpr std::array kProblems{
    ProblemWords{DocumentProblem::None, ""},
    ProblemWords{DocumentProblem::NoDocument,
        QT_TRANSLATE_NOOP("dialog::PreviewWords", "No document. The sheet stays empty.")},
    ProblemWords{DocumentProblem::Unreadable,
        QT_TRANSLATE_NOOP("dialog::PreviewWords", "The document cannot be read. Check that it is still in its place and that you may read it.")},
    ProblemWords{DocumentProblem::Damaged,
        QT_TRANSLATE_NOOP("dialog::PreviewWords", "The document is damaged. Open it in the program that made it and save it again.")},
    ProblemWords{DocumentProblem::Encrypted,
        QT_TRANSLATE_NOOP("dialog::PreviewWords", "The document is protected by a password. Save a copy of it without the password and print that.")},
    ProblemWords{DocumentProblem::NoPages,
        QT_TRANSLATE_NOOP("dialog::PreviewWords", "The document has no pages. Choose another one.")},
    ProblemWords{DocumentProblem::TooLarge,
        QT_TRANSLATE_NOOP("dialog::PreviewWords", "The picture is too large to be shown. Scale it down to see it here; it can be printed as it is.")},
    ProblemWords{DocumentProblem::UnknownKind,
        QT_TRANSLATE_NOOP("dialog::PreviewWords", "There is no preview for this kind of document. It can be printed all the same.")},
    ProblemWords{DocumentProblem::NoReader,
        QT_TRANSLATE_NOOP("dialog::PreviewWords", "There is no preview of PDF documents: the part of this program that reads them is not installed. Install the program again to see it; the document can be printed as it is.")},
};
// clang-format on

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < kProblems.size(); ++i) {
        if (static_cast<std::size_t>(kProblems[i].problem) != i)
            return false;
    }
    return kProblems.size() == static_cast<std::size_t>(DocumentProblem::Count);
}
static_assert(isInOrder(), "one line per problem, in the order of the enumeration");

bool isWide(SheetOrientation orientation)
{
    return orientation == SheetOrientation::Landscape ||
           orientation == SheetOrientation::ReverseLandscape;
}

} // namespace

QString PreviewWords::problem(DocumentProblem problem)
{
    const char *text = kProblems[static_cast<std::size_t>(problem)].text;
    return *text ? QCoreApplication::translate(kContext, text) : QString();
}

QString PreviewWords::damagedPages(const std::vector<int> &pages)
{
    if (pages.empty())
        return {};
    return tr("Page %1 is damaged and stays empty.").arg(pages.front() + 1);
}

QString PreviewWords::pages(const std::vector<int> &pages)
{
    if (pages.empty())
        return tr("No pages");
    const QString first = QString::number(pages.front() + 1);
    const QString last = QString::number(pages.back() + 1);
    if (pages.size() == 1)
        return tr("Page %1").arg(first);
    return pages.size() == 2 ? tr("Pages %1 and %2").arg(first, last)
                             : tr("Pages %1 to %2").arg(first, last);
}

QString PreviewWords::sheet(const SheetLook &look, int index, int count)
{
    if (look.sides == Sides::One)
        return tr("Sheet %1 of %2").arg(QString::number(index + 1), QString::number(count));
    const QString number = QString::number(index / 2 + 1);
    const QString sheets = QString::number((count + 1) / 2);
    return index % 2 == 0 ? tr("Sheet %1 of %2, front").arg(number, sheets)
                          : tr("Sheet %1 of %2, back").arg(number, sheets);
}

QString PreviewWords::caption(const SheetLook &look, const std::vector<int> &pages, int index)
{
    QStringList words{PreviewWords::pages(pages)};
    if (!look.paperText.isEmpty())
        words.append(look.paperText);
    if (look.sides == Sides::Two)
        words.append(index % 2 == 0 ? tr("front") : tr("back"));
    if (look.copies > 1)
        words.append(tr("%n copies", nullptr, look.copies));
    if (look.copies > 1 && look.isCollated)
        words.append(tr("collated"));
    return words.join(QStringLiteral(" · "));
}

QString PreviewWords::description(const SheetLook &look, const std::vector<int> &pages, int index,
                                  int count)
{
    QStringList words{sheet(look, index, count), PreviewWords::pages(pages)};
    if (!look.paperText.isEmpty())
        words.append(look.paperText);
    words.append(isWide(look.orientation) ? tr("landscape") : tr("portrait"));
    if (look.isGrayscale)
        words.append(tr("grayscale"));
    if (look.isMirrored)
        words.append(tr("flipped"));
    if (look.copies > 1)
        words.append(tr("%n copies", nullptr, look.copies));
    return words.join(QStringLiteral(", "));
}

} // namespace dialog
