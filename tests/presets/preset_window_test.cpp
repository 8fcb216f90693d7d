#include "dialog/presets/preset_bar.h"
#include "dialog/presets/preset_messages.h"
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
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <future>

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
        files = printCase.files;
        if (gate)
            block();
        auto opened = PrintDialog::open(printCase);
        dialog = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
        dialog->showPanels();
        settle();
    }
    /// Until the files have answered, unless they hang.
    void settle() const
    {
        EXPECT_TRUE(gate || QTest::qWaitFor([&] { return !dialog->presets().isBusy(); }, 30'000));
        QCoreApplication::processEvents();
    }
    /// From now on the files do not answer, those of a window that opens neither.
    void hang()
    {
        gate.emplace();
        opening = gate->get_future().share();
        block();
    }
    void block() const
    {
        files->add([blocked = opening] { blocked.wait(); });
    }
    void answerAgain()
    {
        gate.reset();
        settle();
    }
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
    /// In the row that is open for it.
    void giveName(const char *name) const
    {
        auto *field = dialog->window()->findChild<QLineEdit *>(q("presetName"));
        EXPECT_NULL(replay::input::type(field, q(name)));
        EXPECT_NULL(
            replay::input::click(dialog->window()->findChild<QPushButton *>(q("presetNameOk"))));
        settle();
    }
    void save(const char *name) const
    {
        trigger("presetSave");
        giveName(name);
    }
    [[nodiscard]] QStringList stored() const
    {
        QStringList names;
        for (const Preset &preset : PresetStore(model()).list().presets)
            names.append(preset.name);
        return names;
    }
    [[nodiscard]] bool isListed(const char *name) const { return popUp()->findText(q(name)) >= 0; }
    [[nodiscard]] QString notices() const
    {
        return dialog->window()->notices().texts().join(u'\n');
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
    std::optional<std::promise<void>> gate; ///< while the files hang
    std::shared_future<void> opening;
    std::shared_ptr<BackgroundWork> files;
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

TEST_F(PresetWindow, opens_while_its_folder_hangs_and_lists_the_presets_when_they_come)
{
    static_cast<void>(PresetStore(model()).save({q("Late"), model(), {}, {}}));
    hang();
    open();
    EXPECT_TRUE(dialog->window()->isVisible());
    EXPECT_FALSE(isListed("Late"));
    set("mirror", "true");
    EXPECT_TRUE(isChanged()) << "a person goes on";
    answerAgain();
    EXPECT_TRUE(isListed("Late"));
    EXPECT_TRUE(isChanged());
}

TEST_F(PresetWindow, tells_that_its_folder_hangs_until_it_answers)
{
    hang();
    open();
    const auto isTold = [this] { return notices().contains(q("does not answer")); };
    EXPECT_TRUE(QTest::qWaitFor(isTold, 30'000));
    answerAgain();
    EXPECT_FALSE(isTold()) << notices().toStdString();
}

TEST_F(PresetWindow, has_a_saved_preset_at_once_and_writes_it_as_soon_as_its_folder_answers)
{
    hang();
    set("mirror", "true");
    save("Mine");
    EXPECT_EQ(popUp()->currentText(), q("Mine"));
    EXPECT_FALSE(isChanged());
    EXPECT_TRUE(stored().isEmpty());
    answerAgain();
    EXPECT_EQ(popUp()->currentText(), q("Mine"));
    EXPECT_EQ(stored(), QStringList(q("Mine")));
}

TEST_F(PresetWindow, applies_and_keeps_presets_that_are_not_written_yet)
{
    hang();
    set("mirror", "true");
    save("Mine");
    save("Mine Too");
    pick(q("Default Settings"));
    pick(q("Mine"));
    EXPECT_EQ(dialog->host().state().settings[q("mirror")], q("true"));
    const QString before = notices();
    answerAgain();
    EXPECT_TRUE(isListed("Mine Too"));
    EXPECT_EQ(popUp()->currentText(), q("Mine"));
    EXPECT_EQ(notices(), before) << "nothing to tell";
}

TEST_F(PresetWindow, writes_in_the_order_in_which_a_person_asked)
{
    hang();
    save("One");
    set("mirror", "true");
    trigger("presetUpdate");
    trigger("presetRename");
    giveName("Two");
    save("Three");
    trigger("presetDelete");
    EXPECT_TRUE(stored().isEmpty());
    answerAgain();
    const std::vector<Preset> presets = PresetStore(model()).list().presets;
    ASSERT_EQ(stored(), QStringList(q("Two")));
    EXPECT_EQ(presets.front().content.settings.at(q("mirror")), q("true"));
    EXPECT_EQ(popUp()->currentText(), q("Default Settings"));
}

TEST_F(PresetWindow, gives_a_deleted_preset_back_that_was_never_written)
{
    hang();
    save("Mine");
    trigger("presetDelete");
    EXPECT_FALSE(isListed("Mine"));
    answerAgain();
    EXPECT_NULL(replay::input::click(dialog->window()->findChild<QPushButton *>(q("presetUndo"))));
    settle();
    EXPECT_EQ(popUp()->currentText(), q("Mine"));
    EXPECT_EQ(stored(), QStringList(q("Mine")));
}

TEST_F(PresetWindow, takes_back_what_could_not_be_written_and_says_why)
{
    hang();
    save("Mine");
    ASSERT_TRUE(PresetStore(model()).save({q("mine"), model(), {}, {}}).isOk());
    answerAgain();
    EXPECT_EQ(popUp()->currentText(), q("Default Settings"));
    EXPECT_TRUE(isListed("mine")) << "the other one";
    EXPECT_FALSE(isListed("Mine"));
    EXPECT_TRUE(notices().contains(PresetMessages::fault(NameFault::Taken)))
        << notices().toStdString();
}

TEST_F(PresetWindow, keeps_the_name_of_a_preset_that_could_not_be_renamed)
{
    save("Mine");
    hang();
    trigger("presetRename");
    giveName("Other");
    EXPECT_EQ(popUp()->currentText(), q("Other"));
    ASSERT_TRUE(PresetStore(model()).save({q("Other"), model(), {}, {}}).isOk());
    answerAgain();
    EXPECT_EQ(popUp()->currentText(), q("Mine"));
    EXPECT_TRUE(notices().contains(PresetMessages::fault(NameFault::Taken)))
        << notices().toStdString();
}

TEST_F(PresetWindow, leaves_a_person_who_has_gone_on_where_they_are)
{
    save("Mine");
    hang();
    set("mirror", "true");
    save("Flipped");
    pick(q("Mine"));
    answerAgain();
    EXPECT_EQ(popUp()->currentText(), q("Mine"));
    EXPECT_TRUE(isListed("Flipped"));
}

TEST_F(PresetWindow, applies_what_another_dialog_has_made_of_a_preset)
{
    save("Mine");
    pick(q("Default Settings"));
    ASSERT_TRUE(PresetStore(model())
                    .update({q("Mine"), model(), {}, {{}, {{q("mirror"), q("true")}}, {}}})
                    .isOk());
    pick(q("Mine"));
    EXPECT_EQ(dialog->host().state().settings[q("mirror")], q("true"));
    EXPECT_FALSE(isChanged());
}

TEST_F(PresetWindow, waits_at_its_end_for_what_is_being_written)
{
    const QString printer = model();
    trigger("presetSave");
    gate.emplace(); // so that nobody waits before
    giveName("Mine");
    files.reset();
    dialog.reset();
    EXPECT_EQ(PresetStore(printer).list().presets.size(), 1U);
}

TEST_F(PresetWindow, ends_although_its_folder_hangs)
{
    const QString printer = model();
    hang();
    save("Mine");
    const auto untilWritten = files->waiter();
    files.reset();
    dialog.reset(); // or the test never ends
    EXPECT_TRUE(PresetStore(printer).list().presets.empty());
    gate.reset();
    untilWritten();
    EXPECT_EQ(PresetStore(printer).list().presets.size(), 1U);
}
