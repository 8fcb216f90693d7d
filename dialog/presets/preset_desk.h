#pragma once

#include "dialog/memory/start_plan.h"
#include "dialog/presets/preset_bar.h"
#include "dialog/presets/preset_store.h"
#include "dialog/threads/background_work.h"
#include "dialog/threads/thread_link.h"
#include "dialog/window/notice_area.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace dialog {

class DialogHost;

/// What a person does with presets: between the bar in the window, the files, and what is set. The
/// files are read and written in the background, in order, since their folder may hang. The bar has
/// at once what a person has done, and takes it back where it turns out that it could not be.
class PresetDesk : public QObject
{
    Q_OBJECT

public:
    /// Makes a change of what is set, in a way that a person can take back by its title.
    using Changer = std::function<void(const QString &title, const std::function<void()> &change)>;

    /// Borrows printer and host. Begins with start(). What is being written goes on without it.
    PresetDesk(const PpdDocument &printer, DialogHost &host, Changer changer,
               std::shared_ptr<BackgroundWork> files, QObject *parent = nullptr);
    ~PresetDesk() override;

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
    /// Whether something is being read or written.
    [[nodiscard]] bool isBusy() const { return !asked_.empty(); }

Q_SIGNALS:
    void noticed(const dialog::Notice &notice);
    void dismissed(const QString &key);

private:
    /// An entry with what it had set.
    struct Applied
    {
        PresetEntry entry;
        PresetContent content;

        bool operator==(const Applied &) const = default;
    };
    /// What is applied after a change, by what the change answers.
    using Outcome = std::function<Applied(const Preset &preset)>;
    /// A question to the files that they have not answered.
    struct Asked
    {
        PresetChange change; ///< none: they are read only
        std::function<void(const StoreResult &result)> done;
    };

    void ask(const Asked &asked);
    void takeAnswer(const StoreResult &result, const PresetListing &listing);
    void refresh(const PresetEntry &entry);
    void listPresets();
    void fillBar();
    void apply(const PresetEntry &entry);
    void applyContent(const PresetEntry &entry, const PresetContent &content);
    void tellRemarks(const QString &name, const PresetPlan &plan);
    /// The entry with what panels have made of it.
    void showApplied(const PresetEntry &entry);
    void showStored(const Applied &stored);
    void showEntry();
    void followState();
    void showDifferences();
    void save(const QString &name);
    void rename(const QString &name);
    void update();
    void remove();
    /// @p done is called with what the change answers, once it is written.
    void change(const PresetChange &change, const Outcome &outcome,
                const std::function<void(const Preset &preset)> &done);
    void offerUndo(const QString &text, const PresetChange &undo);
    /// What a person should know of it, if anything. False when that is a fault.
    [[nodiscard]] bool tell(const StoreResult &result);
    void tellSlowness();
    [[nodiscard]] Preset presentPreset(const QString &name) const;
    [[nodiscard]] PresetContent present() const;
    [[nodiscard]] static Applied ownPreset(const Preset &preset);
    [[nodiscard]] Applied defaults() const;
    [[nodiscard]] std::optional<PresetContent> contentOfEntry(const PresetEntry &entry) const;

    const PpdDocument &printer_;
    DialogHost &host_;
    Changer changer_;
    PresetStore store_;
    std::shared_ptr<BackgroundWork> files_;
    std::shared_ptr<ThreadLink<PresetDesk>> link_;
    std::deque<Asked> asked_; ///< in the order of their answers
    QTimer patience_;         ///< runs while something is asked
    ChoiceState defaults_;    ///< the printer's
    std::vector<Preset> printers_;
    std::vector<Preset> kept_; ///< as the file had them at last
    std::vector<Preset> own_;  ///< and what has been asked since
    std::optional<PresetContent> lastUsed_;
    Applied applied_;
    Applied former_;            ///< before the last one, for who takes it back
    bool hasStartedSo_ = false; ///< with the applied one and nothing on top
    QPointer<PresetBar> bar_;
};

} // namespace dialog
