#include "dialog/window/sign_in_prompt.h"
#include "tests/support/print_to.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

/// The prompt in a window whose default button prints.
class SignInPrompts : public testing::Test
{
protected:
    void show(const SignInQuestion &question)
    {
        prompt = new SignInPrompt(question, q("ink"));
        auto *column = new QVBoxLayout(&window);
        column->addWidget(prompt);
        column->addWidget(print);
        print->setDefault(true);
        window.show();
        prompt->takeFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    [[nodiscard]] QLineEdit *field(const char *name) const
    {
        return prompt->findChild<QLineEdit *>(q(name));
    }
    [[nodiscard]] QString words() const
    {
        return prompt->findChild<QLabel *>(q("signInWords"))->text();
    }

    QDialog window;
    QPushButton *print = new QPushButton(q("Print"));
    SignInPrompt *prompt = nullptr;
};

} // namespace

TEST_F(SignInPrompts, TellWhoAsksAndTakeThePasswordByKeyboardAlone)
{
    show({q("office:631"), q("alice")});
    EXPECT_TRUE(words().contains(q("office:631")));
    EXPECT_TRUE(words().contains(q("ink")));
    EXPECT_FALSE(words().contains(q("did not accept")));
    EXPECT_FALSE(words().contains(q("encrypted")));
    EXPECT_TEXT(field("signInUser")->text(), "alice");
    EXPECT_TRUE(field("signInPassword")->hasFocus());
    EXPECT_NE(field("signInPassword")->displayText(), q("secret"));
    QSignalSpy signedIn(prompt, &SignInPrompt::signInPressed);
    QSignalSpy printed(print, &QPushButton::clicked);
    QTest::keyClicks(QApplication::focusWidget(), q("secret"));
    EXPECT_FALSE(field("signInPassword")->displayText().contains(u's'));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(signedIn.size(), 1);
    EXPECT_EQ(printed.size(), 0);
    const auto typed = prompt->takeCredentials();
    EXPECT_STREQ(typed->user(), "alice");
    EXPECT_STREQ(typed->password(), "secret");
    EXPECT_TRUE(field("signInPassword")->text().isEmpty()) << "what was typed stays nowhere";
}

TEST_F(SignInPrompts, SayThatANameWasWrongAndThatOthersCanRead)
{
    show({q("office:631"), QString(), true, true});
    EXPECT_TRUE(words().contains(q("did not accept")));
    EXPECT_TRUE(words().contains(q("not encrypted")));
    EXPECT_TRUE(field("signInUser")->hasFocus()) << "the name is missing";
}

TEST_F(SignInPrompts, AreLeftByEscapeOrTheirButton)
{
    show({q("office:631"), q("alice")});
    QSignalSpy cancelled(prompt, &SignInPrompt::cancelPressed);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(cancelled.size(), 1);
    EXPECT_TRUE(window.isVisible()) << "the dialog stays";
    QTest::mouseClick(prompt->findChild<QPushButton *>(q("signInCancel")), Qt::LeftButton);
    EXPECT_EQ(cancelled.size(), 2);
}
