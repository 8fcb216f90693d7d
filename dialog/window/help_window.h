#pragma once

#include <QDialog>
#include <QString>

class QTextBrowser;

namespace dialog {

/// File of a page of a help book, whose bundle is at a real path: in the first preferred language,
/// else in the book's own. A null page is the book's first. Null when the book has no such page.
[[nodiscard]] QString helpPagePath(const QString &bookPath, const QString &page);

/// Shows pages of help books beside the dialog; links lead to pages of the same book.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget *parent);

    void showPage(const QString &title, const QString &pagePath, const QString &anchor);

private:
    QTextBrowser *browser_;
};

} // namespace dialog
