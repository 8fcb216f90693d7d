#include "dialog/settings/general_view.h"
#include "platform/controls/pop_up_button.h"
#include "tests/support/layout_check.h"
#include "tests/support/print_to.h"
#include "tests/support/user.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace dialog;
using test::q;
using testing::IsEmpty;

namespace {

PrinterList twoPapers()
{
    return {
        q("PageSize"), q("media"), {{q("A4 paper"), q("A4")}, {q("US Letter"), q("Letter")}}, 0};
}

/// Lives as in the window: what a person changes is set, and the next state shown.
class GeneralViewTest : public testing::Test
{
protected:
    GeneralViewTest()
    {
        state.paper = twoPapers();
        state.sides = {q("Duplex"), q("sides"), {{q("Off"), q("None")}, {q("Long"), q("Long")}}, 0};
        QObject::connect(&view, &GeneralView::settingsChanged, &view,
                         [this](const SettingChanges &changes) { set(changes); });
        QObject::connect(&view, &GeneralView::chosen, &view,
                         [this](const Choice &choice) { chosen.push_back(choice); });
        view.show(state);
        view.show();
    }
    void set(const SettingChanges &changes)
    {
        ++changesTold;
        for (const auto &[key, value] : changes) {
            if (value.isNull())
                state.settings.erase(key);
            else
                state.settings[key] = value;
        }
        view.show(state);
    }
    template <class Control>
    Control *control(const char *name)
    {
        return view.findChild<Control *>(q(name));
    }
    void type(const QString &text)
    {
        auto *field = control<QLineEdit>("pageRanges");
        field->setFocus();
        field->selectAll();
        text.isEmpty() ? QTest::keyClick(field, Qt::Key_Delete) : QTest::keyClicks(field, text);
    }
    QString setting(const char *key)
    {
        const auto found = state.settings.find(q(key));
        return found == state.settings.end() ? QString() : found->second.toString();
    }
    QString error()
    {
        const auto *label = control<QLabel>("pageRangesError");
        return label->isVisible() ? label->text() : QString();
    }

    GeneralView view;
    GeneralState state;
    Choices chosen;
    int changesTold = 0;
};

TEST_F(GeneralViewTest, LooksRight)
{
    view.resize(440, view.sizeHint().height());
    EXPECT_THAT(test::layout::findings(view), IsEmpty());
    EXPECT_THAT(test::layout::faint(view), IsEmpty());
    EXPECT_THAT(test::layout::withoutToolTip(view), IsEmpty());
    type(q("3-1"));
    view.resize(440, view.heightForWidth(440));
    EXPECT_THAT(test::layout::findings(view), IsEmpty());
}

TEST_F(GeneralViewTest, CountsCopiesAndCollatesThem)
{
    EXPECT_FALSE(control<QCheckBox>("collate")->isEnabled()) << "one copy";
    QTest::keyClick(control<QSpinBox>("copies"), Qt::Key_Up);
    EXPECT_SAME(setting("copies"), q("2"));
    EXPECT_TRUE(control<QCheckBox>("collate")->isChecked());
    test::user::click(control<QCheckBox>("collate"));
    EXPECT_SAME(setting("multiple-document-handling"), q("separate-documents-uncollated-copies"));
    QTest::keyClick(control<QSpinBox>("copies"), Qt::Key_Down);
    EXPECT_NULL(setting("copies"));
    EXPECT_FALSE(control<QCheckBox>("collate")->isEnabled());
}

TEST_F(GeneralViewTest, LeavesTheWheelAloneWithoutFocus)
{
    auto *copies = control<QSpinBox>("copies");
    control<QLineEdit>("pageRanges")->setFocus();
    const QPointF middle = QRectF(copies->rect()).center();
    QWheelEvent wheel(middle, copies->mapToGlobal(middle), {}, {0, 120}, {}, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(copies, &wheel);
    EXPECT_EQ(copies->value(), 1);
}

TEST_F(GeneralViewTest, TellsWhatAPersonPicks)
{
    test::user::click(control<QCheckBox>("reverse"));
    EXPECT_SAME(setting("outputorder"), q("reverse"));
    test::user::choose(control<PopUpButton>("pageSet"), 2);
    EXPECT_SAME(setting("page-set"), q("even"));
    test::user::choose(control<PopUpButton>("orientation"), 2);
    EXPECT_SAME(setting("orientation-requested"), q("4"));
    test::user::choose(control<PopUpButton>("orientation"), 0);
    EXPECT_NULL(setting("orientation-requested"));
}

TEST_F(GeneralViewTest, OffersPaperAndSidesToThePrinter)
{
    test::user::choose(control<PopUpButton>("paperSize"), 1);
    test::user::choose(control<PopUpButton>("twoSided"), 1);
    EXPECT_EQ(chosen, Choices({{q("PageSize"), q("Letter")}, {q("Duplex"), q("Long")}}));
    view.show(state);
    EXPECT_EQ(control<PopUpButton>("paperSize")->currentIndex(), 0) << "it was not accepted";
}

TEST_F(GeneralViewTest, SetsPaperAndSidesOfAPrinterWithoutAPpd)
{
    state.paper = {{}, q("media"), {{q("Any"), {}}, {q("A4"), q("iso_a4_210x297mm")}}, 1};
    view.show(state);
    test::user::choose(control<PopUpButton>("paperSize"), 1);
    EXPECT_SAME(setting("media"), q("iso_a4_210x297mm"));
    state.paper.current = 0;
    view.show(state);
    test::user::choose(control<PopUpButton>("paperSize"), 0);
    EXPECT_NULL(setting("media"));
}

TEST_F(GeneralViewTest, HidesWhatThePrinterDoesNotHave)
{
    state.sides = {};
    view.show(state);
    EXPECT_FALSE(control<PopUpButton>("twoSided")->isVisible());
    EXPECT_TRUE(control<PopUpButton>("paperSize")->isVisible());
    EXPECT_THAT(test::layout::findings(view), IsEmpty());
}

TEST_F(GeneralViewTest, TakesPagesAsTheyAreTyped)
{
    type(q("1-3, 7"));
    EXPECT_TRUE(control<QRadioButton>("pagesRange")->isChecked());
    EXPECT_SAME(setting("page-ranges"), q("1-3,7"));
    EXPECT_TEXT(control<QLineEdit>("pageRanges")->text(), "1-3, 7");
    EXPECT_NULL(view.problem());
    test::user::click(control<QRadioButton>("pagesAll"));
    EXPECT_NULL(setting("page-ranges"));
    test::user::click(control<QRadioButton>("pagesRange"));
    EXPECT_SAME(setting("page-ranges"), q("1-3,7")) << "what was typed is still there";
}

TEST_F(GeneralViewTest, TellsAnErrorWhileItStands)
{
    QStringList problems;
    QObject::connect(&view, &GeneralView::problemChanged, &view,
                     [&](const QString &problem) { problems.append(problem); });
    type(q("5-3"));
    EXPECT_TRUE(error().contains(q("3-5"))) << error().toStdString();
    EXPECT_SAME(view.problem(), error());
    EXPECT_SAME(control<QLineEdit>("pageRanges")->accessibleDescription(), error());
    EXPECT_SAME(setting("page-ranges"), q("5-")) << "the last that could be a setting";
    type(q("3-5"));
    EXPECT_NULL(error());
    EXPECT_NULL(problems.back());
    type(QString());
    EXPECT_FALSE(error().isEmpty()) << "no page is named";
    test::user::click(control<QRadioButton>("pagesAll"));
    EXPECT_NULL(error());
    EXPECT_NULL(view.problem());
}

TEST_F(GeneralViewTest, ComparesPagesWithTheDocument)
{
    type(q("20-30"));
    EXPECT_NULL(view.problem());
    view.setPageCount(25);
    EXPECT_NULL(view.problem()) << "cut short";
    EXPECT_TRUE(error().contains(q("25")));
    view.setPageCount(12);
    EXPECT_TRUE(view.problem().contains(q("12")));
    view.setPageCount(0);
    EXPECT_NULL(view.problem());
}

TEST_F(GeneralViewTest, SaysWhichPagesAreMeantWithSeveralOnASheet)
{
    view.setPageCount(11);
    type(q("1-3, 5-"));
    EXPECT_NULL(error());
    state.settings = {{q("number-up"), q("2")}, {q("page-ranges"), q("1-3,5-")}};
    view.show(state);
    EXPECT_TRUE(error().contains(q("printed sides"))) << error().toStdString();
    EXPECT_TRUE(error().contains(q("1-6, 9-"))) << error().toStdString();
    EXPECT_NULL(view.problem());
    type(q("6"));
    EXPECT_TRUE(error().contains(q(" 11 "))) << error().toStdString();
    type(q("7"));
    EXPECT_SAME(view.problem(), error());
    EXPECT_TRUE(error().contains(q("“7”"))) << "there are six sides";
    test::user::click(control<QRadioButton>("pagesAll"));
    EXPECT_NULL(error());
}

TEST_F(GeneralViewTest, LeavesWhatIsBeingTypedAloneUntilAReset)
{
    type(q("4-x"));
    state.settings[q("copies")] = q("3");
    view.show(state);
    EXPECT_TEXT(control<QLineEdit>("pageRanges")->text(), "4-x");
    state.settings.clear();
    view.reset(state);
    EXPECT_TRUE(control<QRadioButton>("pagesAll")->isChecked());
    EXPECT_NULL(view.problem());
    test::user::click(control<QRadioButton>("pagesRange"));
    EXPECT_TEXT(control<QLineEdit>("pageRanges")->text(), "");
}

TEST_F(GeneralViewTest, ShowsASettingThatIsInNoList)
{
    state.settings = {
        {q("page-set"), q("primes")}, {q("page-ranges"), q("2-4,9")}, {q("copies"), q("12")}};
    view.show(state);
    auto *pageSet = control<PopUpButton>("pageSet");
    EXPECT_TEXT(pageSet->currentText(), "primes");
    EXPECT_TEXT(control<QLineEdit>("pageRanges")->text(), "2-4, 9");
    EXPECT_EQ(control<QSpinBox>("copies")->value(), 12);
    EXPECT_EQ(changesTold, 0) << "showing is no choice of a person";
    test::user::choose(pageSet, 3);
    EXPECT_SAME(setting("page-set"), q("primes"));
    test::user::choose(pageSet, 0);
    EXPECT_EQ(pageSet->count(), 3);
}

} // namespace
