#pragma once

#include <QDialog>
#include <QPointer>

#include <vector>

class PopUpButton;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace dialog {

class NoticeArea;

/// The dialog's window: printer and document, the pop-up of panels, the front panel's view,
/// notices, Help, Cancel and Print. It knows panels as titles and views only.
class PrintWindow : public QDialog
{
    Q_OBJECT

public:
    PrintWindow(const QString &printer, const QString &document);
    /// With a control in the printer's place, which becomes the window's.
    PrintWindow(QWidget *printer, const QString &document);

    /// Adds a panel; a null view shows as an empty panel. The window becomes the view's parent.
    void addPanel(const QString &title, QWidget *view);
    /// Destroys the views of all panels, whose printer goes, and dismisses what was said of it.
    void clearPanels();
    /// Says in the panels' place what is waited for; an empty text says nothing. Until a null one
    /// there is nothing to print.
    void setWaiting(const QString &text);
    /// Shows a panel's view without telling anybody.
    void bringForward(int index);
    [[nodiscard]] int frontIndex() const { return front_; }
    void setDocument(const QString &document);
    /// Fits the window to what it shows, in one repaint.
    void fitContents();
    /// While a job is on its way, Print cannot be pressed again.
    void setSending(bool isSending);

    [[nodiscard]] NoticeArea &notices() const { return *notices_; }
    [[nodiscard]] PopUpButton *panelPopUp() const { return popUp_; }
    [[nodiscard]] QWidget *view(int index) const;

Q_SIGNALS:
    void panelPicked(int index);
    void helpRequested();
    void printRequested();
    /// Cancel, Escape or the close button; once.
    void left();

protected:
    void reject() override;
    void closeEvent(QCloseEvent *event) override;

private:
    [[nodiscard]] QWidget *makeHeading(QWidget *printer, const QString &document);
    [[nodiscard]] QWidget *makeButtons();
    void leave();
    void allowPrinting();

    QWidget *printer_ = nullptr;
    QLabel *document_ = nullptr;
    QLabel *popUpLabel_ = nullptr;
    PopUpButton *popUp_ = nullptr;
    QWidget *panelPlace_ = nullptr;
    QVBoxLayout *panelLayout_ = nullptr;
    QLabel *waiting_ = nullptr;
    NoticeArea *notices_ = nullptr;
    QPushButton *print_ = nullptr;
    std::vector<QPointer<QWidget>> views_;
    int front_ = -1;
    bool isSending_ = false;
    bool isWaiting_ = false;
    bool hasLeft_ = false;
};

} // namespace dialog
