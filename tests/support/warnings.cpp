#include "tests/support/warnings.h"

#include <QtGlobal>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace test {
namespace {

std::vector<ExpectWarning *> &expectations()
{
    static std::vector<ExpectWarning *> list;
    return list;
}

QtMessageHandler &formerHandler()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

/// The offscreen platform says so of every window operation that it does not have.
bool isOfThePlatform(const QString &message)
{
    return message.startsWith(QStringLiteral("This plugin does not support "));
}

void watch(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtDebugMsg || type == QtInfoMsg || isOfThePlatform(message)) {
        formerHandler()(type, context, message);
        return;
    }
    const bool taken = std::any_of(expectations().begin(), expectations().end(),
                                   [&](ExpectWarning *expected) { return expected->takes(message); });
    if (!taken)
        ADD_FAILURE() << "unexpected warning: " << message.toStdString();
}

} // namespace

void installWarningWatch() { formerHandler() = qInstallMessageHandler(watch); }

ExpectWarning::ExpectWarning(const QString &pattern) : pattern_(pattern)
{
    expectations().push_back(this);
}

ExpectWarning::~ExpectWarning()
{
    std::erase(expectations(), this);
    EXPECT_GT(seen_, 0) << "no warning matched " << pattern_.pattern().toStdString();
}

bool ExpectWarning::takes(const QString &message)
{
    const bool matches = pattern_.match(message).hasMatch();
    seen_ += matches ? 1 : 0;
    return matches;
}

} // namespace test
