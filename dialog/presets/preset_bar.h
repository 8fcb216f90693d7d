#pragma once

#include "dialog/presets/preset_name.h"
#include "dialog/presets/preset_plan.h"

#include <QWidget>

#include <vector>

class PopUpButton;
class QAction;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class QTreeWidget;

namespace dialog {

enum class PresetKind { Defaults, LastUsed, Own, Printers };

/// An entry of the pop-up. The name is null but for a person's own presets and the printer's.
struct PresetEntry
{
    PresetKind kind = PresetKind::Defaults;
    QString name = {};

    bool operator==(const PresetEntry &) const = default;
};

/// Where a person picks, names and compares presets. It shows entries and tells what a person
/// wants; what becomes of that is up to its owner.
class PresetBar : public QWidget
{
    Q_OBJECT

public:
    enum class NameFor { Saving, Renaming };

    explicit PresetBar(QWidget *parent = nullptr);

    /// In this order, kind by kind. What is selected stays so where it is among them, else the
    /// first is.
    void setEntries(const std::vector<PresetEntry> &entries);
    /// Tells nobody.
    void select(const PresetEntry &entry);
    [[nodiscard]] const PresetEntry &selected() const { return selected_; }
    /// Whether the present settings are others than the selected entry's.
    void setChanged(bool isChanged);
    /// Replaces the differences that are shown, if any are.
    void showDifferences(const std::vector<SettingDifference> &differences);
    [[nodiscard]] bool showsDifferences() const;
    void hideDifferences();

Q_SIGNALS:
    // By a person.
    void picked(const dialog::PresetEntry &entry);
    void named(dialog::PresetBar::NameFor purpose, const QString &name);
    void updateRequested();
    void deleteRequested();
    void compareRequested();
    /// The bar needs another height than before.
    void heightChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] QWidget *makeChoiceRow();
    [[nodiscard]] QToolButton *makeMenuButton();
    [[nodiscard]] QWidget *makeNameRow();
    [[nodiscard]] QWidget *makeDifferencesView();
    [[nodiscard]] QStringList takenNames() const;
    void fillPopUp();
    void allowActions();
    void pick(int index);
    void askForName(NameFor purpose);
    void judgeName();
    void giveName();
    void endNaming();
    void setShown(QWidget *part, bool isShown);

    PopUpButton *popUp_ = nullptr;
    QLabel *changed_ = nullptr;
    QToolButton *menu_ = nullptr;
    QAction *save_ = nullptr;
    QAction *update_ = nullptr;
    QAction *rename_ = nullptr;
    QAction *delete_ = nullptr;
    QAction *compare_ = nullptr;
    QWidget *nameRow_ = nullptr;
    QLineEdit *name_ = nullptr;
    QLabel *nameError_ = nullptr;
    QPushButton *nameOk_ = nullptr;
    QWidget *differencesView_ = nullptr;
    QTreeWidget *differences_ = nullptr;
    std::vector<PresetEntry> entries_;
    PresetEntry selected_;
    NameFor purpose_ = NameFor::Saving;
    bool isChanged_ = false;
};

} // namespace dialog
