#include "platform/controls/dark_palette.h"

QPalette darkPalette()
{
    QPalette palette(QColor(53, 54, 58), QColor(42, 43, 46));
    palette.setColor(QPalette::Base, QColor(60, 62, 67));
    palette.setColor(QPalette::AlternateBase, QColor(68, 70, 76));
    palette.setColor(QPalette::ToolTipBase, QColor(48, 49, 53));
    palette.setColor(QPalette::Highlight, QColor(53, 132, 228));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, QColor(238, 238, 236));
        palette.setColor(QPalette::Disabled, role, QColor(140, 141, 144));
    }
    return palette;
}
