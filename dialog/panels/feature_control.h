#pragma once

#include "dialog/printers/option_state.h"

#include <QWidget>

#include <functional>
#include <memory>

class QLabel;

namespace dialog {

/// For a control that would take an ampersand for the mark of a mnemonic.
[[nodiscard]] QString literalText(QString text);

/// The control of one option in the panel of printer features: a pop-up, a check box, or a list of
/// check boxes. Shows what is marked and what cannot be had, and tells what a person picks.
class FeatureControl : public QWidget
{
    Q_OBJECT

public:
    /// Says which marks forbid a choice.
    using Reason = std::function<QString(const Choices &)>;

    /// The control that fits the option, which is borrowed.
    [[nodiscard]] static std::unique_ptr<FeatureControl> make(const PrinterOption &option,
                                                              const Reason &reason);

    /// Tells nobody. Readers say @p remark of the control, and what stands below it.
    void showState(const OptionState &state, const QString &remark = {});
    [[nodiscard]] const PrinterOption &option() const { return option_; }
    /// Whether the control bears the option's text itself and wants no label before it.
    [[nodiscard]] virtual bool bearsTitle() const { return false; }
    /// What a label in front of it is for.
    [[nodiscard]] virtual QWidget *buddy() = 0;
    /// Whether option or choices contain a text, their keywords included.
    [[nodiscard]] bool isAbout(const QString &text) const;

Q_SIGNALS:
    /// A person wants a choice, or, where several can stand, no longer wants it.
    void picked(const dialog::Choice &choice, dialog::Switch to);

protected:
    FeatureControl(const PrinterOption &option, const Reason &reason);

    virtual void update(const OptionState &state) = 0;
    [[nodiscard]] QString reasonOf(const OptionState &state, const QString &choice) const;
    [[nodiscard]] QString objectNameOf(const QString &choice = {}) const;
    void add(QWidget *control);

private:
    [[nodiscard]] QString conflictOf(const OptionState &state) const;

    const PrinterOption &option_;
    Reason reason_;
    QLabel *conflict_ = nullptr; ///< where what is marked cannot stand
};

} // namespace dialog
