#include "dialog/panels/features_panel.h"

#include "dialog/host/dialog_host.h"
#include "dialog/panels/choice_list.h"
#include "dialog/panels/feature_control.h"
#include "dialog/printers/ppd_document.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

std::unique_ptr<PpdDocument> finisher()
{
    PpdDocument::Opened opened =
        PpdDocument::open(q(KORVANE_SOURCE_DIR "/tests/scenarios/printers/finisher.ppd"));
    return std::move(std::get<std::unique_ptr<PpdDocument>>(opened));
}

struct FeaturesPanelTest : testing::Test
{
    std::unique_ptr<PpdDocument> printer = finisher();
    DialogHost host{*printer};
    FeaturesPanel panel{*printer, host, {q("PageSize"), q("PageRegion")}};

    template <class Control>
    Control *control(const char *name)
    {
        auto *found = panel.findChild<Control *>(q(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
};

TEST_F(FeaturesPanelTest, MakesItsControlsWhenItIsFirstShown)
{
    EXPECT_FALSE(panel.isEmpty());
    EXPECT_TRUE(panel.findChildren<QWidget *>().isEmpty());
    panel.refresh();
    EXPECT_TRUE(control<QComboBox>("feature:Fold"));
    EXPECT_TRUE(control<QCheckBox>("feature:Stacker"));
    EXPECT_TRUE(control<QCheckBox>("feature:Holes=Left"));
}

TEST_F(FeaturesPanelTest, IsEmptyWhereOtherPartsShowEverything)
{
    QStringList all = printer->options();
    EXPECT_TRUE(FeaturesPanel(*printer, host, all).isEmpty());
    all.removeOne(q("Stitch"));
    EXPECT_FALSE(FeaturesPanel(*printer, host, all).isEmpty());
}

TEST_F(FeaturesPanelTest, ShowsWhatIsBuiltInButChangesNothingOfIt)
{
    panel.refresh();
    EXPECT_FALSE(control<QCheckBox>("feature:StackerInstalled")->isEnabled());
    EXPECT_TRUE(control<QCheckBox>("feature:Stacker")->isEnabled())
        << "what it forbids can be picked, and is then explained";
}

TEST_F(FeaturesPanelTest, DimsAChoiceThatCannotBeHadAndSaysWhy)
{
    printer->mark({q("MediaWeight"), q("Heavy")});
    panel.refresh();
    const auto *fold = control<QComboBox>("feature:Fold");
    const QModelIndex booklet = fold->model()->index(2, 0);
    EXPECT_TEXT(booklet.data().toString(), "As a Booklet");
    EXPECT_TEXT(ChoiceList::reasonAt(booklet), "not with Paper Weight: Heavy");
    EXPECT_EQ(booklet.data(Qt::AccessibleDescriptionRole), ChoiceList::reasonAt(booklet));
    EXPECT_TRUE(booklet.flags() & Qt::ItemIsEnabled) << "picking it opens the sheet";
    EXPECT_EQ(booklet.data(Qt::ForegroundRole).value<QColor>(), dimmedText(panel.palette()));
    EXPECT_TRUE(ChoiceList::reasonAt(fold->model()->index(1, 0)).isNull());
}

TEST_F(FeaturesPanelTest, GoesBackToWhatHoldsWhenAChoiceIsRefused)
{
    printer->mark({q("MediaWeight"), q("Heavy")});
    panel.refresh();
    auto *fold = control<QComboBox>("feature:Fold");
    fold->setCurrentIndex(2);
    Q_EMIT fold->activated(2);
    EXPECT_EQ(fold->currentIndex(), 0);
    EXPECT_TEXT(printer->marked(q("Fold")), "None");
}

TEST_F(FeaturesPanelTest, TellsAChangeFromTheDefault)
{
    panel.refresh();
    EXPECT_TRUE(control<QLabel>("changed:Stitch")->text().isEmpty());
    printer->mark({q("Stitch"), q("Twice")});
    panel.refresh();
    EXPECT_FALSE(control<QLabel>("changed:Stitch")->text().isEmpty());
    EXPECT_TEXT(control<QLabel>("changed:Stitch")->accessibleName(),
                "Changed from the default “None”");
}

TEST_F(FeaturesPanelTest, HasAFieldToFindOptionsOnlyWhereThereAreMany)
{
    panel.refresh();
    EXPECT_TRUE(control<QLineEdit>("featureFilter")->isHidden());
}

TEST_F(FeaturesPanelTest, ShowsWhatMatchesTheTextOrSaysThatNothingDoes)
{
    panel.refresh();
    auto *filter = control<QLineEdit>("featureFilter");
    filter->setText(q("booklet"));
    EXPECT_TRUE(control<QComboBox>("feature:Fold")->isVisibleTo(&panel));
    EXPECT_FALSE(control<QComboBox>("feature:Stitch")->isVisibleTo(&panel));
    EXPECT_TRUE(control<QLabel>("noFeatureMatches")->isHidden());
    filter->setText(q("nowhere"));
    EXPECT_FALSE(control<QComboBox>("feature:Fold")->isVisibleTo(&panel));
    EXPECT_FALSE(control<QLabel>("noFeatureMatches")->isHidden());
}

TEST_F(FeaturesPanelTest, SwitchesSeveralChoicesOfOneOption)
{
    panel.refresh();
    control<QCheckBox>("feature:Holes=Left")->click();
    control<QCheckBox>("feature:Holes=Top")->click();
    const QStringList both{q("Left"), q("Top")};
    EXPECT_EQ(printer->allMarked(q("Holes")), both);
    control<QCheckBox>("feature:Holes=Left")->click();
    EXPECT_EQ(printer->allMarked(q("Holes")), QStringList{q("Top")});
    EXPECT_FALSE(control<QCheckBox>("feature:Holes=Left")->isChecked());
    control<QCheckBox>("feature:Holes=Top")->click();
    EXPECT_EQ(printer->allMarked(q("Holes")), QStringList{q("None")});
}

TEST_F(FeaturesPanelTest, ShowsAmpersandsOfThePrinter)
{
    EXPECT_TEXT(literalText(q("Cut & Fold")), "Cut && Fold");
}

/// A printer with many options.
std::unique_ptr<PpdDocument> large(int options, int choices)
{
    test::PpdText ppd = test::p1();
    for (int i = 0; i < options; ++i) {
        const QByteArray keyword = "Extra" + QByteArray::number(i);
        test::PpdOption option{keyword, keyword, test::PpdUi::PickOne, {}, "C0"};
        for (int c = 0; c < choices; ++c)
            option.choices.push_back(
                {"C" + QByteArray::number(c), "Choice " + QByteArray::number(c)});
        ppd.add(option);
    }
    const QTemporaryDir folder;
    QFile file(folder.filePath(q("large.ppd")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(ppd.bytes());
    file.close();
    PpdDocument::Opened opened = PpdDocument::open(file.fileName());
    return std::move(std::get<std::unique_ptr<PpdDocument>>(opened));
}

/// What the panel is made of once it is shown.
qsizetype objectsOf(int options, int choices)
{
    const auto printer = large(options, choices);
    DialogHost host(*printer);
    FeaturesPanel panel(*printer, host, {});
    EXPECT_TRUE(panel.findChildren<QObject *>().isEmpty());
    panel.refresh();
    panel.refresh();
    EXPECT_GE(panel.findChildren<QComboBox *>().size(), options);
    return panel.findChildren<QObject *>().size();
}

TEST(LargeFeaturesPanel, IsMadeOfFewPartsHoweverManyChoicesThereAre)
{
    constexpr int kOptions = 200;
    constexpr qsizetype kMostPerOption = 8;
    const qsizetype few = objectsOf(kOptions, 2);
    EXPECT_EQ(objectsOf(kOptions, 50), few) << "choices are no objects";
    EXPECT_LE(few - objectsOf(0, 0), kOptions * kMostPerOption);
}

} // namespace
