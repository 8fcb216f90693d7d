#include "dialog/replay/shell_words.h"

#include <QRegularExpression>

namespace dialog::replay {
namespace {

class Splitter
{
public:
    explicit Splitter(const QString &line) : line_(line) {}

    ShellWords split()
    {
        for (skipBlanks(); !atEnd() && !startsComment(); skipBlanks()) {
            QString word = QStringLiteral("");
            readWord(word);
            if (!result_.error.isNull())
                return result_;
            result_.words.append(word);
        }
        return result_;
    }

private:
    [[nodiscard]] bool atEnd() const { return at_ >= line_.size(); }
    [[nodiscard]] static bool isBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\r'; }

    void skipBlanks()
    {
        while (!atEnd() && isBlank(line_[at_]))
            ++at_;
    }

    [[nodiscard]] bool startsComment() const { return line_[at_] == u'#' && !isIndexOfChoose(); }

    [[nodiscard]] bool isIndexOfChoose() const
    {
        static const QRegularExpression index(QStringLiteral("^#[0-9]+(?=\\s|$)"));
        return result_.words.size() == 2 && result_.words.first() == QLatin1String("choose") &&
               index.match(line_.mid(at_)).hasMatch();
    }

    void readWord(QString &word)
    {
        while (!atEnd() && !isBlank(line_[at_]) && result_.error.isNull()) {
            const QChar c = line_[at_++];
            if (c == u'\'')
                readSingleQuoted(word);
            else if (c == u'"')
                readDoubleQuoted(word);
            else if (c == u'\\')
                readEscaped(word);
            else
                word += c;
        }
    }

    void readSingleQuoted(QString &word)
    {
        const qsizetype end = line_.indexOf(u'\'', at_);
        if (end < 0) {
            result_.error = QStringLiteral("a ' is not closed");
            return;
        }
        word += line_.mid(at_, end - at_);
        at_ = end + 1;
    }

    /// Inside double quotes a backslash quotes only what would mean something there.
    void readDoubleQuoted(QString &word)
    {
        for (; !atEnd() && line_[at_] != u'"'; ++at_) {
            const bool quotes = line_[at_] == u'\\' && at_ + 1 < line_.size() &&
                                QStringLiteral("$`\"\\").contains(line_[at_ + 1]);
            word += line_[quotes ? ++at_ : at_];
        }
        if (atEnd())
            result_.error = QStringLiteral("a \" is not closed");
        ++at_;
    }

    void readEscaped(QString &word)
    {
        if (atEnd())
            result_.error = QStringLiteral("nothing follows the \\ at the end of the line");
        else
            word += line_[at_++];
    }

    const QString &line_;
    qsizetype at_ = 0;
    ShellWords result_;
};

} // namespace

ShellWords shellWords(const QString &line)
{
    return Splitter(line).split();
}

} // namespace dialog::replay
