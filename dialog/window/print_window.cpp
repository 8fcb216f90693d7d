#include "dialog/window/print_window.h"

#include "dialog/preview/preview_pane.h"
#include "dialog/window/conflict_sheet.h"
#include "dialog/window/content_scroll.h"
#include "dialog/window/notice_area.h"
#include "dialog/window/print_button.h"
#include "dialog/window/tab_order.h"
#include "platform/controls/pop_up_button.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace dialog {
namespace {

// Notices wrap at this width where no panel asks for more.
constexpr int kMinimumSettingsWidth = 440;

QLabel *literalLabel(const QString &text)
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

QLabel *labelOf(QWidget *control, const QString &text)
{
    QLabel *label = literalLabel(text);
    auto *inside = control->findChild<PopUpButton *>(); // of a control made of several
    label->setBuddy(inside ? inside : control);
    return label;
}

QFrame *separator()
{
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

} // namespace

PrintWindow::PrintWindow(const QString &printer, const QString &document)
    : PrintWindow(literalLabel(printer), document)
{
}

PrintWindow::PrintWindow(QWidget *printer, const QString &document) : printer_(printer)
{
    setObjectName(QStringLiteral("printWindow"));
    setWindowTitle(tr("Print"));
    auto *columns = new QHBoxLayout;
    preview_ = new PreviewPane;
    columns->addWidget(preview_, 1);
    columns->addWidget(makeSettings(printer, document));
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(columns, 1);
    rows->addWidget(makeButtons());
    connect(notices_, &NoticeArea::heightChanged, this, &PrintWindow::fitContents);
    connect(conflictSheet_, &ConflictSheet::heightChanged, this, &PrintWindow::fitContents);
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this,
            &PrintWindow::undoRequested);
    connect(new QShortcut(QKeySequence::Redo, this), &QShortcut::activated, this,
            &PrintWindow::redoRequested);
}

QWidget *PrintWindow::makeSettings(QWidget *printer, const QString &document)
{
    auto *settings = new QWidget(this);
    settings->setMinimumWidth(kMinimumSettingsWidth);
    conflictSheet_ = new ConflictSheet(settings);
    notices_ = new NoticeArea(settings);
    generalPlace_ = new QVBoxLayout;
    auto *column = new QVBoxLayout(settings);
    column->setContentsMargins({});
    column->addWidget(makeHeading(printer, document));
    column->addLayout(generalPlace_);
    column->addWidget(separator());
    column->addWidget(makeChooser());
    column->addWidget(panelPlace_, 1);
    column->addWidget(conflictSheet_);
    column->addWidget(notices_);
    questionPlace_ = new QVBoxLayout;
    column->addLayout(questionPlace_);
    return settings;
}

QWidget *PrintWindow::makeHeading(QWidget *printer, const QString &document)
{
    auto *heading = new QWidget(this);
    heading_ = new QFormLayout(heading);
    heading_->setContentsMargins({});
    document_ = literalLabel({});
    setDocument(document);
    heading_->addRow(labelOf(printer, tr("Printer:")), printer);
    heading_->addRow(literalLabel(tr("Document:")), document_);
    return heading;
}

QWidget *PrintWindow::makeChooser()
{
    chooser_ = new QWidget(this);
    auto *form = new QFormLayout(chooser_);
    form->setContentsMargins({});
    popUp_ = new PopUpButton;
    popUp_->setObjectName(QStringLiteral("panelPopUp"));
    popUp_->setAccessibleName(tr("Settings:"));
    form->addRow(labelOf(popUp_, tr("Settings:")), popUp_);
    chooser_->hide();
    connect(popUp_, &QComboBox::activated, this, &PrintWindow::panelPicked);

    auto *panels = new QWidget;
    panelLayout_ = new QVBoxLayout(panels);
    panelLayout_->setContentsMargins({});
    waiting_ = literalLabel({});
    waiting_->setObjectName(QStringLiteral("waiting"));
    waiting_->setAlignment(Qt::AlignCenter);
    waiting_->hide();
    panelLayout_->addWidget(waiting_);
    panelLayout_->addStretch(0); // what is left over, unless a panel has use for it
    panelPlace_ = new ContentScroll(panels, this);
    return chooser_;
}

QWidget *PrintWindow::makeButtons()
{
    buttons_ = new QDialogButtonBox(this);
    const auto add = [&](QPushButton *button, QDialogButtonBox::ButtonRole role, const char *name) {
        buttons_->addButton(button, role);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        return button;
    };
    const auto plain = [&](const QString &title, QDialogButtonBox::ButtonRole role,
                           const char *name) { return add(new QPushButton(title), role, name); };
    QPushButton *help = plain(tr("Help"), QDialogButtonBox::HelpRole, "helpButton");
    reset_ = plain(tr("Reset to Defaults"), QDialogButtonBox::ResetRole, "resetButton");
    save_ = plain(tr("Save"), QDialogButtonBox::ActionRole, "saveButton");
    QPushButton *cancel = plain(tr("Cancel"), QDialogButtonBox::RejectRole, "cancelButton");
    print_ = add(new PrintButton(tr("Print")), QDialogButtonBox::AcceptRole, "printButton");
    print_->setDefault(true);
    save_->setMenu(new QMenu(save_));
    save_->hide();
    connect(help, &QPushButton::clicked, this, &PrintWindow::helpRequested);
    connect(reset_, &QPushButton::clicked, this, &PrintWindow::resetRequested);
    connect(cancel, &QPushButton::clicked, this, &PrintWindow::leave);
    connect(print_, &QPushButton::clicked, this, &PrintWindow::printRequested);
    return buttons_;
}

void PrintWindow::setPresets(QWidget *presets)
{
    presets_ = presets;
    heading_->insertRow(1, labelOf(presets, tr("Presets:")), presets);
}

void PrintWindow::setGeneral(QWidget *general)
{
    general_ = general;
    generalPlace_->addWidget(separator());
    generalPlace_->addWidget(general);
}

void PrintWindow::addPanel(const QString &title, QWidget *view)
{
    if (view) {
        view->hide();
        const bool takesAll = view->sizePolicy().expandingDirections() & Qt::Vertical;
        panelLayout_->insertWidget(panelLayout_->count() - 1, view, takesAll ? 1 : 0);
    }
    views_.emplace_back(view);
    popUp_->addItem(title);
    chooser_->show();
}

void PrintWindow::clearPanels()
{
    for (const QPointer<QWidget> &view : std::exchange(views_, {}))
        delete view;
    if (presets_)
        heading_->removeRow(presets_);
    while (QLayoutItem *item = generalPlace_->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    popUp_->clear();
    chooser_->hide();
    front_ = -1;
    widest_ = 0;
    setPrintProblem({});
    conflictSheet_->withdraw();
    notices_->dismissGroup({});
}

void PrintWindow::setWaiting(const QString &text)
{
    waiting_->setText(text);
    waiting_->setVisible(!text.isEmpty());
    isWaiting_ = !text.isNull();
    allowPrinting();
    fitContents();
}

void PrintWindow::bringForward(int index)
{
    setUpdatesEnabled(false);
    if (QWidget *former = view(front_))
        former->hide();
    front_ = index;
    popUp_->setCurrentIndex(index);
    if (QWidget *next = view(index))
        next->show();
    fitContents();
    setUpdatesEnabled(true);
}

QWidget *PrintWindow::view(int index) const
{
    return index >= 0 && index < static_cast<int>(views_.size())
               ? views_[static_cast<std::size_t>(index)].data()
               : nullptr;
}

void PrintWindow::setDocument(const QString &document)
{
    document_->setText(document.isNull() ? tr("None") : document);
}

void PrintWindow::fitContents()
{
    const bool updates = updatesEnabled();
    setUpdatesEnabled(false);
    // What has changed inside tells its parents by events, which must have arrived.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    for (QWidget *inner = panelPlace_; inner != this; inner = inner->parentWidget())
        inner->updateGeometry(); // a scroll area keeps such news from its parents
    layout()->activate();
    widest_ = std::max(widest_, sizeHint().expandedTo(minimumSize()).width());
    const int width = fittingWidth();
    resize(QSize(width, heightFor(width))
               .expandedTo({0, personsSize_.height()})
               .boundedTo(screen()->availableSize()));
    setUpdatesEnabled(updates);
}

void PrintWindow::setPersonsSize(QSize size)
{
    personsSize_ = size;
    fitContents();
}

/// A person may make the window narrower than it would be, as far as nothing is cut off; no panel
/// makes it narrower than another.
int PrintWindow::fittingWidth() const
{
    return personsSize_.isValid() ? std::max(personsSize_.width(), minimumSizeHint().width())
                                  : widest_;
}

int PrintWindow::heightFor(int width) const
{
    return layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                         : sizeHint().expandedTo(minimumSize()).height();
}

void PrintWindow::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    if (event->spontaneous()) // from the window system, for a person or for its own reasons
        personsSize_ = event->size();
}

void PrintWindow::setSending(bool isSending)
{
    isSending_ = isSending;
    print_->setText(isSending ? tr("Sending…") : tr("Print"));
    allowPrinting();
}

void PrintWindow::setPrintProblem(const QString &reason)
{
    printProblem_ = reason;
    print_->setToolTip(reason);
    print_->setAccessibleDescription(reason);
    allowPrinting();
}

void PrintWindow::showQuestion(QWidget *question)
{
    delete question_;
    question_ = question;
    questionPlace_->addWidget(question);
    connect(question, &QObject::destroyed, this, &PrintWindow::fitContents, Qt::QueuedConnection);
    fitContents();
}

QAction *PrintWindow::addSaving(const QString &title, const QString &objectName)
{
    QAction *action = save_->menu()->addAction(title);
    action->setObjectName(objectName);
    save_->show();
    return action;
}

/// A job on its way keeps its printer.
void PrintWindow::allowPrinting()
{
    print_->setEnabled(!isSending_ && !isWaiting_ && printProblem_.isNull());
    reset_->setEnabled(!isSending_ && !isWaiting_);
    printer_->setEnabled(!isSending_);
}

bool PrintWindow::focusNextPrevChild(bool next)
{
    orderTabs(*this, {preview_, heading_->parentWidget(), general_, chooser_, panelPlace_,
                      conflictSheet_, notices_, question_, buttons_});
    buttons_->setFocusProxy(nullptr); // else the box leads Tab back to its first button for ever
    return QDialog::focusNextPrevChild(next);
}

/// Return presses the default button, a Return that is held down once.
void PrintWindow::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || !event->isAutoRepeat())
        QDialog::keyPressEvent(event);
}

void PrintWindow::reject()
{
    leave();
}

/// The dialog decides when the window goes: panels may be inside a modal window.
void PrintWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    leave();
}

void PrintWindow::leave()
{
    if (!std::exchange(hasLeft_, true))
        Q_EMIT left();
}

} // namespace dialog
