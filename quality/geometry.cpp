#include "quality/geometry.h"

#include "platform/controls/frame_view.h"
#include "platform/controls/pop_up_button.h"

#include <QCheckBox>
#include <QLayout>

#include <algorithm>
#include <cmath>

namespace quality {
namespace {

/// A row shown or hidden reaches the layouts further out only with the next events; this is at
/// once.
void forgetSize(QWidget *part)
{
    if (part->layout()) {
        part->layout()->invalidate();
        part->layout()->activate();
    }
    part->updateGeometry();
}

/// As wide as its record and as each of its parts needs, hidden ones too: opening widens nothing.
int widthOf(const FrameView *panel, const QList<FrameView *> &parts)
{
    int width = static_cast<int>(std::ceil(panel->frameRecord().width()));
    for (const FrameView *part : parts)
        width = std::max(width, part->sizeHint().width());
    return width;
}

/// Check boxes stand as high as pop-ups, so that the rows of the two columns stay side by side.
void evenOutRows(FrameView *panel)
{
    const auto *popUp = panel->findChild<PopUpButton *>();
    if (!popUp)
        return;
    for (auto *box : panel->findChildren<QCheckBox *>())
        box->setMinimumHeight(popUp->sizeHint().height());
}

} // namespace

void projectFrames(FrameView *panel)
{
    if (!panel || !panel->layout())
        return;
    const auto parts = panel->findChildren<FrameView *>(QString(), Qt::FindDirectChildrenOnly);
    evenOutRows(panel);
    for (FrameView *part : parts)
        forgetSize(part);
    panel->setMinimumWidth(widthOf(panel, parts));
    panel->layout()->invalidate();
    panel->layout()->activate();
    panel->updateGeometry();
    panel->resize(panel->sizeHint().expandedTo(panel->minimumSize()));
}

} // namespace quality
