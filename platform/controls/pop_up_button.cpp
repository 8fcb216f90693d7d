#include "platform/controls/pop_up_button.h"

#include <QAbstractItemView>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

namespace {

/// Bounds of the closed control, in average characters of its font.
constexpr int shortestHint = 8;
constexpr int longestHint = 32;
/// QComboBox's own, the first in letters x, the others in pixels.
constexpr int emptyHint = 7;
constexpr int lowestLine = 14;
constexpr int lineMargins = 2;
constexpr int iconGap = 4;

QSize atMostCharacters(QSize size, const QFontMetrics &metrics, int characters)
{
    size.setWidth(qMin(size.width(), metrics.averageCharWidth() * characters));
    return size;
}

} // namespace

PopUpButton::PopUpButton(QWidget *parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    followModel();
}

void PopUpButton::setModel(QAbstractItemModel *model)
{
    if (model == this->model())
        return;
    this->model()->disconnect(this); // QComboBox does the same
    QComboBox::setModel(model);
    followModel();
    forgetHint();
}

void PopUpButton::followModel()
{
    connect(model(), &QAbstractItemModel::rowsInserted, this, &PopUpButton::forgetHint);
    connect(model(), &QAbstractItemModel::rowsRemoved, this, &PopUpButton::forgetHint);
    connect(model(), &QAbstractItemModel::dataChanged, this, &PopUpButton::forgetHint);
    connect(model(), &QAbstractItemModel::modelReset, this, &PopUpButton::forgetHint);
}

QSize PopUpButton::sizeHint() const
{
    if (!hint_.isValid()) {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        hint_ = style()->sizeFromContents(QStyle::CT_ComboBox, &option, contentsSize(), this);
    }
    return atMostCharacters(hint_, fontMetrics(), longestHint);
}

QSize PopUpButton::minimumSizeHint() const
{
    return atMostCharacters(sizeHint(), fontMetrics(), shortestHint);
}

/// As QComboBox reckons: the widest item, no lower than a line.
QSize PopUpButton::contentsSize() const
{
    const QFontMetrics metrics = fontMetrics();
    QSize size(0, qMax(metrics.height(), lowestLine) + lineMargins);
    if (minimumContentsLength() > 0)
        size.setWidth(minimumContentsLength() * metrics.horizontalAdvance(u'X'));
    else if (count() == 0)
        size.setWidth(emptyHint * metrics.horizontalAdvance(u'x'));
    else
        for (int i = 0; i < count(); ++i)
            size = size.expandedTo(itemSize(i));
    return size;
}

QSize PopUpButton::itemSize(int index) const
{
    const int width = fontMetrics().boundingRect(itemText(index)).width();
    if (itemIcon(index).isNull())
        return {width, 0};
    return {width + iconSize().width() + iconGap, iconSize().height() + lineMargins};
}

void PopUpButton::forgetHint()
{
    hint_ = {};
    updateGeometry();
}

void PopUpButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        hint_ = {};
    QComboBox::changeEvent(event);
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
