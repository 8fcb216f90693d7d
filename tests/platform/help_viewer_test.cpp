#include "platform/help_viewer.h"
#include "tests/support/driver_root.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using test::q;

namespace {

const QString kBook = QStringLiteral("/Library/Printers/Korvane/Help/S300.help");

/// A driver root, and an opener that keeps what it was asked for.
class HelpViewer : public testing::Test
{
protected:
    HelpViewer()
    {
        former = platform::setHelpOpener(
            [this](const platform::HelpRequest &request) { requests.push_back(request); });
    }
    ~HelpViewer() override { (void)platform::setHelpOpener(former); }

    void writeBook(const QVariant &name, const QString &path = kBook) const
    {
        root.writeList(path + q("/Contents/Info.plist"),
                       QVariantMap{{q("CFBundleHelpBookName"), name}});
    }
    [[nodiscard]] OSStatus registerBook(const QString &path = kBook) const
    {
        FSRef book;
        EXPECT_TRUE(CFURLGetFSRef(path, &book));
        return AHRegisterHelpBook(book);
    }

    test::DriverRoot root;
    std::vector<platform::HelpRequest> requests;
    platform::HelpOpener former;
};

TEST_F(HelpViewer, FindsFilesBelowTheDriverRoot)
{
    root.write(q("/Library/page.html"), "x");
    FSRef reference{.realPath = q("before")};
    EXPECT_FALSE(CFURLGetFSRef(q("/Library/missing.html"), &reference));
    EXPECT_FALSE(CFURLGetFSRef(q(""), &reference));
    EXPECT_FALSE(CFURLGetFSRef(QString(), &reference));
    EXPECT_TEXT(reference.realPath, "before");
    EXPECT_TRUE(CFURLGetFSRef(q("/Library/page.html"), &reference));
    EXPECT_SAME(reference.realPath, root.realPath(q("/Library/page.html")));
    EXPECT_TRUE(CFURLGetFSRef(q("/Library"), &reference));
}

TEST_F(HelpViewer, OpensARegisteredBookByItsName)
{
    writeBook(q("Korvane S300 Help"));
    EXPECT_EQ(registerBook(), noErr);
    EXPECT_EQ(AHGotoPage(q("Korvane S300 Help"), q("ink.html"), q("dry")), noErr);
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_TEXT(requests[0].bookName, "Korvane S300 Help");
    EXPECT_SAME(requests[0].bookPath, root.realPath(kBook));
    EXPECT_TEXT(requests[0].page, "ink.html");
    EXPECT_TEXT(requests[0].anchor, "dry");
}

TEST_F(HelpViewer, OpensWithoutNamePageAndAnchor)
{
    EXPECT_EQ(AHGotoPage(QString(), QString(), QString()), noErr);
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_NULL(requests[0].bookName);
    EXPECT_NULL(requests[0].bookPath);
    EXPECT_NULL(requests[0].page);
    EXPECT_NULL(requests[0].anchor);
}

TEST_F(HelpViewer, PassesOnANameThatNobodyRegistered)
{
    EXPECT_EQ(AHGotoPage(q("Unheard Of"), QString(), QString()), noErr);
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_TEXT(requests[0].bookName, "Unheard Of");
    EXPECT_NULL(requests[0].bookPath);
}

TEST_F(HelpViewer, TakesTheLaterBookOfOneName)
{
    const QString other = q("/Library/Printers/Korvane/Help/Other.help");
    writeBook(q("Book"));
    writeBook(q("Book"), other);
    EXPECT_EQ(registerBook(), noErr);
    EXPECT_EQ(registerBook(other), noErr);
    EXPECT_EQ(AHGotoPage(q("Book"), QString(), QString()), noErr);
    EXPECT_SAME(requests[0].bookPath, root.realPath(other));
}

TEST_F(HelpViewer, RegistersNoBookWithoutAName)
{
    root.makeDirectory(kBook);
    EXPECT_EQ(registerBook(), paramErr);
    writeBook(QVariant::fromValue<qlonglong>(7));
    EXPECT_EQ(registerBook(), paramErr) << "a name that is no text";
    root.write(q("/Library/page.html"), "x");
    EXPECT_EQ(registerBook(q("/Library/page.html")), paramErr) << "no bundle";
    EXPECT_EQ(AHRegisterHelpBook(FSRef{}), paramErr);
}

TEST_F(HelpViewer, OpensNothingWithoutAnOpener)
{
    (void)platform::setHelpOpener({});
    EXPECT_EQ(AHGotoPage(q("Book"), QString(), QString()), noErr);
    EXPECT_TRUE(requests.empty());
}

TEST_F(HelpViewer, ReturnsTheFormerOpener)
{
    const platform::HelpOpener mine = platform::setHelpOpener({});
    ASSERT_TRUE(mine);
    mine({});
    EXPECT_EQ(requests.size(), 1u);
}

} // namespace
