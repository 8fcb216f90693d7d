#pragma once

#include "platform/export.h"

#include <QWidget>

class QToolButton;
class AccessibleStepper;

/// Two small buttons, up and down, that step an integer between bounds, without wrapping. Up and
/// Down keys and the wheel step it too while it has the focus. Read by screen readers as a spin
/// box.
class PLATFORM_EXPORT Stepper : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int increment READ increment WRITE setIncrement)

public:
    explicit Stepper(QWidget *parent = nullptr);

    [[nodiscard]] int value() const { return value_; }
    /// Cut to the bounds; emits nothing.
    void setValue(int value);
    [[nodiscard]] int minimum() const { return minimum_; }
    void setMinimum(int minimum);
    [[nodiscard]] int maximum() const { return maximum_; }
    void setMaximum(int maximum);
    [[nodiscard]] int increment() const { return increment_; }
    void setIncrement(int increment) { increment_ = increment; }

    /// The two buttons, for tests and replay.
    [[nodiscard]] QToolButton *upButton() const { return up_; }
    [[nodiscard]] QToolButton *downButton() const { return down_; }

Q_SIGNALS:
    /// A person stepped; never emitted for setValue().
    void stepped(int value);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    friend class AccessibleStepper;
    void step(int steps);
    /// A person's change, by whatever device.
    void pick(int value);
    void sizeButtons();
    void updateButtons();

    QToolButton *up_;
    QToolButton *down_;
    int wheelRest_ = 0;
    int value_ = 0;
    int minimum_ = 0;
    int maximum_ = 100;
    int increment_ = 1;
};

namespace controls {

/// 0 for a missing stepper; writing to one does nothing.
[[nodiscard]] PLATFORM_EXPORT int integerValue(const Stepper *stepper);
PLATFORM_EXPORT void setIntegerValue(Stepper *stepper, int value);

} // namespace controls
