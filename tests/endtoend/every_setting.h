#pragma once

#include "tests/endtoend/printing.h"

#include <QByteArray>

#include <ostream>

namespace test {

struct AnyPrinter
{
    const char *name;
    QByteArray (*ppd)();
};
void PrintTo(const AnyPrinter &printer, std::ostream *out);

[[nodiscard]] QByteArray inkPpd();
[[nodiscard]] QByteArray tonerPpd();
/// All settings of both panels at once, dry time as a check box, and the constraints of the table
/// of rules.
[[nodiscard]] QByteArray everythingPpd();

constexpr AnyPrinter kPrinters[] = {
    {"Ink", inkPpd}, {"Toner", tonerPpd}, {"Everything", everythingPpd}};

/// Plays each story of coverSettings() in a dialog of its own, and writes how many there were.
void expectEveryPairToArrive(const AnyPrinter &printer, unsigned seed);

} // namespace test
