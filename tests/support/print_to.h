#pragma once

#include "platform/strings.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <gtest/gtest.h>

#include <ostream>

/// Readable failures: null is printed as a word, text in quotes.
void PrintTo(const QString &text, std::ostream *out);
void PrintTo(const QVariant &value, std::ostream *out);

namespace test {

/// Short for QString::fromUtf8 in expectations.
[[nodiscard]] inline QString q(const char *text) { return QString::fromUtf8(text); }

/// Equality in which null and "" differ: EXPECT_PRED_FORMAT2(test::sameText, actual, expected), or
/// EXPECT_TEXT(actual, "expected") and EXPECT_NULL(actual).
[[nodiscard]] ::testing::AssertionResult sameText(const char *actualExpression,
                                                  const char *expectedExpression,
                                                  const QString &actual, const QString &expected);

} // namespace test

#define EXPECT_TEXT(actual, expected) EXPECT_PRED_FORMAT2(::test::sameText, actual, ::test::q(expected))
#define EXPECT_SAME(actual, expected) EXPECT_PRED_FORMAT2(::test::sameText, actual, expected)
#define EXPECT_NULL(actual) EXPECT_PRED_FORMAT2(::test::sameText, actual, QString())
