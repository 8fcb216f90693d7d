#pragma once

#include "platform/panel_protocol.h"

#include <QString>
#include <QWidget>

#include <vector>

class QTreeWidget;

namespace dialog {

/// What one panel says of its settings.
struct SummarySection
{
    QString title;
    SummaryInfo entries;
};

/// The summary of all panels: a section for each, a row for each of its entries. For reading only.
class SummaryView : public QWidget
{
    Q_OBJECT

public:
    explicit SummaryView(QWidget *parent = nullptr);

    /// Replaces what is shown.
    void show(const std::vector<SummarySection> &sections);
    using QWidget::show;

private:
    QTreeWidget *rows_;
};

} // namespace dialog
