#pragma once

#include "platform/panel_protocol.h"

#include <functional>
#include <utility>
#include <vector>

namespace test {

using Offer = std::pair<QString, QString>;
using Offers = std::vector<Offer>;

/// The dialog as the panels see it, under the test's control. Answers YES unless told otherwise, and
/// marks accepted choices in the PPD only when asked to.
class FakeHost : public PDEPlugInCallback
{
public:
    explicit FakeHost(ppd_file_t *ppd = nullptr) : ppd_(ppd) {}

    ppd_file_t *ppdFile() override;
    PMPrintSettings printSettings() override { return &settings; }
    PMPageFormat pageFormat() override { return &format; }
    PMPrintSession printSession() override { return &session; }
    void panelViewDidResize() override;
    bool willChangePPDOptionKeyValue(const QString &option, const QString &choice) override;

    platform::PrintSettings settings;
    platform::PageFormat format;
    platform::PrintSession session{&settings, &format};

    /// Every offer, in order; null choices are null strings.
    Offers offers;
    /// Decides each offer; empty means YES to all.
    std::function<bool(const Offer &)> answer;
    bool marksAcceptedChoices = false;
    /// Runs inside panelViewDidResize().
    std::function<void()> onResize;
    int resizes = 0;
    int ppdFileCalls = 0;

    void refuseAll();

private:
    ppd_file_t *ppd_;
};

/// One offer, for expectations; ∅ is offer("Key").
[[nodiscard]] Offer offer(const char *option, const char *choice = nullptr);

} // namespace test
