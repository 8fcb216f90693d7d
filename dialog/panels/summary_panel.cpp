#include "dialog/panels/summary_panel.h"

#include "dialog/host/dialog_host.h"
#include "dialog/panel_stack.h"

#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace dialog {
namespace {

// Enough for the settings of one panel; more are scrolled to.
constexpr int kRowsInSight = 12;

void addSection(QTreeWidget *rows, const SummarySection &section)
{
    auto *title = new QTreeWidgetItem(rows, {section.title});
    title->setFirstColumnSpanned(true);
    QFont font = rows->font();
    font.setBold(true);
    title->setFont(0, font);
    for (const auto &[setting, value] : section.entries)
        new QTreeWidgetItem(title, {setting, value});
    title->setExpanded(true);
}

} // namespace

SummaryPanel::SummaryPanel(PanelStack &panels, DialogHost &host, QWidget *parent)
    : OwnPanel(parent), panels_(panels), host_(host), rows_(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("summaryView"));
    rows_->setObjectName(QStringLiteral("summaryRows"));
    rows_->setAccessibleName(title());
    rows_->setColumnCount(2);
    rows_->setHeaderHidden(true);
    rows_->setRootIsDecorated(false);
    rows_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(rows_);
}

void SummaryPanel::refresh()
{
    std::vector<SummarySection> sections;
    for (const LoadedPanel &entry : panels_.loaded())
        host_.callPanel(entry.panel.get(), [&](PDEPanel &panel) {
            sections.push_back({entry.title, panel.summaryInfo()});
        });
    show(sections);
}

void SummaryPanel::show(const std::vector<SummarySection> &sections)
{
    rows_->clear();
    for (const SummarySection &section : sections)
        addSection(rows_, section);
    const int rowHeight = rows_->sizeHintForRow(0);
    rows_->setMinimumHeight(kRowsInSight * std::max(rowHeight, rows_->fontMetrics().height()));
}

} // namespace dialog
