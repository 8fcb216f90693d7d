#include "tests/layout/quality_window.h"

#include "platform/notification_center.h"
#include "platform/values.h"
#include "tests/support/plugin_bundle.h"
#include "tests/support/print_to.h"
#include "tests/support/user.h"

#include <gtest/gtest.h>

namespace test {
namespace {

PpdText tonerPrinterWithSecondTray()
{
    PpdText text = p2();
    return text
        .add({"PaperSource",
              "Paper Source",
              PpdUi::PickOne,
              {{"Tray1", "Upper Tray"}, {"Tray2", "Lower Tray"}},
              "Tray1"})
        .add({"Tray2Option",
              "Second Tray",
              PpdUi::Boolean,
              {{"True", "Installed"}, {"False", "Not installed"}},
              "True"});
}

} // namespace

void PrintTo(const Printer &printer, std::ostream *out)
{
    *out << printer.name
         << (printer.tray == SecondTray::Installed ? " with a second tray"
                                                   : " without second tray");
}

const std::vector<Printer> &printers()
{
    static const std::vector<Printer> all{
        {"Korvane-S300", SecondTray::Installed},
        {"Korvane-S300", SecondTray::Missing},
        {"Korvane-S300-de", SecondTray::Installed},
        {"Korvane-S300-de", SecondTray::Missing},
        {"Korvane-S300-ja", SecondTray::Installed},
        {"Korvane-S300-ja", SecondTray::Missing},
        {"Korvane-T500", SecondTray::Missing},
        {"toner fixture", SecondTray::Installed, tonerPrinterWithSecondTray},
        {"fixture with every row", SecondTray::Installed, p3},
        {"fixture with every row", SecondTray::Missing, p3},
        {"fixture with dry time as a box", SecondTray::Installed, p1c},
    };
    return all;
}

QualityWindow::QualityWindow(const Printer &printer, int systemVersion)
{
    platform::setSystemVersion(systemVersion);
    platform::setDriverRoot(QStringLiteral(KORVANE_ROOT_DIR));
    open(printer);
    const PDETools2 tools;
    controller_ = std::make_unique<KorPDEController2>(ppd_, tools.getEncodingFromPPD(ppd_),
                                                      host_.printSettings(), host_.pageFormat(),
                                                      pluginBundle());
    controller_->setPDEPluginCallbackObject(&host_);
    platform::NotificationCenter::defaultCenter().addObserver(
        &observer_, PDEControllerDisclosureButtonChangedNotification,
        [this](const platform::Notification &) {
            heightWhenTold_ = view().height();
            fitContents();
        });
    auto *column = new QVBoxLayout(&window_);
    column->addWidget(controller_->mainView());
    column->addStretch(1);
    controller_->processMarkedPPDChoices();
    controller_->initializeControls();
    controller_->localizeLabels();
    controller_->updateControls();
    fitContents();
    window_.show();
}

QualityWindow::~QualityWindow()
{
    controller_.reset();
}

void QualityWindow::open(const Printer &printer)
{
    if (printer.fixture) {
        fixture_ = std::make_unique<OpenPpd>(printer.fixture());
        ppd_ = fixture_->get();
    } else {
        sample_ = sample::open(printer.name);
        ppd_ = sample_.get();
    }
    ASSERT_TRUE(ppd_);
    if (printer.tray == SecondTray::Missing)
        ppdMarkOption(ppd_, "Tray2Option", "False");
}

std::pair<double, double> QualityWindow::records()
{
    return {controls().ibHeaderView->frameRecord().y(),
            controls().ibPDEView->frameRecord().height()};
}

void QualityWindow::clickDisclosure()
{
    user::click(controls().ibDisclosure);
}

void QualityWindow::widen(int width)
{
    window_.setMinimumWidth(width);
    fitContents();
}

void QualityWindow::fitContents()
{
    window_.layout()->activate();
    window_.resize(window_.sizeHint().expandedTo(window_.minimumSize()));
}

} // namespace test
