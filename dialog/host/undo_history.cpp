#include "dialog/host/undo_history.h"

#include "dialog/host/dialog_host.h"

#include <QUndoCommand>

#include <algorithm>
#include <set>
#include <utility>

namespace dialog {
namespace {

template <class Value>
std::map<QString, Value> withChange(std::map<QString, Value> now,
                                    const std::map<QString, Value> &from,
                                    const std::map<QString, Value> &to)
{
    for (const auto &[key, value] : from) {
        if (to.find(key) == to.end())
            now.erase(key);
    }
    for (const auto &[key, value] : to) {
        const auto former = from.find(key);
        if (former == from.end() || former->second != value)
            now[key] = value;
    }
    return now;
}

Choices withChange(const Choices &now, const Choices &from, const Choices &to)
{
    std::set<QString> options;
    for (const Choices *marks : {&from, &to}) {
        for (const Choice &mark : *marks)
            options.insert(mark.option);
    }
    Choices changed = now;
    for (const QString &option : options) {
        const Choices wanted = marksOf(to, option);
        if (wanted == marksOf(from, option))
            continue;
        std::erase_if(changed, [&](const Choice &mark) { return mark.option == option; });
        changed.insert(changed.end(), wanted.begin(), wanted.end());
    }
    return changed;
}

class StateCommand : public QUndoCommand
{
public:
    StateCommand(DialogHost &host, ChoiceState before, ChoiceState after)
        : host_(host), before_(std::move(before)), after_(std::move(after))
    {
    }

    void undo() override { go(after_, before_); }
    /// The stack does it once when the change has just been made.
    void redo() override
    {
        if (std::exchange(isMade_, true))
            go(before_, after_);
    }

private:
    void go(const ChoiceState &from, const ChoiceState &to)
    {
        host_.setState(withChange(host_.state(), from, to));
    }

    DialogHost &host_;
    ChoiceState before_;
    ChoiceState after_;
    bool isMade_ = false;
};

} // namespace

ChoiceState withChange(const ChoiceState &now, const ChoiceState &from, const ChoiceState &to)
{
    return {withChange(now.marks, from.marks, to.marks),
            withChange(now.settings, from.settings, to.settings),
            from.paperName == to.paperName ? now.paperName : to.paperName,
            withChange(now.chosen, from.chosen, to.chosen)};
}

UndoHistory::UndoHistory(DialogHost &host, QObject *parent) : QObject(parent), host_(host) {}

void UndoHistory::change(const QString &title, const std::function<void()> &function)
{
    const ChoiceState before = host_.state();
    function();
    const ChoiceState after = host_.state();
    if (after == before)
        return;
    stack_.push(new StateCommand(host_, before, after));
    Q_EMIT changed(title);
}

void UndoHistory::undo()
{
    if (!stack_.canUndo())
        return;
    stack_.undo();
    Q_EMIT undone();
}

void UndoHistory::redo()
{
    stack_.redo();
}

} // namespace dialog
