#pragma once

#include "platform/bundle.h"
#include "platform/export.h"
#include "platform/print_objects.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <QtPlugin>

#include <memory>
#include <utility>
#include <vector>

/// The protocol between a print dialog and a panel extension: pure virtual classes, one interface
/// id. Every call comes on the main thread.

/// The host callback object: the dialog, as the panels see it. Outlives the panels.
class PLATFORM_EXPORT PDEPlugInCallback
{
public:
    virtual ~PDEPlugInCallback();

    /// The job's objects, borrowed; null where there is none.
    [[nodiscard]] virtual ppd_file_t *ppdFile() = 0;
    [[nodiscard]] virtual PMPrintSettings printSettings() = 0;
    [[nodiscard]] virtual PMPageFormat pageFormat() = 0;
    [[nodiscard]] virtual PMPrintSession printSession() = 0;

    /// The panel's view has a new size.
    virtual void panelViewDidResize() = 0;

    /// Offers a choice. The dialog answers true after marking it; false, with nothing marked, for a
    /// null choice, an option or choice that the PPD does not have, or one that the PPD's
    /// constraints forbid.
    virtual bool willChangePPDOptionKeyValue(const QString &option, const QString &choice) = 0;
};

/// Entries of a panel in the dialog's summary: title and text, in order, titles unique.
using SummaryInfo = std::vector<std::pair<QString, QString>>;

/// Adds an entry, or gives the entry of that title the new text. A null title or text adds nothing.
PLATFORM_EXPORT void setSummaryEntry(SummaryInfo &info, const QString &title, const QString &text);

/// A control of a panel that stands for an option of the PPD, and what a person chooses with it.
struct PDEOptionControl
{
    QString option;  ///< keyword
    QString control; ///< objectName of a widget in the panel's view
    /// Keyword of the choice at each of the control's positions: the items of a pop-up, a box off
    /// and on, the rows of a radio matrix, the values of a stepper from its minimum on, the texts
    /// that a field takes. Null: that position chooses nothing.
    QStringList choices = {};
    QString opener = {}; ///< objectName of the button that must be on to show it; null: none
};

/// What a panel tells about itself for replay, printing without a person, support and tests.
/// Optional, read-only.
class PLATFORM_EXPORT PDEPanelDiagnostics
{
public:
    virtual ~PDEPanelDiagnostics();

    /// One entry per setting, named as the value getter: {"option": bool, "value": text or null,
    /// "ticket": text or null}; "dryTime" has "popUpOption" and "checkBoxOption" instead of
    /// "option".
    [[nodiscard]] virtual QJsonObject model() = 0;
    /// Frame records of the panel's views: {"ibPDEView": [x, y, width, height], ...}.
    [[nodiscard]] virtual QJsonObject frames() = 0;
    /// The controls of the options that the printer has, shown or not, as they are filled by now.
    /// Where several stand for one option, the first that a person can use is the one to use. None
    /// where the panel does not tell.
    [[nodiscard]] virtual std::vector<PDEOptionControl> optionControls();
};

/// One panel. The dialog may keep it by shared ownership; it must be gone before the PPD is closed.
class PLATFORM_EXPORT PDEPanel
{
public:
    virtual ~PDEPanel();

    /// The panel's view, built at the first call; null when it cannot be built. The dialog may give
    /// it a parent and may destroy it before the panel.
    [[nodiscard]] virtual QWidget *panelView() = 0;
    [[nodiscard]] virtual QString panelName() = 0;
    [[nodiscard]] virtual QString panelKind() = 0;
    /// False when the panel has opened a help book of its own, true when the dialog is to show its.
    [[nodiscard]] virtual bool shouldShowHelp() = 0;
    [[nodiscard]] virtual QStringList supportedPPDOptionKeys() = 0;
    virtual void willShow() = 0;
    virtual bool shouldHide() = 0;
    /// Take over what the PPD has marked, and hand over what was chosen. Both always answer true
    /// and never write @p error, which may be null.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    virtual bool saveValuesAndReturnError(QString *error) = 0;
    [[nodiscard]] virtual SummaryInfo summaryInfo() = 0;
    /// Another panel, or the dialog, changed an option of the PPD.
    virtual void PPDOptionKeyValueDidChange(const QString &option, const QString &choice) = 0;

    /// Null when the panel offers none. Lives as long as the panel.
    [[nodiscard]] virtual PDEPanelDiagnostics *diagnostics() { return nullptr; }
};

using PDEPanelList = std::vector<std::shared_ptr<PDEPanel>>;

/// Panel type of the Print dialog, as opposed to Page Setup.
inline constexpr QStringView kPDEPrintDialogType = u"BDB091F4-E57F-11D3-B5CC-0050E4603277";

/// The principal class of a plug-in: asked for panels by the dialog.
class PLATFORM_EXPORT PDEPlugIn
{
public:
    virtual ~PDEPlugIn();

    /// @p bundle is borrowed and may be null.
    virtual bool initWithBundle(Bundle *bundle) = 0;
    /// The panels for that type, in the order in which the dialog lists them; null when there are
    /// none. The list is shared: a later call leaves it alive while the dialog holds it.
    [[nodiscard]] virtual std::shared_ptr<PDEPanelList>
    PDEPanelsForType(const QString &type, PDEPlugInCallback *host) = 0;
};

/// Root object of the loadable module, one per process: makes a principal object for each dialog.
class PLATFORM_EXPORT PDEPlugInModule
{
public:
    virtual ~PDEPlugInModule();
    [[nodiscard]] virtual std::unique_ptr<PDEPlugIn> createPlugIn() = 0;
};

/// Something in a printer's PPD that the panels' rules do not expect, for whoever writes the PPD.
struct PDEFinding
{
    enum class Severity {
        Error,   ///< a control is missing, or works on the wrong choice
        Warning, ///< something that a person cannot reach or would not understand
    };

    Severity severity = Severity::Warning;
    QString option = {}; ///< keyword of the option that is to blame, or that is missing
    QString choice = {}; ///< keyword of the choice that is to blame; null: the option as a whole
    QString what = {};   ///< the fact, as a clause without full stop
    QString remedy = {}; ///< what to do about it, likewise
};

/// What a module tells about a PPD without making a panel. An interface of its own beside
/// PDEPlugInModule on the module's root object; a module may do without it.
class PLATFORM_EXPORT PDEPlugInDiagnostics
{
public:
    virtual ~PDEPlugInDiagnostics();

    /// In an order of their own; none when the panels can work with the PPD as it is. Marks
    /// nothing. Not asked with a null PPD.
    [[nodiscard]] virtual std::vector<PDEFinding> findings(ppd_file_t *ppd) = 0;
};

#define PDEPlugInModule_iid "com.korvane.print.PDEPlugInModule/1"
Q_DECLARE_INTERFACE(PDEPlugInModule, PDEPlugInModule_iid)

#define PDEPlugInDiagnostics_iid "com.korvane.print.PDEPlugInDiagnostics/1"
Q_DECLARE_INTERFACE(PDEPlugInDiagnostics, PDEPlugInDiagnostics_iid)
