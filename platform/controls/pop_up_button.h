#pragma once

#include "platform/export.h"

#include <QComboBox>

/// Pop-up button of the interface files. Differs from QComboBox in that the wheel does nothing
/// while the control is without focus (the event goes on to its parent), and that its size hint
/// follows its longest item up to a bound, so that a long choice widens no dialog. A title that
/// does not fit is elided in the closed control, while the open list is as wide as its items need.
/// A person's pick, of the selected item too, is QComboBox::activated.
class PLATFORM_EXPORT PopUpButton : public QComboBox
{
    Q_OBJECT

public:
    explicit PopUpButton(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    void showPopup() override;

protected:
    void wheelEvent(QWheelEvent *event) override;
};
