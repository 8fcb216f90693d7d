#include "conflict/kor_conflict_controller.h"

#include "conflict/dispatch.h"
#include "conflict/flags.h"
#include "diag/trace.h"
#include "model/pde_tools.h"
#include "platform/controls/modal_session.h"
#include "platform/notification_center.h"

using conflict::Window;

KorConflictController2::KorConflictController2(PMPrintSettings printSettings,
                                               PMPageFormat pageFormat, ppd_file_t *ppd,
                                               PDEModel2 *sharedModel, const Bundle *bundle)
    : mPageFormat(pageFormat), mPrintSetting(printSettings), mLocalPPD(ppd), model(sharedModel),
      bundle_(bundle)
{
    KV_TRACE("-[KorConflictController2 initWithSettings:pageFormat:currentPPD:andPDEModel:]");
    const PDETools2 tools;
    isRunning1050orLater = tools.isRunningOn105OrLater();
    if (ppd)
        mProductYear = tools.getProductYear(tools.getPlistPath(ppd));
}

KorConflictController2::~KorConflictController2()
{
    KV_TRACE("-[KorConflictController2 dealloc]");
    platform::NotificationCenter::defaultCenter().removeObserver(this);
    for (const Window window : conflict::kAllWindows)
        platform::discardWindow(windowOf(window));
}

void KorConflictController2::setPrintSession(PMPrintSession session)
{
    KV_TRACE("-[KorConflictController2 setPrintSession:]");
    mPrintSession = session;
}

void KorConflictController2::processConflict()
{
    KV_TRACE("-[KorConflictController2 processConflict]");
    if (!loadWindows())
        return;
    for (const Window window : conflict::kConflictWindows)
        resetChoiceFlags(window);
    conflict::clearInstructionFlags();
    std::vector<int> cases = validateConflict();
    while (!cases.empty() && showConflict(cases.front()) == Pass::GoesOn)
        cases = validateConflict();
}

KorConflictController2::Pass KorConflictController2::showConflict(int caseNumber)
{
    LogInfoBody("-[KorConflictController2 processConflict]", __LINE__, "caseNumber: %d",
                caseNumber);
    const conflict::Dispatch &dispatch = conflict::dispatchOf(caseNumber);
    if (dispatch.conflictFlag)
        *dispatch.conflictFlag = true;
    compose(dispatch.window, dispatch.kind);
    QDialog *window = windowOf(dispatch.window);
    platform::centerWindow(window);
    const QPointer<KorConflictController2> self(this);
    const platform::ModalEnd end = platform::runModalForWindow(window);
    return self && end == platform::ModalEnd::Stopped ? Pass::GoesOn : Pass::Ends;
}
