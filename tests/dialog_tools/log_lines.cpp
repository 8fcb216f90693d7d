#include "tests/dialog_tools/log_lines.h"

#include "dialog/log/log_text.h"

namespace test {

using namespace dialog::debuglog;

QByteArray record(char kind, const char *time, const char *operation, int line,
                  const QByteArray &message, int process)
{
    return QByteArray("A") + kind + QByteArray::number(process).rightJustified(6, '0') + "\t[" +
           time + "]\t" + operation + "\tL" + QByteArray::number(line) + '\t' + message + '\n';
}

QByteArray brace(const char *brace, const char *time, const char *operation, int process)
{
    return record('I', time, operation, 321, brace, process);
}

QString ReadLog::tree(const Filter &filter) const
{
    QString text;
    for (const Action &action : actions)
        text += treeText(action, filter);
    return text;
}

ReadLog readLog(const QByteArray &bytes, CallTreeBuilder::Limits limits)
{
    ReadLog log;
    CallTreeBuilder builder([&](const Action &action) { log.actions.push_back(action); }, limits);
    RecordReader reader([&](Record &&record) {
        builder.take(record);
        log.records.push_back(std::move(record));
    });
    QByteArrayView rest(bytes);
    while (!rest.isEmpty()) {
        const qsizetype end = rest.indexOf('\n');
        reader.takeLine(end < 0 ? rest : rest.first(end), end < 0 ? LineEnd::Cut : LineEnd::Whole);
        rest = end < 0 ? QByteArrayView() : rest.sliced(end + 1);
    }
    reader.finish();
    builder.finish();
    log.damage = reader.damage();
    log.unbalanced = builder.unbalanced();
    return log;
}

} // namespace test
