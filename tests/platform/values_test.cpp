#include "platform/values.h"
#include "tests/support/print_to.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <map>

using test::q;

namespace {

/// Platform values before any test touched them.
struct AtStart
{
    QString driverRoot = platform::driverRoot();
    int systemVersion = platform::systemVersion();
    QStringList languages = platform::preferredLanguages();
    QStringList environment = platform::languagesOfEnvironment();
};
const AtStart atStart;

using Variables = std::map<const char *, const char *>;

/// The given variables and none else of those that say where and in which language, while it lives.
class Environment
{
public:
    explicit Environment(const Variables &variables)
    {
        for (const char *name : kNames) {
            if (qEnvironmentVariableIsSet(name))
                former_[name] = qgetenv(name);
            qunsetenv(name);
        }
        for (const auto &[name, value] : variables)
            qputenv(name, value);
    }
    ~Environment()
    {
        for (const char *name : kNames)
            former_.contains(name) ? qputenv(name, former_[name]) : qunsetenv(name);
    }
    Environment(const Environment &) = delete;
    Environment &operator=(const Environment &) = delete;

private:
    static constexpr const char *kNames[] = {"LANGUAGE", "LC_ALL", "LC_MESSAGES",
                                             "LANG",     "TMPDIR", "XDG_RUNTIME_DIR"};
    std::map<QByteArray, QByteArray> former_;
};

TEST(Defaults, AreTheRunningSystems)
{
    EXPECT_TEXT(atStart.driverRoot, "");
    EXPECT_EQ(atStart.systemVersion, 0x1060);
    EXPECT_EQ(atStart.languages, atStart.environment);
}

TEST(Root, StandsBeforeAbsolutePathsOnly)
{
    platform::setDriverRoot(q("/srv/root"));
    EXPECT_TEXT(platform::resolved(q("/Library/Printers")), "/srv/root/Library/Printers");
    EXPECT_TEXT(platform::resolved(q("Library")), "Library");
    EXPECT_TEXT(platform::resolved(q("")), "");
    EXPECT_NULL(platform::resolved(QString()));
}

TEST(Root, LeavesTheLiteralPathAsItIs)
{
    platform::setDriverRoot(q("/srv/root"));
    EXPECT_TEXT(platform::resolved(q("//.Config/(null).plist")), "/srv/root//.Config/(null).plist");
}

TEST(Root, IsTheRealOneWhenEmpty)
{
    for (const QString &root : {QString(), q(""), q("/")}) {
        platform::setDriverRoot(q("/srv"));
        platform::setDriverRoot(root);
        EXPECT_TEXT(platform::driverRoot(), "");
        EXPECT_TEXT(platform::resolved(q("/a")), "/a");
    }
}

TEST(Root, LosesItsFinalSlash)
{
    platform::setDriverRoot(q("/srv/root/"));
    EXPECT_TEXT(platform::driverRoot(), "/srv/root");
}

TEST(SystemVersion, IsAnsweredByGestalt)
{
    std::int32_t response = -1;
    EXPECT_EQ(Gestalt(gestaltSystemVersion, &response), noErr);
    EXPECT_EQ(response, 0x1060);
    platform::setSystemVersion(0x1049);
    EXPECT_EQ(Gestalt(gestaltSystemVersion, &response), noErr);
    EXPECT_EQ(response, 0x1049);
    EXPECT_EQ(Gestalt(gestaltSystemVersion, nullptr), noErr);
}

TEST(SystemVersion, IsTheOnlySelectorOfGestalt)
{
    std::int32_t response = 42;
    EXPECT_EQ(Gestalt(0x73797377, &response), gestaltUndefSelectorErr);
    EXPECT_EQ(response, 42);
}

TEST(Languages, ComeFromTheFirstVariableThatIsSet)
{
    const auto first = [](const Variables &variables) {
        const Environment environment(variables);
        return platform::languagesOfEnvironment().constFirst();
    };
    EXPECT_TEXT(first({{"LANGUAGE", "de_AT:fr"}, {"LC_ALL", "ja_JP"}, {"LANG", "es"}}), "de_AT");
    EXPECT_TEXT(first({{"LC_ALL", "ja_JP.UTF-8"}, {"LC_MESSAGES", "it"}, {"LANG", "es"}}), "ja_JP");
    EXPECT_TEXT(first({{"LC_MESSAGES", "it_IT"}, {"LANG", "es"}}), "it_IT");
    EXPECT_TEXT(first({{"LANG", "es_ES"}}), "es_ES");
    EXPECT_TEXT(first({{"LANGUAGE", ""}, {"LC_ALL", ""}, {"LANG", "es_ES"}}), "es_ES");
    EXPECT_TEXT(first({{"LANGUAGE", "::"}, {"LANG", "es_ES"}}), "es_ES");
    EXPECT_TEXT(first({}), "en");
}

TEST(Languages, LoseEncodingAndModifier)
{
    const Environment environment(
        Variables{{"LANGUAGE", "zh_CN.UTF-8:de_DE@euro:pt_BR.ISO8859-1@x"}});
    EXPECT_EQ(platform::languagesOfEnvironment(),
              QStringList({q("zh_CN"), q("de_DE"), q("pt_BR")}));
}

TEST(Languages, AreEnglishInTheCLocale)
{
    for (const char *name : {"C", "POSIX", "C.UTF-8"}) {
        const Environment environment(Variables{{"LANG", name}});
        EXPECT_EQ(platform::languagesOfEnvironment(), QStringList({q("en")})) << name;
    }
}

TEST(Languages, AreWhatTheHostSets)
{
    const Environment environment(Variables{{"LANG", "es_ES"}});
    platform::setPreferredLanguages({q("ja"), q("en")});
    EXPECT_EQ(platform::preferredLanguages(), QStringList({q("ja"), q("en")}));
    EXPECT_TEXT(platform::firstPreferredLanguage(), "ja");
    platform::setPreferredLanguages({});
    EXPECT_NULL(platform::firstPreferredLanguage());
}

TEST(LocaleValue, HasIdentifierAndLanguageCode)
{
    platform::setLocaleIdentifier(q("de_AT"));
    EXPECT_TEXT(platform::localeIdentifier(), "de_AT");
    EXPECT_TEXT(platform::localeLanguageCode(), "de");
    platform::setLocaleIdentifier(q("zh-Hans-CN"));
    EXPECT_TEXT(platform::localeLanguageCode(), "zh");
    platform::setLocaleIdentifier(q("ja"));
    EXPECT_TEXT(platform::localeLanguageCode(), "ja");
}

TEST(LocaleValue, IsTheUsersOwnUntilSet)
{
    platform::setLocaleIdentifier(QString());
    const QLocale former;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
    EXPECT_EQ(platform::localeIdentifier(), QLocale::system().name());
    QLocale::setDefault(former);
}

TEST(TemporaryDirectory, ComesFromTheEnvironmentAtEachCall)
{
    const auto directory = [](const Variables &variables) {
        const Environment environment(variables);
        return platform::temporaryDirectory();
    };
    EXPECT_TEXT(directory({{"TMPDIR", "/a"}, {"XDG_RUNTIME_DIR", "/b"}}), "/a");
    EXPECT_TEXT(directory({{"XDG_RUNTIME_DIR", "/b"}}), "/b");
    EXPECT_TEXT(directory({{"TMPDIR", ""}, {"XDG_RUNTIME_DIR", "/b"}}), "/b");
    EXPECT_TEXT(directory({}), "/tmp");
    EXPECT_TEXT(directory({{"TMPDIR", "/a/"}}), "/a/");
}

} // namespace
