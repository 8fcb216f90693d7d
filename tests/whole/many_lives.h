#pragma once

namespace test {

/// Lives in windows on all fixture printers, after some to warm up, two at a time: views go before
/// or after their panels, panels before their PPD. Fails the running test when open files,
/// observers or widgets have grown at the end.
void expectNothingLeftAfter(int lives);

/// Lives without windows, of which Qt itself keeps some hundred bytes each; three rounds of that
/// many. Fails the running test when every round uses up memory: caches grow in some rounds only.
void expectNoMemoryKeptAfter(int lives);

} // namespace test
