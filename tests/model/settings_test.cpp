#include "model/settings.h"

#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using test::OpenPpd;
using test::q;

namespace {

constexpr SettingSlots kPaperType{&PDEModel2::paperTypeOption, &PDEModel2::setPaperTypeOption,
                                  &PDEModel2::paperType,       &PDEModel2::setPaperType,
                                  &PDEModel2::paperTypeTicket, &PDEModel2::setPaperTypeTicket};

class Settings : public testing::Test
{
protected:
    Settings() { model.setPaperTypeOption(tools.getPPDOption("MediaType", ppd.get())); }

    OpenPpd ppd{test::p1()};
    PDETools2 tools;
    PDEModel2 model;
};

TEST_F(Settings, StoringAChoiceSetsTextAndKeyword)
{
    storeChoice(model, kPaperType, tools, q("IronOn"));
    EXPECT_TEXT(model.paperType(), "Iron-On Transfer");
    EXPECT_TEXT(model.paperTypeTicket(), "IronOn");
}

TEST_F(Settings, StoringAnUnknownChoiceClearsBoth)
{
    storeChoice(model, kPaperType, tools, q("IronOn"));
    storeChoice(model, kPaperType, tools, q("Nope"));
    EXPECT_NULL(model.paperType());
    EXPECT_NULL(model.paperTypeTicket());
}

TEST_F(Settings, AMarkedChoiceIsStoredAndAMissingMarkChangesNothing)
{
    storeMarkedChoice(model, kPaperType, tools, q("MediaType"), ppd.get());
    EXPECT_TEXT(model.paperType(), "Plain Paper");
    EXPECT_TEXT(model.paperTypeTicket(), "Plain");
    storeMarkedChoice(model, kPaperType, tools, q("Nope"), ppd.get());
    EXPECT_TEXT(model.paperTypeTicket(), "Plain");
}

TEST_F(Settings, OnlyATicketedSettingIsCopied)
{
    PDEModel2 source;
    source.setPaperType(q("lonely value"));
    storeChoice(model, kPaperType, tools, q("IronOn"));
    copyTicketed(model, source, kPaperType);
    EXPECT_TEXT(model.paperTypeTicket(), "IronOn");
    source.setPaperTypeTicket(q("Plain"));
    copyTicketed(model, source, kPaperType);
    EXPECT_TEXT(model.paperTypeTicket(), "Plain");
    EXPECT_TEXT(model.paperType(), "lonely value");
}

} // namespace
