#pragma once

#include "tests/quality/quality_test_access.h"
#include "tests/support/console_capture.h"
#include "tests/support/driver_root.h"
#include "tests/support/fake_host.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <QComboBox>

#include <memory>

namespace test {

/// The Quality & Media controller on a printer, with a host of its own, in the order in which the
/// panel object drives it.
class QualityPanel
{
public:
    struct Settings
    {
        int version = 0x1060;
        QVariant year = 2009; ///< invalid: no driver configuration list
        Marks marks = Marks::Defaults;
    };

    explicit QualityPanel(const PpdText &text, Settings settings = {0x1060, 2009, Marks::Defaults});

    /// Makes the controller; done by the first use of it, so that the PPD can be marked before.
    void create();
    void destroy() { controller_.reset(); }
    [[nodiscard]] KorPDEController2 &controller();
    [[nodiscard]] QualityOutlets &controls();
    [[nodiscard]] PDEModel2 &model();

    void restore() { controller().processMarkedPPDChoices(); }
    void show();
    /// View, restore, show.
    QualityPanel &life();
    /// The host's words that another panel changed an option: model first, then the control.
    void external(quality::Setting setting, const char *choice);

    /// As a person does it; opens the advanced part where the control lies there.
    void choose(QComboBox *popUp, int index);
    void click(QAbstractButton *button);
    void openAdvanced();
    /// Replaces the threshold field's text by keys.
    void type(const char *text);
    void paste(const char *text);

    DriverRoot root;
    OpenPpd ppd;
    FakeHost host;
    ConsoleCapture console;

private:
    void reach(QWidget *control);

    std::unique_ptr<KorPDEController2> controller_;
};

[[nodiscard]] QStringList titles(const QComboBox *popUp);

/// Value and ticket in one text, "Quick/Draft", with "∅" for null.
[[nodiscard]] QString pair(PDEModel2 &model, quality::Setting setting);

/// "Key=Choice" for each, with "∅" for null.
[[nodiscard]] QStringList texts(const Offers &offers);

} // namespace test

#define EXPECT_PAIR(panel, setting, expected)                                                      \
    EXPECT_TEXT(::test::pair((panel).model(), ::quality::Setting::setting), expected)
