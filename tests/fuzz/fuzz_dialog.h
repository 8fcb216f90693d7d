#pragma once

#include "dialog/print_case.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace fuzz {

/// One application without a display for all executions, and a folder for their files: what a
/// scenario keeps, such as presets, never comes to whoever runs the fuzzer.
class DialogSurroundings
{
public:
    DialogSurroundings();

    /// The built driver's root; jobs go to the folder.
    [[nodiscard]] dialog::PrintCase printCase(const QString &ppd) const;
    /// Writes a file into the folder and answers its path.
    [[nodiscard]] QString write(const QString &name, const QByteArray &bytes) const;
    /// What earlier executions have left: jobs, presets.
    void clear() const;

private:
    [[nodiscard]] QString personsFolder() const;

    QTemporaryDir folder_;
};

/// Made at the first call.
[[nodiscard]] DialogSurroundings &surroundings();

} // namespace fuzz
