#include "tests/dialog_tools/command_run.h"
#include "tests/support/print_to.h"

#include <QRegularExpression>
#include <QStandardPaths>

#include <gtest/gtest.h>

using test::bytesOf;
using test::CommandRun;
using test::q;

namespace {

const QString kManual = q(KORVANE_SOURCE_DIR "/packaging/korvane-print.1");
const QString kCompletion = q(KORVANE_SOURCE_DIR "/packaging/korvane-print.bash");

/// What the program says about one of its commands, and what is written about it.
class Manual : public testing::TestWithParam<const char *>
{
protected:
    /// Options as "--help" lists them, without their dashes.
    QStringList options() const
    {
        QStringList words{q("--help")};
        if (*GetParam())
            words.prepend(q(GetParam()));
        const CommandRun run = room.print(words);
        EXPECT_EQ(run.status, 0) << run.errors.constData();
        EXPECT_FALSE(run.output.contains("executable_name"));
        static const QRegularExpression option(q("^  (?:-\\w, )?--([a-z-]+)"),
                                               QRegularExpression::MultilineOption);
        QStringList found;
        for (auto match = option.globalMatch(QString::fromUtf8(run.output)); match.hasNext();)
            found.append(match.next().captured(1));
        return found;
    }
    /// What bash would offer behind the command for a word.
    QStringList completed(const QStringList &words) const
    {
        const CommandRun run = room.run(
            q("bash"),
            QStringList{q("-c"),
                        q("source \"$0\"; COMP_WORDS=(korvane-print \"$@\"); COMP_CWORD=$#; "
                          "_korvane_print; printf '%s\\n' \"${COMPREPLY[@]}\""),
                        kCompletion} +
                words);
        EXPECT_EQ(run.status, 0) << run.errors.constData();
        EXPECT_EQ(run.errors, "");
        return QString::fromUtf8(run.output).split(u'\n', Qt::SkipEmptyParts);
    }

    test::CommandRoom room;
};

TEST_P(Manual, HasEveryOption)
{
    const QString manual = QString::fromUtf8(bytesOf(kManual));
    const QStringList all = options();
    EXPECT_GE(all.size(), 2);
    for (const QString &option : all) {
        const QRegularExpression entry(
            q("^\\.It (Fl h , )?Fl -%1( |$)").arg(QRegularExpression::escape(option)),
            QRegularExpression::MultilineOption);
        EXPECT_TRUE(manual.contains(entry)) << "--" << option.toStdString();
    }
}

TEST_P(Manual, CompletionHasEveryOption)
{
    const QStringList offered =
        completed(*GetParam() ? QStringList{q(GetParam()), q("--")} : QStringList{q("--")});
    for (const QString &option : options())
        EXPECT_TRUE(offered.contains(q("--") + option)) << "--" << option.toStdString();
    EXPECT_FALSE(offered.contains(q("--nonsense")));
}

INSTANTIATE_TEST_SUITE_P(, Manual, testing::Values("", "replay", "log", "check-ppd"),
                         [](const auto &instance) {
                             const QString name = q(instance.param).remove(u'-');
                             return name.isEmpty() ? std::string("dialog") : name.toStdString();
                         });

/// The files themselves.
class Packaging : public Manual
{
};

TEST_P(Packaging, CommandsAndFilesAreCompleted)
{
    EXPECT_TRUE(completed({q("che")}).contains(q("check-ppd")));
    EXPECT_EQ(completed({q("log"), q("--k")}), QStringList{q("--kind")});
    EXPECT_EQ(completed({q("log"), q("--kind"), q("E")}), QStringList{q("E")});
    const QString ppd = room.write("a.ppd", "");
    room.write("b.txt", "");
    EXPECT_EQ(completed({q("check-ppd"), room.path("")}), QStringList{room.path("")});
    EXPECT_EQ(completed({q("check-ppd"), room.path("a")}), QStringList{ppd});
    EXPECT_EQ(completed({q("check-ppd"), room.path("b")}), QStringList());
    EXPECT_EQ(completed({q("--ppd"), room.path("a")}), QStringList{ppd});
    EXPECT_EQ(completed({q("replay"), room.path("b")}), QStringList{room.path("b.txt")});
}

TEST_P(Packaging, ManualPageHasNoWarnings)
{
    if (QStandardPaths::findExecutable(q("man")).isEmpty())
        GTEST_SKIP() << "there is no man";
    const CommandRun run = room.run(q("man"), {q("-l"), q("--warnings"), kManual});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    for (const char *title : {"SYNOPSIS", "OPTIONS", "ENVIRONMENT", "FILES", "EXIT STATUS"})
        EXPECT_TRUE(run.output.contains(title)) << title;
}

TEST_P(Packaging, ManualPageIsCleanForMandoc)
{
    if (QStandardPaths::findExecutable(q("mandoc")).isEmpty())
        GTEST_SKIP() << "there is no mandoc";
    const CommandRun run = room.run(q("mandoc"), {q("-Tlint"), q("-Wwarning"), kManual});
    EXPECT_EQ(run.status, 0) << run.output.constData();
}

INSTANTIATE_TEST_SUITE_P(, Packaging, testing::Values(""),
                         [](const auto &) { return std::string("files"); });

} // namespace
