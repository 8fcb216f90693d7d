#include "platform/panel_protocol.h"

// Out of line, so that each class has its virtual table in this library only.
PDEPlugInCallback::~PDEPlugInCallback() = default;
PDEPanelDiagnostics::~PDEPanelDiagnostics() = default;
PDEPanel::~PDEPanel() = default;
PDEPlugIn::~PDEPlugIn() = default;
PDEPlugInModule::~PDEPlugInModule() = default;
