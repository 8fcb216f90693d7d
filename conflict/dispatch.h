#pragma once

#include "conflict/flags.h"
#include "conflict/kor_conflict_controller.h"

#include <array>
#include <cstddef>

namespace conflict {

inline constexpr std::array kConflictWindows{Window::MsgOne, Window::MsgTwo, Window::MsgFive};
inline constexpr std::array kAllWindows{Window::MsgOne, Window::MsgTwo, Window::MsgFive,
                                        Window::Instruction};

/// What MsgTwo and MsgFive speak of.
namespace two {
inline constexpr quint8 mirror = 0;
inline constexpr quint8 pagesPerSheet = 1;
} // namespace two
namespace five {
inline constexpr quint8 paperSize = 0;
inline constexpr quint8 printInBlack = 1;
inline constexpr quint8 cartridge = 2;
inline constexpr quint8 inkToUse = 3;
} // namespace five

/// The window of a case.
struct Dispatch
{
    int caseNumber;
    bool *conflictFlag; ///< set before the window opens; null for none
    Window window;
    quint8 kind;
};

// clang-format off
inline constexpr std::array<Dispatch, 15> kDispatch{{
    {0,  nullptr,                     Window::MsgOne,  0},
    {1,  &HAS_PAPERSIZE_CONFLICT,     Window::MsgFive, five::paperSize},
    {2,  &HAS_PAPERSIZE_CONFLICT,     Window::MsgFive, five::paperSize},
    {3,  &HAS_PAGESPERSHEET_CONFLICT, Window::MsgTwo,  two::pagesPerSheet}, // no test finds it
    {4,  &HAS_PAPERSIZE_CONFLICT,     Window::MsgFive, five::paperSize},
    {5,  &HAS_PAPERSIZE_CONFLICT,     Window::MsgFive, five::paperSize},
    {6,  &HAS_PAGESPERSHEET_CONFLICT, Window::MsgTwo,  two::pagesPerSheet}, // no test finds it
    {7,  &HAS_PAPERSIZE_CONFLICT,     Window::MsgFive, five::paperSize},
    {8,  &HAS_PRINTINBLACK_CONFLICT,  Window::MsgFive, five::printInBlack}, // no test finds it
    {9,  &HAS_PAPERSIZE_CONFLICT,     Window::MsgFive, five::paperSize},
    {10, &HAS_MIRROR_CONFLICT,        Window::MsgTwo,  two::mirror},        // no test finds it
    {11, &HAS_CARTINSTALLED_CONFLICT, Window::MsgFive, five::cartridge},
    {12, &HAS_CARTINSTALLED_CONFLICT, Window::MsgFive, five::cartridge},
    {13, &HAS_PAPERSIZE_CONFLICT,     Window::MsgFive, five::paperSize},
    {14, &HAS_INKTOUSE_CONFLICT,      Window::MsgFive, five::inkToUse},
}};
// clang-format on

static_assert(
    [] {
        for (std::size_t i = 0; i < kDispatch.size(); ++i)
            if (kDispatch[i].caseNumber != static_cast<int>(i))
                return false;
        return true;
    }(),
    "one row per case number, in order");

[[nodiscard]] constexpr const Dispatch &dispatchOf(int caseNumber)
{
    return kDispatch[static_cast<std::size_t>(caseNumber)];
}

} // namespace conflict
