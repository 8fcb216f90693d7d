#pragma once

#include "dialog/record/person_watcher.h"
#include "dialog/record/recording.h"
#include "dialog/replay/scenario.h"

#include <QObject>

#include <memory>

namespace dialog {
class PrintDialog;
enum class SaveKind;
struct PrintCase;
} // namespace dialog

namespace dialog::record {

/// Writes what a person does in the dialog as a scenario that can be replayed: first the printer
/// and the platform's values, then what is marked and set before the panels look, then the steps.
/// Names of document, user and queue are left out, and so is whatever a person does in a file dialog
/// or to sign in: a file that is saved has a name that tells nothing.
class Recorder : public QObject
{
    Q_OBJECT

public:
    /// Borrows the dialog, whose panels have not been shown, and writes the beginning.
    Recorder(std::unique_ptr<Recording> recording, PrintDialog &dialog);
    ~Recorder() override;

    /// Writes a step of a replay that is not a person's input, as it stands but for a document.
    void passOn(const replay::Step &step);

private:
    void writeCase(const PrintCase &printCase);
    void writePrinter(const PrintCase &printCase);
    void writeRoot(const QString &root);
    void writeStart();
    void write(const replay::Step &step);
    void writeTentative(const replay::Step &step);
    void writePersons(const replay::Step &step);
    [[nodiscard]] QString nameOfPanel(const QString &item) const;
    void writeSaving(SaveKind kind);
    void writeLeaving();
    void comment(const QString &text);

    std::unique_ptr<Recording> recording_;
    PrintDialog &dialog_;
    PersonWatcher watcher_;
};

} // namespace dialog::record
