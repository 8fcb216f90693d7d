#pragma once

#include "dialog/host/choice_state.h"

#include <QObject>
#include <QUndoStack>

#include <functional>

namespace dialog {

class DialogHost;

/// What @p from made of some settings and @p to of the same; everything else stays as it is in
/// @p now. So a change can be taken back after others have followed.
[[nodiscard]] ChoiceState withChange(const ChoiceState &now, const ChoiceState &from,
                                     const ChoiceState &to);

/// Changes of several settings at a time, which a person can take back and make again: ways out of
/// conflicts, presets, defaults.
class UndoHistory : public QObject
{
    Q_OBJECT

public:
    /// Borrows the host.
    explicit UndoHistory(DialogHost &host, QObject *parent = nullptr);

    /// Runs a function and remembers what it changed, by a title that a person reads. A function
    /// that changes nothing leaves no trace.
    void change(const QString &title, const std::function<void()> &function);
    [[nodiscard]] bool canUndo() const { return stack_.canUndo(); }
    [[nodiscard]] bool canRedo() const { return stack_.canRedo(); }
    void undo();
    void redo();

Q_SIGNALS:
    /// A change was made for the first time, and can be undone.
    void changed(const QString &title);
    /// The last change was taken back.
    void undone();

private:
    DialogHost &host_;
    QUndoStack stack_;
};

} // namespace dialog
