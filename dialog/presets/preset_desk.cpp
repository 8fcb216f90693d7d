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
const QString kUndoKey = QStringLiteral("preset:undo");

const Preset *findPreset(const std::vector<Preset> &presets, const QString &name)
{
    const auto found = std::find_if(presets.begin(), presets.end(), [&](const Preset &preset) {
        return isSamePresetName(preset.name, name);
    });
    return found == presets.end() ? nullptr : &*found;
}

} // namespace

PresetDesk::PresetDesk(const PpdDocument &printer, DialogHost &host, Changer changer,
                       QObject *parent)
    : QObject(parent), printer_(printer), host_(host), changer_(std::move(changer)),
      store_(modelOf(printer))
{
    connect(&host_, &DialogHost::stateChanged, this, &PresetDesk::followState);
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
    readFile();
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
        showStored(applied_.entry, content);
}

void PresetDesk::readFile()
{
    PresetListing listing = store_.list();
    static_cast<void>(tell(listing.result));
    own_ = std::move(listing.presets);
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

/// Another dialog may have changed the presets since; what it made of this one counts.
void PresetDesk::apply(const PresetEntry &entry)
{
    if (entry.kind == PresetKind::Defaults)
        return reset();
    if (entry.kind == PresetKind::Own) {
        readFile();
        fillBar();
    }
    const std::optional<PresetContent> content = contentOfEntry(entry);
    if (!content) {
        static_cast<void>(tell({StoreFault::Gone}));
        bar_->select(applied_.entry);
        return;
    }
    const QString name = entry.kind == PresetKind::LastUsed ? tr("Last Used Settings") : entry.name;
    const PresetPlan plan = planPreset(*content, printer_, host_.state());
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
void PresetDesk::showStored(const PresetEntry &entry, const PresetContent &content)
{
    applied_ = former_ = Applied{entry, content};
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
    const StoreResult result = store_.save(presentPreset(name));
    if (!take(result))
        return;
    showStored({PresetKind::Own, result.preset->name}, present());
}

/// One that was gone is saved anew, with nothing to take back.
void PresetDesk::update()
{
    const Preset updated = presentPreset(applied_.entry.name);
    const StoreResult result = store_.update(updated);
    if (!take(result))
        return;
    showStored(applied_.entry, updated.content);
    if (*result.preset == updated)
        return;
    offerUndo(tr("The preset “%1” has the present settings now.").arg(updated.name),
              [this, former = *result.preset] {
                  StoreResult undone = store_.update(former);
                  undone.preset = former;
                  return undone;
              });
}

void PresetDesk::rename(const QString &name)
{
    const StoreResult result = store_.rename(applied_.entry.name, name);
    if (!take(result))
        return;
    showStored({PresetKind::Own, result.preset->name}, applied_.content);
}

/// What it had set stays, as a change of the default settings.
void PresetDesk::remove()
{
    const StoreResult result = store_.remove(applied_.entry.name);
    if (!take(result))
        return;
    showStored({}, contentOf(defaults_, printer_));
    offerUndo(tr("The preset “%1” has been deleted.").arg(result.preset->name),
              [this, removed = *result.preset] { return store_.restore(removed); });
}

void PresetDesk::offerUndo(const QString &text, const std::function<StoreResult()> &undo)
{
    const auto run = [this, undo] {
        const StoreResult result = undo();
        if (take(result))
            showStored({PresetKind::Own, result.preset->name}, result.preset->content);
    };
    Q_EMIT noticed(
        {kUndoKey, Severity::Information, text, {{tr("Undo"), QStringLiteral("presetUndo"), run}}});
}

/// What was changed shows in the list.
bool PresetDesk::take(const StoreResult &result)
{
    if (!tell(result))
        return false;
    readFile();
    fillBar();
    return true;
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
    Q_EMIT dismissed(kFaultKey);
    return true;
}

} // namespace dialog
