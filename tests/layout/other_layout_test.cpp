#include "other/kor_pde_controller3.h"
#include "platform/values.h"
#include "tests/layout/desktop.h"
#include "tests/support/fake_host.h"
#include "tests/support/layout_check.h"
#include "tests/support/plugin_bundle.h"
#include "tests/support/print_to.h"
#include "tests/tools/sample_ppd.h"

#include <QRadioButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using testing::IsEmpty;

namespace {

class OtherLayout : public testing::TestWithParam<Look>
{
protected:
    OtherLayout()
    {
        controller.setPDEPluginCallbackObject(&host);
        view = controller.mainView();
        controller.processMarkedPPDChoices();
        controller.initializeControls();
        controller.localizeLabels();
        controller.updateControls();
        view->resize(view->sizeHint());
        view->show();
    }

    template <class Control>
    Control *control(const char *name)
    {
        return view->findChild<Control *>(q(name));
    }

    Desktop desktop{GetParam()};
    sample::Ppd ppd = sample::open("Korvane-T500");
    FakeHost host;
    KorPDEController3 controller{ppd.get(), 0x08000100, host.printSettings(), host.pageFormat(),
                                 pluginBundle()};
    QWidget *view = nullptr;
};

TEST_P(OtherLayout, LooksRight)
{
    keepPicture(view, q("other-") + q(testing::PrintToString(GetParam()).c_str()));
    EXPECT_EQ(layout::controlsOf(*view).size(), 6u);
    EXPECT_THAT(layout::findings(*view), IsEmpty());
    EXPECT_THAT(layout::withoutToolTip(*view), IsEmpty());
    EXPECT_THAT(layout::faint(*view), IsEmpty());
}

TEST_P(OtherLayout, TheImprovementsReadAsBelongingToTheirBox)
{
    const auto *box = control<QCheckBox>("ibImprovementSettings");
    const auto *matrix = control<RadioMatrix>("ibImprovePrintQuality");
    const auto *next = control<QCheckBox>("ibReduceGhosting");
    const auto left = [this](const QWidget *widget) { return widget->mapTo(view, QPoint()).x(); };
    EXPECT_EQ(left(box), left(next));
    for (int row = 0; row < matrix->rows(); ++row)
        EXPECT_GE(left(matrix->button(row)), left(box) + 16) << row;
    EXPECT_LT(box->mapTo(view, QPoint()).y(), matrix->mapTo(view, QPoint()).y());
    EXPECT_LT(matrix->mapTo(view, QPoint()).y(), next->mapTo(view, QPoint()).y());
}

INSTANTIATE_TEST_SUITE_P(Looks, OtherLayout, testing::ValuesIn(allLooks()),
                         [](const auto &look) { return std::to_string(look.index); });

} // namespace
