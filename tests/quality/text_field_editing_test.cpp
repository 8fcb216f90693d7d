#include "quality/text_field_editing.h"
#include "tests/support/print_to.h"

#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

using test::q;

namespace {

/// A field whose delegate writes down what it is told and what the field shows then.
class EditedField
{
public:
    explicit EditedField(const char *text)
    {
        field.setText(q(text));
        const auto note = [this](const char *what) {
            return [this, what](QLineEdit *told) { heard.append(q(what) + told->text()); };
        };
        TextFieldEditing::of(&field)->setDelegate(&field, note("begin "), note("change "));
        field.show();
        field.setFocus();
    }

    void key(Qt::Key key) { QTest::keyClick(&field, key); }

    QLineEdit field;
    QStringList heard;
};

std::unique_ptr<ThresholdFormatter> oneToFive()
{
    return std::make_unique<ThresholdFormatter>(
        1, 5, 1, CharacterSet::charactersInString(q("12345")), q("3"));
}

} // namespace

TEST(TextFieldEditing, BeginsWithTheTextBeforeTheFirstEdit)
{
    EditedField edited("3");
    edited.key(Qt::Key_4);
    edited.key(Qt::Key_5);
    EXPECT_EQ(edited.heard, QStringList({q("begin 3"), q("change 34"), q("change 345")}));
    EXPECT_EQ(edited.field.cursorPosition(), 3);
}

TEST(TextFieldEditing, KeepsTheCursorWhereThePersonTypes)
{
    EditedField edited("35");
    edited.key(Qt::Key_Home);
    edited.key(Qt::Key_4);
    EXPECT_TEXT(edited.field.text(), "435");
    EXPECT_EQ(edited.field.cursorPosition(), 1);
}

TEST(TextFieldEditing, ChangesByTheProgramAreNoEdits)
{
    EditedField edited("3");
    edited.field.setText(q("5"));
    edited.field.clear();
    EXPECT_EQ(edited.heard, QStringList());
    edited.field.setText(q("2"));
    edited.key(Qt::Key_Backspace);
    EXPECT_EQ(edited.heard, QStringList({q("begin 2"), q("change ")}));
}

TEST(TextFieldEditing, TheDelegateHearsTheJudgedText)
{
    EditedField edited("3");
    TextFieldEditing::of(&edited.field)->setFormatter(oneToFive());
    edited.key(Qt::Key_A);
    edited.key(Qt::Key_Backspace);
    EXPECT_EQ(edited.heard, QStringList({q("begin 3"), q("change 3"), q("change 1")}));
}

TEST(TextFieldEditing, AFormatterAttachedAtTheBeginningJudgesThatEdit)
{
    QLineEdit field(q("3"));
    TextFieldEditing::of(&field)->setDelegate(
        &field, [](QLineEdit *told) { TextFieldEditing::of(told)->setFormatter(oneToFive()); }, {});
    QTest::keyClick(&field, Qt::Key_9);
    EXPECT_TEXT(field.text(), "3");
}

TEST(TextFieldEditing, ReturnAndTheFocusEndASession)
{
    EditedField edited("3");
    edited.key(Qt::Key_4);
    edited.key(Qt::Key_Return);
    edited.key(Qt::Key_5);
    QFocusEvent away(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&edited.field, &away);
    edited.key(Qt::Key_Backspace);
    EXPECT_EQ(edited.heard, QStringList({q("begin 3"), q("change 34"), q("begin 34"),
                                         q("change 345"), q("begin 345"), q("change 34")}));
}

TEST(TextFieldEditing, TellsNobodyWhoIsGone)
{
    QLineEdit field(q("3"));
    bool wasTold = false;
    {
        QObject delegate;
        const auto tell = [&](QLineEdit *) { wasTold = true; };
        TextFieldEditing::of(&field)->setDelegate(&delegate, tell, tell);
    }
    QTest::keyClick(&field, Qt::Key_4);
    EXPECT_FALSE(wasTold);
    EXPECT_TEXT(field.text(), "34");
}

TEST(TextFieldEditing, ThereIsOneForEachField)
{
    QLineEdit field;
    EXPECT_EQ(TextFieldEditing::of(&field), TextFieldEditing::of(&field));
    EXPECT_EQ(TextFieldEditing::of(nullptr), nullptr);
}
