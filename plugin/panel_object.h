#pragma once

#include "model/settings.h"
#include "platform/panel_protocol.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <span>

/// A title that stands for the localised one where the first preferred language contains a text.
struct FixedTitle
{
    const char *languagePart;
    const char *title; ///< UTF-8
};

/// What the rows of saved pairs depend on.
struct SaveSituation
{
    const PDEModel2 &model;
    quint16 productYear;
};

/// One option/choice pair that a panel hands over when it saves.
struct SavedPair
{
    using Condition = bool (*)(const SaveSituation &);

    const char *option;
    SettingSlots::StringGetter ticket; ///< null: the localised word is passed, as it is
    const char *word;                  ///< key of the localised word
    Condition condition;               ///< null: always
};

/// A setting that follows an option changed elsewhere: the choice becomes its ticket and the
/// choice's text (null for an unknown choice) its value.
struct ExternalChange
{
    const char *keyword;
    SettingSlots slots;
};

/// The regular change of a setting, from its row in the controller's table.
template <class SettingRow>
[[nodiscard]] constexpr ExternalChange externalChange(const SettingRow &row)
{
    return {row.keyword, row.slots};
}

/// What the panel objects share: the dialog's calls, forwarded to a controller in a fixed order. A
/// panel class adds its titles, kind, saved pairs and external changes.
///
/// Host callback, bundle and PPD are borrowed from the dialog and outlive the panel; the bundle may
/// be null.
template <class Controller>
class PanelObject : public QObject, public PDEPanel, public PDEPanelDiagnostics
{
public:
    ~PanelObject() override;

    [[nodiscard]] QWidget *panelView() override;
    [[nodiscard]] bool shouldShowHelp() override;
    [[nodiscard]] QStringList supportedPPDOptionKeys() override;
    void willShow() override;
    bool shouldHide() override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    [[nodiscard]] SummaryInfo summaryInfo() override;

    [[nodiscard]] PDEPanelDiagnostics *diagnostics() override { return this; }
    [[nodiscard]] QJsonObject model() override;
    [[nodiscard]] QJsonObject frames() override;
    [[nodiscard]] std::vector<PDEOptionControl> optionControls() override;

    /// Tells the dialog that the panel's view has a new size.
    void panelViewIsResized();
    /// Offers the model's tickets to the dialog in the panel's fixed order; the answers are
    /// ignored.
    virtual void changePPDOptionKeyValue() = 0;

    // What hosts older than 10.5 would need. The help operations have nothing to do on any host.
    void ppdDOnTiger();
    void setprintSettingsToTicket();
    void setPrintSettingsToUI();
    void setHelpPathForTiger(const QString &) {}
    void helpOnTiger(QWidget *) {}
    void removeHelpEventHandler() {}

protected:
    /// @p className is the name under which the operations of this class trace.
    explicit PanelObject(const char *className) : className_(className) {}

    /// The steps of a panel's initialiser. False, and the panel is of no use, without a host or a
    /// PPD.
    [[nodiscard]] bool initWithCallback(PDEPlugInCallback *callback, Bundle *bundle);
    /// A step of the initialiser: the panel's notifications; none unless the class has some.
    virtual void subscribe() {}

    [[nodiscard]] QString takeTitle(const char *key, std::span<const FixedTitle> fixedTitles);
    void offerPairs(std::span<const SavedPair> pairs);
    void takeOver(std::span<const ExternalChange> changes, const QString &option,
                  const QString &choice);
    /// The panel's settings, for diagnostics.
    [[nodiscard]] virtual QJsonObject describe(const PDEModel2 &model) const = 0;

    PDEPlugInCallback *mPDEPluginCallbackObject = nullptr;
    Bundle *mPDEBundle = nullptr;
    ppd_file_t *mPPD = nullptr;
    QString mPDEName;
    std::unique_ptr<Controller> mPDEController;
    unsigned long mEncoding = 0;
    QPointer<QWidget> view;
    quint16 mProductYear = 0;
    bool isRunning1050OrLater = false;
    QPointer<QWidget> mainWindowRef;
    bool hasDoneShouldHide = false;
    QString mHelpLinkPath;
    QString helpLinkForTiger;

private:
    friend struct PanelTestAccess;
    void registerHelpBook();
    void makeController();

    const char *className_;
};
