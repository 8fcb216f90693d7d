#include "platform/print_objects.h"

namespace platform {

QVariant PrintSettings::value(const QString &key) const
{
    const auto found = values_.find(key);
    return found == values_.end() ? QVariant() : found->second;
}

void PrintSettings::setValue(const QString &key, const QVariant &value)
{
    values_[key] = value;
}

void PrintSettings::remove(const QString &key)
{
    values_.erase(key);
}

} // namespace platform

namespace {

bool isNullValue(const QVariant &value)
{
    return value.isNull() || (value.typeId() == QMetaType::QString && value.toString().isNull());
}

} // namespace

OSStatus PMPrintSettingsSetValue(PMPrintSettings settings, const QString &key,
                                 const QVariant &value, PMLock)
{
    if (!settings)
        return paramErr;
    if (isNullValue(value))
        settings->remove(key);
    else
        settings->setValue(key, value);
    return noErr;
}

OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key, QVariant *value)
{
    const QVariant found = settings ? settings->value(key) : QVariant();
    if (!found.isValid())
        return paramErr;
    *value = found;
    return noErr;
}

OSStatus PMGetPageFormatPaper(PMPageFormat pageFormat, PMPaper *paper)
{
    if (!pageFormat || pageFormat->paper().ppdName.isNull())
        return paramErr;
    *paper = &pageFormat->paper();
    return noErr;
}

OSStatus PMPaperGetPPDPaperName(PMPaper paper, QString *name)
{
    if (!paper)
        return paramErr;
    *name = paper->ppdName;
    return noErr;
}

OSStatus GetPPDRefFromSession(PMPrintSession session, ppd_file_t **ppd)
{
    if (!session || !session->ppd)
        return paramErr;
    *ppd = session->ppd;
    return noErr;
}
