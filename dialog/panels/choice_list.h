#pragma once

#include "dialog/printers/option_groups.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

#include <map>

namespace dialog {

/// Text that is there to be read but not meant to be picked: between text and background, and
/// legible.
[[nodiscard]] QColor dimmedText(const QPalette &palette);

/// The choices of one option for a pop-up, without a copy of them. A choice that cannot be had
/// stays in the list, dimmed, with its reason beside the text, as tool tip and as description.
class ChoiceList : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Borrows the option.
    explicit ChoiceList(const PrinterOption &option, QObject *parent = nullptr);

    /// Reasons by keyword, of the choices that cannot be had.
    void setReasons(const std::map<QString, QString> &reasons);
    [[nodiscard]] int rowOf(const QString &keyword) const;
    [[nodiscard]] static QString reasonAt(const QModelIndex &index);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    /// The keyword is the user data, as in the pop-ups of panels.
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    [[nodiscard]] QString reason(const QString &keyword) const;

    const PrinterOption &option_;
    std::map<QString, QString> reasons_;
};

/// Paints the reason after the text of a choice that cannot be had.
class ChoiceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace dialog
