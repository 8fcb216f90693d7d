#pragma once

#include "model/settings.h"

/// The slots of every setting, by the setting's name in PDEModel2.
namespace settings {

// One line where all six names follow from the setting's; the four irregular ones are written out.
#define KV_SLOTS(option, setOption, value, setValue, ticket, setTicket)                            \
    SettingSlots                                                                                   \
    {                                                                                              \
        &PDEModel2::option, &PDEModel2::setOption, &PDEModel2::value, &PDEModel2::setValue,        \
            &PDEModel2::ticket, &PDEModel2::setTicket                                              \
    }
#define KV_REGULAR(name, Name)                                                                     \
    KV_SLOTS(name##Option, set##Name##Option, name, set##Name, name##Ticket, set##Name##Ticket)

// clang-format off
inline constexpr SettingSlots printQuality        = KV_REGULAR(printQuality, PrintQuality);
inline constexpr SettingSlots paperType           = KV_REGULAR(paperType, PaperType);
inline constexpr SettingSlots paperSource         = KV_REGULAR(paperSource, PaperSource);
inline constexpr SettingSlots colorOutput         = KV_REGULAR(colorOutput, ColorOutput);
inline constexpr SettingSlots imageSharpening     = KV_REGULAR(imageSharpening, ImageSharpening);
inline constexpr SettingSlots tonerSave           = KV_REGULAR(tonerSave, TonerSave);
inline constexpr SettingSlots halftone            = KV_REGULAR(halftone, Halftone);
inline constexpr SettingSlots colorPreferences    = KV_REGULAR(colorPreferences, ColorPreferences);
inline constexpr SettingSlots inkToUse            = KV_REGULAR(inkToUse, InkToUse);
inline constexpr SettingSlots ICCTestChart        = KV_REGULAR(ICCTestChart, ICCTestChart);
inline constexpr SettingSlots reduceGhosting      = KV_REGULAR(reduceGhosting, ReduceGhosting);
inline constexpr SettingSlots printDensity        = KV_REGULAR(printDensity, PrintDensity);
inline constexpr SettingSlots improvementSettings = KV_REGULAR(improvementSettings, ImprovementSettings);
inline constexpr SettingSlots improvePrintQuality = KV_REGULAR(improvePrintQuality, ImprovePrintQuality);

// The ticket's setter is spelled otherwise than its getter.
inline constexpr SettingSlots mirror =
    KV_SLOTS(mirrorOption, setMirrorOption, mirror, setMirror, mirrorTicket, setMIrrorTicket);
// The getters of value and ticket are spelled otherwise than their setters.
inline constexpr SettingSlots threshold =
    KV_SLOTS(thresholdOption, setThresholdOption, Threshold, setThreshold, thresoldTicket, setThresholdTicket);
// Two options, one value and one ticket.
inline constexpr SettingSlots dryTimePopUp =
    KV_SLOTS(dryTimePopUpOption, setDryTimePopUpOption, dryTime, setDryTime, dryTimeTicket, setDryTimeTicket);
inline constexpr SettingSlots dryTimeCheckBox =
    KV_SLOTS(dryTimeCheckBoxOption, setDryTimeCheckBoxOption, dryTime, setDryTime, dryTimeTicket, setDryTimeTicket);
// clang-format on

#undef KV_REGULAR
#undef KV_SLOTS

} // namespace settings
