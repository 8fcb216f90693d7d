#include "dialog/host/dialog_host.h"
#include "dialog/host/undo_history.h"
#include "dialog/printers/ppd_document.h"
#include "tests/support/print_to.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

TEST(Undo, TakesBackAChangeAndLeavesWhatHasBeenSetSince)
{
    const ChoiceState before{{{q("Fold"), q("None")}, {q("Stitch"), q("Once")}}, {}, {}};
    const ChoiceState after{
        {{q("Fold"), q("Half")}, {q("Stitch"), q("Once")}}, {{q("copies"), q("2")}}, {}};
    ChoiceState now = after;
    now.marks = {{q("Fold"), q("Half")}, {q("Stitch"), q("Twice")}};
    now.settings[q("mirror")] = q("true");
    const ChoiceState undone = withChange(now, after, before);
    const Choices expected{{q("Stitch"), q("Twice")}, {q("Fold"), q("None")}};
    EXPECT_EQ(undone.marks, expected);
    const std::map<QString, QVariant> settings{{q("mirror"), q("true")}};
    EXPECT_EQ(undone.settings, settings);
}

TEST(Undo, TakesBackAllChoicesOfAnOptionTogether)
{
    const ChoiceState before{{{q("Holes"), q("Left")}, {q("Holes"), q("Top")}}, {}, {}};
    const ChoiceState after{{{q("Holes"), q("None")}}, {}, {}};
    EXPECT_EQ(withChange(after, after, before), before);
    EXPECT_EQ(withChange(before, before, after), after);
}

TEST(Undo, KeepsThePaperThatWasNamedSince)
{
    const ChoiceState before{{}, {}, q("A4")};
    const ChoiceState after{{}, {}, {}};
    EXPECT_TEXT(withChange({{}, {}, q("A5")}, before, before).paperName, "A5");
    EXPECT_TEXT(withChange(after, after, before).paperName, "A4");
}

struct UndoHistoryTest : testing::Test
{
    std::unique_ptr<PpdDocument> printer = PpdDocument::withoutOptions(q("Printer"));
    DialogHost host{*printer};
    UndoHistory history{host};
    QSignalSpy changed{&history, &UndoHistory::changed};
    QSignalSpy undone{&history, &UndoHistory::undone};

    void copy(const char *copies)
    {
        history.change(q("Copies"), [&] { host.setSetting(q("copies"), q(copies)); });
    }
    QString copies() const { return host.settings().all().at(q("copies")).toString(); }
};

TEST_F(UndoHistoryTest, GoesBackAndForth)
{
    copy("2");
    copy("3");
    EXPECT_EQ(changed.size(), 2);
    history.undo();
    EXPECT_TEXT(copies(), "2");
    EXPECT_TRUE(history.canRedo());
    history.redo();
    EXPECT_TEXT(copies(), "3");
    history.undo();
    history.undo();
    EXPECT_TRUE(host.settings().all().empty());
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(undone.size(), 3);
    history.undo();
    EXPECT_EQ(undone.size(), 3) << "there is nothing more to take back";
}

TEST_F(UndoHistoryTest, LeavesNoTraceOfAChangeThatChangesNothing)
{
    copy("2");
    copy("2");
    EXPECT_EQ(changed.size(), 1);
}

} // namespace
