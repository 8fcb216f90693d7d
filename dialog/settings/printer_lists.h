#pragma once

#include "dialog/printers/choice.h"
#include "dialog/settings/job_settings.h"

#include <QStringList>

namespace dialog {

class PpdDocument;

/// What a person can pick for paper or sides. A printer with a PPD is asked by its own option and
/// in its own words, any other by a standard print setting.
struct PrinterList
{
    struct Item
    {
        QString title; ///< shown literally
        QString value; ///< choice or setting; null removes the setting
    };

    QString option; ///< of the PPD; null: a print setting
    QString key;    ///< the print setting of the same meaning
    std::vector<Item> items;
    int current = -1; ///< -1: none; what is in no list of choices stands at its end

    /// Without a list there is nothing to pick.
    [[nodiscard]] bool isEmpty() const { return items.size() < 2; }
};

/// A print setting stands above the page format's paper (null for none), that above the mark.
[[nodiscard]] PrinterList paperList(const PpdDocument &printer, const PrintSettingsMap &settings,
                                    const QString &paperName);
/// Empty where the printer cannot print on both sides.
[[nodiscard]] PrinterList sidesList(const PpdDocument &printer, const PrintSettingsMap &settings);

/// Options of the PPD that the window's own sections set, so that no other control need. One that
/// is marked otherwise than its section shows without a print setting is none of them.
[[nodiscard]] QStringList optionsOfTheWindow(const PpdDocument &printer);

} // namespace dialog
