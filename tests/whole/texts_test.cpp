#include "tests/support/print_to.h"
#include "tests/whole/run.h"
#include "tests/whole/source_trace.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace test;

namespace {

constexpr std::pair<const char *, Channel> kChannels[] = {
    {"console", Channel::Console}, {"info", Channel::Info},
    {"error", Channel::Error},     {"window", Channel::Window},
    {"title", Channel::Title},     {"label", Channel::Label},
    {"kind", Channel::Kind},       {"notification", Channel::Notification},
};

/// One line of texts.txt.
struct ListedText
{
    QString place; ///< a channel's name, or "in FILE:"
    QString text;
};

QStringList lines()
{
    QStringList all = sourceText(q("tests/whole/texts.txt")).split(u'\n', Qt::SkipEmptyParts);
    all.removeIf([](const QString &line) { return line.startsWith(u'#'); });
    return all;
}

QString unescaped(QString text)
{
    return text.replace(q("\\n"), q("\n")).replace(q("\\t"), q("\t"));
}

QList<ListedText> textsOf(const char *channel)
{
    QList<ListedText> texts;
    for (const QString &line : lines())
        if (line.section(u' ', 0, 0) == q(channel))
            texts.append({q(channel), unescaped(line.section(u' ', 1))});
    return texts;
}

/// The whole text, with anything where something varies.
QRegularExpression patternOf(const QString &text)
{
    QString pattern = QRegularExpression::escape(text);
    for (const char *variable : {"%@", "%s"})
        pattern.replace(QRegularExpression::escape(q(variable)), q(".*"));
    pattern.replace(QRegularExpression::escape(q("%d")), q("-?\\d+"));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

/// Listed texts that were not seen, and seen ones that are not listed.
std::string differences(const QList<ListedText> &listed, const QStringList &seen)
{
    QStringList open = seen;
    QStringList lines;
    for (const ListedText &text : listed) {
        const QRegularExpression pattern = patternOf(text.text);
        const auto matches = [&](const QString &one) { return pattern.match(one).hasMatch(); };
        if (std::none_of(seen.begin(), seen.end(), matches))
            lines.append(q("not seen: ") + text.text);
        open.removeIf(matches);
    }
    for (const QString &text : open)
        lines.append(q("not listed: ") + text);
    return lines.join(u'\n').toStdString();
}

} // namespace

TEST(Texts, EachIsSeenInARunOfTheWholeSystemAndNoOther)
{
    SystemRun run;
    run.play();
    for (const auto &[name, channel] : kChannels) {
        EXPECT_FALSE(textsOf(name).isEmpty()) << name;
        EXPECT_EQ(differences(textsOf(name), run.texts(channel)), "") << name;
    }
}

TEST(Texts, TheRestIsSeenInTheTestThatIsNamed)
{
    int seen = 0;
    for (const QString &line : lines()) {
        if (!line.startsWith(q("in ")))
            continue;
        const QString file = line.mid(3).section(q(": "), 0, 0);
        EXPECT_TRUE(sourceText(file).contains(line.mid(3).section(q(": "), 1)))
            << line.toStdString();
        ++seen;
    }
    EXPECT_EQ(seen, 20);
}

TEST(Texts, EachLineOfTheListNamesItsPlace)
{
    for (const QString &line : lines()) {
        const bool hasChannel =
            std::any_of(std::begin(kChannels), std::end(kChannels), [&](const auto &channel) {
                return line.startsWith(q(channel.first) + u' ');
            });
        EXPECT_TRUE(hasChannel || line.startsWith(q("in "))) << line.toStdString();
    }
}
