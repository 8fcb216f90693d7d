// KorPDEController2: accessors.

#include "diag/trace.h"
#include "quality/kor_pde_controller.h"
#include "quality/settings_table.h"

using namespace quality;

void KorPDEController2::setPrintSession(PMPrintSession session)
{
    KV_TRACE("-[KorPDEController2 setPrintSession:]");
    mPrintSession = session;
    if (session)
        conflictController->setPrintSession(session);
}

void KorPDEController2::setPDEPluginCallbackObject(PDEPlugInCallback *callback)
{
    KV_TRACE("-[KorPDEController2 setPDEPluginCallbackObject:]");
    mPDEPluginCallbackObject = callback;
}

PDEModel2 *KorPDEController2::pdeModel()
{
    KV_TRACE("-[KorPDEController2 pdeModel]");
    return pdeModel_.get();
}

void KorPDEController2::setPDEModel(std::shared_ptr<PDEModel2> model)
{
    KV_TRACE("-[KorPDEController2 setPDEModel:]");
    pdeModel_ = std::move(model);
}

bool KorPDEController2::isFinishedInited()
{
    KV_TRACE("-[KorPDEController2 isFinishedInited]");
    return doneInitialized;
}

bool KorPDEController2::isMirrorManuallySet()
{
    KV_TRACE("-[KorPDEController2 isMirrorManuallySet]");
    return isMirrorManuallySet_;
}

void KorPDEController2::setIsMirrorManuallySet(bool isSet)
{
    KV_TRACE("-[KorPDEController2 setIsMirrorManuallySet:]");
    isMirrorManuallySet_ = isSet;
}

bool KorPDEController2::isMirrorSetDuringPreset()
{
    KV_TRACE("-[KorPDEController2 isMirrorSetDuringPreset]");
    return isMirrorSetDuringPreset_;
}

void KorPDEController2::setIsMirrorSetDuringPreset(bool isSet)
{
    KV_TRACE("-[KorPDEController2 setIsMirrorSetDuringPreset:]");
    isMirrorSetDuringPreset_ = isSet;
}

int KorPDEController2::osVersionOnUse()
{
    KV_TRACE("-[KorPDEController2 osVersionOnUse]");
    return mOSVersion;
}

void KorPDEController2::setOSVersion(int version)
{
    KV_TRACE("-[KorPDEController2 setOSVersion:]");
    mOSVersion = version;
}

quint16 KorPDEController2::productYearOnUse()
{
    KV_TRACE("-[KorPDEController2 productYearOnUse]");
    return mProductYear;
}

void KorPDEController2::setProductYear(quint16 year)
{
    KV_TRACE("-[KorPDEController2 setProductYear:]");
    mProductYear = year;
}

// The model's settings ------------------------------------------------------------------

ppd_option_t *KorPDEController2::optionOf(Setting setting) const
{
    return (pdeModel_.get()->*row(setting).slots.option)();
}

bool KorPDEController2::hasOption(Setting setting) const
{
    return optionOf(setting) != nullptr;
}

SettingSet KorPDEController2::optionsOfPrinter() const
{
    SettingSet options;
    for (const SettingRow &row : kSettings)
        if (hasOption(row.setting))
            options.insert(row.setting);
    return options;
}

QString KorPDEController2::valueOf(Setting setting) const
{
    return (pdeModel_.get()->*row(setting).slots.value)();
}

QString KorPDEController2::ticketOf(Setting setting) const
{
    return (pdeModel_.get()->*row(setting).slots.ticket)();
}

void KorPDEController2::storeSetting(Setting setting, const QString &choice)
{
    storeChoice(*pdeModel_, row(setting).slots, *pdeTools, choice);
}

void KorPDEController2::storeStrings(Setting setting, const QString &value, const QString &ticket)
{
    (pdeModel_.get()->*row(setting).slots.setValue)(value);
    (pdeModel_.get()->*row(setting).slots.setTicket)(ticket);
}
