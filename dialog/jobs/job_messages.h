#pragma once

#include "dialog/printers/queue_job.h"

#include <QString>
#include <QStringList>

namespace dialog {

/// What a person is told of a job that did not print: what happened, and what to do.
[[nodiscard]] QString faultMessage(const QueueJobResult &result, const QString &queue);

/// What a person should know of a job that was made: that it waits, that it had been made before,
/// settings that the server changed. Empty when all is as chosen.
[[nodiscard]] QStringList remarks(const QueueJobResult &result, const QString &queue);

/// What became of a job of an earlier start; null when there is nothing to tell.
[[nodiscard]] QString settlementMessage(const Settlement &settlement, const QString &title,
                                        const QString &queue);

} // namespace dialog
