#pragma once

#include "dialog/print_dialog.h"

#include <QJsonObject>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace test {

/// A sample printer of the staged driver root.
[[nodiscard]] QString samplePpd(const char *fileName);
[[nodiscard]] QString sampleDocument();

/// What the dialog said of a job that it made.
struct PrintedJob
{
    int id = 0; ///< at the print server; 0 for a job folder
    dialog::JobOptions options;
    QJsonObject ticket;
    bool wasReviewed = false; ///< whether the dialog asked before it printed
};

/// What a press of Print came to; a failure in the dialog's words, null when there is none.
struct Pressed
{
    std::optional<PrintedJob> job;
    QString failure;
};

/// What the panels offered, in order, with the dialog's answers.
struct AnsweredOffer
{
    dialog::Choice offered;
    bool accepted = false;

    bool operator==(const AnsweredOffer &) const = default;
};

/// The print dialog with the real panels of the staged driver root, used as a person uses it: with
/// events as from the window system.
class DialogRun
{
public:
    /// The case's root, document and job folder are filled in. Fails the test when the dialog does
    /// not open.
    explicit DialogRun(dialog::PrintCase printCase);
    ~DialogRun();

    [[nodiscard]] dialog::PrintDialog &dialog() const { return *dialog_; }
    /// Marks choices as a preset does, before the panels restore their values.
    void preset(const dialog::Choices &choices);
    void showPanels();
    /// Shows the panel with the option's control first, and what is behind the disclosure triangle.
    void choose(const dialog::Choice &choice);
    /// Shows the panel; why a person could not choose that now, or null.
    [[nodiscard]] QString obstacleTo(const dialog::Choice &choice);
    /// The choice that the option's control shows, null without a control.
    [[nodiscard]] QString shown(const QString &option) const;
    [[nodiscard]] const std::vector<AnsweredOffer> &offers() const { return offers_; }

    /// Clicks Print, and "Print Anyway" where the dialog asks, and waits for what comes of it.
    Pressed press();
    /// The same; nothing, with a failure, when no job comes of it.
    [[nodiscard]] std::optional<PrintedJob> print();

private:
    void showPanelOf(const QString &option);
    [[nodiscard]] bool answerReview();

    QTemporaryDir jobs_;
    std::unique_ptr<dialog::PrintDialog> dialog_;
    std::vector<AnsweredOffer> offers_;
};

} // namespace test
