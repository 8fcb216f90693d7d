#include "dialog/replay/input.h"
#include "dialog/window/conflict_sheet.h"
#include "dialog/window/notice_area.h"
#include "dialog/window/print_window.h"
#include "tests/accessible/spoken.h"
#include "tests/layout/desktop.h"
#include "tests/layout/sample_window.h"
#include "tests/layout/scene.h"
#include "tests/support/print_to.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using testing::IsEmpty;

namespace {

/// Parts of the window that come and go.
class AccessiblePart : public testing::TestWithParam<PartInLook>
{
protected:
    AccessiblePart()
        : desktop_(std::get<Look>(GetParam())),
          scene_(std::get<Part>(GetParam()), std::get<Look>(GetParam()))
    {
        scene_.makeSpacious();
    }

private:
    Desktop desktop_;

protected:
    Scene scene_;
};

TEST_P(AccessiblePart, SpeaksAndIsWalkedByTab)
{
    EXPECT_THAT(accessible::findings(scene_.window()), IsEmpty());
    EXPECT_THAT(layout::unlabelled(scene_.window()), IsEmpty());
}

class ReadablePart : public AccessiblePart
{
};

TEST_P(ReadablePart, StandsOutFromItsBackground)
{
    keepPicture(&scene_.window(), q(caseName({GetParam(), 0}).c_str()));
    EXPECT_THAT(layout::faint(scene_.window()), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Shades, ReadablePart,
                         testing::Combine(testing::ValuesIn(kParts),
                                          testing::Values(Look{"en"}, Look{"de", 1, Shade::Dark},
                                                          Look{"ja", 2, Shade::Dark})),
                         caseName);

INSTANTIATE_TEST_SUITE_P(Parts, AccessiblePart,
                         testing::Combine(testing::ValuesIn(kParts),
                                          testing::ValuesIn(allLanguages())),
                         caseName);

/// A part of the window as its keys and words are, in English.
class PartInEnglish : public testing::Test
{
protected:
    Scene &open(Part part)
    {
        scene_ = std::make_unique<Scene>(part, Look{"en"});
        return *scene_;
    }
    template <class Control = QWidget>
    [[nodiscard]] Control *control(const char *name) const
    {
        auto *found = scene_->control<Control>(name);
        EXPECT_TRUE(found) << name;
        return found;
    }
    void press(const char *name, Qt::Key key) const
    {
        control(name)->setFocus();
        press(key);
    }
    static void press(Qt::Key key)
    {
        ASSERT_TRUE(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), key);
        settle();
    }
    [[nodiscard]] static QString description(QWidget *control)
    {
        return QAccessible::queryAccessibleInterface(control)->text(QAccessible::Description);
    }
    [[nodiscard]] QString marked(const char *option) const
    {
        return scene_->printDialog().printer().marked(q(option));
    }

private:
    Desktop desktop_{Look{"en"}};
    std::unique_ptr<Scene> scene_;
};

using FeatureWords = PartInEnglish;

TEST_F(FeatureWords, GiveTheReasonOfAChoiceThatCannotBeHadAsItsDescription)
{
    open(Part::Features);
    auto *weight = control<QComboBox>("feature:MediaWeight");
    weight->showPopup();
    const auto *list = QAccessible::queryAccessibleInterface(weight->view());
    QStringList described;
    for (int i = 0; i < list->childCount(); ++i)
        described.append(list->child(i)->text(QAccessible::Name) + u'|' +
                         list->child(i)->text(QAccessible::Description));
    weight->hidePopup();
    const QStringList expected{q("Light|"), q("Normal|"), q("Heavy|not with Fold: As a Booklet")};
    EXPECT_EQ(described, expected);
}

TEST_F(FeatureWords, GiveTheReasonOfASwitchThatCannotBeTurned)
{
    open(Part::Features);
    EXPECT_TEXT(description(control("feature:Holes=Left")), "not with Fold: As a Booklet");
    EXPECT_TEXT(description(control("feature:Stacker")), "not with Stacker: Not Installed");
}

TEST_F(FeatureWords, TellAChangeFromTheDefaultOfTheControlItself)
{
    open(Part::Features);
    EXPECT_TEXT(description(control("feature:Fold")), "Changed from the default “None”");
    EXPECT_FALSE(description(control("feature:MediaWeight")).contains(q("Changed")));
}

TEST_F(FeatureWords, TellWhyWhatIsMarkedCannotStand)
{
    const Scene &scene = open(Part::Features);
    scene.printDialog().printer().mark({q("MediaWeight"), q("Heavy")});
    scene.printDialog().panels().refreshFront();
    EXPECT_TEXT(description(control("feature:MediaWeight")),
                "Changed from the default “Normal”\nnot with Fold: As a Booklet");
}

using ConflictKeys = PartInEnglish;

TEST_F(ConflictKeys, BeginAtTheFirstWayOutAndSayWhatItIsAbout)
{
    const Scene &scene = open(Part::Conflict);
    EXPECT_EQ(QApplication::focusWidget(), control("resolution0"));
    const auto *sheet = QAccessible::queryAccessibleInterface(control("conflictSheet"));
    EXPECT_EQ(sheet->text(QAccessible::Name), scene.window().conflictSheet().question().problem);
}

TEST_F(ConflictKeys, MakeTheChangeByReturn)
{
    const Scene &scene = open(Part::Conflict);
    QSignalSpy printed(&scene.window(), &dialog::PrintWindow::printRequested);
    press(Qt::Key_Return);
    EXPECT_FALSE(control("conflictSheet")->isVisible());
    EXPECT_TEXT(marked("MediaType"), "Transparency");
    EXPECT_EQ(printed.count(), 0) << "Return in the sheet is not the window's";
}

TEST_F(ConflictKeys, KeepWhatWasSetByEscapeAndLeaveTheWindowOpen)
{
    const Scene &scene = open(Part::Conflict);
    QSignalSpy left(&scene.window(), &dialog::PrintWindow::left);
    press(Qt::Key_Escape);
    EXPECT_FALSE(control("conflictSheet")->isVisible());
    EXPECT_TEXT(marked("MediaType"), "Automatic");
    EXPECT_TEXT(marked("PrintQuality"), "Draft");
    EXPECT_EQ(left.count(), 0);
}

TEST_F(ConflictKeys, PressTheButtonThatHasTheFocus)
{
    open(Part::Conflict);
    press("keepChoice", Qt::Key_Return);
    EXPECT_TEXT(marked("MediaType"), "Automatic") << "not the change";
}

TEST_F(ConflictKeys, AreNoneAnyMoreOnceThePrinterIsAnother)
{
    const Scene &scene = open(Part::Printers);
    dialog::PrintWindow &window = scene.window();
    const auto refuse = [&scene] {
        scene.printDialog().host().changeFromElsewhere({q("PrintQuality"), q("Draft")});
        static_cast<void>(scene.printDialog().host().choose({q("MediaType"), q("Transparency")}));
        settle();
    };
    refuse();
    ASSERT_TRUE(window.conflictSheet().isAsking());
    QSignalSpy ready(scene.queues(), &dialog::QueueDialog::ready);
    EXPECT_NULL(dialog::replay::input::choose(control<QComboBox>("printerPopUp"), 1));
    ASSERT_TRUE(QTest::qWaitFor([&] { return ready.count() == 1; }));
    EXPECT_FALSE(window.conflictSheet().isAsking());
    refuse();
    ASSERT_TRUE(window.conflictSheet().isAsking());
    press("resolution0", Qt::Key_Return);
    EXPECT_TEXT(marked("MediaType"), "Transparency") << "one answer, to the new printer";
}

using PresetKeys = PartInEnglish;

TEST_F(PresetKeys, GiveTheNameByReturn)
{
    const Scene &scene = open(Part::PresetName);
    QSignalSpy printed(&scene.window(), &dialog::PrintWindow::printRequested);
    EXPECT_EQ(QApplication::focusWidget(), control("presetName"));
    QTest::keyClicks(QApplication::focusWidget(), q("Photos"));
    press(Qt::Key_Return);
    EXPECT_FALSE(control("presetName")->isVisible());
    EXPECT_TEXT(control<QComboBox>("presetPopUp")->currentText(), "Photos");
    EXPECT_EQ(printed.count(), 0);
}

TEST_F(PresetKeys, EndTheNamingAndTheComparisonByEscapeAndLeaveTheWindowOpen)
{
    const Scene &naming = open(Part::PresetName);
    QSignalSpy leftWhileNaming(&naming.window(), &dialog::PrintWindow::left);
    press(Qt::Key_Escape);
    EXPECT_FALSE(control("presetName")->isVisible());
    EXPECT_EQ(leftWhileNaming.count(), 0);
    const Scene &comparing = open(Part::PresetDifferences);
    QSignalSpy left(&comparing.window(), &dialog::PrintWindow::left);
    press("presetDifferences", Qt::Key_Escape);
    EXPECT_FALSE(control("presetDifferences")->isVisible());
    EXPECT_EQ(left.count(), 0);
}

using ReviewKeys = PartInEnglish;

TEST_F(ReviewKeys, GoBackByItsButtonAndPrintNothing)
{
    const Scene &scene = open(Part::Review);
    QSignalSpy made(&scene.printDialog(), &dialog::PrintDialog::jobMade);
    press("goBackButton", Qt::Key_Space);
    EXPECT_TRUE(scene.window().notices().texts().filter(q("Before this prints")).isEmpty());
    EXPECT_EQ(made.count(), 0);
}

} // namespace
