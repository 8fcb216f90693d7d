#include "dialog/jobs/job_messages.h"
#include "dialog/print_dialog.h"
#include "dialog/window/print_window.h"
#include "tests/cups/queue_session.h"
#include "tests/support/print_to.h"

#include <QDirIterator>
#include <QEventLoop>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace dialog;
using test::FaultKind;
using test::Pressed;
using test::q;
using test::QueueSession;

namespace {

constexpr int kPatient = 20'000;
constexpr const char *kPassword = "open sesame";

/// A server that demands a name and password, and a person who is asked for them.
class SignIns : public testing::Test
{
protected:
    void SetUp() override { session.faults().demand("alice", kPassword); }

    /// Answers every question with that password.
    std::unique_ptr<QueuePrinting> asking(const char *password,
                                          const ServerLimits &limits = {kPatient})
    {
        auto printing = QueueSession::printing(limits);
        printing->setSignInBy(SignInBy::Person);
        QObject::connect(printing.get(), &QueuePrinting::signInWanted,
                         [this, password, to = printing.get()](const SignInQuestion &question) {
                             questions.push_back(question);
                             to->signIn(std::make_unique<Credentials>(q("alice"), password));
                         });
        return printing;
    }
    [[nodiscard]] bool isKept(const QByteArray &words) const
    {
        bool isFound = false;
        QDirIterator files(session.stateFolder(), QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            isFound = isFound || (file.open(QIODevice::ReadOnly) && file.readAll().contains(words));
        }
        return isFound;
    }

    QueueSession session;
    std::vector<SignInQuestion> questions;
};

} // namespace

TEST_F(SignIns, AreAskedForOnceAndTheJobPrintsOnce)
{
    const auto printing = asking(kPassword);
    const Pressed pressed = session.press(*printing, q("private"));
    ASSERT_GT(pressed.result.jobId, 0) << pressed.result.detail.toStdString();
    ASSERT_EQ(questions.size(), 1U);
    EXPECT_FALSE(questions[0].wasWrong);
    EXPECT_FALSE(questions[0].isReadable) << "nobody reads on the machine itself";
    EXPECT_TEXT(questions[0].server, qPrintable(session.faults().address()));
    ASSERT_TRUE(session.server().waitForJob(pressed.result.jobId));
    EXPECT_EQ(session.jobs().count(q("private")), 1U);
    EXPECT_EQ(session.journal(), QStringList());
}

TEST_F(SignIns, AreAskedForInTheWindowThatPrints)
{
    const QTemporaryDir jobs;
    PrintCase printCase;
    printCase.queue = QueueSession::queue();
    printCase.document = session.document();
    printCase.jobFolder = jobs.path();
    const auto dialog =
        PrintDialog::withPrinter(printCase, PpdDocument::withoutOptions(QueueSession::queue()));
    dialog->offerSignIn();
    dialog->showPanels();
    QSignalSpy made(dialog.get(), &PrintDialog::jobMade);
    QSignalSpy asked(&dialog->desk(), &JobDesk::signInWanted);
    QTest::mouseClick(dialog->window()->findChild<QPushButton *>(q("printButton")), Qt::LeftButton);
    ASSERT_TRUE(asked.wait(kPatient));
    auto *password = dialog->window()->findChild<QLineEdit *>(q("signInPassword"));
    ASSERT_TRUE(password && password->isVisible());
    auto *user = dialog->window()->findChild<QLineEdit *>(q("signInUser"));
    user->selectAll();
    QTest::keyClicks(user, q("alice"));
    QTest::keyClicks(password, q(kPassword));
    QTest::keyClick(password, Qt::Key_Return);
    ASSERT_TRUE(made.wait(kPatient));
    EXPECT_EQ(made.count(), 1);
    EXPECT_EQ(asked.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(dialog->window()->findChild<QLineEdit *>(q("signInPassword")))
        << "the question has gone with its answer";
}

TEST_F(SignIns, AreAskedForAnewWithTheNextJob)
{
    const auto printing = asking(kPassword);
    EXPECT_GT(session.press(*printing, q("a")).result.jobId, 0);
    EXPECT_GT(session.press(*printing, q("b")).result.jobId, 0);
    EXPECT_EQ(questions.size(), 2U) << "nothing is kept";
}

TEST_F(SignIns, HoldForEveryConnectionOfAJob)
{
    const auto printing = asking(kPassword);
    session.faults().misbehave({FaultKind::CutAnswers, 300});
    const Pressed pressed = session.press(*printing, q("twice connected"));
    EXPECT_TRUE(session.faults().hasMisbehaved());
    EXPECT_EQ(pressed.result.fault, JobFault::Broken);
    EXPECT_EQ(questions.size(), 1U) << "what the server has is looked up with the same password";
    EXPECT_EQ(session.journal(), QStringList());
}

TEST_F(SignIns, AreAskedForThreeTimesAtMost)
{
    const auto printing = asking("guess");
    const Pressed pressed = session.press(*printing, q("guessed"));
    EXPECT_EQ(pressed.result.fault, JobFault::NotAllowed);
    ASSERT_EQ(questions.size(), 3U);
    EXPECT_FALSE(questions[0].wasWrong);
    EXPECT_TRUE(questions[1].wasWrong);
    EXPECT_TRUE(questions[2].wasWrong);
    EXPECT_TEXT(questions[2].user, "alice");
    EXPECT_EQ(session.jobs().size(), 0U);
    EXPECT_EQ(session.journal(), QStringList());
    EXPECT_FALSE(faultMessage(pressed.result, QueueSession::queue()).isEmpty());
}

TEST_F(SignIns, ThatAreCancelledCancelTheJob)
{
    const auto printing = QueueSession::printing(kPatient);
    printing->setSignInBy(SignInBy::Person);
    QObject::connect(printing.get(), &QueuePrinting::signInWanted, printing.get(),
                     &QueuePrinting::cancel);
    EXPECT_EQ(session.press(*printing, q("cancelled")).result.fault, JobFault::Cancelled);
    EXPECT_EQ(session.jobs().size(), 0U);
    const auto next = asking(kPassword);
    EXPECT_GT(session.press(*next, q("cancelled")).result.jobId, 0) << "Print works again";
}

TEST_F(SignIns, AreNotWantedWhereNobodyCanBeAsked)
{
    const auto printing = QueueSession::printing(kPatient);
    int asked = 0;
    QObject::connect(printing.get(), &QueuePrinting::signInWanted, [&] { ++asked; });
    const Pressed pressed = session.press(*printing, q("batch"));
    EXPECT_EQ(pressed.result.fault, JobFault::NotAllowed);
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(session.journal(), QStringList());
}

TEST_F(SignIns, MayTakeLongerThanAServersAnswer)
{
    constexpr int kLimit = 400;
    const auto printing = QueueSession::printing(kLimit);
    printing->setSignInBy(SignInBy::Person);
    QObject::connect(printing.get(), &QueuePrinting::signInWanted, [&] {
        QTimer::singleShot(3 * kLimit, printing.get(), [&] {
            printing->signIn(std::make_unique<Credentials>(q("alice"), kPassword));
        });
    });
    const Pressed pressed = session.press(*printing, q("slow typist"));
    EXPECT_GT(pressed.result.jobId, 0) << static_cast<int>(pressed.result.fault);
    EXPECT_GE(pressed.ticks, 5) << "the main thread has waited";
}

TEST_F(SignIns, ThatNeverComeAreGivenUp)
{
    const auto printing = QueueSession::printing(ServerLimits{kPatient, 100});
    printing->setSignInBy(SignInBy::Person);
    EXPECT_EQ(session.press(*printing, q("away")).result.fault, JobFault::NotAllowed);
    EXPECT_EQ(session.journal(), QStringList());
}

TEST_F(SignIns, EndWithTheDialogThatAsked)
{
    auto printing = QueueSession::printing(kPatient);
    printing->setSignInBy(SignInBy::Person);
    QEventLoop loop;
    QObject::connect(printing.get(), &QueuePrinting::signInWanted, &loop, &QEventLoop::quit);
    QTimer::singleShot(kPatient, &loop, &QEventLoop::quit);
    printing->send({q("left"), session.document(), {}});
    loop.exec();
    printing.reset();
    const auto next = asking(kPassword);
    EXPECT_GT(session.press(*next, q("next")).result.jobId, 0);
    EXPECT_EQ(session.jobs().count(q("left")), 0U);
}

TEST_F(SignIns, AreWrittenNowhere)
{
    constexpr int kLimit = 300;
    const auto printing = asking(kPassword, {kLimit});
    session.faults().misbehave({FaultKind::Silence, 500});
    testing::internal::CaptureStderr();
    static_cast<void>(session.press(*printing, q("broken")));
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_EQ(session.journal().size(), 1) << "a broken job is kept in mind, its password is not";
    EXPECT_EQ(said.find(kPassword), std::string::npos);
    EXPECT_FALSE(isKept(kPassword));
    EXPECT_FALSE(isKept(QByteArray(kPassword).toBase64()));
}

TEST(SignInsAtARealServer, AreAskedForWhereItsPolicyWantsThem)
{
    QueueSession session;
    session.server().configure("<Policy locked>\n"
                               "  JobPrivateAccess all\n"
                               "  JobPrivateValues none\n"
                               "  <Limit Create-Job Print-Job>\n"
                               "    AuthType Basic\n"
                               "    Require valid-user\n"
                               "    Order deny,allow\n"
                               "  </Limit>\n"
                               "  <Limit All>\n"
                               "    Order deny,allow\n"
                               "  </Limit>\n"
                               "</Policy>\n");
    session.server().run(q("lpadmin"),
                         {q("-p"), QueueSession::queue(), q("-o"), q("printer-op-policy=locked")});
    const auto printing = QueueSession::printing(kPatient);
    printing->setSignInBy(SignInBy::Person);
    int asked = 0;
    QObject::connect(printing.get(), &QueuePrinting::signInWanted, [&] {
        ++asked;
        printing->cancel();
    });
    EXPECT_EQ(session.press(*printing, q("locked")).result.fault, JobFault::Cancelled);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(session.jobs().size(), 0U);
    EXPECT_EQ(session.journal(), QStringList());
}
