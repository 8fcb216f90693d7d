#pragma once

#include "platform/values.h"
#include "tests/quality/quality_test_access.h"
#include "tests/support/fake_host.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/tools/sample_ppd.h"

#include <QVBoxLayout>

#include <memory>

namespace test {

enum class SecondTray { Installed, Missing };

/// A printer by the name of its sample PPD, or one of the fixtures' own.
struct Printer
{
    const char *name;
    SecondTray tray;
    PpdText (*fixture)() = nullptr;
};
void PrintTo(const Printer &printer, std::ostream *out);

/// The sample printers in all their editions, and fixtures that show every control; with a second
/// tray and without, where the printer can have one.
[[nodiscard]] const std::vector<Printer> &printers();

/// A window with the Quality & Media panel, restored and shown in the order of the panel object. It
/// follows the panel's size as the print dialog does.
class QualityWindow
{
public:
    explicit QualityWindow(const Printer &printer, int systemVersion = 0x1060);
    ~QualityWindow();

    [[nodiscard]] KorPDEController2 &controller() { return *controller_; }
    [[nodiscard]] QualityOutlets &controls() { return QualityTestAccess::outlets(*controller_); }
    [[nodiscard]] QWidget &view() { return *controls().ibPDEView; }
    [[nodiscard]] QWidget &window() { return window_; }
    /// Header's y and panel's height of the frame records.
    [[nodiscard]] std::pair<double, double> records();

    /// A click on the disclosure triangle.
    void clickDisclosure();
    /// The view's height when the panel last said that its size has changed.
    [[nodiscard]] int heightWhenTold() const { return heightWhenTold_; }
    /// From now on the window is at least as wide.
    void widen(int width);
    /// What the window does when the panel says that its size has changed.
    void fitContents();

private:
    void open(const Printer &printer);

    std::unique_ptr<OpenPpd> fixture_;
    sample::Ppd sample_;
    ppd_file_t *ppd_ = nullptr;
    FakeHost host_;
    QWidget window_;
    QObject observer_;
    int heightWhenTold_ = 0;
    std::unique_ptr<KorPDEController2> controller_;
};

} // namespace test
