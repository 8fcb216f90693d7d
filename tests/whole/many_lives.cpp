#include "tests/whole/many_lives.h"

#include "platform/notification_center.h"
#include "tests/plugin/life.h"
#include "tests/whole/damage.h"
#include "tests/whole/hands.h"

#include <QApplication>
#include <QDir>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <malloc.h>

namespace test {
namespace {

constexpr int kWarmUp = 24;
/// Far below one panel's own size; caches of fonts and texts grow a little for a while.
constexpr long kToleratedBytesPerLife = 400;

LifeOptions printer(int number)
{
    switch (number % 4) {
    case 0:
        return {.ppd = everything(), .hasOtherPanel = true};
    case 1:
        return {.ppd = p1()};
    case 2:
        return {.ppd = p1c(), .systemVersion = 0x1059};
    default:
        return {.ppd = p2m(), .productYear = {}, .hasOtherPanel = true};
    }
}

/// A dialog that has taken the views of a life's panels in.
std::unique_ptr<QWidget> dialogOf(const Life &life)
{
    auto dialog = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(dialog.get());
    for (const auto &panel : *life.panels)
        layout->addWidget(panel->panelView());
    dialog->show();
    return dialog;
}

void liveFully(Life &life)
{
    for (const auto &panel : *life.panels) {
        useEveryControl(panel->panelView());
        (void)panel->summaryInfo();
        (void)panel->shouldShowHelp();
        EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    }
    life.externalChange("MediaType", "Plain");
}

/// Two dialogs at once; the first one's views die before its panels, the second one's after.
void liveTwice(int number)
{
    auto first = std::make_unique<Life>(printer(number));
    auto second = std::make_unique<Life>(printer(number + 1));
    auto firstDialog = dialogOf(*first);
    const auto secondDialog = dialogOf(*second);
    liveFully(*second);
    liveFully(*first);
    firstDialog.reset();
    for (const auto &panel : *first->panels)
        EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr)) << "without its view";
    second.reset();
    first.reset();
}

struct Usage
{
    long bytes;
    qsizetype files;
    int observers;
    qsizetype widgets;
};

Usage usage()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return {.bytes = long(mallinfo2().uordblks),
            .files =
                QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size(),
            .observers = platform::NotificationCenter::defaultCenter().observerCount(),
            .widgets = QApplication::allWidgets().size()};
}

} // namespace

void expectNothingLeftAfter(int lives)
{
    for (int i = 0; i < kWarmUp; i += 2)
        liveTwice(i);
    const Usage before = usage();
    for (int i = 0; i < lives; i += 2)
        liveTwice(i);
    const Usage after = usage();
    EXPECT_LE(after.bytes - before.bytes, lives * kToleratedBytesPerLife);
    EXPECT_EQ(after.files, before.files);
    EXPECT_EQ(after.observers, before.observers);
    EXPECT_EQ(after.widgets, before.widgets);
}

} // namespace test
