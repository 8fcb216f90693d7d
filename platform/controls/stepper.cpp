#include "platform/controls/stepper.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

/// What a screen reader sees: one spin box; the two buttons are part of it.
class AccessibleStepper : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleStepper(Stepper *stepper) : QAccessibleWidget(stepper, QAccessible::SpinBox)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return QString::number(stepper()->value());
        return QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return stepper()->value(); }
    void setCurrentValue(const QVariant &value) override
    {
        if (stepper()->isEnabled())
            stepper()->pick(value.toInt());
    }
    QVariant maximumValue() const override { return stepper()->maximum(); }
    QVariant minimumValue() const override { return stepper()->minimum(); }
    QVariant minimumStepSize() const override { return stepper()->increment(); }

private:
    Stepper *stepper() const { return static_cast<Stepper *>(widget()); }
};

namespace {

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *stepper = qobject_cast<Stepper *>(object);
    return stepper ? new AccessibleStepper(stepper) : nullptr;
}

QToolButton *makeButton(Qt::ArrowType arrow, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    parent->layout()->addWidget(button);
    return button;
}

} // namespace

Stepper::Stepper(QWidget *parent) : QWidget(parent)
{
    QAccessible::installFactory(makeAccessible); // once only, however often it is called
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    up_ = makeButton(Qt::UpArrow, this);
    down_ = makeButton(Qt::DownArrow, this);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(up_, &QToolButton::clicked, this, [this] { step(1); });
    connect(down_, &QToolButton::clicked, this, [this] { step(-1); });
    sizeButtons();
    updateButtons();
}

void Stepper::setValue(int value)
{
    value_ = std::clamp(value, minimum_, maximum_);
    updateButtons();
    QAccessibleValueChangeEvent changed(this, value_);
    QAccessible::updateAccessibility(&changed);
}

void Stepper::setMinimum(int minimum)
{
    minimum_ = minimum;
    maximum_ = std::max(minimum, maximum_);
    setValue(value_);
}

void Stepper::setMaximum(int maximum)
{
    maximum_ = maximum;
    minimum_ = std::min(minimum_, maximum);
    setValue(value_);
}

void Stepper::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        sizeButtons();
}

void Stepper::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Up)
        step(1);
    else if (event->key() == Qt::Key_Down)
        step(-1);
    else
        QWidget::keyPressEvent(event);
}

void Stepper::paintEvent(QPaintEvent *)
{
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void Stepper::wheelEvent(QWheelEvent *event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    wheelRest_ += event->angleDelta().y();
    const int steps = wheelRest_ / QWheelEvent::DefaultDeltasPerStep;
    wheelRest_ %= QWheelEvent::DefaultDeltasPerStep;
    step(steps);
    event->accept();
}

void Stepper::step(int steps)
{
    const qint64 wanted = value_ + qint64{steps} * increment_;
    pick(static_cast<int>(std::clamp<qint64>(wanted, minimum_, maximum_)));
}

void Stepper::pick(int value)
{
    const int before = value_;
    setValue(value);
    if (value_ != before)
        Q_EMIT stepped(value_);
}

void Stepper::sizeButtons()
{
    const int line = fontMetrics().height();
    for (QToolButton *button : {up_, down_})
        button->setFixedSize(line + line / 4, line * 3 / 4);
}

void Stepper::updateButtons()
{
    up_->setEnabled(value_ < maximum_);
    down_->setEnabled(value_ > minimum_);
}

namespace controls {

int integerValue(const Stepper *stepper)
{
    return stepper ? stepper->value() : 0;
}

void setIntegerValue(Stepper *stepper, int value)
{
    if (stepper)
        stepper->setValue(value);
}

} // namespace controls
