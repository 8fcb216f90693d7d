#include "tests/support/print_to.h"
#include "tests/whole/run.h"
#include "tests/whole/source_trace.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace test;

namespace {

/// One line of operations.txt: selector, "traced" or "silent", scene of the run.
struct Operation
{
    QString selector;
    bool isTraced;
    QString line;
};

std::vector<Operation> operations()
{
    static const QRegularExpression pattern(q("^(.*\\]|\\w+\\(\\)) (traced|silent) (.+)$"));
    std::vector<Operation> all;
    for (const QString &line :
         sourceText(q("tests/whole/operations.txt")).split(u'\n', Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = pattern.match(line);
        EXPECT_TRUE(match.hasMatch()) << line.toStdString();
        all.push_back({match.captured(1), match.captured(2) == q("traced"), line});
    }
    return all;
}

QString className(const QString &selector)
{
    return selector.startsWith(q("-[")) ? selector.mid(2).section(u' ', 0, 0) : QString();
}

/// The piece of a selector that names the function.
QString functionName(const QString &selector)
{
    const QString operation = selector.startsWith(q("-[")) ? selector.section(u' ', 1) : selector;
    return operation.section(QRegularExpression(q("[:\\](]")), 0, 0);
}

QStringList sortedSelectors(const std::function<bool(const Operation &)> &takes)
{
    QStringList selectors;
    for (const Operation &operation : operations()) {
        if (takes(operation))
            selectors.append(operation.selector);
    }
    selectors.sort();
    return selectors;
}

qsizetype countOf(const char *prefix)
{
    return sortedSelectors(
               [&](const Operation &operation) { return operation.selector.startsWith(q(prefix)); })
        .size();
}

/// What is in one list only, one line each.
std::string difference(const QStringList &actual, const QStringList &expected)
{
    QStringList lines;
    for (const QString &line : actual)
        if (!expected.contains(line))
            lines.append(q("extra: ") + line);
    for (const QString &line : expected)
        if (!actual.contains(line))
            lines.append(q("missing: ") + line);
    return lines.join(u'\n').toStdString();
}

/// A class, its header, and its public functions that are no operations: what C++ or the dialog's
/// diagnostics need.
struct ClassHeader
{
    const char *className;
    const char *path;
    QStringList additions;
};

const std::vector<ClassHeader> &classHeaders()
{
    static const std::vector<ClassHeader> headers{
        {"KorPDEPlugin2", "plugin/kor_pde_plugin2.h", {}},
        {"MainPDE2", "plugin/main_pde2.h", {}},
        {"MainPDE3", "plugin/main_pde3.h", {}},
        {"PDETools2", "model/pde_tools.h", {}},
        {"KorPDEController2",
         "quality/kor_pde_controller.h",
         {q("frames"), q("optionControls"), q("hostGrayscale")}},
        {"ThresholdFormatter", "quality/threshold_formatter.h", {}},
        {"KorConflictController2", "conflict/kor_conflict_controller.h", {}},
        {"KorPDEController3", "other/kor_pde_controller3.h", {q("frames"), q("optionControls")}},
    };
    return headers;
}

bool isLifeCycle(const QString &function)
{
    return function.startsWith(q("init")) || function == q("dealloc");
}

} // namespace

TEST(Operations, TheTableHasEveryOperationOnce)
{
    const QStringList all = sortedSelectors([](const Operation &) { return true; });
    EXPECT_EQ(all.size(), 309);
    EXPECT_EQ(QSet<QString>(all.begin(), all.end()).size(), 309);
    EXPECT_EQ(sortedSelectors([](const Operation &operation) { return operation.isTraced; }).size(),
              207);
    EXPECT_EQ(countOf("-[PDEModel2 "), 104);
    EXPECT_EQ(sortedSelectors([](const Operation &operation) {
                  return className(operation.selector).isEmpty();
              }).size(),
              13)
        << "entry points of the log";
}

TEST(Operations, TheSourceTracesTheTracedOnesAndNothingElse)
{
    const QStringList traced =
        sortedSelectors([](const Operation &operation) { return operation.isTraced; });
    const QStringList inSource = selectorsTracedInSource();
    EXPECT_EQ(difference(inSource, traced), "");
    EXPECT_EQ(inSource.size(), traced.size()) << "one KV_TRACE() for each";
}

TEST(Operations, TheClassesDeclareThemAndNothingElse)
{
    for (const ClassHeader &header : classHeaders()) {
        QStringList declared = publicFunctions(q(header.path), q(header.className));
        if (q(header.className).startsWith(q("MainPDE")))
            declared += publicFunctions(q("plugin/panel_object.h"), q("PanelObject"));
        QSet<QString> names;
        for (const Operation &operation : operations())
            if (className(operation.selector) == q(header.className) &&
                !isLifeCycle(functionName(operation.selector)))
                names.insert(functionName(operation.selector));
        QStringList additions = header.additions;
        if (q(header.className).startsWith(q("MainPDE")))
            additions +=
                {q("PanelObject"), q("diagnostics"), q("model"), q("frames"), q("optionControls")};
        declared.removeIf(
            [&](const QString &name) { return isLifeCycle(name) || additions.contains(name); });
        EXPECT_EQ(difference(declared, names.values()), "") << header.className;
    }
}

TEST(Operations, ARunOfTheWholeSystemSeesEachInItsScene)
{
    SystemRun run;
    run.play();
    QStringList expected;
    QStringList actual;
    QStringList known;
    for (const Operation &operation : operations()) {
        known.append(operation.selector);
        expected.append(operation.line);
        actual.append(
            q("%1 %2 %3")
                .arg(operation.selector,
                     run.traced().contains(operation.selector) ? q("traced") : q("silent"),
                     run.sceneOf().value(operation.selector, q("nowhere"))));
    }
    for (const QString &selector : run.sceneOf().keys())
        if (!known.contains(selector))
            actual.append(selector);
    EXPECT_EQ(difference(actual, expected), "");
}

TEST(Operations, Whole_04_EveryTraceOfTheRunNests)
{
    SystemRun run;
    run.play();
    QStringList open;
    for (const QString &trace : run.traces()) {
        if (trace.startsWith(u'{')) {
            open.append(trace.mid(2));
            continue;
        }
        ASSERT_FALSE(open.isEmpty()) << trace.toStdString();
        ASSERT_EQ(open.takeLast(), trace.mid(2));
    }
    EXPECT_EQ(open, QStringList());
    EXPECT_GT(run.traces().size(), 2000);
}
