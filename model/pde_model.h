#pragma once

#include <cups/ppd.h>

#include <QString>

/// The settings of the panels: for each an option record of the PPD (borrowed; null when the
/// printer lacks the option), a value (what a person reads) and a ticket (the choice keyword for
/// the dialog). A plain record: every field is null in a new model and nothing here gives it a
/// default.
///
/// A string setter keeps the new string unless it is the very object already held. The two dry-time
/// options share one value and one ticket. The accessors are those of pde_model_fields.h; a few of
/// them write a console line, and the setters of the first panel's settings are traced.
class PDEModel2
{
public:
#define KV_OPTION(field, getter, setter)                                                           \
    [[nodiscard]] ppd_option_t *getter() const;                                                    \
    void setter(ppd_option_t *option);
#define KV_STRING(field, getter, setter)                                                           \
    [[nodiscard]] QString getter() const;                                                          \
    void setter(const QString &text);
#include "model/pde_model_fields.h"
#undef KV_OPTION
#undef KV_STRING

private:
#define KV_OPTION(field, getter, setter) ppd_option_t *field = nullptr;
#define KV_STRING(field, getter, setter) QString field;
#include "model/pde_model_fields.h"
#undef KV_OPTION
#undef KV_STRING
};
