#include "dialog/window/conflict_sheet.h"

#include "dialog/window/wrapped_label.h"

#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

namespace dialog {
namespace {

QLabel *warningIcon(QWidget *parent)
{
    auto *label = new QLabel(parent);
    const int size = parent->style()->pixelMetric(QStyle::PM_SmallIconSize);
    label->setPixmap(
        parent->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));
    label->setAlignment(Qt::AlignTop);
    return label;
}

/// A radio button whose text may take several lines; a click on the text picks it too.
class WayRow : public QWidget
{
public:
    WayRow(const QString &text, QWidget *parent) : QWidget(parent), radio_(new QRadioButton(this))
    {
        radio_->setAccessibleName(text);
        radio_->setMinimumHeight(fontMetrics().lineSpacing()); // beside the first line
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins({});
        row->addWidget(radio_, 0, Qt::AlignTop);
        row->addWidget(new WrappedLabel(text, this), 1);
    }

    [[nodiscard]] QRadioButton *radio() const { return radio_; }

protected:
    void mousePressEvent(QMouseEvent *) override { radio_->setFocus(Qt::MouseFocusReason); }
    void mouseReleaseEvent(QMouseEvent *) override { radio_->click(); }

private:
    QRadioButton *radio_;
};

} // namespace

ConflictSheet::ConflictSheet(QWidget *parent)
    : QFrame(parent), problem_(new WrappedLabel({}, this)), advice_(new WrappedLabel({}, this)),
      column_(new QVBoxLayout)
{
    setObjectName(QStringLiteral("conflictSheet"));
    problem_->setObjectName(QStringLiteral("conflictProblem"));
    advice_->setObjectName(QStringLiteral("conflictAdvice"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    QFont bold = font();
    bold.setBold(true);
    problem_->setFont(bold);
    column_->addWidget(problem_);
    column_->addWidget(advice_);
    column_->addWidget(makeButtons());
    auto *row = new QHBoxLayout(this);
    row->addWidget(warningIcon(this));
    row->addLayout(column_, 1);
    hide();
}

/// Each is the default button while it has the focus, so that Return does what it says.
QWidget *ConflictSheet::makeButtons()
{
    auto *buttons = new QWidget(this);
    keep_ = new QPushButton(tr("Keep What I Had"), buttons);
    apply_ = new QPushButton(tr("Make This Change"), buttons);
    keep_->setObjectName(QStringLiteral("keepChoice"));
    apply_->setObjectName(QStringLiteral("applyResolution"));
    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins({});
    row->addStretch(1);
    row->addWidget(keep_);
    row->addWidget(apply_);
    keep_->setAutoDefault(true);
    apply_->setAutoDefault(true);
    connect(keep_, &QPushButton::clicked, this, &ConflictSheet::keep);
    connect(apply_, &QPushButton::clicked, this, &ConflictSheet::apply);
    return buttons;
}

void ConflictSheet::ask(const ConflictQuestion &question)
{
    question_ = question;
    problem_->setWords(question.problem);
    setAccessibleName(question.problem);
    fillWays(question.ways);
    advice_->setWords(question.ways.isEmpty() ? question.advice : tr("What should change?"));
    apply_->setVisible(!question.ways.isEmpty());
    if (!std::exchange(isAsking_, true))
        formerFocus_ = QApplication::focusWidget();
    show();
    Q_EMIT heightChanged();
    takeFocus();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void ConflictSheet::fillWays(const QStringList &ways)
{
    delete ways_;
    ways_ = new QWidget(this);
    radios_ = new QButtonGroup(ways_);
    auto *rows = new QVBoxLayout(ways_);
    rows->setContentsMargins({});
    for (int i = 0; i < static_cast<int>(ways.size()); ++i) {
        auto *row = new WayRow(ways[i], ways_);
        row->radio()->setObjectName(QStringLiteral("resolution%1").arg(i));
        row->radio()->setChecked(i == 0);
        radios_->addButton(row->radio(), i);
        rows->addWidget(row);
    }
    column_->insertWidget(column_->indexOf(advice_) + 1, ways_);
    ways_->setVisible(!ways.isEmpty());
    orderFocus();
}

/// New buttons stand at the end of the window, from where Qt leads Tab to nothing before them; so
/// they are brought here first.
void ConflictSheet::orderFocus()
{
    QWidget *before = apply_;
    for (QAbstractButton *radio : radios_->buttons()) {
        setTabOrder(before, radio);
        before = radio;
    }
    setTabOrder(before, keep_);
    setTabOrder(keep_, apply_);
}

/// What is being typed goes on.
void ConflictSheet::takeFocus()
{
    const QWidget *focus = window()->focusWidget();
    if (qobject_cast<const QLineEdit *>(focus) && focus->hasFocus())
        return;
    if (QAbstractButton *first = radios_->button(0))
        first->setFocus(Qt::OtherFocusReason);
    else
        keep_->setFocus(Qt::OtherFocusReason);
}

void ConflictSheet::withdraw()
{
    if (isAsking_)
        close();
}

void ConflictSheet::close()
{
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    isAsking_ = false;
    question_ = {};
    hide();
    if (hadFocus && formerFocus_)
        formerFocus_->setFocus(Qt::OtherFocusReason);
    Q_EMIT heightChanged();
}

void ConflictSheet::apply()
{
    const int picked = radios_->checkedId();
    if (!isAsking_ || picked < 0)
        return;
    close();
    Q_EMIT wayPicked(picked);
}

void ConflictSheet::keep()
{
    if (!isAsking_)
        return;
    close();
    Q_EMIT kept();
}

void ConflictSheet::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        keep();
    else if (isReturn && apply_->isVisible())
        apply();
    else if (isReturn)
        keep();
    else
        QFrame::keyPressEvent(event);
}

} // namespace dialog
