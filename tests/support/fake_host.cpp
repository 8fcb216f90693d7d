#include "tests/support/fake_host.h"

#include <cups/ppd.h>

namespace test {

ppd_file_t *FakeHost::ppdFile()
{
    ++ppdFileCalls;
    return ppd_;
}

void FakeHost::panelViewDidResize()
{
    ++resizes;
    if (onResize)
        onResize();
}

bool FakeHost::willChangePPDOptionKeyValue(const QString &option, const QString &choice)
{
    offers.emplace_back(option, choice);
    const bool accepted = !answer || answer(offers.back());
    if (accepted && marksAcceptedChoices && ppd_ && !choice.isNull())
        ppdMarkOption(ppd_, option.toUtf8().constData(), choice.toUtf8().constData());
    return accepted;
}

void FakeHost::refuseAll()
{
    answer = [](const Offer &) { return false; };
}

Offer offer(const char *option, const char *choice)
{
    return {QString::fromUtf8(option), choice ? QString::fromUtf8(choice) : QString()};
}

} // namespace test
