#include "dialog/texts.h"

#include "platform/values.h"

#include <array>
#include <cstddef>

namespace dialog {
namespace {

struct Entry
{
    Text id;
    const char *english;
    const char *german;
    const char *japanese;
};

// clang-format off
constexpr std::array<Entry, static_cast<std::size_t>(Text::Count)> kTexts{{
    {Text::WindowTitle, "Print", "Drucken", "プリント"},
    {Text::Printer, "Printer:", "Drucker:", "プリンタ:"},
    {Text::Document, "Document:", "Dokument:", "書類:"},
    {Text::NoDocument, "None", "Keines", "なし"},
    {Text::Settings, "Settings:", "Einstellungen:", "設定:"},
    {Text::Summary, "Summary", "Zusammenfassung", "一覧"},
    {Text::Print, "Print", "Drucken", "プリント"},
    {Text::Cancel, "Cancel", "Abbrechen", "キャンセル"},
    {Text::Help, "Help", "Hilfe", "ヘルプ"},
    {Text::Dismiss, "Dismiss this notice", "Hinweis schließen", "この通知を閉じる"},
    {Text::PrintAnyway, "Print Anyway", "Trotzdem drucken", "このままプリント"},
    {Text::GoBack, "Go Back", "Zurück", "戻る"},
    {Text::TryAgain, "Try Again", "Erneut versuchen", "再試行"},
    {Text::Connecting, "Connecting to %1…", "Verbindung mit %1 …", "%1 に接続中…"},
    {Text::FindPrinter, "Find a printer", "Drucker suchen", "プリンタを検索"},
    {Text::NoPrinterMatches, "No printer matches", "Kein Drucker passt", "該当するプリンタがありません"},
    {Text::StateUnreachable, "Not reachable", "Nicht erreichbar", "接続できません"},
    {Text::StatePaused, "Paused", "Angehalten", "一時停止中"},
    {Text::StatePausedBecause, "Paused: %1", "Angehalten: %1", "一時停止中: %1"},
    {Text::StateRejecting, "Takes no jobs", "Nimmt keine Aufträge an", "ジョブを受け付けていません"},
    {Text::StateOffline, "Offline", "Offline", "オフライン"},
    {Text::StateOfflineBecause, "Offline: %1", "Offline: %1", "オフライン: %1"},
    {Text::StatePrinting, "Printing", "Druckt", "プリント中"},
    {Text::StateIdle, "Idle", "Bereit", "待機中"},
    {Text::QueueNamed, "%1 (%2)", "%1 (%2)", "%1 (%2)"},
    {Text::QueueWithState, "%1 – %2", "%1 – %2", "%1 – %2"},
    {Text::DefaultQueue, "default", "Standard", "デフォルト"},
    {Text::ServerUnreachable,
     "No print server answers at %1 (%2). Start the server or check the network, then try again.",
     "Unter %1 antwortet kein Druckserver (%2). Starten Sie den Server oder prüfen Sie das Netzwerk, dann versuchen Sie es erneut.",
     "%1 のプリントサーバに接続できません (%2)。サーバを起動するかネットワークを確認して、再試行してください。"},
    {Text::ServerSilent,
     "The print server at %1 does not answer. Wait a moment or have it restarted, then try again.",
     "Der Druckserver unter %1 antwortet nicht. Warten Sie etwas oder lassen Sie ihn neu starten, dann versuchen Sie es erneut.",
     "%1 のプリントサーバが応答しません。しばらく待つかサーバを再起動してから、再試行してください。"},
    {Text::ServerRefused,
     "The print server at %1 refused to answer: %2. Ask its administrator for access, then try again.",
     "Der Druckserver unter %1 hat die Auskunft verweigert: %2. Bitten Sie seinen Verwalter um Zugang, dann versuchen Sie es erneut.",
     "%1 のプリントサーバに拒否されました: %2。管理者にアクセス権を確認して、再試行してください。"},
    {Text::NoQueues,
     "The print server at %1 has no printers. Add one there, then try again.",
     "Der Druckserver unter %1 hat keine Drucker. Richten Sie dort einen ein, dann versuchen Sie es erneut.",
     "%1 のプリントサーバにはプリンタがありません。プリンタを追加して、再試行してください。"},
    {Text::QueueGone,
     "There is no printer %1 at the print server. Choose another one.",
     "Der Druckserver hat keinen Drucker %1. Wählen Sie einen anderen.",
     "プリントサーバにプリンタ %1 がありません。別のプリンタを選んでください。"},
    {Text::QueuePpdBroken,
     "The printer %1 cannot be used, because its PPD is damaged: %2. Have the printer set up again or choose another one.",
     "Der Drucker %1 ist nicht benutzbar, weil seine PPD beschädigt ist: %2. Lassen Sie den Drucker neu einrichten oder wählen Sie einen anderen.",
     "プリンタ %1 は PPD が壊れているため使用できません: %2。プリンタを設定し直すか、別のプリンタを選んでください。"},
    {Text::QueueWithoutPpd,
     "This printer has no PPD, so there are no panels for it. Print uses the settings that its queue has.",
     "Dieser Drucker hat keine PPD, deshalb gibt es keine Einstellungsseiten. Gedruckt wird mit den Einstellungen seiner Warteschlange.",
     "このプリンタには PPD がないため、設定パネルはありません。キューの設定でプリントします。"},
    {Text::ChoicesLeftBehind,
     "This printer does not have what you chose for the one before:",
     "Dieser Drucker hat nicht, was Sie für den vorigen gewählt haben:",
     "前のプリンタで選んだ次の設定は、このプリンタにはありません:"},
    {Text::ChoiceLeftBehind, "%1: %2", "%1: %2", "%1: %2"},
    {Text::PanelsMissing,
     "The PPD of this printer names no panels. Print uses the settings that are marked in it.",
     "Die PPD dieses Druckers nennt keine Einstellungsseiten. Gedruckt wird mit den Einstellungen, die in ihr markiert sind.",
     "このプリンタの PPD には設定パネルが指定されていません。PPD の設定でプリントします。"},
    {Text::PlugInRefused,
     "The printer's panels were not loaded: %1 (%2). Install the maker's driver again as an administrator.",
     "Die Einstellungsseiten des Druckers wurden nicht geladen: %1 (%2). Installieren Sie den Treiber des Herstellers als Administrator neu.",
     "プリンタの設定パネルは読み込まれませんでした: %1 (%2)。管理者としてドライバを再インストールしてください。"},
    {Text::PlugInAbsent,
     "The printer's panels are not installed: there is no %1. Install the maker's driver.",
     "Die Einstellungsseiten des Druckers sind nicht installiert: %1 fehlt. Installieren Sie den Treiber des Herstellers.",
     "プリンタの設定パネルがインストールされていません: %1 がありません。ドライバをインストールしてください。"},
    {Text::PlugInForeign,
     "The printer's panels do not fit this dialog: %1 was made for another version. Install the maker's current driver.",
     "Die Einstellungsseiten des Druckers passen nicht zu diesem Dialog: %1 wurde für eine andere Version gemacht. Installieren Sie den aktuellen Treiber des Herstellers.",
     "プリンタの設定パネルはこのダイアログに対応していません: %1 は別のバージョン用です。最新のドライバをインストールしてください。"},
    {Text::PlugInDamaged,
     "The printer's panels could not be loaded: %1 is damaged (%2). Install the maker's driver again.",
     "Die Einstellungsseiten des Druckers konnten nicht geladen werden: %1 ist beschädigt (%2). Installieren Sie den Treiber des Herstellers neu.",
     "プリンタの設定パネルを読み込めませんでした: %1 が壊れています (%2)。ドライバを再インストールしてください。"},
    {Text::RefusedOutside,
     "it lies outside /Library/Printers",
     "liegt außerhalb von /Library/Printers",
     "/Library/Printers の外にあります"},
    {Text::RefusedDotDot, "the path goes through “..”", "der Pfad führt über „..“", "パスに「..」が含まれています"},
    {Text::RefusedMissing, "it is not there", "fehlt", "見つかりません"},
    {Text::RefusedLink, "it is a link", "ist ein Verweis", "リンクです"},
    {Text::RefusedOwner, "it belongs to somebody else", "gehört jemand anderem", "所有者が異なります"},
    {Text::RefusedWritable, "others may write it", "andere dürfen es ändern", "ほかのユーザが書き込めます"},
    {Text::RefusedKind,
     "it is no ordinary file or folder",
     "ist keine gewöhnliche Datei und kein Ordner",
     "通常のファイルやフォルダではありません"},
    {Text::LibraryCutOff, "it is cut off", "abgeschnitten", "途中で切れています"},
    {Text::NoPanelsForPrinter,
     "The maker's driver offers no panels for this printer.",
     "Der Treiber des Herstellers bietet keine Einstellungsseiten für diesen Drucker.",
     "このプリンタ用の設定パネルはドライバにありません。"},
    {Text::OfferConflicts,
     "“%1: %2” cannot be used together with “%3: %4”.",
     "„%1: %2“ ist nicht zusammen mit „%3: %4“ möglich.",
     "「%1: %2」は「%3: %4」と同時には使えません。"},
    {Text::OfferRefused,
     "“%1: %2” cannot be chosen now.",
     "„%1: %2“ kann jetzt nicht gewählt werden.",
     "「%1: %2」は今は選べません。"},
    {Text::ReviewConflict,
     "“%1: %2” and “%3: %4” do not go together.",
     "„%1: %2“ und „%3: %4“ passen nicht zusammen.",
     "「%1: %2」と「%3: %4」は組み合わせられません。"},
    {Text::ReviewDifference,
     "%1: you chose “%2”, the job has “%3”.",
     "%1: Sie haben „%2“ gewählt, der Auftrag hat „%3“.",
     "%1: 選択は「%2」ですが、ジョブでは「%3」になります。"},
    {Text::ReviewHeading,
     "Before this prints:",
     "Vor dem Druck:",
     "プリントの前に:"},
    {Text::DocumentNeeded,
     "There is nothing to print. Start the dialog with a document.",
     "Es gibt nichts zu drucken. Starten Sie den Dialog mit einem Dokument.",
     "プリントする書類がありません。書類を指定してダイアログを開いてください。"},
    {Text::DocumentMissing,
     "There is no document %1. Nothing was sent; choose another document.",
     "Das Dokument %1 gibt es nicht. Es wurde nichts gesendet; wählen Sie ein anderes Dokument.",
     "書類 %1 がありません。何も送信されていません。別の書類を選んでください。"},
    {Text::DocumentUnreadable,
     "The document %1 cannot be read. Nothing was sent; choose another document or allow reading it.",
     "Das Dokument %1 ist nicht lesbar. Es wurde nichts gesendet; wählen Sie ein anderes Dokument oder erlauben Sie das Lesen.",
     "書類 %1 を読めません。何も送信されていません。別の書類を選ぶか、読み取りを許可してください。"},
    {Text::JobFolderFailed,
     "The job could not be written to %1: %2. Make room or allow writing there, then print again.",
     "Der Auftrag konnte nicht nach %1 geschrieben werden: %2. Schaffen Sie Platz oder erlauben Sie das Schreiben, dann drucken Sie erneut.",
     "ジョブを %1 に書き込めませんでした: %2。空き容量または書き込み権限を確認して、もう一度プリントしてください。"},
    {Text::JobSent, "Sent as job %1.", "Als Auftrag %1 gesendet.", "ジョブ %1 として送信しました。"},
    {Text::JobFailed,
     "The print server did not take the job: %1. Your settings are kept; print again when it answers.",
     "Der Druckserver hat den Auftrag nicht angenommen: %1. Ihre Einstellungen bleiben erhalten; drucken Sie erneut, sobald er antwortet.",
     "プリントサーバはジョブを受け付けませんでした: %1。設定は残っています。サーバが応答したらもう一度プリントしてください。"},
    {Text::JobUnsendable,
     "Nothing was sent, because a setting would get lost: %1. Choose another value for it.",
     "Es wurde nichts gesendet, weil eine Einstellung verloren ginge: %1. Wählen Sie einen anderen Wert.",
     "設定が失われるため、何も送信されませんでした: %1。別の値を選んでください。"},
    {Text::Sending, "Sending…", "Wird gesendet …", "送信中…"},
    {Text::SendingProgress,
     "Sending to %1: %2 %.",
     "Wird an %1 gesendet: %2 %.",
     "%1 に送信中: %2%"},
    {Text::CancelJob, "Cancel Job", "Auftrag abbrechen", "ジョブを中止"},
    {Text::JobCancelled,
     "The job was cancelled; nothing of it prints. Your settings are kept.",
     "Der Auftrag wurde abgebrochen; nichts davon wird gedruckt. Ihre Einstellungen bleiben erhalten.",
     "ジョブは中止され、プリントされません。設定は残っています。"},
    {Text::JobHadArrived,
     "The earlier attempt had arrived as job %1, so nothing was sent again. Press Print once more for another copy.",
     "Der frühere Versuch war als Auftrag %1 angekommen, daher wurde nichts erneut gesendet. Drücken Sie noch einmal „Drucken“ für ein weiteres Exemplar.",
     "前回のジョブは %1 番として届いていたため、再送信しませんでした。もう一部必要な場合は、もう一度「プリント」を押してください。"},
    {Text::JobWaits,
     "Job %1 waits, because the queue %2 is paused. It prints when somebody resumes the queue.",
     "Auftrag %1 wartet, weil die Warteschlange %2 angehalten ist. Er wird gedruckt, sobald jemand sie fortsetzt.",
     "キュー %2 が一時停止しているため、ジョブ %1 は待機しています。キューが再開されるとプリントされます。"},
    {Text::OptionDropped,
     "The print server did not keep the setting %1 (%2). Check the first page.",
     "Der Druckserver hat die Einstellung %1 (%2) nicht übernommen. Prüfen Sie die erste Seite.",
     "プリントサーバは設定 %1 (%2) を受け付けませんでした。最初のページを確認してください。"},
    {Text::OptionChanged,
     "The print server changed the setting %1 from %2 to %3. Check the first page.",
     "Der Druckserver hat die Einstellung %1 von %2 in %3 geändert. Prüfen Sie die erste Seite.",
     "プリントサーバは設定 %1 を %2 から %3 に変更しました。最初のページを確認してください。"},
    {Text::FaultNoServer,
     "There is no print server to send the job to (%2). Nothing was sent, and your settings are kept: start the print server or correct CUPS_SERVER, and print again.",
     "Es gibt keinen Druckserver für den Auftrag (%2). Es wurde nichts gesendet, Ihre Einstellungen bleiben erhalten: Starten Sie den Druckserver oder berichtigen Sie CUPS_SERVER, und drucken Sie erneut.",
     "プリントサーバに接続できません (%2)。何も送信されず、設定は残っています。プリントサーバを起動するか CUPS_SERVER を修正して、もう一度プリントしてください。"},
    {Text::FaultSilent,
     "The print server does not answer. Your settings are kept. Print again when it does: what may have arrived by then is found, and not sent a second time.",
     "Der Druckserver antwortet nicht. Ihre Einstellungen bleiben erhalten. Drucken Sie erneut, sobald er antwortet: Was bis dahin angekommen ist, wird gefunden und nicht noch einmal gesendet.",
     "プリントサーバが応答しません。設定は残っています。応答したらもう一度プリントしてください。すでに届いたジョブは検出され、二重に送信されません。"},
    {Text::FaultBroken,
     "The connection to the print server broke (%2). Your settings are kept. Print again: what may have arrived is found, and not sent a second time.",
     "Die Verbindung zum Druckserver ist abgebrochen (%2). Ihre Einstellungen bleiben erhalten. Drucken Sie erneut: Was angekommen ist, wird gefunden und nicht noch einmal gesendet.",
     "プリントサーバとの接続が切れました (%2)。設定は残っています。もう一度プリントしてください。すでに届いたジョブは検出され、二重に送信されません。"},
    {Text::FaultNotAllowed,
     "The print server does not let you print to the queue %1 without a name and password that it accepts. Nothing was printed, and your settings are kept: print again and sign in, ask its administrator, or choose another queue.",
     "Der Druckserver lässt Sie auf der Warteschlange %1 nicht drucken, ohne dass er Namen und Passwort annimmt. Es wurde nichts gedruckt, Ihre Einstellungen bleiben erhalten: Drucken Sie erneut und melden Sie sich an, bitten Sie den Administrator, oder wählen Sie eine andere Warteschlange.",
     "キュー %1 でプリントするには、プリントサーバが認める名前とパスワードが必要です。何もプリントされず、設定は残っています。もう一度プリントしてサインインするか、管理者に依頼するか、別のキューを選んでください。"},
    {Text::FaultNotAccepting,
     "The queue %1 takes no jobs at present. Nothing was sent, and your settings are kept: ask for the queue to be opened, or choose another one.",
     "Die Warteschlange %1 nimmt zurzeit keine Aufträge an. Es wurde nichts gesendet, Ihre Einstellungen bleiben erhalten: Lassen Sie sie öffnen, oder wählen Sie eine andere.",
     "キュー %1 は現在ジョブを受け付けていません。何も送信されず、設定は残っています。キューを開くよう依頼するか、別のキューを選んでください。"},
    {Text::FaultNoQueue,
     "The print server no longer has a queue %1. Nothing was sent, and your settings are kept: choose another queue.",
     "Der Druckserver hat keine Warteschlange %1 mehr. Es wurde nichts gesendet, Ihre Einstellungen bleiben erhalten: Wählen Sie eine andere Warteschlange.",
     "プリントサーバにキュー %1 はもうありません。何も送信されず、設定は残っています。別のキューを選んでください。"},
    {Text::FaultFormatRefused,
     "The queue %1 cannot print a document of this kind (%2). Nothing was printed. Convert the document to PDF, or choose another queue.",
     "Die Warteschlange %1 kann ein Dokument dieser Art nicht drucken (%2). Es wurde nichts gedruckt. Wandeln Sie das Dokument in PDF um, oder wählen Sie eine andere Warteschlange.",
     "キュー %1 はこの種類の書類をプリントできません (%2)。何もプリントされませんでした。書類を PDF に変換するか、別のキューを選んでください。"},
    {Text::FaultDocumentLost,
     "The document can no longer be read (%1). Nothing was printed, and your settings are kept: put the document back and print again.",
     "Das Dokument kann nicht mehr gelesen werden (%1). Es wurde nichts gedruckt, Ihre Einstellungen bleiben erhalten: Legen Sie das Dokument zurück, und drucken Sie erneut.",
     "書類を読み込めなくなりました (%1)。何もプリントされず、設定は残っています。書類を元に戻して、もう一度プリントしてください。"},
    {Text::FaultNotRemembered,
     "The job could not be noted in your state folder, so nothing was sent: a second copy could not be ruled out later. Make room on that disk and print again.",
     "Der Auftrag konnte nicht in Ihrem Statusordner vermerkt werden, daher wurde nichts gesendet: Ein zweiter Ausdruck wäre später nicht auszuschließen. Schaffen Sie dort Platz, und drucken Sie erneut.",
     "ジョブを状態フォルダに記録できなかったため、何も送信しませんでした (二重プリントを防ぐためです)。ディスクの空きを増やして、もう一度プリントしてください。"},
    {Text::FaultMaybePrinted,
     "An earlier attempt was sent whole to the queue %1, and the print server no longer knows it: it may have printed. Look at the printer before you press Print again.",
     "Ein früherer Versuch wurde vollständig an die Warteschlange %1 gesendet, und der Druckserver kennt ihn nicht mehr: Er wurde vielleicht gedruckt. Sehen Sie beim Drucker nach, bevor Sie erneut „Drucken“ drücken.",
     "前回のジョブはキュー %1 にすべて送信されましたが、プリントサーバに記録がありません。プリント済みの可能性があります。もう一度「プリント」を押す前にプリンタを確認してください。"},
    {Text::FaultStopped,
     "The print server took the job and gave it up (%2). Your settings are kept; look at the queue %1, and print again.",
     "Der Druckserver hat den Auftrag angenommen und aufgegeben (%2). Ihre Einstellungen bleiben erhalten; sehen Sie nach der Warteschlange %1, und drucken Sie erneut.",
     "プリントサーバはジョブを受け取りましたが、中止しました (%2)。設定は残っています。キュー %1 を確認して、もう一度プリントしてください。"},
    {Text::EarlierPrinted,
     "“%1”, sent to %2 before this dialog was opened, had arrived as job %3. It was not sent again.",
     "„%1“, vor dem Öffnen dieses Dialogs an %2 gesendet, war als Auftrag %3 angekommen. Es wurde nicht erneut gesendet.",
     "このダイアログを開く前に %2 へ送信した「%1」は、ジョブ %3 として届いていました。再送信はしていません。"},
    {Text::EarlierWithdrawn,
     "“%1”, sent to %2 before this dialog was opened, had not arrived whole, and nothing of it prints. Print it again if you still need it.",
     "„%1“, vor dem Öffnen dieses Dialogs an %2 gesendet, war nicht vollständig angekommen; nichts davon wird gedruckt. Drucken Sie es erneut, falls Sie es noch brauchen.",
     "このダイアログを開く前に %2 へ送信した「%1」は完全には届かず、プリントされません。必要な場合はもう一度プリントしてください。"},
    {Text::EarlierVanished,
     "“%1” was sent whole to %2 before this dialog was opened, and the print server no longer knows it: it may have printed. Look at the printer before you print it again.",
     "„%1“ wurde vor dem Öffnen dieses Dialogs vollständig an %2 gesendet, und der Druckserver kennt es nicht mehr: Es wurde vielleicht gedruckt. Sehen Sie beim Drucker nach, bevor Sie es erneut drucken.",
     "このダイアログを開く前に「%1」を %2 にすべて送信しましたが、プリントサーバに記録がありません。プリント済みの可能性があります。再度プリントする前にプリンタを確認してください。"},
    {Text::HelpPage,
     "Choose a group of settings from the pop-up menu, change what you need, and press Print. A choice that the printer cannot combine with another one is refused, and a notice says which one is in the way.",
     "Wählen Sie im Einblendmenü eine Gruppe von Einstellungen, ändern Sie, was nötig ist, und drücken Sie „Drucken“. Was der Drucker nicht verbinden kann, wird abgelehnt; ein Hinweis nennt die Einstellung, die im Weg steht.",
     "ポップアップメニューで設定の種類を選び、必要な項目を変更して「プリント」を押してください。組み合わせられない選択は受け付けられず、妨げになっている設定が表示されます。"},
}};
// clang-format on

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < kTexts.size(); ++i) {
        const Entry &entry = kTexts[i];
        if (static_cast<std::size_t>(entry.id) != i || !entry.english || !entry.german ||
            !entry.japanese)
            return false;
    }
    return true;
}
static_assert(isInOrder(), "one complete line per text, in the order of the enumeration");

const char *inPreferredLanguage(const Entry &entry)
{
    const QString language = platform::firstPreferredLanguage();
    if (language.startsWith(QLatin1String("de")))
        return entry.german;
    if (language.startsWith(QLatin1String("ja")))
        return entry.japanese;
    return entry.english;
}

/// One pass, so that a "%1" inside an argument stays.
QString filled(const QString &pattern, const QStringList &arguments)
{
    QString out;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const int number =
            pattern[i] == u'%' && i + 1 < pattern.size() ? pattern[i + 1].digitValue() : 0;
        if (number >= 1 && number <= arguments.size()) {
            out += arguments[number - 1];
            ++i;
        } else {
            out += pattern[i];
        }
    }
    return out;
}

} // namespace

QString text(Text id, const QStringList &arguments)
{
    const Entry &entry = kTexts[static_cast<std::size_t>(id)];
    return filled(QString::fromUtf8(inPreferredLanguage(entry)), arguments);
}

} // namespace dialog
