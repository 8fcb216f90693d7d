#include "dialog/panels/layout_panel.h"
#include "dialog/printers/standard_options.h"
#include "platform/controls/pop_up_button.h"
#include "platform/values.h"
#include "tests/support/layout_check.h"
#include "tests/support/print_to.h"
#include "tests/support/user.h"

#include <QCheckBox>
#include <QLabel>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace dialog;
using test::q;
using testing::IsEmpty;

namespace {

class LayoutPanelTest : public testing::Test
{
protected:
    void make()
    {
        panel = std::make_unique<LayoutPanel>(settings);
        QObject::connect(panel.get(), &LayoutPanel::settingsChanged, panel.get(),
                         [this](const SettingChanges &changes) {
                             for (const SettingChange &change : changes)
                                 set(change);
                             panel->refresh();
                         });
        panel->refresh();
        panel->show();
    }
    /// As the dialog does it.
    void set(const SettingChange &change)
    {
        for (const auto &[key, value] : withCompanions(change))
            PMPrintSettingsSetValue(&settings, key, value, PMLock::Unlocked);
    }
    template <class Control>
    Control *control(const char *name)
    {
        return panel->findChild<Control *>(q(name));
    }

    platform::PrintSettings settings;
    std::unique_ptr<LayoutPanel> panel;
};

TEST_F(LayoutPanelTest, LooksRight)
{
    make();
    EXPECT_THAT(test::layout::findings(*panel), IsEmpty());
    EXPECT_THAT(test::layout::faint(*panel), IsEmpty());
    EXPECT_THAT(test::layout::withoutToolTip(*panel), IsEmpty());
    EXPECT_TEXT(panel->kind(), "layout");
}

TEST_F(LayoutPanelTest, SharesSheetsAndTellsThePanels)
{
    make();
    EXPECT_FALSE(control<PopUpButton>("layoutOrder")->isEnabled()) << "one page has no order";
    test::user::choose(control<PopUpButton>("pagesPerSheet"), 3);
    EXPECT_SAME(settings.value(q("number-up")).toString(), q("6"));
    EXPECT_SAME(settings.value(columnsKey()).toString(), q("3"));
    test::user::choose(control<PopUpButton>("layoutOrder"), 1);
    EXPECT_SAME(settings.value(q("number-up-layout")).toString(), q("tblr"));
    test::user::choose(control<PopUpButton>("pageBorder"), 1);
    test::user::choose(control<PopUpButton>("scaling"), 2);
    EXPECT_SAME(settings.value(q("page-border")).toString(), q("single"));
    EXPECT_SAME(settings.value(q("print-scaling")).toString(), q("fit"));
    test::user::choose(control<PopUpButton>("pagesPerSheet"), 0);
    EXPECT_FALSE(settings.all().contains(columnsKey()));
    EXPECT_FALSE(settings.all().contains(q("number-up")));
}

TEST_F(LayoutPanelTest, DrawsEachOrderAnotherWay)
{
    make();
    const auto *orders = control<PopUpButton>("layoutOrder");
    std::vector<QImage> drawn;
    for (int i = 0; i < orders->count(); ++i) {
        const QImage image = orders->itemIcon(i).pixmap(32, 32).toImage();
        EXPECT_EQ(std::count(drawn.begin(), drawn.end(), image), 0) << i;
        drawn.push_back(image);
    }
    EXPECT_EQ(drawn.size(), 8U);
}

TEST_F(LayoutPanelTest, FlipsByTheJobsMirrorSetting)
{
    settings.setValue(q("mirror"), q("true"));
    make();
    auto *flip = control<QCheckBox>("flipHorizontally");
    EXPECT_TRUE(flip->isChecked());
    test::user::click(flip);
    EXPECT_FALSE(settings.all().contains(q("mirror")));
    test::user::click(flip);
    EXPECT_EQ(settings.value(q("mirror")), QVariant(q("true")));
    settings.setValue(q("mirror"), true);
    panel->refresh();
    EXPECT_FALSE(flip->isChecked()) << "the text alone says so";
}

TEST_F(LayoutPanelTest, LeavesMirrorToThePanelsOnOldSystems)
{
    platform::setSystemVersion(0x105f);
    make();
    EXPECT_FALSE(control<QCheckBox>("flipHorizontally")->isEnabled());
    EXPECT_TRUE(control<QLabel>("flipReason")->isVisible());
    EXPECT_THAT(test::layout::findings(*panel), IsEmpty());
    platform::setSystemVersion(0x1060);
    make();
    EXPECT_TRUE(control<QCheckBox>("flipHorizontally")->isEnabled());
    EXPECT_FALSE(control<QLabel>("flipReason")->isVisible());
}

} // namespace
