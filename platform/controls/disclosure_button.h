#pragma once

#include "platform/export.h"

#include <QToolButton>

/// The triangle in front of something that can be opened: it points to the right while closed
/// (unchecked), down while open, and has no frame in either state.
class PLATFORM_EXPORT DisclosureButton : public QToolButton
{
    Q_OBJECT

public:
    explicit DisclosureButton(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void pointAt(bool isOpen);
};
