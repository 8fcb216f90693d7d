// What a person types that is nobody else's business: paths and file names in the dialog for files,
// name and password where a print server wants them.

#include "dialog/print_dialog.h"
#include "dialog/record/recorder.h"
#include "dialog/replay/input.h"
#include "dialog/window/print_window.h"
#include "dialog/window/sign_in_prompt.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;
namespace input = dialog::replay::input;

namespace {

/// A person who saves into a folder of her own, and signs in, while the dialog records.
class PrivateInput : public testing::Test
{
protected:
    PrivateInput()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
        EXPECT_TRUE(QDir().mkpath(driver.path(q("alice/secret plans"))));
        PrintCase printCase;
        printCase.ppd = driver.writePrinter();
        printCase.root = driver.root();
        auto opened = PrintDialog::open(printCase);
        dialog = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
        auto made = record::Recording::create(driver.path(q("recording")));
        recorder = std::make_unique<record::Recorder>(
            std::move(std::get<std::unique_ptr<record::Recording>>(made)), *dialog);
        dialog->showPanels();
        QApplication::processEvents();
        start = recorded();
    }

    [[nodiscard]] QStringList recorded() const
    {
        return QString::fromUtf8(test::fileBytes(driver.path(q("recording"))))
            .split(u'\n', Qt::SkipEmptyParts);
    }
    /// What the person did.
    [[nodiscard]] QStringList steps() const { return recorded().mid(start.size()); }
    [[nodiscard]] QString hers(const char *file) const
    {
        return driver.path(q("alice/secret plans/") + q(file));
    }
    static void press(Qt::Key key)
    {
        input::key(QApplication::activeWindow(), QKeyCombination(key));
        QApplication::processEvents();
    }
    /// Presses Save, picks the entry, and answers the dialog for files.
    QFileDialog *openFileDialog(const char *entry) const
    {
        auto *save = dialog->window()->findChild<QPushButton *>(q("saveButton"));
        const auto pick = [&] {
            EXPECT_NULL(input::clickEntry(dialog->window()->findChild<QAction *>(q(entry))));
        };
        QObject::connect(
            save->menu(), &QMenu::aboutToShow, save->menu(), pick,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
        EXPECT_NULL(input::click(save)); // until the menu has closed
        QApplication::processEvents();
        auto *files = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        EXPECT_TRUE(files);
        return files;
    }
    static void typeName(const QFileDialog *files, const QString &name)
    {
        EXPECT_NULL(input::type(files->findChild<QLineEdit *>(q("fileNameEdit")), name));
        QApplication::processEvents();
    }

    test::StagedDriver driver;
    std::unique_ptr<PrintDialog> dialog;
    std::unique_ptr<record::Recorder> recorder;
    QStringList start;
};

} // namespace

TEST_F(PrivateInput, ASavedFileIsRecordedUnderANameThatTellsNothing)
{
    typeName(openFileDialog("saveTicket"), hers("divorce.json"));
    press(Qt::Key_Return);
    EXPECT_TRUE(QFileInfo::exists(hers("divorce.json"))) << "the dialog for files was used";
    typeName(openFileDialog("savePdf"), hers("divorce.pdf"));
    press(Qt::Key_Return);
    EXPECT_EQ(steps(), (QStringList{q("save-ticket saved.json"), q("save-pdf saved.pdf")}));
}

TEST_F(PrivateInput, NothingOfTheWayToAFileIsRecorded)
{
    QFileDialog *files = openFileDialog("saveTicket");
    files->setDirectory(driver.path(q("alice/secret plans")));
    EXPECT_NULL(input::choose(files->findChild<QComboBox *>(q("lookInCombo")), 0));
    EXPECT_NULL(input::click(files->findChild<QToolButton *>(q("toParentButton"))));
    EXPECT_NULL(input::click(files->findChild<QToolButton *>(q("detailModeButton"))));
    typeName(files, q("/home/alice"));
    press(Qt::Key_Tab);
    typeName(files, hers("affair.json"));
    while (QApplication::activePopupWidget()) // names that begin so
        press(Qt::Key_Escape);
    EXPECT_NULL(
        input::click(files->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)));
    QApplication::processEvents();
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_FALSE(QFileInfo::exists(hers("affair.json")));
    EXPECT_EQ(steps(), QStringList());
}

TEST_F(PrivateInput, TheQuestionOfAFileThatIsThereIsNotRecorded)
{
    static_cast<void>(driver.write(q("alice/secret plans/will.json"), "old"));
    typeName(openFileDialog("saveTicket"), hers("will.json"));
    bool isAsked = false;
    QTimer::singleShot(0, [&] {
        auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_TRUE(question);
        isAsked = true;
        EXPECT_NULL(input::click(question->button(QMessageBox::Yes)));
    });
    press(Qt::Key_Return);
    EXPECT_TRUE(isAsked);
    EXPECT_NE(test::fileBytes(hers("will.json")), "old");
    EXPECT_EQ(steps(), QStringList{q("save-ticket saved.json")});
}

TEST_F(PrivateInput, NameAndPasswordAreNotRecorded)
{
    auto *prompt = new SignInPrompt({q("office:631"), {}}, q("ink"));
    dialog->window()->showQuestion(prompt);
    prompt->takeFocus();
    QApplication::processEvents();
    EXPECT_NULL(input::type(prompt->findChild<QLineEdit *>(q("signInUser")), q("alice")));
    press(Qt::Key_Tab);
    EXPECT_NULL(input::type(prompt->findChild<QLineEdit *>(q("signInPassword")), q("sesame")));
    press(Qt::Key_Return);
    EXPECT_NULL(input::click(prompt->findChild<QPushButton *>(q("signInButton"))));
    const auto typed = prompt->takeCredentials();
    EXPECT_STREQ(typed->user(), "alice");
    EXPECT_STREQ(typed->password(), "sesame");
    EXPECT_EQ(steps(), QStringList());
}
