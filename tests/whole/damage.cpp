#include "tests/whole/damage.h"

#include <algorithm>

namespace test {
namespace {

constexpr const char *kPanelOptions[] = {
    "PrintQuality",
    "MediaType",
    "PaperSource",
    "Sharpen",
    "Mirror",
    "TonerSave",
    "Threshold",
    "HalftoneLevel",
    "ColorPreferences",
    "InkToUse",
    "ColorOutput",
    "ICCTestChartProcess",
    "DupDryTime",
    "ImprovementSettings",
    "ReduceGhosting",
    "PrintDensity",
    "ImprovePrintQuality",
};

using Change = std::function<void(PpdOption &)>;

Damage to(const char *keyword, const char *what, const Change &change)
{
    return {QByteArray(keyword) + ' ' + what, [keyword, change](PpdText &ppd) {
                if (hasOption(ppd, keyword))
                    change(ppd.option(keyword));
            }};
}

Damage missing(const char *keyword)
{
    return {QByteArray("no ") + keyword, [keyword](PpdText &ppd) { ppd.without(keyword); }};
}

Damage missingAttribute(const char *name)
{
    return {QByteArray("no ") + name, [name](PpdText &ppd) { ppd.withoutAttribute(name); }};
}

/// In every text of every option. Bytes that a PPD cannot hold as they are stand as hexadecimal
/// digits in angle brackets.
Damage inTexts(const char *name, const QByteArray &addition)
{
    return {name, [addition](PpdText &ppd) {
                const auto options = ppd.options();
                for (const PpdOption &option : options) {
                    PpdOption &changed = ppd.option(option.keyword);
                    changed.text += addition;
                    for (PpdChoice &choice : changed.choices)
                        choice.text += addition;
                }
            }};
}

void makeTextsEqual(PpdOption &option)
{
    for (PpdChoice &choice : option.choices)
        choice.text = "Same";
}

void makeChoicesMany(PpdOption &option)
{
    for (int i = 0; i < 5000; ++i) {
        const QByteArray number = QByteArray::number(i);
        option.choices.push_back({"C" + number, "Choice " + number});
    }
}

void turnAround(PpdOption &option)
{
    std::reverse(option.choices.begin(), option.choices.end());
}

Change keepingFirst(std::size_t count)
{
    return [count](PpdOption &option) { option.choices.resize(count); };
}

void renameOnAndOff(PpdOption &option)
{
    option.choices = {{"Disabled", "Off"}, {"Enabled", "On"}};
    option.defaultChoice = "Disabled";
}

void makeCheckBox(PpdOption &option)
{
    option = {option.keyword,
              option.text,
              PpdUi::Boolean,
              {{"False", "Normal drying"}, {"True", "Longer drying"}},
              "False"};
}

void relabelAll(PpdOption &option)
{
    for (PpdChoice &choice : option.choices)
        choice.text.prepend("My ");
}

std::vector<Damage> makeDamages()
{
    std::vector<Damage> all;
    for (const char *keyword : kPanelOptions)
        all.push_back(missing(keyword));
    for (const char *name : {"NickName", "APPrinterIconPath", "KorDriverPath"})
        all.push_back(missingAttribute(name));
    all.push_back({"no encoding line", [](PpdText &ppd) { ppd.withLanguageEncoding({}); }});
    all.push_back(to("InkToUse", "turned around", turnAround));
    all.push_back(to("InkToUse", "with three", keepingFirst(3)));
    all.push_back(to("InkToUse", "with one", keepingFirst(1)));
    all.push_back(to("ColorOutput", "turned around", turnAround));
    all.push_back(to("ColorOutput", "with one", keepingFirst(1)));
    all.push_back(to("TonerSave", "with other words", renameOnAndOff));
    all.push_back(to("ICCTestChartProcess", "with other words", renameOnAndOff));
    all.push_back(to("DupDryTime", "as a check box", makeCheckBox));
    all.push_back(to("Mirror", "with other labels", relabelAll));
    all.push_back(to("HalftoneLevel", "with other labels", relabelAll));
    all.push_back(to("MediaType", "with equal texts", makeTextsEqual));
    all.push_back(to("InkToUse", "with equal texts", makeTextsEqual));
    all.push_back(to("PrintQuality", "with 5,000 choices", makeChoicesMany));
    all.push_back(inTexts("ampersands", "&x & y"));
    all.push_back(inTexts("tags", "<3C>b<3E>bold"));
    all.push_back(inTexts("control bytes", "<01>x<1B><7F>"));
    all.push_back(inTexts("broken UTF-8", "\xC3(\xF0\x9F"));
    return all;
}

bool hasChoice(const PpdOption &option, const QByteArray &keyword, const QByteArray &text)
{
    return std::any_of(option.choices.begin(), option.choices.end(), [&](const PpdChoice &choice) {
        return choice.keyword == keyword && choice.text == text;
    });
}

bool areWordsOnAndOff(const PpdOption &option)
{
    return std::all_of(option.choices.begin(), option.choices.end(), [](const PpdChoice &choice) {
        return choice.keyword == "On" || choice.keyword == "Off";
    });
}

bool areInksInOrder(const PpdOption &option)
{
    constexpr const char *kInks[] = {"ColorOnly", "BlackOnly", "ColorBlack", "BlackColor"};
    if (option.choices.size() < 5)
        return false;
    return std::equal(
        std::begin(kInks), std::end(kInks), option.choices.begin() + 1,
        [](const char *ink, const PpdChoice &choice) { return choice.keyword == ink; });
}

bool isFirstColorOrGray(const PpdOption &option)
{
    return option.choices.front().text == "Color" || option.choices.front().text == "Grayscale";
}

/// True when the rules find in that option what they stand on.
bool isAsExpected(const PpdOption &option)
{
    if (option.keyword == "Mirror" || option.keyword == "TonerSave")
        return areWordsOnAndOff(option) && hasChoice(option, "Off", "Off");
    if (option.keyword == "ICCTestChartProcess")
        return areWordsOnAndOff(option);
    if (option.keyword == "HalftoneLevel")
        return hasChoice(option, "Dither", "Dither");
    if (option.keyword == "InkToUse")
        return areInksInOrder(option);
    if (option.keyword == "ColorOutput")
        return isFirstColorOrGray(option);
    return true;
}

} // namespace

PpdText everything()
{
    PpdText ppd = p3();
    const PpdText toner = p2();
    for (const PpdOption &option : toner.options()) {
        if (option.keyword.startsWith("Impr") || option.keyword == "ReduceGhosting" ||
            option.keyword == "PrintDensity")
            ppd.add(option);
    }
    return ppd;
}

const std::vector<Damage> &damages()
{
    static const std::vector<Damage> all = makeDamages();
    return all;
}

DamagedPrinter damaged(const std::vector<std::size_t> &indices)
{
    DamagedPrinter printer{{}, everything()};
    for (const std::size_t index : indices) {
        printer.name += (printer.name.isEmpty() ? "" : ", ") + damages().at(index).name;
        damages().at(index).inflict(printer.ppd);
    }
    return printer;
}

DamagedPrinter withoutEverything()
{
    DamagedPrinter printer{"nothing at all", everything()};
    for (const char *keyword : kPanelOptions)
        printer.ppd.without(keyword);
    return printer;
}

bool hasOption(const PpdText &ppd, const QByteArray &keyword)
{
    return std::any_of(ppd.options().begin(), ppd.options().end(),
                       [&](const PpdOption &option) { return option.keyword == keyword; });
}

int errorRecordsDue(const PpdText &ppd)
{
    int due = 0;
    for (const char *required : {"PrintQuality", "MediaType", "ColorOutput"})
        due += hasOption(ppd, required) ? 0 : 1;
    return due + int(std::count_if(ppd.options().begin(), ppd.options().end(),
                                   [](const PpdOption &option) { return !isAsExpected(option); }));
}

} // namespace test
