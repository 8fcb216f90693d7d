#include "dialog/panels/summary_panel.h"

#include "dialog/host/dialog_host.h"
#include "dialog/panel_stack.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace dialog {
namespace {

// Enough for the settings of one panel; more are scrolled to.
constexpr int kRowsInSight = 12;
// Between settings and values, in average characters.
constexpr int kGap = 2;

void mark(QTreeWidgetItem *item, const SummaryRow &row)
{
    const QString words = standingText(row.standing);
    if (words.isNull())
        return;
    QFont font = item->treeWidget()->font();
    font.setBold(true);
    font.setStrikeOut(row.standing == Standing::Replaced);
    item->setFont(1, font);
    item->setToolTip(1, words);
    item->setData(1, Qt::AccessibleTextRole, QStringLiteral("%1 (%2)").arg(row.value, words));
}

void addSection(QTreeWidget *rows, const SummarySection &section)
{
    auto *title = new QTreeWidgetItem(rows, {section.title});
    title->setFirstColumnSpanned(true);
    QFont font = rows->font();
    font.setBold(true);
    title->setFont(0, font);
    for (const SummaryRow &row : section.rows)
        mark(new QTreeWidgetItem(title, {row.title, row.value}), row);
    title->setExpanded(true);
}

QLabel *nothingLabel(QWidget *parent)
{
    auto *label = new QLabel(SummaryPanel::tr("No setting matches."), parent);
    label->setObjectName(QStringLiteral("summaryNothing"));
    label->setTextFormat(Qt::PlainText);
    label->hide();
    return label;
}

} // namespace

SummaryPanel::SummaryPanel(PanelStack &panels, DialogHost &host, SummarySources sources,
                           QWidget *parent)
    : OwnPanel(parent), panels_(panels), host_(host), sources_(std::move(sources))
{
    setObjectName(QStringLiteral("summaryView"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void SummaryPanel::build()
{
    find_ = new QLineEdit(this);
    rows_ = new QTreeWidget(this);
    nothing_ = nothingLabel(this);
    rows_->setObjectName(QStringLiteral("summaryRows"));
    rows_->setAccessibleName(title());
    rows_->setColumnCount(2);
    rows_->setHeaderHidden(true);
    rows_->setRootIsDecorated(false);
    rows_->setUniformRowHeights(true);
    rows_->setMinimumHeight(kRowsInSight * rows_->fontMetrics().height());
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(makeSearchRow());
    column->addWidget(nothing_);
    column->addWidget(rows_, 1);
    makeShortcuts();
}

QWidget *SummaryPanel::makeSearchRow()
{
    auto *place = new QWidget(this);
    find_->setObjectName(QStringLiteral("summaryFind"));
    find_->setPlaceholderText(tr("Find a setting"));
    find_->setAccessibleName(tr("Find a setting"));
    find_->setClearButtonEnabled(true);
    auto *copyButton = new QPushButton(tr("Copy as Text"), place);
    copyButton->setObjectName(QStringLiteral("summaryCopyButton"));
    copyButton->setAutoDefault(false);
    auto *row = new QHBoxLayout(place);
    row->setContentsMargins({});
    row->addWidget(find_, 1);
    row->addWidget(copyButton);
    setTabOrder(copyButton, rows_);
    connect(find_, &QLineEdit::textChanged, this, &SummaryPanel::showRows);
    connect(copyButton, &QPushButton::clicked, this, &SummaryPanel::copy);
    return place;
}

/// Escape leaves the dialog only when there is nothing more to find.
void SummaryPanel::makeShortcuts()
{
    auto *find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, find_, [this] {
        find_->setFocus(Qt::ShortcutFocusReason);
        find_->selectAll();
    });
    auto *copyRows = new QShortcut(QKeySequence::Copy, rows_);
    copyRows->setContext(Qt::WidgetShortcut);
    connect(copyRows, &QShortcut::activated, this, &SummaryPanel::copy);
    auto *clear = new QShortcut(Qt::Key_Escape, find_);
    clear->setContext(Qt::WidgetShortcut);
    clear->setEnabled(false);
    connect(clear, &QShortcut::activated, find_, &QLineEdit::clear);
    connect(find_, &QLineEdit::textChanged, clear,
            [clear](const QString &typed) { clear->setEnabled(!typed.isEmpty()); });
}

void SummaryPanel::follow()
{
    if (!groups_)
        groups_ = sources_.groups();
    show(summaryOf(panelSummaries(), *groups_, sources_.job()));
}

std::vector<PanelSummary> SummaryPanel::panelSummaries() const
{
    std::vector<PanelSummary> summaries;
    for (const LoadedPanel &entry : panels_.loaded())
        host_.callPanel(entry.panel.get(), [&](PDEPanel &panel) {
            summaries.push_back({entry.title, panel.summaryInfo(), panel.supportedPPDOptionKeys()});
        });
    return summaries;
}

void SummaryPanel::show(const Summary &summary)
{
    if (summary == summary_)
        return;
    summary_ = summary;
    showRows();
}

Summary SummaryPanel::shownRows() const
{
    return matchingRows(summary_, find_->text());
}

void SummaryPanel::showRows()
{
    const int place = rows_->verticalScrollBar()->value();
    rows_->clear();
    for (const SummarySection &section : shownRows())
        addSection(rows_, section);
    rows_->resizeColumnToContents(0);
    rows_->setColumnWidth(0,
                          rows_->columnWidth(0) + kGap * rows_->fontMetrics().averageCharWidth());
    rows_->verticalScrollBar()->setValue(place);
    nothing_->setVisible(rows_->topLevelItemCount() == 0);
}

void SummaryPanel::copy() const
{
    QGuiApplication::clipboard()->setText(plainText(shownRows()));
}

} // namespace dialog
