#pragma once

#include "dialog/preview/preview_document.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QSpinBox;
class QToolButton;

namespace dialog {

class SheetView;

/// The document as it will come out on paper, sheet by sheet, with controls for turning pages and
/// zooming. Draws in the background; the former picture stays until the new one is there.
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewPane(QWidget *parent = nullptr);
    /// For a document that is opened in another way.
    explicit PreviewPane(SourceOpener opener, QWidget *parent = nullptr);

    /// Null is no document.
    void setDocument(const QString &path);
    void setLook(const SheetLook &look);

    [[nodiscard]] const SheetLook &look() const { return look_; }
    /// Null before the first document.
    [[nodiscard]] const QString &document() const { return path_; }
    /// The printed side that is shown, from 0.
    [[nodiscard]] int index() const { return index_; }
    /// Whether the picture shows what was asked for last.
    [[nodiscard]] bool isCurrent() const
    {
        return !isOpening_ && !isWaiting_ && !refreshing_.isActive();
    }

Q_SIGNALS:
    /// 0 when the document cannot be read or shown.
    void pageCountKnown(int pages);
    /// The picture shows what was asked for last.
    void becameCurrent();

protected:
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] QWidget *makeTurning();
    [[nodiscard]] QWidget *makeZooming();
    [[nodiscard]] QToolButton *makeButton(const char *name);
    void writeTexts();
    void takeFacts(const DocumentFacts &facts);
    void takePicture(const SidePicture &picture);
    void showIndex(int index);
    void stepZoom(int steps);
    void setFit(bool fits);
    void refreshSoon();
    void refresh();
    void updateControls();
    void updateWords();
    [[nodiscard]] bool hasSides() const { return !sides_.empty(); }
    [[nodiscard]] std::vector<int> shownPages() const;
    [[nodiscard]] int sideCount() const { return static_cast<int>(sides_.size()); }

    PreviewDocument document_;
    QString path_;
    SheetLook look_;
    DocumentFacts facts_;
    std::vector<int> sides_; ///< as they come out
    int index_ = 0;
    bool isOpening_ = false;
    bool isWaiting_ = false;
    bool wasPainted_ = false;
    QTimer opening_;    ///< of the first document, until the pane has been painted
    QTimer refreshing_; ///< several changes make one request

    SheetView *view_;
    QLabel *caption_;
    QLabel *message_;
    QToolButton *previous_;
    QSpinBox *sheet_;
    QToolButton *next_;
    QToolButton *zoomOut_;
    QToolButton *fit_;
    QToolButton *zoomIn_;
};

} // namespace dialog
