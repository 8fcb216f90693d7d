#pragma once

#include <QRectF>

class FrameView;

/// Geometry of the panel. Two things are kept apart: the frame records of the three views, with
/// which the panel calculates exactly, and what stands on the screen, which follows the visible
/// content.
namespace quality {

/// Origin y of the header's record while the advanced part is open, and for good after that.
inline constexpr double kOpenHeaderY = 123.0;
/// What the missing row of a printer without second tray takes away.
inline constexpr double kHeaderDropWithoutTray2 = 35.0;
inline constexpr double kPanelLossWithoutTray2 = 40.0;

/// Brings records to the screen: the panel as wide as its record, wider for larger content, and as
/// high as its visible rows need; the header at its top, its rows packed; the advanced part, unless
/// hidden, at its bottom. A missing panel does nothing.
void projectFrames(FrameView *panel);

} // namespace quality
