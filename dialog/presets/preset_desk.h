#pragma once

#include "dialog/memory/start_plan.h"
#include "dialog/presets/preset_bar.h"
#include "dialog/presets/preset_store.h"
#include "dialog/window/notice_area.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>

namespace dialog {

class DialogHost;

/// What a person does with presets: between the bar in the window, the files, and what is set.
class PresetDesk : public QObject
{
    Q_OBJECT

public:
    /// Makes a change of what is set, in a way that a person can take back by its title.
    using Changer = std::function<void(const QString &title, const std::function<void()> &change)>;

    /// Borrows printer and host. Begins with start().
    PresetDesk(const PpdDocument &printer, DialogHost &host, Changer changer,
               QObject *parent = nullptr);

    /// The control, which the caller gives a parent. It may go before the desk.
    [[nodiscard]] PresetBar *makeBar();
    /// The printer has started so; what it does not have of the last settings is told.
    void start(const StartPlan &plan);
    /// The panels have been restored; what they have made of the start belongs to it.
    void takePanels();
    /// A job has been made with this, to be picked again.
    void setLastUsed(const PresetContent &content);
    /// Sets everything back to the default settings, copies and pages too.
    void reset();

Q_SIGNALS:
    void noticed(const dialog::Notice &notice);
    void dismissed(const QString &key);

private:
    void readFile();
    void fillBar();
    void apply(const PresetEntry &entry);
    void tellRemarks(const QString &name, const PresetPlan &plan);
    /// The entry with what panels have made of it.
    void showApplied(const PresetEntry &entry);
    void showStored(const PresetEntry &entry, const PresetContent &content);
    void showEntry();
    void followState();
    void showDifferences();
    void save(const QString &name);
    void rename(const QString &name);
    void update();
    void remove();
    /// @p undo answers the preset as it is again.
    void offerUndo(const QString &text, const std::function<StoreResult()> &undo);
    /// After a change of the file. False when a fault was told.
    [[nodiscard]] bool take(const StoreResult &result);
    /// What a person should know of it, if anything. False when that is a fault.
    [[nodiscard]] bool tell(const StoreResult &result);
    [[nodiscard]] Preset presentPreset(const QString &name) const;
    [[nodiscard]] PresetContent present() const;
    [[nodiscard]] std::optional<PresetContent> contentOfEntry(const PresetEntry &entry) const;

    /// An entry with what it had set.
    struct Applied
    {
        PresetEntry entry;
        PresetContent content;
    };

    const PpdDocument &printer_;
    DialogHost &host_;
    Changer changer_;
    PresetStore store_;
    ChoiceState defaults_; ///< the printer's
    std::vector<Preset> printers_;
    std::vector<Preset> own_;
    std::optional<PresetContent> lastUsed_;
    Applied applied_;
    Applied former_;            ///< before the last one, for who takes it back
    bool hasStartedSo_ = false; ///< with the applied one and nothing on top
    QPointer<PresetBar> bar_;
};

} // namespace dialog
