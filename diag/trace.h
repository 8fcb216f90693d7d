#pragma once

#include "diag/debug_log.h"

#include <optional>

namespace diag {

/// The name under which an operation traces: a whole selector "-[MainPDE2 willShow]", or class name
/// and operation, {"MainPDE3", "willShow"}, for code that several classes share. The parts are put
/// together only when a line is written. The texts are borrowed for the life of the trace.
struct Selector
{
    constexpr Selector(const char *wholeSelector) : operation(wholeSelector) {}
    constexpr Selector(const char *nameOfClass, const char *nameOfOperation)
        : className(nameOfClass), operation(nameOfOperation)
    {
    }

    const char *className = nullptr; ///< null when operation is the whole selector
    const char *operation;
};

/// Writes the record of @p brace under that name.
void writeTrace(Selector selector, int line, const char *brace);

/// Writes "{" when an operation begins and "}" on every way out of it.
class TraceScope
{
public:
    /// Writes nothing.
    TraceScope() = default;
    TraceScope(Selector selector, int line) : selector_(selector), line_(line)
    {
        writeTrace(selector, line, "{");
    }
    ~TraceScope()
    {
        if (selector_)
            writeTrace(*selector_, line_, "}");
    }
    TraceScope(const TraceScope &) = delete;
    TraceScope &operator=(const TraceScope &) = delete;

private:
    const std::optional<Selector> selector_;
    const int line_ = 0;
};

} // namespace diag

/// First line of a traced operation: KV_TRACE("-[MainPDE2 willShow]"); or, in code that several
/// classes share, KV_TRACE({className(), "willShow"}). With the log off it costs the two tests of
/// isInfoEnabled(), and the arguments are not evaluated.
#define KV_TRACE(...)                                                                              \
    const ::diag::TraceScope kvTraceScope =                                                        \
        ::diag::isInfoEnabled() ? ::diag::TraceScope(__VA_ARGS__, __LINE__) : ::diag::TraceScope()
