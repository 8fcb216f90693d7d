#include "dialog/save_desk.h"

#include "dialog/job_desk.h"
#include "dialog/jobs/document.h"
#include "dialog/jobs/ticket.h"
#include "dialog/preview/preview_pane.h"
#include "dialog/window/print_window.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace dialog {
namespace {

const QString kSaveKey = QStringLiteral("save");

QString suffixOf(SaveKind kind)
{
    return kind == SaveKind::Pdf ? QStringLiteral("pdf") : QStringLiteral("json");
}

/// The document's name with another suffix.
QString proposedName(const QString &document, const QString &suffix)
{
    const QString name = QFileInfo(documentName(document)).completeBaseName();
    return (name.isEmpty() ? QStringLiteral("job") : name) + u'.' + suffix;
}

} // namespace

SaveDesk::SaveDesk(JobDesk &desk, PrintWindow &window, QObject *parent)
    : QObject(parent), desk_(desk), window_(window)
{
    actions_ = {window_.addSaving(tr("Save as PDF…"), QStringLiteral("savePdf")),
                window_.addSaving(tr("Save Job Ticket…"), QStringLiteral("saveTicket"))};
    connect(actions_[0], &QAction::triggered, this, [this] { ask(SaveKind::Pdf); });
    connect(actions_[1], &QAction::triggered, this, [this] { ask(SaveKind::Ticket); });
    connect(&pdf_, &PdfSaving::progressed, this, &SaveDesk::showProgress);
    connect(&pdf_, &PdfSaving::saved, this, &SaveDesk::tellSaved);
    connect(&pdf_, &PdfSaving::failed, this,
            [this](PdfFault fault, const QString &reason) { fail(file_, fault, reason); });
    connect(&pdf_, &PdfSaving::cancelled, &window_.notices(),
            [this] { window_.notices().dismiss(kSaveKey); });
}

SaveDesk::~SaveDesk()
{
    qDeleteAll(actions_);
}

void SaveDesk::ask(SaveKind kind)
{
    const QString suffix = suffixOf(kind);
    auto *dialog = new QFileDialog(&window_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(suffix);
    dialog->selectFile(proposedName(desk_.document(), suffix));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, kind](const QString &file) { save(kind, file); });
    dialog->open();
}

void SaveDesk::save(SaveKind kind, const QString &file)
{
    Q_EMIT fileNamed(kind);
    if (kind == SaveKind::Pdf)
        savePdf(file);
    else
        saveTicket(file);
}

void SaveDesk::savePdf(const QString &file)
{
    if (pdf_.isSaving())
        return;
    file_ = file;
    if (desk_.document().isNull()) {
        fail(file, PdfFault::Document, tr("There is no document. Start the dialog with one."));
        return;
    }
    pdf_.start({desk_.document(), file, documentName(desk_.document()), window_.preview().look()});
}

void SaveDesk::showProgress(int sides, int allSides)
{
    window_.notices().show(
        {kSaveKey,
         Severity::Information,
         tr("Saving %1: side %2 of %3.")
             .arg(QFileInfo(file_).fileName(), QString::number(sides), QString::number(allSides)),
         {{tr("Cancel Saving"), QStringLiteral("cancelSavingButton"), [this] { pdf_.cancel(); }}}});
}

void SaveDesk::saveTicket(const QString &file)
{
    const QByteArray json = QJsonDocument(toJson(desk_.ticket())).toJson();
    QSaveFile target(file);
    const bool isWritten =
        target.open(QIODevice::WriteOnly) && target.write(json) == json.size() && target.commit();
    if (isWritten)
        tellSaved(file);
    else
        fail(file, PdfFault::File, target.errorString());
}

void SaveDesk::tellSaved(const QString &file)
{
    Q_EMIT noticed({kSaveKey, Severity::Information, tr("Saved as %1.").arg(file), {}});
    Q_EMIT saved(file);
}

void SaveDesk::fail(const QString &file, PdfFault fault, const QString &reason)
{
    const QString words = fault == PdfFault::Document
                              ? tr("%1 could not be saved. %2").arg(file, reason)
                              : tr("%1 could not be saved: %2. Choose another place, or make room "
                                   "and allow writing there.")
                                    .arg(file, reason);
    Q_EMIT noticed({kSaveKey, Severity::Critical, words, {}});
    Q_EMIT failed(words);
}

} // namespace dialog
