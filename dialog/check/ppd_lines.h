#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace dialog::check {

/// One keyword line of a PPD as it stands in the file: "*Keyword Option/Text: Value".
struct PpdLine
{
    int number = 0;     ///< from 1
    QByteArray keyword; ///< without "*"
    QByteArray option;  ///< empty where the line has none; of OpenUI with its "*"
    QByteArray text;    ///< raw, with "<hex>" pieces made bytes; empty where there is none
    QByteArray value;   ///< up to the end of the line, without quotes
};

/// A PPD's lines, read without libcups, which keeps no line numbers. Comments and the inner lines
/// of quoted values are left out.
class PpdLines
{
public:
    explicit PpdLines(const QByteArray &bytes);

    [[nodiscard]] const std::vector<PpdLine> &all() const { return lines_; }

    /// Number of the line to blame for an option or one of its choices: the choice's own, else the
    /// one that opens the option, else the first with that keyword, else 1.
    [[nodiscard]] int lineOf(const QString &option, const QString &choice = {}) const;
    /// Whether any line has the keyword.
    [[nodiscard]] bool hasKeyword(const char *keyword) const;
    /// Value of the first line with the keyword; null when there is none.
    [[nodiscard]] QByteArray valueOf(const char *keyword) const;

    /// The option that the line opens; empty for any other line.
    [[nodiscard]] static QByteArray openedOption(const PpdLine &line);

private:
    std::vector<PpdLine> lines_;
};

} // namespace dialog::check
