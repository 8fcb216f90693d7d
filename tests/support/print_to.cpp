#include "tests/support/print_to.h"

#include <QDebug>

void PrintTo(const QString &text, std::ostream *out)
{
    if (text.isNull())
        *out << "(null QString)";
    else
        *out << '"' << text.toStdString() << '"';
}

void PrintTo(const QVariant &value, std::ostream *out)
{
    QString text;
    QDebug(&text).nospace() << value;
    *out << text.toStdString();
}

namespace test {

::testing::AssertionResult sameText(const char *actualExpression, const char *expectedExpression,
                                    const QString &actual, const QString &expected)
{
    if (platform::isEqual(actual, expected))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << actualExpression << " is " << ::testing::PrintToString(actual) << ", expected "
           << ::testing::PrintToString(expected) << " (" << expectedExpression << ")";
}

} // namespace test
