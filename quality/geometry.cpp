#include "quality/geometry.h"

#include "platform/controls/frame_view.h"

#include <QLayout>

#include <cmath>

namespace quality {

void projectFrames(FrameView *panel)
{
    if (!panel || !panel->layout())
        return;
    panel->setMinimumWidth(static_cast<int>(std::ceil(panel->frameRecord().width())));
    for (QWidget *part : panel->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        if (part->layout())
            part->layout()->invalidate();
    panel->layout()->invalidate();
    panel->layout()->activate();
    panel->updateGeometry();
    panel->resize(panel->sizeHint().expandedTo(panel->minimumSize()));
}

} // namespace quality
