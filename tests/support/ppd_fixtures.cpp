#include "tests/support/ppd_fixtures.h"

#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace test {
namespace {

const char *uiName(PpdUi ui)
{
    switch (ui) {
    case PpdUi::Boolean: return "Boolean";
    case PpdUi::PickMany: return "PickMany";
    case PpdUi::PickOne: break;
    }
    return "PickOne";
}

QByteArray optionBytes(const PpdOption &option)
{
    QByteArray out = "*OpenUI *" + option.keyword + "/" + option.text + ": " + uiName(option.ui) + "\n";
    if (!option.defaultChoice.isEmpty())
        out += "*Default" + option.keyword + ": " + option.defaultChoice + "\n";
    for (const PpdChoice &choice : option.choices)
        out += "*" + option.keyword + " " + choice.keyword + "/" + choice.text + ": \"\"\n";
    return out + "*CloseUI: *" + option.keyword + "\n";
}

PpdOption onOff(const char *keyword, const char *text, PpdUi ui = PpdUi::PickOne)
{
    return {keyword, text, ui, {{"Off", "Off"}, {"On", "On"}}, "Off"};
}

PpdOption inkToUse()
{
    return {"InkToUse",
            "Ink To Use",
            PpdUi::PickOne,
            {{"Automatic", "Automatic"},
             {"ColorOnly", "Color Only"},
             {"BlackOnly", "Black Only"},
             {"ColorBlack", "Color and Black"},
             {"BlackColor", "Black and Color"}},
            "Automatic"};
}

PpdOption tonerSave() { return onOff("TonerSave", "Toner Saver", PpdUi::Boolean); }

PpdOption threshold()
{
    return {"Threshold",
            "Threshold",
            PpdUi::PickOne,
            {{"1", "1"}, {"2", "2"}, {"3", "3"}, {"4", "4"}, {"5", "5"}},
            "3"};
}

PpdOption halftoneLevel()
{
    return {"HalftoneLevel",
            "Halftone",
            PpdUi::PickOne,
            {{"Detail", "Detail"}, {"Dither", "Dither"}, {"Smooth", "Smooth"}},
            "Dither"};
}

} // namespace

PpdText &PpdText::add(PpdOption option)
{
    options_.push_back(std::move(option));
    return *this;
}

PpdText &PpdText::without(const QByteArray &keyword)
{
    std::erase_if(options_, [&](const PpdOption &option) { return option.keyword == keyword; });
    return *this;
}

PpdOption &PpdText::option(const QByteArray &keyword)
{
    const auto found = std::find_if(options_.begin(), options_.end(), [&](const PpdOption &option) {
        return option.keyword == keyword;
    });
    if (found != options_.end())
        return *found;
    ADD_FAILURE() << "the fixture has no option " << keyword.toStdString();
    static PpdOption none;
    return none;
}

PpdText &PpdText::withDefault(const QByteArray &keyword, const QByteArray &choice)
{
    option(keyword).defaultChoice = choice;
    return *this;
}

PpdText &PpdText::withoutChoice(const QByteArray &keyword, const QByteArray &choice)
{
    std::erase_if(option(keyword).choices,
                  [&](const PpdChoice &candidate) { return candidate.keyword == choice; });
    return *this;
}

PpdText &PpdText::withAttribute(const QByteArray &name, const QByteArray &value)
{
    withoutAttribute(name);
    attributes_.emplace_back(name, value);
    return *this;
}

PpdText &PpdText::withoutAttribute(const QByteArray &name)
{
    std::erase_if(attributes_, [&](const auto &attribute) { return attribute.first == name; });
    return *this;
}

PpdText &PpdText::withLine(const QByteArray &line)
{
    lines_.push_back(line);
    return *this;
}

PpdText &PpdText::withLanguageEncoding(const QByteArray &encoding)
{
    languageEncoding_ = encoding;
    return *this;
}

QByteArray PpdText::bytes() const
{
    QByteArray out = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
                     "*LanguageVersion: English\n";
    if (!languageEncoding_.isEmpty())
        out += "*LanguageEncoding: " + languageEncoding_ + "\n";
    for (const auto &[name, value] : attributes_)
        out += "*" + name + ": \"" + value + "\"\n";
    for (const PpdOption &option : options_)
        out += optionBytes(option);
    for (const QByteArray &line : lines_)
        out += line + "\n";
    return out;
}

PpdText p1()
{
    PpdText ppd;
    ppd.withAttribute("Manufacturer", "Korvane")
        .withAttribute("ModelName", "Korvane S300")
        .withAttribute("NickName", "Korvane S300")
        .withAttribute("APPrinterIconPath", "/Library/Printers/Korvane/Icons/S300.icns")
        .withAttribute("KorDriverPath", "/Library/Printers/Korvane/2009/Drivers");
    ppd.add({"PageSize",
             "Paper Size",
             PpdUi::PickOne,
             {{"Letter", "US Letter"},
              {"EnvelopeDL", "DL Envelope"},
              {"A4Banner", "A4 Banner"},
              {"B5JIS", "JIS B5"}},
             "Letter"});
    ppd.add({"PrintQuality",
             "Print Quality",
             PpdUi::PickOne,
             {{"Automatic", "Automatic"},
              {"Draft", "Quick"},
              {"Normal", "Standard"},
              {"Best", "Finest"}},
             "Automatic"});
    ppd.add({"MediaType",
             "Paper Type",
             PpdUi::PickOne,
             {{"Automatic", "Automatic detect"},
              {"Plain", "Plain Paper"},
              {"IronOn", "Iron-On Transfer"},
              {"Transparency", "Clear Film"},
              {"Greeting", "Greeting Card"},
              {"PremiumGlossy", "Premium Photo"},
              {"InkjetGlossyBrochure", "Brochure Gloss"},
              {"Envelope", "Envelope Paper"}},
             "Plain"});
    ppd.add({"PaperSource",
             "Paper Source",
             PpdUi::PickOne,
             {{"Tray1", "Upper Tray"}, {"Tray2", "Lower Tray"}},
             "Tray1"});
    ppd.add({"Tray2Option",
             "Second Tray",
             PpdUi::Boolean,
             {{"True", "Installed"}, {"False", "Not installed"}},
             "True"});
    ppd.add({"ColorOutput",
             "Color Output",
             PpdUi::PickOne,
             {{"Color", "Color"}, {"Black", "Black Only"}},
             "Color"});
    ppd.add({"ColorPreferences",
             "Color Preferences",
             PpdUi::PickOne,
             {{"Automatic", "Automatic Color"}, {"Vivid", "Vivid Color"}},
             "Automatic"});
    ppd.add(inkToUse());
    ppd.add(onOff("ICCTestChartProcess", "Test Chart"));
    ppd.add({"Sharpen",
             "Sharpening",
             PpdUi::PickOne,
             {{"Off", "None"}, {"Low", "Low"}, {"High", "High"}},
             "Off"});
    ppd.add(onOff("Mirror", "Mirror Image"));
    ppd.add({"DupDryTime",
             "Dry Time",
             PpdUi::PickOne,
             {{"Automatic", "Auto Time"}, {"Long", "Long Time"}},
             "Automatic"});
    return ppd;
}

PpdText p1c()
{
    PpdText ppd = p1();
    ppd.option("DupDryTime") = {"DupDryTime",
                                "Dry Time",
                                PpdUi::Boolean,
                                {{"False", "Normal drying"}, {"True", "Longer drying"}},
                                "False"};
    return ppd;
}

PpdText p1s()
{
    PpdText ppd = p1();
    ppd.withoutChoice("InkToUse", "BlackOnly").withoutChoice("InkToUse", "BlackColor");
    return ppd;
}

PpdText p2()
{
    PpdText ppd;
    ppd.withAttribute("Manufacturer", "Korvane").withAttribute("ModelName", "Korvane T500");
    ppd.add({"PrintQuality",
             "Print Quality",
             PpdUi::PickOne,
             {{"Automatic", "Automatic"}, {"600", "600 dpi"}},
             "Automatic"});
    ppd.add({"MediaType",
             "Paper Type",
             PpdUi::PickOne,
             {{"Automatic", "Automatic"}, {"Plain", "Plain Paper"}},
             "Automatic"});
    ppd.add({"ColorOutput",
             "Color Output",
             PpdUi::PickOne,
             {{"Color", "Color"}, {"Mono", "Black and White"}},
             "Color"});
    ppd.add(tonerSave()).add(threshold()).add(halftoneLevel());
    ppd.add(onOff("ImprovementSettings", "Improve Output"));
    ppd.add({"ImprovePrintQuality",
             "Improvement",
             PpdUi::PickOne,
             {{"ReducePaperCurl", "Reduce Curl"},
              {"ImproveTonerFixing", "Better Fixing"},
              {"ImproveWrinklesorCreases", "Fewer Wrinkles"}},
             "ReducePaperCurl"});
    ppd.add(onOff("ReduceGhosting", "Reduce Ghosting"));
    ppd.add(onOff("PrintDensity", "Density"));
    return ppd;
}

PpdText p2m()
{
    PpdText ppd = p2();
    return ppd.add(inkToUse());
}

PpdText p3()
{
    PpdText ppd = p1();
    ppd.option("ColorOutput").choices = {{"Gray", "Grayscale"}, {"Black", "Black Only"}};
    ppd.withDefault("ColorOutput", "Gray");
    return ppd.add(tonerSave()).add(threshold()).add(halftoneLevel());
}

OpenPpd::OpenPpd(const PpdText &text, Marks marks, Host host)
{
    const QByteArray path = directory_.filePath(QStringLiteral("printer.ppd")).toUtf8();
    QFile file(QString::fromUtf8(path));
    if (file.open(QIODevice::WriteOnly))
        file.write(text.bytes());
    file.close();
    ppd_.reset(ppdOpenFile(path.constData()));
    if (!ppd_) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        ADD_FAILURE() << "the fixture's PPD: line " << line << ": " << ppdErrorString(status);
        return;
    }
    if (host == Host::SetsEncoding && !ppd_->lang_encoding)
        ppd_->lang_encoding = strdup("UTF-8");
    if (marks == Marks::Defaults)
        ppdMarkDefaults(ppd_.get());
}

void OpenPpd::mark(const char *option, const char *choice) const
{
    ppdMarkOption(ppd_.get(), option, choice);
}

QByteArray OpenPpd::marked(const char *option) const
{
    const ppd_choice_t *choice = ppdFindMarkedChoice(ppd_.get(), option);
    return choice ? QByteArray(choice->choice) : QByteArray();
}

} // namespace test
