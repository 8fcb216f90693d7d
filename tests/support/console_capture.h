#pragma once

#include "platform/console.h"

#include <QStringList>

namespace test {

/// Collects the console lines that are written while it lives.
class ConsoleCapture
{
public:
    ConsoleCapture();
    ~ConsoleCapture();
    ConsoleCapture(const ConsoleCapture &) = delete;
    ConsoleCapture &operator=(const ConsoleCapture &) = delete;

    [[nodiscard]] const QStringList &lines() const { return lines_; }
    void clear() { lines_.clear(); }

private:
    QStringList lines_;
    platform::ConsoleSink former_;
};

} // namespace test
