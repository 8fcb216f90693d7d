#include "dialog/presets/preset_bar.h"
#include "dialog/presets/preset_store.h"
#include "dialog/print_dialog.h"
#include "dialog/replay/input.h"
#include "dialog/window/print_window.h"
#include "platform/controls/pop_up_button.h"
#include "tests/presets/preset_printer.h"
#include "tests/support/print_to.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

/// The presets in the window of a printer with two quality settings and no plug-in.
class PresetWindow : public testing::Test
{
protected:
    PresetWindow() { open(); }

    void open()
    {
        PrintCase printCase;
        printCase.ppd = folder.filePath(q("printer.ppd"));
        QFile file(printCase.ppd);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(test::presetPrinter().bytes());
        file.close();
        auto opened = PrintDialog::open(printCase);
        dialog = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
        dialog->showPanels();
        settle();
    }
    static void settle() { QCoreApplication::processEvents(); }
    [[nodiscard]] QString model() const { return modelOf(dialog->printer()); }
    [[nodiscard]] PopUpButton *popUp() const
    {
        return dialog->window()->findChild<PopUpButton *>(q("presetPopUp"));
    }
    [[nodiscard]] QAction *action(const char *name) const
    {
        return dialog->window()->findChild<QAction *>(q(name));
    }
    void trigger(const char *name) const
    {
        action(name)->trigger();
        settle();
    }
    void pick(const QString &title) const
    {
        EXPECT_TRUE(replay::input::choose(popUp(), popUp()->findText(title)).isNull());
        settle();
    }
    void set(const char *key, const char *value) const
    {
        dialog->host().setSetting(q(key), q(value));
        settle();
    }
    [[nodiscard]] bool isChanged() const
    {
        return dialog->window()->findChild<QWidget *>(q("presetChanged"))->isVisible();
    }

    QTemporaryDir folder;
    std::unique_ptr<PrintDialog> dialog;
};

} // namespace

TEST_F(PresetWindow, shows_the_default_settings_at_first)
{
    EXPECT_EQ(popUp()->currentText(), q("Default Settings"));
    EXPECT_FALSE(isChanged());
    EXPECT_FALSE(action("presetDelete")->isEnabled());
}

TEST_F(PresetWindow, says_when_the_settings_are_others_and_when_they_are_the_same_again)
{
    set("mirror", "true");
    EXPECT_TRUE(isChanged());
    dialog->host().setSetting(q("mirror"), {});
    settle();
    EXPECT_FALSE(isChanged());
}

TEST_F(PresetWindow, counts_copies_as_no_change)
{
    set("copies", "3");
    EXPECT_FALSE(isChanged());
}

TEST_F(PresetWindow, applies_a_saved_preset_and_leaves_copies_alone)
{
    static_cast<void>(PresetStore(model()).save(
        {q("Flipped"), model(), {}, {{}, {{q("mirror"), q("true")}}, {}}}));
    open();
    set("copies", "3");
    pick(q("Flipped"));
    EXPECT_EQ(dialog->host().state().settings[q("mirror")], q("true"));
    EXPECT_EQ(dialog->host().state().settings[q("copies")], q("3"));
    EXPECT_FALSE(isChanged());
}

TEST_F(PresetWindow, takes_copies_too_with_the_default_settings)
{
    set("mirror", "true");
    set("copies", "3");
    pick(q("Default Settings"));
    EXPECT_TRUE(dialog->host().state().settings.empty());
    EXPECT_FALSE(isChanged());
}

TEST_F(PresetWindow, lists_what_the_printer_does_not_have)
{
    static_cast<void>(PresetStore(model()).save(
        {q("Of Another"), model(), {}, {{{q("NoSuchOption"), {q("On")}}}, {}, {}}}));
    open();
    pick(q("Of Another"));
    EXPECT_TRUE(dialog->window()->notices().texts().join(u'\n').contains(q("NoSuchOption: On")));
}

TEST_F(PresetWindow, tells_of_a_preset_that_another_dialog_has_deleted)
{
    const PresetStore store(model());
    static_cast<void>(store.save({q("Short-lived"), model(), {}, {}}));
    open();
    ASSERT_TRUE(store.remove(q("Short-lived")).isOk());
    pick(q("Short-lived"));
    EXPECT_EQ(popUp()->currentText(), q("Default Settings"));
    EXPECT_EQ(popUp()->findText(q("Short-lived")), -1);
    EXPECT_TRUE(dialog->window()->notices().texts().last().contains(q("no such preset any more")));
}

TEST_F(PresetWindow, does_not_delete_what_is_set_with_the_preset)
{
    static_cast<void>(PresetStore(model()).save(
        {q("Flipped"), model(), {}, {{}, {{q("mirror"), q("true")}}, {}}}));
    open();
    pick(q("Flipped"));
    trigger("presetDelete");
    EXPECT_EQ(popUp()->currentText(), q("Default Settings"));
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(dialog->host().state().settings[q("mirror")], q("true"));
    EXPECT_TRUE(PresetStore(model()).list().presets.empty());
}
