#pragma once

#include "dialog/log/record.h"

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace dialog::debuglog {

/// One line of a call tree: a traced call, or any other record.
struct Entry
{
    enum class Kind { Call, Message };

    Record record; ///< of a call: the one that begins it
    int depth = 0; ///< number of calls around it
    Kind kind = Kind::Message;
    bool isContinued = false; ///< a call that an earlier part of the action began
    std::optional<int> duration =
        {}; ///< of a call, in milliseconds; nothing when its end is missing
};

/// What belongs together: an outermost call of one process with everything in it, or a record
/// outside any call.
struct Action
{
    int number = 0; ///< from 1, in the order of the file; 0: no call
    qint64 process = 0;
    std::vector<Entry> entries;
    bool goesOn = false; ///< too long to be held; its next part follows under the same number
};

/// Braces that have no partner, and the file line of the first.
struct Unbalanced
{
    qint64 callsWithoutEnd = 0;
    qint64 endsWithoutCall = 0;
    qint64 firstLine = 0;
};

/// Puts records together to actions. Each process has calls of its own, and a process id that
/// starts a log anew is another process.
class CallTreeBuilder
{
public:
    using Sink = std::function<void(const Action &)>;

    /// What is held at most, whatever the log looks like.
    struct Limits
    {
        std::size_t entries = 50'000;
        std::size_t bytes = 32 * 1024 * 1024;
        std::size_t depth = 200; ///< deeper calls stand as records
        std::size_t processes = 32;
    };

    explicit CallTreeBuilder(Sink sink) : CallTreeBuilder(std::move(sink), Limits()) {}
    CallTreeBuilder(Sink sink, Limits limits) : sink_(std::move(sink)), limits_(limits) {}

    void take(const Record &record);
    /// Hands over what is still open. To be called once, at the end.
    void finish();

    [[nodiscard]] const Unbalanced &unbalanced() const { return unbalanced_; }

private:
    struct Process
    {
        std::vector<std::size_t> openCalls; ///< indices of the action's entries, outermost first
        std::size_t tooDeep = 0;            ///< open calls beyond the limit of depth
        Action action;
    };
    using Processes = std::map<qint64, Process>;

    void openCall(Process &process, const Record &record);
    void closeCall(Processes::iterator place, const Record &record);
    void add(Process &process, const Record &record, Entry::Kind kind);
    void handOverAlone(const Record &record);
    void endProcess(Processes::iterator place);
    void handOverParts();
    void continueWith(Process &next, const Process &process);
    void reportOpenCalls(const Process &process);
    void reportUnbalanced(qint64 Unbalanced::*count, const Record &record);

    Sink sink_;
    Limits limits_;
    Processes processes_;
    int lastNumber_ = 0;
    std::size_t heldEntries_ = 0;
    std::size_t heldBytes_ = 0;
    Unbalanced unbalanced_;
};

} // namespace dialog::debuglog
