#pragma once

#include "platform/export.h"

#include <QStringList>
#include <QWidget>

class QButtonGroup;
class QRadioButton;

/// One column of radio buttons that are read and set by row.
class PLATFORM_EXPORT RadioMatrix : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int rows READ rows WRITE setRows)
    /// As many rows as titles; for interface files.
    Q_PROPERTY(QStringList titles READ titles WRITE setTitles)

public:
    explicit RadioMatrix(QWidget *parent = nullptr);

    [[nodiscard]] int rows() const;
    /// Keeps the first @p rows buttons and adds what is missing, untitled.
    void setRows(int rows);
    [[nodiscard]] QStringList titles() const;
    void setTitles(const QStringList &titles);
    /// -1 when no row is selected.
    [[nodiscard]] int selectedRow() const;
    /// A row outside the matrix selects none. Emits nothing.
    void selectRow(int row);
    [[nodiscard]] QString rowTitle(int row) const;
    /// Literal text; null reads as an empty title.
    void setRowTitle(int row, const QString &title);
    /// Null outside the matrix; for tests and replay.
    [[nodiscard]] QRadioButton *button(int row) const;

Q_SIGNALS:
    /// A person picked a row, the selected one too; never emitted for selectRow().
    void rowClicked(int row);

private:
    QButtonGroup *group_;
};

namespace controls {

/// -1 for a missing matrix; writing to one does nothing.
[[nodiscard]] PLATFORM_EXPORT int selectedRow(const RadioMatrix *matrix);
PLATFORM_EXPORT void selectRow(RadioMatrix *matrix, int row);
PLATFORM_EXPORT void setRowTitle(RadioMatrix *matrix, int row, const QString &title);

} // namespace controls
