#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

namespace dialog::replay {

// clang-format off
enum class StepKind {
    Printer, Queue, Root, SystemVersion, Language, Document, Mark, Job, Paper, Refuse, // no panels needed
    Show, Choose, Tick, Untick, Click, Row, StepBy, Type, Paste, Wheel, Key, Close,
    Other, Report, Picture, Expect, Save, SavePdf, SaveTicket, Print,
    Cancel,
    Count
};
// clang-format on

struct Step
{
    StepKind kind;
    QStringList arguments;
    int line; ///< counted from 1
};

struct Scenario
{
    QString file;
    std::vector<Step> steps;
};

/// "FILE:LINE: what is wrong".
struct ScenarioError
{
    QString message;
};

/// The word that a step begins with.
[[nodiscard]] QString stepWord(StepKind kind);
/// Every step's word, in the order of StepKind.
[[nodiscard]] QStringList stepWords();

/// Printer, queue, platform values and document stand before everything else.
[[nodiscard]] bool standsBeforePrinter(StepKind kind);
/// True for the steps before which the panels are created, restored and shown.
[[nodiscard]] bool needsPanels(StepKind kind);

using Parsed = std::variant<Scenario, ScenarioError>;
[[nodiscard]] Parsed parseScenario(const QString &file, const QByteArray &bytes);
/// Reads a regular file of at most 1 MiB.
[[nodiscard]] Parsed readScenario(const QString &file);

/// "0x1060" or decimal; nullopt-like -1 when it is no number.
[[nodiscard]] int systemVersionOf(const QString &word);

} // namespace dialog::replay
