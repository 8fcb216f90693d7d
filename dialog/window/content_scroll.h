#pragma once

#include <QScrollArea>

namespace dialog {

/// A scroll area that wants to be as large as its contents and scrolls only where there is no room
/// for that. Its contents are never narrower than they must be; a window that is, with large fonts
/// on a small screen, scrolls them sideways.
class ContentScroll : public QScrollArea
{
    Q_OBJECT

public:
    explicit ContentScroll(QWidget *contents, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace dialog
