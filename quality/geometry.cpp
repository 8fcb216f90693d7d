#include "quality/geometry.h"

#include "platform/controls/frame_view.h"

#include <QLayout>

#include <cmath>

namespace quality {
namespace {

/// A row shown or hidden reaches the layouts further out only with the next events; this is at
/// once.
void forgetSize(QWidget *part)
{
    if (part->layout())
        part->layout()->invalidate();
    part->updateGeometry();
}

} // namespace

void projectFrames(FrameView *panel)
{
    if (!panel || !panel->layout())
        return;
    panel->setMinimumWidth(static_cast<int>(std::ceil(panel->frameRecord().width())));
    for (auto *part : panel->findChildren<FrameView *>(QString(), Qt::FindDirectChildrenOnly))
        forgetSize(part);
    panel->layout()->invalidate();
    panel->layout()->activate();
    panel->updateGeometry();
    panel->resize(panel->sizeHint().expandedTo(panel->minimumSize()));
}

} // namespace quality
