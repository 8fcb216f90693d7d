#pragma once

#include "dialog/print_dialog.h"
#include "dialog/queue_dialog.h"
#include "tests/layout/desktop.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <tuple>

namespace test {

/// Parts of the print window that come and go.
enum class Part { Features, Conflict, PresetName, PresetDifferences, Review, SignIn, Printers };
inline constexpr Part kParts[] = {Part::Features,          Part::Conflict, Part::PresetName,
                                  Part::PresetDifferences, Part::Review,   Part::SignIn,
                                  Part::Printers};
[[nodiscard]] const char *nameOf(Part part);
void PrintTo(Part part, std::ostream *out);

using PartInLook = std::tuple<Part, Look>;
/// For the names of test cases: "Review_deLargeFont".
[[nodiscard]] std::string caseName(const testing::TestParamInfo<PartInLook> &info);

/// The print window with one of its passing parts open, in the look's language. Features shows a
/// printer with a finisher, and choices that cannot be had; the others the sample ink printer.
class Scene
{
public:
    /// The look is that of the desktop already.
    Scene(Part part, const Look &look);
    ~Scene();

    [[nodiscard]] dialog::PrintWindow &window() const;
    /// The printer's dialog.
    [[nodiscard]] dialog::PrintDialog &printDialog() const;
    /// The window's where printers are picked, of Part::Printers; null for the others.
    [[nodiscard]] dialog::QueueDialog *queues() const { return queues_.get(); }
    template <class Control>
    [[nodiscard]] Control *control(const char *name) const
    {
        return windowWidget().findChild<Control *>(QString::fromLatin1(name));
    }
    /// Large enough that nothing is scrolled out of sight.
    void makeSpacious() const;

private:
    void openQueues(const Look &look);
    [[nodiscard]] QWidget &windowWidget() const;

    std::unique_ptr<dialog::PrintDialog> dialog_;
    std::unique_ptr<dialog::QueueDialog> queues_; ///< of parts that need a print server
};

} // namespace test
