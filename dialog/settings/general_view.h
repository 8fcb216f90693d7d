#pragma once

#include "dialog/settings/printer_lists.h"

#include <QWidget>

class PopUpButton;
class QCheckBox;
class QLabel;
class QSpinBox;

namespace dialog {

class RangeField;

/// What the window's general section shows.
struct GeneralState
{
    PrintSettingsMap settings;
    PrinterList paper;
    PrinterList sides;
};

/// The settings that every printer and document has: copies, pages, paper, orientation, sides.
/// It shows a state and tells what a person changes; what becomes of that is shown by the next
/// state.
class GeneralView : public QWidget
{
    Q_OBJECT

public:
    explicit GeneralView(QWidget *parent = nullptr);

    void show(const GeneralState &state);
    using QWidget::show;
    /// The same where a person gave up what was typed: after a reset, undo or preset.
    void reset(const GeneralState &state);
    /// Of the document; 0 while it is not known.
    void setPageCount(int pages);
    /// Why nothing can be printed with what stands here; null when it can.
    [[nodiscard]] QString problem() const;

Q_SIGNALS:
    // By a person.
    void settingsChanged(const dialog::SettingChanges &changes);
    /// An option of the PPD.
    void chosen(const dialog::Choice &choice);
    void problemChanged(const QString &problem);
    /// It needs more or less room than before.
    void heightChanged();

private:
    void makeControls();
    void arrange();
    void connectControls();
    void tell(const SettingChanges &changes);
    void pickFrom(const PrinterList &list, int index);

    QSpinBox *copies_;
    QCheckBox *collate_;
    QCheckBox *reverse_;
    RangeField *pages_;
    PopUpButton *pageSet_;
    PopUpButton *orientation_;
    QLabel *paperLabel_;
    PopUpButton *paper_;
    QLabel *sidesLabel_;
    PopUpButton *sides_;
    GeneralState state_;
};

} // namespace dialog
