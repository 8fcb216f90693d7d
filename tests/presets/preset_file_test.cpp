#include "dialog/presets/preset_file.h"
#include "tests/support/print_to.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

Preset photo()
{
    return {q("Photo"),
            q("Korvane S300"),
            q("1.2"),
            {{{q("MediaType"), {q("Glossy")}}, {q("Finishing"), {q("Punch"), q("Staple")}}},
             {{q("mirror"), q("true")}, {q("number-up"), 2}, {q("fit"), true}, {q("scale"), 0.5}},
             q("4x6")}};
}

QByteArray file(const QByteArray &presets)
{
    return R"({"format": "korvane-print presets", "version": 1, "presets": [)" + presets + "]}";
}

QStringList namesIn(const QByteArray &bytes)
{
    QStringList names;
    for (const Preset &preset : readPresets(bytes).presets)
        names.append(preset.name);
    return names;
}

TEST(PresetFile, ReadsWhatItWrote)
{
    Preset plain{q("Nothing"), q("Korvane S300"), {}, {}};
    const ReadPresets read = readPresets(writtenPresets(q("Korvane S300"), {photo(), plain}));
    EXPECT_EQ(read.health, FileHealth::Sound);
    ASSERT_EQ(read.presets.size(), 2U);
    EXPECT_EQ(read.presets[0], photo());
    EXPECT_EQ(read.presets[1], plain);
    EXPECT_NULL(read.presets[1].content.paperName);
}

TEST(PresetFile, IsReadable)
{
    const QJsonObject root =
        QJsonDocument::fromJson(writtenPresets(q("Korvane S300"), {photo()})).object();
    EXPECT_TEXT(root[q("format")].toString(), "korvane-print presets");
    EXPECT_EQ(root[q("version")].toInt(), 1);
    const QJsonObject preset = root[q("presets")].toArray().first().toObject();
    EXPECT_TEXT(preset[q("name")].toString(), "Photo");
    EXPECT_TEXT(preset[q("choices")].toObject()[q("MediaType")].toString(), "Glossy");
    EXPECT_EQ(preset[q("choices")].toObject()[q("Finishing")].toArray().size(), 2);
    EXPECT_TEXT(preset[q("paper")].toString(), "4x6");
}

TEST(PresetFile, ThatIsNoneIsDamaged)
{
    for (const char *bytes :
         {"", "{", "[]", "null", "{}", "\xff\xfe", R"({"format": "other"})",
          R"({"format": "korvane-print presets", "presets": []})",
          R"({"format": "korvane-print presets", "version": 0, "presets": []})",
          R"({"format": "korvane-print presets", "version": 1, "presets": {}})"})
        EXPECT_EQ(readPresets(bytes).health, FileHealth::Damaged) << bytes;
}

TEST(PresetFile, OfANewerVersionIsNotDamaged)
{
    EXPECT_EQ(
        readPresets(R"({"format": "korvane-print presets", "version": 2, "presets": 7})").health,
        FileHealth::Newer);
}

TEST(PresetFile, KeepsWhatIsWholeBesideWhatIsNot)
{
    const QByteArray bytes = file(R"({"name": "A"}, {"name": 7}, 5, {"name": "B", "choices": []},
        {"name": "C", "choices": {"X": []}}, {"name": "D", "settings": {"x": null}},
        {"name": "E", "paper": 1}, {"name": " "}, {"name": "F"})");
    EXPECT_EQ(namesIn(bytes), QStringList({q("A"), q("F")}));
    EXPECT_EQ(readPresets(bytes).health, FileHealth::Damaged);
}

TEST(PresetFile, GivesASecondPresetOfANameAnother)
{
    EXPECT_EQ(namesIn(file(R"({"name": "Photo"}, {"name": "PHOTO"})")),
              QStringList({q("Photo"), q("PHOTO 2")}));
}

TEST(PresetFile, IsReadWithinLimits)
{
    QByteArray many;
    for (int i = 0; i < 501; ++i)
        many += (i ? ",{\"name\":\"" : "{\"name\":\"") + QByteArray::number(i) + "\"}";
    EXPECT_EQ(readPresets(file(many)).presets.size(), kMostPresets);
    EXPECT_EQ(readPresets(file(many)).health, FileHealth::Damaged);

    const QByteArray longText(1001, 'x');
    EXPECT_TRUE(namesIn(file(R"({"name": "A", "paper": ")" + longText + "\"}")).isEmpty());
    EXPECT_TRUE(
        namesIn(file(R"({"name": "A", "choices": {")" + longText + R"(": "x"}})")).isEmpty());
    EXPECT_EQ(readPresets(QByteArray(100'000, '[')).health, FileHealth::Damaged);
    EXPECT_EQ(readPresets(file("") + QByteArray(kLargestPresetFile, ' ')).health,
              FileHealth::Damaged);
}

TEST(PresetFile, DoesNotBringInWhatPresetsDoNotKeep)
{
    const ReadPresets read =
        readPresets(file(R"({"name": "A", "settings": {"copies": "9", "Page-Ranges": "1",
                             "mirror": "true"}})"));
    ASSERT_EQ(read.presets.size(), 1U);
    EXPECT_EQ(read.presets[0].content.settings,
              (std::map<QString, QVariant>{{q("mirror"), q("true")}}));
    EXPECT_EQ(read.health, FileHealth::Sound);
}

} // namespace
