#pragma once

#include "dialog/preview/side_painter.h"

#include <QObject>

#include <functional>
#include <memory>

namespace dialog {

/// What is known of a document as soon as it is open.
struct DocumentFacts
{
    DocumentProblem problem = DocumentProblem::NoDocument;
    int pageCount = 0;
    bool isPicture = false;
};

struct SideRequest
{
    SheetLook look;
    int side = 0; ///< as printedSides() has it
    double pixelsPerPoint = 1;
};

/// A document that is read and drawn on a thread of its own, so that the main thread never waits.
///
/// Every document has its thread. One that hangs in a damaged document is left to itself as soon as
/// another document is opened.
class PreviewDocument : public QObject
{
    Q_OBJECT

public:
    /// @p opener is called on the document's thread.
    explicit PreviewDocument(SourceOpener opener = openPageSource, QObject *parent = nullptr);
    ~PreviewDocument() override;

    /// opened() follows. Requests for the former document are dropped. Null is no document.
    void open(const QString &path);
    /// The last request alone counts: drawing for an earlier one is stopped, and drawn() follows
    /// once for the last. Waits until the document is open; nothing follows if it cannot be opened.
    void request(const SideRequest &request);
    /// Nothing follows for any request made before.
    void withdraw();

Q_SIGNALS:
    void opened(const dialog::DocumentFacts &facts);
    void drawn(const dialog::SidePicture &picture);

private:
    struct Channel;
    static void work(const std::shared_ptr<Channel> &channel, const SourceOpener &opener,
                     const QString &path);
    void leaveDocument();

    SourceOpener opener_;
    std::shared_ptr<Channel> channel_; ///< null before the first document
};

} // namespace dialog
