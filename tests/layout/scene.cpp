#include "tests/layout/scene.h"

#include "dialog/replay/input.h"
#include "dialog/window/print_window.h"
#include "dialog/window/printer_picker.h"
#include "platform/controls/pop_up_button.h"
#include "tests/layout/sample_window.h"
#include "tests/support/print_to.h"

#include <QAction>
#include <QTest>

#include <gtest/gtest.h>

namespace test {
namespace {

/// More than the picker shows without a field to find them.
constexpr int kQueues = dialog::PrinterPicker::kFew + 3;

void choose(const Scene &scene, const char *control, const char *keyword)
{
    auto *popUp = scene.control<PopUpButton>(control);
    ASSERT_TRUE(popUp) << control;
    EXPECT_NULL(dialog::replay::input::choose(popUp, popUp->findData(q(keyword))));
    settle();
}

/// The fold that is marked forbids a weight, two staples and holes; the stacker is not there.
void showDimmedFeatures(const Scene &scene)
{
    scene.printDialog().printer().mark({q("Fold"), q("Booklet")});
    dialog::PanelStack &panels = scene.printDialog().panels();
    panels.bringForward(panels.indexOf(q("features")));
}

void openConflict(const Scene &scene)
{
    scene.printDialog().host().changeFromElsewhere({q("PrintQuality"), q("Draft")});
    choose(scene, "ibPaperType", "Transparency");
}

void openReview(const Scene &scene)
{
    dialog::DialogHost &host = scene.printDialog().host();
    host.changeFromElsewhere({q("MediaType"), q("Transparency")});
    host.changeFromElsewhere({q("PrintQuality"), q("Draft")});
    host.recordPersonsChoice({q("InkToUse"), q("BlackOnly")});
    scene.printDialog().print(dialog::Review::Ask);
}

void openSignIn(const Scene &scene)
{
    scene.printDialog().offerSignIn();
    Q_EMIT scene.printDialog().desk().signInWanted(
        {q("office.example:631"), q("alice"), true, true});
}

void openPresetName(const Scene &scene)
{
    scene.control<QAction>("presetSave")->trigger();
}

void openDifferences(const Scene &scene)
{
    dialog::DialogHost &host = scene.printDialog().host();
    host.choose({q("PrintQuality"), q("Draft")});
    host.setSetting(q("mirror"), q("true"));
    settle();
    scene.control<QAction>("presetCompare")->trigger();
}

struct Opening
{
    Part part;
    const char *name;
    void (*open)(const Scene &scene);
};

// clang-format off
constexpr Opening kOpenings[] = {
    {Part::Features,          "Features",          showDimmedFeatures},
    {Part::Conflict,          "Conflict",          openConflict},
    {Part::PresetName,        "PresetName",        openPresetName},
    {Part::PresetDifferences, "PresetDifferences", openDifferences},
    {Part::Review,            "Review",            openReview},
    {Part::SignIn,            "SignIn",            openSignIn},
    {Part::Printers,          "Printers",          [](const Scene &) {}},
};
// clang-format on

const Opening &openingOf(Part part)
{
    return *std::find_if(std::begin(kOpenings), std::end(kOpenings),
                         [part](const Opening &opening) { return opening.part == part; });
}

dialog::QueueListing queueListing()
{
    dialog::QueueListing listing;
    for (int i = 1; i <= kQueues; ++i)
        listing.queues.push_back(
            {q("ink%1").arg(i), q("Ink Printer %1").arg(i), q("Floor %1").arg(i)});
    listing.queues.front().state = dialog::QueueState::Paused;
    listing.queues.front().reason = q("No paper.");
    return listing;
}

} // namespace

const char *nameOf(Part part)
{
    return openingOf(part).name;
}

void PrintTo(Part part, std::ostream *out)
{
    *out << nameOf(part);
}

std::string caseName(const testing::TestParamInfo<PartInLook> &info)
{
    const auto &[part, look] = info.param;
    return std::string(nameOf(part)) + "_" + look.language +
           (look.fontScale > 1 ? "LargeFont" : "") + (look.shade == Shade::Dark ? "Dark" : "");
}

Scene::Scene(Part part, const Look &look)
{
    if (part == Part::Printers || part == Part::SignIn)
        openQueues(look);
    else if (part == Part::Features)
        dialog_ = openPrinter(q(KORVANE_SOURCE_DIR "/tests/scenarios/printers/finisher.ppd"), look);
    else
        dialog_ = openSample(look);
    openingOf(part).open(*this);
    window().activateWindow(); // on this platform, a pop-up takes that along
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    settle();
}

Scene::~Scene() = default;

/// A print server with many queues, which answers at once, and a document.
void Scene::openQueues(const Look &look)
{
    const QString ppd = samplePpd(look);
    dialog::QueueSources sources;
    sources.list = [](const dialog::ListingHeard &) { return queueListing(); };
    sources.printer = [ppd](const QString &) {
        auto opened = dialog::PpdDocument::open(ppd);
        return dialog::QueuePrinter{
            dialog::QueuePrinter::Outcome::Opened,
            std::move(std::get<std::unique_ptr<dialog::PpdDocument>>(opened))};
    };
    sources.listTimes = {std::chrono::minutes(1), std::chrono::hours(1)};
    sources.printerDeadline = std::chrono::minutes(1);
    dialog::PrintCase printCase;
    printCase.root = q(KORVANE_ROOT_DIR);
    printCase.language = q(look.language);
    printCase.queue = queueListing().queues.front().name;
    printCase.document = q(KORVANE_SOURCE_DIR "/driver/demo/sample.pdf");
    EXPECT_NULL(dialog::PrintDialog::prepare(printCase));
    queues_ = std::make_unique<dialog::QueueDialog>(printCase, std::move(sources));
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return queues_->printDialog() && queues_->picker().offered().size() == kQueues;
    }));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&queues_->window()));
}

dialog::PrintDialog &Scene::printDialog() const
{
    return queues_ ? *queues_->printDialog() : *dialog_;
}

dialog::PrintWindow &Scene::window() const
{
    return *printDialog().window();
}

QWidget &Scene::windowWidget() const
{
    return window();
}

void Scene::makeSpacious() const
{
    constexpr QSize kSpacious(1600, 1400);
    windowWidget().resize(kSpacious);
    settle();
}

} // namespace test
