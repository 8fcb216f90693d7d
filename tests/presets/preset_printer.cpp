#include "tests/presets/preset_printer.h"

#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace test {

PpdText presetPrinter()
{
    return constrained().add({"Finishing",
                              "Finishing",
                              PpdUi::PickMany,
                              {{"None", "None"}, {"Punch", "Punch Holes"}, {"Staple", "Staple"}},
                              "None"});
}

std::unique_ptr<dialog::PpdDocument> opened(const PpdText &text)
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(q("printer.ppd")));
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    file.write(text.bytes());
    file.close();
    auto document = dialog::PpdDocument::open(file.fileName());
    EXPECT_TRUE(std::holds_alternative<std::unique_ptr<dialog::PpdDocument>>(document));
    return std::move(std::get<std::unique_ptr<dialog::PpdDocument>>(document));
}

dialog::SettingWords plainWords()
{
    return {[](const QString &key) { return key; },
            [](const QString &, const QVariant &value) { return value.toString(); }};
}

} // namespace test
