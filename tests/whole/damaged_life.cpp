#include "tests/whole/damaged_life.h"

#include "model/setting_slots.h"
#include "tests/plugin/life.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/whole/hands.h"

#include <gtest/gtest.h>

namespace test {
namespace {

/// A setting of either panel.
struct Slot
{
    const char *keyword;
    const SettingSlots *slots;
};

constexpr Slot kQualitySlots[] = {
    {"PrintQuality", &settings::printQuality},
    {"MediaType", &settings::paperType},
    {"PaperSource", &settings::paperSource},
    {"Sharpen", &settings::imageSharpening},
    {"TonerSave", &settings::tonerSave},
    {"HalftoneLevel", &settings::halftone},
    {"ICCTestChartProcess", &settings::ICCTestChart},
    {"ColorOutput", &settings::colorOutput},
    {"DupDryTime", &settings::dryTimePopUp},
};
constexpr Slot kOtherSlots[] = {
    {"ReduceGhosting", &settings::reduceGhosting},
    {"PrintDensity", &settings::printDensity},
    {"ImprovementSettings", &settings::improvementSettings},
};

/// What each control offers: its own option, and the others that its rules offer with it.
struct Offering
{
    const char *outlet;
    QStringList options;
};

const std::vector<Offering> &offerings()
{
    static const std::vector<Offering> table{
        {"ibPrintQuality", {q("PrintQuality")}},
        {"ibPaperType", {q("MediaType"), q("Mirror")}},
        {"ibPaperSource", {q("PaperSource")}},
        {"ibSharpen", {q("Sharpen")}},
        {"ibMIrror", {q("Mirror")}},
        {"ibTonerSave", {q("TonerSave")}},
        {"ibThresholdStepper", {q("Threshold")}},
        {"ibThresholdTextFeild", {}},
        {"ibHalftone", {q("HalftoneLevel")}},
        {"ibColorPreferences", {q("ColorPreferences")}},
        {"ibInkToUse", {q("InkToUse")}},
        {"ibUseICCTestChart", {q("ICCTestChartProcess")}},
        {"ibDryTimePopUp", {q("DupDryTime")}},
        {"ibDryTimeCheckBox", {q("DupDryTime")}},
        {"ibColorOutput",
         {q("InkToUse"), q("ColorOutput"), q("ColorPreferences"), q("ICCTestChartProcess"),
          q("Threshold"), q("TonerSave"), q("HalftoneLevel")}},
    };
    return table;
}

/// Nothing for the controls of the Other panel, which offers when it saves.
QStringList optionsOfferedBy(const QWidget *control)
{
    for (const Offering &offering : offerings())
        if (control->objectName() == q(offering.outlet))
            return offering.options;
    return {};
}

class DamagedLife
{
public:
    explicit DamagedLife(const DamagedPrinter &printer) : printer_(printer)
    {
        log_.switchOn(DebugLog::kError);
        life_ = std::make_unique<Life>(LifeOptions{.ppd = printer.ppd, .hasOtherPanel = true});
    }

    void live()
    {
        EXPECT_TRUE(life_->host.offers.empty()) << "a life offers nothing";
        EXPECT_EQ(life_->panels->size(), 2U);
        expectRules();
        expectKeywords();
        for (const auto &panel : *life_->panels)
            useEveryControl(panel->panelView(), [this](QWidget *used) { expectAfter(used); });
        EXPECT_GE(used_, printer_.ppd.options().size() / 2) << "of the controls";
        changeEverythingElsewhere();
        expectSaved();
        EXPECT_EQ(log_.errorMessages().size(), errorRecordsDue(printer_.ppd))
            << log_.errorMessages().join(u'\n').toStdString();
    }

private:
    [[nodiscard]] bool has(const char *option) const { return hasOption(printer_.ppd, option); }

    /// Value and ticket are text and keyword of one choice of the printer's option; a setting that
    /// the printer lacks has none.
    void expectRules()
    {
        for (const Slot &slot : kQualitySlots)
            expectConsistent(life_->model(), slot);
        for (const Slot &slot : kOtherSlots)
            expectConsistent(life_->otherModel(), slot);
    }

    void expectConsistent(PDEModel2 &model, const Slot &slot)
    {
        // Not the model's: a marked dry time is taken over whatever the product year.
        ppd_option_t *option = PDETools2().getPPDOption(slot.keyword, life_->ppd.get());
        const QString ticket = (model.*slot.slots->ticket)();
        EXPECT_SAME((model.*slot.slots->value)(),
                    PDETools2().getOptionsChoice(ticket, option, ChoiceString::Text))
            << slot.keyword << " = " << ticket.toStdString();
        EXPECT_SAME(ticket, PDETools2().getOptionsChoice(ticket, option, ChoiceString::Keyword))
            << slot.keyword;
    }

    void expectKeywords()
    {
        for (const auto &panel : *life_->panels)
            for (const QString &keyword : panel->supportedPPDOptionKeys())
                EXPECT_TRUE(has(keyword.toUtf8().constData())) << keyword.toStdString();
    }

    void expectAfter(const QWidget *used)
    {
        ++used_;
        const QStringList allowed = optionsOfferedBy(used);
        for (const Offer &made : std::exchange(life_->host.offers, {}))
            EXPECT_TRUE(allowed.contains(made.first))
                << used->objectName().toStdString() << " offers " << made.first.toStdString();
        expectRules();
    }

    /// Every choice of every option, one after the other where there are few, then one that the
    /// printer does not have.
    void changeEverythingElsewhere()
    {
        for (const PpdOption &option : printer_.ppd.options()) {
            life_->externalChange(option.keyword.constData(),
                                  option.choices.back().keyword.constData());
            expectRules();
        }
        for (const PpdOption &option : printer_.ppd.options())
            life_->externalChange(option.keyword.constData(), "NoSuchChoice");
        for (const Offer &made : std::exchange(life_->host.offers, {}))
            EXPECT_TEXT(made.first, "Mirror") << "iron-on's mirror goes off, nothing else";
    }

    void expectSaved()
    {
        EXPECT_EQ(life_->save().size(),
                  12U + (has("PaperSource") ? 1U : 0U) + (hasDryTime() ? 1U : 0U));
        EXPECT_TRUE(life_->otherPanel().saveValuesAndReturnError(nullptr));
        EXPECT_EQ(life_->host.offers.size(), 3U) << "the improvement is no longer \"On\"";
    }

    /// Dry time hangs on the product year, which a PPD without these lines does not lead to.
    [[nodiscard]] bool hasDryTime() const
    {
        const QByteArray text = printer_.ppd.bytes();
        return has("DupDryTime") && text.contains("*NickName") &&
               text.contains("*APPrinterIconPath");
    }

    const DamagedPrinter &printer_;
    DebugLog log_;
    std::unique_ptr<Life> life_;
    std::size_t used_ = 0;
};

} // namespace

void liveOn(const DamagedPrinter &printer)
{
    SCOPED_TRACE(printer.name.toStdString());
    DamagedLife(printer).live();
}

} // namespace test
