#include "dialog/presets/preset_desk.h"

#include "dialog/host/dialog_host.h"
#include "dialog/presets/preset_messages.h"
#include "dialog/presets/printer_presets.h"
#include "dialog/printers/ppd_document.h"
#include "dialog/settings/setting_words.h"

#include <QCoreApplication>

#include <algorithm>

namespace dialog {
namespace {

// Keys of notices.
const QString kFaultKey = QStringLiteral("preset:fault");
const QString kRemarksKey = QStringLiteral("preset:remarks");
const QString kSetAsideKey = QStringLiteral("preset:set-aside");
const QString kSlowKey = QStringLiteral("preset:slow");
const QString kUndoKey = QStringLiteral("preset:undo");

/// A person is told of files that do not answer after this.
constexpr std::chrono::seconds kPatience(3);

const Preset *findPreset(const std::vector<Preset> &presets, const QString &name)
{
    const auto found = std::find_if(presets.begin(), presets.end(), [&](const Preset &preset) {
        return isSamePresetName(preset.name, name);
    });
    return found == presets.end() ? nullptr : &*found;
}

/// An update back to what was before answers that.
PresetChange updatingBack(const Preset &former)
{
    return [former](std::vector<Preset> &presets) {
        StoreResult result = updating(former)(presets);
        result.preset = former;
        return result;
    };
}

} // namespace

PresetDesk::PresetDesk(const PpdDocument &printer, DialogHost &host, Changer changer,
                       std::shared_ptr<BackgroundWork> files, QObject *parent)
    : QObject(parent), printer_(printer), host_(host), changer_(std::move(changer)),
      store_(modelOf(printer)), files_(std::move(files)),
      link_(std::make_shared<ThreadLink<PresetDesk>>(this))
{
    patience_.setSingleShot(true);
    patience_.setInterval(kPatience);
    connect(&patience_, &QTimer::timeout, this, &PresetDesk::tellSlowness);
    connect(&host_, &DialogHost::stateChanged, this, &PresetDesk::followState);
}

PresetDesk::~PresetDesk()
{
    link_->hangUp();
}

PresetBar *PresetDesk::makeBar()
{
    bar_ = new PresetBar;
    connect(bar_, &PresetBar::picked, this, &PresetDesk::apply);
    connect(bar_, &PresetBar::updateRequested, this, &PresetDesk::update);
    connect(bar_, &PresetBar::deleteRequested, this, &PresetDesk::remove);
    connect(bar_, &PresetBar::compareRequested, this, &PresetDesk::showDifferences);
    connect(bar_, &PresetBar::named, this, [this](PresetBar::NameFor purpose, const QString &name) {
        purpose == PresetBar::NameFor::Saving ? save(name) : rename(name);
    });
    hasStartedSo_ = present() == applied_.content;
    printers_ = printerPresets(printer_);
    ask({});
    fillBar();
    bar_->select(applied_.entry);
    followState();
    return bar_;
}

void PresetDesk::start(const StartPlan &plan)
{
    defaults_ = plan.defaults;
    lastUsed_ = plan.lastUsed;
    const PresetKind kind = lastUsed_ ? PresetKind::LastUsed : PresetKind::Defaults;
    applied_ = former_ = {{kind}, contentOf(plan.base.state, printer_)};
    if (lastUsed_)
        tellRemarks(tr("Last Used Settings"), plan.base);
}

void PresetDesk::takePanels()
{
    if (hasStartedSo_)
        applied_.content = former_.content = present();
    followState();
}

void PresetDesk::setLastUsed(const PresetContent &content)
{
    lastUsed_ = content;
    fillBar();
    if (applied_.entry.kind == PresetKind::LastUsed)
        showStored({applied_.entry, content});
}

void PresetDesk::ask(const Asked &asked)
{
    Q_EMIT dismissed(kFaultKey);
    if (!isBusy())
        patience_.start();
    asked_.push_back(asked);
    files_->add([link = link_, store = store_, change = asked.change] {
        const StoreResult result = change ? store.change(change) : StoreResult();
        link->post([result, listing = store.list()](PresetDesk &desk) {
            desk.takeAnswer(result, listing);
        });
    });
}

void PresetDesk::takeAnswer(const StoreResult &result, const PresetListing &listing)
{
    const Asked asked = std::move(asked_.front());
    asked_.pop_front();
    if (isBusy()) {
        patience_.start();
    } else {
        patience_.stop();
        Q_EMIT dismissed(kSlowKey);
    }
    if (listing.result.isOk())
        kept_ = listing.presets;
    listPresets();
    if (tell(result))
        static_cast<void>(tell(listing.result));
    if (asked.done)
        asked.done(result);
    if (!contentOfEntry(applied_.entry))
        showStored(defaults());
}

/// Another dialog may have changed the presets since; what it made of this one counts, unless the
/// person has gone on.
void PresetDesk::refresh(const PresetEntry &entry)
{
    const auto follow = [this, applied = applied_, former = contentOfEntry(entry)](const auto &) {
        const std::optional<PresetContent> content = contentOfEntry(applied.entry);
        if (!content && applied_.entry == applied.entry)
            static_cast<void>(tell({StoreFault::Gone}));
        else if (content != former && applied_ == applied && present() == applied.content)
            applyContent(applied.entry, *content);
    };
    ask({{}, follow});
}

/// Those of the file, with what is still on its way there.
void PresetDesk::listPresets()
{
    own_ = kept_;
    for (const Asked &asked : asked_) {
        if (asked.change)
            static_cast<void>(asked.change(own_));
    }
    sortByName(own_);
    fillBar();
}

void PresetDesk::fillBar()
{
    if (!bar_)
        return;
    std::vector<PresetEntry> entries{{PresetKind::Defaults}};
    if (lastUsed_)
        entries.push_back({PresetKind::LastUsed});
    for (const Preset &preset : own_)
        entries.push_back({PresetKind::Own, preset.name});
    for (const Preset &preset : printers_)
        entries.push_back({PresetKind::Printers, preset.name});
    bar_->setEntries(entries);
}

std::optional<PresetContent> PresetDesk::contentOfEntry(const PresetEntry &entry) const
{
    const Preset *preset = nullptr;
    switch (entry.kind) {
    case PresetKind::Defaults:
        return contentOf(defaults_, printer_);
    case PresetKind::LastUsed:
        return lastUsed_;
    case PresetKind::Own:
        preset = findPreset(own_, entry.name);
        break;
    case PresetKind::Printers:
        preset = findPreset(printers_, entry.name);
        break;
    }
    return preset ? std::optional(preset->content) : std::nullopt;
}

PresetContent PresetDesk::present() const
{
    return contentOf(host_.state(), printer_);
}

PresetDesk::Applied PresetDesk::ownPreset(const Preset &preset)
{
    return {{PresetKind::Own, preset.name}, preset.content};
}

PresetDesk::Applied PresetDesk::defaults() const
{
    return {{}, contentOf(defaults_, printer_)};
}

void PresetDesk::apply(const PresetEntry &entry)
{
    if (entry.kind == PresetKind::Defaults)
        return reset();
    const std::optional<PresetContent> content = contentOfEntry(entry);
    if (!content)
        return;
    applyContent(entry, *content);
    if (entry.kind == PresetKind::Own)
        refresh(entry);
}

void PresetDesk::applyContent(const PresetEntry &entry, const PresetContent &content)
{
    const QString name = entry.kind == PresetKind::LastUsed ? tr("Last Used Settings") : entry.name;
    const PresetPlan plan = planPreset(content, printer_, host_.state());
    changer_(tr("Preset “%1”").arg(name), [&] { host_.setState(plan.state); });
    showApplied(entry);
    tellRemarks(name, plan);
}

void PresetDesk::tellRemarks(const QString &name, const PresetPlan &plan)
{
    const QString remarks = PresetMessages::remarks(name, plan, printer_);
    if (remarks.isNull())
        Q_EMIT dismissed(kRemarksKey);
    else
        Q_EMIT noticed({kRemarksKey, Severity::Warning, remarks, {}});
}

void PresetDesk::reset()
{
    changer_(tr("Reset to Defaults"), [this] { host_.setState(defaults_); });
    showApplied({});
    Q_EMIT dismissed(kRemarksKey);
}

void PresetDesk::showApplied(const PresetEntry &entry)
{
    former_ = std::exchange(applied_, Applied{entry, present()});
    showEntry();
}

/// The presets before are past; what is set stays.
void PresetDesk::showStored(const Applied &stored)
{
    applied_ = former_ = stored;
    showEntry();
}

void PresetDesk::showEntry()
{
    if (!bar_)
        return;
    bar_->select(applied_.entry);
    followState();
}

/// Who takes a preset back has the one before again.
void PresetDesk::followState()
{
    if (!bar_)
        return;
    const PresetContent now = present();
    if (now != applied_.content && now == former_.content && contentOfEntry(former_.entry)) {
        std::swap(applied_, former_);
        bar_->select(applied_.entry);
    }
    bar_->setChanged(now != applied_.content);
    if (bar_->showsDifferences())
        showDifferences();
}

void PresetDesk::showDifferences()
{
    const SettingWords words{settingTitle, [](const QString &key, const QVariant &value) {
                                 return settingValue(key, value.toString());
                             }};
    bar_->showDifferences(differencesBetween(present(), applied_.content, printer_, words));
}

Preset PresetDesk::presentPreset(const QString &name) const
{
    return {name, modelOf(printer_), QCoreApplication::applicationVersion(), present()};
}

void PresetDesk::save(const QString &name)
{
    change(saving(presentPreset(name)), ownPreset, {});
}

/// One that was gone is saved anew, with nothing to take back.
void PresetDesk::update()
{
    const Preset updated = presentPreset(applied_.entry.name);
    const auto outcome = [updated](const Preset &) { return ownPreset(updated); };
    change(updating(updated), outcome, [this, updated](const Preset &former) {
        if (former != updated)
            offerUndo(tr("The preset “%1” has the present settings now.").arg(updated.name),
                      updatingBack(former));
    });
}

void PresetDesk::rename(const QString &name)
{
    const auto outcome = [content = applied_.content](const Preset &renamed) {
        return Applied{{PresetKind::Own, renamed.name}, content};
    };
    change(renaming(applied_.entry.name, name), outcome, {});
}

/// What it had set stays, as a change of the default settings.
void PresetDesk::remove()
{
    const auto outcome = [this](const Preset &) { return defaults(); };
    change(removing(applied_.entry.name), outcome, [this](const Preset &removed) {
        offerUndo(tr("The preset “%1” has been deleted.").arg(removed.name), restoring(removed));
    });
}

/// A person who has gone on to something else in the meantime is left there.
void PresetDesk::change(const PresetChange &change, const Outcome &outcome,
                        const std::function<void(const Preset &preset)> &done)
{
    const Applied before = applied_;
    const StoreResult expected = change(own_);
    const Applied shown = expected.isOk() ? outcome(*expected.preset) : before;
    ask({change, [=, this](const StoreResult &result) {
             const Applied after = result.isOk() ? outcome(*result.preset) : before;
             if (applied_ == shown && after != shown)
                 showStored(after);
             if (result.isOk() && done)
                 done(*result.preset);
         }});
    listPresets();
    if (expected.isOk())
        showStored(shown);
}

void PresetDesk::offerUndo(const QString &text, const PresetChange &undo)
{
    const auto run = [this, undo] { change(undo, ownPreset, {}); };
    Q_EMIT noticed(
        {kUndoKey, Severity::Information, text, {{tr("Undo"), QStringLiteral("presetUndo"), run}}});
}

void PresetDesk::tellSlowness()
{
    Q_EMIT noticed({kSlowKey,
                    Severity::Warning,
                    tr("Your home folder does not answer. As soon as it does, your presets appear "
                       "in the menu, and what you have changed in them is written."),
                    {}});
}

bool PresetDesk::tell(const StoreResult &result)
{
    if (!result.setAside.isNull())
        Q_EMIT noticed(
            {kSetAsideKey, Severity::Warning, PresetMessages::setAside(result.setAside), {}});
    if (!result.isOk()) {
        Q_EMIT noticed({kFaultKey, Severity::Critical, PresetMessages::fault(result), {}});
        return false;
    }
    return true;
}

} // namespace dialog
