#pragma once

#include "platform/controls/interface_file.h"

#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

/// The windows of the interface file "Conflicts". All are null until it is loaded. Each conflict
/// window reads, top to bottom: label A (one setting), B (the joining phrase), C (the other
/// setting), D (the prompt), then the choices with one or two labels each, then OK.
struct ConflictOutlets
{
    QPointer<QDialog> ibMsgOneWindow;
    QPointer<QLabel> ibLabelA_MsgOne;
    QPointer<QLabel> ibLabelB_MsgOne;
    QPointer<QLabel> ibLabelC_MsgOne;
    QPointer<QLabel> ibLabelD_MsgOne;
    QPointer<QRadioButton> ibFirstButton_MsgOne;
    QPointer<QRadioButton> ibSecondButton_MsgOne;
    QPointer<QRadioButton> ibThirdButton_MsgOne;
    QPointer<QLabel> ibLabelA_FirstButton_MsgOne;
    QPointer<QLabel> ibLabelB_FirstButton_MsgOne;
    QPointer<QLabel> ibLabelA_SecondButton_MsgOne;
    QPointer<QLabel> ibLabelB_SecondButton_MsgOne;
    QPointer<QLabel> ibLabelA_ThirdButton_MsgOne;
    QPointer<QPushButton> ibOkButton_MsgOne;

    QPointer<QDialog> ibMsgTwoWindow;
    QPointer<QLabel> ibLabelA_MsgTwo;
    QPointer<QLabel> ibLabelB_MsgTwo;
    QPointer<QLabel> ibLabelC_MsgTwo;
    QPointer<QLabel> ibLabelD_MsgTwo;
    QPointer<QRadioButton> ibFirstButton_MsgTwo;
    QPointer<QRadioButton> ibSecondButton_MsgTwo;
    QPointer<QRadioButton> ibThirdButton_MsgTwo;
    QPointer<QLabel> ibLabelA_FirstButton_MsgTwo;
    QPointer<QLabel> ibLabelB_FirstButton_MsgTwo;
    QPointer<QLabel> ibLabelA_SecondButton_MsgTwo;
    QPointer<QLabel> ibLabelA_ThirdButton_MsgTwo;
    QPointer<QPushButton> ibOkButton_MsgTwo;

    QPointer<QDialog> ibMsgFiveWindow;
    QPointer<QLabel> ibLabelA_MsgFive;
    QPointer<QLabel> ibLabelB_MsgFive;
    QPointer<QLabel> ibLabelC_MsgFive;
    QPointer<QLabel> ibLabelD_MsgFive;
    QPointer<QRadioButton> ibFirstButton_MsgFive;
    QPointer<QRadioButton> ibSecondButton_MsgFive;
    QPointer<QLabel> ibLabelA_FirstButton_MsgFive;
    QPointer<QLabel> ibLabelB_FirstButton_MsgFive;
    QPointer<QLabel> ibLabelA_SecondButton_MsgFive;
    QPointer<QPushButton> ibOkButton_MsgFive;

    QPointer<QDialog> ibInstructionWindow;
    QPointer<QLabel> ibInstructionText;

    /// What connects each outlet to the widget of its name.
    [[nodiscard]] platform::OutletTable table();
};
