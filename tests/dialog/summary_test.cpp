#include "dialog/panels/summary_panel.h"
#include "dialog/print_dialog.h"
#include "dialog/replay/input.h"
#include "dialog/window/print_window.h"
#include "platform/controls/pop_up_button.h"
#include "tests/support/print_to.h"

#include <QCheckBox>
#include <QTreeWidget>

#include <gtest/gtest.h>

using test::q;

namespace {

/// "Panel" and "Panel: setting = value", as a person reads them from top to bottom.
QStringList shownIn(const QTreeWidget &rows)
{
    QStringList lines;
    for (int i = 0; i < rows.topLevelItemCount(); ++i) {
        const QTreeWidgetItem *section = rows.topLevelItem(i);
        lines.append(section->text(0));
        for (int row = 0; row < section->childCount(); ++row)
            lines.append(section->text(0) + q(": ") + section->child(row)->text(0) + q(" = ") +
                         section->child(row)->text(1));
    }
    return lines;
}

TEST(Summary, ShowsASectionForEachPanelAndARowForEachEntry)
{
    const auto printer = dialog::PpdDocument::withoutOptions(q("Printer"));
    dialog::DialogHost host(*printer);
    dialog::PanelStack panels(host);
    dialog::SummaryPanel view(panels, host);
    view.show({{q("One"), {{q("a"), q("1")}, {q("b"), q("2")}}}, {q("Two"), {}}});
    const auto *rows = view.findChild<QTreeWidget *>();
    EXPECT_EQ(shownIn(*rows), QStringList({q("One"), q("One: a = 1"), q("One: b = 2"), q("Two")}));
    view.show({{q("Three"), {}}});
    EXPECT_EQ(shownIn(*rows), QStringList({q("Three")})) << "what was shown before has gone";
    EXPECT_FALSE(rows->accessibleName().isEmpty());
}

TEST(Summary, OfTheTonerPrinterHasBothPanelsAsTheyStand)
{
    dialog::PrintCase printCase;
    printCase.ppd = q(KORVANE_SOURCE_DIR "/driver/ppd/Korvane-T500.ppd");
    printCase.root = q(KORVANE_ROOT_DIR);
    dialog::PrintDialog::Opened opened = dialog::PrintDialog::open(printCase);
    ASSERT_TRUE(std::holds_alternative<std::unique_ptr<dialog::PrintDialog>>(opened));
    auto &print = std::get<std::unique_ptr<dialog::PrintDialog>>(opened);
    print->showPanels();
    dialog::PrintWindow &window = *print->window();
    EXPECT_NULL(dialog::replay::input::choose(window.panelPopUp(), 2));
    EXPECT_NULL(dialog::replay::input::click(window.findChild<QCheckBox *>(q("ibReduceGhosting"))));
    const int summary = print->panels().count() - 1;
    EXPECT_NULL(dialog::replay::input::choose(window.panelPopUp(), summary));
    EXPECT_EQ(print->panels().frontIndex(), summary);
    const QStringList lines = shownIn(*window.findChild<QTreeWidget *>(q("summaryRows")));
    EXPECT_TRUE(lines.contains(q("Quality & Media: Color Output = Grayscale")));
    EXPECT_TRUE(lines.contains(q("Other: Reduce Ghosting = On")));
    EXPECT_NULL(dialog::replay::input::choose(window.panelPopUp(), 0));
    EXPECT_EQ(print->panels().frontIndex(), 0);
}

} // namespace
