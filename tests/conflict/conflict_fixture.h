#pragma once

#include "conflict/flags.h"
#include "conflict/kor_conflict_controller.h"
#include "model/pde_tools.h"
#include "tests/conflict/modal_script.h"
#include "tests/support/driver_root.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

#include <memory>

/// The one door to the controller's outlets and fields.
struct ConflictTestAccess
{
    static const ConflictOutlets &outlets(const KorConflictController2 &controller)
    {
        return controller;
    }
    static void setRunning1050OrLater(KorConflictController2 &controller, bool isLater)
    {
        controller.isRunning1050orLater = isLater;
    }
    static bool load(KorConflictController2 &controller) { return controller.loadWindows(); }
    static std::vector<bool> flags_MsgOne(const KorConflictController2 &controller)
    {
        return {controller.isFirstButton_MsgOneClicked, controller.isSecondButton_MsgOneClicked,
                controller.isThirdButton_MsgOneClicked};
    }
    static std::vector<bool> flags_MsgTwo(const KorConflictController2 &controller)
    {
        return {controller.isFirstButton_MsgTwoClicked, controller.isSecondButton_MsgTwoClicked,
                controller.isThirdButton_MsgTwoClicked};
    }
    static std::vector<bool> flags_MsgFive(const KorConflictController2 &controller)
    {
        return {controller.isFirstButton_MsgFiveClicked, controller.isSecondButton_MsgFiveClicked};
    }
};

namespace test {

void clearProcessFlags();

/// A controller over P1 in the state after a life: system 0x1049, paper "Letter", every
/// process-wide flag clear, no cartridges. Change what a test needs before calling make().
class ConflictFixture : public testing::Test
{
protected:
    ConflictFixture();
    ~ConflictFixture() override;

    /// Opens the printer, fills the model with its marked choices, makes the controller.
    void make(const PpdText &text = p1(), quint16 productYear = 2009);
    void setTickets(const char *paperType, const char *printQuality = "Automatic");
    void setInk(const char *choice);
    void setColorOutput(const char *ticket) { model.setColorOutputTicket(q(ticket)); }
    void setPaper(const char *name) { format.setPaperName(q(name)); }
    [[nodiscard]] const ConflictOutlets &outlets() const
    {
        return ConflictTestAccess::outlets(*controller);
    }
    [[nodiscard]] QString text(const QPointer<QLabel> &label) const;
    [[nodiscard]] static std::vector<int> list(std::initializer_list<int> cases) { return cases; }

    /// Steps for a ModalScript.
    [[nodiscard]] ModalScript::Step okAtOnce() const;
    [[nodiscard]] ModalScript::Step choiceThenOk(const char *button) const;
    [[nodiscard]] ModalScript::Step closeIt() const;

    DriverRoot root;
    platform::PrintSettings settings;
    platform::PageFormat format;
    std::unique_ptr<OpenPpd> ppd;
    PDEModel2 model;
    std::unique_ptr<KorConflictController2> controller;
    QObject observer;
    std::vector<QObject *> notified; ///< objects of the change notifications
};

} // namespace test
