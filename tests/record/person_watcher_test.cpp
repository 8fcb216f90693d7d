#include "dialog/record/person_watcher.h"
#include "dialog/record/step_line.h"
#include "dialog/replay/input.h"
#include "platform/controls/modal_session.h"
#include "platform/controls/pop_up_button.h"
#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"
#include "tests/support/print_to.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using dialog::record::lineOf;
using dialog::record::PersonWatcher;
using dialog::replay::Step;
using test::q;
namespace input = dialog::replay::input;

namespace {

/// A window of plain controls, used as a person uses them.
class Watcher : public testing::Test
{
protected:
    Watcher()
        : watcher([this] {
              QWidget *modal = QApplication::activeModalWidget();
              return modal ? modal : &window;
          })
    {
        QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
        QObject::connect(&watcher, &PersonWatcher::settled, [this] { isTentative = false; });
        QObject::connect(&watcher, &PersonWatcher::acted,
                         [this](const Step &step) { add(lineOf(step)); });
        QObject::connect(&watcher, &PersonWatcher::perhapsActed, [this](const Step &step) {
            add(lineOf(step));
            isTentative = true;
        });
        QObject::connect(&watcher, &PersonWatcher::withdrawn, [this] { takeBack(); });
        QObject::connect(&watcher, &PersonWatcher::actedWithoutName, [this] { add(q("?")); });
        auto *column = new QVBoxLayout(&window);
        popUp.addItems({q("one"), q("two"), q("two"), q("#3"), q("four words in it")});
        matrix.setTitles({q("a"), q("b")});
        stepper.setMaximum(5);
        stepper.setValue(3);
        name("popUp", popUp), name("matrix", matrix), name("stepper", stepper);
        name("box", box), name("button", button), name("field", field);
        for (QWidget *control :
             std::initializer_list<QWidget *>{&popUp, &matrix, &stepper, &box, &button, &field})
            column->addWidget(control);
        window.show();
        QApplication::processEvents();
    }

    static void name(const char *name, QWidget &control) { control.setObjectName(q(name)); }
    void add(const QString &line)
    {
        takeBack();
        lines.append(line);
    }
    void takeBack()
    {
        if (std::exchange(isTentative, false))
            lines.removeLast();
    }
    void press(const char *key) { input::key(&window, QKeySequence(q(key))[0]); }

    QDialog window;
    PopUpButton popUp;
    RadioMatrix matrix;
    Stepper stepper;
    QCheckBox box;
    QPushButton button;
    QLineEdit field;
    PersonWatcher watcher;
    QStringList lines;
    bool isTentative = false;
};

} // namespace

TEST_F(Watcher, TellsAPickByTitleOrByIndexWhereTheTitleDoesNotDo)
{
    for (int item = 0; item < popUp.count(); ++item)
        ASSERT_TRUE(input::choose(&popUp, item).isNull());
    EXPECT_EQ(lines,
              (QStringList{q("choose popUp one"), q("choose popUp two"), q("choose popUp #2"),
                           q("choose popUp #3"), q("choose popUp 'four words in it'")}));
}

TEST_F(Watcher, TellsTheSameItemAgainAndNoDismissedList)
{
    ASSERT_TRUE(input::choose(&popUp, 0).isNull());
    ASSERT_TRUE(input::click(&popUp).isNull());
    press("Down");
    press("Escape");
    EXPECT_EQ(lines, QStringList{q("choose popUp one")});
}

TEST_F(Watcher, TellsKeysAndWheelOnAClosedPopUpAsPicks)
{
    popUp.setFocus();
    press("Down");
    input::wheel(&popUp, input::Turn::Up);
    EXPECT_EQ(lines, (QStringList{q("choose popUp two"), q("choose popUp one")}));
}

TEST_F(Watcher, TellsNothingOfWhatTheProgramDoes)
{
    button.setFocus();
    popUp.setCurrentIndex(2);
    box.setChecked(true);
    stepper.setValue(4);
    matrix.selectRow(1);
    field.setText(q("x"));
    input::wheel(&popUp, input::Turn::Down); // without the focus
    EXPECT_TRUE(lines.isEmpty()) << lines.join(u'|').toStdString();
}

TEST_F(Watcher, TellsTicksRowsStepsAndClicks)
{
    ASSERT_TRUE(input::click(&box).isNull());
    ASSERT_TRUE(input::click(&box).isNull());
    ASSERT_TRUE(input::click(matrix.button(1)).isNull());
    ASSERT_TRUE(input::click(stepper.downButton()).isNull());
    ASSERT_TRUE(input::click(&button).isNull());
    EXPECT_EQ(lines, (QStringList{q("tick box"), q("untick box"), q("row matrix 1"),
                                  q("step stepper down"), q("click button")}));
}

TEST_F(Watcher, TellsKeysByWhatTheyDoToTheControl)
{
    box.setFocus();
    press("Space");
    stepper.setFocus();
    press("Up");
    press("Tab");
    EXPECT_EQ(lines, (QStringList{q("tick box"), q("step stepper up"), q("key Tab")}));
}

TEST_F(Watcher, TellsAnEditAsItsFinalText)
{
    ASSERT_TRUE(input::type(&field, q("abc")).isNull());
    press("Backspace");
    EXPECT_EQ(lines, QStringList{q("type field ab")});
    ASSERT_TRUE(input::click(&box).isNull());
    ASSERT_TRUE(input::paste(&field, q("x y")).isNull());
    EXPECT_EQ(lines, (QStringList{q("type field ab"), q("tick box"), q("type field 'x y'")}));
}

TEST_F(Watcher, TellsNoClickThatIsDroppedOutsideTheButton)
{
    QObject::connect(&button, &QPushButton::pressed, [&] { button.setEnabled(false); });
    ASSERT_TRUE(input::click(&button).isNull());
    EXPECT_TRUE(lines.isEmpty()) << lines.join(u'|').toStdString();
}

TEST_F(Watcher, SaysThatAControlHasNoName)
{
    button.setObjectName(QString());
    ASSERT_TRUE(input::click(&button).isNull());
    EXPECT_EQ(lines, QStringList{q("?")});
}

TEST_F(Watcher, TellsTheActionBeforeTheStepsInTheWindowThatItOpens)
{
    QDialog modal;
    modal.setObjectName(q("modal"));
    QPushButton ok(&modal);
    ok.setObjectName(q("ok"));
    QObject::connect(&ok, &QPushButton::clicked, [] { platform::stopModal(); });
    QObject::connect(&popUp, &QComboBox::activated, [&] {
        QTimer::singleShot(0, [&] { static_cast<void>(input::click(&ok)); });
        platform::runModalForWindow(&modal);
        platform::closeWindow(&modal);
    });
    ASSERT_TRUE(input::choose(&popUp, 1).isNull());
    EXPECT_EQ(lines, (QStringList{q("choose popUp two"), q("click ok")}));
}
