// What an operation pays for its trace while the debug log is off, beside Qt's own check of a
// disabled logging category and an operation that does nothing else. Every operation is a function
// that is called, never inlined, and whose body the compiler must take to read and write all
// memory, so that each check is made anew at each call.

#include "diag/trace.h"

#include <QLoggingCategory>

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

Q_LOGGING_CATEGORY(lcBench, "korvane.bench", QtWarningMsg)

/// What an operation does: something that the compiler cannot see into.
[[gnu::noinline]] void work()
{
    benchmark::ClobberMemory();
}

[[gnu::noinline]] void plainOperation()
{
    work();
}

/// Both braces.
[[gnu::noinline]] void tracedOperation()
{
    KV_TRACE("-[Bench tracedOperation]");
    work();
}

/// The same with a name in two parts.
[[gnu::noinline]] void operationTracedByParts()
{
    KV_TRACE({"Bench", "operationTracedByParts"});
    work();
}

/// The entry points called by hand, without the guard.
[[gnu::noinline]] void operationWithTwoCalls()
{
    LogInfoBody("-[Bench operationWithTwoCalls]", __LINE__, "{");
    work();
    LogInfoBody("-[Bench operationWithTwoCalls]", __LINE__, "}");
}

[[gnu::noinline]] void operationWithOneQtCheck()
{
    qCDebug(lcBench, "{");
    work();
}

[[gnu::noinline]] void operationWithTwoQtChecks()
{
    qCDebug(lcBench, "{");
    work();
    qCDebug(lcBench, "}");
}

template <void operation()>
void measure(benchmark::State &state)
{
    for (auto _ : state)
        operation();
}

BENCHMARK(measure<plainOperation>)->Name("nothing");
BENCHMARK(measure<tracedOperation>)->Name("KV_TRACE");
BENCHMARK(measure<operationTracedByParts>)->Name("KV_TRACE, name in parts");
BENCHMARK(measure<operationWithTwoCalls>)->Name("LogInfoBody twice");
BENCHMARK(measure<operationWithOneQtCheck>)->Name("qCDebug once");
BENCHMARK(measure<operationWithTwoQtChecks>)->Name("qCDebug twice");

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    ::setenv("TMPDIR", "/nonexistent", 1); // no debug list: the log stays off
    setupDebug();
    if (diag::isInfoEnabled() || lcBench().isDebugEnabled())
        return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
