#include "plugin/ppd_findings.h"

#include "model/pde_tools.h"
#include "other/ppd_findings.h"
#include "platform/driver_file.h"
#include "plugin/kor_pde_plugin2.h"
#include "quality/kor_pde_controller.h"
#include "quality/ppd_findings.h"

namespace {

/// A list of the driver's that is not there, or is no list.
void findMissingList(const QString &literalPath, const char *attribute, const char *consequence,
                     std::vector<PDEFinding> &findings)
{
    if (platform::readDriverPropertyList(literalPath).isValid())
        return;
    findings.push_back(
        {.option = QString::fromLatin1(attribute),
         .what = QStringLiteral("there is no configuration list ") + literalPath +
                 QString::fromLatin1(consequence),
         .remedy = QStringLiteral("install the list, or correct the names that its path is made "
                                  "of")});
}

} // namespace

std::vector<PDEFinding> ppdFindings(ppd_file_t *ppd)
{
    const PDETools2 tools;
    const QString yearList = tools.getPlistPath(ppd);
    const quint16 productYear = tools.getProductYear(yearList);
    std::vector<PDEFinding> all =
        quality::findings(quality::printerOf(ppd, productYear, KorPDEController2::hostGrayscale()));
    findMissingList(yearList, "APPrinterIconPath", ", so that the product year is unknown", all);
    findMissingList(modelListPath(ppd), "ModelName", ", so that the Other panel is not offered",
                    all);
    if (KorPDEPlugin2().supportOthersPDE(ppd)) {
        const auto found = other::findings(ppd);
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
}
