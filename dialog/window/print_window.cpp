#include "dialog/window/print_window.h"

#include "dialog/texts.h"
#include "dialog/window/notice_area.h"
#include "platform/controls/pop_up_button.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

namespace dialog {
namespace {

// Notices wrap at this width where no panel asks for more.
constexpr int kMinimumWidth = 440;

QLabel *literalLabel(const QString &text)
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
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
    setWindowTitle(text(Text::WindowTitle));
    setMinimumWidth(kMinimumWidth);
    panelPlace_ = new QWidget(this);
    panelLayout_ = new QVBoxLayout(panelPlace_);
    panelLayout_->setContentsMargins({});
    waiting_ = literalLabel({});
    waiting_->setObjectName(QStringLiteral("waiting"));
    waiting_->setAlignment(Qt::AlignCenter);
    waiting_->hide();
    panelLayout_->addWidget(waiting_);
    notices_ = new NoticeArea(this);
    auto *column = new QVBoxLayout(this);
    column->addWidget(makeHeading(printer, document));
    column->addWidget(separator());
    column->addWidget(panelPlace_);
    column->addStretch(1);
    column->addWidget(notices_);
    column->addWidget(makeButtons());
    connect(notices_, &NoticeArea::heightChanged, this, &PrintWindow::fitContents);
}

QWidget *PrintWindow::makeHeading(QWidget *printer, const QString &document)
{
    auto *heading = new QWidget(this);
    auto *form = new QFormLayout(heading);
    form->setContentsMargins({});
    document_ = literalLabel({});
    setDocument(document);
    popUp_ = new PopUpButton;
    popUp_->setObjectName(QStringLiteral("panelPopUp"));
    popUpLabel_ = literalLabel(text(Text::Settings));
    popUpLabel_->setBuddy(popUp_);
    popUp_->setAccessibleName(text(Text::Settings));
    form->addRow(literalLabel(text(Text::Printer)), printer);
    form->addRow(literalLabel(text(Text::Document)), document_);
    form->addRow(popUpLabel_, popUp_);
    popUpLabel_->hide();
    popUp_->hide();
    connect(popUp_, &QComboBox::activated, this, &PrintWindow::panelPicked);
    return heading;
}

QWidget *PrintWindow::makeButtons()
{
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *help = buttons->addButton(text(Text::Help), QDialogButtonBox::HelpRole);
    QPushButton *cancel = buttons->addButton(text(Text::Cancel), QDialogButtonBox::RejectRole);
    print_ = buttons->addButton(text(Text::Print), QDialogButtonBox::AcceptRole);
    help->setObjectName(QStringLiteral("helpButton"));
    cancel->setObjectName(QStringLiteral("cancelButton"));
    print_->setObjectName(QStringLiteral("printButton"));
    help->setAutoDefault(false);
    cancel->setAutoDefault(false);
    print_->setDefault(true);
    connect(help, &QPushButton::clicked, this, &PrintWindow::helpRequested);
    connect(cancel, &QPushButton::clicked, this, &PrintWindow::leave);
    connect(print_, &QPushButton::clicked, this, &PrintWindow::printRequested);
    return buttons;
}

void PrintWindow::addPanel(const QString &title, QWidget *view)
{
    if (view) {
        view->hide();
        panelLayout_->addWidget(view);
    }
    views_.emplace_back(view);
    popUp_->addItem(title);
    popUpLabel_->show();
    popUp_->show();
}

void PrintWindow::clearPanels()
{
    for (const QPointer<QWidget> &view : std::exchange(views_, {}))
        delete view;
    popUp_->clear();
    popUpLabel_->hide();
    popUp_->hide();
    front_ = -1;
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
    document_->setText(document.isNull() ? text(Text::NoDocument) : document);
}

void PrintWindow::fitContents()
{
    const bool updates = updatesEnabled();
    setUpdatesEnabled(false);
    // What has changed inside tells its parents by events, which must have arrived.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    layout()->activate();
    const QSize hint = sizeHint().expandedTo(minimumSize());
    resize(hint.width(), layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(hint.width())
                                                       : hint.height());
    setUpdatesEnabled(updates);
}

void PrintWindow::setSending(bool isSending)
{
    isSending_ = isSending;
    print_->setText(text(isSending ? Text::Sending : Text::Print));
    allowPrinting();
}

/// A job on its way keeps its printer.
void PrintWindow::allowPrinting()
{
    print_->setEnabled(!isSending_ && !isWaiting_);
    printer_->setEnabled(!isSending_);
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
