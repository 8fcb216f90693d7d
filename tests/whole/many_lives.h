#pragma once

namespace test {

/// Lives on all fixture printers one after the other, after some to warm up, two at a time: views
/// go before or after their panels, panels before their PPD. Fails the running test when memory,
/// open files, observers or widgets have grown at the end.
void expectNothingLeftAfter(int lives);

} // namespace test
