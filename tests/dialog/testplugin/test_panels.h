#pragma once

#include "platform/panel_protocol.h"

#include <QObject>

/// Panels of another maker, known to the dialog by the protocol only: what they do is simple enough
/// to say in one line each.
namespace testplugin {

/// Controls of every kind, windows inside windows, and a rule: iron-on paper switches mirror on.
[[nodiscard]] std::shared_ptr<PDEPanel> makeBasicsPanel(PDEPlugInCallback *host);
/// One pop-up, a help book of its own, and a label that tells what the dialog told it.
[[nodiscard]] std::shared_ptr<PDEPanel> makeExtrasPanel(PDEPlugInCallback *host);

/// "Basics" and "Extras" for the print dialog, nothing for any other type.
class TestPlugIn : public PDEPlugIn
{
public:
    bool initWithBundle(Bundle *bundle) override;
    std::shared_ptr<PDEPanelList> PDEPanelsForType(const QString &type,
                                                   PDEPlugInCallback *host) override;
};

} // namespace testplugin
