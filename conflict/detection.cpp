// What the conflict controller finds out before it tests: paper, media, cartridges, layout.

#include "conflict/flags.h"
#include "conflict/kor_conflict_controller.h"
#include "conflict/paper_classes.h"
#include "diag/trace.h"
#include "model/pde_tools.h"
#include "platform/strings.h"

namespace {

constexpr int kFewestColumnsOfSharedSheet = 2;

} // namespace

std::vector<int> KorConflictController2::validateConflict()
{
    KV_TRACE("-[KorConflictController2 validateConflict]");
    return conflict::findConflicts(gatherSituation());
}

conflict::Situation KorConflictController2::gatherSituation()
{
    conflict::Situation situation;
    situation.paperType = model->paperTypeTicket();
    situation.printQuality = model->printQualityTicket();
    situation.inkToUse = model->inkToUseTicket();
    situation.colorOutput = model->colorOutputTicket();

    const QString size = currentPaperSize();
    hasPagesPerSheet(); // asked, and not used by any test
    situation.photoMedia = isMediaTypePhoto(situation.paperType);
    situation.bannerSize = isPaperSizeBanner(size);
    situation.envelopeSize = isPaperSizeEnvelope(size);
    situation.colorCartridgeOnly = isColorCartOnly();
    situation.photoCartridge = isPhotoCartInstalled();
    situation.envelopeMedia = isMediaTypeEnvelope(situation.paperType);
    situation.automaticMedia = isMediaTypeAutomatic(situation.paperType);

    situation.productYear = mProductYear;
    situation.ironOnDraftIgnored = IGNORE_IRONON_DRAFT_CONFLICT;
    situation.paperSizeInstructed = HAS_PAPERSIZE_INSTRUCTION;
    situation.inkToUseInstructed = HAS_INKTOUSE_INSTRUCTION;
    situation.cartridgeInstructed = HAS_CARTINSTALLED_INSTRUCTION;
    return situation;
}

QString KorConflictController2::currentPaperSize()
{
    return isRunning1050orLater ? selectedPaperSize() : selectedPaperSizeOnTiger();
}

QString KorConflictController2::selectedPaperSize()
{
    KV_TRACE("-[KorConflictController2 selectedPaperSize]");
    PMPaper paper = nullptr;
    QString name;
    PMGetPageFormatPaper(mPageFormat, &paper);
    PMPaperGetPPDPaperName(paper, &name);
    const QString mapped = conflict::ppdPaperName(name);
    LogInfoBody("-[KorConflictController2 selectedPaperSize]", __LINE__, "paperName: %s",
                platform::described(mapped).toUtf8().constData());
    return mapped;
}

QString KorConflictController2::selectedPaperSizeOnTiger()
{
    KV_TRACE("-[KorConflictController2 selectedPaperSizeOnTiger]");
    return {};
}

QString KorConflictController2::directSelectedPaperSize()
{
    KV_TRACE("-[KorConflictController2 directSelectedPaperSize]");
    PMPaper paper = nullptr;
    const OSStatus status = PMGetPageFormatPaper(mPageFormat, &paper);
    LogInfoBody("-[KorConflictController2 directSelectedPaperSize]", __LINE__, "status: %d",
                status);
    return {};
}

bool KorConflictController2::hasPagesPerSheet()
{
    KV_TRACE("-[KorConflictController2 hasPagesPerSheet]");
    QVariant columns;
    PMPrintSettingsGetValue(
        mPrintSetting, QStringLiteral("com.apple.print.PrintSettings.PMLayoutColumns"), &columns);
    return platform::integerValue(columns) >= kFewestColumnsOfSharedSheet;
}

bool KorConflictController2::isPaperSizeBanner(const QString &paperName)
{
    KV_TRACE("-[KorConflictController2 isPaperSizeBanner:]");
    return conflict::isBanner(paperName);
}

bool KorConflictController2::isPaperSizeEnvelope(const QString &paperName)
{
    KV_TRACE("-[KorConflictController2 isPaperSizeEnvelope:]");
    return conflict::isEnvelopeSize(paperName);
}

bool KorConflictController2::isMediaTypePhoto(const QString &mediaTicket)
{
    KV_TRACE("-[KorConflictController2 isMediaTypePhoto:]");
    return conflict::isPhotoMedia(mediaTicket);
}

bool KorConflictController2::isMediaTypeEnvelope(const QString &mediaTicket)
{
    KV_TRACE("-[KorConflictController2 isMediaTypeEnvelope:]");
    return conflict::isEnvelopeMedia(mediaTicket);
}

bool KorConflictController2::isMediaTypeAutomatic(const QString &mediaTicket)
{
    KV_TRACE("-[KorConflictController2 isMediaTypeAutomatic:]");
    return conflict::isAutomaticMedia(mediaTicket);
}

bool KorConflictController2::isColorCartOnly()
{
    KV_TRACE("-[KorConflictController2 isColorCartOnly]");
    const conflict::Cartridges cartridges = installedCartridges();
    return cartridges.cart1 == QLatin1String("Color Standard") &&
           cartridges.cart2 == QLatin1String("Not installed");
}

bool KorConflictController2::isPhotoCartInstalled()
{
    KV_TRACE("-[KorConflictController2 isPhotoCartInstalled]");
    return installedCartridges().cart2 == QLatin1String("Photo Standard");
}

conflict::Cartridges KorConflictController2::installedCartridges() const
{
    if (!mLocalPPD)
        return {};
    const PDETools2 tools;
    return conflict::installedCartridges(tools.getModelYear(mLocalPPD),
                                         tools.getModelName(mLocalPPD));
}
