#include "tests/support/console_capture.h"

namespace test {

ConsoleCapture::ConsoleCapture()
    : former_(platform::setConsoleSink([this](const QString &line) { lines_.append(line); }))
{
}

ConsoleCapture::~ConsoleCapture() { platform::setConsoleSink(former_); }

} // namespace test
