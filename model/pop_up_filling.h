#pragma once

#include <cups/ppd.h>

#include <QString>

class QComboBox;

/// Filling of a pop-up from the choices of one PPD option, in the PPD's order: titled with the
/// text, carrying the keyword. The old items go first, whatever happens then. Nothing is selected
/// beyond the first item, and no action fires. A null pop-up does nothing.

/// Every choice. Leaves the pop-up empty without PPD, key, option or choices.
void addItemsFromPPD(QComboBox *popUp, ppd_file_t *ppd, const char *key, unsigned long encoding);

/// Leaves out each choice whose keyword occurs anywhere in @p exclusion. An empty exclusion
/// excludes nothing; a null one leaves the pop-up empty.
void addItemsFromPPD(QComboBox *popUp, ppd_file_t *ppd, const char *key, unsigned long encoding,
                     const QString &exclusion);
