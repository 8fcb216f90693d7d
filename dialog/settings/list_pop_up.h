#pragma once

#include "dialog/settings/printer_lists.h"

class PopUpButton;

namespace dialog {

/// All items of the list; their values are the items' data.
void fillPopUp(PopUpButton *popUp, JobList list);
/// Selects the present setting. A value that is not in the list shows as itself, in an item at the
/// end that goes when another is picked.
void showSetting(PopUpButton *popUp, JobList list, const PrintSettingsMap &settings);
void showList(PopUpButton *popUp, const PrinterList &list);

} // namespace dialog
