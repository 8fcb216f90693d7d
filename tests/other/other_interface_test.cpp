#include "other/outlets.h"
#include "platform/values.h"
#include "tests/support/plugin_bundle.h"
#include "tests/support/print_to.h"

#include <QAccessible>
#include <QLayout>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <memory>

using namespace test;

namespace {

constexpr const char *kLanguages[] = {"en", "de", "es", "fr", "it", "ja", "pt", "zh_CN"};

struct Interface
{
    Interface()
    {
        const auto windows =
            platform::loadInterfaceFile(pluginBundle(), q("Other"), outlets.table());
        EXPECT_EQ(windows.size(), 1U);
        view.reset(windows.empty() ? nullptr : windows.front());
    }

    OtherOutlets outlets;
    std::unique_ptr<QWidget> view;
};

std::vector<QWidget *> controlsOf(const OtherOutlets &outlets)
{
    std::vector<QWidget *> controls{outlets.ibImprovementSettings};
    for (int row = 0; row < outlets.ibImprovePrintQuality->rows(); ++row)
        controls.push_back(outlets.ibImprovePrintQuality->button(row));
    controls.insert(controls.end(), {outlets.ibReduceGhosting, outlets.ibImprovePrintDensity});
    return controls;
}

} // namespace

TEST(OtherInterface, ConnectsEveryOutlet)
{
    const Interface interface;
    EXPECT_EQ(interface.outlets.ibOthersView, interface.view.get());
    EXPECT_TRUE(interface.outlets.ibCustomView);
    EXPECT_TRUE(interface.outlets.ibImprovementSettings);
    ASSERT_TRUE(interface.outlets.ibImprovePrintQuality);
    EXPECT_EQ(interface.outlets.ibImprovePrintQuality->rows(), 3);
    EXPECT_FALSE(interface.outlets.ibImprovePrintQuality->isEnabled());
    EXPECT_TRUE(interface.outlets.ibReduceGhosting);
    EXPECT_TRUE(interface.outlets.ibImprovePrintDensity);
}

TEST(OtherInterface, SetsTheMatrixInBelowItsBox)
{
    const Interface interface;
    interface.view->show();
    const OtherOutlets &outlets = interface.outlets;
    const QPoint box = outlets.ibImprovementSettings->mapTo(interface.view.get(), QPoint());
    const QPoint matrix = outlets.ibImprovePrintQuality->mapTo(interface.view.get(), QPoint());
    EXPECT_GE(matrix.x(), box.x() + 16);
    EXPECT_GE(matrix.y(), box.y() + outlets.ibImprovementSettings->height());
}

TEST(OtherInterface, TabsFromTopToBottom)
{
    const Interface interface;
    interface.view->show();
    QWidget *widget = interface.view.get();
    std::vector<QWidget *> order;
    do {
        widget = widget->nextInFocusChain();
        if (widget->focusPolicy() & Qt::TabFocus)
            order.push_back(widget);
    } while (widget != interface.view.get());
    EXPECT_EQ(order, controlsOf(interface.outlets));
}

TEST(OtherInterface, FitsInEveryLanguageAndWithLargerFonts)
{
    for (const char *language : kLanguages) {
        platform::setPreferredLanguages({q(language)});
        for (const double factor : {1.0, 1.5, 2.0}) {
            const Interface interface;
            QFont font = interface.view->font();
            font.setPointSizeF(font.pointSizeF() * factor);
            interface.view->setFont(font);
            interface.view->resize(interface.view->sizeHint());
            interface.view->show();
            int bottom = 0;
            for (const QWidget *control : controlsOf(interface.outlets)) {
                SCOPED_TRACE(testing::Message() << language << " at " << factor << ": "
                                                << control->objectName().toStdString());
                const QRect place(control->mapTo(interface.view.get(), QPoint()), control->size());
                EXPECT_TRUE(interface.view->rect().contains(place));
                EXPECT_GE(place.top(), bottom);
                EXPECT_GE(control->width(), control->sizeHint().width());
                EXPECT_GE(control->height(), control->sizeHint().height());
                bottom = place.bottom();
            }
        }
    }
}

TEST(OtherInterface, TellsScreenReadersWhatEachControlIs)
{
    for (const char *language : kLanguages) {
        platform::setPreferredLanguages({q(language)});
        const Interface interface;
        std::vector<QWidget *> controls = controlsOf(interface.outlets);
        controls.push_back(interface.outlets.ibImprovePrintQuality);
        for (QWidget *control : controls) {
            QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(control);
            ASSERT_TRUE(reader);
            EXPECT_FALSE(reader->text(QAccessible::Name).isEmpty())
                << language << control->objectName().toStdString();
        }
    }
}

TEST(OtherInterface, SaysInEveryLanguageWhatAControlDoesToThePrint)
{
    const Interface english;
    for (const char *language : kLanguages) {
        platform::setPreferredLanguages({q(language)});
        const Interface interface;
        const std::pair<QWidget *, QWidget *> controls[] = {
            {interface.outlets.ibImprovementSettings, english.outlets.ibImprovementSettings},
            {interface.outlets.ibImprovePrintQuality, english.outlets.ibImprovePrintQuality},
            {interface.outlets.ibReduceGhosting, english.outlets.ibReduceGhosting},
            {interface.outlets.ibImprovePrintDensity, english.outlets.ibImprovePrintDensity}};
        for (const auto &[here, there] : controls) {
            EXPECT_FALSE(here->toolTip().isEmpty());
            EXPECT_EQ(here->toolTip() == there->toolTip(), q(language) == q("en"))
                << language << here->objectName().toStdString();
        }
    }
}
