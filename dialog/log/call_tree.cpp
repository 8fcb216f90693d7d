#include "dialog/log/call_tree.h"

#include <algorithm>
#include <utility>

namespace dialog::debuglog {
namespace {

std::size_t bytesOf(const Record &record)
{
    return std::size_t(record.message.size() + record.operation.size());
}

/// Also over midnight.
int durationBetween(const Record &begin, const Record &end)
{
    return (end.milliseconds - begin.milliseconds + kMillisecondsOfDay) % kMillisecondsOfDay;
}

bool startsLog(const Record &record)
{
    return record.kind == 'A';
}

} // namespace

void CallTreeBuilder::take(const Record &record)
{
    auto place = processes_.find(record.process);
    if (startsLog(record) && place != processes_.end()) {
        endProcess(place);
        place = processes_.end();
    }
    const bool isKnown = place != processes_.end();
    if (record.isEnd()) {
        if (isKnown)
            closeCall(place, record);
        else
            reportUnbalanced(&Unbalanced::endsWithoutCall, record);
    } else if (record.isBegin()) {
        openCall(processes_[record.process], record);
    } else if (isKnown) {
        add(place->second, record, Entry::Kind::Message);
    } else {
        handOverAlone(record);
    }
    if (heldEntries_ > limits_.entries || heldBytes_ > limits_.bytes ||
        processes_.size() > limits_.processes)
        handOverParts();
}

void CallTreeBuilder::openCall(Process &process, const Record &record)
{
    if (process.openCalls.empty())
        process.action = {.number = ++lastNumber_, .process = record.process, .entries = {}};
    if (process.openCalls.size() >= limits_.depth) {
        ++process.tooDeep;
        return add(process, record, Entry::Kind::Message);
    }
    add(process, record, Entry::Kind::Call);
    process.openCalls.push_back(process.action.entries.size() - 1);
}

/// Ends the innermost open call of that operation; the calls inside it that have not ended have
/// lost their ends.
void CallTreeBuilder::closeCall(Processes::iterator place, const Record &record)
{
    Process &process = place->second;
    if (process.tooDeep > 0) {
        --process.tooDeep;
        return;
    }
    std::vector<Entry> &entries = process.action.entries;
    const auto found =
        std::find_if(process.openCalls.rbegin(), process.openCalls.rend(), [&](std::size_t index) {
            return entries[index].record.operation == record.operation;
        });
    if (found == process.openCalls.rend())
        return reportUnbalanced(&Unbalanced::endsWithoutCall, record);
    entries[*found].duration = durationBetween(entries[*found].record, record);
    while (entries[process.openCalls.back()].record.operation != record.operation) {
        reportUnbalanced(&Unbalanced::callsWithoutEnd, entries[process.openCalls.back()].record);
        process.openCalls.pop_back();
    }
    process.openCalls.pop_back();
    if (process.openCalls.empty())
        endProcess(place);
}

void CallTreeBuilder::add(Process &process, const Record &record, Entry::Kind kind)
{
    process.action.entries.push_back(
        {.record = record, .depth = int(process.openCalls.size()), .kind = kind});
    ++heldEntries_;
    heldBytes_ += bytesOf(record);
}

void CallTreeBuilder::handOverAlone(const Record &record)
{
    Action action{.number = 0, .process = record.process, .entries = {}};
    action.entries.push_back({.record = record});
    sink_(action);
}

/// Hands over the process's action and forgets the process.
void CallTreeBuilder::endProcess(Processes::iterator place)
{
    const Process process = std::move(place->second);
    processes_.erase(place);
    reportOpenCalls(process);
    for (const Entry &entry : process.action.entries)
        heldBytes_ -= bytesOf(entry.record);
    heldEntries_ -= process.action.entries.size();
    sink_(process.action);
}

/// Hands over everything that is held. Calls that are open stay so, unless there are too many
/// processes to go on with.
void CallTreeBuilder::handOverParts()
{
    Processes held = std::exchange(processes_, {});
    const bool goesOn = held.size() <= limits_.processes;
    heldEntries_ = 0;
    heldBytes_ = 0;
    for (auto &[id, process] : held) {
        process.action.goesOn = goesOn;
        sink_(process.action);
        if (goesOn)
            continueWith(processes_[id], process);
        else
            reportOpenCalls(process);
    }
}

/// The next part of an action repeats the calls that are open.
void CallTreeBuilder::continueWith(Process &next, const Process &process)
{
    next.action = {
        .number = process.action.number, .process = process.action.process, .entries = {}};
    next.tooDeep = process.tooDeep;
    for (const std::size_t index : process.openCalls) {
        add(next, process.action.entries[index].record, Entry::Kind::Call);
        next.action.entries.back().isContinued = true;
        next.openCalls.push_back(next.action.entries.size() - 1);
    }
}

void CallTreeBuilder::reportOpenCalls(const Process &process)
{
    for (const std::size_t index : process.openCalls)
        reportUnbalanced(&Unbalanced::callsWithoutEnd, process.action.entries[index].record);
}

void CallTreeBuilder::reportUnbalanced(qint64 Unbalanced::*count, const Record &record)
{
    ++(unbalanced_.*count);
    if (unbalanced_.firstLine == 0 || record.fileLine < unbalanced_.firstLine)
        unbalanced_.firstLine = record.fileLine;
}

void CallTreeBuilder::finish()
{
    while (!processes_.empty())
        endProcess(processes_.begin());
}

} // namespace dialog::debuglog
