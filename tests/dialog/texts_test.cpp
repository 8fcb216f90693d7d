#include "dialog/texts.h"

#include "platform/values.h"
#include "tests/support/print_to.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

struct Message
{
    QString source;
    QStringList translations; ///< one per plural form
    bool isFinished = false;
};

QStringList readForms(QXmlStreamReader &xml)
{
    QStringList forms;
    QString text;
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::EndElement) {
        if (xml.isStartElement())
            forms.append(xml.readElementText());
        else
            text += xml.text();
    }
    return forms.isEmpty() ? QStringList{text} : forms;
}

std::vector<Message> messagesIn(const QString &language)
{
    QFile file(q(KORVANE_SOURCE_DIR "/dialog/i18n/korvane-print_%1.ts").arg(language));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    std::vector<Message> messages;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"source")
            messages.push_back({xml.readElementText(), {}, false});
        if (xml.isStartElement() && xml.name() == u"translation") {
            messages.back().isFinished = xml.attributes().value(QLatin1String("type")).isEmpty();
            messages.back().translations = readForms(xml);
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

/// Each "%1" once, in the order of the numbers; "%n" may be missing where a form says the number
/// in words.
QStringList argumentsOf(const QString &text)
{
    static const QRegularExpression argument(q("%[1-9]"));
    QStringList found;
    for (const QRegularExpressionMatch &match : argument.globalMatch(text))
        found.append(match.captured());
    found.sort();
    return found;
}

class MessageFile : public testing::TestWithParam<const char *>
{
};

TEST_P(MessageFile, TakesTheArgumentsOfEachTextAndLeavesNoneEmpty)
{
    for (const Message &message : messagesIn(q(GetParam())))
        for (const QString &text : message.translations) {
            if (!message.isFinished)
                continue;
            SCOPED_TRACE(message.source.toStdString());
            EXPECT_FALSE(text.trimmed().isEmpty());
            EXPECT_EQ(argumentsOf(text), argumentsOf(message.source)) << text.toStdString();
            EXPECT_FALSE(text.contains(q("%n")) && !message.source.contains(q("%n")));
        }
}

/// No typewriter quotes; in French an unbreakable blank before a colon and inside of quotes.
TEST_P(MessageFile, KeepsToTheTypographyOfTheLanguage)
{
    static const QRegularExpression anywhere(q("[\"']|\\.\\.\\.|  "));
    static const QRegularExpression french(q("[^\\x{a0}\\x{202f}]([;!?»]|:( |$))|«[^\\x{a0}]"));
    for (const Message &message : messagesIn(q(GetParam())))
        for (const QString &text : message.translations) {
            EXPECT_FALSE(anywhere.match(text).hasMatch()) << text.toStdString();
            if (q(GetParam()) == q("fr")) {
                EXPECT_FALSE(french.match(text).hasMatch()) << text.toStdString();
            }
        }
}

INSTANTIATE_TEST_SUITE_P(Languages, MessageFile,
                         testing::Values("de", "en", "es", "fr", "it", "ja", "pt", "zh_CN"),
                         [](const auto &language) { return std::string(language.param); });

struct Speak
{
    QStringList preferred;
    const char *cancel;
};

TEST(Texts, ComeInTheFirstPreferredLanguageAndEnglishForOneThatTheyLack)
{
    const Speak kWords[] = {
        {{q("en")}, "Cancel"},          {{q("de_AT"), q("ja")}, "Abbrechen"},
        {{q("ja")}, "キャンセル"},      {{q("fr-CA")}, "Annuler"},
        {{q("zh_CN")}, "取消"},         {{q("zh_TW")}, "Cancel"},
        {{q("sv"), q("de")}, "Cancel"}, {{}, "Cancel"},
    };
    for (const Speak &words : kWords) {
        platform::setPreferredLanguages(words.preferred);
        installTexts();
        EXPECT_TEXT(QCoreApplication::translate("dialog::PrintWindow", "Cancel"), words.cancel);
    }
}

TEST(Texts, CountInTheFormsOfTheLanguage)
{
    const auto copies = [](const char *language, int count) {
        platform::setPreferredLanguages({q(language)});
        installTexts();
        return QCoreApplication::translate("PreviewWords", "%n copies", nullptr, count);
    };
    EXPECT_TEXT(copies("en", 1), "1 copy");
    EXPECT_TEXT(copies("en", 2), "2 copies");
    EXPECT_TEXT(copies("de", 1), "1 Exemplar");
    EXPECT_TEXT(copies("fr", 0), "0 exemplaire");
    EXPECT_TEXT(copies("fr", 2), "2 exemplaires");
    EXPECT_TEXT(copies("ja", 2), "2 部");
    EXPECT_TEXT(copies("sv", 1), "1 copy");
    EXPECT_TEXT(copies("C", 2), "2 copies");
}

} // namespace
