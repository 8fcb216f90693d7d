#pragma once

#include "platform/controls/frame_view.h"
#include "platform/controls/interface_file.h"
#include "platform/controls/pop_up_button.h"
#include "platform/controls/stepper.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QToolButton>

/// The controls of the interface file "QualityAndMedia". All are null until it is loaded and again
/// when the host has destroyed the view. Misspelled names are the interface file's own.
struct QualityOutlets
{
    QPointer<FrameView> ibPDEView;      ///< the whole panel
    QPointer<FrameView> ibAdvancedView; ///< the advanced options
    QPointer<FrameView> ibHeaderView;   ///< the part that is always visible
    QPointer<PopUpButton> ibPrintQuality;
    QPointer<QLabel> ibPrintQualityLabel;
    QPointer<QCheckBox> ibBlackAndWhite; ///< no operation uses it
    QPointer<PopUpButton> ibPaperType;
    QPointer<QLabel> ibPaperTypeLabel;
    QPointer<PopUpButton> ibPaperSource; ///< ships hidden
    QPointer<QLabel> ibPaperSourceLabel;
    QPointer<QToolButton> ibDisclosure; ///< state 1 is open
    QPointer<QLabel> ibDisclosureLabel;
    QPointer<QCheckBox> ibMIrror;
    QPointer<QCheckBox> ibTonerSave;
    QPointer<QLabel> ibThresholdLabel;
    QPointer<QLineEdit> ibThresholdTextFeild;
    QPointer<Stepper> ibThresholdStepper;
    QPointer<QLabel> ibHalftoneLabel;
    QPointer<PopUpButton> ibHalftone;
    QPointer<QLabel> ibSharpenlabel;
    QPointer<PopUpButton> ibSharpen;
    QPointer<PopUpButton> ibDryTimePopUp;
    QPointer<QCheckBox> ibDryTimeCheckBox;
    QPointer<QLabel> ibDryTimeLabel;
    QPointer<QCheckBox> ibUseICCTestChart;
    QPointer<PopUpButton> ibColorPreferences;
    QPointer<PopUpButton> ibInkToUse;
    QPointer<QLabel> ibInkToUseLabel;
    QPointer<QLabel> ibColorPreferencesLabel;
    QPointer<PopUpButton> ibColorOutput;
    QPointer<QLabel> ibColorOutputLabel;

    /// What connects each outlet to the widget of its name.
    [[nodiscard]] platform::OutletTable table();
};
