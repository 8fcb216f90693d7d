#include "dialog/settings/range_field.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <utility>

namespace dialog {
namespace {

/// With a blank after each comma.
QString readable(const QString &ranges)
{
    return QString(ranges).replace(u',', QStringLiteral(", "));
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
        text_->setText(readable(ranges));
    judge();
}

void RangeField::setPageCount(std::optional<int> count)
{
    pageCount_ = count;
    judge();
}

void RangeField::setPagesPerSheet(int pages)
{
    if (std::exchange(pagesPerSheet_, pages) != pages)
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
    const PageRanges read = readText();
    const QString setting = pageRangesSetting(read.ranges);
    if (!read.isValid() || (setting == setting_ && !setting_.isNull()))
        return;
    setting_ = setting;
    Q_EMIT rangesChanged(setting);
}

PageRanges RangeField::readText() const
{
    const auto sides = [&](int pages) { return (pages + pagesPerSheet_ - 1) / pagesPerSheet_; };
    return readPageRanges(text_->text(),
                          pageCount_ ? std::optional(sides(*pageCount_)) : std::nullopt);
}

/// A problem, or what the numbers come to where that is not what they say.
QString RangeField::remarkOn(const PageRanges &read) const
{
    if (pagesPerSheet_ > 1 && read.problem == RangeProblem::BehindEnd)
        return tr("“%1”: with %2 pages per sheet the numbers count printed sides, and there are "
                  "fewer.")
            .arg(read.part, QString::number(pagesPerSheet_));
    if (!read.isValid())
        return rangeProblemText(read, pageCount_);
    if (pagesPerSheet_ > 1)
        return tr("With %1 pages per sheet the numbers count printed sides: these have the pages "
                  "%2 of the document.")
            .arg(
                QString::number(pagesPerSheet_),
                readable(pageRangesSetting(pagesOnSides(read.ranges, pagesPerSheet_, pageCount_))));
    return read.isCut ? tr("The document has %n page(s): it is printed up to its end.", nullptr,
                           *pageCount_)
                      : QString();
}

void RangeField::judge()
{
    const bool isUsed = range_->isChecked();
    const PageRanges read = readText();
    const QString said = isUsed ? remarkOn(read) : QString();
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
