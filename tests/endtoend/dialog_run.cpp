#include "tests/endtoend/dialog_run.h"

#include "dialog/replay/input.h"
#include "dialog/window/print_window.h"
#include "tests/dialog/staged_driver.h"
#include "tests/endtoend/panel_hands.h"
#include "tests/support/print_to.h"

#include <QApplication>
#include <QEventLoop>
#include <QComboBox>
#include <QEventLoop>
#include <QJsonDocument>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <stdexcept>

namespace test {

namespace input = dialog::replay::input;

namespace {

constexpr int kPatienceMilliseconds = 20'000;

PrintedJob jobOf(const dialog::JobRecord &record)
{
    const QJsonDocument ticket = QJsonDocument::fromJson(fileBytes(record.ticketPath));
    EXPECT_TRUE(ticket.isObject()) << record.ticketPath.toStdString();
    return {record.id.toInt(), record.options, ticket.object(), false};
}

} // namespace

QString samplePpd(const char *fileName)
{
    return q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/") + q(fileName);
}

QString sampleDocument()
{
    return q(KORVANE_SAMPLE_DOCUMENT);
}

DialogRun::DialogRun(dialog::PrintCase printCase)
{
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false); // lists open at once
    printCase.root = q(KORVANE_ROOT_DIR);
    printCase.document = sampleDocument();
    printCase.jobFolder = jobs_.path();
    dialog::PrintDialog::Opened opened;
    QEventLoop loop;
    dialog::PrintDialog::openLater(&loop, printCase, [&](dialog::PrintDialog::Opened answer) {
        opened = std::move(answer);
        loop.quit();
    });
    loop.exec();
    if (const auto *problem = std::get_if<QString>(&opened))
        throw std::runtime_error(problem->toStdString());
    dialog_ = std::move(std::get<std::unique_ptr<dialog::PrintDialog>>(opened));
    QObject::connect(&dialog_->host(), &dialog::DialogHost::answered,
                     [this](const dialog::Choice &offered, bool accepted) {
                         offers_.push_back({offered, accepted});
                     });
}

DialogRun::~DialogRun() = default;

void DialogRun::preset(const dialog::Choices &choices)
{
    for (const dialog::Choice &choice : choices) {
        ASSERT_TRUE(dialog_->printer().hasChoice(choice)) << choice.choice.toStdString();
        dialog_->printer().mark(choice);
    }
    dialog_->host().followPageSize();
}

void DialogRun::showPanels()
{
    dialog_->showPanels();
    ASSERT_FALSE(dialog_->panels().loaded().empty()) << "the plug-in has not been loaded";
    QCoreApplication::processEvents();
}

void DialogRun::showPanelOf(const QString &option)
{
    const QString kind = panelKindOf(option);
    for (const dialog::LoadedPanel &panel : dialog_->panels().loaded()) {
        auto *popUp = dialog_->window()->findChild<QComboBox *>(q("panelPopUp"));
        if (panel.kind != kind || popUp->currentText() == panel.title)
            continue;
        EXPECT_NULL(input::choose(popUp, popUp->findText(panel.title)));
        QCoreApplication::processEvents();
    }
}

void DialogRun::choose(const dialog::Choice &choice)
{
    showPanelOf(choice.option);
    test::choose(dialog_->window(), choice);
}

QString DialogRun::obstacleTo(const dialog::Choice &choice)
{
    showPanelOf(choice.option);
    return test::obstacleTo(dialog_->window(), choice);
}

QString DialogRun::shown(const QString &option) const
{
    return shownChoice(dialog_->window(), option);
}

bool DialogRun::answerReview()
{
    auto *anyway = dialog_->window()->findChild<QPushButton *>(q("printAnywayButton"));
    if (!anyway || !anyway->isVisible())
        return false;
    EXPECT_NULL(input::click(anyway));
    return true;
}

Pressed DialogRun::press()
{
    Pressed pressed;
    bool hasEnded = false;
    QEventLoop loop;
    const auto end = [&] {
        hasEnded = true;
        loop.quit();
    };
    const auto fail = [&](const QString &notice) {
        pressed.failure = notice;
        end();
    };
    QObject::connect(dialog_.get(), &dialog::PrintDialog::jobMade, &loop,
                     [&](const dialog::JobRecord &record) {
                         pressed.job = jobOf(record);
                         end();
                     });
    QObject::connect(dialog_.get(), &dialog::PrintDialog::jobFailed, &loop, fail);
    QTimer::singleShot(kPatienceMilliseconds, &loop, [&] { fail(q("no job in time")); });
    EXPECT_NULL(input::click(dialog_->window()->findChild<QPushButton *>(q("printButton"))));
    const bool wasReviewed = !hasEnded && answerReview();
    if (!hasEnded)
        loop.exec();
    if (pressed.job)
        pressed.job->wasReviewed = wasReviewed;
    return pressed;
}

std::optional<PrintedJob> DialogRun::print()
{
    const Pressed pressed = press();
    EXPECT_TRUE(pressed.job) << pressed.failure.toStdString();
    return pressed.job;
}

} // namespace test
