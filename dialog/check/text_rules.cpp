#include "dialog/check/text_rules.h"

#include "dialog/printers/ppd_encoding.h"

#include <QHash>
#include <QStringDecoder>

#include <algorithm>
#include <optional>
#include <set>

namespace dialog::check {
namespace {

using Severity = PDEFinding::Severity;

constexpr char kEncodingKeyword[] = "LanguageEncoding";

/// A text in the encoding of its PPD.
struct DecodedText
{
    QString text;
    bool isValid = true;
};

DecodedText decode(const QByteArray &bytes, const char *encoding)
{
    QStringDecoder decoder(encoding ? encoding : "UTF-8", QStringDecoder::Flag::Stateless);
    DecodedText decoded{.text = decoder.decode(bytes), .isValid = !decoder.hasError()};
    // The converter of some encodings puts "substitute" where it cannot read.
    decoded.isValid = decoded.isValid && !decoded.text.contains(QChar::ReplacementCharacter) &&
                      !decoded.text.contains(QChar(0x1A));
    return decoded;
}

/// A line whose text a person reads: one that opens an option, or a choice of it.
struct ShownText
{
    const PpdLine *line;
    QString option;
    QString choice; ///< null: the option itself
    DecodedText decoded;

    [[nodiscard]] QString name() const { return choice.isNull() ? option : option + u' ' + choice; }
    [[nodiscard]] Finding finding(Severity severity, const QString &what, const char *remedy) const
    {
        return {line->number,
                {.severity = severity,
                 .option = option,
                 .choice = choice,
                 .what = what,
                 .remedy = QString::fromLatin1(remedy)}};
    }
};

std::vector<ShownText> shownTexts(const PpdLines &lines, const char *encoding)
{
    std::vector<ShownText> texts;
    std::set<QByteArray> opened;
    for (const PpdLine &line : lines.all()) {
        const QByteArray option = PpdLines::openedOption(line);
        opened.insert(option.isEmpty() ? QByteArray() : option);
        const bool isChoice =
            option.isEmpty() && opened.count(line.keyword) && !line.option.isEmpty();
        if (option.isEmpty() && !isChoice)
            continue;
        const QByteArray keyword = isChoice ? line.option : option;
        texts.push_back({.line = &line,
                         .option = QString::fromUtf8(isChoice ? line.keyword : option),
                         .choice = isChoice ? QString::fromUtf8(line.option) : QString(),
                         .decoded = decode(line.text.isEmpty() ? keyword : line.text, encoding)});
    }
    return texts;
}

void findEncoding(const PpdLines &lines, Findings &findings)
{
    const QByteArray word = lines.valueOf(kEncodingKeyword);
    if (!lines.hasKeyword(kEncodingKeyword))
        findings.push_back({1,
                            {.what = QStringLiteral("no encoding of texts is named"),
                             .remedy = QStringLiteral("add *LanguageEncoding: UTF-8")}});
    else if (!encodingName(word))
        findings.push_back(
            {lines.lineOf(QString::fromLatin1(kEncodingKeyword)),
             {.severity = Severity::Error,
              .what = QStringLiteral("the encoding %1 is not known, texts are shown as they stand")
                          .arg(QString::fromUtf8(word)),
              .remedy = QStringLiteral("write the file in UTF-8 and say so")}});
}

void findInvalidTexts(const std::vector<ShownText> &texts, Findings &findings)
{
    for (const ShownText &text : texts)
        if (!text.decoded.isValid)
            findings.push_back(text.finding(
                Severity::Error,
                QStringLiteral("the text of %1 is not in the file's encoding").arg(text.name()),
                "correct the text or *LanguageEncoding"));
}

bool endsInsideCharacter(const QByteArray &utf8)
{
    return QString::fromUtf8(utf8).endsWith(QChar::ReplacementCharacter);
}

void findCutTexts(const std::vector<ShownText> &texts, Findings &findings)
{
    for (const ShownText &text : texts) {
        const QByteArray utf8 = text.decoded.text.toUtf8();
        if (!text.decoded.isValid || utf8.size() <= kLongestText)
            continue;
        const bool isInside = endsInsideCharacter(utf8.first(kLongestText));
        findings.push_back(text.finding(
            isInside ? Severity::Error : Severity::Warning,
            QStringLiteral("the text of %1 is cut after %2 bytes%3")
                .arg(text.name())
                .arg(kLongestText)
                .arg(isInside ? QStringLiteral(", in the middle of a character") : QString()),
            "shorten it"));
    }
}

/// As it is shown.
QString cut(const QString &text)
{
    return QString::fromUtf8(text.toUtf8().left(kLongestText));
}

/// Page regions repeat the page sizes.
bool isRepetition(const ShownText &text)
{
    return text.choice.isNull() && text.option == QLatin1String("PageRegion");
}

void findEqualTexts(const std::vector<ShownText> &texts, Findings &findings)
{
    QHash<std::pair<QString, QString>, QString> seen; // option (null for options) and text to name
    for (const ShownText &text : texts) {
        if (isRepetition(text))
            continue;
        const QString group = text.choice.isNull() ? QString() : text.option;
        const QString name = text.choice.isNull() ? text.option : text.choice;
        const std::pair key(group, cut(text.decoded.text));
        const auto former = seen.constFind(key);
        if (former == seen.cend())
            seen.insert(key, name);
        else if (*former != name)
            findings.push_back(
                text.finding(Severity::Warning,
                             QStringLiteral("%1 has the same text as %2").arg(text.name(), *former),
                             "give each a text of its own"));
    }
}

} // namespace

Findings textFindings(const PpdLines &lines)
{
    const std::vector<ShownText> texts =
        shownTexts(lines, encodingName(lines.valueOf(kEncodingKeyword)));
    Findings findings;
    findEncoding(lines, findings);
    findInvalidTexts(texts, findings);
    findCutTexts(texts, findings);
    findEqualTexts(texts, findings);
    return findings;
}

} // namespace dialog::check
