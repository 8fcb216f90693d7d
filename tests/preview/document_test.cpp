#include "dialog/preview/preview_document.h"
#include "tests/preview/sample_documents.h"
#include "tests/support/gate.h"

#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace dialog {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A document whose first page waits at a gate.
class GatedSource : public PageSource
{
public:
    explicit GatedSource(std::shared_ptr<test::Gate> gate) : gate_(std::move(gate)) {}

    bool isPicture() const override { return false; }
    int pageCount() const override { return 3; }
    QSizeF pageSize(int) override { return test::kA4Points; }
    QImage picture(const PagePart &part, const ShouldStop &) override
    {
        if (part.page == 0)
            gate_->pass();
        QImage image(part.part.size(), QImage::Format_RGB32);
        image.fill(part.page == 0 ? Qt::red : Qt::green);
        return image;
    }
    bool paint(int, QPainter &) override { return false; }

private:
    std::shared_ptr<test::Gate> gate_;
};

class Document : public testing::Test
{
protected:
    Document() { look.paper = {test::kA4Points, {}}; }

    void watch(PreviewDocument &document)
    {
        QObject::connect(&document, &PreviewDocument::opened,
                         [this](const DocumentFacts &facts) { opened.push_back(facts); });
        QObject::connect(&document, &PreviewDocument::drawn,
                         [this](const SidePicture &side) { drawn.push_back(side); });
    }
    bool waitForPictures(std::size_t count)
    {
        return QTest::qWaitFor([&] { return drawn.size() >= count; });
    }

    test::SampleDocuments documents;
    SheetLook look;
    std::vector<DocumentFacts> opened;
    std::vector<SidePicture> drawn;
};

TEST_F(Document, TellsItsPagesAndDrawsWhatWasAskedBeforeItWasOpen)
{
    PreviewDocument document;
    watch(document);
    document.open(documents.pdf(3));
    document.request({look, 1, 1});
    EXPECT_THAT(opened, IsEmpty()) << "nothing happens before the event loop runs";
    ASSERT_TRUE(waitForPictures(1));
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_EQ(opened[0].pageCount, 3);
    EXPECT_EQ(drawn[0].layout.pages[0].page, 1);
    EXPECT_EQ(drawn[0].image.size(), QSize(595, 842));
}

TEST_F(Document, TheFirstPageOfAThousandIsDrawnWithoutLookingAtTheOthers)
{
    const auto touched = std::make_shared<test::TouchedPages>();
    PreviewDocument document(test::countingOpener(touched));
    watch(document);
    document.open(documents.pdf(1'000));
    document.request({look, 0, 0.5});
    ASSERT_TRUE(waitForPictures(1));
    EXPECT_EQ(opened[0].pageCount, 1'000);
    EXPECT_THAT(touched->pages(), ElementsAre(0));
    look.pagesPerSheet = 4;
    document.request({look, 100, 0.5});
    ASSERT_TRUE(waitForPictures(2));
    EXPECT_THAT(touched->pages(), ElementsAre(0, 400, 401, 402, 403));
}

TEST_F(Document, ADocumentThatCannotBeShownSaysWhyAndDrawsNothing)
{
    PreviewDocument document;
    watch(document);
    document.open(documents.file("plain text"));
    document.request({look, 0, 1});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !opened.empty(); }));
    EXPECT_EQ(opened[0].problem, DocumentProblem::UnknownKind);
    EXPECT_EQ(opened[0].pageCount, 0);
    EXPECT_THAT(drawn, IsEmpty());
}

class GatedDocument : public Document
{
protected:
    GatedDocument()
        : gate(std::make_shared<test::Gate>()), document([gate = gate](const QString &) {
              return OpenedSource{std::make_unique<GatedSource>(gate)};
          })
    {
        watch(document);
        document.open(QStringLiteral("gated"));
        document.request({look, 0, 0.1});
        EXPECT_TRUE(QTest::qWaitFor([&] { return gate->arrived() == 1; }));
    }
    ~GatedDocument() override { gate->open(); }

    std::shared_ptr<test::Gate> gate;
    PreviewDocument document;
};

TEST_F(GatedDocument, ANewerRequestReplacesTheOlderOnes)
{
    document.request({look, 0, 0.1});
    document.request({look, 1, 0.1});
    document.request({look, 2, 0.1});
    gate->open();
    ASSERT_TRUE(waitForPictures(1));
    EXPECT_EQ(drawn[0].layout.pages[0].page, 2);
    QTest::qWait(20);
    EXPECT_EQ(drawn.size(), 1u);
    EXPECT_EQ(gate->arrived(), 1) << "the second request was never drawn";
}

TEST_F(GatedDocument, APictureThatWasReadyIsDroppedWhenANewerOneIsAskedFor)
{
    gate->open();
    // Drawn and on its way, but the event loop has not run.
    QTest::qSleep(30);
    document.request({look, 1, 0.1});
    ASSERT_TRUE(waitForPictures(1));
    EXPECT_EQ(drawn[0].layout.pages[0].page, 1);
}

TEST_F(GatedDocument, NothingFollowsAWithdrawnRequest)
{
    document.withdraw();
    gate->open();
    QTest::qWait(30);
    EXPECT_THAT(drawn, IsEmpty());
}

TEST_F(GatedDocument, ADocumentThatHangsDoesNotHoldUpTheNext)
{
    int opening = 0;
    PreviewDocument other([&, gate = gate](const QString &path) {
        return ++opening == 1 ? OpenedSource{std::make_unique<GatedSource>(gate)}
                              : openPageSource(path);
    });
    watch(other);
    other.open(QStringLiteral("gated"));
    other.request({look, 0, 0.1});
    ASSERT_TRUE(QTest::qWaitFor([&] { return gate->arrived() == 2; }));
    other.open(documents.pdf(1));
    other.request({look, 0, 0.1});
    ASSERT_TRUE(waitForPictures(1));
    EXPECT_EQ(opened.back().pageCount, 1);
}

TEST_F(Document, CanGoAwayWhileItIsBeingOpened)
{
    const auto gate = std::make_shared<test::Gate>();
    {
        PreviewDocument document([gate](const QString &) {
            gate->pass();
            return OpenedSource{std::make_unique<GatedSource>(gate)};
        });
        watch(document);
        document.open(QStringLiteral("gated"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return gate->arrived() == 1; }));
    }
    gate->open();
    QTest::qWait(20);
    EXPECT_THAT(opened, IsEmpty());
}

} // namespace
} // namespace dialog
