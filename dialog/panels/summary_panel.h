#pragma once

#include "dialog/panels/own_panel.h"
#include "platform/panel_protocol.h"

#include <QString>

#include <vector>

class QTreeWidget;

namespace dialog {

class DialogHost;
class PanelStack;

/// What one panel says of its settings.
struct SummarySection
{
    QString title;
    SummaryInfo entries;
};

/// The summary of all panels: a section for each, a row for each of its entries. For reading only.
class SummaryPanel : public OwnPanel
{
    Q_OBJECT

public:
    /// Borrows the panels, of which it tells.
    SummaryPanel(PanelStack &panels, DialogHost &host, QWidget *parent = nullptr);

    [[nodiscard]] QString title() const override { return tr("Summary"); }
    [[nodiscard]] QString kind() const override { return QStringLiteral("summary"); }
    void refresh() override;

    /// Replaces what is shown.
    void show(const std::vector<SummarySection> &sections);
    using QWidget::show;

private:
    PanelStack &panels_;
    DialogHost &host_;
    QTreeWidget *rows_;
};

} // namespace dialog
