#include "tests/whole/source_trace.h"

#include "tests/support/print_to.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace test {
namespace {

constexpr const char *kRooms[] = {"model", "conflict", "quality", "other", "plugin"};
/// The classes for which PanelObject is made.
constexpr const char *kPanelObjects[] = {"MainPDE2", "MainPDE3"};

/// First group of every match.
QStringList captures(const QString &text, const char *pattern)
{
    QStringList found;
    const QRegularExpression expression(q(pattern), QRegularExpression::MultilineOption);
    for (const QRegularExpressionMatch &match : expression.globalMatch(text))
        found.append(match.captured(1));
    return found;
}

/// Adjacent string literals made one.
QString joined(QString literal)
{
    return literal.remove(QRegularExpression(q("\"\\s*\"")));
}

QStringList inMacros(const QString &text)
{
    QStringList selectors;
    if (!text.contains(q("KV_TRACE(\"-[PDEModel2 \" #setter \":]\")")))
        return selectors;
    for (const QString &setter : captures(
             text, "^KV_TRACED_(?:OPTION|STRING|SPEAKING_STRING)\\(\\w+,\\s*\\w+,\\s*(\\w+)\\)"))
        selectors.append(q("-[PDEModel2 %1:]").arg(setter));
    return selectors;
}

QStringList inFile(const QString &text)
{
    QStringList selectors;
    for (const QString &literal : captures(text, "KV_TRACE\\(\\s*\"([^;#]*)\"\\s*\\);"))
        selectors.append(joined(literal));
    for (const QString &constant : captures(text, "KV_TRACE\\((\\w+)\\);")) {
        const QString pattern = constant + q("\\[\\] = \"([^\"]*)\";");
        selectors.append(captures(text, pattern.toUtf8().constData()));
    }
    for (const QString &operation : captures(text, "KV_TRACE\\(\\{className_, \"([^\"]*)\"\\}\\);"))
        for (const char *className : kPanelObjects)
            selectors.append(q("-[%1 %2]").arg(q(className), operation));
    return selectors + inMacros(text);
}

QString withoutComments(QString text)
{
    return text.remove(QRegularExpression(q("//[^\\n]*")));
}

} // namespace

QString sourceText(const QString &path)
{
    QFile file(QDir(q(KORVANE_SOURCE_DIR)).filePath(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

QStringList selectorsTracedInSource()
{
    QStringList selectors;
    for (const char *room : kRooms) {
        QDirIterator files(QDir(q(KORVANE_SOURCE_DIR)).filePath(q(room)), {q("*.cpp"), q("*.h")},
                           QDir::Files);
        while (files.hasNext()) {
            const QString path = files.next();
            selectors.append(inFile(sourceText(path)));
        }
    }
    selectors.sort();
    return selectors;
}

QStringList publicFunctions(const QString &headerPath, const QString &className)
{
    const QString text = withoutComments(sourceText(headerPath));
    const qsizetype begin =
        text.indexOf(QRegularExpression(q("\\n(class|struct) ") + className + q("\\b[^;]*\\{")));
    EXPECT_GE(begin, 0) << className.toStdString();
    const QString body = text.mid(begin, text.indexOf(q("\n};"), begin) - begin);
    QSet<QString> names;
    bool isPublic = false;
    for (const QString &line : body.split(u'\n')) {
        if (line.endsWith(u':') && !line.startsWith(u' '))
            isPublic = line == q("public:");
        else if (isPublic)
            for (const QString &name : captures(line, "^    (?:\\S.*[ *&])?"
                                                      "?(\\w+)\\([^()]*(?:\\([^()]*\\))?[^()]*"))
                names.insert(name);
    }
    names.remove(className);
    QStringList sorted = names.values();
    sorted.sort();
    return sorted;
}

} // namespace test
