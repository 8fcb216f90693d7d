#include "dialog/printers/option_groups.h"
#include "dialog/printers/ppd_document.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

constexpr const char *kHead = "*PPD-Adobe: \"4.3\"\n"
                              "*LanguageEncoding: UTF-8\n"
                              "*NickName: \"Groups\"\n";

constexpr const char *kOptions = R"(*OpenUI *PageSize/Paper: PickOne
*DefaultPageSize: A4
*PageSize A4/A4 sheet: ""
*PageSize A3/A3 sheet: ""
*CloseUI: *PageSize
*JCLOpenUI *JCLHold/Hold Job: Boolean
*DefaultJCLHold: False
*JCLHold True/Yes: ""
*JCLHold False/No: ""
*JCLCloseUI: *JCLHold
*OpenGroup: Finishing/Finishing Touches
*OpenUI *Holes/Holes: PickMany
*DefaultHoles: Left
*Holes None/No holes: ""
*Holes Left/At the left: ""
*Holes Top/At the top: ""
*CloseUI: *Holes
*OpenSubGroup: Sub/Within
*OpenUI *Pitch: PickOne
*Pitch Wide: ""
*Pitch Narrow/Narrow pitch: ""
*CloseUI: *Pitch
*CloseSubGroup: Sub
*OpenUI *Depth/Depth: PickOne
*DefaultDepth: 1
*Depth 1/One: ""
*CloseUI: *Depth
*CustomDepth True: "pop"
*ParamCustomDepth Millimetres: 1 int 1 10
*CloseGroup: Finishing
*OpenGroup: InstallableOptions/Options Installed
*OpenUI *Puncher/Puncher: Boolean
*DefaultPuncher: False
*Puncher True/Installed: ""
*Puncher False/Not Installed: ""
*CloseUI: *Puncher
*CloseGroup: InstallableOptions
)";

class Groups : public testing::Test
{
protected:
    Groups()
    {
        auto opened =
            PpdDocument::open(driver_.write(q("groups.ppd"), QByteArray(kHead) + kOptions));
        printer_ = std::move(std::get<std::unique_ptr<PpdDocument>>(opened));
    }

    [[nodiscard]] const PrinterOption &option(const QString &keyword)
    {
        groups_ = printer_->groups();
        for (const OptionGroup &group : groups_) {
            for (const PrinterOption &option : group.options) {
                if (option.keyword == keyword)
                    return option;
            }
        }
        ADD_FAILURE() << "there is no option " << keyword.toStdString();
        static const PrinterOption none;
        return none;
    }

    [[nodiscard]] QStringList marksOf(const QString &option) const
    {
        QStringList keywords;
        for (const Choice &mark : printer_->marks()) {
            if (mark.option == option)
                keywords.append(mark.choice);
        }
        return keywords;
    }

    test::StagedDriver driver_;
    std::unique_ptr<PpdDocument> printer_;
    OptionGroups groups_;
};

QStringList namesOf(const OptionGroups &groups)
{
    QStringList names;
    for (const OptionGroup &group : groups) {
        QStringList options;
        for (const PrinterOption &option : group.options)
            options.append(option.keyword);
        names.append(group.name + q(": ") + options.join(q(" ")));
    }
    return names;
}

TEST_F(Groups, HoldTheirOptionsInTheOrderOfThePpd)
{
    EXPECT_EQ(namesOf(printer_->groups()),
              QStringList({q("General: PageSize"), q("JCL: JCLHold"),
                           q("Finishing: Holes Pitch Depth"), q("InstallableOptions: Puncher")}));
}

TEST_F(Groups, KnowWhatIsBuiltIn)
{
    const OptionGroups groups = printer_->groups();
    EXPECT_EQ(groups[2].kind, GroupKind::Usual);
    EXPECT_EQ(groups[2].text, q("Finishing Touches"));
    EXPECT_EQ(groups[3].kind, GroupKind::Installable);
    EXPECT_EQ(installableOptions(groups), QStringList(q("Puncher")));
}

TEST_F(Groups, TellKindTextsAndDefaultsOfAnOption)
{
    EXPECT_EQ(option(q("Holes")), (PrinterOption{q("Holes"),
                                                 q("Holes"),
                                                 OptionKind::PickMany,
                                                 {{q("None"), q("No holes")},
                                                  {q("Left"), q("At the left")},
                                                  {q("Top"), q("At the top")}},
                                                 {q("Left")}}));
    EXPECT_EQ(option(q("JCLHold")).kind, OptionKind::Boolean);
    EXPECT_EQ(option(q("PageSize")).kind, OptionKind::PickOne);
}

TEST_F(Groups, ShowKeywordsWhereThePpdHasNoTexts)
{
    EXPECT_EQ(option(q("Pitch")).text, q("Pitch"));
    EXPECT_EQ(option(q("Pitch")).choices.front().text, q("Wide"));
    EXPECT_TRUE(option(q("Pitch")).defaults.isEmpty());
}

TEST_F(Groups, LeaveOutTheChoiceForTypedValues)
{
    ASSERT_TRUE(printer_->choices(q("Depth")).contains(q("Custom")));
    EXPECT_EQ(option(q("Depth")).choices, (std::vector<OptionChoice>{{q("1"), q("One")}}));
}

TEST_F(Groups, WithoutWhatIsClaimedOrHasNothingToChoose)
{
    const OptionGroups left =
        unclaimedGroups(printer_->groups(), {q("pagesize"), q("Pitch"), q("Puncher")});
    EXPECT_EQ(namesOf(left), QStringList({q("JCL: JCLHold"), q("Finishing: Holes")}));
}

TEST_F(Groups, MarkAndUnmarkSingleChoicesOfAPickManyOption)
{
    printer_->setMarked(q("Holes"), {q("Left"), q("Top")});
    EXPECT_EQ(marksOf(q("Holes")), QStringList({q("Left"), q("Top")}));
    printer_->setMarked(q("holes"), {q("Top")});
    EXPECT_EQ(marksOf(q("Holes")), QStringList(q("Top")));
    EXPECT_EQ(printer_->marked(q("Holes")), q("Top"));
    EXPECT_EQ(marksOf(q("JCLHold")), QStringList(q("False")));
}

TEST_F(Groups, AreMarkedExactlyAsAStateSays)
{
    printer_->mark({q("Holes"), q("Top")});
    const Choices both = printer_->marks();
    printer_->setMarks({{q("Holes"), q("Top")}, {q("Pitch"), q("Wide")}});
    EXPECT_EQ(marksOf(q("Holes")), QStringList(q("Top")));
    EXPECT_EQ(marksOf(q("Pitch")), QStringList(q("Wide")));
    EXPECT_EQ(marksOf(q("PageSize")), QStringList(q("A4")));
    printer_->setMarks(both);
    EXPECT_EQ(printer_->marks(), both);
}

TEST_F(Groups, KeepDefaultsWhereAStateNamesAnUnknownChoice)
{
    printer_->mark({q("PageSize"), q("A3")});
    printer_->setMarks({{q("PageSize"), q("A9")}});
    EXPECT_EQ(printer_->marked(q("PageSize")), q("A4"));
}

const PrinterOption kHoles{q("Holes"),
                           q("Holes"),
                           OptionKind::PickMany,
                           {{q("None"), {}}, {q("Left"), {}}, {q("Top"), {}}, {q("Right"), {}}},
                           {q("Left")}};

TEST(Switching, AddsInTheOrderOfTheChoices)
{
    EXPECT_EQ(marksAfterSwitching(kHoles, {q("Right")}, q("Left"), Switch::On),
              QStringList({q("Left"), q("Right")}));
}

TEST(Switching, EndsNone)
{
    EXPECT_EQ(marksAfterSwitching(kHoles, {q("None")}, q("Top"), Switch::On),
              QStringList(q("Top")));
}

TEST(Switching, NoneOnEndsTheOthers)
{
    EXPECT_EQ(marksAfterSwitching(kHoles, {q("Left"), q("Top")}, q("None"), Switch::On),
              QStringList(q("None")));
}

TEST(Switching, TheLastOneOffLeavesNone)
{
    EXPECT_EQ(marksAfterSwitching(kHoles, {q("Left"), q("Top")}, q("Top"), Switch::Off),
              QStringList(q("Left")));
    EXPECT_EQ(marksAfterSwitching(kHoles, {q("Top")}, q("Top"), Switch::Off),
              QStringList(q("None")));
}

TEST(Switching, WithoutNoneTheLastOneOffLeavesTheDefaults)
{
    PrinterOption option = kHoles;
    option.choices.erase(option.choices.begin());
    EXPECT_EQ(marksAfterSwitching(option, {q("Top")}, q("Top"), Switch::Off),
              QStringList(q("Left")));
}

} // namespace
