#include "platform/controls/pop_up_button.h"

#include <QAbstractItemView>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

/// Bounds of the closed control, in average characters of its font.
constexpr int shortestHint = 8;
constexpr int longestHint = 32;

QSize atMostCharacters(QSize size, const QFontMetrics &metrics, int characters)
{
    size.setWidth(qMin(size.width(), metrics.averageCharWidth() * characters));
    return size;
}

} // namespace

PopUpButton::PopUpButton(QWidget *parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
}

QSize PopUpButton::sizeHint() const
{
    return atMostCharacters(QComboBox::sizeHint(), fontMetrics(), longestHint);
}

QSize PopUpButton::minimumSizeHint() const
{
    return atMostCharacters(QComboBox::minimumSizeHint(), fontMetrics(), shortestHint);
}

void PopUpButton::showPopup()
{
    QAbstractItemView *list = view();
    const int needed = list->sizeHintForColumn(0) + 2 * list->frameWidth() +
                       list->verticalScrollBar()->sizeHint().width();
    list->setMinimumWidth(qMin(needed, screen()->availableSize().width()));
    QComboBox::showPopup();
}

void PopUpButton::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
