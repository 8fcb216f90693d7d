#pragma once

#include "quality/kor_pde_controller.h"

/// What has no accessor in the Quality & Media controller, for tests.
struct QualityTestAccess
{
    [[nodiscard]] static QualityOutlets &outlets(KorPDEController2 &controller)
    {
        return controller;
    }
    [[nodiscard]] static bool &isMirrorSetByIronOn(KorPDEController2 &controller)
    {
        return controller.isMirrorSetByIronOn;
    }
    [[nodiscard]] static bool &isRunning1050OrLater(KorPDEController2 &controller)
    {
        return controller.isRunning1050OrLater;
    }
    [[nodiscard]] static QRectF headerViewRect(const KorPDEController2 &controller)
    {
        return controller.headerViewRect;
    }
};
