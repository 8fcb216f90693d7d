#include "dialog/printers/standard_options.h"

#include "dialog/printers/ppd_document.h"

#include <cups/cups.h>

#include <algorithm>
#include <optional>

namespace dialog {
namespace {

/// One value of a standard option as printers say it. Lists are separated by blanks. The first
/// option counts that the printer has, and of its choices the first one that is listed.
struct Saying
{
    const char *standard;
    const char *value;
    const char *options;
    const char *choices; ///< null: said by the standard option, which stands for the printer's
};

constexpr const char *kDuplex = "Duplex JCLDuplex EFDuplex EFDuplexing ARDuplex KD03Duplex";
constexpr const char *kQuality = "cupsPrintQuality OutputMode PrintQuality";
constexpr const char *kGray = "Gray Grayscale KGray DeviceGray Monochrome Mono Black";
constexpr const char *kColor = "RGB CMYK CMY Color DeviceRGB DeviceCMYK RGBW";

// clang-format off
constexpr Saying kSayings[] = {
    {"sides", "one-sided",            kDuplex, "None Simplex Off False"},
    {"sides", "two-sided-long-edge",  kDuplex, "DuplexNoTumble LongEdge Top"},
    {"sides", "two-sided-short-edge", kDuplex, "DuplexTumble ShortEdge Bottom"},

    {"print-color-mode", "monochrome", "ColorModel", kGray},
    {"print-color-mode", "color",      "ColorModel", kColor},

    {"print-quality", "3", kQuality, "Draft Fast"},
    {"print-quality", "4", kQuality, "Normal Standard"},
    {"print-quality", "5", kQuality, "High Best"},

    {"multiple-document-handling", "separate-documents-collated-copies",   "Collate", "True On"},
    {"multiple-document-handling", "separate-documents-uncollated-copies", "Collate", "False Off"},
    {"outputorder", "normal",  "OutputOrder", "Normal"},
    {"outputorder", "reverse", "OutputOrder", "Reverse"},

    {"orientation-requested", "3", "Orientation", "Portrait"},
    {"orientation-requested", "4", "Orientation", "Landscape"},
    {"orientation-requested", "5", "Orientation", "ReverseLandscape"},
    {"orientation-requested", "6", "Orientation", "ReversePortrait"},

    {"mirror", "true", "MirrorPrint", nullptr},
};
// clang-format on

/// Standard options whose values are the printer's choices in another spelling.
struct Spelling
{
    const char *standard;
    const char *options;
};

// clang-format off
constexpr Spelling kSpellings[] = {
    {"output-bin",         "OutputBin"},
    {"printer-resolution", "Resolution SetResolution JCLResolution CNRes_PGP"},
};
// clang-format on

constexpr const char *kMedia = "media";
constexpr const char *kPageSizes[] = {"PageSize", "PageRegion"};
/// What else a list of media can name.
constexpr const char *kMediaParts[] = {"MediaType", "InputSlot", "PaperSource", "HPPaperSource"};

QStringList words(const char *list)
{
    return QString::fromLatin1(list).split(u' ');
}

bool isStandard(const QString &name, const char *standard)
{
    return name.compare(QLatin1String(standard), Qt::CaseInsensitive) == 0;
}

/// "face-down" is "FaceDown", and "600x600dpi" is "600dpi".
QString plainWord(const QString &word)
{
    QString plain;
    for (const QChar c : word.toCaseFolded()) {
        if (c.isLetterOrNumber())
            plain.append(c);
    }
    const qsizetype x = plain.indexOf(u'x');
    const bool isSquare = x > 0 && plain.mid(x + 1) == plain.left(x) + QLatin1String("dpi");
    return isSquare ? plain.mid(x + 1) : plain;
}

/// Null without one.
QString choiceLike(const QString &word, const QStringList &choices)
{
    const QString plain = plainWord(word);
    const auto found = std::find_if(choices.begin(), choices.end(), [&](const QString &choice) {
        return plainWord(choice) == plain;
    });
    return found == choices.end() ? QString() : *found;
}

QString firstChoice(const QStringList &wanted, const QStringList &choices)
{
    const auto found = std::find_if(choices.begin(), choices.end(), [&](const QString &choice) {
        return wanted.contains(choice, Qt::CaseInsensitive);
    });
    return found == choices.end() ? QString() : *found;
}

/// The first of these options that the printer has.
std::optional<QString> counterpart(const char *options, const OptionChoices &printer)
{
    for (const QString &option : words(options)) {
        if (printer.contains(option))
            return option;
    }
    return std::nullopt;
}

/// A null choice leaves the standard option as it is.
Meaning said(const QString &name, const QString &value, const Choice &printers)
{
    if (printers.choice.isNull())
        return {{{name, value}}, {printers.option}};
    return {{{printers.option, printers.choice}}, {printers.option}};
}

QStringList choicesOf(const OptionChoices &printer, const QString &option)
{
    const auto found = printer.find(option);
    return found == printer.end() ? QStringList() : found->second;
}

/// A choice of the page size by its own name, by a standard one, or by a size of one's own.
QString pageSizeChoice(const QString &word, const QStringList &sizes)
{
    const QString exact = firstChoice({word}, sizes);
    if (!exact.isNull())
        return exact;
    if (word.startsWith(QLatin1String("Custom."), Qt::CaseInsensitive))
        return firstChoice({QStringLiteral("Custom")}, sizes).isNull() ? QString() : word;
    const QByteArray name = word.toUtf8();
    for (const pwg_media_t *media :
         {pwgMediaForPWG(name.constData()), pwgMediaForLegacy(name.constData())}) {
        const QString choice =
            media && media->ppd ? firstChoice({QString::fromUtf8(media->ppd)}, sizes) : QString();
        if (!choice.isNull())
            return choice;
    }
    return {};
}

/// What one word of a list of media says; none when the printer does not know it.
std::optional<Choice> mediaChoice(const QString &word, const OptionChoices &printer)
{
    const QString pageSize = QLatin1String(kPageSizes[0]);
    const QString size = pageSizeChoice(word, choicesOf(printer, pageSize));
    if (!size.isNull())
        return Choice{pageSize, size};
    for (const char *part : kMediaParts) {
        const QString option = QLatin1String(part);
        const QString choice = choiceLike(word, choicesOf(printer, option));
        if (!choice.isNull())
            return Choice{option, choice};
    }
    return std::nullopt;
}

/// With a word that the printer does not know, the list stays whole: that word may be the size.
Meaning meaningOfMedia(const QString &name, const QString &value, const OptionChoices &printer)
{
    Meaning meaning;
    bool isKnown = true;
    bool namesSize = false;
    for (const QString &word : value.split(u',')) {
        const std::optional<Choice> choice = mediaChoice(word.trimmed(), printer);
        isKnown = isKnown && choice;
        namesSize = namesSize || !choice || choice->option == QLatin1String(kPageSizes[0]);
        if (!choice)
            continue;
        meaning.said.emplace_back(choice->option, choice->choice);
        meaning.standsFor.append(choice->option);
    }
    for (const char *size : kPageSizes) {
        if (namesSize && printer.contains(QLatin1String(size)))
            meaning.standsFor.append(QLatin1String(size));
    }
    if (!isKnown)
        meaning.said = {{name, value}};
    return meaning;
}

/// The default comes first.
QStringList rankedChoices(const PpdDocument &printer, const QString &option)
{
    QStringList choices = printer.choices(option);
    for (const Choice &preset : printer.defaults()) {
        const qsizetype at = preset.option == option ? choices.indexOf(preset.choice) : -1;
        if (at > 0)
            choices.move(at, 0);
    }
    return choices;
}

void addCounterparts(OptionChoices &all, const PpdDocument &printer, const char *options)
{
    for (const QString &option : words(options)) {
        if (printer.hasOption(option))
            all.emplace(option, rankedChoices(printer, option));
    }
}

/// By the table of values; none when it has no such option for this printer.
std::optional<Meaning> meaningOfValue(const QString &name, const QString &value,
                                      const OptionChoices &printer)
{
    std::optional<Meaning> meaning;
    for (const Saying &saying : kSayings) {
        const auto option = counterpart(saying.options, printer);
        if (!isStandard(name, saying.standard) || !option)
            continue;
        if (!meaning)
            meaning = said(name, value, {*option, QString()});
        if (isStandard(value, saying.value) && saying.choices)
            meaning = said(name, value,
                           {*option, firstChoice(words(saying.choices), printer.at(*option))});
    }
    return meaning;
}

} // namespace

std::map<QString, QVariant> settingsWithoutStandIns(std::map<QString, QVariant> settings,
                                                    const QString &option,
                                                    const OptionChoices &counterparts)
{
    std::erase_if(settings, [&](const auto &setting) {
        const auto &[key, value] = setting;
        return meaningOf(key, value.toString(), counterparts).standsFor.contains(option);
    });
    return settings;
}

bool isSameOption(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

OptionChoices standardCounterparts(const PpdDocument &printer)
{
    OptionChoices all;
    for (const Saying &saying : kSayings)
        addCounterparts(all, printer, saying.options);
    for (const Spelling &spelling : kSpellings)
        addCounterparts(all, printer, spelling.options);
    for (const char *option : kPageSizes)
        addCounterparts(all, printer, option);
    for (const char *option : kMediaParts)
        addCounterparts(all, printer, option);
    return all;
}

QString counterpartOf(const QString &standard, const OptionChoices &counterparts)
{
    if (isStandard(standard, kMedia))
        return counterparts.contains(QLatin1String(kPageSizes[0])) ? QLatin1String(kPageSizes[0])
                                                                   : QString();
    for (const Saying &saying : kSayings) {
        if (isStandard(standard, saying.standard))
            return counterpart(saying.options, counterparts).value_or(QString());
    }
    return {};
}

Meaning meaningOf(const QString &name, const QString &value, const OptionChoices &counterparts)
{
    if (isStandard(name, kMedia))
        return meaningOfMedia(name, value, counterparts);
    if (const auto meaning = meaningOfValue(name, value, counterparts))
        return *meaning;
    for (const Spelling &spelling : kSpellings) {
        const auto option = counterpart(spelling.options, counterparts);
        if (isStandard(name, spelling.standard) && option)
            return said(name, value, {*option, choiceLike(value, counterparts.at(*option))});
    }
    return {{{name, value}}, {}};
}

QString columnsKey()
{
    return QStringLiteral("com.apple.print.PrintSettings.PMLayoutColumns");
}

} // namespace dialog
