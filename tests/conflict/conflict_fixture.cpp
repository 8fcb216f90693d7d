#include "tests/conflict/conflict_fixture.h"

#include "model/setting_slots.h"
#include "platform/controls/controls.h"
#include "platform/controls/modal_session.h"
#include "platform/notification_center.h"
#include "tests/support/plugin_bundle.h"

#include <QPushButton>
#include <QTest>

namespace test {
namespace {

struct Marked
{
    const char *option;
    const SettingSlots *slots;
};

constexpr Marked kMarked[] = {{"PrintQuality", &settings::printQuality},
                              {"MediaType", &settings::paperType},
                              {"ColorOutput", &settings::colorOutput},
                              {"InkToUse", &settings::inkToUse},
                              {"Mirror", &settings::mirror}};

void press(QAbstractButton *button)
{
    ASSERT_TRUE(button);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

QPushButton *okButtonOf(QDialog *window)
{
    for (QPushButton *button : window->findChildren<QPushButton *>()) {
        if (button->objectName().startsWith(QLatin1String("ibOkButton_")))
            return button;
    }
    ADD_FAILURE() << window->objectName().toStdString() << " has no OK button";
    return nullptr;
}

} // namespace

void clearProcessFlags()
{
    for (bool *flag :
         {&HAS_PAPERSIZE_CONFLICT, &HAS_PAGESPERSHEET_CONFLICT, &HAS_PRINTINBLACK_CONFLICT,
          &HAS_MIRROR_CONFLICT, &HAS_CARTINSTALLED_CONFLICT, &HAS_INKTOUSE_CONFLICT,
          &IGNORE_IRONON_DRAFT_CONFLICT, &IGNORE_IRONON_PAGESPERSHEET_CONFLICT,
          &IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT, &IGNORE_MIRROR_ENVELOPE_CONFLICT})
        *flag = false;
    conflict::clearInstructionFlags();
}

ConflictFixture::ConflictFixture()
{
    clearProcessFlags();
    platform::setSystemVersion(0x1049);
    format.setPaperName(q("Letter"));
    platform::NotificationCenter::defaultCenter().addObserver(
        &observer, ConflictControllerChangeNotification,
        [this](const platform::Notification &posted) { notified.push_back(posted.object); });
}

ConflictFixture::~ConflictFixture()
{
    EXPECT_EQ(platform::modalDepth(), 0);
    clearProcessFlags();
}

void ConflictFixture::make(const PpdText &description, quint16 productYear)
{
    if (productYear != 65535)
        root.writeProductYear(qlonglong{productYear});
    ppd = std::make_unique<OpenPpd>(description);
    const PDETools2 tools;
    for (const Marked &marked : kMarked) {
        (model.*marked.slots->setOption)(tools.getPPDOption(marked.option, ppd->get()));
        storeMarkedChoice(model, *marked.slots, tools, q(marked.option), ppd->get());
    }
    controller = std::make_unique<KorConflictController2>(&settings, &format, ppd->get(), &model,
                                                          pluginBundle());
}

void ConflictFixture::setTickets(const char *paperType, const char *printQuality)
{
    const PDETools2 tools;
    storeChoice(model, settings::paperType, tools, q(paperType));
    storeChoice(model, settings::printQuality, tools, q(printQuality));
}

void ConflictFixture::setInk(const char *choice)
{
    storeChoice(model, settings::inkToUse, PDETools2(), q(choice));
}

QString ConflictFixture::text(const QPointer<QLabel> &label) const
{
    return controls::text(label);
}

ModalScript::Step ConflictFixture::okAtOnce() const
{
    return [](QDialog *window) { press(okButtonOf(window)); };
}

ModalScript::Step ConflictFixture::choiceThenOk(const char *button) const
{
    return [button](QDialog *window) {
        press(window->findChild<QRadioButton *>(q(button)));
        press(okButtonOf(window));
    };
}

ModalScript::Step ConflictFixture::closeIt() const
{
    return [](QDialog *window) { window->close(); };
}

} // namespace test
