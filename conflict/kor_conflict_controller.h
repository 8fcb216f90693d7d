#pragma once

#include "conflict/cartridges.h"
#include "conflict/outlets.h"
#include "conflict/rules.h"
#include "model/settings.h"
#include "platform/bundle.h"
#include "platform/print_objects.h"

#include <QObject>

#include <span>
#include <vector>

/// Name of the notification that a resolution changed the model; its object is the OK button.
inline const QString ConflictControllerChangeNotification =
    QStringLiteral("ConflictController calling a UI CHANGE");

namespace conflict {

enum class Window { MsgOne, MsgTwo, MsgFive, Instruction };

/// One choice of a window: its button, the flag that says it is chosen, the labels that say what it
/// is.
struct Choice
{
    QRadioButton *button; ///< null while the window is not loaded
    bool *flag;
    std::vector<QLabel *> labels;
};

struct Instructed;

} // namespace conflict

/// Looks at the settings of the Quality & Media panel for combinations that the printer cannot
/// print well, and shows each in a modal window until nothing is left. Used on systems before 10.5,
/// whose dialog applies no PPD constraints; from 10.5 on nobody starts it.
///
/// Everything handed to it is borrowed; the model is shared with the panel's controller, which
/// outlives this object. No operation reports an error.
class KorConflictController2 : public QObject, private ConflictOutlets
{
    Q_OBJECT

public:
    /// @p bundle holds the interface file "Conflicts" and its texts; null shows no windows.
    KorConflictController2(PMPrintSettings printSettings, PMPageFormat pageFormat, ppd_file_t *ppd,
                           PDEModel2 *model, const Bundle *bundle);
    ~KorConflictController2() override;

    void setPrintSession(PMPrintSession session);

    /// One pass: shows the first conflict of the list, takes the list anew, and so on until it is
    /// empty. Ends early when a window cannot be loaded, when the dialog closes, and when this
    /// object is destroyed meanwhile.
    void processConflict();
    /// Case numbers in the order of detection.
    [[nodiscard]] std::vector<int> validateConflict();

    /// PPD name of the page format's paper, as the PPD spells it; null without a paper.
    [[nodiscard]] QString selectedPaperSize();
    /// Always null: stands in for selectedPaperSize() where the system is known to be older
    /// than 10.5.
    [[nodiscard]] QString selectedPaperSizeOnTiger();
    /// Asks the page format for its paper, logs the result code, answers null.
    QString directSelectedPaperSize();
    bool hasPagesPerSheet();
    [[nodiscard]] bool isPaperSizeBanner(const QString &paperName);
    [[nodiscard]] bool isPaperSizeEnvelope(const QString &paperName);
    [[nodiscard]] bool isMediaTypePhoto(const QString &mediaTicket);
    [[nodiscard]] bool isMediaTypeEnvelope(const QString &mediaTicket);
    [[nodiscard]] bool isMediaTypeAutomatic(const QString &mediaTicket);
    [[nodiscard]] bool isColorCartOnly();
    [[nodiscard]] bool isPhotoCartInstalled();

    // Fill a window's texts and put its choice back to the first. A kind that a window does not
    // know leaves the texts of the kind before.
    void composeMsgOne();
    void composeMsgTwo(quint8 kind);
    void composeMsgFive(quint8 kind);
    void composeInstructionMsg(quint8 kind);

    // The choices of a window behave as one radio group; a click that turns a button off does
    // nothing.
    void clickFirstButton_MsgOne(QRadioButton *sender);
    void clickSecondButton_MsgOne(QRadioButton *sender);
    void clickThirdButton_MsgOne(QRadioButton *sender);
    void clickFirstButton_MsgTwo(QRadioButton *sender);
    void clickSecondButton_MsgTwo(QRadioButton *sender);
    void clickThirdButton_MsgTwo(QRadioButton *sender);
    void clickFirstButton_MsgFive(QRadioButton *sender);
    void clickSecondButton_MsgFive(QRadioButton *sender);

    // End the window and apply the choice.
    void clickOkButton_MsgOne(QPushButton *sender);
    void clickOkButton_MsgTwo(QPushButton *sender);
    void clickOkButton_MsgFive(QPushButton *sender);

    /// Ends the innermost session, then closes the MsgTwo window, whichever window is closing.
    void windowWillClose(QDialog *window);

private:
    friend struct ConflictTestAccess;

    [[nodiscard]] QString localized(const char *key) const;
    [[nodiscard]] QString currentPaperSize();
    [[nodiscard]] QString shownPaperSize();
    [[nodiscard]] conflict::Cartridges installedCartridges() const;
    [[nodiscard]] conflict::Situation gatherSituation();

    [[nodiscard]] bool loadWindows();
    void connectWindows();
    void connectChoices();
    void connectOkButtons();
    template <class Button>
    void connectClick(Button *button, void (KorConflictController2::*handler)(Button *));
    [[nodiscard]] QDialog *windowOf(conflict::Window window) const;
    [[nodiscard]] std::vector<conflict::Choice> choicesOf(conflict::Window window);
    void choose(conflict::Window window, std::size_t index, const QRadioButton *sender);
    void resetChoiceFlags(conflict::Window window);
    void resetChoices(conflict::Window window);
    void nameChoices(conflict::Window window);

    enum class Pass { GoesOn, Ends };
    [[nodiscard]] Pass showConflict(int caseNumber);
    void compose(conflict::Window window, quint8 kind);
    void endWindow(conflict::Window window);
    void runInstructions();
    void postChange(QPushButton *button);

    void composePaperSizeConflict();
    void composePrintInBlackConflict();
    void composeCartridgeConflict();
    void composeInkToUseConflict();
    [[nodiscard]] QString shownPaperType() const;
    [[nodiscard]] QString offeredPaperTypeText();
    [[nodiscard]] QString utilityLine() const;

    void setChoice(const SettingSlots &slots, const char *keyword);
    void applyFirstChoice_MsgTwo();
    void applyThirdChoice_MsgTwo();
    void applyFirstChoice_MsgFive(const QString &paperSize);
    [[nodiscard]] const char *appliedPaperType(const QString &paperSize);
    void composeInstructionsFor(std::span<const conflict::Instructed> kinds);

    PMPageFormat mPageFormat;
    PMPrintSettings mPrintSetting;
    PMPrintSession mPrintSession = nullptr;
    ppd_file_t *mLocalPPD;
    PDEModel2 *model;
    quint16 mProductYear = 65535;
    bool isRunning1050orLater = false;
    bool isFirstButton_MsgOneClicked = false;
    bool isFirstButton_MsgTwoClicked = false;
    bool isFirstButton_MsgFiveClicked = false;
    bool isSecondButton_MsgOneClicked = false;
    bool isSecondButton_MsgTwoClicked = false;
    bool isSecondButton_MsgFiveClicked = false;
    bool isThirdButton_MsgOneClicked = false;
    bool isThirdButton_MsgTwoClicked = false;
    const Bundle *bundle_;
};
