#pragma once

#include "dialog/host/control_watch.h"
#include "dialog/plugins/plugin_loader.h"
#include "dialog/window/notice_area.h"
#include "platform/panel_protocol.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

namespace dialog {

class DialogHost;
class OwnPanel;
class PpdDocument;
class PrintWindow;

/// A panel of a plug-in.
struct LoadedPanel
{
    std::shared_ptr<PDEPanel> panel;
    QString title = {};
    QString kind = {};
    QPointer<QWidget> view = {};
};

/// The panels of one printer, in the order of the window's chooser: the dialog's own that lead,
/// those of the plug-ins that the PPD names, the dialog's own that follow.
///
/// Every call into a loaded panel goes through the host, so that its offers are known as its own.
class PanelStack : public QObject
{
    Q_OBJECT

public:
    explicit PanelStack(DialogHost &host, QObject *parent = nullptr);
    /// The views must have gone, or go with their window later.
    ~PanelStack() override;

    /// Loads the plug-ins that the PPD names; noticed() tells what could not be loaded, and why.
    void load(const PpdDocument &printer, TrustedOwner owner);
    /// Builds the views of all panels into the window, which becomes their parent, and restores the
    /// loaded ones from what is marked. Nothing is in front yet.
    void showIn(PrintWindow &window, const std::vector<OwnPanel *> &leading,
                const std::vector<OwnPanel *> &following);

    [[nodiscard]] const std::vector<LoadedPanel> &loaded() const { return loaded_; }
    /// PPD options that a loaded panel stands for.
    [[nodiscard]] QStringList claimedOptions() const;

    // Every entry of the chooser.
    [[nodiscard]] int count() const { return static_cast<int>(entries_.size()); }
    [[nodiscard]] QString title(int index) const;
    [[nodiscard]] QString kind(int index) const;
    /// -1 for none.
    [[nodiscard]] int indexOf(const QString &kind) const;
    /// The first panel of a plug-in, the first of all without any, -1 for none.
    [[nodiscard]] int firstIndex() const;
    [[nodiscard]] int frontIndex() const;

    /// The panel in front may refuse to go.
    void bringForward(int index);
    /// Brings a panel of the dialog's own in line with what is set, when it is in front.
    void refreshFront();
    /// False when the panel in front has shown a help book of its own.
    [[nodiscard]] bool wantsOwnHelp();

Q_SIGNALS:
    void noticed(const dialog::Notice &notice);

private:
    /// Exactly one of both is there.
    struct Entry
    {
        std::size_t loaded = 0;  ///< index of a plug-in's panel, when there is no own one
        OwnPanel *own = nullptr; ///< the window's
    };

    void loadBundle(const QString &literalPath, TrustedOwner owner);
    void addOwn(OwnPanel *panel);
    void addLoaded(std::size_t index);
    [[nodiscard]] PDEPanel *loadedAt(int index) const;
    [[nodiscard]] OwnPanel *ownAt(int index) const;
    [[nodiscard]] bool hideFront();

    DialogHost &host_;
    ControlWatch controls_;
    std::vector<PlugIn> plugIns_;
    std::vector<LoadedPanel> loaded_;
    std::vector<Entry> entries_;
    PrintWindow *window_ = nullptr; ///< null before showIn()
};

} // namespace dialog
