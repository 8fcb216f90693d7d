#include "dialog/usage.h"

#include <cstdio>

namespace dialog {
namespace {

void writeLine(std::FILE *stream, const QString &line)
{
    std::fputs(line.toUtf8().constData(), stream);
    std::fputc('\n', stream);
    std::fflush(stream);
}

} // namespace

QCommandLineOption valueOption(const char *name, const char *description, const char *value)
{
    return {QString::fromLatin1(name), QString::fromLatin1(description),
            QString::fromLatin1(value)};
}

QCommandLineOption flagOption(const char *name, const char *description)
{
    return {QString::fromLatin1(name), QString::fromLatin1(description)};
}

QCommandLineOption helpOption()
{
    return {{QStringLiteral("h"), QStringLiteral("help")},
            QStringLiteral("Show this text and leave.")};
}

QString given(const QCommandLineParser &parser, const char *option)
{
    const QString name = QString::fromLatin1(option);
    return parser.isSet(name) ? parser.value(name) : QString();
}

/// Without an application the parser does not know the program's name.
QString helpText(const QCommandLineParser &parser)
{
    QString text = parser.helpText();
    return text.replace(QStringLiteral("<executable_name>"), QStringLiteral("korvane-print"));
}

void say(const QString &line)
{
    writeLine(stdout, line);
}

void complain(const QString &message)
{
    writeLine(stderr, QStringLiteral("korvane-print: ") + message);
}

int refuse(const QString &message)
{
    complain(message);
    return kCouldNotStart;
}

bool writeOut(const QByteArray &bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stdout) == size;
}

} // namespace dialog
