// Scenarios of any bytes: every step that can be read is one that the recorder can write and that
// reads as the same step again.

#include "dialog/replay/scenario.h"
#include "dialog/record/step_line.h"
#include "dialog/replay/snapshot.h"

#include <cstdio>
#include <cstdlib>

using namespace dialog;

namespace {

void check(bool holds, const char *what)
{
    if (!holds) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

void checkWriting(const replay::Step &step)
{
    const QString line = record::lineOf(step);
    check(!line.isNull(), "a step that was read cannot be written");
    const auto again = replay::parseScenario(QStringLiteral("again"), line.toUtf8());
    const auto *read = std::get_if<replay::Scenario>(&again);
    check(read && read->steps.size() == 1, "a written step cannot be read");
    check(read->steps[0].kind == step.kind && read->steps[0].arguments == step.arguments,
          "a written step reads as another");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto parsed = replay::parseScenario(QStringLiteral("case"), bytes);
    const auto *scenario = std::get_if<replay::Scenario>(&parsed);
    for (const replay::Step &step : scenario ? scenario->steps : std::vector<replay::Step>()) {
        checkWriting(step);
        if (step.kind == replay::StepKind::Expect) {
            const QJsonObject value{
                {QStringLiteral("a"), replay::expectedValue(step.arguments[1])}};
            static_cast<void>(replay::compactJson(replay::valueAt(value, step.arguments[0])));
        }
    }
    return 0;
}
