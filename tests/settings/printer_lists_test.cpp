#include "dialog/printers/ppd_document.h"
#include "dialog/settings/printer_lists.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

class PrinterLists : public testing::Test
{
protected:
    [[nodiscard]] std::unique_ptr<PpdDocument> open(const test::PpdText &ppd) const
    {
        QFile file(folder.filePath(q("printer.ppd")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(ppd.bytes());
        file.close();
        return std::move(
            std::get<std::unique_ptr<PpdDocument>>(PpdDocument::open(file.fileName())));
    }
    [[nodiscard]] static test::PpdText duplexPrinter()
    {
        test::PpdText ppd = test::p1();
        ppd.add({"Duplex",
                 "Two-Sided",
                 test::PpdUi::PickOne,
                 {{"None", "Single"}, {"DuplexNoTumble", "Book"}, {"DuplexTumble", "Pad & more"}},
                 "None"});
        return ppd;
    }
    [[nodiscard]] static QString currentTitle(const PrinterList &list)
    {
        return list.current < 0 ? QString()
                                : list.items[static_cast<std::size_t>(list.current)].title;
    }

    QTemporaryDir folder;
};

TEST_F(PrinterLists, AreThePrintersOwnWords)
{
    const auto printer = open(duplexPrinter());
    const PrinterList paper = paperList(*printer, {}, {});
    EXPECT_SAME(paper.option, q("PageSize"));
    EXPECT_EQ(paper.items.size(), 4U);
    EXPECT_SAME(currentTitle(paper), q("US Letter"));
    const PrinterList sides = sidesList(*printer, {});
    EXPECT_SAME(sides.option, q("Duplex"));
    EXPECT_SAME(currentTitle(sides), q("Single"));
    EXPECT_SAME(sides.items.back().title, q("Pad & more"));
}

TEST_F(PrinterLists, ShowWhatTheJobWillHave)
{
    const auto printer = open(duplexPrinter());
    printer->mark({q("PageSize"), q("EnvelopeDL")});
    printer->mark({q("Duplex"), q("DuplexTumble")});
    EXPECT_SAME(currentTitle(paperList(*printer, {}, {})), q("DL Envelope"));
    EXPECT_SAME(currentTitle(paperList(*printer, {}, q("A4Banner"))), q("A4 Banner"));
    EXPECT_SAME(currentTitle(paperList(*printer, {{q("media"), q("Letter")}}, q("A4Banner"))),
                q("US Letter"));
    EXPECT_SAME(currentTitle(sidesList(*printer, {{q("sides"), q("two-sided-long-edge")}})),
                q("Book"));
    EXPECT_SAME(currentTitle(paperList(*printer, {}, q("Custom.10x10mm"))), q("Custom.10x10mm"));
    EXPECT_SAME(currentTitle(paperList(*printer, {{q("media"), q("A4,parchment")}}, {})),
                q("A4,parchment"));
    EXPECT_SAME(currentTitle(paperList(*printer, {{q("media"), q("Tray2")}}, {})),
                q("DL Envelope"));
}

TEST_F(PrinterLists, AreEmptyWhereThePrinterHasNoSuchOption)
{
    const auto printer = open(test::p2());
    EXPECT_TRUE(paperList(*printer, {}, {}).isEmpty());
    EXPECT_TRUE(sidesList(*printer, {}).isEmpty());
    EXPECT_FALSE(paperList(*open(test::p1()), {}, {}).isEmpty());
}

TEST_F(PrinterLists, AreStandardSettingsForAPrinterWithoutAPpd)
{
    const auto printer = PpdDocument::withoutOptions(q("office"));
    const PrinterList paper = paperList(*printer, {}, {});
    EXPECT_NULL(paper.option);
    EXPECT_SAME(paper.key, q("media"));
    EXPECT_EQ(paper.current, 0);
    EXPECT_NULL(paper.items.front().value);
    EXPECT_SAME(currentTitle(paperList(*printer, {{q("media"), q("iso_a4_210x297mm")}}, {})),
                q("A4"));
    const PrinterList sides = sidesList(*printer, {{q("sides"), q("two-sided-short-edge")}});
    EXPECT_SAME(sides.key, q("sides"));
    EXPECT_EQ(sides.current, 3);
    EXPECT_SAME(currentTitle(sidesList(*printer, {{q("sides"), q("folded")}})), q("folded"));
}

/// Adds an option with two choices, the first the default.
void addTwo(test::PpdText &ppd, const char *option, const char *one, const char *other)
{
    ppd.add({option, option, test::PpdUi::PickOne, {{one, one}, {other, other}}, one});
}

TEST_F(PrinterLists, NameEveryOptionThatTheWindowSets)
{
    test::PpdText ppd = duplexPrinter();
    addTwo(ppd, "Collate", "False", "True");
    addTwo(ppd, "OutputOrder", "Normal", "Reverse");
    addTwo(ppd, "Orientation", "Portrait", "Landscape");
    addTwo(ppd, "Glue", "Off", "On");
    const QStringList expected{q("PageSize"), q("PageRegion"),  q("Duplex"),
                               q("Collate"),  q("OutputOrder"), q("Orientation")};
    EXPECT_EQ(optionsOfTheWindow(*open(ppd)), expected);
}

TEST_F(PrinterLists, LeaveToThePrintersFeaturesWhatTheWindowWouldShowWrong)
{
    test::PpdText ppd = test::p1();
    addTwo(ppd, "OutputOrder", "Reverse", "Normal");
    const auto printer = open(ppd);
    EXPECT_FALSE(optionsOfTheWindow(*printer).contains(q("OutputOrder")));
    printer->mark({q("OutputOrder"), q("Normal")});
    EXPECT_TRUE(optionsOfTheWindow(*printer).contains(q("OutputOrder")));
}

} // namespace
