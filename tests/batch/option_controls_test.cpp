#include "dialog/batch/control_use.h"
#include "dialog/print_dialog.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace test;
using dialog::Choice;
using dialog::PanelStack;
using dialog::PrintDialog;
using dialog::batch::Use;

namespace {

/// Names of the settings in the panels' diagnostics.
const std::map<QString, QString> kModelNames{
    {q("PrintQuality"), q("printQuality")},
    {q("MediaType"), q("paperType")},
    {q("PaperSource"), q("paperSource")},
    {q("Sharpen"), q("imageSharpening")},
    {q("Mirror"), q("mirror")},
    {q("TonerSave"), q("tonerSave")},
    {q("Threshold"), q("Threshold")},
    {q("HalftoneLevel"), q("halftone")},
    {q("ColorPreferences"), q("colorPreferences")},
    {q("InkToUse"), q("inkToUse")},
    {q("ICCTestChartProcess"), q("ICCTestChart")},
    {q("ColorOutput"), q("colorOutput")},
    {q("DupDryTime"), q("dryTime")},
    {q("ReduceGhosting"), q("reduceGhosting")},
    {q("PrintDensity"), q("printDensity")},
    {q("ImprovementSettings"), q("improvementSettings")},
    {q("ImprovePrintQuality"), q("improvePrintQuality")},
};

struct Printer
{
    const char *name;
    const char *ppd;
    int systemVersion;
    QStringList options; ///< of which a person can choose every choice, in one state or another
};
void PrintTo(const Printer &printer, std::ostream *out)
{
    *out << printer.name;
}

/// The dialog with the real panels of one printer.
class OptionControls : public testing::TestWithParam<Printer>
{
protected:
    void SetUp() override
    {
        QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false); // lists open at once
        dialog::PrintCase printCase;
        printCase.root = q(KORVANE_ROOT_DIR);
        printCase.ppd = writeUnconstrained(q(GetParam().ppd));
        printCase.systemVersion = GetParam().systemVersion;
        printCase.language = q("en");
        PrintDialog::Opened opened = PrintDialog::open(printCase);
        ASSERT_TRUE(std::holds_alternative<std::unique_ptr<PrintDialog>>(opened))
            << std::get<QString>(opened).toStdString();
        dialog_ = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
        dialog_->showPanels();
        QCoreApplication::processEvents();
        ASSERT_FALSE(loaded().empty());
    }

    /// The sample printer without its constraints, so that the dialog refuses nothing.
    [[nodiscard]] QString writeUnconstrained(const QString &name)
    {
        QFile copy(files_.filePath(name));
        EXPECT_TRUE(copy.open(QIODevice::WriteOnly));
        for (const QByteArray &line :
             fileBytes(q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/") + name).split('\n'))
            if (!line.startsWith("*UIConstraints"))
                copy.write(line + '\n');
        return copy.fileName();
    }
    [[nodiscard]] const std::vector<dialog::LoadedPanel> &loaded() const
    {
        return dialog_->panels().loaded();
    }
    [[nodiscard]] PDEPanelDiagnostics &diagnostics(std::size_t panel) const
    {
        return *loaded()[panel].panel->diagnostics();
    }
    [[nodiscard]] QWidget *view(std::size_t panel) const { return loaded()[panel].view; }
    [[nodiscard]] QString ticket(std::size_t panel, const QString &option) const
    {
        return diagnostics(panel).model()[kModelNames.at(option)][q("ticket")].toString();
    }
    void bringForward(std::size_t panel)
    {
        PanelStack &panels = dialog_->panels();
        panels.bringForward(panels.indexOf(loaded()[panel].kind));
        QCoreApplication::processEvents();
    }
    /// False where a person could not use the control.
    bool use(std::size_t panel, const PDEOptionControl &control, const QString &choice)
    {
        const Use use =
            dialog::batch::chooseWithControl({control}, view(panel), {control.option, choice});
        QCoreApplication::processEvents(); // what a person does next is another action
        return use != Use::NoControl;
    }
    /// Uses every position of every control of the panel, as far as it can be used.
    void useAll(std::size_t panel)
    {
        for (std::size_t i = 0; i < diagnostics(panel).optionControls().size(); ++i) {
            // Read anew for each: one control changes the items of others.
            for (qsizetype position = 0;
                 position < diagnostics(panel).optionControls()[i].choices.size(); ++position)
                usePosition(panel, diagnostics(panel).optionControls()[i], position);
        }
    }
    void usePosition(std::size_t panel, const PDEOptionControl &control, qsizetype position)
    {
        const Choice choice{control.option, control.choices[position]};
        SCOPED_TRACE((choice.option + u'=' + choice.choice).toStdString());
        ASSERT_NE(choice.choice, QString());
        EXPECT_TRUE(dialog_->printer().hasChoice(choice));
        if (!use(panel, control, choice.choice))
            return;
        EXPECT_SAME(ticket(panel, choice.option), choice.choice);
        proven_[choice.option].insert(choice.choice);
    }

    QTemporaryDir files_;
    std::unique_ptr<PrintDialog> dialog_;
    std::map<QString, std::set<QString>> proven_;
};

} // namespace

TEST_P(OptionControls, EachStoresExactlyTheChoiceThatItNames)
{
    for (std::size_t panel = 0; panel < loaded().size(); ++panel) {
        bringForward(panel);
        useAll(panel);
        // Colour output decides which controls can be used, and which inks there are.
        for (const PDEOptionControl &control : diagnostics(panel).optionControls()) {
            for (const QString &choice : control.choices)
                if (control.option == q("ColorOutput") && use(panel, control, choice))
                    useAll(panel);
        }
    }
    QStringList names;
    for (const auto &[option, choices] : proven_) {
        names.append(option);
        EXPECT_EQ(static_cast<qsizetype>(choices.size()), dialog_->printer().choices(option).size())
            << option.toStdString();
    }
    EXPECT_EQ(names, GetParam().options);
}

TEST_P(OptionControls, NameControlsOfThePanelsOwnView)
{
    for (std::size_t panel = 0; panel < loaded().size(); ++panel) {
        const auto controls = diagnostics(panel).optionControls();
        EXPECT_FALSE(controls.empty());
        for (const PDEOptionControl &control : controls) {
            EXPECT_TRUE(view(panel)->findChild<QWidget *>(control.control))
                << control.control.toStdString();
            EXPECT_TRUE(control.opener.isNull() ||
                        view(panel)->findChild<QWidget *>(control.opener));
            EXPECT_TRUE(kModelNames.contains(control.option)) << control.option.toStdString();
        }
    }
}

const QStringList kInk{q("ColorOutput"),         q("ColorPreferences"), q("DupDryTime"),
                       q("ICCTestChartProcess"), q("InkToUse"),         q("MediaType"),
                       q("PaperSource"),         q("PrintQuality"),     q("Sharpen")};
const QStringList kToner{q("ColorOutput"),         q("HalftoneLevel"),  q("ImprovePrintQuality"),
                         q("ImprovementSettings"), q("MediaType"),      q("PrintDensity"),
                         q("PrintQuality"),        q("ReduceGhosting"), q("Sharpen"),
                         q("Threshold"),           q("TonerSave")};

/// Before 10.6 the panel has a box for mirror.
QStringList inkWithMirror()
{
    QStringList options = kInk + QStringList{q("Mirror")};
    options.sort();
    return options;
}

INSTANTIATE_TEST_SUITE_P(
    , OptionControls,
    testing::Values(Printer{"Ink", "Korvane-S300.ppd", 0x1060, kInk},
                    Printer{"InkBefore106", "Korvane-S300.ppd", 0x1050, inkWithMirror()},
                    Printer{"InkGerman", "Korvane-S300-de.ppd", 0x1060, kInk},
                    Printer{"InkJapanese", "Korvane-S300-ja.ppd", 0x1060, kInk},
                    Printer{"Toner", "Korvane-T500.ppd", 0x1060, kToner}),
    [](const auto &printer) { return std::string(printer.param.name); });
