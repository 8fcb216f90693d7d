<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>ChoiceWords</name>
    <message>
        <source>“%1: %2” and “%3: %4” do not go together.</source>
        <translation>„%1: %2“ und „%3: %4“ passen nicht zusammen.</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, the job has “%3”.</source>
        <translation>%1: Sie haben „%2“ gewählt, der Auftrag hat „%3“.</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be used together with “%3: %4”.</source>
        <translation>„%1: %2“ ist nicht zusammen mit „%3: %4“ möglich.</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be chosen now.</source>
        <translation>„%1: %2“ kann jetzt nicht gewählt werden.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, but “%3” is set.</source>
        <translation>%1: Sie haben „%2“ gewählt, eingestellt ist aber „%3“.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>“%1” cannot be used together with %2.</source>
        <translation>„%1“ ist nicht zusammen mit %2 möglich.</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>nicht mit %1</translation>
    </message>
    <message>
        <source>%1: without “%2”</source>
        <translation>%1: ohne „%2“</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1: „%2“</translation>
    </message>
    <message>
        <source>%1: “%2” instead of “%3”</source>
        <translation>%1: „%2“ statt „%3“</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>There is no document %1. Nothing was sent; choose another document.</source>
        <translation>Das Dokument %1 gibt es nicht. Es wurde nichts gesendet; wählen Sie ein anderes Dokument.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read. Nothing was sent; choose another document or allow reading it.</source>
        <translation>Das Dokument %1 ist nicht lesbar. Es wurde nichts gesendet; wählen Sie ein anderes Dokument oder erlauben Sie das Lesen.</translation>
    </message>
</context>
<context>
    <name>JobMessages</name>
    <message>
        <source>There is no print server to send the job to (%1). Nothing was sent, and your settings are kept: start the print server or correct CUPS_SERVER, and print again.</source>
        <translation>Es gibt keinen Druckserver für den Auftrag (%1). Es wurde nichts gesendet, Ihre Einstellungen bleiben erhalten: Starten Sie den Druckserver oder berichtigen Sie CUPS_SERVER, und drucken Sie erneut.</translation>
    </message>
    <message>
        <source>The print server does not answer. Your settings are kept. Print again when it does: what may have arrived by then is found, and not sent a second time.</source>
        <translation>Der Druckserver antwortet nicht. Ihre Einstellungen bleiben erhalten. Drucken Sie erneut, sobald er antwortet: Was bis dahin angekommen ist, wird gefunden und nicht noch einmal gesendet.</translation>
    </message>
    <message>
        <source>The connection to the print server broke (%1). Your settings are kept. Print again: what may have arrived is found, and not sent a second time.</source>
        <translation>Die Verbindung zum Druckserver ist abgebrochen (%1). Ihre Einstellungen bleiben erhalten. Drucken Sie erneut: Was angekommen ist, wird gefunden und nicht noch einmal gesendet.</translation>
    </message>
    <message>
        <source>The print server does not let you print to the queue %1 without a name and password that it accepts. Nothing was printed, and your settings are kept: print again and sign in, ask its administrator, or choose another queue.</source>
        <translation>Der Druckserver lässt Sie auf der Warteschlange %1 nicht drucken, ohne dass er Namen und Passwort annimmt. Es wurde nichts gedruckt, Ihre Einstellungen bleiben erhalten: Drucken Sie erneut und melden Sie sich an, bitten Sie den Administrator, oder wählen Sie eine andere Warteschlange.</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs at present. Nothing was sent, and your settings are kept: ask for the queue to be opened, or choose another one.</source>
        <translation>Die Warteschlange %1 nimmt zurzeit keine Aufträge an. Es wurde nichts gesendet, Ihre Einstellungen bleiben erhalten: Lassen Sie sie öffnen, oder wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The print server no longer has a queue %1. Nothing was sent, and your settings are kept: choose another queue.</source>
        <translation>Der Druckserver hat keine Warteschlange %1 mehr. Es wurde nichts gesendet, Ihre Einstellungen bleiben erhalten: Wählen Sie eine andere Warteschlange.</translation>
    </message>
    <message>
        <source>The queue %1 cannot print a document of this kind (%2). Nothing was printed. Convert the document to PDF, or choose another queue.</source>
        <translation>Die Warteschlange %1 kann ein Dokument dieser Art nicht drucken (%2). Es wurde nichts gedruckt. Wandeln Sie das Dokument in PDF um, oder wählen Sie eine andere Warteschlange.</translation>
    </message>
    <message>
        <source>The print server did not take the job: %1. Your settings are kept; print again when it answers.</source>
        <translation>Der Druckserver hat den Auftrag nicht angenommen: %1. Ihre Einstellungen bleiben erhalten; drucken Sie erneut, sobald er antwortet.</translation>
    </message>
    <message>
        <source>The document can no longer be read (%1). Nothing was printed, and your settings are kept: put the document back and print again.</source>
        <translation>Das Dokument kann nicht mehr gelesen werden (%1). Es wurde nichts gedruckt, Ihre Einstellungen bleiben erhalten: Legen Sie das Dokument zurück, und drucken Sie erneut.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>Es wurde nichts gesendet, weil eine Einstellung verloren ginge: %1. Wählen Sie einen anderen Wert.</translation>
    </message>
    <message>
        <source>The job could not be noted in your state folder, so nothing was sent: a second copy could not be ruled out later. Make room on that disk and print again.</source>
        <translation>Der Auftrag konnte nicht in Ihrem Statusordner vermerkt werden, daher wurde nichts gesendet: Ein zweiter Ausdruck wäre später nicht auszuschließen. Schaffen Sie dort Platz, und drucken Sie erneut.</translation>
    </message>
    <message>
        <source>The job was cancelled; nothing of it prints. Your settings are kept.</source>
        <translation>Der Auftrag wurde abgebrochen; nichts davon wird gedruckt. Ihre Einstellungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>An earlier attempt was sent whole to the queue %1, and the print server no longer knows it: it may have printed. Look at the printer before you press Print again.</source>
        <translation>Ein früherer Versuch wurde vollständig an die Warteschlange %1 gesendet, und der Druckserver kennt ihn nicht mehr: Er wurde vielleicht gedruckt. Sehen Sie beim Drucker nach, bevor Sie erneut „Drucken“ drücken.</translation>
    </message>
    <message>
        <source>The print server took the job and gave it up (%2). Your settings are kept; look at the queue %1, and print again.</source>
        <translation>Der Druckserver hat den Auftrag angenommen und aufgegeben (%2). Ihre Einstellungen bleiben erhalten; sehen Sie nach der Warteschlange %1, und drucken Sie erneut.</translation>
    </message>
    <message>
        <source>The earlier attempt had arrived as job %1, so nothing was sent again. Press Print once more for another copy.</source>
        <translation>Der frühere Versuch war als Auftrag %1 angekommen, daher wurde nichts erneut gesendet. Drücken Sie noch einmal „Drucken“ für ein weiteres Exemplar.</translation>
    </message>
    <message>
        <source>Job %1 waits, because the queue %2 is paused. It prints when somebody resumes the queue.</source>
        <translation>Auftrag %1 wartet, weil die Warteschlange %2 angehalten ist. Er wird gedruckt, sobald jemand sie fortsetzt.</translation>
    </message>
    <message>
        <source>The print server did not keep the setting %1 (%2). Check the first page.</source>
        <translation>Der Druckserver hat die Einstellung %1 (%2) nicht übernommen. Prüfen Sie die erste Seite.</translation>
    </message>
    <message>
        <source>The print server changed the setting %1 from %2 to %3. Check the first page.</source>
        <translation>Der Druckserver hat die Einstellung %1 von %2 in %3 geändert. Prüfen Sie die erste Seite.</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had arrived as job %3. It was not sent again.</source>
        <translation>„%1“, vor dem Öffnen dieses Dialogs an %2 gesendet, war als Auftrag %3 angekommen. Es wurde nicht erneut gesendet.</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had not arrived whole, and nothing of it prints. Print it again if you still need it.</source>
        <translation>„%1“, vor dem Öffnen dieses Dialogs an %2 gesendet, war nicht vollständig angekommen; nichts davon wird gedruckt. Drucken Sie es erneut, falls Sie es noch brauchen.</translation>
    </message>
    <message>
        <source>“%1” was sent whole to %2 before this dialog was opened, and the print server no longer knows it: it may have printed. Look at the printer before you print it again.</source>
        <translation>„%1“ wurde vor dem Öffnen dieses Dialogs vollständig an %2 gesendet, und der Druckserver kennt es nicht mehr: Es wurde vielleicht gedruckt. Sehen Sie beim Drucker nach, bevor Sie es erneut drucken.</translation>
    </message>
</context>
<context>
    <name>JobSettings</name>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Nur ungerade Seiten</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Nur gerade Seiten</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Hochformat, umgekehrt</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Querformat, umgekehrt</translation>
    </message>
    <message>
        <source>Right, then down</source>
        <translation>Nach rechts, dann nach unten</translation>
    </message>
    <message>
        <source>Down, then right</source>
        <translation>Nach unten, dann nach rechts</translation>
    </message>
    <message>
        <source>Left, then down</source>
        <translation>Nach links, dann nach unten</translation>
    </message>
    <message>
        <source>Down, then left</source>
        <translation>Nach unten, dann nach links</translation>
    </message>
    <message>
        <source>Right, then up</source>
        <translation>Nach rechts, dann nach oben</translation>
    </message>
    <message>
        <source>Up, then right</source>
        <translation>Nach oben, dann nach rechts</translation>
    </message>
    <message>
        <source>Left, then up</source>
        <translation>Nach links, dann nach oben</translation>
    </message>
    <message>
        <source>Up, then left</source>
        <translation>Nach oben, dann nach links</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>Kein Rahmen</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>Dünne Linie</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>Dicke Linie</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>Zwei dünne Linien</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>Zwei dicke Linien</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>An das Papier anpassen</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>Papier ausfüllen</translation>
    </message>
</context>
<context>
    <name>MemoryMessages</name>
    <message>
        <source>Your home folder does not answer, so that your last settings could not be read. The printer&apos;s default settings are shown.</source>
        <translation>Ihr Home-Ordner antwortet nicht, sodass Ihre letzten Einstellungen nicht gelesen werden konnten. Gezeigt werden die Standardeinstellungen des Druckers.</translation>
    </message>
    <message>
        <source>The file with the size of this window was damaged. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>Die Datei mit der Größe dieses Fensters war beschädigt. Sie ist als „%1“ aufbewahrt. Berichtigen Sie die Datei und geben Sie ihr den alten Namen zurück, oder löschen Sie sie.</translation>
    </message>
    <message>
        <source>The file with your last settings for this printer was damaged, so that the printer&apos;s default settings are shown. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>Die Datei mit Ihren letzten Einstellungen für diesen Drucker war beschädigt, sodass die Standardeinstellungen des Druckers gezeigt werden. Sie ist als „%1“ aufbewahrt. Berichtigen Sie die Datei und geben Sie ihr den alten Namen zurück, oder löschen Sie sie.</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read, because “%1” may not be read or written. Allow it, and open the dialog again.</source>
        <translation>Was sich dieser Dialog merkt, konnte nicht gelesen werden, weil „%1“ nicht gelesen oder geschrieben werden darf. Erlauben Sie es, und öffnen Sie den Dialog erneut.</translation>
    </message>
    <message>
        <source>What this dialog remembers was not read, because “%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>Was sich dieser Dialog merkt, wurde nicht gelesen, weil „%1“ ein Verweis ist, jemand anderem gehört oder andere dorthin schreiben dürfen. Ersetzen Sie es durch einen Ordner, in den nur Sie schreiben dürfen.</translation>
    </message>
    <message>
        <source>What this dialog remembers in “%1” is of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>Was sich dieser Dialog in „%1“ merkt, stammt von einer neueren Version dieses Programms. Aktualisieren Sie das Programm, oder verschieben Sie die Datei, um neu zu beginnen.</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read from “%1”: %2.</source>
        <translation>Was sich dieser Dialog merkt, konnte nicht aus „%1“ gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>PathRefusal</name>
    <message>
        <source>it lies outside /Library/Printers</source>
        <translation>liegt außerhalb von /Library/Printers</translation>
    </message>
    <message>
        <source>the path goes through “..”</source>
        <translation>der Pfad führt über „..“</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>ist ein Verweis</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>gehört jemand anderem</translation>
    </message>
    <message>
        <source>others may write it</source>
        <translation>andere dürfen es ändern</translation>
    </message>
    <message>
        <source>it is no ordinary file or folder</source>
        <translation>ist keine gewöhnliche Datei und kein Ordner</translation>
    </message>
</context>
<context>
    <name>PlugInTexts</name>
    <message>
        <source>The printer&apos;s panels are not installed: there is no %1. Install the maker&apos;s driver.</source>
        <translation>Die Einstellungsseiten des Druckers sind nicht installiert: %1 fehlt. Installieren Sie den Treiber des Herstellers.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels were not loaded: %1 (%2). Install the maker&apos;s driver again as an administrator.</source>
        <translation>Die Einstellungsseiten des Druckers wurden nicht geladen: %1 (%2). Installieren Sie den Treiber des Herstellers als Administrator neu.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels could not be loaded: %1 is damaged (%2). Install the maker&apos;s driver again.</source>
        <translation>Die Einstellungsseiten des Druckers konnten nicht geladen werden: %1 ist beschädigt (%2). Installieren Sie den Treiber des Herstellers neu.</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>abgeschnitten</translation>
    </message>
    <message>
        <source>The printer&apos;s panels do not fit this dialog: %1 was made for another version. Install the maker&apos;s current driver.</source>
        <translation>Die Einstellungsseiten des Druckers passen nicht zu diesem Dialog: %1 wurde für eine andere Version gemacht. Installieren Sie den aktuellen Treiber des Herstellers.</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>Der Treiber des Herstellers bietet keine Einstellungsseiten für diesen Drucker.</translation>
    </message>
</context>
<context>
    <name>PresetMessages</name>
    <message>
        <source>There is no such preset any more; another print dialog has deleted or renamed it.</source>
        <translation>Diese Voreinstellung gibt es nicht mehr; ein anderer Druckdialog hat sie gelöscht oder umbenannt.</translation>
    </message>
    <message numerus="yes">
        <source>There is room for %n preset(s) only. Delete one that is not needed any more.</source>
        <translation>
            <numerusform>Es ist nur Platz für %n Voreinstellung. Löschen Sie eine, die nicht mehr gebraucht wird.</numerusform>
            <numerusform>Es ist nur Platz für %n Voreinstellungen. Löschen Sie eine, die nicht mehr gebraucht wird.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another print dialog is changing the presets. Try again.</source>
        <translation>Ein anderer Druckdialog ändert gerade die Voreinstellungen. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The presets could not be written to “%1” because there is no room left. Free some space and try again.</source>
        <translation>Die Voreinstellungen konnten nicht nach „%1“ geschrieben werden, weil kein Platz mehr frei ist. Schaffen Sie Platz, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>“%1” may not be read or written. Allow it, and try again.</source>
        <translation>„%1“ darf nicht gelesen oder geschrieben werden. Erlauben Sie es, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>“%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>„%1“ ist ein Verweis, gehört jemand anderem, oder andere dürfen dorthin schreiben. Ersetzen Sie es durch einen Ordner, in den nur Sie schreiben dürfen.</translation>
    </message>
    <message>
        <source>The presets in “%1” are of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>Die Voreinstellungen in „%1“ stammen von einer neueren Version dieses Programms. Aktualisieren Sie das Programm, oder verschieben Sie die Datei, um neu zu beginnen.</translation>
    </message>
    <message>
        <source>“%1” cannot be used for presets: %2.</source>
        <translation>„%1“ ist nicht für Voreinstellungen benutzbar: %2.</translation>
    </message>
    <message>
        <source>The file of your presets for this printer was damaged. It is kept as “%1”; what could be read of it is still here. Correct the file and give it back its old name, or delete it.</source>
        <translation>Die Datei mit Ihren Voreinstellungen für diesen Drucker war beschädigt. Sie ist als „%1“ aufbewahrt; was lesbar war, ist noch da. Berichtigen Sie die Datei und geben Sie ihr den alten Namen zurück, oder löschen Sie sie.</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>Geben Sie einen Namen ein.</translation>
    </message>
    <message numerus="yes">
        <source>A name has at most %n character(s).</source>
        <translation>
            <numerusform>Ein Name hat höchstens %n Zeichen.</numerusform>
            <numerusform>Ein Name hat höchstens %n Zeichen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another preset has this name.</source>
        <translation>Eine andere Voreinstellung heißt schon so.</translation>
    </message>
    <message>
        <source>This printer does not have everything that “%1” sets. These settings were left as the printer has them:</source>
        <translation>Dieser Drucker hat nicht alles, was „%1“ einstellt. Diese Einstellungen blieben, wie der Drucker sie hat:</translation>
    </message>
    <message>
        <source>These settings cannot be used together on this printer:</source>
        <translation>Diese Einstellungen sind bei diesem Drucker nicht zusammen möglich:</translation>
    </message>
    <message>
        <source>“%1” and “%2”</source>
        <translation>„%1“ und „%2“</translation>
    </message>
</context>
<context>
    <name>PreviewWords</name>
    <message>
        <source>Page %1 is damaged and stays empty.</source>
        <translation>Seite %1 ist beschädigt und bleibt leer.</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Keine Seiten</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>Pages %1 and %2</source>
        <translation>Seiten %1 und %2</translation>
    </message>
    <message>
        <source>Pages %1 to %2</source>
        <translation>Seiten %1 bis %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Blatt %1 von %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Blatt %1 von %2, Vorderseite</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Blatt %1 von %2, Rückseite</translation>
    </message>
    <message>
        <source>front</source>
        <translation>Vorderseite</translation>
    </message>
    <message>
        <source>back</source>
        <translation>Rückseite</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n Exemplar</numerusform>
            <numerusform>%n Exemplare</numerusform>
        </translation>
    </message>
    <message>
        <source>collated</source>
        <translation>sortiert</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>gespiegelt</translation>
    </message>
</context>
<context>
    <name>PrinterLists</name>
    <message>
        <source>As the printer is set</source>
        <translation>Wie im Drucker eingestellt</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>A3</source>
        <translation>A3</translation>
    </message>
    <message>
        <source>A5</source>
        <translation>A5</translation>
    </message>
    <message>
        <source>A6</source>
        <translation>A6</translation>
    </message>
    <message>
        <source>B5 (JIS)</source>
        <translation>B5 (JIS)</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>US Letter</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloid</translation>
    </message>
    <message>
        <source>Photo 10 × 15 cm</source>
        <translation>Foto 10 × 15 cm</translation>
    </message>
    <message>
        <source>DL envelope</source>
        <translation>Umschlag DL</translation>
    </message>
    <message>
        <source>No. 10 envelope</source>
        <translation>Umschlag Nr. 10</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>An der langen Kante wenden</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>An der kurzen Kante wenden</translation>
    </message>
</context>
<context>
    <name>PrinterWords</name>
    <message>
        <source>There is no printer %1 at the print server. Choose another one.</source>
        <translation>Der Druckserver hat keinen Drucker %1. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The printer %1 cannot be used, because its PPD is damaged: %2. Have the printer set up again or choose another one.</source>
        <translation>Der Drucker %1 ist nicht benutzbar, weil seine PPD beschädigt ist: %2. Lassen Sie den Drucker neu einrichten oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Nicht erreichbar</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Angehalten: %1</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>Nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>Offline: %1</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>No print server answers at %1 (%2). Start the server or check the network, then try again.</source>
        <translation>Unter %1 antwortet kein Druckserver (%2). Starten Sie den Server oder prüfen Sie das Netzwerk, dann versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The print server at %1 does not answer. Wait a moment or have it restarted, then try again.</source>
        <translation>Der Druckserver unter %1 antwortet nicht. Warten Sie etwas oder lassen Sie ihn neu starten, dann versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The print server at %1 refused to answer: %2. Ask its administrator for access, then try again.</source>
        <translation>Der Druckserver unter %1 hat die Auskunft verweigert: %2. Bitten Sie seinen Verwalter um Zugang, dann versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>QueueListCommand</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>RangeTexts</name>
    <message>
        <source>Type the pages to print, such as 1-3, 5, 8-.</source>
        <translation>Geben Sie die zu druckenden Seiten ein, etwa 1-3, 5, 8-.</translation>
    </message>
    <message>
        <source>“%1” is no page number. Write pages as 1-3, 5, 8-.</source>
        <translation>„%1“ ist keine Seitenzahl. Schreiben Sie Seiten als 1-3, 5, 8-.</translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation>„%1“: Seiten zählen ab 1.</translation>
    </message>
    <message>
        <source>“%1”: no document has so many pages.</source>
        <translation>„%1“: So viele Seiten hat kein Dokument.</translation>
    </message>
    <message>
        <source>“%1” runs backwards. Write %2.</source>
        <translation>„%1“ läuft rückwärts. Schreiben Sie %2.</translation>
    </message>
    <message>
        <source>“%1” is no range. Write a range as 1-3.</source>
        <translation>„%1“ ist kein Bereich. Schreiben Sie einen Bereich als 1-3.</translation>
    </message>
    <message numerus="yes">
        <source>“%1”: the document has only %n page(s).</source>
        <translation>
            <numerusform>„%1“: Das Dokument hat nur %n Seite.</numerusform>
            <numerusform>„%1“: Das Dokument hat nur %n Seiten.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Order of sheets</source>
        <translation>Reihenfolge der Blätter</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>Ungerade oder gerade Seiten</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Beidseitig</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Seiten pro Blatt</translation>
    </message>
    <message>
        <source>Layout order</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Ausgabefach</translation>
    </message>
    <message>
        <source>Flip horizontally</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>Erste Seite zuerst</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Letzte Seite zuerst</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Pages side by side</source>
        <translation>Seiten nebeneinander</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>An der langen Kante wenden</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>An der kurzen Kante wenden</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>Eingebautes Zubehör</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Job Control</source>
        <translation>Auftragssteuerung</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Weitere Optionen</translation>
    </message>
</context>
<context>
    <name>SummaryTexts</name>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Weitere</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>replaced by a setting of the job</source>
        <translation>durch eine Einstellung des Auftrags ersetzt</translation>
    </message>
</context>
<context>
    <name>Unsendable</name>
    <message>
        <source>a setting has no name</source>
        <translation>eine Einstellung hat keinen Namen</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>the name contains a character that cannot be sent</source>
        <translation>der Name enthält ein Zeichen, das nicht gesendet werden kann</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>der Wert ist leer</translation>
    </message>
    <message>
        <source>a value cannot begin with “{”</source>
        <translation>ein Wert kann nicht mit „{“ beginnen</translation>
    </message>
    <message>
        <source>the value contains a character that cannot be sent</source>
        <translation>der Wert enthält ein Zeichen, das nicht gesendet werden kann</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>der Wert ist zu lang</translation>
    </message>
    <message>
        <source>the printer would read it as “off”</source>
        <translation>der Drucker würde ihn als „aus“ lesen</translation>
    </message>
    <message>
        <source>all settings together are too long</source>
        <translation>alle Einstellungen zusammen sind zu lang</translation>
    </message>
</context>
<context>
    <name>dialog::ChoiceDelegate</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>dialog::ConflictDesk</name>
    <message>
        <source>What is installed in the printer is set by whoever administers it.</source>
        <translation>Was im Drucker eingebaut ist, stellt ein, wer ihn verwaltet.</translation>
    </message>
    <message>
        <source>No change of a few other settings makes it possible.</source>
        <translation>Keine Änderung weniger anderer Einstellungen macht es möglich.</translation>
    </message>
    <message>
        <source>Keep It This Way</source>
        <translation>So beibehalten</translation>
    </message>
</context>
<context>
    <name>dialog::ConflictSheet</name>
    <message>
        <source>Keep What I Had</source>
        <translation>Bisherige Einstellung behalten</translation>
    </message>
    <message>
        <source>Make This Change</source>
        <translation>Diese Änderung vornehmen</translation>
    </message>
    <message>
        <source>What should change?</source>
        <translation>Was soll sich ändern?</translation>
    </message>
</context>
<context>
    <name>dialog::FeaturesPanel</name>
    <message>
        <source>Printer Features</source>
        <translation>Druckerfunktionen</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>Keine Funktion passt.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Funktion suchen</translation>
    </message>
    <message>
        <source>Whoever administers the printer sets these.</source>
        <translation>Diese stellt ein, wer den Drucker verwaltet.</translation>
    </message>
    <message>
        <source>Changed from the default “%1”</source>
        <translation>Geändert, Standard ist „%1“</translation>
    </message>
</context>
<context>
    <name>dialog::GeneralView</name>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Reverse order</source>
        <translation>Umgekehrte Reihenfolge</translation>
    </message>
    <message>
        <source>How often the document is printed</source>
        <translation>Wie oft das Dokument gedruckt wird</translation>
    </message>
    <message>
        <source>Prints one whole copy after the other</source>
        <translation>Druckt ein vollständiges Exemplar nach dem anderen</translation>
    </message>
    <message>
        <source>Prints the last page first</source>
        <translation>Druckt die letzte Seite zuerst</translation>
    </message>
    <message>
        <source>Which of these pages are printed</source>
        <translation>Welche dieser Seiten gedruckt werden</translation>
    </message>
    <message>
        <source>How the pages lie on the paper</source>
        <translation>Wie die Seiten auf dem Papier liegen</translation>
    </message>
    <message>
        <source>The paper in the printer</source>
        <translation>Das Papier im Drucker</translation>
    </message>
    <message>
        <source>Whether the paper is printed on both sides</source>
        <translation>Ob das Papier beidseitig bedruckt wird</translation>
    </message>
    <message>
        <source>Paper size:</source>
        <translation>Papierformat:</translation>
    </message>
    <message>
        <source>Two-sided:</source>
        <translation>Beidseitig:</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>Exemplare:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Seiten:</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>Gerade/ungerade:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Ausrichtung:</translation>
    </message>
</context>
<context>
    <name>dialog::JobDesk</name>
    <message>
        <source>There is nothing to print. Start the dialog with a document.</source>
        <translation>Es gibt nichts zu drucken. Starten Sie den Dialog mit einem Dokument.</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Trotzdem drucken</translation>
    </message>
    <message>
        <source>Before this prints:</source>
        <translation>Vor dem Druck:</translation>
    </message>
    <message>
        <source>The job could not be written to %1: %2. Make room or allow writing there, then print again.</source>
        <translation>Der Auftrag konnte nicht nach %1 geschrieben werden: %2. Schaffen Sie Platz oder erlauben Sie das Schreiben, dann drucken Sie erneut.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>Es wurde nichts gesendet, weil eine Einstellung verloren ginge: %1. Wählen Sie einen anderen Wert.</translation>
    </message>
    <message>
        <source>Sending to %1: %2 %.</source>
        <translation>Wird an %1 gesendet: %2 %.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
    <message>
        <source>Sent as job %1.</source>
        <translation>Als Auftrag %1 gesendet.</translation>
    </message>
    <message>
        <source>Writing the job: %1 %.</source>
        <translation>Der Auftrag wird geschrieben: %1 %.</translation>
    </message>
</context>
<context>
    <name>dialog::LayoutPanel</name>
    <message>
        <source>Flip horizontally</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation>Seiten pro Blatt:</translation>
    </message>
    <message>
        <source>How many pages share a side of the paper</source>
        <translation>Wie viele Seiten sich eine Papierseite teilen</translation>
    </message>
    <message>
        <source>Layout order:</source>
        <translation>Anordnung:</translation>
    </message>
    <message>
        <source>In which order they lie there</source>
        <translation>In welcher Reihenfolge sie dort liegen</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Rahmen:</translation>
    </message>
    <message>
        <source>A line around each page</source>
        <translation>Eine Linie um jede Seite</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>Skalierung:</translation>
    </message>
    <message>
        <source>How large the pages are on the paper</source>
        <translation>Wie groß die Seiten auf dem Papier sind</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Prints every page as in a mirror</source>
        <translation>Druckt jede Seite wie im Spiegel</translation>
    </message>
    <message>
        <source>On this system the printer&apos;s own panel mirrors the pages.</source>
        <translation>Auf diesem System spiegelt die Einstellungsseite des Druckers die Seiten.</translation>
    </message>
</context>
<context>
    <name>dialog::NoticeArea</name>
    <message>
        <source>Dismiss this notice</source>
        <translation>Hinweis schließen</translation>
    </message>
</context>
<context>
    <name>dialog::PanelStack</name>
    <message>
        <source>This printer has no PPD, so there are no panels for it. Print uses the settings that its queue has.</source>
        <translation>Dieser Drucker hat keine PPD, deshalb gibt es keine Einstellungsseiten. Gedruckt wird mit den Einstellungen seiner Warteschlange.</translation>
    </message>
    <message>
        <source>The PPD of this printer names no panels. Print uses the settings that are marked in it.</source>
        <translation>Die PPD dieses Druckers nennt keine Einstellungsseiten. Gedruckt wird mit den Einstellungen, die in ihr markiert sind.</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>Der Treiber des Herstellers bietet keine Einstellungsseiten für diesen Drucker.</translation>
    </message>
</context>
<context>
    <name>dialog::PresetBar</name>
    <message>
        <source>Presets</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>(changed)</source>
        <translation>(geändert)</translation>
    </message>
    <message>
        <source>The settings are others than those of the preset.</source>
        <translation>Die Einstellungen sind andere als die der Voreinstellung.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>Voreinstellungen verwalten</translation>
    </message>
    <message>
        <source>Save, change and compare presets</source>
        <translation>Voreinstellungen sichern, ändern und vergleichen</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Sichern unter …</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen …</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Compare with Settings</source>
        <translation>Mit Einstellungen vergleichen</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Name der Voreinstellung</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Differences from the preset</source>
        <translation>Unterschiede zur Voreinstellung</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>In the Preset</source>
        <translation>In der Voreinstellung</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>Meine Voreinstellungen</translation>
    </message>
    <message>
        <source>Presets of the Printer</source>
        <translation>Voreinstellungen des Druckers</translation>
    </message>
    <message>
        <source>Default Settings</source>
        <translation>Standardeinstellungen</translation>
    </message>
    <message>
        <source>Last Used Settings</source>
        <translation>Zuletzt benutzte Einstellungen</translation>
    </message>
</context>
<context>
    <name>dialog::PresetDesk</name>
    <message>
        <source>Last Used Settings</source>
        <translation>Zuletzt benutzte Einstellungen</translation>
    </message>
    <message>
        <source>Preset “%1”</source>
        <translation>Voreinstellung „%1“</translation>
    </message>
    <message>
        <source>The preset “%1” has the present settings now.</source>
        <translation>Die Voreinstellung „%1“ hat jetzt die aktuellen Einstellungen.</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>Die Voreinstellung „%1“ wurde gelöscht.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Your home folder does not answer. As soon as it does, your presets appear in the menu, and what you have changed in them is written.</source>
        <translation>Ihr Home-Ordner antwortet nicht. Sobald er antwortet, erscheinen Ihre Voreinstellungen im Menü, und was Sie daran geändert haben, wird gespeichert.</translation>
    </message>
</context>
<context>
    <name>dialog::PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Previous sheet</source>
        <translation>Voriges Blatt</translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation>Nächstes Blatt</translation>
    </message>
    <message>
        <source>Sheet shown</source>
        <translation>Gezeigtes Blatt</translation>
    </message>
    <message>
        <source>Make the preview smaller</source>
        <translation>Vorschau verkleinern</translation>
    </message>
    <message>
        <source>Make the preview larger</source>
        <translation>Vorschau vergrößern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Show the whole sheet</source>
        <translation>Ganzes Blatt zeigen</translation>
    </message>
    <message>
        <source>Side </source>
        <extracomment>Stands before the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation>Seite </translation>
    </message>
    <message>
        <source>Sheet </source>
        <translation>Blatt </translation>
    </message>
    <message>
        <source> of %1</source>
        <extracomment>Stands behind the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation> von %1</translation>
    </message>
    <message>
        <source>Nothing would be printed: no page is among those chosen.</source>
        <translation>Es würde nichts gedruckt: Keine Seite gehört zu den gewählten.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>What the sheet shows, and a sentence about what it does not.</extracomment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>dialog::PreviewWords</name>
    <message>
        <source>No document. The sheet stays empty.</source>
        <translation>Kein Dokument. Das Blatt bleibt leer.</translation>
    </message>
    <message>
        <source>The document cannot be read. Check that it is still in its place and that you may read it.</source>
        <translation>Das Dokument ist nicht lesbar. Prüfen Sie, ob es noch an seinem Platz ist und Sie es lesen dürfen.</translation>
    </message>
    <message>
        <source>The document is damaged. Open it in the program that made it and save it again.</source>
        <translation>Das Dokument ist beschädigt. Öffnen Sie es in dem Programm, das es erstellt hat, und sichern Sie es neu.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Save a copy of it without the password and print that.</source>
        <translation>Das Dokument ist durch ein Passwort geschützt. Sichern Sie eine Kopie ohne Passwort, und drucken Sie diese.</translation>
    </message>
    <message>
        <source>The document has no pages. Choose another one.</source>
        <translation>Das Dokument hat keine Seiten. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>The picture is too large to be shown. Scale it down to see it here; it can be printed as it is.</source>
        <translation>Das Bild ist zu groß, um gezeigt zu werden. Verkleinern Sie es, um es hier zu sehen; gedruckt werden kann es, wie es ist.</translation>
    </message>
    <message>
        <source>There is no preview for this kind of document. It can be printed all the same.</source>
        <translation>Für Dokumente dieser Art gibt es keine Vorschau. Gedruckt werden können sie trotzdem.</translation>
    </message>
    <message>
        <source>There is no preview of PDF documents: the part of this program that reads them is not installed. Install the program again to see it; the document can be printed as it is.</source>
        <translation>Für PDF-Dokumente gibt es keine Vorschau: Der Teil dieses Programms, der sie liest, ist nicht installiert. Installieren Sie das Programm neu, um sie zu sehen; gedruckt werden kann das Dokument so, wie es ist.</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Choose a group of settings from the pop-up menu, change what you need, and press Print. Where the printer cannot combine a choice with another one, the window says which one is in the way, and what could change instead.</source>
        <translation>Wählen Sie im Einblendmenü eine Gruppe von Einstellungen, ändern Sie, was nötig ist, und drücken Sie „Drucken“. Wo der Drucker eine Wahl nicht mit einer anderen verbinden kann, nennt das Fenster die, die im Weg steht, und was sich stattdessen ändern ließe.</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Geändert: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>dialog::PrintWindow</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Einstellungen:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Drucker:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Dokument:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Wird gesendet …</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Voreinstellungen:</translation>
    </message>
</context>
<context>
    <name>dialog::PrinterPicker</name>
    <message>
        <source>Find a printer</source>
        <translation>Drucker suchen</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
</context>
<context>
    <name>dialog::QueueDialog</name>
    <message>
        <source>Connecting to %1…</source>
        <translation>Verbindung mit %1 …</translation>
    </message>
    <message>
        <source>The print server at %1 has no printers. Add one there, then try again.</source>
        <translation>Der Druckserver unter %1 hat keine Drucker. Richten Sie dort einen ein, dann versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This printer does not have what you chose for the one before:</source>
        <translation>Dieser Drucker hat nicht, was Sie für den vorigen gewählt haben:</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>dialog::RangeField</name>
    <message numerus="yes">
        <source>The document has %n page(s): it is printed up to its end.</source>
        <translation>
            <numerusform>Das Dokument hat %n Seite: Es wird bis zu seinem Ende gedruckt.</numerusform>
            <numerusform>Das Dokument hat %n Seiten: Es wird bis zu seinem Ende gedruckt.</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Only:</source>
        <translation>Nur:</translation>
    </message>
    <message>
        <source>Prints the whole document</source>
        <translation>Druckt das ganze Dokument</translation>
    </message>
    <message>
        <source>Prints the pages that are named beside it</source>
        <translation>Druckt die Seiten, die daneben stehen</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Only some pages</source>
        <translation>Nur einige Seiten</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Zu druckende Seiten</translation>
    </message>
    <message>
        <source>for example 1-3, 5, 8-</source>
        <translation>zum Beispiel 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Pages and ranges of pages, with commas between them</source>
        <translation>Seiten und Seitenbereiche, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>“%1”: with %2 pages per sheet the numbers count printed sides, and there are fewer.</source>
        <translation>„%1“: Bei %2 Seiten pro Blatt zählen die Nummern bedruckte Blattseiten, und es sind weniger.</translation>
    </message>
    <message>
        <source>With %1 pages per sheet the numbers count printed sides: these have the pages %2 of the document.</source>
        <translation>Bei %1 Seiten pro Blatt zählen die Nummern bedruckte Blattseiten: Darauf stehen die Seiten %2 des Dokuments.</translation>
    </message>
</context>
<context>
    <name>dialog::SaveDesk</name>
    <message>
        <source>Save as PDF…</source>
        <translation>Als PDF sichern …</translation>
    </message>
    <message>
        <source>Save Job Ticket…</source>
        <translation>Auftragsbeleg sichern …</translation>
    </message>
    <message>
        <source>There is no document. Start the dialog with one.</source>
        <translation>Es gibt kein Dokument. Starten Sie den Dialog mit einem.</translation>
    </message>
    <message>
        <source>Saving %1: side %2 of %3.</source>
        <translation>%1 wird gesichert: Seite %2 von %3.</translation>
    </message>
    <message>
        <source>Cancel Saving</source>
        <translation>Sichern abbrechen</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Als %1 gesichert.</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2. Choose another place, or make room and allow writing there.</source>
        <translation>%1 konnte nicht gesichert werden: %2. Wählen Sie einen anderen Ort, oder schaffen Sie dort Platz und erlauben Sie das Schreiben.</translation>
    </message>
    <message>
        <source>%1 could not be saved. %2</source>
        <translation>%1 konnte nicht gesichert werden. %2</translation>
    </message>
</context>
<context>
    <name>dialog::SignInPrompt</name>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>The print server did not accept this name and password.</source>
        <translation>Der Druckserver hat diesen Namen und dieses Passwort nicht angenommen.</translation>
    </message>
    <message>
        <source>The print server %1 wants a name and password before it prints to %2. They are sent for this job and not kept.</source>
        <translation>Der Druckserver %1 verlangt Namen und Passwort, bevor er auf %2 druckt. Sie werden für diesen Auftrag gesendet und nicht aufbewahrt.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others in the network could read the password.</source>
        <translation>Die Verbindung ist nicht verschlüsselt: Andere im Netzwerk könnten das Passwort mitlesen.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Anmelden</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPanel</name>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>No setting matches.</source>
        <translation>Keine Einstellung passt.</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Einstellung suchen</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Als Text kopieren</translation>
    </message>
</context>
</TS>
