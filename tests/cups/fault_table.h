#pragma once

#include "tests/cups/fault_server.h"

#include <cstdint>
#include <vector>

namespace test {

/// How many bytes one job is.
struct Exchange
{
    std::int64_t requestBytes;
    std::int64_t answerBytes;
};

/// That many faults of a kind, spread evenly from a job's first byte to its last.
[[nodiscard]] std::vector<Fault> spread(FaultKind kind, int count, const Exchange &exchange);

/// Prints once with every fault, presses Print again as a person would, and expects of each:
/// exactly one whole job at the real server with its settings, and nothing left in the journal.
void expectOneJobEach(FaultKind kind, int count);

} // namespace test
