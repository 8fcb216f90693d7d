#pragma once

#include "dialog/settings/page_ranges.h"

#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;
class QRadioButton;

namespace dialog {

/// All pages, or those that a person types; what is wrong with them, and what they come to, is said
/// as it is typed.
class RangeField : public QWidget
{
    Q_OBJECT

public:
    explicit RangeField(QWidget *parent = nullptr);

    /// The job setting, null for all pages. Leaves what is being typed alone while the setting
    /// says what it said last.
    void show(const QString &ranges);
    using QWidget::show;
    /// The same, and drops what was typed and could not be a setting.
    void reset(const QString &ranges);
    /// Null while it is not known.
    void setPageCount(std::optional<int> count);
    /// With several, the numbers count printed sides, as the print server has it; the remark says
    /// which pages those are.
    void setPagesPerSheet(int pages);
    /// Where it says so; stands where its owner puts it.
    [[nodiscard]] QLabel *remark() const { return remark_; }
    /// Why these pages cannot be printed; null when they can.
    [[nodiscard]] const QString &problem() const { return problem_; }

Q_SIGNALS:
    /// By a person; null for all pages.
    void rangesChanged(const QString &ranges);
    void problemChanged(const QString &problem);
    /// The remark takes another room than before.
    void remarkChanged();

private:
    void pickRange();
    void pickAll();
    void read();
    void judge();
    [[nodiscard]] PageRanges readText() const;
    [[nodiscard]] QString remarkOn(const PageRanges &read) const;

    QRadioButton *all_;
    QRadioButton *range_;
    QLineEdit *text_;
    QLabel *remark_;
    std::optional<int> pageCount_;
    int pagesPerSheet_ = 1;
    QString setting_; ///< as it was shown or told last
    QString problem_;
};

} // namespace dialog
