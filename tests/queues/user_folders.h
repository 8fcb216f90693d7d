#pragma once

#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <vector>

namespace test {

/// A user of the test's own: empty folders for caches, settings, state and the home.
class UserFolders
{
public:
    UserFolders()
    {
        point("XDG_CACHE_HOME", "cache");
        point("XDG_CONFIG_HOME", "config");
        point("XDG_STATE_HOME", "state");
        point("HOME", "home");
    }
    ~UserFolders()
    {
        for (const auto &[variable, former] : formers_)
            qputenv(variable, former);
    }
    UserFolders(const UserFolders &) = delete;
    UserFolders &operator=(const UserFolders &) = delete;

    [[nodiscard]] QString path(const char *name) const { return directory_.filePath(q(name)); }

private:
    void point(const char *variable, const char *name)
    {
        formers_.emplace_back(variable, qgetenv(variable));
        qputenv(variable, QFile::encodeName(path(name)));
    }

    QTemporaryDir directory_;
    std::vector<std::pair<const char *, QByteArray>> formers_;
};

/// A sample printer's PPD of the staged driver root.
inline QByteArray samplePpd(const char *name)
{
    return fileBytes(q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/") + q(name));
}

} // namespace test
