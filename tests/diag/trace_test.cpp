#include "diag/trace.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/print_to.h"
#include "tests/support/stderr_capture.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using test::DebugLog;
using test::q;

int returnsEarly(int value)
{
    KV_TRACE("-[Thing returnsEarly:]");
    if (value > 0)
        return 1;
    LogInfoBody("-[Thing returnsEarly:]", __LINE__, "late");
    return 0;
}

void throws()
{
    KV_TRACE("-[Thing throws]");
    throw std::runtime_error("out");
}

int namesAsked = 0;

const char *nameOfClass()
{
    ++namesAsked;
    return "MainPDE3";
}

void sharedOperation()
{
    KV_TRACE({nameOfClass(), "PPDOptionKeyValueDidChange:ppdChoice:"});
}

class Trace : public testing::Test
{
protected:
    void switchOn(int level) const
    {
        const test::StderrCapture capture;
        log.switchOn(level);
        setupDebug();
    }

    const DebugLog log;
};

TEST_F(Trace, AnOperationTracesItsBeginningAndItsEndOnEveryWayOut)
{
    switchOn(1);
    EXPECT_EQ(returnsEarly(1), 1);
    EXPECT_EQ(returnsEarly(0), 0);
    EXPECT_THROW(throws(), std::runtime_error);
    EXPECT_EQ(log.traces(),
              QStringList({q("{ -[Thing returnsEarly:]"), q("} -[Thing returnsEarly:]"),
                           q("{ -[Thing returnsEarly:]"), q("} -[Thing returnsEarly:]"),
                           q("{ -[Thing throws]"), q("} -[Thing throws]")}));
    EXPECT_EQ(log.infoMessages(), QStringList(q("late")));
}

TEST_F(Trace, NestedOperationsNestTheirBraces)
{
    switchOn(1);
    {
        KV_TRACE("-[Outer run]");
        returnsEarly(1);
    }
    EXPECT_EQ(log.traces(), QStringList({q("{ -[Outer run]"), q("{ -[Thing returnsEarly:]"),
                                         q("} -[Thing returnsEarly:]"), q("} -[Outer run]")}));
}

TEST_F(Trace, BothBracesCarryTheLineOfTheMacro)
{
    switchOn(1);
    const int line = __LINE__ + 2;
    {
        KV_TRACE("-[Thing run]");
    }
    ASSERT_EQ(log.ownRecords().size(), 2);
    EXPECT_EQ(log.ownRecords().at(0).line, line);
    EXPECT_EQ(log.ownRecords().at(1).line, line);
}

TEST_F(Trace, SharedCodeTracesTheNameOfItsClass)
{
    switchOn(1);
    sharedOperation();
    const QString selector = q("-[MainPDE3 PPDOptionKeyValueDidChange:ppdChoice:]");
    EXPECT_EQ(log.traces(), QStringList({q("{ ") + selector, q("} ") + selector}));
}

TEST_F(Trace, WithTheLogOffTheNameIsNotEvenAskedFor)
{
    const test::StderrCapture capture;
    namesAsked = 0;
    sharedOperation();
    EXPECT_EQ(namesAsked, 0);
    EXPECT_TRUE(log.bytes().isNull());
}

TEST_F(Trace, WithErrorsOnlyNothingIsTraced)
{
    switchOn(6);
    namesAsked = 0;
    sharedOperation();
    returnsEarly(0);
    EXPECT_EQ(namesAsked, 0);
    EXPECT_EQ(log.traces(), QStringList());
}

TEST_F(Trace, ASelectorIsNoFormat)
{
    switchOn(1);
    {
        KV_TRACE({"Odd%n", "%s"});
    }
    EXPECT_EQ(log.traces(), QStringList({q("{ -[Odd%n %s]"), q("} -[Odd%n %s]")}));
}

TEST_F(Trace, TheFirstTraceOfAProcessSetsTheLogUp)
{
    const test::StderrCapture capture;
    log.switchOn();
    returnsEarly(1);
    EXPECT_EQ(log.records().first().brief(), q("A logger L0 DEBUG GO"));
    EXPECT_EQ(log.traces().size(), 2);
}

TEST_F(Trace, AnOperationInsideWhichTheLogIsClosedEndsQuietly)
{
    switchOn(1);
    {
        KV_TRACE("-[Thing run]");
        closeDebugSession();
    }
    EXPECT_EQ(log.records().last().brief(), q("Z logger L0 DEBUG END file"));
}

} // namespace
