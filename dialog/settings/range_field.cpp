#include "dialog/settings/range_field.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <utility>

namespace dialog {
namespace {

/// What to say beside the field: a problem, or what becomes of a range that is too long.
QString remarkOn(const PageRanges &read, std::optional<int> pageCount)
{
    if (!read.isCut)
        return rangeProblemText(read, pageCount);
    return RangeField::tr("The document has %n page(s): it is printed up to its end.", nullptr,
                          *pageCount);
}

} // namespace

RangeField::RangeField(QWidget *parent)
    : QWidget(parent), all_(new QRadioButton(tr("All"), this)),
      range_(new QRadioButton(tr("Only:"), this)), text_(new QLineEdit(this)),
      remark_(new QLabel(this))
{
    all_->setObjectName(QStringLiteral("pagesAll"));
    range_->setObjectName(QStringLiteral("pagesRange"));
    text_->setObjectName(QStringLiteral("pageRanges"));
    remark_->setObjectName(QStringLiteral("pageRangesError"));
    all_->setToolTip(tr("Prints the whole document"));
    range_->setToolTip(tr("Prints the pages that are named beside it"));
    all_->setAccessibleName(tr("All pages"));
    range_->setAccessibleName(tr("Only some pages"));
    text_->setAccessibleName(tr("Pages to print"));
    text_->setPlaceholderText(tr("for example 1-3, 5, 8-"));
    text_->setToolTip(tr("Pages and ranges of pages, with commas between them"));
    remark_->setTextFormat(Qt::PlainText);
    remark_->setWordWrap(true);
    remark_->hide();
    auto *group = new QButtonGroup(this);
    group->addButton(all_);
    group->addButton(range_);
    all_->setChecked(true);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(all_);
    row->addWidget(range_);
    row->addWidget(text_, 1);
    connect(all_, &QRadioButton::clicked, this, &RangeField::pickAll);
    connect(range_, &QRadioButton::clicked, this, &RangeField::pickRange);
    connect(text_, &QLineEdit::textEdited, this, &RangeField::read);
}

void RangeField::show(const QString &ranges)
{
    if (ranges.isNull() == setting_.isNull() && ranges == setting_)
        return;
    reset(ranges);
}

/// The text of a range that is not used stays for the next time.
void RangeField::reset(const QString &ranges)
{
    setting_ = ranges;
    (ranges.isNull() ? all_ : range_)->setChecked(true);
    if (!ranges.isNull() || !readPageRanges(text_->text()).isValid())
        text_->setText(QString(ranges).replace(u',', QStringLiteral(", ")));
    judge();
}

void RangeField::setPageCount(std::optional<int> count)
{
    pageCount_ = count;
    judge();
}

void RangeField::pickAll()
{
    judge();
    if (!std::exchange(setting_, QString()).isNull())
        Q_EMIT rangesChanged({});
}

void RangeField::pickRange()
{
    text_->setFocus();
    text_->selectAll();
    read();
}

/// What cannot be a setting changes none; Print is not to be had meanwhile.
void RangeField::read()
{
    range_->setChecked(true);
    judge();
    const PageRanges read = readPageRanges(text_->text(), pageCount_);
    const QString setting = pageRangesSetting(read.ranges);
    if (!read.isValid() || (setting == setting_ && !setting_.isNull()))
        return;
    setting_ = setting;
    Q_EMIT rangesChanged(setting);
}

void RangeField::judge()
{
    const bool isUsed = range_->isChecked();
    const PageRanges read = readPageRanges(text_->text(), pageCount_);
    const QString said = isUsed ? remarkOn(read, pageCount_) : QString();
    if (remark_->text() != said) {
        remark_->setText(said);
        remark_->setVisible(!said.isEmpty());
        Q_EMIT remarkChanged();
    }
    text_->setAccessibleDescription(said);
    const QString problem = isUsed && !read.isValid() ? said : QString();
    if (std::exchange(problem_, problem) != problem)
        Q_EMIT problemChanged(problem);
}

} // namespace dialog
