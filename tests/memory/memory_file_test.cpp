#include "dialog/memory/memory_file.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

const RememberedPrinter kInk{RememberedPrinter::By::Queue, q("ink")};

TEST(MemoryFile, GivesTheWindowBack)
{
    for (const WindowMemory &window :
         {WindowMemory{{900, 700}, q("summary")}, WindowMemory{{}, q("summary")},
          WindowMemory{{900, 700}, {}}, WindowMemory{}}) {
        const auto read = parseWindow(writtenWindow(window));
        EXPECT_EQ(read.health, FileHealth::Sound);
        EXPECT_EQ(read.value, window) << writtenWindow(window).constData();
    }
}

TEST(MemoryFile, GivesTheSettingsBackAndCanBeRead)
{
    const PresetContent content{{{q("MediaType"), {q("IronOn")}}}, {{q("mirror"), q("true")}}, {}};
    const QByteArray bytes = writtenSettings(kInk, content);
    EXPECT_TRUE(bytes.contains("\"queue\": \"ink\"")) << bytes.constData();
    EXPECT_TRUE(bytes.contains("\"MediaType\": \"IronOn\""));
    const auto read = parseSettings(bytes);
    EXPECT_EQ(read.health, FileHealth::Sound);
    EXPECT_EQ(read.value, content);
}

TEST(MemoryFile, NeverKeepsWhatBelongsToOneDocument)
{
    const QByteArray bytes = R"({"format": "korvane-print last settings", "version": 1,
        "settings": {"copies": "99", "page-ranges": "2", "mirror": "true"}})";
    EXPECT_EQ(parseSettings(bytes).value.settings,
              (std::map<QString, QVariant>{{q("mirror"), q("true")}}));
}

TEST(MemoryFile, TellsDamageAndNewerVersionsApart)
{
    EXPECT_EQ(parseWindow("{\"format\": \"korvane-print window\", \"version\": 2}").health,
              FileHealth::Newer);
    for (const char *bytes : {
             "",
             "[]",
             "{",
             "{\"format\": \"korvane-print presets\", \"version\": 1}",
             "{\"format\": \"korvane-print window\"}",
             R"({"format": "korvane-print window", "version": 1, "width": -1})",
             R"({"format": "korvane-print window", "version": 1, "width": 1e12})",
             R"({"format": "korvane-print window", "version": 1, "height": "tall"})",
             R"({"format": "korvane-print window", "version": 1, "panel": 3})",
         }) {
        const auto read = parseWindow(bytes);
        EXPECT_EQ(read.health, FileHealth::Damaged) << bytes;
        EXPECT_EQ(read.value, WindowMemory()) << bytes;
    }
    EXPECT_EQ(parseSettings(R"({"format": "korvane-print last settings", "version": 1,
                                "choices": {"MediaType": 3}})")
                  .health,
              FileHealth::Damaged);
}

TEST(MemoryFile, OfHalfASizeKeepsNone)
{
    const auto read = parseWindow(
        R"({"format": "korvane-print window", "version": 1, "width": 900, "panel": "layout"})");
    EXPECT_EQ(read.health, FileHealth::Sound);
    EXPECT_FALSE(read.value.size.isValid());
    EXPECT_EQ(read.value.panel, q("layout"));
}

} // namespace
