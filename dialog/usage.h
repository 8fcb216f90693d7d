#pragma once

#include <QCommandLineParser>
#include <QString>

namespace dialog {

/// Status of a command that could not do what it was asked to.
inline constexpr int kCouldNotStart = 2;

// Options as the program describes them; the texts are ASCII.
[[nodiscard]] QCommandLineOption valueOption(const char *name, const char *description,
                                             const char *value);
[[nodiscard]] QCommandLineOption flagOption(const char *name, const char *description);
/// "-h, --help", which every command has.
[[nodiscard]] QCommandLineOption helpOption();

/// Null where the option was not given.
[[nodiscard]] QString given(const QCommandLineParser &parser, const char *option);

/// The parser's help, with the program's own name in its first line.
[[nodiscard]] QString helpText(const QCommandLineParser &parser);

/// One line to standard output.
void say(const QString &line);
/// One line to standard error, with the program's name before it.
void complain(const QString &message);
/// complain(), then kCouldNotStart.
[[nodiscard]] int refuse(const QString &message);
/// As it stands, to standard output; false when it could not be written.
[[nodiscard]] bool writeOut(const QByteArray &bytes);

} // namespace dialog
