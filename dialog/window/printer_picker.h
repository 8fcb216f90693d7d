#pragma once

#include "dialog/printers/queue_list.h"

#include <QWidget>

class PopUpButton;
class QLabel;
class QLineEdit;

namespace dialog {

/// Where a person picks a printer: a pop-up of queues, the state of the picked one and, when there
/// are many queues, a field that leaves those which match.
class PrinterPicker : public QWidget
{
    Q_OBJECT

public:
    /// More queues than this get the field.
    static constexpr int kFew = 15;

    explicit PrinterPicker(QWidget *parent = nullptr);

    /// In this order. What is selected stays so, be it among them or not. An open list is left
    /// alone until the next time.
    void setQueues(const std::vector<Queue> &queues);
    /// Tells nobody.
    void select(const QString &name);
    [[nodiscard]] const QString &selected() const { return selected_; }
    /// Names of the queues that the pop-up offers.
    [[nodiscard]] QStringList offered() const;

Q_SIGNALS:
    /// A person picked another one than the selected.
    void picked(const QString &name);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] std::vector<Queue> shownQueues() const;
    void fillPopUp();
    void showState();
    void pick(int index);
    void pickFirstMatch();

    PopUpButton *popUp_;
    QLineEdit *filter_;
    QLabel *state_;
    std::vector<Queue> queues_;
    QString selected_;
};

} // namespace dialog
