// KorPDEController2: construction, and the hand-over to the host.

#include "diag/trace.h"
#include "model/ppd_records.h"
#include "platform/controls/modal_session.h"
#include "platform/notification_center.h"
#include "platform/strings.h"
#include "quality/kor_pde_controller.h"

namespace {

/// First system version whose host asks about choices and checks the PPD's constraints itself.
constexpr int kFirstVersionThatAsks = 0x1050;
constexpr quint16 kUnknownYear = 65535;

/// Destroys the view. While a modal window runs, one of the view's own events may be under way
/// further out, as where a pick opened a conflict window: then after the last session.
void discard(QWidget *view)
{
    if (!view || platform::modalDepth() == 0) {
        delete view;
        return;
    }
    using platform::ModalSessions;
    view->hide();
    QObject::connect(&ModalSessions::shared(), &ModalSessions::closed, view, [view] {
        if (platform::modalDepth() == 0)
            view->deleteLater();
    });
}

} // namespace

KorPDEController2::KorPDEController2(ppd_file_t *ppd, unsigned long encoding,
                                     PMPrintSettings printSetting, PMPageFormat pageFormat,
                                     const Bundle *bundle)
    : pdeModel_(std::make_shared<PDEModel2>()), conflictModel_(pdeModel_), mLOcPPD(ppd),
      mLocEncoding(encoding), mPrintSetting(printSetting), mPageFormat(pageFormat), bundle_(bundle)
{
    KV_TRACE("-[KorPDEController2 initWithPPD:encoding:printSetting:andPageFormat:]");
    pdeTools = std::make_unique<PDETools2>();
    isRunning1050OrLater = pdeTools->isRunningOn105OrLater();
    mProductYear = ppd ? pdeTools->getProductYear(pdeTools->getPlistPath(ppd)) : kUnknownYear;
    mOSVersion = pdeTools->OSVersion();
    setSupportedPPDOptionsToPDEModel(ppd);
    setDefaultsToPDEModel();
    hasTray2Support = platform::isEqual(
        pdeTools->getPPDMarkedChoice(QStringLiteral("Tray2Option"), ppd, ChoiceString::Keyword),
        QStringLiteral("True"));
    conflictController = std::make_unique<KorConflictController2>(
        mPrintSetting, mPageFormat, mLOcPPD, conflictModel_.get(), bundle_);
    platform::NotificationCenter::defaultCenter().addObserver(
        this, ConflictControllerChangeNotification,
        [this](const platform::Notification &) { updateControls(); });
    reportUnusualPPD();
}

KorPDEController2::~KorPDEController2()
{
    KV_TRACE("-[KorPDEController2 dealloc]");
    pdeTools.reset();
    conflictController.reset();
    platform::NotificationCenter::defaultCenter().removeObserver(this);
    discard(ibPDEView);
}

// The host ------------------------------------------------------------------------------

bool KorPDEController2::changePPDOptionKeyValue(const QString &name, const QString &choice)
{
    KV_TRACE("-[KorPDEController2 changePPDOptionKeyValue:ppdChoice:]");
    if (mOSVersion < kFirstVersionThatAsks)
        return true;
    return mPDEPluginCallbackObject &&
           mPDEPluginCallbackObject->willChangePPDOptionKeyValue(name, choice);
}

void KorPDEController2::customConstraintOSControl()
{
    KV_TRACE("-[KorPDEController2 customConstraintOSControl]");
    if (mOSVersion < kFirstVersionThatAsks)
        conflictController->processConflict();
}

QString KorPDEController2::selectedItemFromIndex(int index, const char *key, ChoiceString flag)
{
    KV_TRACE("-[KorPDEController2 selectedItemFromIndex:withKey:andFlag:]");
    const ppd::DecodedChoice choice = ppd::choiceAt(mLOcPPD, key, index, mLocEncoding);
    return flag == ChoiceString::Keyword ? choice.keyword : choice.text;
}
