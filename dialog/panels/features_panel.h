#pragma once

#include "dialog/panels/own_panel.h"
#include "dialog/printers/option_state.h"

#include <vector>

class QGridLayout;
class QLabel;
class QLineEdit;
class QScrollArea;

namespace dialog {

class DialogHost;
class FeatureControl;
class PpdDocument;

/// Printer Features: every option of the PPD that no panel and no other part of the window shows,
/// by the PPD's groups. What is built into the printer stands apart and cannot be changed here.
///
/// The controls are made when the panel is first shown. An option's control is named
/// "feature:KEYWORD"; of an option where several choices can stand, each choice has a check box
/// "feature:KEYWORD=CHOICE".
class FeaturesPanel : public OwnPanel
{
    Q_OBJECT

public:
    /// More options than this get a field to find them.
    static constexpr int kFew = 12;

    /// Borrows printer and host. @p claimed are the options that are shown elsewhere.
    FeaturesPanel(PpdDocument &printer, DialogHost &host, const QStringList &claimed);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString kind() const override;
    /// Whether there is anything to show.
    [[nodiscard]] bool isEmpty() const { return groups_.empty(); }

private:
    struct Row
    {
        FeatureControl *control;
        QLabel *marker; ///< tells a change from the default
        QLabel *label;  ///< null where the control bears the title
        std::size_t section;
    };

    void build() override;
    void follow() override;
    void makeFilter();
    [[nodiscard]] QWidget *makeContents();
    void addSection(const OptionGroup &group, QGridLayout &grid);
    void addRow(const PrinterOption &option, GroupKind kind, QGridLayout &grid);
    [[nodiscard]] QString changeRemark(const OptionState &state, const PrinterOption &option) const;
    static void showMarker(const Row &row, const QString &remark);
    void choose(const Choice &choice, Switch to);
    void filter(const QString &text);

    PpdDocument &printer_;
    DialogHost &host_;
    OptionGroups groups_;
    QLineEdit *filter_ = nullptr;
    QScrollArea *scroll_ = nullptr; ///< null until the controls are made
    QLabel *nothingFound_ = nullptr;
    std::vector<std::vector<QWidget *>> headings_; ///< by section
    std::vector<Row> rows_;
};

} // namespace dialog
