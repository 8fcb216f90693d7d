#include "plugin/panel_object.h"

#include "diag/trace.h"
#include "other/kor_pde_controller3.h"
#include "platform/console.h"
#include "platform/driver_file.h"
#include "platform/help_viewer.h"
#include "platform/notification_center.h"
#include "platform/strings.h"
#include "platform/values.h"
#include "quality/kor_pde_controller.h"

#include <QScopeGuard>

#include <algorithm>
#include <cstdio>

namespace {

void store(const ExternalChange &change, PDEModel2 &model, const QString &choice)
{
    const SettingSlots &slots = change.slots;
    (model.*slots.setTicket)(choice);
    (model.*slots.setValue)(
        PDETools2().getOptionsChoice(choice, (model.*slots.option)(), ChoiceString::Text));
}

/// The console lines that reading a ticket writes are kept back: to look at a panel is no event of
/// it.
template <class Look>
auto quietly(const Look &look)
{
    platform::ConsoleSink former = platform::setConsoleSink([](const QString &) {});
    const auto restore = qScopeGuard([&former] { platform::setConsoleSink(std::move(former)); });
    return look();
}

} // namespace

template <class Controller>
bool PanelObject<Controller>::initWithCallback(PDEPlugInCallback *callback, Bundle *bundle)
{
    KV_TRACE({className_, "initWithCallback:andBundle:"});
    std::setvbuf(stderr, nullptr, _IONBF, 0);
    if (!callback)
        return false;
    mPDEPluginCallbackObject = callback;
    mPDEBundle = bundle;
    const PDETools2 tools;
    isRunning1050OrLater = tools.isRunningOn105OrLater();
    if (isRunning1050OrLater)
        mPPD = callback->ppdFile();
    else
        ppdDOnTiger();
    if (!mPPD)
        return false;
    mProductYear = tools.getProductYear(tools.getPlistPath(mPPD));
    mEncoding = tools.getEncodingFromPPD(mPPD);
    subscribe();
    mHelpLinkPath = tools.copyHelpLinkPath(mPPD);
    registerHelpBook();
    makeController();
    return true;
}

/// A book that cannot be found, or that a PPD's maker's name leads to outside the driver's folder,
/// is not registered.
template <class Controller>
void PanelObject<Controller>::registerHelpBook()
{
    FSRef book;
    if (platform::isInDriverFolder(mHelpLinkPath) && CFURLGetFSRef(mHelpLinkPath, &book))
        (void)AHRegisterHelpBook(book);
    if (isRunning1050OrLater)
        return;
    helpLinkForTiger = mHelpLinkPath;
    setHelpPathForTiger(helpLinkForTiger);
}

template <class Controller>
void PanelObject<Controller>::makeController()
{
    PDEPlugInCallback &host = *mPDEPluginCallbackObject;
    mPDEController = std::make_unique<Controller>(mPPD, mEncoding, host.printSettings(),
                                                  host.pageFormat(), mPDEBundle);
    mPDEController->setPrintSession(host.printSession());
    mPDEController->setPDEPluginCallbackObject(&host);
}

template <class Controller>
PanelObject<Controller>::~PanelObject()
{
    KV_TRACE({className_, "dealloc"});
    mPDEController.reset();
    platform::NotificationCenter::defaultCenter().removeObserver(this);
}

template <class Controller>
QWidget *PanelObject<Controller>::panelView()
{
    KV_TRACE({className_, "panelView"});
    view = mPDEController->mainView();
    return view;
}

template <class Controller>
bool PanelObject<Controller>::shouldShowHelp()
{
    KV_TRACE({className_, "shouldShowHelp"});
    return mPDEController->shouldShowDefaultHelp(mHelpLinkPath);
}

template <class Controller>
QStringList PanelObject<Controller>::supportedPPDOptionKeys()
{
    KV_TRACE({className_, "supportedPPDOptionKeys"});
    return mPDEController->supportedOptions();
}

template <class Controller>
void PanelObject<Controller>::willShow()
{
    KV_TRACE({className_, "willShow"});
    mPDEController->initializeControls();
    mPDEController->localizeLabels();
    mPDEController->updateControls();
    if (isRunning1050OrLater)
        return;
    if (!hasDoneShouldHide && view)
        mainWindowRef = view->window();
    helpOnTiger(mainWindowRef);
}

template <class Controller>
bool PanelObject<Controller>::shouldHide()
{
    KV_TRACE({className_, "shouldHide"});
    hasDoneShouldHide = true;
    if (!isRunning1050OrLater)
        removeHelpEventHandler();
    return true;
}

template <class Controller>
bool PanelObject<Controller>::restoreValuesAndReturnError(QString *)
{
    KV_TRACE({className_, "restoreValuesAndReturnError:"});
    if (isRunning1050OrLater)
        mPDEController->processMarkedPPDChoices();
    else
        setPrintSettingsToUI();
    return true;
}

template <class Controller>
bool PanelObject<Controller>::saveValuesAndReturnError(QString *)
{
    KV_TRACE({className_, "saveValuesAndReturnError:"});
    if (isRunning1050OrLater)
        changePPDOptionKeyValue();
    else
        setprintSettingsToTicket();
    return true;
}

template <class Controller>
SummaryInfo PanelObject<Controller>::summaryInfo()
{
    KV_TRACE({className_, "summaryInfo"});
    return mPDEController->infoForSummaryPanel();
}

template <class Controller>
QJsonObject PanelObject<Controller>::model()
{
    return quietly([this] { return describe(*mPDEController->pdeModel()); });
}

template <class Controller>
QJsonObject PanelObject<Controller>::frames()
{
    return mPDEController->frames();
}

template <class Controller>
std::vector<PDEOptionControl> PanelObject<Controller>::optionControls()
{
    return quietly([this] { return mPDEController->optionControls(); });
}

template <class Controller>
void PanelObject<Controller>::panelViewIsResized()
{
    KV_TRACE({className_, "panelViewIsResized:"});
    mPDEPluginCallbackObject->panelViewDidResize();
}

template <class Controller>
void PanelObject<Controller>::ppdDOnTiger()
{
    KV_TRACE({className_, "ppdDOnTiger"});
    (void)GetPPDRefFromSession(mPDEPluginCallbackObject->printSession(), &mPPD);
}

template <class Controller>
void PanelObject<Controller>::setprintSettingsToTicket()
{
    KV_TRACE({className_, "setprintSettingsToTicket"});
}

template <class Controller>
void PanelObject<Controller>::setPrintSettingsToUI()
{
    KV_TRACE({className_, "setPrintSettingsToUI"});
}

/// The first fixed title whose text occurs in the language stands; else the localised text of the
/// key.
template <class Controller>
QString PanelObject<Controller>::takeTitle(const char *key, std::span<const FixedTitle> fixedTitles)
{
    const QString language = platform::firstPreferredLanguage();
    const auto fixed =
        std::find_if(fixedTitles.begin(), fixedTitles.end(), [&language](const FixedTitle &title) {
            return platform::containsText(language, QString::fromLatin1(title.languagePart));
        });
    mPDEName = fixed == fixedTitles.end()
                   ? platform::localizedString(mPDEBundle, QString::fromLatin1(key))
                   : QString::fromUtf8(fixed->title);
    return mPDEName;
}

template <class Controller>
void PanelObject<Controller>::offerPairs(std::span<const SavedPair> pairs)
{
    const PDEModel2 &model = *mPDEController->pdeModel();
    for (const SavedPair &pair : pairs) {
        if (pair.condition && !pair.condition({model, mProductYear}))
            continue;
        const QString choice =
            pair.ticket ? (model.*pair.ticket)()
                        : platform::localizedString(mPDEBundle, QString::fromLatin1(pair.word));
        mPDEPluginCallbackObject->willChangePPDOptionKeyValue(QString::fromLatin1(pair.option),
                                                              choice);
    }
}

template <class Controller>
void PanelObject<Controller>::takeOver(std::span<const ExternalChange> changes,
                                       const QString &option, const QString &choice)
{
    const ExternalChange *change = rowOfKeyword(changes, option);
    if (!change)
        return;
    store(*change, *mPDEController->pdeModel(), choice);
    mPDEController->updateControl(option);
}

template class PanelObject<KorPDEController2>;
template class PanelObject<KorPDEController3>;
