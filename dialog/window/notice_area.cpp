#include "dialog/window/notice_area.h"

#include "dialog/window/wrapped_label.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace dialog {
namespace {

QStyle::StandardPixmap iconOf(Severity severity)
{
    switch (severity) {
    case Severity::Information:
        return QStyle::SP_MessageBoxInformation;
    case Severity::Warning:
        return QStyle::SP_MessageBoxWarning;
    case Severity::Critical:
        break;
    }
    return QStyle::SP_MessageBoxCritical;
}

QLabel *iconLabel(Severity severity, QWidget *parent)
{
    auto *label = new QLabel(parent);
    const int size = parent->style()->pixelMetric(QStyle::PM_SmallIconSize);
    label->setPixmap(parent->style()->standardIcon(iconOf(severity)).pixmap(size, size));
    label->setAlignment(Qt::AlignTop);
    return label;
}

QLabel *textLabel(const QString &text, QWidget *parent)
{
    auto *label = new WrappedLabel(text, parent);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    return label;
}

QToolButton *dismissButton(QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("dismissNotice"));
    button->setAutoRaise(true);
    button->setText(QStringLiteral("\u00d7")); // unlike the style's icon, in the palette's colour
    button->setToolTip(NoticeArea::tr("Dismiss this notice"));
    button->setAccessibleName(NoticeArea::tr("Dismiss this notice"));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QFrame *frameFor(QWidget *parent)
{
    auto *frame = new QFrame(parent);
    frame->setObjectName(QStringLiteral("notice"));
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    frame->setAutoFillBackground(true);
    frame->setBackgroundRole(QPalette::Base);
    return frame;
}

} // namespace

NoticeArea::NoticeArea(QWidget *parent) : QWidget(parent), layout_(new QVBoxLayout(this))
{
    layout_->setContentsMargins({});
    hide();
}

void NoticeArea::show(const Notice &notice)
{
    QFrame *frame = frameFor(this);
    frame->setAccessibleName(notice.text);
    auto *row = new QHBoxLayout;
    row->addWidget(iconLabel(notice.severity, frame));
    row->addWidget(textLabel(notice.text, frame), 1);
    auto *column = new QVBoxLayout(frame);
    column->addLayout(row);
    if (notice.actions.empty())
        row->addWidget(makeDismissButton(notice.key, frame), 0, Qt::AlignTop);
    else
        column->addLayout(makeActionRow(notice, frame));
    place(notice.key, notice.text, frame);
}

void NoticeArea::place(const QString &key, const QString &text, QWidget *view)
{
    dismiss(key);
    standing_.push_back({key, text, view});
    insert(view);
    Q_EMIT shown(text);
}

QWidget *NoticeArea::makeDismissButton(const QString &key, QWidget *parent)
{
    QToolButton *button = dismissButton(parent);
    connect(button, &QToolButton::clicked, this, [this, key] { dismiss(key); });
    return button;
}

QLayout *NoticeArea::makeActionRow(const Notice &notice, QWidget *parent)
{
    auto *row = new QHBoxLayout;
    row->addStretch(1);
    for (const NoticeAction &action : notice.actions) {
        auto *button = new QPushButton(action.title, parent);
        button->setObjectName(action.objectName);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, key = notice.key, run = action.run] {
            dismiss(key);
            run();
        });
        row->addWidget(button);
    }
    return row;
}

void NoticeArea::insert(QWidget *view)
{
    layout_->addWidget(view);
    view->show();
    setVisible(true);
    Q_EMIT heightChanged();
}

void NoticeArea::dismiss(const QString &key)
{
    const auto found = std::find_if(standing_.begin(), standing_.end(),
                                    [&](const Standing &notice) { return notice.key == key; });
    if (found == standing_.end())
        return;
    layout_->removeWidget(found->view);
    found->view->hide();
    found->view->deleteLater(); // its own button may be on the stack
    standing_.erase(found);
    setVisible(!standing_.empty());
    Q_EMIT heightChanged();
}

void NoticeArea::dismissGroup(const QString &prefix)
{
    const std::vector<Standing> standing = standing_;
    for (const Standing &notice : standing) {
        if (notice.key.startsWith(prefix))
            dismiss(notice.key);
    }
}

QStringList NoticeArea::texts() const
{
    QStringList texts;
    for (const Standing &notice : standing_)
        texts.append(notice.text);
    return texts;
}

} // namespace dialog
