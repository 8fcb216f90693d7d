#include "dialog/presets/preset_bar.h"

#include "dialog/presets/preset_messages.h"
#include "platform/controls/pop_up_button.h"
#include "platform/controls/spoken_label.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStyle>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace dialog {
namespace {

constexpr int kMostRowsShown = 6;
/// Index into the entries, of the items that are none.
constexpr int kNoEntry = -1;

/// A heading in a list, which nobody can pick.
void addHeading(PopUpButton *popUp, const QString &title)
{
    popUp->insertSeparator(popUp->count());
    popUp->addItem(title, kNoEntry);
    auto *model = qobject_cast<QStandardItemModel *>(popUp->model());
    model->item(popUp->count() - 1)->setEnabled(false);
}

QLabel *plainLabel(const char *name)
{
    auto *label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton *pushButton(const QString &title, const char *name)
{
    auto *button = new QPushButton(title);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

} // namespace

PresetBar::PresetBar(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("presetBar"));
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(makeChoiceRow());
    rows->addWidget(nameRow_ = makeNameRow());
    rows->addWidget(differencesView_ = makeDifferencesView());
    nameRow_->hide();
    differencesView_->hide();
    setEntries({{}});
}

QWidget *PresetBar::makeChoiceRow()
{
    popUp_ = new PopUpButton;
    popUp_->setObjectName(QStringLiteral("presetPopUp"));
    popUp_->setAccessibleName(tr("Presets"));
    changed_ = plainLabel("presetChanged");
    changed_->setText(tr("(changed)"));
    changed_->setToolTip(tr("The settings are others than those of the preset."));
    changed_->hide();
    auto *choice = new QWidget;
    auto *row = new QHBoxLayout(choice);
    row->setContentsMargins({});
    row->addWidget(popUp_, 1);
    addSpokenLabel(popUp_, tr("Presets"));
    row->addWidget(changed_);
    row->addWidget(makeMenuButton());
    connect(popUp_, &QComboBox::activated, this, &PresetBar::pick);
    return choice;
}

QToolButton *PresetBar::makeMenuButton()
{
    menu_ = new QToolButton;
    menu_->setObjectName(QStringLiteral("presetMenu"));
    menu_->setText(tr("Manage"));
    menu_->setAccessibleName(tr("Manage presets"));
    menu_->setToolTip(tr("Save, change and compare presets"));
    menu_->setPopupMode(QToolButton::InstantPopup);
    menu_->setFocusPolicy(Qt::StrongFocus);
    auto *menu = new QMenu(menu_);
    const auto add = [&](const QString &title, const char *name, auto handler) {
        QAction *action = menu->addAction(title);
        action->setObjectName(QString::fromLatin1(name));
        connect(action, &QAction::triggered, this, handler);
        return action;
    };
    save_ = add(tr("Save As…"), "presetSave", [this] { askForName(NameFor::Saving); });
    update_ = add(tr("Update"), "presetUpdate", [this] { Q_EMIT updateRequested(); });
    rename_ = add(tr("Rename…"), "presetRename", [this] { askForName(NameFor::Renaming); });
    delete_ = add(tr("Delete"), "presetDelete", [this] { Q_EMIT deleteRequested(); });
    menu->addSeparator();
    compare_ =
        add(tr("Compare with Settings"), "presetCompare", [this] { Q_EMIT compareRequested(); });
    menu_->setMenu(menu);
    return menu_;
}

QWidget *PresetBar::makeNameRow()
{
    name_ = new QLineEdit;
    name_->setObjectName(QStringLiteral("presetName"));
    name_->setAccessibleName(tr("Name of the preset"));
    name_->setPlaceholderText(tr("Name of the preset"));
    nameOk_ = pushButton(tr("OK"), "presetNameOk");
    QPushButton *cancel = pushButton(tr("Cancel"), "presetNameCancel");
    nameError_ = plainLabel("presetNameError");
    nameError_->setWordWrap(true);
    auto *naming = new QWidget;
    naming->setAccessibleName(tr("Name of the preset")); // whose Cancel is not the window's
    auto *rows = new QVBoxLayout(naming);
    rows->setContentsMargins({});
    auto *row = new QHBoxLayout;
    row->addWidget(name_, 1);
    row->addWidget(nameOk_);
    row->addWidget(cancel);
    rows->addLayout(row);
    rows->addWidget(nameError_);
    connect(name_, &QLineEdit::textEdited, this, &PresetBar::judgeName);
    connect(nameOk_, &QPushButton::clicked, this, &PresetBar::giveName);
    connect(cancel, &QPushButton::clicked, this, &PresetBar::endNaming);
    return naming;
}

QWidget *PresetBar::makeDifferencesView()
{
    differences_ = new QTreeWidget;
    differences_->setObjectName(QStringLiteral("presetDifferences"));
    differences_->setAccessibleName(tr("Differences from the preset"));
    differences_->setHeaderLabels({tr("Setting"), tr("Now"), tr("In the Preset")});
    differences_->setRootIsDecorated(false);
    differences_->setSelectionMode(QAbstractItemView::NoSelection);
    differences_->setTextElideMode(Qt::ElideRight);
    QPushButton *close = pushButton(tr("Close"), "presetDifferencesClose");
    auto *view = new QWidget;
    auto *rows = new QVBoxLayout(view);
    rows->setContentsMargins({});
    rows->addWidget(differences_);
    rows->addWidget(close, 0, Qt::AlignTrailing);
    connect(close, &QPushButton::clicked, this, &PresetBar::hideDifferences);
    return view;
}

void PresetBar::setEntries(const std::vector<PresetEntry> &entries)
{
    entries_ = entries;
    fillPopUp();
    const bool isThere = std::find(entries_.begin(), entries_.end(), selected_) != entries_.end();
    select(isThere || entries_.empty() ? selected_ : entries_.front());
}

void PresetBar::fillPopUp()
{
    popUp_->clear();
    PresetKind former = PresetKind::Defaults;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const auto &[kind, name] = entries_[i];
        if (kind == PresetKind::Own && former != kind)
            addHeading(popUp_, tr("My Presets"));
        if (kind == PresetKind::Printers && former != kind)
            addHeading(popUp_, tr("Presets of the Printer"));
        former = kind;
        popUp_->addItem(kind == PresetKind::Defaults   ? tr("Default Settings")
                        : kind == PresetKind::LastUsed ? tr("Last Used Settings")
                                                       : name,
                        static_cast<int>(i));
    }
}

void PresetBar::select(const PresetEntry &entry)
{
    selected_ = entry;
    const auto found = std::find(entries_.begin(), entries_.end(), entry);
    popUp_->setCurrentIndex(popUp_->findData(static_cast<int>(found - entries_.begin())));
    allowActions();
}

void PresetBar::setChanged(bool isChanged)
{
    isChanged_ = isChanged;
    changed_->setVisible(isChanged);
    allowActions();
}

void PresetBar::allowActions()
{
    const bool isOwn = selected_.kind == PresetKind::Own;
    update_->setEnabled(isOwn && isChanged_);
    rename_->setEnabled(isOwn);
    delete_->setEnabled(isOwn);
    compare_->setEnabled(isChanged_);
}

void PresetBar::pick(int index)
{
    const int entry = popUp_->itemData(index).toInt();
    endNaming();
    if (entry == kNoEntry || entry >= static_cast<int>(entries_.size()))
        return;
    // A copy: whoever hears of it may set other entries.
    const PresetEntry chosen = entries_[static_cast<std::size_t>(entry)];
    select(chosen);
    Q_EMIT picked(chosen);
}

QStringList PresetBar::takenNames() const
{
    QStringList names;
    for (const PresetEntry &entry : entries_) {
        const bool isItself = purpose_ == NameFor::Renaming && entry == selected_;
        if (entry.kind == PresetKind::Own && !isItself)
            names.append(entry.name);
    }
    return names;
}

void PresetBar::askForName(NameFor purpose)
{
    purpose_ = purpose;
    name_->setText(purpose == NameFor::Renaming ? selected_.name : QString());
    name_->selectAll();
    judgeName();
    nameError_->clear(); // nothing is wrong before a person has typed
    setShown(nameRow_, true);
    name_->setFocus();
}

void PresetBar::judgeName()
{
    const NameFault fault = nameFault(name_->text(), takenNames());
    nameError_->setText(PresetMessages::fault(fault));
    nameOk_->setEnabled(fault == NameFault::None);
    Q_EMIT heightChanged();
}

void PresetBar::giveName()
{
    const QString name = cleanPresetName(name_->text());
    endNaming();
    Q_EMIT named(purpose_, name);
}

void PresetBar::endNaming()
{
    const bool hadFocus = nameRow_->isAncestorOf(focusWidget());
    setShown(nameRow_, false);
    if (hadFocus)
        popUp_->setFocus();
}

void PresetBar::showDifferences(const std::vector<SettingDifference> &differences)
{
    const QString none = QStringLiteral("–");
    differences_->clear();
    for (const SettingDifference &one : differences) {
        const QStringList texts{one.title, one.here.isNull() ? none : one.here,
                                one.there.isNull() ? none : one.there};
        auto *row = new QTreeWidgetItem(differences_, texts);
        for (int column = 0; column < texts.size(); ++column)
            row->setToolTip(column, texts[column]);
    }
    const int rows = std::clamp(differences_->topLevelItemCount(), 1, kMostRowsShown);
    const int rowHeight = std::max(differences_->sizeHintForRow(0), fontMetrics().lineSpacing());
    differences_->setFixedHeight(differences_->header()->sizeHint().height() + rows * rowHeight +
                                 2 * differences_->frameWidth());
    for (int column = 0; column < differences_->columnCount(); ++column)
        differences_->resizeColumnToContents(column);
    setShown(differencesView_, true);
}

bool PresetBar::showsDifferences() const
{
    return !differencesView_->isHidden();
}

void PresetBar::hideDifferences()
{
    setShown(differencesView_, false);
}

void PresetBar::setShown(QWidget *part, bool isShown)
{
    part->setVisible(isShown);
    Q_EMIT heightChanged();
}

/// In the name's row, Return and Escape are not the window's.
void PresetBar::keyPressEvent(QKeyEvent *event)
{
    const bool isNaming = name_->hasFocus();
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isNaming && isReturn && nameOk_->isEnabled())
        giveName();
    else if (event->key() == Qt::Key_Escape && !nameRow_->isHidden())
        endNaming();
    else if (event->key() == Qt::Key_Escape && showsDifferences())
        hideDifferences();
    else if (!(isNaming && isReturn))
        QWidget::keyPressEvent(event);
}

} // namespace dialog
