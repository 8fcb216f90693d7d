#pragma once

#include "dialog/preview/pdf_saving.h"
#include "dialog/window/notice_area.h"

#include <QObject>

namespace dialog {

class JobDesk;
class PrintWindow;

enum class SaveKind { Pdf, Ticket };

/// What stands in the menu of Save: the job as a PDF file, as it would come out, and the ticket of
/// the job. Asks for the file, and tells in the window what becomes of it.
class SaveDesk : public QObject
{
    Q_OBJECT

public:
    /// Borrows both. Adds its entries to the window's menu, which lose them with this.
    SaveDesk(JobDesk &desk, PrintWindow &window, QObject *parent = nullptr);
    ~SaveDesk() override;

    // Without asking for a file.
    void savePdf(const QString &file);
    void saveTicket(const QString &file);
    /// Whether a PDF file is being written; another one is not begun then.
    [[nodiscard]] bool isSaving() const { return pdf_.isSaving(); }

Q_SIGNALS:
    /// A person has named a file, which has not been written so far.
    void fileNamed(dialog::SaveKind kind);
    void noticed(const dialog::Notice &notice);
    /// Of a file that is whole, or of what stands in its way.
    void saved(const QString &file);
    void failed(const QString &notice);

private:
    void ask(SaveKind kind);
    void save(SaveKind kind, const QString &file);
    void showProgress(int sides, int allSides);
    void tellSaved(const QString &file);
    void fail(const QString &file, PdfFault fault, const QString &reason);

    JobDesk &desk_;
    PrintWindow &window_;
    PdfSaving pdf_;
    QString file_; ///< that the PDF goes to
    QList<QAction *> actions_;
};

} // namespace dialog
