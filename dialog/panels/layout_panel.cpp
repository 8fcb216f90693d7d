#include "dialog/panels/layout_panel.h"

#include "dialog/panels/layout_order_icon.h"
#include "dialog/settings/list_pop_up.h"
#include "platform/controls/pop_up_button.h"
#include "platform/values.h"

#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>

#include <algorithm>

namespace dialog {
namespace {

// From this system on, the job's setting is where mirror lives; before, it is a panel's own box.
constexpr int kMirrorOfTheJob = 0x1060;

bool isMirrorTheJobs()
{
    return platform::systemVersion() >= kMirrorOfTheJob;
}

/// The order of a layout that says nothing.
const QString kUsualOrder = QStringLiteral("lrtb");

} // namespace

LayoutPanel::LayoutPanel(const platform::PrintSettings &settings, QWidget *parent)
    : OwnPanel(parent), settings_(settings)
{
    setObjectName(QStringLiteral("layoutPanel"));
}

void LayoutPanel::build()
{
    rows_ = {
        makeRow(JobList::PagesPerSheet, QStringLiteral("pagesPerSheet"), tr("Pages per sheet:"),
                tr("How many pages share a side of the paper")),
        makeRow(JobList::LayoutOrder, QStringLiteral("layoutOrder"), tr("Layout order:"),
                tr("In which order they lie there")),
        makeRow(JobList::Border, QStringLiteral("pageBorder"), tr("Border:"),
                tr("A line around each page")),
        makeRow(JobList::Scaling, QStringLiteral("scaling"), tr("Scaling:"),
                tr("How large the pages are on the paper")),
    };
    auto *form = new QFormLayout(this);
    form->setContentsMargins({});
    for (const Row &row : rows_)
        form->addRow(row.label, row.popUp);
    makeFlip();
    form->addRow(QString(), flip_);
    form->addRow(flipReason_);
    drawOrders();
}

QString LayoutPanel::title() const
{
    return tr("Layout");
}

QString LayoutPanel::kind() const
{
    return QStringLiteral("layout");
}

LayoutPanel::Row LayoutPanel::makeRow(JobList list, const QString &name, const QString &label,
                                      const QString &toolTip)
{
    const Row row{list, new QLabel(label), new PopUpButton};
    row.label->setTextFormat(Qt::PlainText);
    row.label->setBuddy(row.popUp);
    row.popUp->setObjectName(name);
    row.popUp->setToolTip(toolTip);
    row.popUp->setAccessibleName(label.chopped(1));
    fillPopUp(row.popUp, list);
    connect(row.popUp, &PopUpButton::activated, this,
            [this, list](int item) { Q_EMIT settingsChanged(jobListChanges(list, item)); });
    return row;
}

void LayoutPanel::makeFlip()
{
    flip_ = new QCheckBox(tr("Flip horizontally"));
    flipReason_ = new QLabel;
    flip_->setObjectName(QStringLiteral("flipHorizontally"));
    flip_->setToolTip(tr("Prints every page as in a mirror"));
    flip_->setEnabled(isMirrorTheJobs());
    flipReason_->setObjectName(QStringLiteral("flipReason"));
    flipReason_->setTextFormat(Qt::PlainText);
    flipReason_->setWordWrap(true);
    flipReason_->setText(tr("On this system the printer's own panel mirrors the pages."));
    flipReason_->setVisible(!isMirrorTheJobs());
    connect(flip_, &QCheckBox::clicked, this, [this](bool isOn) {
        Q_EMIT settingsChanged(flipChanges(isOn ? OnOff::On : OnOff::Off));
    });
}

const LayoutPanel::Row &LayoutPanel::rowOf(JobList list) const
{
    return *std::find_if(rows_.begin(), rows_.end(),
                         [&](const Row &row) { return row.list == list; });
}

void LayoutPanel::drawOrders()
{
    PopUpButton *orders = rowOf(JobList::LayoutOrder).popUp;
    for (int i = 0; i < orders->count(); ++i) {
        const QString order = orders->itemData(i).toString();
        orders->setItemIcon(i, layoutOrderIcon(order.isEmpty() ? kUsualOrder : order, palette()));
    }
}

void LayoutPanel::follow()
{
    const PrintSettingsMap &settings = settings_.all();
    for (const Row &row : rows_)
        showSetting(row.popUp, row.list, settings);
    const Row &order = rowOf(JobList::LayoutOrder);
    const bool sharesSheet = jobListIndex(JobList::PagesPerSheet, settings) != 0;
    order.popUp->setEnabled(sharesSheet);
    order.label->setEnabled(sharesSheet);
    flip_->setChecked(isFlipped(settings));
}

void LayoutPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isBuilt())
        drawOrders();
}

} // namespace dialog
