#pragma once

#include "dialog/panels/own_panel.h"
#include "dialog/panels/summary.h"

#include <functional>
#include <optional>

class QLabel;
class QLineEdit;
class QTreeWidget;

namespace dialog {

class DialogHost;
class PanelStack;

/// What a summary tells of, beside the panels.
struct SummarySources
{
    std::function<OptionGroups()> groups; ///< of the printer; asked once
    std::function<JobSettings()> job;     ///< as a job would be made now
};

/// The summary of all that is set, for reading, finding and copying: a section for each panel, a
/// row for each setting. What differs from the default is bold, and says so to a screen reader.
class SummaryPanel : public OwnPanel
{
    Q_OBJECT

public:
    /// Borrows the panels, of which it tells.
    SummaryPanel(PanelStack &panels, DialogHost &host, SummarySources sources,
                 QWidget *parent = nullptr);

    [[nodiscard]] QString title() const override { return tr("Summary"); }
    [[nodiscard]] QString kind() const override { return QStringLiteral("summary"); }

    /// Replaces what is shown; what was typed to find stays.
    void show(const Summary &summary);
    using QWidget::show;

private:
    void build() override;
    void follow() override;
    [[nodiscard]] QWidget *makeSearchRow();
    void makeShortcuts();
    [[nodiscard]] std::vector<PanelSummary> panelSummaries() const;
    [[nodiscard]] Summary shownRows() const;
    void showRows();
    void copy() const;

    PanelStack &panels_;
    DialogHost &host_;
    SummarySources sources_;
    std::optional<OptionGroups> groups_;
    Summary summary_;
    QLineEdit *find_ = nullptr; ///< null, as all, until the controls are made
    QTreeWidget *rows_ = nullptr;
    QLabel *nothing_ = nullptr; ///< shown when nothing matches
};

} // namespace dialog
