#pragma once

#include "dialog/preview/page_source.h"
#include "dialog/preview/sheet_look.h"

#include <QObject>
#include <QString>

#include <memory>

namespace dialog {

/// Why there is no file.
enum class PdfFault {
    Document, ///< told in sentences for a person
    File,     ///< told in the system's words
};

struct PdfOrder
{
    QString document; ///< path of what is to be laid out
    QString file;     ///< is replaced, whole or not at all
    QString title;
    SheetLook look;
};

/// Writes documents as PDF files as they would print: the sides and pages of the preview, as lines,
/// letters too: what the file says cannot be copied as text. In grayscale pages are pictures of at
/// most 300 dots per inch. The work is done on a thread of its own, one file at a time.
class PdfSaving : public QObject
{
    Q_OBJECT

public:
    /// @p opener is called on the thread.
    explicit PdfSaving(SourceOpener opener = openPageSource, QObject *parent = nullptr);
    /// Gives up what is under way, and waits a moment for it; nothing of it is left, unless a
    /// damaged document holds it up.
    ~PdfSaving() override;

    [[nodiscard]] bool isSaving() const { return work_ != nullptr; }
    /// Does nothing while another file is being written.
    void start(const PdfOrder &order);
    /// cancelled() follows when the work has been given up, saved() when it was done already.
    void cancel();

Q_SIGNALS:
    void progressed(int sides, int allSides);
    /// Once per start(); the file is there.
    void saved(const QString &file);
    // Instead, once per start(): there is no file, or the former one.
    void failed(dialog::PdfFault fault, const QString &reason);
    void cancelled();

private:
    struct Work;
    void finish(const Work &work);

    const SourceOpener opener_;
    std::shared_ptr<Work> work_; ///< shared with the thread; null while there is none
};

} // namespace dialog
