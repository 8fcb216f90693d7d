#include "dialog/replay/snapshot.h"

#include "dialog/jobs/ticket.h"
#include "dialog/preview/sheet_view.h"
#include "dialog/print_dialog.h"
#include "dialog/window/notice_area.h"
#include "dialog/window/print_window.h"
#include "platform/controls/controls.h"
#include "platform/controls/pop_up_button.h"
#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTreeWidget>

#include <algorithm>

namespace dialog::replay {
namespace {

const QString kOutletPrefix = QStringLiteral("ib");

bool isOutlet(const QWidget *widget)
{
    return widget->objectName().startsWith(kOutletPrefix);
}

/// Each with its text and keyword, and one that cannot be had with the reason.
QJsonArray itemsOf(const QComboBox *popUp)
{
    QJsonArray items;
    for (int i = 0; i < popUp->count(); ++i) {
        QJsonArray item{popUp->itemText(i), textJson(popUp->itemData(i).toString())};
        const QVariant reason = popUp->itemData(i, Qt::AccessibleDescriptionRole);
        if (reason.isValid() && !popUp->itemText(i).isEmpty()) // separators have one of their own
            item.append(reason.toString());
        items.append(item);
    }
    return items;
}

/// As a screen reader says it.
QJsonArray rowOf(const QTreeWidgetItem *item)
{
    QJsonArray row;
    for (int column = 0; column < item->columnCount(); ++column) {
        const QVariant said = item->data(column, Qt::AccessibleTextRole);
        row.append(said.isValid() ? said.toString() : item->text(column));
    }
    return row;
}

/// A section with rows is a row of its own, of one text.
QJsonArray rowsOf(const QTreeWidget *list)
{
    QJsonArray rows;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *section = list->topLevelItem(i);
        rows.append(section->childCount() > 0 ? QJsonArray{section->text(0)} : rowOf(section));
        for (int child = 0; child < section->childCount(); ++child)
            rows.append(rowOf(section->child(child)));
    }
    return rows;
}

/// The zoom in percent of the paper's size; null when the whole sheet is shown.
QJsonValue zoomJson(std::optional<double> zoom)
{
    return zoom ? QJsonValue(qRound(*zoom * 100)) : QJsonValue(QJsonValue::Null);
}

QJsonObject contentOf(const QWidget *control)
{
    if (const auto *sheet = qobject_cast<const SheetView *>(control))
        return {{QStringLiteral("zoom"), zoomJson(sheet->zoom())}};
    if (const auto *list = qobject_cast<const QTreeWidget *>(control))
        return {{QStringLiteral("rows"), rowsOf(list)}};
    if (const auto *stepper = qobject_cast<const Stepper *>(control))
        return {{QStringLiteral("value"), stepper->value()}};
    if (const auto *number = qobject_cast<const QSpinBox *>(control))
        return {{QStringLiteral("value"), number->value()}};
    if (const auto *matrix = qobject_cast<const RadioMatrix *>(control))
        return {{QStringLiteral("row"), matrix->selectedRow()}};
    if (const auto *popUp = qobject_cast<const QComboBox *>(control))
        return {{QStringLiteral("items"), itemsOf(popUp)},
                {QStringLiteral("index"), controls::indexOfSelectedItem(popUp)},
                {QStringLiteral("title"), textJson(controls::titleOfSelectedItem(popUp))}};
    if (const auto *button = qobject_cast<const QAbstractButton *>(control))
        return {{QStringLiteral("state"), controls::state(button)},
                {QStringLiteral("title"), textJson(controls::title(button))}};
    if (const auto *label = qobject_cast<const QLabel *>(control))
        return {{QStringLiteral("text"), textJson(controls::text(label))}};
    if (const auto *field = qobject_cast<const QLineEdit *>(control))
        return {{QStringLiteral("text"), textJson(controls::stringValue(field))}};
    return {};
}

/// A button whose words stand beside it, or that shows a picture.
bool isWithoutWords(const QWidget *control)
{
    const auto *button = qobject_cast<const QAbstractButton *>(control);
    return button && button->text().isEmpty() && !button->accessibleName().isEmpty();
}

QJsonObject controlsOf(const QWidget *view)
{
    QJsonObject states;
    if (!view)
        return states;
    for (const QWidget *control : view->findChildren<QWidget *>()) {
        const QJsonObject state = isOutlet(control) ? controlState(control, view) : QJsonObject();
        if (!state.isEmpty())
            states.insert(control->objectName(), state);
    }
    return states;
}

QJsonArray summaryJson(const SummaryInfo &summary)
{
    QJsonArray entries;
    for (const auto &[title, entryText] : summary)
        entries.append(QJsonArray{textJson(title), textJson(entryText)});
    return entries;
}

QJsonObject panelJson(const LoadedPanel &entry, PDEPanel &panel)
{
    PDEPanelDiagnostics *diagnostics = panel.diagnostics();
    return {
        {QStringLiteral("kind"), textJson(entry.kind)},
        {QStringLiteral("title"), textJson(entry.title)},
        {QStringLiteral("supported"), QJsonArray::fromStringList(panel.supportedPPDOptionKeys())},
        {QStringLiteral("summary"), summaryJson(panel.summaryInfo())},
        {QStringLiteral("model"), diagnostics ? diagnostics->model() : QJsonObject()},
        {QStringLiteral("controls"), controlsOf(entry.view)},
        {QStringLiteral("frames"), diagnostics ? diagnostics->frames() : QJsonObject()}};
}

QJsonArray panelsJson(PrintDialog &dialog)
{
    QJsonArray panels;
    for (const LoadedPanel &entry : dialog.panels().loaded())
        dialog.host().callPanel(entry.panel.get(),
                                [&](PDEPanel &panel) { panels.append(panelJson(entry, panel)); });
    return panels;
}

bool isOfPlugIn(const QWidget *control, const PanelStack &panels)
{
    const std::vector<LoadedPanel> &loaded = panels.loaded();
    return std::any_of(loaded.begin(), loaded.end(), [&](const LoadedPanel &entry) {
        return entry.view && entry.view->isAncestorOf(control);
    });
}

/// Those that a person sees; the window's and those of the own panel in front.
QJsonObject ownControls(const PrintDialog &dialog)
{
    QJsonObject states;
    const PrintWindow *window = dialog.window();
    for (const QWidget *control : window->findChildren<QWidget *>()) {
        if (!isNamed(control) || control->window() != window || !control->isVisibleTo(window) ||
            isOfPlugIn(control, dialog.panels()))
            continue;
        const QJsonObject state = controlState(control, window);
        if (!state.isEmpty())
            states.insert(control->objectName(), state);
    }
    return states;
}

QJsonValue frontTitle(const PrintDialog &dialog)
{
    const int front = dialog.panels().frontIndex();
    return front < 0 ? QJsonValue(QJsonValue::Null) : textJson(dialog.panels().title(front));
}

QJsonValue childOf(const QJsonValue &parent, const QString &token)
{
    if (parent.isObject())
        return parent.toObject().value(token);
    bool isIndex = false;
    const int index = token.toInt(&isIndex);
    if (parent.isArray() && isIndex && index >= 0 && index < parent.toArray().size())
        return parent.toArray().at(index);
    return QJsonValue::Undefined;
}

} // namespace

QJsonObject takeSnapshot(PrintDialog &dialog)
{
    return {{QStringLiteral("front"), frontTitle(dialog)},
            {QStringLiteral("printSettings"), settingsJson(dialog.host().settings().all())},
            {QStringLiteral("marked"), marksJson(dialog.printer().marks())},
            {QStringLiteral("dialog"),
             QJsonObject{{QStringLiteral("controls"), ownControls(dialog)},
                         {QStringLiteral("notices"),
                          QJsonArray::fromStringList(dialog.window()->notices().texts())}}},
            {QStringLiteral("panels"), panelsJson(dialog)}};
}

bool isNamed(const QWidget *control)
{
    return !control->objectName().isEmpty() &&
           !control->objectName().startsWith(QLatin1String("qt_"));
}

QJsonObject controlState(const QWidget *control, const QWidget *view)
{
    QJsonObject state = contentOf(control);
    if (!state.isEmpty()) {
        state.insert(QStringLiteral("visible"), control->isVisibleTo(view));
        state.insert(QStringLiteral("enabled"), control->isEnabled());
        if (!control->accessibleDescription().isEmpty())
            state.insert(QStringLiteral("description"), control->accessibleDescription());
        if (isWithoutWords(control))
            state.insert(QStringLiteral("name"), control->accessibleName());
    }
    return state;
}

QJsonObject windowTexts(const QWidget *window)
{
    QJsonObject texts;
    for (const QWidget *control : window->findChildren<QWidget *>()) {
        if (!isOutlet(control) || !control->isVisibleTo(window))
            continue;
        const QJsonObject content = contentOf(control);
        const QString key = content.contains(QStringLiteral("text")) ? QStringLiteral("text")
                                                                     : QStringLiteral("title");
        if (content.contains(key))
            texts.insert(control->objectName(), content.value(key));
    }
    return texts;
}

QJsonValue valueAt(const QJsonValue &root, const QString &pointer)
{
    QJsonValue value = root;
    const QStringList tokens = pointer.split(u'/').mid(1);
    for (QString token : tokens) {
        token.replace(QStringLiteral("~1"), QStringLiteral("/"));
        token.replace(QStringLiteral("~0"), QStringLiteral("~"));
        value = childOf(value, token);
    }
    return value;
}

QJsonValue expectedValue(const QString &word)
{
    const QByteArray wrapped = '[' + word.toUtf8() + ']';
    const QJsonArray array = QJsonDocument::fromJson(wrapped).array();
    return array.size() == 1 ? array.first() : QJsonValue(word);
}

QString compactJson(const QJsonValue &value)
{
    if (value.isUndefined())
        return QStringLiteral("nothing");
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
}

} // namespace dialog::replay
