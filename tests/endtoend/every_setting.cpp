#include "tests/endtoend/every_setting.h"

#include "tests/dialog/staged_driver.h"
#include "tests/endtoend/covered_settings.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

#include <iostream>

namespace test {

void PrintTo(const AnyPrinter &printer, std::ostream *out)
{
    *out << printer.name;
}

QByteArray inkPpd()
{
    return fileBytes(samplePpd("Korvane-S300.ppd"));
}

QByteArray tonerPpd()
{
    return fileBytes(samplePpd("Korvane-T500.ppd"));
}

/// Its model is on the list of those with the second panel, its name among those with dry time.
QByteArray everythingPpd()
{
    PpdText ppd = p3();
    ppd.option("DupDryTime") = p1c().option("DupDryTime");
    for (const char *option :
         {"ImprovementSettings", "ImprovePrintQuality", "ReduceGhosting", "PrintDensity"})
        ppd.add(p2().option(option));
    return ppd.withAttribute("ModelName", "Korvane T500")
        .withAttribute("APDialogExtension", "/Library/Printers/Korvane/PDEs/QualityAndMedia.bundle")
        .withLine(constraintLines())
        .bytes();
}

void expectEveryPairToArrive(const AnyPrinter &printer, unsigned seed)
{
    Printing printing(printer.ppd());
    const CoveredSettings covered = coverSettings(printing.open()->dialog().printer(), seed);
    EXPECT_EQ(covered.unmet, 0U);
    for (const Story &story : covered.stories) {
        printing.play(story);
        if (testing::Test::HasFatalFailure())
            break;
    }
    EXPECT_EQ(printing.expectArrivals().size(), covered.stories.size());
    std::cout << printer.name << ": " << covered.stories.size() << " jobs with " << covered.pairs
              << " pairs of choices; " << covered.impossible << " are impossible\n";
}

} // namespace test
