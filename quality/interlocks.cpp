#include "quality/interlocks.h"

#include "platform/strings.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <iterator>

namespace quality {
namespace {

enum class Mode { Color, Black };

/// Which printers and which colour-output titles a row of the table is for.
enum class When {
    Always,
    Has, ///< the printer has the option of the row's first column
    HasNot,
    HasNoInkButHas, ///< no ink option, but the option of the first column
    TitledColor,    ///< has the option, and colour output shows "Color"
    NotTitledColor,
    TitledGray, ///< has the option, and colour output shows the host's "Grayscale"
    NotTitledGray,
};

struct InterlockRow
{
    Occasion occasion;
    Mode mode;
    Setting option;
    When when;
    Interlock interlock;
};

// Read in order. To see what happens to one control, look down the last column but one.
// clang-format off
using enum Setting;
using enum Effect;
constexpr Occasion Act = Occasion::Action;
constexpr Occasion Sync = Occasion::Synchronisation;

constexpr InterlockRow kInterlocks[] = {
    {Act,  Mode::Color, InkToUse,            When::Has,            {InkToUse,            RefillForColor}},
    {Act,  Mode::Color, InkToUse,            When::Has,            {InkToUse,            SelectFirst}},
    {Act,  Mode::Color, ColorPreferences,    When::TitledColor,    {ColorPreferences,    Enable}},
    {Act,  Mode::Color, ColorPreferences,    When::NotTitledColor, {ColorPreferences,    Disable}},
    {Act,  Mode::Color, ICCTestChartProcess, When::TitledGray,     {ICCTestChartProcess, Disable}},
    {Act,  Mode::Color, ICCTestChartProcess, When::TitledGray,     {ICCTestChartProcess, Untick}},
    {Act,  Mode::Color, ICCTestChartProcess, When::NotTitledGray,  {ICCTestChartProcess, Enable}},
    {Act,  Mode::Color, ICCTestChartProcess, When::Has,            {ICCTestChartProcess, StoreFromState}},
    {Act,  Mode::Color, TonerSave,           When::Has,            {TonerSave,           Enable}},
    {Act,  Mode::Color, TonerSave,           When::Has,            {TonerSave,           StoreFromState}},
    {Act,  Mode::Color, Threshold,           When::Has,            {Threshold,           Disable}},
    {Act,  Mode::Color, Threshold,           When::Has,            {Threshold,           ShowNeutral}},
    {Act,  Mode::Color, HalftoneLevel,       When::Has,            {HalftoneLevel,       Enable}},
    {Act,  Mode::Color, HalftoneLevel,       When::Has,            {HalftoneLevel,       SelectFirst}},

    {Act,  Mode::Black, InkToUse,            When::Has,            {InkToUse,            RefillForBlack}},
    {Act,  Mode::Black, InkToUse,            When::Has,            {InkToUse,            SelectFirst}},
    {Act,  Mode::Black, ColorPreferences,    When::Has,            {ColorPreferences,    Disable}},
    {Act,  Mode::Black, ColorPreferences,    When::Has,            {ColorPreferences,    SelectFirst}},
    {Act,  Mode::Black, ICCTestChartProcess, When::Has,            {ICCTestChartProcess, Disable}},
    {Act,  Mode::Black, ICCTestChartProcess, When::Has,            {ICCTestChartProcess, Untick}},
    {Act,  Mode::Black, ICCTestChartProcess, When::Has,            {ICCTestChartProcess, StoreOff}},
    {Act,  Mode::Black, TonerSave,           When::Has,            {TonerSave,           Enable}},
    {Act,  Mode::Black, Threshold,           When::Has,            {Threshold,           Enable}},
    {Act,  Mode::Black, Threshold,           When::HasNot,         {Threshold,           ReportMissing}},
    {Act,  Mode::Black, HalftoneLevel,       When::Has,            {HalftoneLevel,       Disable}},
    {Act,  Mode::Black, HalftoneLevel,       When::Has,            {HalftoneLevel,       SelectFirst}},

    {Sync, Mode::Black, InkToUse,            When::Has,            {InkToUse,            RefillForBlack}},
    {Sync, Mode::Black, InkToUse,            When::Has,            {TonerSave,           Disable}},
    {Sync, Mode::Black, TonerSave,           When::HasNoInkButHas, {InkToUse,            Disable}},
    {Sync, Mode::Black, TonerSave,           When::HasNoInkButHas, {TonerSave,           Enable}},
    {Sync, Mode::Black, TonerSave,           When::HasNoInkButHas, {TonerSave,           ShowModel}},
    // Colour preferences follow the threshold option here, not their own.
    {Sync, Mode::Black, Threshold,           When::Has,            {ColorPreferences,    SelectFirst}},
    {Sync, Mode::Black, Threshold,           When::Has,            {ColorPreferences,    Disable}},
    {Sync, Mode::Black, Threshold,           When::Has,            {Threshold,           Enable}},
    {Sync, Mode::Black, ICCTestChartProcess, When::Has,            {ICCTestChartProcess, StoreOff}},
    {Sync, Mode::Black, ICCTestChartProcess, When::Has,            {ICCTestChartProcess, Untick}},
    {Sync, Mode::Black, ICCTestChartProcess, When::Has,            {ICCTestChartProcess, Disable}},
    {Sync, Mode::Black, HalftoneLevel,       When::Has,            {HalftoneLevel,       Disable}},

    {Sync, Mode::Color, InkToUse,            When::Has,            {InkToUse,            RefillForColor}},
    {Sync, Mode::Color, InkToUse,            When::Has,            {TonerSave,           Disable}},
    {Sync, Mode::Color, InkToUse,            When::Has,            {TonerSave,           Untick}},
    {Sync, Mode::Color, TonerSave,           When::HasNoInkButHas, {InkToUse,            Disable}},
    {Sync, Mode::Color, TonerSave,           When::HasNoInkButHas, {TonerSave,           Enable}},
    {Sync, Mode::Color, TonerSave,           When::HasNoInkButHas, {TonerSave,           ShowModel}},
    // Stored even where the printer has no toner save.
    {Sync, Mode::Color, TonerSave,           When::Always,         {TonerSave,           StoreFromState}},
    {Sync, Mode::Color, ColorPreferences,    When::TitledColor,    {ColorPreferences,    Enable}},
    {Sync, Mode::Color, ColorPreferences,    When::NotTitledColor, {ColorPreferences,    Disable}},
    // The threshold follows colour preferences here, and halftone the test chart.
    {Sync, Mode::Color, ColorPreferences,    When::Has,            {Threshold,           Disable}},
    {Sync, Mode::Color, ICCTestChartProcess, When::TitledGray,     {ICCTestChartProcess, Disable}},
    {Sync, Mode::Color, ICCTestChartProcess, When::TitledGray,     {ICCTestChartProcess, Untick}},
    {Sync, Mode::Color, ICCTestChartProcess, When::TitledGray,     {HalftoneLevel,       Enable}},
    {Sync, Mode::Color, ICCTestChartProcess, When::NotTitledGray,  {ICCTestChartProcess, Enable}},
    {Sync, Mode::Color, ICCTestChartProcess, When::NotTitledGray,  {HalftoneLevel,       Disable}},
    {Sync, Mode::Color, ICCTestChartProcess, When::Has,            {ICCTestChartProcess, StoreFromState}},
};
// clang-format on

const QString kIronOn = QStringLiteral("IronOn");

bool holds(const InterlockRow &row, const ColorOutputSituation &situation)
{
    const bool has = situation.options.contains(row.option);
    const bool isColor = platform::isEqual(situation.title, QStringLiteral("Color"));
    const bool isGray = platform::isEqual(situation.title, situation.grayscale);
    switch (row.when) {
    case When::Always:
        return true;
    case When::Has:
        return has;
    case When::HasNot:
        return !has;
    case When::HasNoInkButHas:
        return has && !situation.options.contains(InkToUse);
    case When::TitledColor:
        return has && isColor;
    case When::NotTitledColor:
        return has && !isColor;
    case When::TitledGray:
        return has && isGray;
    case When::NotTitledGray:
        return has && !isGray;
    }
    return false;
}

std::optional<Mode> modeOf(int index)
{
    switch (index) {
    case 0:
        return Mode::Color;
    case 1:
        return Mode::Black;
    default:
        return std::nullopt;
    }
}

QString keywordAt(const ChoiceList &choices, qsizetype index)
{
    return index < choices.keywords.size() ? choices.keywords.at(index) : QString();
}

} // namespace

std::vector<Interlock> colorOutputPlan(const ColorOutputSituation &situation)
{
    const std::optional<Mode> mode = modeOf(situation.index);
    std::vector<Interlock> plan;
    for (const InterlockRow &row : kInterlocks)
        if (row.occasion == situation.occasion && row.mode == mode && holds(row, situation))
            plan.push_back(row.interlock);
    return plan;
}

int mappedInkIndex(int popUpIndex, const QString &colorOutputTicket)
{
    const bool isBlack =
        colorOutputTicket == QLatin1String("Black") || colorOutputTicket == QLatin1String("Mono");
    if (colorOutputTicket == QLatin1String("Color"))
        return popUpIndex == 2 ? 3 : popUpIndex;
    if (isBlack && (popUpIndex == 1 || popUpIndex == 2))
        return 2 * popUpIndex;
    return popUpIndex;
}

MirrorPlace mirrorPlace(int osVersion)
{
    return osVersion > 0x105F ? MirrorPlace::PrintSettings : MirrorPlace::Model;
}

MirrorChange mirrorForNewPaperType(const MirrorSituation &situation)
{
    if (!platform::isEqual(situation.paperTypeTicket, kIronOn))
        return situation.isMirrorSetByIronOn ? MirrorChange::Off : MirrorChange::None;
    const bool isOff = situation.place == MirrorPlace::PrintSettings
                           ? !situation.isMirrorInPrintSettings
                           : platform::isEqual(situation.mirror, QStringLiteral("Off"));
    return isOff ? MirrorChange::On : MirrorChange::None;
}

MirrorChange mirrorToKeep(const MirrorSituation &situation)
{
    if (platform::isEqual(situation.paperTypeTicket, kIronOn) || situation.isMirrorManuallySet ||
        situation.isMirrorSetDuringPreset)
        return MirrorChange::On;
    return situation.place == MirrorPlace::PrintSettings ? MirrorChange::None : MirrorChange::Off;
}

int mirrorStateAfterRefusal(const QString &restoredTicket)
{
    return restoredTicket == QLatin1String("True") ? 1 : 0;
}

std::optional<int> mirrorStateToShow(int state, const QString &ticket)
{
    const QString word = state == 1 ? QStringLiteral("On") : QStringLiteral("Off");
    if (platform::isEqual(ticket, word))
        return std::nullopt;
    return ticket == QLatin1String("On") ? 1 : 0;
}

std::vector<RowPlan> sharedPlacesPlan(const SettingSet &options)
{
    static constexpr std::pair<Setting, Setting> kSharedPlaces[] = {
        {Threshold, ColorPreferences},
        {HalftoneLevel, ICCTestChartProcess},
        {TonerSave, InkToUse},
    };
    std::vector<RowPlan> plan;
    for (const auto &[first, second] : kSharedPlaces) {
        const bool hasFirst = options.contains(first);
        const bool showsSecond = !hasFirst && options.contains(second);
        plan.push_back({first, hasFirst ? RowFate::Titled : RowFate::Hidden});
        plan.push_back({second, showsSecond ? RowFate::Titled : RowFate::Hidden});
    }
    return plan;
}

std::vector<RowPlan> requiredRowsPlan(const SettingSet &options)
{
    std::vector<RowPlan> plan;
    for (const Setting setting : {PrintQuality, MediaType, ColorOutput})
        plan.push_back({setting, options.contains(setting) ? RowFate::Titled : RowFate::Hidden});
    return plan;
}

std::optional<UnusualChoice> unusualInk(const ChoiceList &choices)
{
    static const QStringList kExpected{QStringLiteral("ColorOnly"), QStringLiteral("BlackOnly"),
                                       QStringLiteral("ColorBlack"), QStringLiteral("BlackColor")};
    for (qsizetype i = 0; i < kExpected.size(); ++i) {
        const QString found = keywordAt(choices, i + 1);
        if (!platform::isEqual(found, kExpected.at(i)))
            return UnusualChoice{QStringLiteral("InkToUse"), found};
    }
    return std::nullopt;
}

std::optional<UnusualChoice> unusualSwitch(const QString &option, const ChoiceList &choices)
{
    for (const QString &keyword : choices.keywords)
        if (keyword != QLatin1String("On") && keyword != QLatin1String("Off"))
            return UnusualChoice{option, keyword};
    return std::nullopt;
}

std::optional<UnusualChoice> unusualLabel(const QString &option, const QString &keyword,
                                          const QString &label, const ChoiceList &choices)
{
    const qsizetype index = choices.keywords.indexOf(keyword);
    if (index < 0)
        return UnusualChoice{option, QString()};
    if (platform::isEqual(choices.texts.at(index), label))
        return std::nullopt;
    return UnusualChoice{option, keyword};
}

std::optional<UnusualChoice> unusualColorOutput(const ChoiceList &choices, const QString &grayscale)
{
    const QString label = choices.texts.value(0);
    if (label == QLatin1String("Color") || platform::isEqual(label, grayscale))
        return std::nullopt;
    return UnusualChoice{QStringLiteral("ColorOutput"), keywordAt(choices, 0)};
}

} // namespace quality
