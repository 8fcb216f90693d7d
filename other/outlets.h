#pragma once

#include "platform/controls/interface_file.h"
#include "platform/controls/radio_matrix.h"

#include <QCheckBox>
#include <QPointer>

/// The controls of the interface file "Other". All are null until it is loaded and again when the
/// host has destroyed the view.
struct OtherOutlets
{
    QPointer<QWidget> ibOthersView; ///< the panel's view
    QPointer<QWidget> ibCustomView; ///< what holds the controls
    QPointer<QCheckBox> ibImprovementSettings;
    QPointer<RadioMatrix> ibImprovePrintQuality;
    QPointer<QCheckBox> ibReduceGhosting;
    QPointer<QCheckBox> ibImprovePrintDensity;

    /// What connects each outlet to the widget of its name.
    [[nodiscard]] platform::OutletTable table();
};
