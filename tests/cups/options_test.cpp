#include "dialog/printers/ppd_document.h"
#include "dialog/printers/standard_options.h"
#include "dialog/printers/unsendable.h"
#include "tests/cups/queue_session.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <QFile>

#include <gtest/gtest.h>

#include <map>

using namespace dialog;
using test::q;
using test::QueueSession;

namespace {

constexpr int kPatient = 20'000;

test::PpdText officePrinter()
{
    test::PpdText ppd = test::p1();
    const auto add = [&](const QByteArray &name, const std::vector<test::PpdChoice> &choices) {
        ppd.add({name, name, test::PpdUi::PickOne, choices, choices.front().keyword});
    };
    add("Duplex", {{"None", "Off"}, {"DuplexNoTumble", "Long"}, {"DuplexTumble", "Short"}});
    add("ColorModel", {{"RGB", "Color"}, {"Gray", "Gray"}});
    add("cupsPrintQuality", {{"Normal", "Normal"}, {"Draft", "Draft"}, {"High", "High"}});
    add("OutputBin", {{"FaceUp", "Up"}, {"FaceDown", "Down"}});
    add("Collate", {{"True", "Yes"}, {"False", "No"}});
    add("InputSlot", {{"Rear", "Rear"}, {"Front", "Front"}});
    return ppd;
}

class JobAtAServer : public testing::Test
{
protected:
    JobAtAServer() : printing(session.printing(kPatient))
    {
        const QByteArray ppd = officePrinter().bytes();
        session.server().addQueue(QueueSession::queue(), ppd);
        printer =
            std::move(std::get<std::unique_ptr<PpdDocument>>(PpdDocument::open(written(ppd))));
    }
    /// What the filter reads; empty when the job was not made.
    [[nodiscard]] std::map<QString, QString> arrived(const JobOptions &options)
    {
        const auto pressed = session.press(*printing, {q("job"), session.document(), options});
        std::map<QString, QString> read;
        if (pressed.result.jobId == 0 || !session.server().waitForJob(pressed.result.jobId))
            return read;
        EXPECT_TRUE(pressed.result.differences.empty())
            << pressed.result.differences.front().option.toStdString();
        for (const auto &[name, value] : session.server().options(pressed.result.jobId))
            read[name] = value;
        copies = session.server().copies(pressed.result.jobId);
        return read;
    }
    [[nodiscard]] QString written(const QByteArray &ppd) const
    {
        QFile file(session.server().folder() + q("/files/opened.ppd"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(ppd);
        return file.fileName();
    }
    [[nodiscard]] JobSettings settings() const
    {
        JobSettings made{printer->defaults(), printer->marks(), {}, {}, {}};
        made.counterparts = standardCounterparts(*printer);
        return made;
    }

    mutable QueueSession session;
    std::unique_ptr<QueuePrinting> printing;
    std::unique_ptr<PpdDocument> printer;
    int copies = 0;
};

} // namespace

TEST_F(JobAtAServer, HasOneMeaningForEachSettingHoweverItWasMarked)
{
    printer->mark({q("Duplex"), q("DuplexTumble")});
    printer->mark({q("ColorModel"), q("Gray")});
    printer->mark({q("cupsPrintQuality"), q("Draft")});
    printer->mark({q("OutputBin"), q("FaceDown")});
    printer->mark({q("PageSize"), q("B5JIS")});
    printer->mark({q("Mirror"), q("On")});
    JobSettings made = settings();
    made.printSettings = {
        {q("sides"), q("two-sided-long-edge")},
        {q("print-color-mode"), q("color")},
        {q("print-quality"), q("5")},
        {q("output-bin"), q("face-up")},
        {q("media"), q("na_letter_8.5x11in,Front")},
        {q("mirror"), q("true")},
        {q("copies"), q("3")},
        {columnsKey(), q("2")},
        {q("multiple-document-handling"), q("separate-documents-uncollated-copies")},
    };
    const JobOptions options = jobOptions(made);
    const auto read = arrived(options);
    // The server adds the number that says the same as cupsPrintQuality=High, and a filter that
    // parses the options keeps one of the two.
    const std::pair<const char *, const char *> expected[] = {
        {"Duplex", "DuplexNoTumble"}, {"ColorModel", "RGB"},  {"print-quality", "5"},
        {"OutputBin", "FaceUp"},      {"PageSize", "Letter"}, {"InputSlot", "Front"},
        {"mirror", "true"},           {"number-up", "2"},     {"Collate", "false"},
    };
    for (const auto &[name, value] : expected)
        EXPECT_TRUE(read.contains(q(name)) && read.at(q(name)) == q(value)) << name;
    for (const char *absent : {"sides", "media", "print-color-mode", "output-bin", "Mirror",
                               "multiple-document-handling"})
        EXPECT_FALSE(read.contains(q(absent))) << absent;
    EXPECT_EQ(copies, 3);
    EXPECT_EQ(replacedMarks(made).size(), 8U);
}

TEST_F(JobAtAServer, GetsEverySettingWholeJustBelowTheLimits)
{
    JobOptions options{
        {QString(255, u'N'), q("x")},
        {q("Long"), QString(32 * 1024 - 1, u'\'')},
        {q("Odd"), q("{x")},
        {q("Blanks"), q(" a  b ")},
        {q("Quotes"), q("'a\"b\\c,d")},
        {q("Text"), q("Größe 紙")},
        {q("notes"), q("kept")},
    };
    ASSERT_TRUE(unsendableReason(options).startsWith(q("Odd:")));
    options[2].second = q("x{");
    int filler = 0;
    while (writtenBytes(options) + 1100 < kMostWrittenBytes)
        options.emplace_back(q("Filler%1").arg(++filler), QString(1000, u'f'));
    options.emplace_back(q("Last"), q(""));
    options.back().second =
        QString(static_cast<qsizetype>(kMostWrittenBytes - writtenBytes(options)), u'l');
    ASSERT_EQ(writtenBytes(options), kMostWrittenBytes);
    EXPECT_NULL(unsendableReason(options));
    const auto read = arrived(options);
    for (const auto &[name, value] : options)
        EXPECT_TRUE(read.contains(name) && read.at(name) == value) << name.toStdString();
    options.back().second += u'l';
    EXPECT_FALSE(unsendableReason(options).isNull());
}

TEST_F(JobAtAServer, WouldGetSettingsChangedThatAreRefused)
{
    const JobOptions table[] = {
        {{q("noMirror"), q("true")}},
        {{q("A=B"), q("c")}},
        {{q("A B"), q("c")}},
        {{q("A"), QString(u'x') + QChar(u'\0') + u'y'}},
        {{q("A"), QString(QChar(0xd800))}},
    };
    for (const JobOptions &options : table) {
        const auto &[name, value] = options.front();
        EXPECT_FALSE(unsendableReason(options).isNull()) << name.toStdString();
        const auto pressed = session.press(*printing, {q("job"), session.document(), options});
        ASSERT_TRUE(session.server().waitForJob(pressed.result.jobId)) << name.toStdString();
        const auto read = session.server().options(pressed.result.jobId);
        EXPECT_EQ(std::count(read.begin(), read.end(), options.front()), 0) << name.toStdString();
    }
}
