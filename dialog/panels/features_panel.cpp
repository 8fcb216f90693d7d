#include "dialog/panels/features_panel.h"

#include "dialog/choice_words.h"
#include "dialog/host/dialog_host.h"
#include "dialog/panels/feature_control.h"
#include "dialog/printers/ppd_document.h"
#include "dialog/settings/setting_words.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace dialog {
namespace {

enum Column { MarkerColumn, LabelColumn, ControlColumn };

// More are scrolled to.
constexpr int kLinesInSight = 22;

QLabel *plainLabel(const QString &text)
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setText(text);
    return label;
}

QLabel *headingLabel(const QString &text)
{
    QLabel *label = plainLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

int countOptions(const OptionGroups &groups)
{
    int count = 0;
    for (const OptionGroup &group : groups)
        count += static_cast<int>(group.options.size());
    return count;
}

/// Last comes what nobody can change here.
void putInstallableLast(OptionGroups &groups)
{
    std::stable_partition(groups.begin(), groups.end(),
                          [](const OptionGroup &group) { return group.kind == GroupKind::Usual; });
}

} // namespace

FeaturesPanel::FeaturesPanel(PpdDocument &printer, DialogHost &host, const QStringList &claimed)
    : printer_(printer), host_(host), groups_(unclaimedGroups(printer.groups(), claimed))
{
    setObjectName(QStringLiteral("featuresPanel"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    putInstallableLast(groups_);
}

QString FeaturesPanel::title() const
{
    return tr("Printer Features");
}

QString FeaturesPanel::kind() const
{
    return QStringLiteral("features");
}

void FeaturesPanel::build()
{
    makeFilter();
    nothingFound_ = plainLabel(tr("No feature matches."));
    nothingFound_->setObjectName(QStringLiteral("noFeatureMatches"));
    nothingFound_->hide();
    scroll_ = new QScrollArea(this);
    scroll_->setObjectName(QStringLiteral("featureList"));
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(true);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setFocusPolicy(Qt::NoFocus);
    QWidget *contents = makeContents();
    scroll_->setWidget(contents);
    scroll_->setMinimumWidth(contents->minimumSizeHint().width() +
                             scroll_->verticalScrollBar()->sizeHint().width());
    const int most = kLinesInSight * fontMetrics().lineSpacing();
    scroll_->setMinimumHeight(std::min(contents->sizeHint().height(), most));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(filter_);
    column->addWidget(nothingFound_);
    column->addWidget(scroll_, 1);
}

void FeaturesPanel::makeFilter()
{
    filter_ = new QLineEdit(this);
    filter_->setObjectName(QStringLiteral("featureFilter"));
    filter_->setPlaceholderText(tr("Find a feature"));
    filter_->setAccessibleName(tr("Find a feature"));
    filter_->setClearButtonEnabled(true);
    filter_->setVisible(countOptions(groups_) > kFew);
    connect(filter_, &QLineEdit::textChanged, this, &FeaturesPanel::filter);
}

QWidget *FeaturesPanel::makeContents()
{
    auto *contents = new QWidget;
    auto *grid = new QGridLayout(contents);
    grid->setContentsMargins({});
    for (const OptionGroup &group : groups_)
        addSection(group, *grid);
    grid->setColumnStretch(LabelColumn, 1);
    grid->setColumnStretch(ControlColumn, 2);
    grid->setRowStretch(grid->rowCount(), 1);
    return contents;
}

void FeaturesPanel::addSection(const OptionGroup &group, QGridLayout &grid)
{
    std::vector<QWidget *> headings{headingLabel(groupTitle(group))};
    if (group.kind == GroupKind::Installable)
        headings.push_back(plainLabel(tr("Whoever administers the printer sets these.")));
    for (QWidget *heading : headings)
        grid.addWidget(heading, grid.rowCount(), MarkerColumn, 1, -1);
    headings_.push_back(headings);
    for (const PrinterOption &option : group.options)
        addRow(option, group.kind, grid);
}

void FeaturesPanel::addRow(const PrinterOption &option, GroupKind kind, QGridLayout &grid)
{
    FeatureControl *control = FeatureControl::make(option, [this](const Choices &inTheWay) {
                                  return reasonWords(printer_, inTheWay);
                              }).release();
    const int line = grid.rowCount();
    Row row{control, plainLabel({}), nullptr, headings_.size() - 1};
    row.marker->setObjectName(QStringLiteral("changed:") + option.keyword);
    grid.addWidget(row.marker, line, MarkerColumn, Qt::AlignTop);
    grid.addWidget(control, line, ControlColumn);
    const int height = control->buddy()->sizeHint().height(); // text beside text
    row.marker->setMinimumHeight(height);
    if (!control->bearsTitle()) {
        row.label = plainLabel(literalText(option.text));
        row.label->setBuddy(control->buddy());
        row.label->setMinimumHeight(height);
        grid.addWidget(row.label, line, LabelColumn, Qt::AlignTop);
    }
    control->setEnabled(kind == GroupKind::Usual);
    connect(control, &FeatureControl::picked, this, &FeaturesPanel::choose);
    rows_.push_back(row);
}

void FeaturesPanel::choose(const Choice &choice, Switch to)
{
    static_cast<void>(host_.switchChoice(choice, to));
    refresh(); // a refused choice is shown no longer
}

void FeaturesPanel::follow()
{
    const MarkTable marks(printer_.marks());
    for (const Row &row : rows_) {
        const OptionState state = stateOf(row.control->option(), marks, printer_.rules());
        const QString remark = changeRemark(state, row.control->option());
        row.control->showState(state, remark);
        showMarker(row, remark);
    }
}

QString FeaturesPanel::changeRemark(const OptionState &state, const PrinterOption &option) const
{
    if (state.isDefault)
        return {};
    return tr("Changed from the default “%1”")
        .arg(choicesText(printer_, {option.keyword, option.defaults.join(u',')}));
}

void FeaturesPanel::showMarker(const Row &row, const QString &remark)
{
    row.marker->setText(remark.isNull() ? QString() : QStringLiteral("•"));
    row.marker->setToolTip(remark);
    row.marker->setAccessibleName(remark);
}

void FeaturesPanel::filter(const QString &text)
{
    std::vector<bool> isSectionShown(headings_.size(), false);
    for (const Row &row : rows_) {
        const bool isShown = row.control->isAbout(text.trimmed());
        row.control->setVisible(isShown);
        row.marker->setVisible(isShown);
        if (row.label)
            row.label->setVisible(isShown);
        isSectionShown[row.section] = isSectionShown[row.section] || isShown;
    }
    bool isAnyShown = false;
    for (std::size_t i = 0; i < headings_.size(); ++i) {
        for (QWidget *heading : headings_[i])
            heading->setVisible(isSectionShown[i]);
        isAnyShown = isAnyShown || isSectionShown[i];
    }
    nothingFound_->setVisible(!isAnyShown);
}

} // namespace dialog
