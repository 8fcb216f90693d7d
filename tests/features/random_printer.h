#pragma once

#include "dialog/printers/choice.h"

#include <QByteArray>

#include <random>

namespace test {

/// How a printer of random options and constraints is made.
struct RandomPrinter
{
    int options = 8;
    int choices = 4;
    int constraints = 12;
    int partsOfConstraint = 2; ///< at most
};

/// The text of a PPD with options O0, O1, ... and choices c0, c1, ...: some Boolean, some for
/// several choices, the last one built in; every constraint spares the defaults.
[[nodiscard]] QByteArray randomPpd(const RandomPrinter &printer, std::mt19937 &random);

} // namespace test
