#include "dialog/batch/survival.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace test;
using dialog::Choice;
using dialog::Choices;
using dialog::JobSettings;
using dialog::OfferVerdict;
using namespace dialog::batch;

namespace {

Assignment option(const char *name, const char *choice)
{
    return {{q(name), q(choice)}, Assignment::Target::PrinterOption};
}

Assignment setting(const char *name, const char *value)
{
    return {{q(name), q(value)}, Assignment::Target::JobSetting};
}

Happening accepted(const char *name, const char *choice, int during)
{
    return {{OfferVerdict::Accepted, {q(name), q(choice)}, {}}, during};
}

Happening forbidden(const char *name, const char *choice, const Choice &by, int during)
{
    return {{OfferVerdict::Conflicts, {q(name), q(choice)}, {by}}, during};
}

JobSettings marked(const Choices &marks)
{
    JobSettings job;
    job.marks = marks;
    return job;
}

QStringList lines(const std::vector<Assignment> &assignments, const std::vector<Happening> &course,
                  const JobSettings &job, const std::vector<dialog::Difference> &differences = {})
{
    QStringList all;
    for (const Loss &loss : lossesOf(assignments, course, job, differences))
        all.append(lossLine(loss));
    return all;
}

} // namespace

TEST(Survival, NothingIsLostThatStandsAtTheEnd)
{
    EXPECT_EQ(lines({option("A", "1"), setting("copies", "2")}, {accepted("A", "1", 0)},
                    {{}, {{q("A"), q("1")}}, {}, {{q("copies"), q("2")}}, {}}),
              QStringList());
}

TEST(Survival, OfSeveralForOneOptionTheLastCounts)
{
    EXPECT_EQ(lines({option("A", "1"), option("A", "2")}, {}, marked({{q("A"), q("2")}})),
              QStringList());
    EXPECT_EQ(lines({option("A", "2"), option("A", "1")}, {}, marked({{q("A"), q("2")}})).size(),
              1);
}

TEST(Survival, AForbiddenChoiceNamesWhatForbidsIt)
{
    EXPECT_EQ(lines({option("Media", "IronOn"), option("Quality", "Draft")},
                    {accepted("Media", "IronOn", 0),
                     forbidden("Quality", "Draft", {q("Media"), q("IronOn")}, 1),
                     accepted("Quality", "Normal", kWhileCommitting)},
                    marked({{q("Media"), q("IronOn")}, {q("Quality"), q("Normal")}})),
              QStringList{q("Quality: Draft was chosen, Normal will print, because "
                            "Media=IronOn forbids it")});
}

TEST(Survival, AChoiceThatALaterOneChangesNamesThat)
{
    EXPECT_EQ(
        lines({option("Ink", "Black"), option("Output", "Color")},
              {accepted("Ink", "Black", 0), accepted("Ink", "Automatic", 1),
               accepted("Output", "Color", 1), accepted("Ink", "Automatic", kWhileCommitting)},
              marked({{q("Ink"), q("Automatic")}, {q("Output"), q("Color")}})),
        QStringList{q("Ink: Black was chosen, Automatic will print, because "
                      "Output=Color brings that about")});
}

TEST(Survival, WhatHappenedBeforeIsNoReason)
{
    EXPECT_EQ(lines({option("Output", "Color"), option("Ink", "Black")},
                    {accepted("Ink", "Automatic", 0), accepted("Ink", "Black", 1)},
                    marked({{q("Ink"), q("Automatic")}, {q("Output"), q("Color")}})),
              QStringList{
                  q("Ink: Black was chosen, Automatic will print, because the panels keep it so")});
}

TEST(Survival, ThePanelsMayHandOverSomethingElse)
{
    EXPECT_EQ(lines({option("A", "1")},
                    {accepted("A", "1", 0), accepted("A", "2", kWhileCommitting)},
                    marked({{q("A"), q("2")}})),
              QStringList{q("A: 1 was chosen, 2 will print, because the panels hand that over")});
}

TEST(Survival, AnOptionWithoutAMarkPrintsNothing)
{
    EXPECT_EQ(lines({option("A", "1")}, {}, {}),
              QStringList{q("A: 1 was chosen, nothing will print, because the panels keep it so")});
}

TEST(Survival, AJobSettingOfTheSameNameTakesAnOptionsPlace)
{
    JobSettings job = marked({{q("Mirror"), q("Off")}});
    job.printSettings = {{q("mirror"), q("true")}};
    EXPECT_EQ(lines({option("Mirror", "Off")}, {}, job),
              QStringList{q("Mirror: Off was chosen, mirror=true will print, because the job "
                            "setting mirror takes its place")});
}

TEST(Survival, AJobSettingThatARuleChangesNamesTheCause)
{
    JobSettings job = marked({{q("Media"), q("Plain")}});
    job.printSettings = {{q("mirror"), q("false")}};
    EXPECT_EQ(lines({setting("mirror", "true"), option("Media", "Plain")},
                    {accepted("mirror", "true", 0), accepted("Media", "Plain", 1),
                     accepted("mirror", "false", 1)},
                    job),
              QStringList{q("mirror: true was chosen, false will print, because Media=Plain "
                            "brings that about")});
}

TEST(Survival, WhatWasSavedForTheQueueIsToldToo)
{
    EXPECT_EQ(lines({option("A", "1")}, {}, marked({{q("A"), q("1")}, {q("B"), q("2")}}),
                    {{q("A"), q("9"), q("1")}, {q("B"), q("3"), q("2")}}),
              QStringList{q("B: 3 was chosen, 2 will print, because the panels keep it so")});
}
