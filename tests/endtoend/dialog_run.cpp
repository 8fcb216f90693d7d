#include "tests/endtoend/dialog_run.h"

#include "dialog/replay/input.h"
#include "dialog/window/print_window.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QJsonDocument>
#include <QTimer>

#include <gtest/gtest.h>

#include <stdexcept>

namespace test {
namespace {

constexpr int kPatienceMilliseconds = 20'000;

struct PopUpOfOption
{
    const char *option;
    const char *popUp;
};

// clang-format off
constexpr PopUpOfOption kPopUps[] = {
    {"PrintQuality", "ibPrintQuality"},
    {"MediaType",    "ibPaperType"},
    {"PaperSource",  "ibPaperSource"},
};
// clang-format on

PrintedJob jobOf(const dialog::JobRecord &record)
{
    const QJsonDocument ticket = QJsonDocument::fromJson(fileBytes(record.ticketPath));
    EXPECT_TRUE(ticket.isObject()) << record.ticketPath.toStdString();
    return {record.id.toInt(), record.options, ticket.object()};
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
    dialog::PrintDialog::Opened opened = dialog::PrintDialog::open(printCase);
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
    ASSERT_EQ(dialog_->panels().size(), 1U) << "the plug-in has not been loaded";
    QCoreApplication::processEvents();
}

QStringList DialogRun::options()
{
    QStringList names;
    for (const PopUpOfOption &row : kPopUps)
        names.append(q(row.option));
    return names;
}

void DialogRun::choose(const dialog::Choice &choice)
{
    QComboBox *control = popUp(choice.option);
    ASSERT_TRUE(control && control->isVisible() && control->isEnabled());
    const int index = control->findData(choice.choice);
    ASSERT_GE(index, 0) << "no item " << choice.choice.toStdString();
    EXPECT_NULL(dialog::replay::input::choose(control, index));
    QCoreApplication::processEvents(); // what a person does next is another action
}

QComboBox *DialogRun::popUp(const QString &option) const
{
    for (const auto &[name, control] : kPopUps) {
        if (option == q(name))
            return dialog_->window()->findChild<QComboBox *>(q(control));
    }
    return nullptr;
}

QString DialogRun::shown(const QString &option) const
{
    const QComboBox *control = popUp(option);
    return control ? control->currentData().toString() : QString();
}

std::optional<PrintedJob> DialogRun::print()
{
    std::optional<PrintedJob> job;
    bool hasEnded = false;
    QEventLoop loop;
    const auto end = [&] {
        hasEnded = true;
        loop.quit();
    };
    const auto fail = [&](const QString &notice) {
        ADD_FAILURE() << notice.toStdString();
        end();
    };
    QObject::connect(dialog_.get(), &dialog::PrintDialog::jobMade, &loop,
                     [&](const dialog::JobRecord &record) {
                         job = jobOf(record);
                         end();
                     });
    QObject::connect(dialog_.get(), &dialog::PrintDialog::jobFailed, &loop, fail);
    QTimer::singleShot(kPatienceMilliseconds, &loop, [&] { fail(q("no job in time")); });
    dialog_->print(dialog::PrintDialog::Review::Skip);
    if (!hasEnded)
        loop.exec();
    return job;
}

} // namespace test
