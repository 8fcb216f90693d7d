#include "dialog/presets/preset_messages.h"

#include "dialog/presets/preset_file.h"
#include "dialog/printers/ppd_document.h"

namespace dialog {
namespace {

QString settingText(const Choice &choice, const PpdDocument &printer)
{
    return QStringLiteral("%1: %2").arg(printer.optionText(choice.option),
                                        printer.choiceText(choice));
}

} // namespace

QString PresetMessages::fault(const StoreResult &result)
{
    switch (result.fault) {
    case StoreFault::None:
        return {};
    case StoreFault::NameTaken:
        return fault(NameFault::Taken);
    case StoreFault::Gone:
        return tr("There is no such preset any more; another print dialog has deleted or renamed "
                  "it.");
    case StoreFault::TooMany:
        return tr("There is room for %n preset(s) only. Delete one that is not needed any more.",
                  nullptr, static_cast<int>(kMostPresets));
    case StoreFault::Busy:
        return tr("Another print dialog is changing the presets. Try again.");
    case StoreFault::NoRoom:
        return tr("The presets could not be written to “%1” because there is no room left. Free "
                  "some space and try again.")
            .arg(result.path);
    case StoreFault::NotAllowed:
        return tr("“%1” may not be read or written. Allow it, and try again.").arg(result.path);
    case StoreFault::Untrusted:
        return tr("“%1” is a link, belongs to somebody else, or others may write to it. Replace it "
                  "by a folder that only you may write to.")
            .arg(result.path);
    case StoreFault::Newer:
        return tr("The presets in “%1” are of a newer version of this program. Update the program, "
                  "or move the file away to begin anew.")
            .arg(result.path);
    case StoreFault::SystemError:
        return tr("“%1” cannot be used for presets: %2.").arg(result.path, result.detail);
    }
    return {};
}

QString PresetMessages::setAside(const QString &path)
{
    return tr("The file of your presets for this printer was damaged. It is kept as “%1”; what "
              "could be read of it is still here. Correct the file and give it back its old name, "
              "or delete it.")
        .arg(path);
}

QString PresetMessages::fault(NameFault fault)
{
    switch (fault) {
    case NameFault::None:
        return {};
    case NameFault::Empty:
        return tr("Type a name.");
    case NameFault::TooLong:
        return tr("A name has at most %n character(s).", nullptr,
                  static_cast<int>(kLongestPresetName));
    case NameFault::Taken:
        return tr("Another preset has this name.");
    }
    return {};
}

QString PresetMessages::remarks(const QString &preset, const PresetPlan &plan,
                                const PpdDocument &printer)
{
    QStringList lines;
    if (!plan.missing.empty())
        lines.append(tr("This printer does not have everything that “%1” sets. These settings were "
                        "left as the printer has them:")
                         .arg(preset));
    for (const Choice &choice : plan.missing)
        lines.append(settingText(choice, printer));
    if (!plan.conflicts.empty())
        lines.append(tr("These settings cannot be used together on this printer:"));
    for (const Conflict &conflict : plan.conflicts)
        lines.append(
            tr("“%1” and “%2”")
                .arg(settingText(conflict.one, printer), settingText(conflict.other, printer)));
    return lines.isEmpty() ? QString() : lines.join(u'\n');
}

} // namespace dialog
