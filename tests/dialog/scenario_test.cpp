#include "dialog/replay/scenario.h"
#include "dialog/replay/snapshot.h"
#include "tests/support/print_to.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace dialog::replay;
using test::q;

namespace {

QString errorOf(const QByteArray &text)
{
    const Parsed parsed = parseScenario(q("case.txt"), text);
    const auto *error = std::get_if<ScenarioError>(&parsed);
    return error ? error->message : QString();
}

TEST(Scenario, KeepsStepsWithTheirLines)
{
    const Parsed parsed =
        parseScenario(q("case.txt"), "# head\nprinter a.ppd\n\nmark A B # why\nsave");
    const auto &scenario = std::get<Scenario>(parsed);
    ASSERT_EQ(scenario.steps.size(), 3U);
    EXPECT_EQ(scenario.steps[0].kind, StepKind::Printer);
    EXPECT_EQ(scenario.steps[1].arguments, QStringList({q("A"), q("B")}));
    EXPECT_EQ(scenario.steps[1].line, 4);
    EXPECT_EQ(scenario.steps[2].kind, StepKind::Save);
}

TEST(Scenario, TakesEveryStepOfTheFormat)
{
    EXPECT_NULL(errorOf(
        "printer a.ppd\nqueue Q\nroot /r\nsystem-version 0x1049\nlanguage fr-CA\ndocument d.pdf\n"
        "mark A B\njob k v\npaper A4\nrefuse A\nrefuse A 2\nshow P\nchoose c i\n"
        "tick c\nuntick c\nclick c\nrow c 0\nstep c up\nstep c down\ntype c t\n"
        "paste c t\nwheel c up\nwheel c down\nkey Ctrl+Return\nclose w\nother A B\n"
        "report n\npicture n\nexpect /front x\nexpect '' x\nsave\nsave-pdf p\nsave-ticket t\n"
        "print\n"
        "print f.pdf\ncancel\n"));
}

struct BadLine
{
    const char *text;
    const char *error;
};

void PrintTo(const BadLine &bad, std::ostream *out)
{
    *out << bad.error;
}

class ScenarioErrors : public testing::TestWithParam<BadLine>
{
};

TEST_P(ScenarioErrors, NameFileLineAndReason)
{
    EXPECT_TEXT(errorOf(GetParam().text), GetParam().error);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Lines, ScenarioErrors, testing::Values(
    BadLine{"\nchose a b", "case.txt:2: no step chose; did you mean choose?"},
    BadLine{"zzzzzzzzz", "case.txt:1: no step zzzzzzzzz"},
    BadLine{"tick", "case.txt:1: wrong number of words; write: tick CONTROL"},
    BadLine{"save now", "case.txt:1: wrong number of words; write: save"},
    BadLine{"row c two", "case.txt:1: two is no number from 0 on"},
    BadLine{"row c -1", "case.txt:1: -1 is no number from 0 on"},
    BadLine{"refuse A x", "case.txt:1: x is no number from 0 on"},
    BadLine{"step c upp", "case.txt:1: no direction upp; did you mean up?"},
    BadLine{"wheel c left", "case.txt:1: no direction left"},
    BadLine{"key NoSuchKey", "case.txt:1: no key NoSuchKey"},
    BadLine{"expect front x", "case.txt:1: front is no JSON Pointer; it begins with \"/\""},
    BadLine{"picture a/b", "case.txt:1: a/b is no name of a file"},
    BadLine{"system-version ten", "case.txt:1: ten is no system version"},
    BadLine{"mark A B\nprinter a.ppd", "case.txt:2: printer must stand before any other step"},
    BadLine{"save\nroot /r", "case.txt:2: root must stand before any other step"},
    BadLine{"type c 'open", "case.txt:1: a ' is not closed"}));
// clang-format on

TEST(Scenario, ReadsVersionsInBothNotations)
{
    EXPECT_EQ(systemVersionOf(q("0x1049")), 0x1049);
    EXPECT_EQ(systemVersionOf(q("4169")), 0x1049);
    EXPECT_EQ(systemVersionOf(q("0xzz")), -1);
    EXPECT_EQ(systemVersionOf(q("")), -1);
}

TEST(JsonPointer, WalksObjectsAndArrays)
{
    const QJsonObject inner{{q("b/c"), 1}, {q("d~e"), 2}, {q(""), 3}};
    const QJsonObject root{{q("a"), QJsonArray{q("zero"), inner}}};
    EXPECT_EQ(valueAt(root, q("")), QJsonValue(root));
    EXPECT_EQ(valueAt(root, q("/a/0")), QJsonValue(q("zero")));
    EXPECT_EQ(valueAt(root, q("/a/1/b~1c")), QJsonValue(1));
    EXPECT_EQ(valueAt(root, q("/a/1/d~0e")), QJsonValue(2));
    EXPECT_EQ(valueAt(root, q("/a/1/")), QJsonValue(3));
    EXPECT_TRUE(valueAt(root, q("/a/2")).isUndefined());
    EXPECT_TRUE(valueAt(root, q("/a/x")).isUndefined());
    EXPECT_TRUE(valueAt(root, q("/nothing/here")).isUndefined());
}

TEST(ExpectedValue, IsJsonWhereItParsesElseText)
{
    EXPECT_EQ(expectedValue(q("3")), QJsonValue(3));
    EXPECT_EQ(expectedValue(q("true")), QJsonValue(true));
    EXPECT_TRUE(expectedValue(q("null")).isNull());
    EXPECT_EQ(expectedValue(q("\"3\"")), QJsonValue(q("3")));
    EXPECT_EQ(expectedValue(q("[1]")), QJsonValue(QJsonArray{1}));
    EXPECT_EQ(expectedValue(q("Plain Paper")), QJsonValue(q("Plain Paper")));
    EXPECT_EQ(expectedValue(q("1,2")), QJsonValue(q("1,2")));
    EXPECT_EQ(expectedValue(q("")), QJsonValue(q("")));
}

TEST(CompactJson, IsOneLine)
{
    EXPECT_TEXT(compactJson(QJsonArray({1, q("x")})), "[1,\"x\"]");
    EXPECT_TEXT(compactJson(QJsonValue::Null), "null");
    EXPECT_TEXT(compactJson(QJsonValue::Undefined), "nothing");
}

} // namespace
