#pragma once

#include "quality/setting.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// The rules between the controls as pure decisions: a situation in, a plan out. Nothing here knows
/// a control, a PPD or the model; the controller gathers the situation and carries the plan out.
namespace quality {

// What colour output does to the controls that depend on it -----------------------------

/// Colour output works on the others when a person changes it, and when the whole panel is
/// synchronised with the model; the two do not do the same.
enum class Occasion { Action, Synchronisation };

/// What happens to one dependent control.
enum class Effect {
    Enable,
    Disable,
    SelectFirst,
    RefillForColor, ///< ink: without the inks of black mode
    RefillForBlack, ///< ink: without the inks of colour mode
    Untick,
    StoreFromState, ///< model and ticket from the box: "On" when ticked, else "Off"
    StoreOff,
    ShowModel,     ///< box unticked when the model's value is "Off", else ticked
    ShowNeutral,   ///< threshold: 3, in stepper and field
    ReportMissing, ///< a console line
};

struct Interlock
{
    Setting control;
    Effect effect;

    bool operator==(const Interlock &) const = default;
};

/// The options that the printer has.
class SettingSet
{
public:
    void insert(Setting setting) { bits_ |= bit(setting); }
    [[nodiscard]] bool contains(Setting setting) const { return (bits_ & bit(setting)) != 0; }

private:
    [[nodiscard]] static unsigned bit(Setting setting)
    {
        return 1U << static_cast<unsigned>(setting);
    }

    unsigned bits_ = 0;
};

struct ColorOutputSituation
{
    Occasion occasion = Occasion::Action;
    int index = -1;         ///< selected item: 0 is the colour mode, 1 the black mode
    QString title = {};     ///< of the selected item
    QString grayscale = {}; ///< the host's text for "Grayscale"
    SettingSet options = {};
};

/// What is to be done, in this order. Empty for every index but 0 and 1.
[[nodiscard]] std::vector<Interlock> colorOutputPlan(const ColorOutputSituation &situation);

// Ink -----------------------------------------------------------------------------------

/// Keywords that the ink pop-up leaves out in each mode.
inline const QString kBlackModeInks = QStringLiteral("BlackOnly, BlackColor");
inline const QString kColorModeInks = QStringLiteral("ColorOnly, ColorBlack");

/// Index of the PPD's "InkToUse" choice behind an item of the ink pop-up, which leaves out the inks
/// of the other mode. Stands on the PPD's order: common, ColorOnly, BlackOnly, ColorBlack,
/// BlackColor.
[[nodiscard]] int mappedInkIndex(int popUpIndex, const QString &colorOutputTicket);

// Mirror --------------------------------------------------------------------------------

/// Up to 10.5 mirror is a choice of the PPD, held by model and check box; from 10.6 on iron-on
/// paper mirrors through the job's print settings.
enum class MirrorPlace { Model, PrintSettings };
[[nodiscard]] MirrorPlace mirrorPlace(int osVersion);

enum class MirrorChange { None, On, Off };

struct MirrorSituation
{
    MirrorPlace place = MirrorPlace::PrintSettings;
    QString paperTypeTicket = {};
    QString mirror = {};                  ///< the model's value
    bool isMirrorInPrintSettings = false; ///< looked at for a new paper type only
    bool isMirrorSetByIronOn = false;
    bool isMirrorManuallySet = false;
    bool isMirrorSetDuringPreset = false;
};

/// After a person chose another paper type: iron-on paper switches mirror on where it is off, any
/// other switches off what iron-on had switched on.
[[nodiscard]] MirrorChange mirrorForNewPaperType(const MirrorSituation &situation);

/// After the panel showed another paper type.
[[nodiscard]] MirrorChange mirrorToKeep(const MirrorSituation &situation);

/// State of the mirror box after the host refused a change and the former ticket came back.
/// Compares with "True", although the box itself writes "On" and "Off": deliberate.
[[nodiscard]] int mirrorStateAfterRefusal(const QString &restoredTicket);

/// State that the mirror box is to take when it disagrees with the ticket, nothing when it agrees.
[[nodiscard]] std::optional<int> mirrorStateToShow(int state, const QString &ticket);

// Rows ----------------------------------------------------------------------------------

/// What becomes of a row when the labels are made. A row once hidden is never shown again.
enum class RowFate { Titled, Hidden };

struct RowPlan
{
    Setting row;
    RowFate fate;

    bool operator==(const RowPlan &) const = default;
};

/// The rows that share a place in the panel: of each pair the printer's first one is titled and the
/// other hidden; where it has neither, both are.
[[nodiscard]] std::vector<RowPlan> sharedPlacesPlan(const SettingSet &options);

/// The rows without which a panel makes no sense: hidden where the printer lacks the option.
[[nodiscard]] std::vector<RowPlan> requiredRowsPlan(const SettingSet &options);

// Printers that differ from what the rules assume ---------------------------------------

/// One choice on whose order, keyword or label a rule stands and which is something else. A null
/// choice stands for one that is missing.
struct UnusualChoice
{
    QString option;
    QString choice;

    bool operator==(const UnusualChoice &) const = default;
};

/// An option's choices as the PPD lists them.
struct ChoiceList
{
    QStringList keywords;
    QStringList texts;
};

[[nodiscard]] std::optional<UnusualChoice> unusualInk(const ChoiceList &choices);
/// A keyword other than "On" and "Off".
[[nodiscard]] std::optional<UnusualChoice> unusualSwitch(const QString &option,
                                                         const ChoiceList &choices);
/// A choice of that keyword whose label is not @p label.
[[nodiscard]] std::optional<UnusualChoice> unusualLabel(const QString &option,
                                                        const QString &keyword,
                                                        const QString &label,
                                                        const ChoiceList &choices);
/// A first colour output that is labelled neither "Color" nor with the host's "Grayscale".
[[nodiscard]] std::optional<UnusualChoice> unusualColorOutput(const ChoiceList &choices,
                                                              const QString &grayscale);

} // namespace quality
