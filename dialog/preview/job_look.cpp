#include "dialog/preview/job_look.h"

#include "dialog/printers/ppd_document.h"
#include "dialog/printers/standard_options.h"
#include "dialog/settings/page_ranges.h"
#include "platform/values.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace dialog {
namespace {

/// A word of an option and what it means. Words are compared without case.
template <class Value>
struct Word
{
    const char *word;
    Value value;
};

// clang-format off
constexpr Word<SheetOrientation> kOrientations[] = {
    {"3",         SheetOrientation::Portrait},
    {"4",         SheetOrientation::Landscape},
    {"5",         SheetOrientation::ReverseLandscape},
    {"6",         SheetOrientation::ReversePortrait},
    {"Portrait",  SheetOrientation::Portrait},
    {"Landscape", SheetOrientation::Landscape},
    {"ReverseLandscape", SheetOrientation::ReverseLandscape},
    {"ReversePortrait",  SheetOrientation::ReversePortrait},
};

constexpr Word<PageOrder> kPageOrders[] = {
    {"lrtb", PageOrder::LrTb}, {"lrbt", PageOrder::LrBt},
    {"rltb", PageOrder::RlTb}, {"rlbt", PageOrder::RlBt},
    {"tblr", PageOrder::TbLr}, {"tbrl", PageOrder::TbRl},
    {"btlr", PageOrder::BtLr}, {"btrl", PageOrder::BtRl},
};

constexpr Word<PageBorder> kBorders[] = {
    {"none",         PageBorder::None},
    {"single",       PageBorder::Single},
    {"single-thick", PageBorder::SingleThick},
    {"double",       PageBorder::Double},
    {"double-thick", PageBorder::DoubleThick},
};

constexpr Word<PageScaling> kScalings[] = {
    {"auto",     PageScaling::Auto},
    {"auto-fit", PageScaling::AutoFit},
    {"fit",      PageScaling::Fit},
    {"fill",     PageScaling::Fill},
    {"none",     PageScaling::None},
};

constexpr Word<SideSelection::Set> kSets[] = {
    {"all",  SideSelection::Set::All},
    {"odd",  SideSelection::Set::Odd},
    {"even", SideSelection::Set::Even},
};

/// Options by which printers print without colours, and the choices that do.
struct GrayWords
{
    const char *option;
    const char *choices; ///< separated by blanks
};

constexpr const char *kGray =
    "Gray Grayscale KGray DeviceGray FastGray Monochrome Mono Black BlackWhite BlackAndWhite BW";

constexpr GrayWords kGrayWords[] = {
    {"print-color-mode", "monochrome auto-monochrome process-monochrome bi-level process-bi-level"},
    {"ColorModel",       kGray},
    {"ColorMode",        kGray},
    {"ColorOutput",      kGray},
    {"OutputMode",       kGray},
    {"InkToUse",         "BlackOnly"},
};

constexpr const char *kDuplexOptions = "sides Duplex JCLDuplex EFDuplex EFDuplexing ARDuplex KD03Duplex";
constexpr const char *kOneSided = "one-sided None Simplex Off False";
constexpr const char *kFlippingOptions = "mirror MirrorPrint";
constexpr const char *kOn = "true on yes";
// clang-format on

bool isWordOf(const QString &word, const char *list)
{
    return QString::fromLatin1(list).split(u' ').contains(word, Qt::CaseInsensitive);
}

/// Null without such an option.
QString valueOf(const JobOptions &options, const char *name)
{
    const auto found = std::find_if(options.begin(), options.end(), [&](const auto &option) {
        return isSameOption(option.first, QLatin1String(name));
    });
    return found == options.end() ? QString() : found->second;
}

template <class Value, std::size_t Count>
Value read(const JobOptions &options, const char *name, const Word<Value> (&words)[Count],
           Value otherwise)
{
    const QString value = valueOf(options, name);
    for (const Word<Value> &word : words) {
        if (value.compare(QLatin1String(word.word), Qt::CaseInsensitive) == 0)
            return word.value;
    }
    return otherwise;
}

/// What the job says of everything, the printer's defaults included.
JobOptions everyOption(const PpdDocument &printer, const ChoiceState &state)
{
    return jobOptions({.defaults = {},
                       .marks = state.marks,
                       .chosen = {},
                       .printSettings = state.settings,
                       .paperName = state.paperName,
                       .counterparts = standardCounterparts(printer)});
}

bool isGrayscale(const PpdDocument &printer, const JobOptions &options)
{
    return printer.isColorless() ||
           std::any_of(std::begin(kGrayWords), std::end(kGrayWords), [&](const GrayWords &row) {
               return isWordOf(valueOf(options, row.option), row.choices);
           });
}

bool hasFlipping(const JobOptions &options)
{
    return std::any_of(options.begin(), options.end(), [](const auto &option) {
        return isWordOf(option.first, kFlippingOptions) && isWordOf(option.second, kOn);
    });
}

Sides sidesOf(const JobOptions &options)
{
    const bool isTwoSided = std::any_of(options.begin(), options.end(), [](const auto &option) {
        return isWordOf(option.first, kDuplexOptions) && !isWordOf(option.second, kOneSided);
    });
    return isTwoSided ? Sides::Two : Sides::One;
}

bool isCollated(const JobOptions &options)
{
    return isWordOf(valueOf(options, "Collate"), kOn) ||
           valueOf(options, "multiple-document-handling") ==
               QLatin1String("separate-documents-collated-copies");
}

/// The paper by its first name: "media" may go on with type and source.
QString paperName(const JobOptions &options)
{
    const QString media = valueOf(options, "media");
    return media.isNull() ? valueOf(options, "PageSize") : media.section(u',', 0, 0);
}

void readPaper(SheetLook &look, const PpdDocument &printer, const JobOptions &options)
{
    const QString name = paperName(options);
    const std::optional<PaperSize> known = printer.paperSize(name);
    look.paper = known ? *known : usualPaper(platform::localeIdentifier());
    if (known)
        look.paperText = printer.choiceText({QStringLiteral("PageSize"), name});
}

SideSelection selectionOf(const JobOptions &options)
{
    SideSelection selection;
    selection.ranges = readPageRanges(valueOf(options, "page-ranges")).ranges;
    selection.set = read(options, "page-set", kSets, SideSelection::Set::All);
    if (isWordOf(valueOf(options, "outputorder"), "reverse"))
        selection.order = SideSelection::Order::Reverse;
    return selection;
}

LandscapeTurn turnOf(const PpdDocument &printer)
{
    const QStringList turns = printer.attributeValues("LandscapeOrientation");
    return turns.contains(QStringLiteral("Minus90")) ? LandscapeTurn::Minus90
                                                     : LandscapeTurn::Plus90;
}

} // namespace

PaperSize usualPaper(const QString &localeIdentifier)
{
    constexpr std::array kLetterTerritories{QLocale::UnitedStates, QLocale::Canada,
                                            QLocale::Mexico,       QLocale::Chile,
                                            QLocale::Colombia,     QLocale::CostaRica,
                                            QLocale::Guatemala,    QLocale::Panama,
                                            QLocale::Philippines,  QLocale::Venezuela};
    constexpr double kUsualMargin = 18;
    const auto territory = QLocale(localeIdentifier).territory();
    const bool isLetter = std::find(kLetterTerritories.begin(), kLetterTerritories.end(),
                                    territory) != kLetterTerritories.end();
    return {isLetter ? QSizeF(612, 792) : QSizeF(595, 842),
            {kUsualMargin, kUsualMargin, kUsualMargin, kUsualMargin}};
}

SheetLook sheetLook(const PpdDocument &printer, const ChoiceState &state)
{
    const JobOptions options = everyOption(printer, state);
    SheetLook look;
    readPaper(look, printer, options);
    look.orientation =
        read(options, valueOf(options, "orientation-requested").isNull() ? "Orientation"
                                                                         : "orientation-requested",
             kOrientations, SheetOrientation::Portrait);
    look.landscapeTurn = turnOf(printer);
    look.pagesPerSheet = valueOf(options, "number-up").toInt();
    look.order = read(options, "number-up-layout", kPageOrders, PageOrder::LrTb);
    look.border = read(options, "page-border", kBorders, PageBorder::None);
    look.scaling = read(options, "print-scaling", kScalings, PageScaling::Unset);
    look.isMirrored = hasFlipping(options);
    look.isGrayscale = isGrayscale(printer, options);
    look.selection = selectionOf(options);
    look.sides = sidesOf(options);
    look.copies = std::max(1, valueOf(options, "copies").toInt());
    look.isCollated = isCollated(options);
    return look;
}

} // namespace dialog
