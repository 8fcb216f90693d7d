#pragma once

#include "platform/export.h"

#include <QString>

class QWidget;

/// Names a pop-up to screen readers where the label that a person sees lies in another part of the
/// window: they look among the pop-up's siblings, and read a pop-up's accessible name nowhere. The
/// control must have its parent; the label never shows.
PLATFORM_EXPORT void addSpokenLabel(QWidget *control, const QString &name);
