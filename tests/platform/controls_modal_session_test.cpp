#include "platform/controls/modal_session.h"
#include "tests/support/print_to.h"
#include "tests/support/warnings.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace platform;
using test::q;

namespace {

/// Runs as soon as the innermost event loop is idle.
template <class Action>
void later(Action action)
{
    QTimer::singleShot(0, qApp, action);
}

/// A window with an OK button that ends its session and closes it.
class OkWindow : public QDialog
{
public:
    explicit OkWindow(const char *name)
    {
        setObjectName(q(name));
        auto *column = new QVBoxLayout(this);
        for (QWidget *widget : std::initializer_list<QWidget *>{other, field, ok})
            column->addWidget(widget);
        ok->setDefault(true);
        connect(ok, &QPushButton::clicked, this, [this] {
            stopModal();
            closeWindow(this);
        });
    }

    void clickOk()
    {
        QTest::mouseClick(windowHandle(), Qt::LeftButton, {}, ok->geometry().center());
    }

    QPushButton *other = new QPushButton(q("Other"));
    QLineEdit *field = new QLineEdit;
    QPushButton *ok = new QPushButton(q("OK"));
};

/// The dialog that lies underneath.
class Underneath : public QLabel
{
public:
    Underneath()
    {
        resize(300, 200);
        move(50, 40);
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
    }
    int paints = 0;
    int presses = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

class ModalSession : public testing::Test
{
protected:
    ModalSession()
    {
        watchdog.setSingleShot(true);
        watchdog.callOnTimeout([] {
            ADD_FAILURE() << "a session did not end";
            stopAllModalSessions();
        });
        watchdog.start(20000);
        QObject::connect(&ModalSessions::shared(), &ModalSessions::opened, &context,
                         [this](QDialog *window, int depth) {
                             events.append(
                                 q("%1 opens at %2").arg(window->objectName()).arg(depth));
                         });
        QObject::connect(&ModalSessions::shared(), &ModalSessions::closed, &context,
                         [this](const QString &name) { events.append(name + q(" ends")); });
    }
    ~ModalSession() override
    {
        EXPECT_EQ(modalDepth(), 0);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

    void reportCloses(QDialog *window)
    {
        setWindowDelegate(window, &context, [this](QDialog *closing) {
            events.append(closing->objectName() + q(" will close"));
        });
    }

    /// Ends the session of whichever window closes, as the panels do.
    void stopWhenClosing(QDialog *window)
    {
        setWindowDelegate(window, &context, [](QDialog *) { stopModal(); });
    }

    QTimer watchdog;
    QObject context;
    QStringList events;
};

} // namespace

TEST_F(ModalSession, OfNoWindowReturnsAtOnce)
{
    runModalForWindow(nullptr);
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(ModalSession, EndsWhenAPersonClicksOk)
{
    OkWindow window("A");
    later([&] {
        EXPECT_EQ(modalDepth(), 1);
        EXPECT_EQ(QApplication::activeModalWidget(), &window);
        window.clickOk();
    });
    runModalForWindow(&window);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(events, QStringList({q("A opens at 1"), q("A ends")}));
}

TEST_F(ModalSession, CanRunItsWindowAgain)
{
    OkWindow window("A");
    for (int i = 0; i < 3; ++i) {
        later([&] { window.clickOk(); });
        runModalForWindow(&window);
    }
    EXPECT_EQ(events.count(q("A ends")), 3);
}

TEST_F(ModalSession, LeavesItsWindowOpenButNoLongerModal)
{
    Underneath underneath;
    OkWindow window("A");
    later([] { stopModal(); });
    runModalForWindow(&window);
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.isModal());
    QTest::mouseClick(underneath.windowHandle(), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(underneath.presses, 1);
}

TEST_F(ModalSession, BlocksAndStaysOpenThoughTheWindowWasOpenBefore)
{
    Underneath underneath;
    OkWindow window("A");
    window.show();
    later([&] {
        QTest::mouseClick(underneath.windowHandle(), Qt::LeftButton, {}, QPoint(10, 10));
        EXPECT_EQ(underneath.presses, 0);
        stopModal();
    });
    runModalForWindow(&window);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(ModalSession, LetsTheWindowsUnderneathRepaintButTakeNoInput)
{
    Underneath underneath;
    OkWindow outer("A");
    OkWindow inner("B");
    later([&] {
        later([&] {
            const int before = underneath.paints;
            underneath.update();
            QTest::mouseClick(underneath.windowHandle(), Qt::LeftButton, {}, QPoint(10, 10));
            QTest::mouseClick(outer.windowHandle(), Qt::LeftButton, {},
                              outer.ok->geometry().center());
            later([&, before] {
                EXPECT_GT(underneath.paints, before);
                EXPECT_EQ(underneath.presses, 0);
                EXPECT_EQ(modalDepth(), 2);
                inner.clickOk();
            });
        });
        runModalForWindow(&inner);
        EXPECT_EQ(modalDepth(), 1);
        outer.clickOk();
    });
    runModalForWindow(&outer);
    QTest::mouseClick(underneath.windowHandle(), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(underneath.presses, 1);
}

TEST_F(ModalSession, StoppedTwiceEndsNoOuterOne)
{
    OkWindow outer("A");
    OkWindow inner("B");
    later([&] {
        later([] {
            stopModal();
            stopModal();
            stopModal();
        });
        runModalForWindow(&inner);
        inner.close();
        later([&] {
            events.append(q("A still runs"));
            stopModal();
            outer.close();
        });
    });
    runModalForWindow(&outer);
    EXPECT_EQ(events, QStringList({q("A opens at 1"), q("B opens at 2"), q("B ends"),
                                   q("A still runs"), q("A ends")}));
}

TEST_F(ModalSession, StoppedBeforeItsLoopStartsReturnsAtOnce)
{
    OkWindow window("A");
    QObject::connect(&ModalSessions::shared(), &ModalSessions::opened, &context,
                     [] { stopModal(); });
    runModalForWindow(&window);
    EXPECT_EQ(events, QStringList({q("A opens at 1"), q("A ends")}));
}

TEST_F(ModalSession, StoppedWithoutAnyDoesNothingToTheNext)
{
    stopModal();
    stopAllModalSessions();
    OkWindow window("A");
    later([&] {
        events.append(q("A runs"));
        window.clickOk();
    });
    runModalForWindow(&window);
    EXPECT_EQ(events, QStringList({q("A opens at 1"), q("A runs"), q("A ends")}));
}

TEST_F(ModalSession, OpenedInsideAnOkHandlerRunsBeforeTheFirstReturns)
{
    OkWindow conflict("Conflict");
    QDialog instructions;
    instructions.setObjectName(q("Instructions"));
    const auto willClose = [&](QDialog *closing) {
        events.append(closing->objectName() + q(" will close"));
        stopModal();
        closeWindow(&conflict);
    };
    setWindowDelegate(&conflict, &context, willClose);
    setWindowDelegate(&instructions, &context, willClose);
    QObject::connect(conflict.ok, &QPushButton::clicked, &context, [&] {
        later([&] { instructions.windowHandle()->close(); });
        runModalForWindow(&instructions);
        events.append(q("handler returns"));
    });
    later([&] { conflict.clickOk(); });
    runModalForWindow(&conflict);
    EXPECT_EQ(events,
              QStringList({q("Conflict opens at 1"), q("Conflict will close"),
                           q("Instructions opens at 2"), q("Instructions will close"),
                           q("Instructions ends"), q("handler returns"), q("Conflict ends")}));
}

TEST_F(ModalSession, NestsThreeDeepAndUnwindsInOrder)
{
    OkWindow first("A");
    OkWindow second("B");
    OkWindow third("C");
    later([&] {
        later([&] {
            later([&] { third.clickOk(); });
            runModalForWindow(&third);
            second.clickOk();
        });
        runModalForWindow(&second);
        first.clickOk();
    });
    runModalForWindow(&first);
    EXPECT_EQ(events, QStringList({q("A opens at 1"), q("B opens at 2"), q("C opens at 3"),
                                   q("C ends"), q("B ends"), q("A ends")}));
}

TEST_F(ModalSession, EndsWithAllOthersForADialogThatCloses)
{
    OkWindow first("A");
    OkWindow second("B");
    OkWindow third("C");
    auto underneath = std::make_unique<Underneath>();
    later([&] {
        later([&] {
            later([&] {
                stopAllModalSessions();
                underneath.reset();
            });
            runModalForWindow(&third);
        });
        runModalForWindow(&second);
    });
    runModalForWindow(&first);
    EXPECT_EQ(events.mid(3), QStringList({q("C ends"), q("B ends"), q("A ends")}));
}

TEST_F(ModalSession, EndsWhenItsWindowIsDestroyed)
{
    auto window = std::make_unique<OkWindow>("A");
    later([&] { window.reset(); });
    runModalForWindow(window.get());
    EXPECT_EQ(events, QStringList({q("A opens at 1"), q("A ends")}));
}

TEST_F(ModalSession, EndsWhenItsWindowIsDestroyedAsItOpens)
{
    auto window = std::make_unique<OkWindow>("A");
    QObject::connect(&ModalSessions::shared(), &ModalSessions::opened, &context,
                     [&] { window.reset(); });
    runModalForWindow(window.get());
    EXPECT_EQ(events, QStringList({q("A opens at 1"), q("A ends")}));
}

TEST_F(ModalSession, GoesOnWhenTheWindowOfAnOuterOneIsDestroyed)
{
    auto outer = std::make_unique<OkWindow>("A");
    OkWindow inner("B");
    later([&] {
        later([&] {
            outer.reset();
            later([&] {
                events.append(q("B still runs"));
                inner.clickOk();
            });
        });
        runModalForWindow(&inner);
    });
    runModalForWindow(outer.get());
    EXPECT_EQ(events, QStringList({q("A opens at 1"), q("B opens at 2"), q("B still runs"),
                                   q("B ends"), q("A ends")}));
}

TEST_F(ModalSession, EndsByDeletionFromItsOwnButton)
{
    auto *window = new OkWindow("A");
    QObject::connect(window->other, &QPushButton::clicked, &context, [window] { delete window; });
    later([window] { QTest::keyClick(window->windowHandle(), Qt::Key_Space); });
    window->other->setFocus();
    runModalForWindow(window);
    EXPECT_EQ(events.last(), q("A ends"));
}

TEST_F(ModalSession, RefusesAWindowThatRunsAlready)
{
    OkWindow window("A");
    later([&] {
        const test::ExpectWarning refused(q("A runs already"));
        runModalForWindow(&window);
        EXPECT_EQ(modalDepth(), 1);
        window.clickOk();
    });
    runModalForWindow(&window);
    EXPECT_EQ(events, QStringList({q("A opens at 1"), q("A ends")}));
}

TEST_F(ModalSession, EndsWithTheProgram)
{
    OkWindow first("A");
    OkWindow second("B");
    stopWhenClosing(&first);
    stopWhenClosing(&second);
    later([&] {
        later([&] {
            later([] { QCoreApplication::quit(); });
            runModalForWindow(&second);
        });
        runModalForWindow(&first);
    });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(events,
              QStringList({q("A opens at 1"), q("B opens at 2"), q("B ends"), q("A ends")}));
    EXPECT_FALSE(first.isVisible());
    EXPECT_FALSE(second.isVisible());
}

TEST_F(ModalSession, EndsWithAProgramThatLeavesItsWindowsOpen)
{
    OkWindow first("A");
    OkWindow second("B");
    later([&] {
        later([&] {
            later([] { QCoreApplication::exit(7); });
            runModalForWindow(&second);
        });
        runModalForWindow(&first);
    });
    EXPECT_EQ(QApplication::exec(), 7);
    EXPECT_EQ(events.mid(2), QStringList({q("B ends"), q("A ends")}));
}

TEST_F(ModalSession, TellsWhetherItWasStoppedOrAbandoned)
{
    auto window = std::make_unique<OkWindow>("A");
    later([&] { window->clickOk(); });
    EXPECT_EQ(runModalForWindow(window.get()), ModalEnd::Stopped);
    later([] { stopAllModalSessions(); });
    EXPECT_EQ(runModalForWindow(window.get()), ModalEnd::Abandoned);
    later([&] {
        stopModal();
        stopAllModalSessions();
    });
    EXPECT_EQ(runModalForWindow(window.get()), ModalEnd::Abandoned);
    later([&] { window.reset(); });
    EXPECT_EQ(runModalForWindow(window.get()), ModalEnd::Abandoned);
    EXPECT_EQ(runModalForWindow(nullptr), ModalEnd::Abandoned);
}

TEST_F(ModalSession, IsAbandonedWhenTheProgramQuitsEvenIfItBeginsAfterwards)
{
    OkWindow first("A");
    OkWindow second("B");
    std::vector<ModalEnd> ends;
    later([&] {
        later([] { QCoreApplication::quit(); });
        ends.push_back(runModalForWindow(&first));
        ends.push_back(runModalForWindow(&second));
    });
    QApplication::exec();
    EXPECT_EQ(ends, std::vector<ModalEnd>({ModalEnd::Abandoned, ModalEnd::Abandoned}));
}

TEST_F(ModalSession, IsAbandonedWhenTheProgramQuitsThoughItsWindowClosesOnTheWay)
{
    OkWindow window("A");
    stopWhenClosing(&window);
    ModalEnd end = ModalEnd::Stopped;
    later([&] {
        later([] { QCoreApplication::quit(); });
        end = runModalForWindow(&window);
    });
    QApplication::exec();
    EXPECT_EQ(end, ModalEnd::Abandoned);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ModalSession, LetsAWindowBeDiscardedFromItsOwnButton)
{
    const QPointer<OkWindow> window = new OkWindow("A");
    QObject::connect(window->other, &QPushButton::clicked, &context, [&] {
        discardWindow(window);
        EXPECT_FALSE(window.isNull());
        EXPECT_FALSE(window->isVisible());
    });
    later([&] { QTest::mouseClick(window->other, Qt::LeftButton); });
    EXPECT_EQ(runModalForWindow(window), ModalEnd::Abandoned);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window.isNull());
}

TEST_F(ModalSession, LetsAWindowBeDiscardedAtOnceWhileNoneRuns)
{
    const QPointer<QDialog> window = new QDialog;
    discardWindow(window);
    EXPECT_TRUE(window.isNull());
    discardWindow(nullptr);
}

TEST_F(ModalSession, TakesReturnForItsDefaultButton)
{
    OkWindow window("A");
    window.field->setFocus();
    later([&] { QTest::keyClick(window.windowHandle(), Qt::Key_Return); });
    runModalForWindow(&window);
    EXPECT_EQ(events.last(), q("A ends"));
}

TEST_F(ModalSession, TakesEscapeForAClose)
{
    OkWindow window("A");
    window.field->setFocus();
    setWindowDelegate(&window, &context, [&](QDialog *closing) {
        EXPECT_TRUE(closing->isVisible());
        events.append(q("will close"));
        stopModal();
    });
    later([&] { QTest::keyClick(window.windowHandle(), Qt::Key_Escape); });
    runModalForWindow(&window);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(events, QStringList({q("A opens at 1"), q("will close"), q("A ends")}));
}

TEST_F(ModalSession, KeepsItsWindowAboveTheOneInUse)
{
    Underneath underneath;
    OkWindow window("A");
    later([&] {
        EXPECT_EQ(window.windowHandle()->transientParent(), underneath.windowHandle());
        window.clickOk();
    });
    ASSERT_EQ(QApplication::activeWindow(), &underneath);
    runModalForWindow(&window);
}

TEST_F(ModalSession, ReportsEachWayOfClosingOnce)
{
    OkWindow window("A");
    reportCloses(&window);
    const std::function<void()> ways[] = {
        [&] { window.close(); },
        [&] { window.windowHandle()->close(); },
        [&] { closeWindow(&window); },
        [&] { window.reject(); },
        [&] { window.accept(); },
        [&] { window.done(3); },
        [&] { QTest::keyClick(&window, Qt::Key_Escape); },
    };
    for (const auto &way : ways) {
        window.show();
        events.clear();
        way();
        EXPECT_EQ(events, QStringList({q("A will close")})) << "way " << (&way - ways);
        EXPECT_FALSE(window.isVisible());
    }
}

TEST_F(ModalSession, DoesNotReportTheCloseOfAClosedWindow)
{
    OkWindow window("A");
    reportCloses(&window);
    window.close();
    closeWindow(&window);
    closeWindow(nullptr);
    window.show();
    window.close();
    window.close();
    EXPECT_EQ(events, QStringList({q("A will close")}));
}

TEST_F(ModalSession, DoesNotReportACloseFromInsideItsReport)
{
    OkWindow window("A");
    setWindowDelegate(&window, &context, [&](QDialog *closing) {
        events.append(q("will close"));
        closing->close();
        closeWindow(closing);
        closing->reject();
    });
    window.show();
    window.close();
    EXPECT_EQ(events, QStringList({q("will close")}));
    window.show();
    window.reject();
    EXPECT_EQ(events.count(), 2);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ModalSession, LetsTwoWindowsCloseEachOther)
{
    OkWindow first("A");
    OkWindow second("B");
    const auto closeBoth = [&](QDialog *closing) {
        events.append(closing->objectName());
        closeWindow(&first);
        closeWindow(&second);
    };
    setWindowDelegate(&first, &context, closeBoth);
    setWindowDelegate(&second, &context, closeBoth);
    first.show();
    second.show();
    first.close();
    EXPECT_EQ(events, QStringList({q("A"), q("B")}));
    EXPECT_FALSE(first.isVisible());
    EXPECT_FALSE(second.isVisible());
}

TEST_F(ModalSession, MayLoseItsWindowInTheReport)
{
    const std::function<void(QDialog *)> ways[] = {
        [](QDialog *window) { window->close(); },
        [](QDialog *window) { window->reject(); },
        [](QDialog *window) { QTest::keyClick(window, Qt::Key_Escape); },
    };
    for (const auto &close : ways) {
        const QPointer<QDialog> window = new QDialog;
        setWindowDelegate(window, &context, [](QDialog *closing) { delete closing; });
        window->show();
        close(window);
        EXPECT_TRUE(window.isNull());
    }
}

TEST_F(ModalSession, ReportsNothingOnceTheDelegateIsGone)
{
    OkWindow window("A");
    auto owner = std::make_unique<QObject>();
    setWindowDelegate(&window, owner.get(), [&](QDialog *) {
        events.append(q("will close"));
        owner.reset();
    });
    for (int i = 0; i < 2; ++i) {
        window.show();
        window.close();
        window.show();
        window.reject();
    }
    EXPECT_EQ(events, QStringList({q("will close")}));
}

TEST_F(ModalSession, CentresItsWindowInTheActiveOne)
{
    Underneath underneath;
    ASSERT_EQ(QApplication::activeWindow(), &underneath);
    OkWindow window("A");
    centerWindow(&window);
    const QPoint apart = window.frameGeometry().center() - underneath.frameGeometry().center();
    EXPECT_LE(apart.manhattanLength(), 2);
    EXPECT_GE(window.width(), window.sizeHint().width());
    centerWindow(nullptr);
}

TEST_F(ModalSession, CentresItsWindowOnTheScreenWhenNoneIsActive)
{
    OkWindow window("A");
    window.resize(120, 80);
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    centerWindow(&window);
    const QPoint apart =
        window.frameGeometry().center() - window.screen()->availableGeometry().center();
    EXPECT_LE(apart.manhattanLength(), 2);
    EXPECT_EQ(window.size(), QSize(120, 80));
}

TEST_F(ModalSession, KeepsItsCentredWindowOnTheScreen)
{
    Underneath underneath;
    const QRect screen = underneath.screen()->availableGeometry();
    underneath.setGeometry(screen.right() - 60, screen.top(), 50, 30);
    OkWindow window("A");
    window.resize(300, 200);
    centerWindow(&window);
    EXPECT_TRUE(screen.contains(window.frameGeometry()));
}
