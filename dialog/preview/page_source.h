#pragma once

#include <QImage>
#include <QRect>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>

class QPainter;

namespace dialog {

/// Why there is nothing to see of a document, or nothing more than an empty sheet.
enum class DocumentProblem {
    None,
    NoDocument,
    Unreadable, ///< missing, no regular file, not allowed
    Damaged,
    Encrypted,
    NoPages,
    TooLarge,    ///< an image that would take too much memory
    UnknownKind, ///< printable perhaps, but nothing that can be shown
    NoReader,    ///< a PDF, and what reads PDF is not installed
    Count
};

/// What a page looks like, for its pixels or for its lines.
struct PagePart
{
    int page = 0;
    QSize whole; ///< pixels that the whole page would have
    QRect part;  ///< the pixels wanted of it
};

using ShouldStop = std::function<bool()>;

/// An open document, read page by page. Everything here may take long, and belongs to the one
/// thread that opened it. What a document says is not trusted: sizes are checked, and a page that
/// cannot be shown is empty.
class PageSource
{
public:
    virtual ~PageSource() = default;

    [[nodiscard]] virtual bool isPicture() const = 0;
    [[nodiscard]] virtual int pageCount() const = 0;
    /// In points, as a person reads the page; empty when the page cannot be read.
    [[nodiscard]] virtual QSizeF pageSize(int page) = 0;
    /// On white; null when the page cannot be drawn or the drawing was stopped.
    [[nodiscard]] virtual QImage picture(const PagePart &part, const ShouldStop &shouldStop) = 0;
    /// In points of the page, as lines where the document has them, its letters too. False when the
    /// page cannot be drawn.
    [[nodiscard]] virtual bool paint(int page, QPainter &painter) = 0;
};

struct OpenedSource
{
    std::unique_ptr<PageSource> source = {}; ///< null with a problem
    DocumentProblem problem = DocumentProblem::None;
};

/// By what the file contains, whatever its name.
[[nodiscard]] OpenedSource openPageSource(const QString &path);
using SourceOpener = std::function<OpenedSource(const QString &path)>;

} // namespace dialog
