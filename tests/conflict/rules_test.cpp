#include "conflict/paper_classes.h"
#include "conflict/rules.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

#include <vector>

using conflict::Situation;
using test::q;

namespace {

/// The rules once more, written down as prose would have them, independent of the table.
std::vector<int> reference(const Situation &s)
{
    std::vector<int> cases;
    const bool paperOpen = !s.paperSizeInstructed;
    if (s.paperType == QLatin1String("IronOn") && s.printQuality == QLatin1String("Draft") &&
        !s.ironOnDraftIgnored)
        cases.push_back(0);
    if (paperOpen && s.paperType == QLatin1String("IronOn") && s.bannerSize)
        cases.push_back(1);
    if (paperOpen && s.paperType == QLatin1String("IronOn") && s.envelopeSize)
        cases.push_back(2);
    if (paperOpen && s.paperType == QLatin1String("Transparency") && s.bannerSize)
        cases.push_back(4);
    if (paperOpen && s.paperType == QLatin1String("Transparency") && s.envelopeSize)
        cases.push_back(5);
    if (paperOpen && s.photoMedia && s.productYear < 2010 && s.bannerSize)
        cases.push_back(7);
    if (!s.inkToUseInstructed && s.photoMedia &&
        !(s.inkToUse == QLatin1String("Automatic") || s.inkToUse == QLatin1String("ColorOnly")))
        cases.push_back(14);
    if (paperOpen && s.paperType == QLatin1String("Greeting") && s.bannerSize)
        cases.push_back(9);
    if (!s.cartridgeInstructed && s.colorOutput == QLatin1String("Black") && s.colorCartridgeOnly)
        cases.push_back(11);
    if (!s.cartridgeInstructed && s.colorOutput == QLatin1String("Black") && s.photoCartridge)
        cases.push_back(12);
    if (paperOpen) {
        if (s.envelopeSize ? !s.envelopeMedia && !s.automaticMedia : s.envelopeMedia)
            cases.push_back(13);
    }
    return cases;
}

std::vector<QString> tickets(std::initializer_list<const char *> words)
{
    std::vector<QString> list{QString()};
    for (const char *word : words)
        list.push_back(q(word));
    return list;
}

TEST(Rules, TheTableEqualsTheReferenceForEveryCombination)
{
    int count = 0;
    int withConflict = 0;
    const auto papers = tickets({"", "Letter", "A4Banner", "BA", "EnvelopeDL", "ISOB5"});
    for (const QString &media :
         tickets({"Automatic", "Plain", "IronOn", "Transparency", "Greeting", "PremiumGlossy",
                  "InkjetGlossyBrochure", "Envelope", "EnvelopeAutomatic"}))
        for (const QString &paper : papers)
            for (const QString &quality : tickets({"Automatic", "Draft"}))
                for (const QString &ink : tickets({"Automatic", "ColorOnly", "BlackOnly", ""}))
                    for (const QString &color : tickets({"Color", "Black", "Mono"}))
                        for (const quint16 year : {2008, 2009, 2010, 65535})
                            for (int bits = 0; bits < 64; ++bits) {
                                const Situation s{
                                    .paperType = media,
                                    .printQuality = quality,
                                    .inkToUse = ink,
                                    .colorOutput = color,
                                    .photoMedia = conflict::isPhotoMedia(media),
                                    .envelopeMedia = conflict::isEnvelopeMedia(media),
                                    .automaticMedia = conflict::isAutomaticMedia(media),
                                    .bannerSize = conflict::isBanner(paper),
                                    .envelopeSize = conflict::isEnvelopeSize(paper),
                                    .colorCartridgeOnly = (bits & 1) != 0,
                                    .photoCartridge = (bits & 2) != 0,
                                    .productYear = year,
                                    .ironOnDraftIgnored = (bits & 4) != 0,
                                    .paperSizeInstructed = (bits & 8) != 0,
                                    .inkToUseInstructed = (bits & 16) != 0,
                                    .cartridgeInstructed = (bits & 32) != 0,
                                };
                                const std::vector<int> expected = reference(s);
                                ASSERT_EQ(conflict::findConflicts(s), expected)
                                    << "media " << testing::PrintToString(media) << ", paper "
                                    << testing::PrintToString(paper) << ", bits " << bits;
                                ++count;
                                withConflict += expected.empty() ? 0 : 1;
                            }
    EXPECT_EQ(count, 10 * 7 * 3 * 5 * 4 * 4 * 64);
    EXPECT_GT(withConflict, 0);
    EXPECT_LT(withConflict, count);
}

TEST(Rules, TheReferenceNoticesAWrongTable)
{
    Situation s;
    s.paperType = q("IronOn");
    s.printQuality = q("Draft");
    EXPECT_EQ(reference(s), conflict::findConflicts(s));
    const std::vector<int> before = reference(s);
    s.ironOnDraftIgnored = true;
    EXPECT_NE(reference(s), before) << "the comparison above can fail";
}

TEST(Rules, AnEmptyInkIsUnsuitableForPhotoPaper)
{
    Situation s;
    s.paperType = q("PremiumGlossy");
    s.inkToUse = q("");
    s.photoMedia = true;
    EXPECT_EQ(conflict::findConflicts(s), std::vector<int>({14}));
}

} // namespace
