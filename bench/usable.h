#pragma once

#include <QCoreApplication>

#include <cstdio>

namespace bench {

/// What a program of the opening bench says when a person could print with it.
constexpr const char *kUsable = "usable\n";

inline void tellUsable()
{
    std::fputs(kUsable, stdout);
    std::fflush(stdout);
    QCoreApplication::quit();
}

} // namespace bench
