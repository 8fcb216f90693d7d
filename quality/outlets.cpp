#include "quality/outlets.h"

platform::OutletTable QualityOutlets::table()
{
    platform::OutletTable outlets;
#define KV_OUTLET(name) outlets.add(#name, name)
    KV_OUTLET(ibPDEView);
    KV_OUTLET(ibAdvancedView);
    KV_OUTLET(ibHeaderView);
    KV_OUTLET(ibPrintQuality);
    KV_OUTLET(ibPrintQualityLabel);
    KV_OUTLET(ibBlackAndWhite);
    KV_OUTLET(ibPaperType);
    KV_OUTLET(ibPaperTypeLabel);
    KV_OUTLET(ibPaperSource);
    KV_OUTLET(ibPaperSourceLabel);
    KV_OUTLET(ibDisclosure);
    KV_OUTLET(ibDisclosureLabel);
    KV_OUTLET(ibMIrror);
    KV_OUTLET(ibTonerSave);
    KV_OUTLET(ibThresholdLabel);
    KV_OUTLET(ibThresholdTextFeild);
    KV_OUTLET(ibThresholdStepper);
    KV_OUTLET(ibHalftoneLabel);
    KV_OUTLET(ibHalftone);
    KV_OUTLET(ibSharpenlabel);
    KV_OUTLET(ibSharpen);
    KV_OUTLET(ibDryTimePopUp);
    KV_OUTLET(ibDryTimeCheckBox);
    KV_OUTLET(ibDryTimeLabel);
    KV_OUTLET(ibUseICCTestChart);
    KV_OUTLET(ibColorPreferences);
    KV_OUTLET(ibInkToUse);
    KV_OUTLET(ibInkToUseLabel);
    KV_OUTLET(ibColorPreferencesLabel);
    KV_OUTLET(ibColorOutput);
    KV_OUTLET(ibColorOutputLabel);
#undef KV_OUTLET
    return outlets;
}
