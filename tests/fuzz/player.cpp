// Scenarios of any bytes, played on a dialog with its panels. A scenario chooses no printer and no
// driver here, is short, and prints no file.

#include "dialog/replay/player.h"
#include "tests/fuzz/fuzz_dialog.h"

#include <QApplication>

using namespace dialog;
using replay::StepKind;

namespace {

constexpr std::size_t kMostSteps = 25;
constexpr char kPrinters[][40] = {"/driver/ppd/Korvane-S300.ppd", "/driver/ppd/Korvane-T500.ppd"};

bool leadsOutside(const replay::Step &step)
{
    return step.kind == StepKind::Printer || step.kind == StepKind::Queue ||
           step.kind == StepKind::Root || step.kind == StepKind::Document ||
           (step.kind == StepKind::Print && !step.arguments.isEmpty());
}

void play(replay::Scenario scenario, const PrintCase &printCase)
{
    std::erase_if(scenario.steps, leadsOutside);
    if (scenario.steps.size() > kMostSteps)
        scenario.steps.resize(kMostSteps);
    replay::Player player(printCase, std::move(scenario), {});
    QObject::connect(&player, &replay::Player::finished, qApp, [] { QCoreApplication::exit(); });
    player.start();
    QCoreApplication::exec();
    static_cast<void>(player.report().json());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    auto parsed = replay::parseScenario(QStringLiteral("case"), bytes);
    auto *scenario = std::get_if<replay::Scenario>(&parsed);
    if (!scenario)
        return 0;
    const bool isToner = bytes.contains("T500");
    play(std::move(*scenario),
         fuzz::surroundings().printCase(QStringLiteral(KORVANE_SOURCE_DIR) +
                                        QString::fromLatin1(kPrinters[isToner])));
    fuzz::surroundings().clear();
    return 0;
}
