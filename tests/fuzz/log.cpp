// Debug logs of any bytes: through the reader, the call tree, filters and the print.

#include "dialog/log/log_text.h"

#include <cstdlib>

using namespace dialog::debuglog;

namespace {

/// Small limits, so that short inputs reach them.
constexpr CallTreeBuilder::Limits kLimits{.entries = 40, .bytes = 2000, .depth = 8, .processes = 3};

void read(QByteArrayView bytes, const Filter &filter)
{
    qsizetype printed = 0;
    CallTreeBuilder tree(
        [&](const Action &action) {
            printed += treeText(action, filter).size() + actionLine(action).size();
            if (action.entries.empty())
                std::abort();
        },
        kLimits);
    RecordReader reader([&](Record &&record) { tree.take(record); });
    while (!bytes.isEmpty()) {
        const qsizetype end = bytes.indexOf('\n');
        reader.takeLine(bytes.first(end < 0 ? bytes.size() : end),
                        end < 0 ? LineEnd::Cut : LineEnd::Whole);
        bytes = bytes.sliced(end < 0 ? bytes.size() : end + 1);
    }
    reader.finish();
    tree.finish();
    printed += damageText(QStringLiteral("log"), reader.damage(), tree.unbalanced()).size();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    read(bytes, {});
    read(bytes,
         {.className = "PDEModel2", .operation = "setPaperType:", .kinds = "IE", .text = "="});
    return 0;
}
