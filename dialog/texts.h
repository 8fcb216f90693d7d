#pragma once

#include <QString>
#include <QStringList>

namespace dialog {

/// Every text of the dialog's own that a person reads in its window, by name. The words of printers
/// and panels are not among them.
enum class Text {
    WindowTitle,
    Printer,
    Document,
    NoDocument,
    Settings,
    Print,
    Cancel,
    Help,
    Dismiss,
    PrintAnyway,
    GoBack,
    TryAgain,
    Connecting,
    FindPrinter,
    NoPrinterMatches,
    StateUnreachable,
    StatePaused,
    StatePausedBecause,
    StateRejecting,
    StateOffline,
    StateOfflineBecause,
    StatePrinting,
    StateIdle,
    QueueNamed,
    QueueWithState,
    DefaultQueue,
    ServerUnreachable,
    ServerSilent,
    ServerRefused,
    NoQueues,
    QueueGone,
    QueuePpdBroken,
    QueueWithoutPpd,
    ChoicesLeftBehind,
    ChoiceLeftBehind,
    PanelsMissing,
    PlugInRefused,
    PlugInAbsent,
    PlugInForeign,
    PlugInDamaged,
    RefusedOutside,
    RefusedDotDot,
    RefusedMissing,
    RefusedLink,
    RefusedOwner,
    RefusedWritable,
    RefusedKind,
    LibraryCutOff,
    NoPanelsForPrinter,
    OfferConflicts,
    OfferRefused,
    ReviewConflict,
    ReviewDifference,
    ReviewHeading,
    DocumentNeeded,
    DocumentMissing,
    DocumentUnreadable,
    JobFolderFailed,
    JobSent,
    JobFailed,
    JobUnsendable,
    Sending,
    HelpPage,
    Count
};

/// The text in the first preferred language (English, German or Japanese; English for any other),
/// with %1, %2, ... replaced by the arguments, which stand as they are.
[[nodiscard]] QString text(Text id, const QStringList &arguments = {});

} // namespace dialog
