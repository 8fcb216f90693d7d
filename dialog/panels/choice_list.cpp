#include "dialog/panels/choice_list.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace dialog {
namespace {

constexpr int kReasonRole = Qt::UserRole + 1;

} // namespace

QColor dimmedText(const QPalette &palette)
{
    constexpr double kShareOfText = 0.65;
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor base = palette.color(QPalette::Active, QPalette::Window);
    const auto mixed = [](int one, int other) {
        return static_cast<int>(one * kShareOfText + other * (1 - kShareOfText));
    };
    return {mixed(text.red(), base.red()), mixed(text.green(), base.green()),
            mixed(text.blue(), base.blue())};
}

ChoiceList::ChoiceList(const PrinterOption &option, QObject *parent)
    : QAbstractListModel(parent), option_(option)
{
}

void ChoiceList::setReasons(const std::map<QString, QString> &reasons)
{
    if (reasons == reasons_)
        return;
    reasons_ = reasons;
    Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int ChoiceList::rowOf(const QString &keyword) const
{
    const auto &choices = option_.choices;
    const auto found =
        std::find_if(choices.begin(), choices.end(), [&](const OptionChoice &choice) {
            return choice.keyword.compare(keyword, Qt::CaseInsensitive) == 0;
        });
    return found == choices.end() ? -1 : static_cast<int>(found - choices.begin());
}

QString ChoiceList::reasonAt(const QModelIndex &index)
{
    return index.data(kReasonRole).toString();
}

int ChoiceList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(option_.choices.size());
}

QVariant ChoiceList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const OptionChoice &choice = option_.choices[static_cast<std::size_t>(index.row())];
    const QString why = reason(choice.keyword);
    switch (role) {
    case Qt::DisplayRole:
        return choice.text;
    case Qt::UserRole:
        return choice.keyword;
    case kReasonRole:
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return why.isNull() ? QVariant() : why;
    case Qt::ForegroundRole:
        return why.isNull() ? QVariant() : dimmedText(QGuiApplication::palette());
    default:
        return {};
    }
}

QString ChoiceList::reason(const QString &keyword) const
{
    const auto found = reasons_.find(keyword);
    return found == reasons_.end() ? QString() : found->second;
}

void ChoiceDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const QString reason = ChoiceList::reasonAt(index);
    if (!reason.isEmpty())
        option->text = tr("%1 (%2)").arg(option->text, reason);
}

} // namespace dialog
