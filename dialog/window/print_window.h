#pragma once

#include <QDialog>
#include <QPointer>

#include <vector>

class PopUpButton;
class QAction;
class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QMenu;
class QPushButton;
class QVBoxLayout;

namespace dialog {

class ConflictSheet;
class ContentScroll;
class NoticeArea;
class PreviewPane;

/// The dialog's window. At the left the preview; at the right printer, presets, document, the
/// general section, the chooser of panels, the front panel's view and notices; below Help, Save,
/// Reset, Cancel and Print. It knows panels as titles and widgets only.
class PrintWindow : public QDialog
{
    Q_OBJECT

public:
    PrintWindow(const QString &printer, const QString &document);
    /// With a control in the printer's place, which becomes the window's.
    PrintWindow(QWidget *printer, const QString &document);

    // The places. What is put there becomes the window's and belongs to one printer: clearPanels()
    // destroys it.
    void setPresets(QWidget *presets);
    void setGeneral(QWidget *general);
    /// A null view shows as an empty panel.
    void addPanel(const QString &title, QWidget *view);
    /// Destroys what belongs to one printer, which goes, and dismisses what was said of it.
    void clearPanels();

    /// Says in the panels' place what is waited for; an empty text says nothing. Until a null one
    /// there is nothing to print.
    void setWaiting(const QString &text);
    /// Shows a panel's view without telling anybody.
    void bringForward(int index);
    [[nodiscard]] int frontIndex() const { return front_; }
    void setDocument(const QString &document);
    /// Makes room for what is shown, in one repaint: the window is as large as a person made it, or
    /// as its contents need, but no larger than the screen.
    void fitContents();
    /// The size that a person gave it, here or in a dialog before, even where that is larger than
    /// the screen; invalid for none.
    [[nodiscard]] QSize personsSize() const { return personsSize_; }
    void setPersonsSize(QSize size);
    /// While a job is on its way, Print cannot be pressed again.
    void setSending(bool isSending);
    /// Print cannot be pressed for this reason; null: it can.
    void setPrintProblem(const QString &reason);
    /// A question to a person stands above the buttons until it is deleted; one at a time.
    void showQuestion(QWidget *question);
    /// An entry of the menu of Save, which shows as soon as it has one.
    QAction *addSaving(const QString &title, const QString &objectName);

    [[nodiscard]] NoticeArea &notices() const { return *notices_; }
    /// Stays when the printer changes.
    [[nodiscard]] PreviewPane &preview() const { return *preview_; }
    [[nodiscard]] ConflictSheet &conflictSheet() const { return *conflictSheet_; }
    [[nodiscard]] PopUpButton *panelPopUp() const { return popUp_; }
    [[nodiscard]] QWidget *view(int index) const;

Q_SIGNALS:
    void panelPicked(int index);
    void helpRequested();
    void resetRequested();
    void printRequested();
    /// The usual keys for it, anywhere but in a text that can take back its own typing.
    void undoRequested();
    void redoRequested();
    /// Cancel, Escape or the close button; once.
    void left();

protected:
    /// Tab goes through the parts in reading order, whenever they came.
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void reject() override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] QWidget *makeSettings(QWidget *printer, const QString &document);
    [[nodiscard]] QWidget *makeHeading(QWidget *printer, const QString &document);
    [[nodiscard]] QWidget *makeChooser();
    [[nodiscard]] QWidget *makeButtons();
    void showChooser(bool isShown);
    void leave();
    void allowPrinting();
    [[nodiscard]] int fittingWidth() const;
    [[nodiscard]] int heightFor(int width) const;

    QWidget *printer_ = nullptr;
    QFormLayout *heading_ = nullptr;
    QLabel *document_ = nullptr;
    QPointer<QWidget> presets_;
    QPointer<QWidget> general_;
    QVBoxLayout *generalPlace_ = nullptr;
    PreviewPane *preview_ = nullptr;
    QWidget *chooser_ = nullptr;
    PopUpButton *popUp_ = nullptr;
    ContentScroll *panelPlace_ = nullptr;
    QVBoxLayout *panelLayout_ = nullptr;
    QLabel *waiting_ = nullptr;
    ConflictSheet *conflictSheet_ = nullptr;
    NoticeArea *notices_ = nullptr;
    QVBoxLayout *questionPlace_ = nullptr;
    QPointer<QWidget> question_;
    QDialogButtonBox *buttons_ = nullptr;
    QPushButton *save_ = nullptr;
    QPushButton *reset_ = nullptr;
    QPushButton *print_ = nullptr;
    std::vector<QPointer<QWidget>> views_;
    int front_ = -1;
    int widest_ = 0;    ///< width that a panel of this printer has needed
    QSize personsSize_; ///< invalid until a person has made the window larger or smaller
    bool isSending_ = false;
    bool isWaiting_ = false;
    QString printProblem_;
    bool hasLeft_ = false;
};

} // namespace dialog
