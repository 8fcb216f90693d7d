#include "tests/whole/many_lives.h"

#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"
#include "platform/notification_center.h"
#include "tests/plugin/life.h"
#include "tests/whole/damage.h"
#include "tests/whole/hands.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include <malloc.h>

namespace test {
namespace {

constexpr int kWarmUp = 24;
/// A view alone is a hundred times as large.
constexpr long kToleratedBytesPerLife = 100;

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

/// Uses a control as a person would, but without a window.
void useUnseen(QWidget *control)
{
    if (!control->isEnabled())
        return;
    if (auto *popUp = qobject_cast<QComboBox *>(control); popUp && popUp->count() > 0) {
        popUp->setCurrentIndex((popUp->currentIndex() + 1) % popUp->count());
        Q_EMIT popUp->activated(popUp->currentIndex());
    } else if (auto *stepper = qobject_cast<Stepper *>(control)) {
        stepper->upButton()->click();
    } else if (auto *matrix = qobject_cast<RadioMatrix *>(control)) {
        matrix->button(1)->click();
    } else if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        button->click();
    }
}

void liveUnseen(const LifeOptions &options)
{
    Life life(options);
    for (const auto &panel : *life.panels) {
        for (QWidget *control : controlsOf(panel->panelView()))
            useUnseen(control);
        (void)panel->summaryInfo();
        (void)panel->shouldShowHelp();
        EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    }
    life.externalChange("MediaType", "Plain");
}

/// Growth of the memory in use over so many calls, after some to warm up.
long growthOver(int calls, const std::function<void(const LifeOptions &)> &call)
{
    const auto bytesAfter = [&call](int count) {
        for (int i = 0; i < count; ++i)
            call(printer(i));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return long(mallinfo2().uordblks);
    };
    const long before = bytesAfter(kWarmUp);
    return bytesAfter(calls) - before;
}

struct Usage
{
    qsizetype files;
    int observers;
    qsizetype widgets;
};

Usage usage()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return {.files =
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
    EXPECT_EQ(after.files, before.files);
    EXPECT_EQ(after.observers, before.observers);
    EXPECT_EQ(after.widgets, before.widgets);
}

void expectNoMemoryKeptAfter(int lives)
{
    long least = growthOver(lives, liveUnseen);
    for (int round = 1; round < 3; ++round)
        least = std::min(least, growthOver(lives, liveUnseen));
    EXPECT_LE(least, lives * kToleratedBytesPerLife);
}

} // namespace test
