// Time from "PPD opened" to "panel shown", and of each action, for the sample printers and for
// printers with many choices.

#include "bench/made_printer.h"
#include "model/pde_tools.h"
#include "platform/console.h"
#include "platform/controls/controls.h"
#include "platform/controls/stepper.h"
#include "platform/values.h"
#include "plugin/kor_pde_plugin2.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>
#include <QToolButton>

#include <benchmark/benchmark.h>

#include <memory>
#include <optional>

namespace {

struct PpdCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using Ppd = std::unique_ptr<ppd_file_t, PpdCloser>;

Ppd openMarked(const QString &path)
{
    Ppd ppd(ppdOpenFile(QFile::encodeName(path).constData()));
    ppdMarkDefaults(ppd.get());
    return ppd;
}

/// Accepts every offer and marks it, as the dialog does, without a look at constraints.
class Host : public PDEPlugInCallback
{
public:
    explicit Host(ppd_file_t *ppd) : ppd_(ppd) {}
    ppd_file_t *ppdFile() override { return ppd_; }
    PMPrintSettings printSettings() override { return &settings_; }
    PMPageFormat pageFormat() override { return &format_; }
    PMPrintSession printSession() override { return &session_; }
    void panelViewDidResize() override {}
    bool willChangePPDOptionKeyValue(const QString &option, const QString &choice) override
    {
        if (!choice.isNull())
            ppdMarkOption(ppd_, option.toUtf8().constData(), choice.toUtf8().constData());
        return true;
    }

private:
    ppd_file_t *ppd_;
    platform::PrintSettings settings_;
    platform::PageFormat format_;
    platform::PrintSession session_{.settings = &settings_, .pageFormat = &format_};
};

QString sample(const char *name)
{
    return QStringLiteral(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/%1.ppd")
        .arg(QString::fromLatin1(name));
}

/// A printer whose panel options have that many choices each, among further options of as many.
QString madePrinter(int options, int choices)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("%1x%2.ppd").arg(options).arg(choices));
    if (QFile::exists(path))
        return path;
    QByteArray text =
        "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageEncoding: ISOLatin1\n"
        "*Manufacturer: \"Korvane\"\n*ModelName: \"Korvane X\"\n*NickName: \"Korvane X\"\n";
    for (const char *keyword : {"PrintQuality", "MediaType", "ColorOutput", "ColorPreferences",
                                "InkToUse", "Sharpen", "HalftoneLevel"})
        text += bench::optionText(keyword, choices);
    text += bench::extraOptions(7, options, choices);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(text);
    return path;
}

Bundle *bundle()
{
    static const std::unique_ptr<Bundle> bundle =
        Bundle::bundleWithPath(QStringLiteral(KORVANE_BUNDLE_DIR));
    return bundle.get();
}

/// The panel of a printer, on screen.
struct Shown
{
    explicit Shown(ppd_file_t *ppd) : host(ppd)
    {
        plugIn.initWithBundle(bundle());
        panels = plugIn.PDEPanelsForType(kPDEPrintDialogType.toString(), &host);
        PDEPanel &panel = *panels->front();
        view = panel.panelView();
        panel.restoreValuesAndReturnError(nullptr);
        panel.willShow();
        view->show();
        QApplication::processEvents();
    }

    template <class Control>
    Control *find(const char *name) const
    {
        return view->findChild<Control *>(QString::fromLatin1(name));
    }

    Host host;
    KorPDEPlugin2 plugIn;
    std::shared_ptr<PDEPanelList> panels;
    QWidget *view;
};

void openedToShown(benchmark::State &state, const QString &path)
{
    for (auto _ : state) {
        state.PauseTiming();
        const Ppd ppd = openMarked(path);
        std::optional<Shown> shown;
        state.ResumeTiming();
        shown.emplace(ppd.get());
        benchmark::DoNotOptimize(shown->view->grab());
        state.PauseTiming();
        shown.reset();
        state.ResumeTiming();
    }
}

/// A pick in a pop-up, back and forth between its first two items.
void pick(benchmark::State &state, const QString &path, const char *name)
{
    const Ppd ppd = openMarked(path);
    const Shown shown(ppd.get());
    auto *popUp = shown.find<QComboBox>(name);
    if (!popUp || popUp->count() < 2)
        return state.SkipWithError("the printer has no such control");
    int index = 0;
    for (auto _ : state) {
        index = 1 - index;
        popUp->setCurrentIndex(index);
        Q_EMIT popUp->activated(index);
    }
}

void clickBox(benchmark::State &state, const QString &path, const char *name)
{
    const Ppd ppd = openMarked(path);
    const Shown shown(ppd.get());
    auto *button = shown.find<QAbstractButton>(name);
    if (!button)
        return state.SkipWithError("the printer has no such control");
    button->setEnabled(true);
    for (auto _ : state)
        button->click();
}

void step(benchmark::State &state, const QString &path)
{
    const Ppd ppd = openMarked(path);
    const Shown shown(ppd.get());
    auto *stepper = shown.find<Stepper>("ibThresholdStepper");
    int value = 1;
    for (auto _ : state) {
        value = value % 5 + 1;
        stepper->setValue(value);
        Q_EMIT stepper->stepped(value);
    }
}

constexpr const char *kPopUps[] = {"ibPrintQuality", "ibPaperType",        "ibColorOutput",
                                   "ibInkToUse",     "ibColorPreferences", "ibSharpen"};

void registerAll()
{
    for (const char *printer : {"Korvane-S300", "Korvane-T500"})
        benchmark::RegisterBenchmark((std::string("OpenedToShown/") + printer).c_str(),
                                     [=](auto &state) { openedToShown(state, sample(printer)); })
            ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("OpenedToShown/200x50", [](auto &state) {
        openedToShown(state, madePrinter(200, 50));
    })->Unit(benchmark::kMillisecond);

    for (const char *name : kPopUps)
        benchmark::RegisterBenchmark(
            (std::string("Action/Korvane-S300/") + name).c_str(),
            [=](auto &state) { pick(state, sample("Korvane-S300"), name); })
            ->Unit(benchmark::kMicrosecond);
    for (const char *name : {"ibUseICCTestChart", "ibMIrror", "ibDisclosure"})
        benchmark::RegisterBenchmark(
            (std::string("Action/Korvane-S300/") + name).c_str(),
            [=](auto &state) { clickBox(state, sample("Korvane-S300"), name); })
            ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Action/Korvane-T500/ibTonerSave", [](auto &state) {
        clickBox(state, sample("Korvane-T500"), "ibTonerSave");
    })->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Action/Korvane-T500/ibHalftone", [](auto &state) {
        pick(state, sample("Korvane-T500"), "ibHalftone");
    })->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Action/Korvane-T500/ibThresholdStepper", [](auto &state) {
        step(state, sample("Korvane-T500"));
    })->Unit(benchmark::kMicrosecond);

    // How each action grows with the choices of its option.
    for (const char *name : kPopUps)
        benchmark::RegisterBenchmark((std::string("Growth/") + name).c_str(),
                                     [=](benchmark::State &state) {
                                         const int choices = static_cast<int>(state.range(0));
                                         pick(state, madePrinter(7, choices), name);
                                         state.SetComplexityN(choices);
                                     })
            ->RangeMultiplier(4)
            ->Range(50, 3200)
            ->Unit(benchmark::kMicrosecond)
            ->Complexity();
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    platform::setDriverRoot(QStringLiteral(KORVANE_ROOT_DIR));
    platform::setPreferredLanguages({QStringLiteral("en")});
    platform::setConsoleSink([](const QString &) {});
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
