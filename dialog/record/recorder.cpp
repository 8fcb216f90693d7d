#include "dialog/record/recorder.h"

#include "dialog/print_dialog.h"
#include "dialog/record/step_line.h"
#include "dialog/window/print_window.h"
#include "platform/controls/pop_up_button.h"
#include "platform/values.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace dialog::record {
namespace {

using replay::Step;
using replay::StepKind;

// Other steps tell what these lead to, whatever way a person took: leaving, and saving a file.
const QString kToldOtherwise[] = {
    QStringLiteral("cancelButton"),
    QStringLiteral("saveButton"),
    QStringLiteral("savePdf"),
    QStringLiteral("saveTicket"),
};

/// As a replay finds it from the recording's folder.
QString pathFrom(const QString &recording, const QString &path)
{
    return QFileInfo(recording).absoluteDir().relativeFilePath(QFileInfo(path).absoluteFilePath());
}

/// A home folder has its user's name.
bool leadsThroughHome(const QString &recording, const QString &path)
{
    const QString home = pathFrom(recording, QDir::homePath());
    return home.endsWith(QFileInfo(QDir::homePath()).fileName()) && path.startsWith(home + u'/');
}

/// The word that gives back both the first language and the locale, where one can.
QString languageWord(const PrintCase &printCase)
{
    const QString locale = platform::localeIdentifier();
    if (!printCase.language.isNull())
        return printCase.language;
    return locale == QLatin1String("C") ? locale : platform::firstPreferredLanguage();
}

QString lineOrReason(const Step &step)
{
    const QString line = lineOf(step);
    return line.isNull() ? QStringLiteral("# not recorded: a text of several lines") : line;
}

bool isToldOtherwise(const Step &step)
{
    return step.kind == StepKind::Click &&
           std::find(std::begin(kToldOtherwise), std::end(kToldOtherwise),
                     step.arguments.first()) != std::end(kToldOtherwise);
}

bool isSetBeforePanels(StepKind kind)
{
    return kind == StepKind::Mark || kind == StepKind::Job || kind == StepKind::Paper;
}

} // namespace

Recorder::Recorder(std::unique_ptr<Recording> recording, PrintDialog &dialog)
    : recording_(std::move(recording)), dialog_(dialog), watcher_([&dialog] {
          QWidget *modal = QApplication::activeModalWidget();
          return modal ? modal : dialog.window();
      })
{
    writeCase(dialog.printCase());
    connect(&dialog, &PrintDialog::aboutToShowPanels, this, &Recorder::writeStart);
    connect(&dialog, &PrintDialog::fileNamed, this, &Recorder::writeSaving);
    connect(&dialog, &PrintDialog::left, this, &Recorder::writeLeaving);
    connect(&watcher_, &PersonWatcher::acted, this, &Recorder::writePersons);
    connect(&watcher_, &PersonWatcher::perhapsActed, this, &Recorder::writeTentative);
    connect(&watcher_, &PersonWatcher::withdrawn, this, [this] { recording_->takeBack(); });
    connect(&watcher_, &PersonWatcher::settled, this, [this] { recording_->keep(); });
    connect(&watcher_, &PersonWatcher::actedWithoutName, this, [this](const QWidget *control) {
        comment(QStringLiteral("not recorded: a control without a name, a ") +
                QString::fromLatin1(control->metaObject()->className()));
    });
}

Recorder::~Recorder() = default;

void Recorder::writeCase(const PrintCase &printCase)
{
    comment(QStringLiteral("Recorded by korvane-print; \"korvane-print replay FILE\" plays it."));
    writePrinter(printCase);
    writeRoot(printCase.root);
    write({StepKind::SystemVersion,
           {QStringLiteral("0x%1").arg(platform::systemVersion(), 0, 16)},
           0});
    write({StepKind::Language, {languageWord(printCase)}, 0});
}

/// Where the file stands nowhere, or its path would tell the user's name, a copy goes along.
void Recorder::writePrinter(const PrintCase &printCase)
{
    QString path = pathFrom(recording_->path(), printCase.ppd);
    if (printCase.ppd.isNull() || leadsThroughHome(recording_->path(), path)) {
        const QString copy = recording_->path() + QStringLiteral(".ppd");
        path = QFileInfo(copy).fileName();
        if (!QFile::copy(dialog_.printer().path(), copy))
            comment(QStringLiteral("the printer's file could not be copied to the next name"));
    }
    write({StepKind::Printer, {path}, 0});
}

void Recorder::writeRoot(const QString &root)
{
    if (root.isNull())
        return;
    const QString path = pathFrom(recording_->path(), root);
    if (leadsThroughHome(recording_->path(), path))
        comment(QStringLiteral("the driver root lies in a person's folder; give --root"));
    else
        write({StepKind::Root, {path}, 0});
}

void Recorder::writeStart()
{
    const Choices &defaults = dialog_.printer().defaults();
    for (const Choice &mark : dialog_.printer().marks()) {
        if (std::find(defaults.begin(), defaults.end(), mark) == defaults.end())
            write({StepKind::Mark, {mark.option, mark.choice}, 0});
    }
    for (const auto &[key, value] : dialog_.host().settings().all())
        write({StepKind::Job, {key, value.toString()}, 0});
    if (!dialog_.host().explicitPaperName().isNull())
        write({StepKind::Paper, {dialog_.host().explicitPaperName()}, 0});
}

void Recorder::writePersons(const Step &step)
{
    const QString &control = step.arguments.first();
    if (isToldOtherwise(step))
        return;
    if (step.kind == StepKind::Choose && control == dialog_.window()->panelPopUp()->objectName())
        write({StepKind::Show, {nameOfPanel(step.arguments.last())}, 0});
    else
        write(step);
}

/// An item is known by its title, or by its index where that does not do; then the kind does.
QString Recorder::nameOfPanel(const QString &item) const
{
    if (!item.startsWith(u'#'))
        return item;
    return dialog_.panels().kind(item.mid(1).toInt());
}

/// As a replay is told which file a person would name.
void Recorder::writeSaving(SaveKind kind)
{
    if (kind == SaveKind::Pdf)
        write({StepKind::SavePdf, {QStringLiteral("saved.pdf")}, 0});
    else
        write({StepKind::SaveTicket, {QStringLiteral("saved.json")}, 0});
}

void Recorder::writeLeaving()
{
    watcher_.withdrawKey();
    write({StepKind::Cancel, {}, 0});
}

void Recorder::passOn(const Step &step)
{
    if (isSetBeforePanels(step.kind) && !dialog_.hasShownPanels())
        return; // part of the start
    write({step.kind, step.kind == StepKind::Print ? QStringList() : step.arguments, 0});
}

void Recorder::write(const Step &step)
{
    recording_->keep();
    recording_->add(lineOrReason(step));
}

void Recorder::writeTentative(const Step &step)
{
    recording_->addTentative(lineOrReason(step));
}

void Recorder::comment(const QString &text)
{
    recording_->keep();
    recording_->add(QStringLiteral("# ") + text);
}

} // namespace dialog::record
