#include "model/pde_model.h"

#include "diag/trace.h"
#include "platform/console.h"
#include "platform/strings.h"

// What an accessor does beside holding its field. Settings of the first panel are traced in their
// setters; those of the second panel are not traced and speak on the console instead.
namespace {

/// A console line, written when a setter replaced its string or at every call of a getter. The text
/// stands before the string; a null line says nothing.
struct ConsoleLine
{
    const char *before;
    const char *after = "\n";
};

constexpr ConsoleLine kSilent{nullptr, nullptr};

void say(const ConsoleLine &line, const QString &text)
{
    if (line.before)
        platform::writeConsole(QLatin1String(line.before) + platform::described(text) +
                               QLatin1String(line.after));
}

/// True when the field now holds a new string.
bool keep(QString &field, const QString &text)
{
    if (platform::isSameObject(field, text))
        return false;
    field = text;
    return true;
}

} // namespace

#define KV_GETTER(type, field, getter)                                                             \
    type PDEModel2::getter() const                                                                 \
    {                                                                                              \
        return field;                                                                              \
    }

#define KV_SPEAKING_GETTER(field, getter, words)                                                   \
    QString PDEModel2::getter() const                                                              \
    {                                                                                              \
        say({words, ""}, field);                                                                   \
        return field;                                                                              \
    }

#define KV_TRACED_OPTION(field, getter, setter)                                                    \
    KV_GETTER(ppd_option_t *, field, getter)                                                       \
    void PDEModel2::setter(ppd_option_t *option)                                                   \
    {                                                                                              \
        KV_TRACE("-[PDEModel2 " #setter ":]");                                                     \
        field = option;                                                                            \
    }

#define KV_UNTRACED_OPTION(field, getter, setter)                                                  \
    KV_GETTER(ppd_option_t *, field, getter)                                                       \
    void PDEModel2::setter(ppd_option_t *option)                                                   \
    {                                                                                              \
        field = option;                                                                            \
    }

#define KV_TRACED_SETTER(field, setter, line)                                                      \
    void PDEModel2::setter(const QString &text)                                                    \
    {                                                                                              \
        KV_TRACE("-[PDEModel2 " #setter ":]");                                                     \
        if (keep(field, text))                                                                     \
            say(line, text);                                                                       \
    }

#define KV_UNTRACED_SETTER(field, setter, line)                                                    \
    void PDEModel2::setter(const QString &text)                                                    \
    {                                                                                              \
        if (keep(field, text))                                                                     \
            say(line, text);                                                                       \
    }

#define KV_TRACED_STRING(field, getter, setter)                                                    \
    KV_GETTER(QString, field, getter)                                                              \
    KV_TRACED_SETTER(field, setter, kSilent)

#define KV_TRACED_SPEAKING_STRING(field, getter, setter)                                           \
    KV_GETTER(QString, field, getter)                                                              \
    KV_TRACED_SETTER(field, setter, (ConsoleLine{"PDEModel2 - " #setter "- " #field "="}))

/// The value setters of the second panel all name setReduceGhosting in their lines, whichever it
/// is.
#define KV_GHOSTING_VALUE(field, getter, setter)                                                   \
    KV_GETTER(QString, field, getter)                                                              \
    KV_UNTRACED_SETTER(field, setter, (ConsoleLine{"PDEModel2 - setReduceGhosting- " #field "="}))

#define KV_SPEAKING_TICKET(field, getter, setter, words)                                           \
    KV_SPEAKING_GETTER(field, getter, words)                                                       \
    KV_UNTRACED_SETTER(field, setter, (ConsoleLine{"PDEModel2 - " #setter "- " #field "="}))

// clang-format off
KV_TRACED_OPTION(mPrintQualityOption,     printQualityOption,     setPrintQualityOption)
KV_TRACED_OPTION(mPaperTypeOption,        paperTypeOption,        setPaperTypeOption)
KV_TRACED_OPTION(mPaperSourceOption,      paperSourceOption,      setPaperSourceOption)
KV_TRACED_OPTION(mDryTimePopUpOption,     dryTimePopUpOption,     setDryTimePopUpOption)
KV_TRACED_OPTION(mDryTimeCheckBoxOption,  dryTimeCheckBoxOption,  setDryTimeCheckBoxOption)
KV_TRACED_OPTION(mColorOutputOption,      colorOutputOption,      setColorOutputOption)
KV_TRACED_OPTION(mImageSharpeningOption,  imageSharpeningOption,  setImageSharpeningOption)
KV_TRACED_OPTION(mMirrorOption,           mirrorOption,           setMirrorOption)
KV_TRACED_OPTION(mTonerSaveOption,        tonerSaveOption,        setTonerSaveOption)
KV_TRACED_OPTION(mThresholdOption,        thresholdOption,        setThresholdOption)
KV_TRACED_OPTION(mHalftoneOption,         halftoneOption,         setHalftoneOption)
KV_TRACED_OPTION(mColorPreferencesOption, colorPreferencesOption, setColorPreferencesOption)
KV_TRACED_OPTION(mInkToUseOption,         inkToUseOption,         setInkToUseOption)
KV_TRACED_OPTION(mICCTestChartOption,     ICCTestChartOption,     setICCTestChartOption)
KV_UNTRACED_OPTION(mReduceGhostingOption,      reduceGhostingOption,      setReduceGhostingOption)
KV_UNTRACED_OPTION(mPrintDensityOption,        printDensityOption,        setPrintDensityOption)
KV_UNTRACED_OPTION(mImprovementSettingsOption, improvementSettingsOption, setImprovementSettingsOption)
KV_UNTRACED_OPTION(mImprovePrintQualityOption, improvePrintQualityOption, setImprovePrintQualityOption)

KV_TRACED_STRING(mPrintQuality,     printQuality,     setPrintQuality)
KV_TRACED_STRING(mPaperType,        paperType,        setPaperType)
KV_TRACED_STRING(mPaperSource,      paperSource,      setPaperSource)
KV_TRACED_STRING(mDryTime,          dryTime,          setDryTime)
KV_TRACED_STRING(mColorOutput,      colorOutput,      setColorOutput)
KV_TRACED_STRING(mImageSharpening,  imageSharpening,  setImageSharpening)
KV_TRACED_STRING(mMirror,           mirror,           setMirror)
KV_TRACED_STRING(mTonerSave,        tonerSave,        setTonerSave)
KV_TRACED_SPEAKING_STRING(mThreshold, Threshold,      setThreshold)
KV_TRACED_STRING(mHalftone,         halftone,         setHalftone)
KV_TRACED_STRING(mColorPreferences, colorPreferences, setColorPreferences)
KV_TRACED_STRING(mInkToUse,         inkToUse,         setInkToUse)
KV_TRACED_STRING(mICCTestChart,     ICCTestChart,     setICCTestChart)
KV_GHOSTING_VALUE(mReduceGhosting,      reduceGhosting,      setReduceGhosting)
KV_GHOSTING_VALUE(mPrintDensity,        printDensity,        setPrintDensity)
KV_GHOSTING_VALUE(mImprovementSettings, improvementSettings, setImprovementSettings)
KV_GHOSTING_VALUE(mImprovePrintQuality, improvePrintQuality, setImprovePrintQuality)

KV_TRACED_STRING(mPrintQualityTicket,     printQualityTicket,     setPrintQualityTicket)
KV_TRACED_STRING(mPaperTypeTicket,        paperTypeTicket,        setPaperTypeTicket)
KV_TRACED_STRING(mPaperSourceTicket,      paperSourceTicket,      setPaperSourceTicket)
KV_TRACED_STRING(mDryTimeTicket,          dryTimeTicket,          setDryTimeTicket)
KV_TRACED_STRING(mColorOutputTicket,      colorOutputTicket,      setColorOutputTicket)
KV_TRACED_STRING(mImageSharpeningTicket,  imageSharpeningTicket,  setImageSharpeningTicket)
KV_TRACED_STRING(mMirrorTicket,           mirrorTicket,           setMIrrorTicket)
KV_TRACED_STRING(mTonerSaveTicket,        tonerSaveTicket,        setTonerSaveTicket)
KV_TRACED_SPEAKING_STRING(mThresholdTicket, thresoldTicket,       setThresholdTicket)
KV_TRACED_STRING(mHalftoneTicket,         halftoneTicket,         setHalftoneTicket)
KV_TRACED_STRING(mColorPreferencesTicket, colorPreferencesTicket, setColorPreferencesTicket)
KV_TRACED_STRING(mInktoToUseTicket,       inkToUseTicket,         setInkToUseTicket)
KV_TRACED_STRING(mICCTestChartTicket,     ICCTestChartTicket,     setICCTestChartTicket)
KV_SPEAKING_TICKET(mReduceGhostingTicket,      reduceGhostingTicket,      setReduceGhostingTicket,      "mReduceGhostingTicket is ")
KV_SPEAKING_TICKET(mPrintDensityTicket,        printDensityTicket,        setPrintDensityTicket,        "printDensityTicket is ")
KV_SPEAKING_TICKET(mImprovementSettingsTicket, improvementSettingsTicket, setImprovementSettingsTicket, "improvementSettingsTicket is ")
KV_SPEAKING_TICKET(mImprovePrintQualityTicket, improvePrintQualityTicket, setImprovePrintQualityTicket, "mImprovePrintQualityTicket is ")
// clang-format on
