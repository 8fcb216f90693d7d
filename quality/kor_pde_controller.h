#pragma once

#include "conflict/kor_conflict_controller.h"
#include "model/pde_model.h"
#include "model/pde_tools.h"
#include "model/settings.h"
#include "platform/bundle.h"
#include "platform/panel_protocol.h"
#include "quality/interlocks.h"
#include "quality/outlets.h"
#include "quality/setting.h"

#include <QJsonObject>
#include <QObject>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <dirent.h>

#include <memory>
#include <optional>
#include <vector>

/// Name of the notification that the advanced options were opened or closed; geometry is final when
/// it is posted, with the disclosure triangle as its object.
inline const QString PDEControllerDisclosureButtonChangedNotification =
    QStringLiteral("KorPDEController Disclosure control CHANGED");

/// The controls of the Quality & Media panel, the settings model behind them and the rules between
/// them. Keeps three things in step: the printer's PPD, the model, the controls.
///
/// PPD, print settings, page format, session, bundle and host callback belong to the host, are only
/// borrowed and must outlive the controller; each may be null. Views may die before it. No
/// operation reports an error. An action reads the control that its name tells; the sender is not
/// looked at.
class KorPDEController2 : public QObject, private QualityOutlets
{
    Q_OBJECT

public:
    /// @p bundle holds the interface file "QualityAndMedia" and its texts. @p encoding is what
    /// PDETools2::getEncodingFromPPD() answers.
    KorPDEController2(ppd_file_t *ppd, unsigned long encoding, PMPrintSettings printSetting,
                      PMPageFormat pageFormat, const Bundle *bundle);
    ~KorPDEController2() override;

    // Set-up and synchronisation with the PPD.
    /// Fills the controls; once in the controller's life.
    void initializeControls();
    /// Keywords of the options that the panel handles and the printer has.
    [[nodiscard]] QStringList supportedOptions();
    void setSupportedPPDOptionsToPDEModel(ppd_file_t *ppd);
    void setDefaultsToPDEModel();
    void processMarkedPPDChoices();
    /// A fresh model that holds only what the PPD has marked, and the threshold field's text.
    [[nodiscard]] PDEModel2 findMarkedChoicesinPPD();
    void updatePDEModelwithMarkedChoices(const PDEModel2 &marked);
    /// Unknown keywords change nothing.
    void setPDEModelItemToDefault(const QString &keyword);
    /// Offers a choice to the host; true when it accepts. Below system version 0x1050 the host is
    /// not asked and the answer is true.
    bool changePPDOptionKeyValue(const QString &keyword, const QString &choice);
    /// Null without PPD, option or choice at that index.
    [[nodiscard]] QString selectedItemFromIndex(int index, const char *key, ChoiceString flag);
    /// Checks for conflicts, below system version 0x1050 only.
    void customConstraintOSControl();

    void setPrintSession(PMPrintSession session);
    void setPDEPluginCallbackObject(PDEPlugInCallback *callback);
    [[nodiscard]] PDEModel2 *pdeModel();
    void setPDEModel(std::shared_ptr<PDEModel2> model);
    [[nodiscard]] bool isFinishedInited();
    [[nodiscard]] bool isMirrorManuallySet();
    void setIsMirrorManuallySet(bool isSet);
    [[nodiscard]] bool isMirrorSetDuringPreset();
    void setIsMirrorSetDuringPreset(bool isSet);
    [[nodiscard]] int osVersionOnUse();
    void setOSVersion(int version);
    [[nodiscard]] quint16 productYearOnUse();
    void setProductYear(quint16 year);

    // Actions: what a person's use of a control does. Each but the stepper's and the triangle's
    // does nothing when the printer lacks the option.
    void printQualityAction(QWidget *sender);
    void paperTypeAction(QWidget *sender);
    void paperSourceAction(QWidget *sender);
    void colorOutputAction(QWidget *sender);
    void colorPreferencesAction(QWidget *sender);
    void inkToUseAction(QWidget *sender);
    void mirrorAction(QWidget *sender);
    void sharpenAction(QWidget *sender);
    void dryTimePopUpAction(QWidget *sender);
    void dryTimeCheckBoxAction(QWidget *sender);
    void ICCTestChartAction(QWidget *sender);
    void tonerSaveAction(QWidget *sender);
    void halftoneAction(QWidget *sender);
    void thresholdStepperAction(QWidget *sender);
    void disclosureAction(QWidget *sender);
    void controlTextDidBeginEditing(QLineEdit *field);
    void controlTextDidChange(QLineEdit *field);

    // Synchronisation of the controls with the model.
    void updateControls();
    /// One option, by keyword; null and unknown keywords do nothing.
    void updateControl(const QString &keyword);
    void updateMirrorValue();
    void displayAdvancedOptions(bool show);

    // Presentation.
    /// The panel's view, loaded at the first call; null when it cannot be. Owned by the controller
    /// even where the host gives it a parent; the host may destroy it first.
    [[nodiscard]] QWidget *mainView();
    void localizeLabels();
    [[nodiscard]] SummaryInfo infoForSummaryPanel();
    /// @p helpPath is a literal driver path. False when it opened the driver's help there, true
    /// when the host is to show its own.
    [[nodiscard]] bool shouldShowDefaultHelp(const QString &helpPath);

    /// For diagnostics, not traced: {"ibPDEView": [x, y, width, height], ...} of the three views'
    /// frame records; zeros for a missing view.
    [[nodiscard]] QJsonObject frames() const;
    /// For diagnostics, not traced; see PDEPanelDiagnostics.
    [[nodiscard]] std::vector<PDEOptionControl> optionControls() const;

    /// The host's text for "Grayscale", with which labels of the PPD are compared.
    [[nodiscard]] static QString hostGrayscale();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend struct QualityTestAccess;
    struct DirectoryCloser
    {
        void operator()(DIR *directory) const { closedir(directory); }
    };

    struct PickedChoice
    {
        QString text;
        QString keyword;
    };
    enum class WhenNull { Select, Leave };

    // The model's settings.
    [[nodiscard]] ppd_option_t *optionOf(quality::Setting setting) const;
    [[nodiscard]] bool hasOption(quality::Setting setting) const;
    [[nodiscard]] quality::SettingSet optionsOfPrinter() const;
    [[nodiscard]] QString valueOf(quality::Setting setting) const;
    [[nodiscard]] QString ticketOf(quality::Setting setting) const;
    void storeSetting(quality::Setting setting, const QString &choice);
    void storeStrings(quality::Setting setting, const QString &value, const QString &ticket);
    void storeColorPreferencesDefault();
    void storeMirrorWord(const QString &word);

    // Set-up.
    void reportUnusualPPD() const;
    void setDryTimeOption(ppd_file_t *ppd);
    void resetDryTime();
    [[nodiscard]] QStringList supportedDryTime() const;
    void takeOverColorPreferences(const PDEModel2 &marked);
    void takeOverInkToUse(const PDEModel2 &marked);
    void takeOverColorOutput(const PDEModel2 &marked);
    void takeOverMirror(const PDEModel2 &marked);

    // Actions.
    void perform(quality::Setting setting);
    [[nodiscard]] PickedChoice choiceAtIndex(quality::Setting setting, int index);
    [[nodiscard]] PickedChoice pickedChoice(quality::Setting setting);
    void takeThenOffer(quality::Setting setting);
    void offerThenTake(quality::Setting setting);
    void askFirst(quality::Setting setting);
    void takeBox(quality::Setting setting, const SettingSlots &slots);
    bool offerTicket(quality::Setting setting);
    [[nodiscard]] std::optional<PickedChoice> inkAt(int mappedIndex);
    void takeInkFromPopUp();
    void takeColorOutput();
    void followPaperTypeWithMirror();
    void restorePaperType(const PickedChoice &before);
    void takeThresholdFromStepper();

    // Synchronisation.
    [[nodiscard]] PopUpButton *popUpOf(quality::Setting setting) const;
    [[nodiscard]] QCheckBox *boxOf(quality::Setting setting) const;
    [[nodiscard]] QLabel *labelOf(quality::Setting setting) const;
    [[nodiscard]] std::vector<QWidget *> controlsOf(quality::Setting setting) const;
    void fillControls();
    void fillPopUp(quality::Setting setting);
    void fillInkToUse(const QString &exclusion);
    [[nodiscard]] bool isDefaultOff(quality::Setting setting) const;
    void initializeTonerSave();
    void initializePaperSource();
    void initializeThreshold();
    void initializeHalftone();
    void initializeMirror();
    void initializeSharpen();
    bool selectValueIfDifferent(quality::Setting setting, WhenNull whenNull);
    void selectValue(quality::Setting setting);
    void tickOnTicket(quality::Setting setting);
    void synchronizeMirrorBox(int stateBefore);
    void follow(quality::Setting setting);
    void applyColorOutputPlan(quality::Occasion occasion);
    void apply(const quality::Interlock &interlock);
    void setControlsEnabled(quality::Setting setting, bool enabled);
    void showNeutralThreshold();
    [[nodiscard]] quality::MirrorSituation mirrorSituation() const;
    void writeMirror(quality::MirrorChange change);
    void setMirror(quality::MirrorChange change);
    void undoIronOnMirror();

    // Diagnostics.
    [[nodiscard]] QStringList choicesAt(quality::Setting setting, const QWidget *control) const;
    [[nodiscard]] QString choiceOfItem(quality::Setting setting, int index) const;
    [[nodiscard]] QString choiceOfBox(quality::Setting setting, int state) const;
    [[nodiscard]] ppd_option_t *boxOption(quality::Setting setting) const;

    // Presentation.
    void loadInterface();
    void removePaperSourceRow();
    void showDryTime();
    [[nodiscard]] QString markedDryTime(ChoiceString flag) const;
    void connectControls();
    void connectDisclosure();
    void beDelegateOfThresholdField();
    void carryOut(const std::vector<quality::RowPlan> &plans);
    void titleRow(quality::Setting setting);
    void hideRow(quality::Setting setting);
    void localizeDisclosureLabel();
    [[nodiscard]] QString textOfMirrorTicket() const;
    void addDryTime(SummaryInfo &info) const;

    bool doneInitialized = false;
    bool isMirrorManuallySet_ = false;
    bool isMirrorSetDuringPreset_ = false;
    QRectF headerViewRect;
    QRectF advancedViewRect;
    bool hasTray2Support = false;
    bool isRunning1050OrLater = false;
    bool isMirrorSetByIronOn = false;
    std::shared_ptr<PDEModel2> pdeModel_;
    /// What the conflict controller was made with: it borrows the model beyond setPDEModel().
    std::shared_ptr<PDEModel2> conflictModel_;
    std::unique_ptr<PDETools2> pdeTools;
    ppd_file_t *mLOcPPD;
    unsigned long mLocEncoding;
    PMPrintSettings mPrintSetting;
    PMPageFormat mPageFormat;
    PMPrintSession mPrintSession = nullptr;
    quint16 mProductYear = 65535;
    int mOSVersion = 0;
    PDEPlugInCallback *mPDEPluginCallbackObject = nullptr;
    const Bundle *bundle_;
    std::unique_ptr<DIR, DirectoryCloser> helpDirectory_;
    std::unique_ptr<KorConflictController2> conflictController;
};
