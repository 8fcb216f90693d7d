#pragma once

#include "platform/panel_protocol.h"

/// Literal path of the driver's list for a model. The PPD's texts stand in it as they are.
[[nodiscard]] QString modelListPath(const ppd_file_t *ppd);

/// The principal object of the plug-in: decides which panels exist for a printer.
class KorPDEPlugin2 final : public PDEPlugIn
{
public:
    /// Always true.
    bool initWithBundle(Bundle *bundle) override;
    /// A fresh list at each call: Quality & Media first, then Other where the driver asks for it.
    [[nodiscard]] std::shared_ptr<PDEPanelList> PDEPanelsForType(const QString &type,
                                                                 PDEPlugInCallback *host) override;
    /// Whether the driver's list for the printer's model switches the Other panel on. False without
    /// a PPD and without a list.
    [[nodiscard]] bool supportOthersPDE(const ppd_file_t *ppd) const;

private:
    friend struct PanelTestAccess;
    void appendPanels(PDEPlugInCallback *host);

    Bundle *bundle = nullptr;
    std::shared_ptr<PDEPanelList> pdes;
};
