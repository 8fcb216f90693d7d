#pragma once

#include "dialog/host/choice_ledger.h"
#include "dialog/printers/choice_json.h"
#include "dialog/printers/job_options.h"

#include <QDateTime>
#include <QJsonObject>

namespace dialog {

/// What one job is made of. Its JSON form is described in docs/job-ticket.md.
struct Ticket
{
    QString id;
    QDateTime time;
    QString printerName;
    QString ppdFile;
    QString queue;        ///< null without a print queue
    int jobId = 0;        ///< number at the print server, 0 without one
    QString documentName; ///< null without a document
    QString documentFile; ///< name inside the job folder; null when it holds no copy
    JobSettings settings;
    std::vector<Difference> differences;
};

[[nodiscard]] QJsonObject toJson(const Ticket &ticket);

[[nodiscard]] QJsonObject optionsJson(const JobOptions &options);

} // namespace dialog
