#pragma once

#include <QCollator>
#include <QLocale>

namespace dialog {

/// Compares names as a person sorts them: in any case, numbers by their value.
[[nodiscard]] inline QCollator nameOrder()
{
    // The C locale would know neither numbers nor case.
    QCollator collator{QLocale(QLocale::English)};
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

} // namespace dialog
