#include "dialog/settings/general_view.h"

#include "dialog/settings/list_pop_up.h"
#include "dialog/settings/range_field.h"
#include "platform/controls/pop_up_button.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QWheelEvent>

namespace dialog {
namespace {

/// Like a pop-up, it leaves the wheel to what scrolls while it has no focus.
class CopiesBox : public QSpinBox
{
public:
    explicit CopiesBox(QWidget *parent) : QSpinBox(parent)
    {
        setRange(1, kMostCopies);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        if (hasFocus())
            QSpinBox::wheelEvent(event);
        else
            event->ignore();
    }
};

QLabel *labelFor(QWidget *control, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(control);
    control->setAccessibleName(text.endsWith(u':') ? text.chopped(1) : text);
    return label;
}

OnOff onOff(bool isOn)
{
    return isOn ? OnOff::On : OnOff::Off;
}

} // namespace

GeneralView::GeneralView(QWidget *parent)
    : QWidget(parent), copies_(new CopiesBox(this)), collate_(new QCheckBox(tr("Collate"), this)),
      reverse_(new QCheckBox(tr("Reverse order"), this)), pages_(new RangeField(this)),
      pageSet_(new PopUpButton(this)), orientation_(new PopUpButton(this)),
      paper_(new PopUpButton(this)), sides_(new PopUpButton(this))
{
    makeControls();
    arrange();
    connectControls();
    show(GeneralState());
}

void GeneralView::makeControls()
{
    copies_->setObjectName(QStringLiteral("copies"));
    copies_->setToolTip(tr("How often the document is printed"));
    collate_->setObjectName(QStringLiteral("collate"));
    collate_->setToolTip(tr("Prints one whole copy after the other"));
    reverse_->setObjectName(QStringLiteral("reverse"));
    reverse_->setToolTip(tr("Prints the last page first"));
    pageSet_->setObjectName(QStringLiteral("pageSet"));
    pageSet_->setToolTip(tr("Which of these pages are printed"));
    fillPopUp(pageSet_, JobList::PageSet);
    paper_->setObjectName(QStringLiteral("paperSize"));
    orientation_->setObjectName(QStringLiteral("orientation"));
    orientation_->setToolTip(tr("How the pages lie on the paper"));
    fillPopUp(orientation_, JobList::Orientation);
    paper_->setToolTip(tr("The paper in the printer"));
    sides_->setObjectName(QStringLiteral("twoSided"));
    sides_->setToolTip(tr("Whether the paper is printed on both sides"));
}

/// Two settings in a row, so that the section stays low.
void GeneralView::arrange()
{
    auto *boxes = new QHBoxLayout;
    boxes->addWidget(copies_);
    boxes->addWidget(collate_);
    boxes->addWidget(reverse_);
    boxes->addStretch(1);
    paperLabel_ = labelFor(paper_, tr("Paper size:"), this);
    sidesLabel_ = labelFor(sides_, tr("Two-sided:"), this);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->addWidget(labelFor(copies_, tr("Copies:"), this), 0, 0);
    grid->addLayout(boxes, 0, 1, 1, 3);
    grid->addWidget(new QLabel(tr("Pages:"), this), 1, 0);
    grid->addWidget(pages_, 1, 1, 1, 3);
    grid->addWidget(pages_->remark(), 2, 1, 1, 3);
    grid->addWidget(labelFor(pageSet_, tr("Odd or even:"), this), 3, 0);
    grid->addWidget(pageSet_, 3, 1);
    grid->addWidget(labelFor(orientation_, tr("Orientation:"), this), 3, 2);
    grid->addWidget(orientation_, 3, 3);
    grid->addWidget(paperLabel_, 4, 0);
    grid->addWidget(paper_, 4, 1);
    grid->addWidget(sidesLabel_, 4, 2);
    grid->addWidget(sides_, 4, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
}

void GeneralView::connectControls()
{
    connect(copies_, &QSpinBox::valueChanged, this,
            [this](int copies) { tell(copiesChanges(copies, state_.settings)); });
    connect(collate_, &QCheckBox::clicked, this,
            [this](bool isOn) { tell(collateChanges(onOff(isOn))); });
    connect(reverse_, &QCheckBox::clicked, this,
            [this](bool isOn) { tell(reverseChanges(onOff(isOn))); });
    connect(pages_, &RangeField::rangesChanged, this,
            [this](const QString &ranges) { tell(pageRangesChanges(ranges)); });
    connect(pages_, &RangeField::problemChanged, this, &GeneralView::problemChanged);
    connect(pages_, &RangeField::remarkChanged, this, &GeneralView::heightChanged);
    connect(pageSet_, &PopUpButton::activated, this,
            [this](int item) { tell(jobListChanges(JobList::PageSet, item)); });
    connect(orientation_, &PopUpButton::activated, this,
            [this](int item) { tell(jobListChanges(JobList::Orientation, item)); });
    connect(paper_, &PopUpButton::activated, this,
            [this](int item) { pickFrom(state_.paper, item); });
    connect(sides_, &PopUpButton::activated, this,
            [this](int item) { pickFrom(state_.sides, item); });
}

/// The next change may come before the state that this one leads to.
void GeneralView::tell(const SettingChanges &changes)
{
    for (const auto &[key, value] : changes) {
        if (value.isValid())
            state_.settings[key] = value;
        else
            state_.settings.erase(key);
    }
    Q_EMIT settingsChanged(changes);
}

void GeneralView::pickFrom(const PrinterList &list, int index)
{
    const PrinterList::Item item = list.items[static_cast<std::size_t>(index)];
    if (list.option.isNull())
        tell({{list.key, item.value.isNull() ? QVariant() : QVariant(item.value)}});
    else
        Q_EMIT chosen({list.option, item.value});
}

void GeneralView::show(const GeneralState &state)
{
    state_ = state;
    const QSignalBlocker blocker(copies_);
    if (copies_->value() != copiesOf(state.settings))
        copies_->setValue(copiesOf(state.settings));
    collate_->setChecked(isCollated(state.settings));
    collate_->setEnabled(copiesOf(state.settings) > 1);
    reverse_->setChecked(isReversed(state.settings));
    pages_->show(pageRangesOf(state.settings));
    pages_->setPagesPerSheet(pagesPerSheetOf(state.settings));
    showSetting(pageSet_, JobList::PageSet, state.settings);
    showSetting(orientation_, JobList::Orientation, state.settings);
    showList(paper_, state.paper);
    showList(sides_, state.sides);
    paper_->setVisible(!state.paper.isEmpty());
    paperLabel_->setVisible(!state.paper.isEmpty());
    sides_->setVisible(!state.sides.isEmpty());
    sidesLabel_->setVisible(!state.sides.isEmpty());
}

void GeneralView::reset(const GeneralState &state)
{
    pages_->reset(pageRangesOf(state.settings));
    show(state);
}

void GeneralView::setPageCount(int pages)
{
    pages_->setPageCount(pages > 0 ? std::optional(pages) : std::nullopt);
}

QString GeneralView::problem() const
{
    return pages_->problem();
}

} // namespace dialog
