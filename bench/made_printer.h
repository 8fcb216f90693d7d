#pragma once

#include <QByteArray>

/// Printers with more options and choices than any sample, as PPD text.
namespace bench {

/// One pick-one option with that many choices, "Automatic" the first and default.
[[nodiscard]] QByteArray optionText(const QByteArray &keyword, int choices);
/// Options "Extra<first>" up to, but without, "Extra<end>".
[[nodiscard]] QByteArray extraOptions(int first, int end, int choices);

} // namespace bench
