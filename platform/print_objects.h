#pragma once

#include "platform/export.h"
#include "platform/values.h"

#include <QString>
#include <QVariant>

#include <map>

typedef struct ppd_file_s ppd_file_t; // libcups' PPD record, opened and closed by the dialog

namespace platform {

/// The job's settings: key to string, integer, real or boolean. Owned by the dialog.
class PLATFORM_EXPORT PrintSettings
{
public:
    /// Null (an invalid QVariant) when the key is missing.
    [[nodiscard]] QVariant value(const QString &key) const;
    void setValue(const QString &key, const QVariant &value);
    void remove(const QString &key);
    void setAll(const std::map<QString, QVariant> &values) { values_ = values; }
    [[nodiscard]] const std::map<QString, QVariant> &all() const { return values_; }

private:
    std::map<QString, QVariant> values_;
};

/// A sheet of paper, known by its name in the printer's PPD.
struct Paper
{
    QString ppdName;
};

/// The page format of the job. Without a paper (null PPD name) PMGetPageFormatPaper fails.
class PLATFORM_EXPORT PageFormat
{
public:
    [[nodiscard]] const Paper &paper() const { return paper_; }
    void setPaperName(const QString &ppdName) { paper_.ppdName = ppdName; }

private:
    Paper paper_;
};

/// The print session: groups settings, page format and PPD of one dialog, all borrowed.
struct PrintSession
{
    PrintSettings *settings = nullptr;
    PageFormat *pageFormat = nullptr;
    ppd_file_t *ppd = nullptr;
};

} // namespace platform

/// Handles of the dialog's objects, borrowed by the panels; each may be null.
using PMPrintSettings = platform::PrintSettings *;
using PMPageFormat = platform::PageFormat *;
using PMPrintSession = platform::PrintSession *;
using PMPaper = const platform::Paper *;

enum class PMLock { Unlocked, Locked };

/// Stores the value, or removes the key when the value is invalid or a null string. A null handle
/// does nothing and answers paramErr. The lock is accepted and has no effect here.
PLATFORM_EXPORT OSStatus PMPrintSettingsSetValue(PMPrintSettings settings, const QString &key,
                                                 const QVariant &value, PMLock lock);

/// Stores the key's value in @p value; a missing key or a null handle leaves it alone and answers
/// paramErr.
PLATFORM_EXPORT OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key,
                                                 QVariant *value);

/// Stores the page format's paper; without one, or with a null handle, leaves @p paper alone and
/// answers paramErr.
PLATFORM_EXPORT OSStatus PMGetPageFormatPaper(PMPageFormat pageFormat, PMPaper *paper);

/// Stores the paper's PPD name; a null paper leaves @p name alone and answers paramErr.
PLATFORM_EXPORT OSStatus PMPaperGetPPDPaperName(PMPaper paper, QString *name);

/// Stores the session's PPD; without one, or with a null handle, leaves @p ppd alone and answers
/// paramErr.
PLATFORM_EXPORT OSStatus GetPPDRefFromSession(PMPrintSession session, ppd_file_t **ppd);
