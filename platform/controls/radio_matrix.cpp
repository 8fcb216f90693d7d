#include "platform/controls/radio_matrix.h"

#include "platform/controls/controls.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QVBoxLayout>

RadioMatrix::RadioMatrix(QWidget *parent) : QWidget(parent), group_(new QButtonGroup(this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    connect(group_, &QButtonGroup::idClicked, this, &RadioMatrix::rowClicked);
}

int RadioMatrix::rows() const
{
    return static_cast<int>(group_->buttons().size());
}

void RadioMatrix::setRows(int rows)
{
    for (int row = this->rows() - 1; row >= qMax(rows, 0); --row)
        delete group_->button(row);
    for (int row = this->rows(); row < rows; ++row) {
        auto *added = new QRadioButton(this);
        layout()->addWidget(added);
        group_->addButton(added, row);
    }
}

QStringList RadioMatrix::titles() const
{
    QStringList titles;
    for (int row = 0; row < rows(); ++row)
        titles.append(rowTitle(row));
    return titles;
}

void RadioMatrix::setTitles(const QStringList &titles)
{
    setRows(static_cast<int>(titles.size()));
    for (int row = 0; row < rows(); ++row)
        setRowTitle(row, titles[row]);
}

int RadioMatrix::selectedRow() const
{
    return group_->checkedId();
}

void RadioMatrix::selectRow(int row)
{
    if (QRadioButton *wanted = button(row))
        controls::setState(wanted, 1);
    else
        controls::setState(group_->checkedButton(), 0);
}

QString RadioMatrix::rowTitle(int row) const
{
    return controls::title(button(row));
}

void RadioMatrix::setRowTitle(int row, const QString &title)
{
    controls::setTitle(button(row), title);
}

QRadioButton *RadioMatrix::button(int row) const
{
    // The group would take -1 for the button of any id.
    return row < 0 ? nullptr : static_cast<QRadioButton *>(group_->button(row));
}

namespace controls {

int selectedRow(const RadioMatrix *matrix)
{
    return matrix ? matrix->selectedRow() : -1;
}

void selectRow(RadioMatrix *matrix, int row)
{
    if (matrix)
        matrix->selectRow(row);
}

void setRowTitle(RadioMatrix *matrix, int row, const QString &title)
{
    if (matrix)
        matrix->setRowTitle(row, title);
}

} // namespace controls
