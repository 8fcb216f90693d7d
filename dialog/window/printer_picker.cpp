#include "dialog/window/printer_picker.h"

#include "dialog/window/printer_words.h"
#include "platform/controls/pop_up_button.h"
#include "platform/controls/spoken_label.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace dialog {
PrinterPicker::PrinterPicker(QWidget *parent)
    : QWidget(parent), popUp_(new PopUpButton(this)), filter_(new QLineEdit(this)),
      state_(new QLabel(this))
{
    filter_->setObjectName(QStringLiteral("printerFilter"));
    filter_->setPlaceholderText(tr("Find a printer"));
    filter_->setAccessibleName(tr("Find a printer"));
    filter_->setClearButtonEnabled(true);
    filter_->hide();
    popUp_->setObjectName(QStringLiteral("printerPopUp"));
    popUp_->setAccessibleName(tr("Printer"));
    state_->setObjectName(QStringLiteral("printerState"));
    state_->setTextFormat(Qt::PlainText);
    state_->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(popUp_);
    column->addWidget(filter_);
    column->addWidget(state_);
    addSpokenLabel(popUp_, tr("Printer"));
    connect(popUp_, &QComboBox::activated, this, &PrinterPicker::pick);
    connect(filter_, &QLineEdit::textChanged, this, &PrinterPicker::fillPopUp);
}

void PrinterPicker::setQueues(const std::vector<Queue> &queues)
{
    if (popUp_->view()->isVisible() || queues == queues_)
        return;
    queues_ = queues;
    filter_->setVisible(static_cast<int>(queues_.size()) > kFew);
    fillPopUp();
}

void PrinterPicker::select(const QString &name)
{
    if (name == selected_)
        return;
    selected_ = name;
    fillPopUp();
}

QStringList PrinterPicker::offered() const
{
    QStringList names;
    for (int i = 0; i < popUp_->count(); ++i)
        names.append(popUp_->itemData(i).toString());
    return names;
}

/// The selected one is always there: it is what will print.
std::vector<Queue> PrinterPicker::shownQueues() const
{
    const QString typed = filter_->isHidden() ? QString() : filter_->text();
    std::vector<Queue> shown;
    if (!selected_.isNull() && !findQueue(queues_, selected_))
        shown.push_back({selected_});
    std::copy_if(
        queues_.begin(), queues_.end(), std::back_inserter(shown),
        [&](const Queue &queue) { return queue.name == selected_ || matchesFilter(queue, typed); });
    return shown;
}

void PrinterPicker::fillPopUp()
{
    popUp_->clear();
    for (const Queue &queue : shownQueues())
        popUp_->addItem(queueText(queue), queue.name);
    popUp_->setCurrentIndex(popUp_->findData(selected_));
    showState();
}

void PrinterPicker::showState()
{
    const Queue *queue = findQueue(queues_, selected_);
    QStringList words;
    if (queue)
        words = {stateText(*queue), queue->location};
    words.removeAll(QString());
    popUp_->setToolTip(popUp_->currentText()); // may be longer than the pop-up
    state_->setText(words.join(QStringLiteral(" · ")));
    state_->setVisible(!words.isEmpty());
}

void PrinterPicker::pick(int index)
{
    const QString name = popUp_->itemData(index).toString();
    if (name == selected_)
        return;
    selected_ = name;
    showState();
    Q_EMIT picked(name);
}

void PrinterPicker::pickFirstMatch()
{
    const auto match = std::find_if(queues_.begin(), queues_.end(), [&](const Queue &queue) {
        return matchesFilter(queue, filter_->text());
    });
    const int index = match == queues_.end() ? -1 : popUp_->findData(match->name);
    if (index < 0)
        return;
    popUp_->setCurrentIndex(index);
    pick(index);
}

/// Return in the field picks what it has found, instead of printing.
void PrinterPicker::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && window()->focusWidget() == filter_)
        pickFirstMatch();
    else
        QWidget::keyPressEvent(event);
}

} // namespace dialog
