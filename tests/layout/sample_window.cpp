#include "tests/layout/sample_window.h"

#include "dialog/window/print_window.h"
#include "tests/support/print_to.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

namespace test {

QString samplePpd(const Look &look)
{
    const QString path =
        q(KORVANE_SOURCE_DIR "/driver/ppd/Korvane-S300-%1.ppd").arg(q(look.language));
    return QFile::exists(path) ? path : q(KORVANE_SOURCE_DIR "/driver/ppd/Korvane-S300.ppd");
}

std::unique_ptr<dialog::PrintDialog> openSample(const Look &look, const QString &document)
{
    return openPrinter(samplePpd(look), look, document);
}

std::unique_ptr<dialog::PrintDialog> openPrinter(const QString &ppd, const Look &look,
                                                 const QString &document)
{
    dialog::PrintCase printCase;
    printCase.ppd = ppd;
    printCase.root = q(KORVANE_ROOT_DIR);
    printCase.language = q(look.language);
    printCase.document = document;
    auto opened = dialog::PrintDialog::open(printCase);
    auto *made = std::get_if<std::unique_ptr<dialog::PrintDialog>>(&opened);
    if (!made) {
        ADD_FAILURE() << std::get<QString>(opened).toStdString();
        return nullptr;
    }
    (*made)->showPanels();
    EXPECT_TRUE(QTest::qWaitForWindowActive((*made)->window()));
    return std::move(*made);
}

void settle()
{
    constexpr int kMilliseconds = 50;
    QTest::qWait(kMilliseconds);
    QCoreApplication::sendPostedEvents();
}

} // namespace test
