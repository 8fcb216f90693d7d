#pragma once

#include "dialog/preview/page_source.h"

#include <QSizeF>
#include <QTemporaryDir>

#include <atomic>
#include <mutex>
#include <set>
#include <vector>

namespace test {

inline const QSizeF kA4Points(595, 842);

/// Documents in a folder that goes with the object.
class SampleDocuments
{
public:
    /// Pages of these sizes in points: white, with a blue band along the top and the page's number.
    [[nodiscard]] QString pdf(const std::vector<QSizeF> &pages);
    [[nodiscard]] QString pdf(int pages)
    {
        return pdf(std::vector<QSizeF>(static_cast<std::size_t>(pages), kA4Points));
    }
    /// A PDF that consists of these objects, numbered from 1; the first is the catalogue.
    [[nodiscard]] QString handMadePdf(const QByteArrayList &objects,
                                      const QByteArray &trailer = {});
    [[nodiscard]] QString file(const QByteArray &contents);
    [[nodiscard]] QString path(const QString &name) const { return folder_.filePath(name); }

private:
    [[nodiscard]] QString newPath();

    QTemporaryDir folder_;
    int count_ = 0;
};

/// Which pages of a document were looked at; for every thread.
class TouchedPages
{
public:
    void add(int page);
    [[nodiscard]] std::set<int> pages() const;

private:
    mutable std::mutex mutex_;
    std::set<int> pages_;
};

/// Opens documents as usual and notes down every page that is asked for anything.
[[nodiscard]] std::function<dialog::OpenedSource(const QString &)>
countingOpener(const std::shared_ptr<TouchedPages> &touched);

} // namespace test
