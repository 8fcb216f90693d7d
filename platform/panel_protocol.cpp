#include "platform/panel_protocol.h"

#include "platform/strings.h"

#include <algorithm>

// Out of line, so that each class has its virtual table in this library only.
PDEPlugInCallback::~PDEPlugInCallback() = default;
PDEPanelDiagnostics::~PDEPanelDiagnostics() = default;
PDEPanel::~PDEPanel() = default;
PDEPlugIn::~PDEPlugIn() = default;
PDEPlugInModule::~PDEPlugInModule() = default;
PDEPlugInDiagnostics::~PDEPlugInDiagnostics() = default;

std::vector<PDEOptionControl> PDEPanelDiagnostics::optionControls()
{
    return {};
}

void setSummaryEntry(SummaryInfo &info, const QString &title, const QString &text)
{
    if (title.isNull() || text.isNull())
        return;
    const auto entry = std::find_if(info.begin(), info.end(), [&title](const auto &candidate) {
        return platform::isEqual(candidate.first, title);
    });
    if (entry == info.end())
        info.emplace_back(title, text);
    else
        entry->second = text;
}
