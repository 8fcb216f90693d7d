#pragma once

#include "model/pde_model.h"
#include "model/pde_tools.h"
#include "other/outlets.h"
#include "other/settings_table.h"
#include "platform/panel_protocol.h"

#include <QJsonObject>
#include <QObject>

/// Runs the controls of the Other panel: three check boxes and a radio matrix for four options of
/// the printer, with a settings model of its own. Nothing is offered to the dialog before the panel
/// hands over the model's tickets.
///
/// To set a keyword to a choice means: the setting's value becomes the choice's text and its ticket
/// the choice's keyword, both null where the printer has no such choice.
class KorPDEController3 : public QObject, private OtherOutlets
{
    Q_OBJECT

public:
    /// All borrowed; the PPD may be null, and then offers nothing. @p bundle holds the interface
    /// file.
    KorPDEController3(ppd_file_t *ppd, unsigned long encoding, PMPrintSettings printSetting,
                      PMPageFormat pageFormat, const Bundle *bundle);
    ~KorPDEController3() override;

    void setPrintSession(PMPrintSession session);
    void setPDEPluginCallbackObject(PDEPlugInCallback *callbackObject);

    /// The panel's view, loaded when there is none; null when it cannot be loaded. Owned by the
    /// controller even where the host gives it a parent; the host may destroy it first.
    [[nodiscard]] QWidget *mainView();
    [[nodiscard]] QStringList supportedOptions() const;
    /// One entry per check box whose setting has a value: the option's text and the value.
    [[nodiscard]] SummaryInfo infoForSummaryPanel() const;
    /// Always true: the dialog shows its own help.
    [[nodiscard]] bool shouldShowDefaultHelp(const QString &helpPath) const;
    [[nodiscard]] PDEModel2 *pdeModel();
    [[nodiscard]] bool isFinishedInited() const;
    /// For diagnostics, not traced: no view of this panel has a frame record.
    [[nodiscard]] QJsonObject frames() const { return {}; }
    /// For diagnostics, not traced; see PDEPanelDiagnostics.
    [[nodiscard]] std::vector<PDEOptionControl> optionControls() const;

    void initializeControls();
    void localizeLabels();
    void updateControls();
    void updateControl(const QString &keyword);
    void processMarkedPPDChoices();

    // Actions: what a person's use of a control does. The sender is not looked at.
    void improvementSettingAction(QWidget *sender);
    void improvePrintQualityAction(QWidget *sender);
    void reduceGhostingAction(QWidget *sender);
    void ImprovePrintDensityAction(QWidget *sender);

    void setSupportedPPDOptionsToPDEModel(ppd_file_t *ppd);
    void setDefaultsToPDEModel();
    [[nodiscard]] PDEModel2 findMarkedChoicesinPPD() const;
    void updatePDEModelwithMarkedChoices(const PDEModel2 &markedChoices);
    /// Knows the three on/off settings only.
    void setPDEModelItemToDefault(const QString &keyword);
    bool changePPDOptionKeyValue(const QString &keyword, const QString &choice);

private:
    [[nodiscard]] QCheckBox *box(other::Setting setting) const;
    [[nodiscard]] ppd_option_t *option(other::Setting setting) const;
    [[nodiscard]] QString value(other::Setting setting) const;
    [[nodiscard]] QString ticket(other::Setting setting) const;
    void setToChoice(other::Setting setting, const QString &choice);
    /// Null where the printer has no such improvement.
    [[nodiscard]] QString improvementText(int row) const;
    void connectActions();
    void startBoxes();
    void localizeMatrix();
    /// Ticks the box exactly when the ticket is "On"; answers that.
    bool showTicket(other::Setting setting);
    void takeStateOfBox(other::Setting setting);
    void offer(other::Setting setting);

    qint64 mOSVersion = 0; ///< never assigned: see changePPDOptionKeyValue()
    ppd_file_t *mLOcPPD;
    [[maybe_unused]] unsigned long mLocEncoding;
    [[maybe_unused]] PMPrintSettings mPrintSetting;
    [[maybe_unused]] PMPageFormat mPageFormat;
    [[maybe_unused]] PMPrintSession mPrintSession = nullptr;
    PDEPlugInCallback *mPDEPluginCallbackObject = nullptr;
    const Bundle *bundle_;
    PDEModel2 pdeModel_;
    PDETools2 pdeTools;
    bool doneInitialized = false;
};
