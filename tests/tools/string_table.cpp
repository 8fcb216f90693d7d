#include "tests/tools/string_table.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace strings {
namespace {

/// The one key whose text is used as a format: "%@" stands for the printer's model name.
const QString formatKey = QStringLiteral("2) Launch the Korvane Utility");

QString endBlanks(const QString &text)
{
    static const QRegularExpression blanks(QStringLiteral("^( *).*?( *)$"),
                                           QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = blanks.match(text);
    return match.captured(1) + QLatin1Char('|') + match.captured(2);
}

QString stepNumber(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("^\\d+\\) "));
    return number.match(text).captured();
}

QStringList placeholders(const QString &key, QString text)
{
    if (key == formatKey)
        text.remove(QStringLiteral("%@"));
    static const QRegularExpression placeholder(QStringLiteral("%."));
    QStringList found;
    for (const QRegularExpressionMatch &match : placeholder.globalMatch(text))
        found.append(match.captured());
    return found;
}

QStringList faultsOfText(const QString &key, const QString &text)
{
    QStringList faults;
    if (text.trimmed().isEmpty())
        faults.append(QStringLiteral("empty"));
    if (endBlanks(text) != endBlanks(key))
        faults.append(QStringLiteral("other blanks at the ends"));
    if (stepNumber(text) != stepNumber(key))
        faults.append(QStringLiteral("another step number"));
    if (!placeholders(key, text).isEmpty())
        faults.append(QStringLiteral("a placeholder"));
    return faults;
}

} // namespace

QString sourcePath(const QString &language)
{
    return QStringLiteral(KORVANE_RESOURCES_DIR "/strings/Localizable_%1.ts").arg(language);
}

Source readSource(const QString &path)
{
    Source source;
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        source.faults.append(QStringLiteral("cannot be read"));
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name") &&
            xml.readElementText() != QLatin1String("Localizable"))
            source.faults.append(QStringLiteral("a context that is not looked up"));
        else if (xml.name() == QLatin1String("source"))
            source.keysInOrder.append(xml.readElementText());
        else if (xml.name() == QLatin1String("translation")) {
            if (xml.attributes().hasAttribute(QLatin1String("type")))
                source.faults.append(QStringLiteral("unfinished: ") +
                                     source.keysInOrder.constLast());
            source.texts.insert(source.keysInOrder.constLast(), xml.readElementText());
        }
    }
    if (xml.hasError())
        source.faults.append(xml.errorString());
    return source;
}

Table readTable()
{
    Table table;
    for (const QString &language : languages)
        table.insert(language, readSource(sourcePath(language)).texts);
    return table;
}

QStringList translatableTexts(const QString &interfaceFile)
{
    QFile file(interfaceFile);
    if (!file.open(QFile::ReadOnly))
        return {QStringLiteral("cannot be read: ") + interfaceFile};
    QStringList texts;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement ||
            xml.name() != QLatin1String("string"))
            continue;
        const bool fixed = xml.attributes().value(QLatin1String("notr")) == QLatin1String("true");
        const QString text = xml.readElementText();
        if (!fixed && !text.isEmpty())
            texts.append(text);
    }
    return texts;
}

QStringList faultsOf(const Table &table)
{
    const QString english = QStringLiteral("en");
    const QStringList keys = table.value(english).keys();
    QStringList faults;
    for (auto language = table.cbegin(); language != table.cend(); ++language) {
        const auto report = [&](const QString &key, const QString &fault) {
            faults.append(QStringLiteral("%1: \"%2\": %3").arg(language.key(), key, fault));
        };
        for (const QString &key : keys) {
            if (!language->contains(key)) {
                report(key, QStringLiteral("no text"));
                continue;
            }
            for (const QString &fault : faultsOfText(key, language->value(key)))
                report(key, fault);
            if (language.key() == english && language->value(key) != key)
                report(key, QStringLiteral("not its own text"));
        }
        for (const QString &key : language->keys()) {
            if (!keys.contains(key))
                report(key, QStringLiteral("no such key"));
        }
    }
    return faults;
}

} // namespace strings
