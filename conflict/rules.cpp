#include "conflict/rules.h"

#include <array>

namespace conflict {
namespace {

constexpr quint16 kLastYearWithoutPhotoBanner = 2009;

bool isIronOn(const Situation &s)
{
    return s.paperType == QLatin1String("IronOn");
}

bool isTransparency(const Situation &s)
{
    return s.paperType == QLatin1String("Transparency");
}

bool isGreeting(const Situation &s)
{
    return s.paperType == QLatin1String("Greeting");
}

bool isBlack(const Situation &s)
{
    return s.colorOutput == QLatin1String("Black");
}

bool onBanner(const Situation &s)
{
    return s.bannerSize && !s.paperSizeInstructed;
}

bool onEnvelope(const Situation &s)
{
    return s.envelopeSize && !s.paperSizeInstructed;
}

bool ironOnInDraft(const Situation &s)
{
    return isIronOn(s) && s.printQuality == QLatin1String("Draft") && !s.ironOnDraftIgnored;
}

bool ironOnOnBanner(const Situation &s)
{
    return isIronOn(s) && onBanner(s);
}

bool ironOnOnEnvelope(const Situation &s)
{
    return isIronOn(s) && onEnvelope(s);
}

bool transparencyOnBanner(const Situation &s)
{
    return isTransparency(s) && onBanner(s);
}

bool transparencyOnEnvelope(const Situation &s)
{
    return isTransparency(s) && onEnvelope(s);
}

bool photoOnBanner(const Situation &s)
{
    return s.photoMedia && s.productYear <= kLastYearWithoutPhotoBanner && onBanner(s);
}

bool photoWithUnsuitableInk(const Situation &s)
{
    return s.photoMedia && s.inkToUse != QLatin1String("Automatic") &&
           s.inkToUse != QLatin1String("ColorOnly") && !s.inkToUseInstructed;
}

bool greetingOnBanner(const Situation &s)
{
    return isGreeting(s) && onBanner(s);
}

bool blackWithColorCartridgeOnly(const Situation &s)
{
    return s.colorCartridgeOnly && isBlack(s) && !s.cartridgeInstructed;
}

bool blackWithPhotoCartridge(const Situation &s)
{
    return s.photoCartridge && isBlack(s) && !s.cartridgeInstructed;
}

/// Envelope paper belongs on an envelope size, and only envelope or automatic paper does.
bool envelopeMismatch(const Situation &s)
{
    const bool wrongMedia = s.envelopeSize && !s.envelopeMedia && !s.automaticMedia;
    const bool wrongSize = !s.envelopeSize && s.envelopeMedia;
    return !s.paperSizeInstructed && (wrongMedia || wrongSize);
}

struct Rule
{
    int caseNumber;
    bool (*holds)(const Situation &);
};

// clang-format off
constexpr std::array kRules = {
    Rule{0,  ironOnInDraft},
    Rule{1,  ironOnOnBanner},
    Rule{2,  ironOnOnEnvelope},
    Rule{4,  transparencyOnBanner},
    Rule{5,  transparencyOnEnvelope},
    Rule{7,  photoOnBanner},
    Rule{14, photoWithUnsuitableInk}, // before 9: the order of the list is the order of the windows
    Rule{9,  greetingOnBanner},
    Rule{11, blackWithColorCartridgeOnly},
    Rule{12, blackWithPhotoCartridge},
    Rule{13, envelopeMismatch},
};
// clang-format on
static_assert(kRules.size() == 11);

} // namespace

std::vector<int> findConflicts(const Situation &situation)
{
    std::vector<int> found;
    for (const Rule &rule : kRules) {
        if (rule.holds(situation))
            found.push_back(rule.caseNumber);
    }
    return found;
}

} // namespace conflict
