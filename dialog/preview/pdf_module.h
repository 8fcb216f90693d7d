#pragma once

#include <QtGlobal>

class QString;

namespace dialog {
struct OpenedSource;
}

/// What the module that reads PDF offers: opens the document at @p path, as openPdf() says. On the
/// thread that the document will belong to.
extern "C" Q_DECL_EXPORT void korvaneOpenPdf(const QString &path, dialog::OpenedSource &opened);
