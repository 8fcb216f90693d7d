#include "dialog/panel_stack.h"

#include "dialog/host/dialog_host.h"
#include "dialog/panels/own_panel.h"
#include "dialog/printers/ppd_document.h"
#include "dialog/window/print_window.h"

namespace dialog {

PanelStack::PanelStack(DialogHost &host, QObject *parent) : QObject(parent), host_(host)
{
    connect(&controls_, &ControlWatch::chosen, &host_, &DialogHost::recordPersonsChoice);
}

PanelStack::~PanelStack()
{
    host_.setFrontPanel(nullptr);
    host_.setPanels({});
}

void PanelStack::load(const PpdDocument &printer, TrustedOwner owner)
{
    const QStringList paths = printer.attributeValues("APDialogExtension");
    if (paths.isEmpty())
        Q_EMIT noticed(
            {QStringLiteral("panels"),
             Severity::Information,
             printer.path().isNull()
                 ? tr("This printer has no PPD, so there are no panels for it. Print uses the "
                      "settings that its queue has.")
                 : tr("The PPD of this printer names no panels. Print uses the settings that "
                      "are marked in it."),
             {}});
    for (const QString &path : paths)
        loadBundle(path, owner);
    PDEPanelList list;
    for (const LoadedPanel &entry : loaded_)
        list.push_back(entry.panel);
    host_.setPanels(list);
}

void PanelStack::loadBundle(const QString &literalPath, TrustedOwner owner)
{
    const QString key = QStringLiteral("plug-in:") + literalPath;
    auto loaded = loadPlugIn(literalPath, owner);
    if (const auto *failure = std::get_if<PlugInFailure>(&loaded)) {
        Q_EMIT noticed({key, Severity::Warning, failure->notice, {}});
        return;
    }
    plugIns_.push_back(std::move(std::get<PlugIn>(loaded)));
    const auto panels =
        plugIns_.back().principal->PDEPanelsForType(kPDEPrintDialogType.toString(), &host_);
    if (!panels || panels->empty())
        Q_EMIT noticed({key,
                        Severity::Information,
                        tr("The maker's driver offers no panels for this printer."),
                        {}});
    else
        for (const auto &panel : *panels)
            loaded_.push_back({panel});
}

void PanelStack::showIn(PrintWindow &window, const std::vector<OwnPanel *> &leading,
                        const std::vector<OwnPanel *> &following)
{
    window_ = &window;
    for (OwnPanel *panel : leading)
        addOwn(panel);
    for (std::size_t i = 0; i < loaded_.size(); ++i)
        addLoaded(i);
    for (OwnPanel *panel : following)
        addOwn(panel);
}

void PanelStack::addOwn(OwnPanel *panel)
{
    window_->addPanel(panel->title(), panel);
    entries_.push_back({.own = panel});
}

void PanelStack::addLoaded(std::size_t index)
{
    LoadedPanel &entry = loaded_[index];
    host_.callPanel(entry.panel.get(), [&](PDEPanel &panel) {
        entry.view = panel.panelView();
        entry.title = panel.panelName();
        entry.kind = panel.panelKind();
        window_->addPanel(entry.title, entry.view);
        panel.restoreValuesAndReturnError(nullptr);
    });
    controls_.watch(entry.panel, entry.view);
    entries_.push_back({.loaded = index});
}

QStringList PanelStack::claimedOptions() const
{
    QStringList options;
    for (const LoadedPanel &entry : loaded_)
        host_.callPanel(entry.panel.get(),
                        [&](PDEPanel &panel) { options += panel.supportedPPDOptionKeys(); });
    return options;
}

QString PanelStack::title(int index) const
{
    const Entry &entry = entries_.at(static_cast<std::size_t>(index));
    return entry.own ? entry.own->title() : loaded_[entry.loaded].title;
}

QString PanelStack::kind(int index) const
{
    const Entry &entry = entries_.at(static_cast<std::size_t>(index));
    return entry.own ? entry.own->kind() : loaded_[entry.loaded].kind;
}

int PanelStack::indexOf(const QString &wanted) const
{
    for (int i = 0; i < count(); ++i) {
        if (kind(i) == wanted)
            return i;
    }
    return -1;
}

int PanelStack::firstIndex() const
{
    for (int i = 0; i < count(); ++i) {
        if (loadedAt(i))
            return i;
    }
    return entries_.empty() ? -1 : 0;
}

int PanelStack::frontIndex() const
{
    return window_ ? window_->frontIndex() : -1;
}

PDEPanel *PanelStack::loadedAt(int index) const
{
    if (index < 0 || index >= count() || ownAt(index))
        return nullptr;
    return loaded_[entries_[static_cast<std::size_t>(index)].loaded].panel.get();
}

OwnPanel *PanelStack::ownAt(int index) const
{
    return index >= 0 && index < count() ? entries_[static_cast<std::size_t>(index)].own : nullptr;
}

void PanelStack::bringForward(int index)
{
    if (index == frontIndex() || index < 0 || index >= count())
        return;
    if (!hideFront()) {
        window_->bringForward(frontIndex());
        return;
    }
    PDEPanel *panel = loadedAt(index);
    host_.setFrontPanel(panel);
    if (panel)
        host_.callPanel(panel, [](PDEPanel &shown) { shown.willShow(); });
    else
        ownAt(index)->refresh();
    window_->bringForward(index);
}

/// False when the panel in front wants to stay.
bool PanelStack::hideFront()
{
    bool hides = true;
    if (PDEPanel *panel = loadedAt(frontIndex()))
        host_.callPanel(panel, [&](PDEPanel &hidden) { hides = hidden.shouldHide(); });
    return hides;
}

void PanelStack::refreshFront()
{
    if (OwnPanel *panel = ownAt(frontIndex()))
        panel->refresh();
}

bool PanelStack::wantsOwnHelp()
{
    bool wants = true;
    if (PDEPanel *panel = loadedAt(frontIndex()))
        host_.callPanel(panel, [&](PDEPanel &front) { wants = front.shouldShowHelp(); });
    return wants;
}

} // namespace dialog
