#include "dialog/batch/assignment.h"
#include "dialog/batch/job_setting.h"
#include "dialog/printers/ppd_document.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace test;
using dialog::Choice;
using dialog::PpdDocument;
using namespace dialog::batch;

namespace {

/// P1 and what is made of words on it.
class Assignments : public testing::Test
{
protected:
    void SetUp() override
    {
        PpdDocument::Opened opened = PpdDocument::open(driver_.writePrinter());
        ASSERT_TRUE(std::holds_alternative<std::unique_ptr<PpdDocument>>(opened));
        printer_ = std::move(std::get<std::unique_ptr<PpdDocument>>(opened));
    }
    [[nodiscard]] Assignment read(const char *word) const
    {
        const auto read = readAssignment(q(word));
        const auto known = assignmentOf(std::get<Choice>(read), *printer_);
        if (const auto *mistake = std::get_if<Mistake>(&known))
            ADD_FAILURE() << mistake->message.toStdString();
        return std::holds_alternative<Assignment>(known) ? std::get<Assignment>(known)
                                                         : Assignment{};
    }
    [[nodiscard]] QString mistakeOf(const char *word) const
    {
        const auto read = readAssignment(q(word));
        if (const auto *mistake = std::get_if<Mistake>(&read))
            return mistake->message;
        const auto known = assignmentOf(std::get<Choice>(read), *printer_);
        const auto *mistake = std::get_if<Mistake>(&known);
        return mistake ? mistake->message : QString();
    }

    StagedDriver driver_;
    std::unique_ptr<PpdDocument> printer_;
};

using Target = Assignment::Target;

} // namespace

TEST_F(Assignments, NameAnOptionOfThePrinterOrAJobSetting)
{
    EXPECT_EQ(read("MediaType=IronOn"),
              (Assignment{{q("MediaType"), q("IronOn")}, Target::PrinterOption}));
    EXPECT_EQ(read("copies=12"), (Assignment{{q("copies"), q("12")}, Target::JobSetting}));
    EXPECT_EQ(read("page-ranges=1-3,7,9-"),
              (Assignment{{q("page-ranges"), q("1-3,7,9-")}, Target::JobSetting}));
}

TEST_F(Assignments, TellTheOptionFromTheSettingOfTheSameNameByItsCase)
{
    EXPECT_EQ(read("Mirror=On").target, Target::PrinterOption);
    EXPECT_EQ(read("mirror=true").target, Target::JobSetting);
}

TEST_F(Assignments, EndTheOptionAtTheFirstEqualsSign)
{
    const auto read = readAssignment(q("job-billing=a=b"));
    EXPECT_EQ(std::get<Choice>(read), (Choice{q("job-billing"), q("a=b")}));
}

TEST_F(Assignments, SayWhatIsMissingFromTheWord)
{
    EXPECT_TEXT(mistakeOf("MediaType"), "--set MediaType has no \"=\"; write it as OPTION=CHOICE");
    EXPECT_TEXT(mistakeOf(""), "--set  has no \"=\"; write it as OPTION=CHOICE");
    EXPECT_TEXT(mistakeOf("=IronOn"), "--set =IronOn names no option before the \"=\"");
    EXPECT_TEXT(mistakeOf("MediaType="), "--set MediaType= names no choice after the \"=\"");
    EXPECT_TEXT(mistakeOf("="), "--set = names no option before the \"=\"");
}

TEST_F(Assignments, SuggestTheNearestName)
{
    EXPECT_TEXT(mistakeOf("MediaTyp=IronOn"), "no option MediaTyp; did you mean MediaType?");
    EXPECT_TEXT(mistakeOf("mediatype=IronOn"), "no option mediatype; did you mean MediaType?");
    EXPECT_TEXT(mistakeOf("copis=2"), "no option copis; did you mean copies?");
    EXPECT_TEXT(mistakeOf("Nonsense123=2"), "no option Nonsense123");
    EXPECT_TEXT(mistakeOf("MediaType=ironon"), "MediaType: no choice ironon; did you mean IronOn?");
}

TEST_F(Assignments, ListTheChoicesWhereNoneIsNear)
{
    EXPECT_TEXT(mistakeOf("Mirror=sideways"), "Mirror: no choice sideways; there are Off, On");
}

TEST_F(Assignments, GiveTheKeywordOfAChoiceThatIsNamedByItsText)
{
    const QString text = printer_->choiceText({q("PrintQuality"), q("Draft")});
    ASSERT_NE(text, q("Draft"));
    const QByteArray word = "PrintQuality=" + text.toUtf8();
    EXPECT_SAME(
        mistakeOf(word.constData()),
        q("PrintQuality: \"%1\" is the text of a choice; write PrintQuality=Draft").arg(text));
}

TEST_F(Assignments, RefuseValuesThatAJobSettingCannotHave)
{
    EXPECT_TEXT(mistakeOf("copies=0"), "copies cannot be 0; it takes a whole number from 1 to 999");
    EXPECT_TEXT(mistakeOf("copies=two"),
                "copies cannot be two; it takes a whole number from 1 to 999");
    EXPECT_TEXT(mistakeOf("number-up=3"), "number-up cannot be 3; it takes 1, 2, 4, 6, 9, 16");
    EXPECT_TEXT(mistakeOf("mirror=On"), "mirror cannot be On; it takes true, false");
    for (const char *ranges : {"page-ranges=0-2", "page-ranges=5-3", "page-ranges=a"})
        EXPECT_TRUE(mistakeOf(ranges).startsWith(q("page-ranges: "))) << ranges;
}

TEST_F(Assignments, BringPageRangesIntoTheirStandardForm)
{
    EXPECT_TEXT(read("page-ranges=1-3, 5").wanted.choice, "1-3,5");
    EXPECT_TEXT(read("page-ranges=-4").wanted.choice, "1-4");
}

TEST(JobSettings, AreWrittenAsJobOptionsAre)
{
    const QStringList names = jobSettingNames();
    EXPECT_GT(names.size(), 20);
    for (const QString &name : names) {
        EXPECT_EQ(name, name.toLower());
        EXPECT_EQ(names.count(name), 1) << name.toStdString();
        EXPECT_TRUE(isJobSetting(name));
        EXPECT_FALSE(jobSettingProblem({name, q("")}).isNull()) << name.toStdString();
    }
    EXPECT_FALSE(isJobSetting(q("Copies")));
}

TEST(JobSettings, ChangeWhatTheWindowsOwnControlsChange)
{
    using dialog::SettingChange;
    using dialog::SettingChanges;
    EXPECT_EQ(changesFor({q("mirror"), q("true")}, {}), (SettingChanges{{q("mirror"), q("true")}}));
    EXPECT_EQ(changesFor({q("copies"), q("1")}, {}), (SettingChanges{{q("copies"), q("1")}}));
    EXPECT_EQ(changesFor({q("copies"), q("2")}, {}), dialog::copiesChanges(2, {}));
}
