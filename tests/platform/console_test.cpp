#include "platform/console.h"
#include "tests/support/console_capture.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using test::q;

namespace {

QString lastMessage;

void keepMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    lastMessage = QStringLiteral("%1 %2 %3").arg(type).arg(QLatin1String(context.category), text);
}

/// The message that Qt's log gets from one line written to the default sink.
QString defaultOutput(const QString &line)
{
    const platform::ConsoleSink former = platform::setConsoleSink({});
    const QtMessageHandler handler = qInstallMessageHandler(keepMessage);
    platform::writeConsole(line);
    qInstallMessageHandler(handler);
    (void)platform::setConsoleSink(former);
    return lastMessage;
}

TEST(Console, PassesEachLineAsItStands)
{
    const test::ConsoleCapture console;
    platform::writeConsole(q("100% %s %1 %@\n"));
    platform::writeConsole(q(""));
    platform::writeConsole(q("two\nlines"));
    EXPECT_EQ(console.lines(), QStringList({q("100% %s %1 %@\n"), q(""), q("two\nlines")}));
}

TEST(Console, WritesToALoggingCategoryByDefault)
{
    const QString info = QStringLiteral("%1 korvane.console ").arg(QtInfoMsg);
    EXPECT_EQ(defaultOutput(q("a \"line\" %s")), info + q("a \"line\" %s"));
    EXPECT_EQ(defaultOutput(q("with its line feed\n")), info + q("with its line feed"));
}

TEST(Console, ReturnsTheFormerSink)
{
    QStringList lines;
    (void)platform::setConsoleSink([&lines](const QString &line) { lines += line; });
    const platform::ConsoleSink former = platform::setConsoleSink([](const QString &) {});
    platform::writeConsole(q("to the new one"));
    former(q("to the old one"));
    EXPECT_EQ(lines, QStringList({q("to the old one")}));
}

TEST(Console, SurvivesASinkThatReplacesItself)
{
    QStringList lines;
    (void)platform::setConsoleSink([&lines, mark = q("kept")](const QString &line) {
        (void)platform::setConsoleSink([](const QString &) {});
        lines += line + mark;
    });
    platform::writeConsole(q("first "));
    platform::writeConsole(q("second "));
    EXPECT_EQ(lines, QStringList({q("first kept")}));
}

} // namespace
