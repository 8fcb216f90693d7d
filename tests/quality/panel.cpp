#include "tests/quality/panel.h"

#include "platform/values.h"
#include "quality/settings_table.h"
#include "tests/support/plugin_bundle.h"
#include "tests/support/user.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

namespace test {

QualityPanel::QualityPanel(const PpdText &text, Settings settings)
    : ppd(text, settings.marks), host(ppd.get())
{
    platform::setSystemVersion(settings.version);
    if (settings.year.isValid())
        root.writeProductYear(settings.year);
}

void QualityPanel::create()
{
    const PDETools2 tools;
    controller_ = std::make_unique<KorPDEController2>(
        ppd.get(), tools.getEncodingFromPPD(ppd.get()), host.printSettings(), host.pageFormat(),
        pluginBundle());
    controller_->setPrintSession(host.printSession());
    controller_->setPDEPluginCallbackObject(&host);
}

KorPDEController2 &QualityPanel::controller()
{
    if (!controller_)
        create();
    return *controller_;
}

QualityOutlets &QualityPanel::controls()
{
    return QualityTestAccess::outlets(controller());
}

PDEModel2 &QualityPanel::model()
{
    return *controller().pdeModel();
}

void QualityPanel::show()
{
    controller().initializeControls();
    controller().localizeLabels();
    controller().updateControls();
}

QualityPanel &QualityPanel::life()
{
    EXPECT_TRUE(controller().mainView());
    restore();
    show();
    return *this;
}

void QualityPanel::external(quality::Setting setting, const char *choice)
{
    const SettingSlots &slots = quality::row(setting).slots;
    const QString word = QString::fromUtf8(choice);
    (model().*slots.setTicket)(word);
    (model().*slots.setValue)(
        PDETools2().getOptionsChoice(word, (model().*slots.option)(), ChoiceString::Text));
    controller().updateControl(quality::keyword(setting));
}

void QualityPanel::openAdvanced()
{
    if (controls().ibAdvancedView->isHidden())
        user::click(controls().ibDisclosure);
}

void QualityPanel::reach(QWidget *control)
{
    ASSERT_TRUE(control);
    if (controls().ibAdvancedView->isAncestorOf(control))
        openAdvanced();
}

void QualityPanel::choose(QComboBox *popUp, int index)
{
    reach(popUp);
    user::choose(popUp, index);
}

void QualityPanel::click(QAbstractButton *button)
{
    reach(button);
    user::click(button);
}

void QualityPanel::type(const char *text)
{
    QLineEdit *field = controls().ibThresholdTextFeild;
    reach(field);
    controls().ibPDEView->activateWindow();
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, QString::fromUtf8(text));
}

void QualityPanel::paste(const char *text)
{
    QLineEdit *field = controls().ibThresholdTextFeild;
    reach(field);
    QApplication::clipboard()->setText(QString::fromUtf8(text));
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
}

QStringList titles(const QComboBox *popUp)
{
    QStringList all;
    for (int i = 0; popUp && i < popUp->count(); ++i)
        all.append(popUp->itemText(i));
    return all;
}

namespace {

QString shown(const QString &text)
{
    return text.isNull() ? QStringLiteral("∅") : text;
}

} // namespace

QString pair(PDEModel2 &model, quality::Setting setting)
{
    const SettingSlots &slots = quality::row(setting).slots;
    return shown((model.*slots.value)()) + u'/' + shown((model.*slots.ticket)());
}

QStringList texts(const Offers &offers)
{
    QStringList lines;
    for (const auto &[option, choice] : offers)
        lines.append(option + u'=' + shown(choice));
    return lines;
}

} // namespace test
