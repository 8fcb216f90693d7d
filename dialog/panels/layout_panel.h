#pragma once

#include "dialog/panels/own_panel.h"
#include "dialog/settings/job_settings.h"
#include "platform/print_objects.h"

class PopUpButton;
class QCheckBox;
class QLabel;

namespace dialog {

/// How pages lie on the sheet: pages per sheet, their order and border, scaling, and the job's
/// mirror setting.
class LayoutPanel : public OwnPanel
{
    Q_OBJECT

public:
    /// Borrows the settings, which it shows and does not change itself.
    explicit LayoutPanel(const platform::PrintSettings &settings, QWidget *parent = nullptr);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString kind() const override;

Q_SIGNALS:
    /// By a person.
    void settingsChanged(const dialog::SettingChanges &changes);

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Row
    {
        JobList list;
        QLabel *label;
        PopUpButton *popUp;
    };

    void build() override;
    void follow() override;
    Row makeRow(JobList list, const QString &name, const QString &label, const QString &toolTip);
    void makeFlip();
    void drawOrders();

    [[nodiscard]] const Row &rowOf(JobList list) const;

    const platform::PrintSettings &settings_;
    std::vector<Row> rows_;
    QCheckBox *flip_ = nullptr; ///< null, as all, until the controls are made
    QLabel *flipReason_ = nullptr;
};

} // namespace dialog
