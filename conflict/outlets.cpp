#include "conflict/outlets.h"

#define KV_OUTLET(name) add(#name, name)

platform::OutletTable ConflictOutlets::table()
{
    platform::OutletTable outlets;
    outlets.KV_OUTLET(ibMsgOneWindow)
        .KV_OUTLET(ibLabelA_MsgOne)
        .KV_OUTLET(ibLabelB_MsgOne)
        .KV_OUTLET(ibLabelC_MsgOne)
        .KV_OUTLET(ibLabelD_MsgOne)
        .KV_OUTLET(ibFirstButton_MsgOne)
        .KV_OUTLET(ibSecondButton_MsgOne)
        .KV_OUTLET(ibThirdButton_MsgOne)
        .KV_OUTLET(ibLabelA_FirstButton_MsgOne)
        .KV_OUTLET(ibLabelB_FirstButton_MsgOne)
        .KV_OUTLET(ibLabelA_SecondButton_MsgOne)
        .KV_OUTLET(ibLabelB_SecondButton_MsgOne)
        .KV_OUTLET(ibLabelA_ThirdButton_MsgOne)
        .KV_OUTLET(ibOkButton_MsgOne);
    outlets.KV_OUTLET(ibMsgTwoWindow)
        .KV_OUTLET(ibLabelA_MsgTwo)
        .KV_OUTLET(ibLabelB_MsgTwo)
        .KV_OUTLET(ibLabelC_MsgTwo)
        .KV_OUTLET(ibLabelD_MsgTwo)
        .KV_OUTLET(ibFirstButton_MsgTwo)
        .KV_OUTLET(ibSecondButton_MsgTwo)
        .KV_OUTLET(ibThirdButton_MsgTwo)
        .KV_OUTLET(ibLabelA_FirstButton_MsgTwo)
        .KV_OUTLET(ibLabelB_FirstButton_MsgTwo)
        .KV_OUTLET(ibLabelA_SecondButton_MsgTwo)
        .KV_OUTLET(ibLabelA_ThirdButton_MsgTwo)
        .KV_OUTLET(ibOkButton_MsgTwo);
    outlets.KV_OUTLET(ibMsgFiveWindow)
        .KV_OUTLET(ibLabelA_MsgFive)
        .KV_OUTLET(ibLabelB_MsgFive)
        .KV_OUTLET(ibLabelC_MsgFive)
        .KV_OUTLET(ibLabelD_MsgFive)
        .KV_OUTLET(ibFirstButton_MsgFive)
        .KV_OUTLET(ibSecondButton_MsgFive)
        .KV_OUTLET(ibLabelA_FirstButton_MsgFive)
        .KV_OUTLET(ibLabelB_FirstButton_MsgFive)
        .KV_OUTLET(ibLabelA_SecondButton_MsgFive)
        .KV_OUTLET(ibOkButton_MsgFive);
    outlets.KV_OUTLET(ibInstructionWindow).KV_OUTLET(ibInstructionText);
    return outlets;
}
