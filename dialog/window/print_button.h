#pragma once

#include <QPushButton>

namespace dialog {

/// The button that prints. One press prints once, however quick the job is: neither the second
/// click of a double click nor the repetitions of a key that is held down are presses.
class PrintButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    /// A repeated key goes on to the window.
    void keyPressEvent(QKeyEvent *event) override;
    /// Of the default button, some styles do not show the focus.
    void paintEvent(QPaintEvent *event) override;
};

} // namespace dialog
