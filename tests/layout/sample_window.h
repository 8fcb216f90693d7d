#pragma once

#include "dialog/print_dialog.h"
#include "tests/layout/desktop.h"

#include <memory>

namespace test {

/// The whole print dialog for the sample ink printer, in the look's language where the printer
/// speaks it, else in English; the window is shown. Null, with a failure, when it did not open.
[[nodiscard]] std::unique_ptr<dialog::PrintDialog> openSample(const Look &look,
                                                              const QString &document = {});

/// The same of any PPD.
[[nodiscard]] std::unique_ptr<dialog::PrintDialog> openPrinter(const QString &ppd, const Look &look,
                                                               const QString &document = {});

/// The sample ink printer's PPD, in the look's language where there is one.
[[nodiscard]] QString samplePpd(const Look &look);

/// Lets what short timers and posted events still do to the window's layout happen.
void settle();

} // namespace test
