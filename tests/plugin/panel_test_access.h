#pragma once

#include "plugin/kor_pde_plugin2.h"
#include "plugin/panel_object.h"

/// The fields of the plug-in's objects that have no accessor, for tests.
struct PanelTestAccess
{
    template <class Controller>
    [[nodiscard]] static Controller &controller(PanelObject<Controller> &panel)
    {
        return *panel.mPDEController;
    }
    /// As on a host older than 10.5.
    template <class Controller>
    static void makeOlderThan1050(PanelObject<Controller> &panel)
    {
        panel.isRunning1050OrLater = false;
    }
    template <class Controller>
    [[nodiscard]] static ppd_file_t *&ppd(PanelObject<Controller> &panel)
    {
        return panel.mPPD;
    }
    [[nodiscard]] static std::shared_ptr<PDEPanelList> pdes(const KorPDEPlugin2 &plugIn)
    {
        return plugIn.pdes;
    }
};
