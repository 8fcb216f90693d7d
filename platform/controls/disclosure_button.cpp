#include "platform/controls/disclosure_button.h"

#include <QStyleOptionFocusRect>
#include <QStyleOptionToolButton>
#include <QStylePainter>

DisclosureButton::DisclosureButton(QWidget *parent) : QToolButton(parent)
{
    setCheckable(true);
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QToolButton::toggled, this, &DisclosureButton::pointAt);
    pointAt(isChecked());
}

void DisclosureButton::pointAt(bool isOpen)
{
    setArrowType(isOpen ? Qt::DownArrow : Qt::RightArrow);
}

/// A tool button without its panel, which styles draw pressed in while the button is checked.
void DisclosureButton::paintEvent(QPaintEvent *)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.state &= ~(QStyle::State_On | QStyle::State_Sunken | QStyle::State_Raised);
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_ToolButtonLabel, option);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect.adjust(1, 1, -1, -1);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}
