#include "tests/plugin/life.h"

#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"
#include "platform/values.h"
#include "tests/plugin/panel_test_access.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace test {
namespace {

template <class Panel>
Panel *find(const std::shared_ptr<PDEPanelList> &panels)
{
    for (const auto &panel : panels ? *panels : PDEPanelList{}) {
        if (auto *found = dynamic_cast<Panel *>(panel.get()))
            return found;
    }
    return nullptr;
}

template <class Panel>
Panel &panelOf(const std::shared_ptr<PDEPanelList> &panels)
{
    auto *found = find<Panel>(panels);
    if (!found)
        throw std::runtime_error("the plug-in did not make this panel");
    return *found;
}

QString textOf(const QWidget *widget)
{
    if (const auto *popUp = qobject_cast<const QComboBox *>(widget))
        return QStringLiteral("%1 of %2").arg(popUp->currentIndex()).arg(popUp->count());
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text() +
               (button->isChecked() ? QStringLiteral(" on") : QStringLiteral(" off"));
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *field = qobject_cast<const QLineEdit *>(widget))
        return field->text();
    if (const auto *stepper = qobject_cast<const Stepper *>(widget))
        return QString::number(stepper->value());
    if (const auto *matrix = qobject_cast<const RadioMatrix *>(widget))
        return QString::number(matrix->selectedRow());
    return {};
}

void applyPlatformValues(const LifeOptions &options)
{
    platform::setSystemVersion(options.systemVersion);
    platform::setPreferredLanguages(options.languages);
    platform::setLocaleIdentifier(options.locale);
}

void writeDriverFiles(const DriverRoot &root, const LifeOptions &options, const ppd_file_t *ppd)
{
    if (options.productYear.isValid())
        root.writeProductYear(options.productYear);
    if (options.hasOtherPanel)
        root.writeOtherPanelSupport(true, QString::fromUtf8(ppd->modelname));
}

} // namespace

LifeOptions tonerLife()
{
    return {.ppd = p2(), .productYear = {}};
}

Life::Life(const LifeOptions &options, Until until) : ppd(options.ppd), host(ppd.get())
{
    applyPlatformValues(options);
    writeDriverFiles(root, options, ppd.get());
    for (const auto &[option, choice] : options.marks)
        ppd.mark(option, choice);
    host.session.ppd = ppd.get();
    EXPECT_TRUE(plugIn.initWithBundle(options.bundle));
    panels = plugIn.PDEPanelsForType(kPDEPrintDialogType.toString(), &host);
    if (until == Until::Shown)
        show();
}

MainPDE2 &Life::panel() const
{
    return panelOf<MainPDE2>(panels);
}

MainPDE3 &Life::otherPanel() const
{
    return panelOf<MainPDE3>(panels);
}

PDEModel2 &Life::model() const
{
    return *PanelTestAccess::controller(panel()).pdeModel();
}

PDEModel2 &Life::otherModel() const
{
    return *PanelTestAccess::controller(otherPanel()).pdeModel();
}

void Life::show()
{
    for (const auto &shown : *panels) {
        EXPECT_TRUE(shown->panelView());
        EXPECT_TRUE(shown->restoreValuesAndReturnError(nullptr));
        shown->willShow();
    }
}

Offers Life::save()
{
    const auto former = std::exchange(host.offers, {});
    EXPECT_TRUE(panel().saveValuesAndReturnError(nullptr));
    return std::exchange(host.offers, former);
}

void Life::externalChange(const char *option, const char *choice)
{
    for (const auto &told : *panels)
        told->PPDOptionKeyValueDidChange(QString::fromUtf8(option), QString::fromUtf8(choice));
}

QWidget *Life::widget(const char *outlet) const
{
    for (const auto &owner : *panels) {
        QWidget *view = owner->panelView();
        if (view && view->objectName() == QLatin1String(outlet))
            return view;
        if (auto *found = view ? view->findChild<QWidget *>(QLatin1String(outlet)) : nullptr)
            return found;
    }
    return nullptr;
}

void Life::reportMissing(const char *outlet)
{
    ADD_FAILURE() << "no control " << outlet << " of that class";
}

QStringList lines(const Offers &offers)
{
    QStringList lines;
    for (const auto &[option, choice] : offers)
        lines.append(option + u'=' + (choice.isNull() ? QStringLiteral("∅") : choice));
    return lines;
}

QStringList controlStates(const QWidget *view)
{
    QStringList states;
    for (const QWidget *widget : view->findChildren<QWidget *>()) {
        if (widget->objectName().startsWith(QLatin1String("ib")))
            states.append(widget->objectName() + u' ' + textOf(widget) +
                          (widget->isEnabled() ? QString() : QStringLiteral(" disabled")) +
                          (widget->isHidden() ? QStringLiteral(" hidden") : QString()));
    }
    return states;
}

} // namespace test
