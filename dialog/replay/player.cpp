#include "dialog/replay/player.h"

#include "dialog/preview/preview_pane.h"
#include "dialog/replay/input.h"
#include "dialog/replay/nearest_name.h"
#include "dialog/replay/snapshot.h"
#include "dialog/window/print_window.h"
#include "platform/console.h"
#include "platform/controls/controls.h"
#include "platform/controls/modal_session.h"
#include "platform/controls/pop_up_button.h"
#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"
#include "platform/notification_center.h"
#include "platform/strings.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QToolButton>
#include <QWindow>

#include <algorithm>
#include <chrono>

namespace dialog::replay {
namespace {

// A window that was closed while its loop goes on for longer than this has not ended its session.
constexpr int kMostTurnsWaited = 1000;
// A machine that is slow draws in the end; a damaged document may never be drawn.
constexpr std::chrono::seconds kPreviewPatience(40);

/// Leaving counts: the dialog tells it, whoever leaves.
bool isInput(StepKind kind)
{
    return (kind >= StepKind::Show && kind <= StepKind::Close) || kind == StepKind::Cancel;
}

QString notOfKind(const char *kind)
{
    return QStringLiteral("it is no ") + QString::fromLatin1(kind);
}

input::Turn turnOf(const QString &word)
{
    return word == QLatin1String("up") ? input::Turn::Up : input::Turn::Down;
}

bool isInside(const QWidget *widget, const QWidget *ancestor)
{
    return ancestor && (widget == ancestor || ancestor->isAncestorOf(widget));
}

/// Of the menu that is open; null when none is, or it has no such entry.
QAction *openMenuEntry(const QString &name)
{
    const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    const QList<QAction *> entries = menu ? menu->actions() : QList<QAction *>();
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const QAction *entry) {
        return entry->objectName() == name;
    });
    return found == entries.end() ? nullptr : *found;
}

QStringList namesOf(const std::vector<QWidget *> &controls)
{
    QStringList names;
    for (const QWidget *control : controls)
        names.append(control->objectName());
    return names;
}

// What each step does to the control that it names; null when done, else what is wrong.

QString chooseItem(QWidget *control, const QString &item)
{
    auto *popUp = qobject_cast<QComboBox *>(control);
    if (!popUp)
        return notOfKind("pop-up");
    bool isNumber = false;
    const int number = item.startsWith(u'#') ? item.mid(1).toInt(&isNumber) : -1;
    QStringList titles;
    for (int i = 0; i < popUp->count(); ++i)
        titles.append(popUp->itemText(i));
    const int index = isNumber ? number : static_cast<int>(titles.indexOf(item));
    if (index < 0 || index >= popUp->count())
        return noSuchName(QStringLiteral("item"), item, titles);
    return input::choose(popUp, index);
}

QString clickTo(QWidget *control, int state)
{
    auto *button = qobject_cast<QAbstractButton *>(control);
    if (!button || !button->isCheckable())
        return notOfKind("box that can be ticked");
    if (controls::state(button) == state)
        return state ? QStringLiteral("it is ticked already") : QStringLiteral("it is not ticked");
    return input::click(button);
}

QString clickRow(QWidget *control, int row)
{
    auto *matrix = qobject_cast<RadioMatrix *>(control);
    if (!matrix)
        return notOfKind("radio matrix");
    QRadioButton *button = matrix->button(row);
    if (!button)
        return QStringLiteral("it has no row %1, only 0 to %2").arg(row).arg(matrix->rows() - 1);
    return button->isEnabled() ? input::click(button) : QStringLiteral("the row is disabled");
}

QString stepNumber(QSpinBox *field, input::Turn turn)
{
    const int end = turn == input::Turn::Up ? field->maximum() : field->minimum();
    return field->value() == end ? QStringLiteral("it goes no further") : input::step(field, turn);
}

QString stepBy(QWidget *control, input::Turn turn)
{
    if (auto *field = qobject_cast<QSpinBox *>(control))
        return stepNumber(field, turn);
    auto *stepper = qobject_cast<Stepper *>(control);
    if (!stepper)
        return notOfKind("stepper");
    QToolButton *button = turn == input::Turn::Up ? stepper->upButton() : stepper->downButton();
    return button->isEnabled() ? input::click(button) : QStringLiteral("it goes no further");
}

QString turnWheel(QWidget *control, input::Turn turn)
{
    input::wheel(control, turn);
    return {};
}

QString enterText(QWidget *control, const QString &text,
                  QString (*enter)(QLineEdit *, const QString &))
{
    auto *number = qobject_cast<QSpinBox *>(control);
    auto *field = number ? number->findChild<QLineEdit *>() : qobject_cast<QLineEdit *>(control);
    return field ? enter(field, text) : notOfKind("text field");
}

QString actOn(QWidget *control, const Step &step)
{
    const QString &word = step.arguments.last();
    if (!control->isVisible())
        return QStringLiteral("it is hidden");
    if (!control->isEnabled())
        return QStringLiteral("it is disabled");
    switch (step.kind) {
    case StepKind::Choose:
        return chooseItem(control, word);
    case StepKind::Tick:
        return clickTo(control, 1);
    case StepKind::Untick:
        return clickTo(control, 0);
    case StepKind::Row:
        return clickRow(control, word.toInt());
    case StepKind::StepBy:
        return stepBy(control, turnOf(word));
    case StepKind::Type:
        return enterText(control, word, input::type);
    case StepKind::Paste:
        return enterText(control, word, input::paste);
    case StepKind::Wheel:
        return turnWheel(control, turnOf(word));
    default:
        return input::click(control);
    }
}

} // namespace

Player::Player(PrintCase printCase, Scenario scenario, PlayerOptions options)
    : case_(std::move(printCase)), scenario_(std::move(scenario)), options_(std::move(options)),
      report_(options_.naming)
{
    turn_.setSingleShot(true);
    connect(&turn_, &QTimer::timeout, this, &Player::takeTurn);
}

Player::~Player()
{
    platform::setConsoleSink(formerSink_);
}

void Player::start()
{
    watchProcess();
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false); // lists open at once
    turn_.start();
}

void Player::watchProcess()
{
    formerSink_ = platform::setConsoleSink({});
    platform::setConsoleSink([this](const QString &line) {
        if (!isQuiet_)
            report_.console(line);
        if (formerSink_)
            formerSink_(line);
    });
    platform::NotificationCenter::defaultCenter().addObserver(
        this, QString(),
        [this](const platform::Notification &posted) { report_.notification(posted.name); });
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &Player::clipboardChanged);
    auto &sessions = platform::ModalSessions::shared();
    connect(&sessions, &platform::ModalSessions::opened, this, [this](QDialog *window) {
        modalWindows_.emplace_back(window);
        report_.windowOpened(window);
    });
    connect(&sessions, &platform::ModalSessions::closed, this, [this](const QString &name) {
        modalWindows_.pop_back();
        report_.windowClosed(name);
    });
}

/// What the dialog copies. Somebody else's is nobody's business, and a step that pastes brings its
/// own.
void Player::clipboardChanged()
{
    const bool pastes = next_ > 0 && scenario_.steps[next_ - 1].kind == StepKind::Paste;
    const QClipboard *clipboard = QGuiApplication::clipboard();
    // Without a display the clipboard is the program's alone, though Qt does not say so.
    const bool isOwn =
        clipboard->ownsClipboard() || QGuiApplication::platformName() == QLatin1String("offscreen");
    if (isOwn && !pastes)
        report_.copied(clipboard->text());
}

void Player::watchDialog()
{
    connect(&dialog_->host(), &DialogHost::answered, this,
            [this](const Choice &choice, bool accepted) { report_.offer(choice, accepted); });
    connect(&dialog_->host(), &DialogHost::panelResized, this, [this] { report_.resize(); });
    connect(dialog_.get(), &PrintDialog::helpOpened, this,
            [this](const platform::HelpRequest &request) { report_.help(request.bookName); });
    connect(dialog_.get(), &PrintDialog::jobMade, this, [this](const JobRecord &job) {
        report_.job(job);
        stepEnded({});
    });
    connect(dialog_.get(), &PrintDialog::jobFailed, this, &Player::stepEnded);
    connect(dialog_.get(), &PrintDialog::fileSaved, this, [this](const QString &file) {
        report_.saved(file);
        stepEnded({});
    });
    connect(dialog_.get(), &PrintDialog::saveFailed, this, &Player::stepEnded);
    connect(dialog_.get(), &PrintDialog::noticeShown, this, &Player::noticeShown);
    connect(dialog_.get(), &PrintDialog::left, this, [this] { hasLeft_ = true; });
}

void Player::takeTurn()
{
    if (isFinished_)
        return;
    if (isUnwinding() || isWriting()) {
        turn_.start();
        return;
    }
    if (next_ == scenario_.steps.size())
        finish(Outcome::AllDone, {});
    else if (!dialog_ && !standsBeforePrinter(scenario_.steps[next_].kind))
        openPrinter();
    else if (needsPanels(scenario_.steps[next_].kind) && !dialog_->hasShownPanels())
        showPanels();
    else
        perform(scenario_.steps[next_++]);
}

/// A modal window that has been closed is on its way out of its loop; what its end sets off comes
/// before the next step.
bool Player::isUnwinding()
{
    const bool closes =
        !modalWindows_.empty() && (!modalWindows_.back() || !modalWindows_.back()->isVisible());
    turnsWaited_ = closes ? turnsWaited_ + 1 : 0;
    return closes && turnsWaited_ < kMostTurnsWaited;
}

/// Presets and a job that goes into a folder are there before the next step, however long that
/// takes; a job that goes to a queue may be looked at on its way.
bool Player::isWriting() const
{
    if (!dialog_)
        return false;
    return dialog_->presets().isBusy() ||
           (dialog_->printCase().queue.isNull() && dialog_->desk().isSending());
}

/// The step that needs them comes when they have what they read.
void Player::showPanels()
{
    turn_.start();
    dialog_->showPanels();
}

void Player::perform(const Step &step)
{
    turn_.start();
    if (dialog_)
        dialog_->host().deliverChanges();
    if (dialog_ && !isInput(step.kind))
        Q_EMIT commanded(step);
    QString error = hasLeft_ ? QStringLiteral("the dialog has been left before") : awaitPreview();
    if (error.isNull())
        error = run(step);
    if (!error.isNull())
        fail(step, error);
}

/// The steps go on when it is there.
void Player::openPrinter()
{
    PrintDialog::openLater(this, case_,
                           [this](PrintDialog::Opened opened) { takePrinter(std::move(opened)); });
}

void Player::takePrinter(PrintDialog::Opened opened)
{
    if (const auto *problem = std::get_if<QString>(&opened)) {
        finish(Outcome::NotStarted, *problem);
        return;
    }
    dialog_ = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
    watchDialog();
    Q_EMIT dialogOpened(*dialog_);
    turn_.start();
}

void Player::fail(const Step &step, const QString &error)
{
    finish(Outcome::StepFailed,
           QStringLiteral("%1:%2: ").arg(scenario_.file).arg(step.line) + error);
}

void Player::finish(Outcome outcome, const QString &message)
{
    if (std::exchange(isFinished_, true))
        return;
    turn_.stop();
    platform::stopAllModalSessions();
    Q_EMIT finished(outcome, message);
}

QString Player::run(const Step &step)
{
    const QStringList &words = step.arguments;
    switch (step.kind) {
    case StepKind::Printer:
    case StepKind::Queue:
    case StepKind::Root:
    case StepKind::SystemVersion:
    case StepKind::Language:
    case StepKind::Document:
        return setCase(step);
    case StepKind::Mark:
        return mark({words[0], words[1]});
    case StepKind::Job:
        dialog_->host().setSetting(words[0], words[1]);
        return {};
    case StepKind::Paper:
        dialog_->host().setPaperName(words[0]);
        return {};
    case StepKind::Refuse:
        dialog_->host().refuseOffers(
            words[0], words.size() > 1 ? std::optional<int>(words[1].toInt()) : std::nullopt);
        return {};
    case StepKind::Show:
        return show(words[0]);
    case StepKind::Key:
        return pressKey(words[0]);
    case StepKind::Close:
        return close(words[0]);
    case StepKind::Other:
        dialog_->host().changeFromElsewhere({words[0], words[1]});
        return {};
    case StepKind::Report:
        report_.snapshot(words[0], quietSnapshot());
        return {};
    case StepKind::Picture:
        return takePicture(words[0]);
    case StepKind::Expect:
        return expect(words[0], words[1]);
    case StepKind::Save:
        static_cast<void>(dialog_->commit());
        return {};
    case StepKind::SavePdf:
        return saveFile(words[0], &SaveDesk::savePdf);
    case StepKind::SaveTicket:
        return saveFile(words[0], &SaveDesk::saveTicket);
    case StepKind::Print:
        return print(words);
    case StepKind::Cancel:
        dialog_->window()->close();
        return {};
    default:
        return runOnControl(step);
    }
}

QString Player::setCase(const Step &step)
{
    const QString &word = step.arguments.first();
    switch (step.kind) {
    case StepKind::Printer:
        case_.ppd = pathBesideScenario(word);
        break;
    case StepKind::Queue:
        case_.queue = word;
        break;
    case StepKind::Root:
        case_.root = pathBesideScenario(word);
        break;
    case StepKind::SystemVersion:
        case_.systemVersion = systemVersionOf(word);
        break;
    case StepKind::Language:
        case_.language = word;
        break;
    default:
        case_.document = pathBesideScenario(word);
        break;
    }
    return {};
}

QString Player::mark(const Choice &choice)
{
    PpdDocument &printer = dialog_->printer();
    if (!printer.hasOption(choice.option))
        return noSuchName(QStringLiteral("option"), choice.option, printer.options());
    if (!printer.hasChoice(choice))
        return noSuchName(QStringLiteral("choice"), choice.choice, printer.choices(choice.option));
    printer.mark(choice);
    dialog_->host().followPageSize();
    return {};
}

QString Player::show(const QString &panel)
{
    QStringList names;
    const PanelStack &panels = dialog_->panels();
    for (int i = 0; i < panels.count(); ++i)
        names << panels.title(i) << panels.kind(i);
    const qsizetype found = names.indexOf(panel);
    if (found < 0)
        return noSuchName(QStringLiteral("panel"), panel, names);
    const int index = static_cast<int>(found) / 2;
    if (index == panels.frontIndex())
        return {};
    if (frontWindow() != dialog_->window())
        return frontWindow()->objectName() + QStringLiteral(" must be closed first");
    return input::choose(dialog_->window()->panelPopUp(), index);
}

QString Player::pressKey(const QString &name)
{
    input::key(frontWindow(), QKeySequence(name)[0]);
    return {};
}

QString Player::close(const QString &window)
{
    QWidget *front = frontWindow();
    if (front->objectName() != window)
        return window + QStringLiteral(" is not the window in front, ") + front->objectName() +
               QStringLiteral(" is");
    QCloseEvent event; // sent to the window as the window system does it
    QCoreApplication::sendEvent(front->windowHandle(), &event);
    return {};
}

QString Player::runOnControl(const Step &step)
{
    const QString &name = step.arguments.first();
    if (QAction *entry = openMenuEntry(name); entry && step.kind == StepKind::Click)
        return input::clickEntry(entry);
    const std::vector<QWidget *> reachable = reachableControls();
    const auto found = std::find_if(reachable.begin(), reachable.end(), [&](const QWidget *widget) {
        return widget->objectName() == name;
    });
    if (found == reachable.end())
        return noSuchName(QStringLiteral("control"), name, namesOf(reachable));
    const QString problem = actOn(*found, step);
    return problem.isNull() ? QString() : name + QStringLiteral(": ") + problem;
}

QString Player::takePicture(const QString &name)
{
    if (options_.pictures.isNull())
        return {};
    const QString path = options_.pictures + u'/' + name + QStringLiteral(".png");
    const bool saved = QDir().mkpath(options_.pictures) && frontWindow()->grab().save(path);
    return saved ? QString() : QStringLiteral("the picture cannot be written to ") + path;
}

/// A step meets the sheet and its controls as the steps before left them, however long drawing
/// takes.
QString Player::awaitPreview()
{
    const PreviewPane *preview =
        dialog_ && dialog_->window() ? &dialog_->window()->preview() : nullptr;
    if (!preview || preview->document().isNull() || preview->isCurrent())
        return {};
    QEventLoop drawing;
    QTimer patience;
    connect(preview, &PreviewPane::becameCurrent, &drawing, &QEventLoop::quit);
    connect(&patience, &QTimer::timeout, &drawing, &QEventLoop::quit);
    patience.setSingleShot(true);
    patience.start(kPreviewPatience);
    turn_.stop();
    while (patience.isActive() && !preview->isCurrent())
        drawing.exec(); // what is shown may change the room for it
    turn_.start();
    return preview->isCurrent() ? QString() : QStringLiteral("the preview does not come");
}

QString Player::expect(const QString &pointer, const QString &value)
{
    const QJsonValue found = valueAt(quietSnapshot(), pointer);
    const QJsonValue expected = expectedValue(value);
    if (!found.isUndefined() && found == expected)
        return {};
    return pointer + QStringLiteral(": expected ") + compactJson(expected) +
           QStringLiteral(", found ") + compactJson(found);
}

QString Player::print(const QStringList &arguments)
{
    if (!arguments.isEmpty())
        dialog_->setDocument(pathBesideScenario(arguments.first()));
    awaited_ = &scenario_.steps[next_ - 1];
    dialog_->print(Review::Skip);
    if (awaited_)
        turn_.stop();
    return {};
}

/// What a person would be asked for is the file's name, in the folder for such files.
QString Player::saveFile(const QString &name, void (SaveDesk::*save)(const QString &))
{
    if (options_.saves.isNull())
        return QStringLiteral("nothing can be saved without a folder; name one with --saves DIR");
    if (dialog_->saving()->isSaving())
        return QStringLiteral("another file is being saved");
    if (!QDir().mkpath(options_.saves))
        return options_.saves + QStringLiteral(": there can be no such folder");
    awaited_ = &scenario_.steps[next_ - 1];
    (dialog_->saving()->*save)(options_.saves + u'/' + name);
    if (awaited_)
        turn_.stop();
    return {};
}

/// Null: it is done.
void Player::stepEnded(const QString &error)
{
    const Step *step = std::exchange(awaited_, nullptr);
    if (step && !error.isNull())
        fail(*step, error);
    else if (step && !isFinished_)
        turn_.start();
}

/// Panels may write console lines when they are asked; those are the snapshot's, not the
/// scenario's.
QJsonObject Player::quietSnapshot()
{
    const QScopedValueRollback quiet(isQuiet_, true);
    return takeSnapshot(*dialog_);
}

QWidget *Player::frontWindow() const
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? modal : dialog_->window();
}

/// Named widgets of the window in front; of the panels only the front one's, and that first.
std::vector<QWidget *> Player::reachableControls() const
{
    QWidget *window = frontWindow();
    const PrintWindow *main = dialog_->window();
    const QWidget *front = window == main ? main->view(main->frontIndex()) : nullptr;
    std::vector<QWidget *> controls;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        bool isElsewhere = !isNamed(widget) || widget->window() != window;
        for (int i = 0; window == main && i < dialog_->panels().count(); ++i)
            isElsewhere =
                isElsewhere || (i != main->frontIndex() && isInside(widget, main->view(i)));
        if (!isElsewhere)
            controls.push_back(widget);
    }
    std::stable_partition(controls.begin(), controls.end(),
                          [&](const QWidget *widget) { return isInside(widget, front); });
    return controls;
}

/// A relative path is looked up beside the scenario first, then in the current folder.
QString Player::pathBesideScenario(const QString &path) const
{
    const QString beside = QFileInfo(scenario_.file).dir().filePath(path);
    return QFileInfo::exists(beside) ? beside : path;
}

} // namespace dialog::replay
