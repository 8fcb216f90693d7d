#include "quality/geometry.h"

#include "platform/controls/frame_view.h"
#include "platform/controls/pop_up_button.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

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

int widestLabel(const QGridLayout *rows)
{
    int widest = 0;
    for (int row = 0; row < rows->rowCount(); ++row)
        if (const QLayoutItem *item = rows->itemAtPosition(row, 0))
            if (const auto *label = qobject_cast<QLabel *>(item->widget()))
                widest = std::max(widest, label->isHidden() ? 0 : label->sizeHint().width());
    return widest;
}

/// The header's controls and those below them, in the left column, stand in one line.
void lineUpControls(const FrameView *panel)
{
    auto *header = panel->findChild<QGridLayout *>(QStringLiteral("headerLayout"));
    auto *below = panel->findChild<QGridLayout *>(QStringLiteral("leftColumn"));
    if (!header || !below)
        return;
    const int width = std::max(widestLabel(header), widestLabel(below));
    header->setColumnMinimumWidth(0, width);
    below->setColumnMinimumWidth(0, width);
}

} // namespace

void projectFrames(FrameView *panel)
{
    if (!panel || !panel->layout())
        return;
    const auto parts = panel->findChildren<FrameView *>(QString(), Qt::FindDirectChildrenOnly);
    evenOutRows(panel);
    lineUpControls(panel);
    for (FrameView *part : parts)
        forgetSize(part);
    panel->setMinimumWidth(widthOf(panel, parts));
    panel->layout()->invalidate();
    panel->layout()->activate();
    panel->updateGeometry();
    // Never narrower: the host's layout would widen it again.
    const QSize needed = panel->sizeHint().expandedTo(panel->minimumSize());
    panel->resize(std::max(needed.width(), panel->width()), needed.height());
}

} // namespace quality
