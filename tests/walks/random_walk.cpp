#include "tests/walks/random_walk.h"

#include "dialog/replay/input.h"
#include "dialog/window/print_window.h"
#include "platform/controls/pop_up_button.h"
#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"
#include "tests/support/print_to.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace test {

namespace input = dialog::replay::input;
using dialog::Choice;
using dialog::ChoiceState;

namespace {

constexpr int kAnswerMilliseconds = 1;
constexpr int kMarksBeforeJudgement =
    0x1050; ///< systems from here on tell choices as they are made

// clang-format off

/// A step for one option may change these options too; nothing else.
struct Rule
{
    const char *option; ///< what the step is for
    const char *changed;
    const char *reason;
};
constexpr Rule kRules[] = {
    {"ColorOutput", "InkToUse",            "each output has inks of its own"},
    {"ColorOutput", "ColorPreferences",    "preferences are an output's own"},
    {"ColorOutput", "ICCTestChartProcess", "test charts are in colour"},
    {"ColorOutput", "Threshold",           "offered again as the panel holds it: a typed one comes late"},
    {"ColorOutput", "TonerSave",           "offered again as the panel holds it"},
    {"ColorOutput", "HalftoneLevel",       "offered again as the panel holds it"},
    {"MediaType",   "Mirror",              "iron-on paper is printed flipped"},
    {"MediaType",   "mirror",              "iron-on paper is printed flipped, in the print settings"},
    {"PageSize",    "PageRegion",          "two names of one setting in a PPD"},
    {"copies",      "multiple-document-handling", "one copy has nothing to collate"},
    {"number-up",   "com.apple.print.PrintSettings.PMLayoutColumns", "how the panels learn of it"},
};

/// These set everything there is to set, or what they have listed before.
constexpr const char *kSetsAll[] = {
    "resetButton", "presetPopUp", "presetUndo", "undoButton", "applyResolution", "keepChoice",
};

/// Left alone: they end the walk, or open what only the window system can show.
constexpr const char *kLeftAlone[] = {
    "cancelButton", "printButton", "saveButton", "helpButton", "presetMenu", "qt_spinbox_lineedit",
    "printAnywayButton",
};
// clang-format on

template <class Names>
bool isAmong(const Names &names, const QString &name)
{
    return std::any_of(std::begin(names), std::end(names),
                       [&](const char *one) { return name == QLatin1String(one); });
}

bool isChoosable(const QWidget *widget)
{
    return qobject_cast<const QComboBox *>(widget) ||
           qobject_cast<const QAbstractButton *>(widget) ||
           qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QSpinBox *>(widget);
}

/// Inside another control, which takes the step.
bool isPart(const QWidget *widget)
{
    return qobject_cast<const QSpinBox *>(widget->parentWidget()) ||
           qobject_cast<const QComboBox *>(widget->parentWidget());
}

std::set<QString> changedNames(const ChoiceState &before, const ChoiceState &after)
{
    std::set<QString> names;
    for (const auto &[one, other] : {std::pair(&before, &after), std::pair(&after, &before)}) {
        for (const Choice &mark : one->marks)
            if (std::find(other->marks.begin(), other->marks.end(), mark) == other->marks.end())
                names.insert(mark.option);
        for (const auto &[key, value] : one->settings)
            if (const auto found = other->settings.find(key);
                found == other->settings.end() || found->second != value)
                names.insert(key);
    }
    return names;
}

bool hasRule(const QString &option, const QString &changed)
{
    return std::any_of(std::begin(kRules), std::end(kRules), [&](const Rule &rule) {
        return option == QLatin1String(rule.option) && changed == QLatin1String(rule.changed);
    });
}

/// A line of text that somebody might type, sensible or not.
QString anyText(std::mt19937 &random)
{
    static const char *const kTexts[] = {"",    "1",   "3",   "2-3",   "7-",  "-",
                                         "0",   "99",  "abc", "3-1",   "1,,", "9999999999",
                                         " 2 ", "é日", "%1",  "1-2,4", "<b>"};
    return q(kTexts[random() % std::size(kTexts)]);
}

std::unique_ptr<dialog::PrintDialog> opened(const dialog::PrintCase &printCase)
{
    auto answer = dialog::PrintDialog::open(printCase);
    if (const auto *problem = std::get_if<QString>(&answer))
        throw std::runtime_error(problem->toStdString());
    return std::move(std::get<std::unique_ptr<dialog::PrintDialog>>(answer));
}

/// A panel shows a colour preference that it finds marked, and prints its own: it takes over the
/// title alone. The dialog tells so before it prints.
constexpr const char *kShownAndNotPrinted = "ColorPreferences";

/// Without what belongs to one document, and without the defaults that were chosen by name.
QStringList lastingOptions(dialog::JobSettings settings)
{
    settings.chosen.clear();
    QStringList lines;
    for (const auto &[option, value] : dialog::jobOptions(settings))
        if (dialog::isKeptInPresets(option) && option != QLatin1String(kShownAndNotPrinted))
            lines.append(option + u'=' + value);
    lines.sort();
    return lines;
}

} // namespace

RandomWalk::RandomWalk(const QString &ppd, int systemVersion, unsigned seed) : random_(seed)
{
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    case_.ppd = ppd;
    case_.root = q(KORVANE_ROOT_DIR);
    case_.systemVersion = systemVersion;
    case_.language = q("en");
    case_.document = q(KORVANE_SAMPLE_DOCUMENT);
    case_.jobFolder = jobs_.path();
    dialog_ = opened(case_);
    dialog_->showPanels();
    hand_.setInterval(kAnswerMilliseconds);
    // Queued: a timer does not fire inside what it fired for, and one window opens another.
    QObject::connect(
        &hand_, &QTimer::timeout, &hand_, [this] { answerModalWindow(); }, Qt::QueuedConnection);
    hand_.start();
}

RandomWalk::~RandomWalk() = default;

int RandomWalk::below(int limit)
{
    return static_cast<int>(random_() % static_cast<unsigned>(limit));
}

void RandomWalk::take(int steps)
{
    for (int i = 0; i < steps && !testing::Test::HasFailure(); ++i)
        takeStep();
}

std::vector<QWidget *> RandomWalk::reachable() const
{
    std::vector<QWidget *> controls;
    for (QWidget *widget : dialog_->window()->findChildren<QWidget *>()) {
        const QString name = widget->objectName();
        if (widget->window() == dialog_->window() && !name.isEmpty() && isChoosable(widget) &&
            !isPart(widget) && widget->isVisible() && widget->isEnabled() &&
            !isAmong(kLeftAlone, name))
            controls.push_back(widget);
    }
    return controls;
}

RandomWalk::Deed RandomWalk::deedFor(QWidget *control)
{
    const QString name = control->objectName();
    if (auto *popUp = qobject_cast<QComboBox *>(control); popUp && popUp->count() > 0) {
        const int index = below(popUp->count());
        return {control, QStringLiteral("choose %1 #%2").arg(name).arg(index),
                [popUp, index] { return input::choose(popUp, index); }};
    }
    auto *field = qobject_cast<QLineEdit *>(control);
    if (auto *number = qobject_cast<QSpinBox *>(control))
        field = number->findChild<QLineEdit *>();
    if (field) {
        const QString text = anyText(random_);
        return {control, QStringLiteral("type %1 '%2'").arg(name, text), [field, text] {
                    const QPointer<QLineEdit> guard = field;
                    QString problem = input::type(field, text);
                    if (guard) // the text counts when it is left
                        input::key(guard->window(), Qt::Key_Tab);
                    return problem;
                }};
    }
    return {control, QStringLiteral("click ") + name, [control] { return input::click(control); }};
}

void RandomWalk::takeStep()
{
    const std::vector<QWidget *> controls = reachable();
    ASSERT_FALSE(controls.empty()) << story_.join(u'\n').toStdString();
    const Deed deed =
        deedFor(controls[static_cast<std::size_t>(below(static_cast<int>(controls.size())))]);
    story_.append(deed.line);
    SCOPED_TRACE(story_.join(u'\n').toStdString());
    const ChoiceState before = dialog_->host().state();
    // What covers a control, or an item that cannot be picked, stops a person too.
    const QString obstacle = deed.act();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    ASSERT_TRUE(dialog_->window()->isVisible());
    expectOnlyExplainedChanges(before, deed);
}

void RandomWalk::expectOnlyExplainedChanges(const ChoiceState &before, const Deed &deed)
{
    const QString name = deed.line.section(u' ', 1, 1);
    if (isAmong(kSetsAll, name))
        return;
    const std::set<QString> changed = changedNames(before, dialog_->host().state());
    std::set<QString> causes = changed;
    causes.insert(optionOf(name)); // which may be picked once more, as it is
    std::vector<QString> meant;
    for (const QString &one : changed)
        if (std::none_of(causes.begin(), causes.end(),
                         [&](const QString &cause) { return hasRule(cause, one); }))
            meant.push_back(one);
    EXPECT_LE(meant.size(), 1U) << "one step has set "
                                << QStringList(meant.begin(), meant.end()).join(u' ').toStdString();
}

/// The PPD's option for which a panel's control stands; null for any other control.
QString RandomWalk::optionOf(const QString &control) const
{
    for (const dialog::LoadedPanel &entry : dialog_->panels().loaded())
        for (const PDEOptionControl &one : entry.panel->diagnostics()->optionControls())
            if (one.control == control)
                return one.option;
    return {};
}

/// A window of the panels that asks: any of its buttons will do.
void RandomWalk::answerModalWindow()
{
    QWidget *window = QApplication::activeModalWidget();
    if (!window || QApplication::activePopupWidget())
        return;
    std::vector<QAbstractButton *> buttons;
    for (auto *button : window->findChildren<QAbstractButton *>())
        if (button->isVisible() && button->isEnabled())
            buttons.push_back(button);
    if (buttons.empty()) {
        window->close();
        return;
    }
    auto *button = buttons[static_cast<std::size_t>(below(static_cast<int>(buttons.size())))];
    story_.append(QStringLiteral("click ") + button->objectName());
    static_cast<void>(input::click(button));
}

void RandomWalk::expectSummaryToSayEveryMark()
{
    dialog_->panels().bringForward(dialog_->panels().indexOf(q("summary")));
    SCOPED_TRACE(story_.join(u'\n').toStdString());
    auto *find = dialog_->window()->findChild<QLineEdit *>(q("summaryFind"));
    ASSERT_TRUE(find);
    find->clear();
    const auto *rows = dialog_->window()->findChild<QTreeWidget *>(q("summaryRows"));
    ASSERT_TRUE(rows && rows->isVisible());
    std::set<std::pair<QString, QString>> said;
    for (int i = 0; i < rows->topLevelItemCount(); ++i)
        for (int row = 0; row < rows->topLevelItem(i)->childCount(); ++row)
            said.emplace(rows->topLevelItem(i)->child(row)->text(0),
                         rows->topLevelItem(i)->child(row)->text(1));
    const dialog::PpdDocument &printer = dialog_->printer();
    for (const Choice &mark : printer.marks()) {
        const QString value = printer.choiceText(mark);
        EXPECT_TRUE(std::any_of(said.begin(), said.end(),
                                [&](const auto &row) {
                                    return row.first == printer.optionText(mark.option) &&
                                           row.second.contains(value);
                                }))
            << "the summary does not say " << mark.option.toStdString() << ' '
            << mark.choice.toStdString();
    }
}

void RandomWalk::expectAJob()
{
    SCOPED_TRACE(story_.join(u'\n').toStdString());
    QSignalSpy made(dialog_.get(), &dialog::PrintDialog::jobMade);
    QSignalSpy failed(dialog_.get(), &dialog::PrintDialog::jobFailed);
    dialog_->print(dialog::Review::Skip);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !made.isEmpty() || !failed.isEmpty(); }, 30'000));
    EXPECT_EQ(made.size(), 1) << (failed.isEmpty() ? std::string("no answer")
                                                   : failed[0][0].toString().toStdString());
}

void RandomWalk::expectTheSameJobNextTime()
{
    SCOPED_TRACE(story_.join(u'\n').toStdString());
    const dialog::JobSettings made = dialog_->desk().jobSettings();
    const auto next = opened(case_);
    next->begin({.settings = dialog::contentOf({made.marks, made.printSettings, made.paperName},
                                               dialog_->printer())},
                {});
    next->showPanels();
    QCoreApplication::processEvents();
    EXPECT_EQ(next->window()->findChild<QWidget *>(q("presetChanged"))->isVisible(), false);
    static_cast<void>(next->commit());
    EXPECT_EQ(lastingOptions(next->desk().jobSettings()).join(u' ').toStdString(),
              lastingOptions(made).join(u' ').toStdString());
}

} // namespace test
