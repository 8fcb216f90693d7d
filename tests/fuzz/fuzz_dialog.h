#pragma once

#include "dialog/print_case.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace fuzz {

/// One application without a display for all executions, and a folder for their files.
class DialogSurroundings
{
public:
    DialogSurroundings();

    /// The built driver's root; jobs go to the folder.
    [[nodiscard]] dialog::PrintCase printCase(const QString &ppd) const;
    /// Writes a file into the folder and answers its path.
    [[nodiscard]] QString write(const QString &name, const QByteArray &bytes) const;
    /// Jobs and logs of earlier executions.
    void clear() const;

private:
    QTemporaryDir folder_;
};

/// Made at the first call.
[[nodiscard]] DialogSurroundings &surroundings();

} // namespace fuzz
