#include "conflict/paper_classes.h"

namespace conflict {
namespace {

struct Renaming
{
    const char *from;
    const char *to;
};

// One after the other, each applied to the result of the one before.
// clang-format off
constexpr Renaming kRenamings[] = {
    {"B5",       "B5JIS"},
    {"ISOB5",    "EnvelopeB5"},
    {"Env10",    "Envelope10"},
    {"EnvDL",    "EnvelopeDL"},
    {"EnvChou3", "EnvelopeChokei3"},
};
// clang-format on

} // namespace

QString ppdPaperName(const QString &paperName)
{
    QString name = paperName;
    for (const Renaming &renaming : kRenamings) {
        if (name == QLatin1String(renaming.from))
            name = QLatin1String(renaming.to);
    }
    return name;
}

bool isBanner(const QString &paperName)
{
    return paperName.endsWith(QLatin1String("BA")) || paperName.endsWith(QLatin1String("Banner"));
}

bool isEnvelopeSize(const QString &paperName)
{
    return paperName.startsWith(QLatin1String("Env")) || paperName == QLatin1String("ISOB5") ||
           paperName.endsWith(QLatin1String("Env"));
}

bool isPhotoMedia(const QString &mediaTicket)
{
    return mediaTicket.contains(QLatin1String("Glossy")) &&
           mediaTicket != QLatin1String("InkjetGlossyBrochure") &&
           mediaTicket != QLatin1String("InkjetGlossyLight");
}

bool isEnvelopeMedia(const QString &mediaTicket)
{
    return mediaTicket.contains(QLatin1String("Envelope"));
}

bool isAutomaticMedia(const QString &mediaTicket)
{
    return mediaTicket.contains(QLatin1String("Automatic"));
}

} // namespace conflict
