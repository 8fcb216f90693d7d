#pragma once

#include "platform/export.h"

#include <QComboBox>
#include <QSize>

/// Pop-up button of the interface files. Differs from QComboBox in that the wheel does nothing
/// while the control is without focus (the event goes on to its parent), and that its size hint
/// follows its longest item up to a bound, so that a long choice widens no dialog; with a minimum
/// contents length it is that many letters, and no item is looked at. A title that does not fit is
/// elided in the closed control, while the open list is as wide as its items need. A person's pick,
/// of the selected item too, is QComboBox::activated.
///
/// Its list exists no sooner than somebody opens it: a panel has many of these, and QComboBox makes
/// the list of each as soon as it is to follow its items (AdjustToContents).
class PLATFORM_EXPORT PopUpButton : public QComboBox
{
    Q_OBJECT

public:
    explicit PopUpButton(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    void setModel(QAbstractItemModel *model) override;
    void showPopup() override;

protected:
    void wheelEvent(QWheelEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] QSize contentsSize() const;
    [[nodiscard]] QSize itemSize(int index) const;
    void followModel();
    void forgetHint();

    mutable QSize hint_; ///< without bound; invalid until asked for
};
