<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>ChoiceWords</name>
    <message>
        <source>“%1: %2” and “%3: %4” do not go together.</source>
        <translation>“%1: %2” e “%3: %4” non si possono combinare.</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, the job has “%3”.</source>
        <translation>%1: hai scelto “%2”, il lavoro ha “%3”.</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be used together with “%3: %4”.</source>
        <translation>“%1: %2” non può essere usato insieme a “%3: %4”.</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be chosen now.</source>
        <translation>“%1: %2” non può essere scelto ora.</translation>
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
        <translation>%1: hai scelto “%2”, ma è impostato “%3”.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>“%1” cannot be used together with %2.</source>
        <translation>“%1” non può essere usato insieme a %2.</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>non con %1</translation>
    </message>
    <message>
        <source>%1: without “%2”</source>
        <translation>%1: senza “%2”</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1: “%2”</translation>
    </message>
    <message>
        <source>%1: “%2” instead of “%3”</source>
        <translation>%1: “%2” invece di “%3”</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>There is no document %1. Nothing was sent; choose another document.</source>
        <translation>Il documento %1 non esiste. Non è stato inviato nulla; scegli un altro documento.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read. Nothing was sent; choose another document or allow reading it.</source>
        <translation>Il documento %1 non è leggibile. Non è stato inviato nulla; scegli un altro documento o consenti di leggerlo.</translation>
    </message>
</context>
<context>
    <name>JobMessages</name>
    <message>
        <source>There is no print server to send the job to (%1). Nothing was sent, and your settings are kept: start the print server or correct CUPS_SERVER, and print again.</source>
        <translation>Non c’è un server di stampa a cui inviare il lavoro (%1). Non è stato inviato nulla e le tue impostazioni sono conservate: avvia il server di stampa o correggi CUPS_SERVER, poi stampa di nuovo.</translation>
    </message>
    <message>
        <source>The print server does not answer. Your settings are kept. Print again when it does: what may have arrived by then is found, and not sent a second time.</source>
        <translation>Il server di stampa non risponde. Le tue impostazioni sono conservate. Stampa di nuovo quando risponde: ciò che nel frattempo è arrivato viene trovato e non inviato una seconda volta.</translation>
    </message>
    <message>
        <source>The connection to the print server broke (%1). Your settings are kept. Print again: what may have arrived is found, and not sent a second time.</source>
        <translation>La connessione al server di stampa si è interrotta (%1). Le tue impostazioni sono conservate. Stampa di nuovo: ciò che è arrivato viene trovato e non inviato una seconda volta.</translation>
    </message>
    <message>
        <source>The print server does not let you print to the queue %1 without a name and password that it accepts. Nothing was printed, and your settings are kept: print again and sign in, ask its administrator, or choose another queue.</source>
        <translation>Il server di stampa non ti permette di stampare sulla coda %1 senza un nome e una password che accetti. Non è stato stampato nulla e le tue impostazioni sono conservate: stampa di nuovo e accedi, rivolgiti all’amministratore o scegli un’altra coda.</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs at present. Nothing was sent, and your settings are kept: ask for the queue to be opened, or choose another one.</source>
        <translation>La coda %1 al momento non accetta lavori. Non è stato inviato nulla e le tue impostazioni sono conservate: chiedi che la coda venga aperta o scegline un’altra.</translation>
    </message>
    <message>
        <source>The print server no longer has a queue %1. Nothing was sent, and your settings are kept: choose another queue.</source>
        <translation>Il server di stampa non ha più la coda %1. Non è stato inviato nulla e le tue impostazioni sono conservate: scegli un’altra coda.</translation>
    </message>
    <message>
        <source>The queue %1 cannot print a document of this kind (%2). Nothing was printed. Convert the document to PDF, or choose another queue.</source>
        <translation>La coda %1 non può stampare un documento di questo tipo (%2). Non è stato stampato nulla. Converti il documento in PDF o scegli un’altra coda.</translation>
    </message>
    <message>
        <source>The print server did not take the job: %1. Your settings are kept; print again when it answers.</source>
        <translation>Il server di stampa non ha accettato il lavoro: %1. Le tue impostazioni sono conservate; stampa di nuovo quando risponde.</translation>
    </message>
    <message>
        <source>The document can no longer be read (%1). Nothing was printed, and your settings are kept: put the document back and print again.</source>
        <translation>Il documento non è più leggibile (%1). Non è stato stampato nulla e le tue impostazioni sono conservate: rimetti il documento al suo posto e stampa di nuovo.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>Non è stato inviato nulla perché un’impostazione andrebbe persa: %1. Scegli un altro valore.</translation>
    </message>
    <message>
        <source>The job could not be noted in your state folder, so nothing was sent: a second copy could not be ruled out later. Make room on that disk and print again.</source>
        <translation>Non è stato possibile annotare il lavoro nella cartella di stato, quindi non è stato inviato nulla: in seguito non si potrebbe escludere una seconda copia. Libera spazio su quel disco e stampa di nuovo.</translation>
    </message>
    <message>
        <source>The job was cancelled; nothing of it prints. Your settings are kept.</source>
        <translation>Il lavoro è stato annullato; non ne verrà stampato nulla. Le tue impostazioni sono conservate.</translation>
    </message>
    <message>
        <source>An earlier attempt was sent whole to the queue %1, and the print server no longer knows it: it may have printed. Look at the printer before you press Print again.</source>
        <translation>Un tentativo precedente è stato inviato per intero alla coda %1 e il server di stampa non lo conosce più: potrebbe essere stato stampato. Controlla la stampante prima di premere di nuovo Stampa.</translation>
    </message>
    <message>
        <source>The print server took the job and gave it up (%2). Your settings are kept; look at the queue %1, and print again.</source>
        <translation>Il server di stampa ha preso il lavoro e poi l’ha abbandonato (%2). Le tue impostazioni sono conservate; controlla la coda %1 e stampa di nuovo.</translation>
    </message>
    <message>
        <source>The earlier attempt had arrived as job %1, so nothing was sent again. Press Print once more for another copy.</source>
        <translation>Il tentativo precedente era arrivato come lavoro %1, quindi non è stato inviato di nuovo nulla. Premi ancora una volta Stampa per un’altra copia.</translation>
    </message>
    <message>
        <source>Job %1 waits, because the queue %2 is paused. It prints when somebody resumes the queue.</source>
        <translation>Il lavoro %1 è in attesa perché la coda %2 è in pausa. Verrà stampato quando qualcuno riprenderà la coda.</translation>
    </message>
    <message>
        <source>The print server did not keep the setting %1 (%2). Check the first page.</source>
        <translation>Il server di stampa non ha mantenuto l’impostazione %1 (%2). Controlla la prima pagina.</translation>
    </message>
    <message>
        <source>The print server changed the setting %1 from %2 to %3. Check the first page.</source>
        <translation>Il server di stampa ha cambiato l’impostazione %1 da %2 a %3. Controlla la prima pagina.</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had arrived as job %3. It was not sent again.</source>
        <translation>“%1”, inviato a %2 prima dell’apertura di questa finestra, era arrivato come lavoro %3. Non è stato inviato di nuovo.</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had not arrived whole, and nothing of it prints. Print it again if you still need it.</source>
        <translation>“%1”, inviato a %2 prima dell’apertura di questa finestra, non era arrivato per intero e non ne verrà stampato nulla. Stampalo di nuovo se ti serve ancora.</translation>
    </message>
    <message>
        <source>“%1” was sent whole to %2 before this dialog was opened, and the print server no longer knows it: it may have printed. Look at the printer before you print it again.</source>
        <translation>“%1” è stato inviato per intero a %2 prima dell’apertura di questa finestra e il server di stampa non lo conosce più: potrebbe essere stato stampato. Controlla la stampante prima di stamparlo di nuovo.</translation>
    </message>
</context>
<context>
    <name>JobSettings</name>
    <message>
        <source>Both</source>
        <translation>Entrambe</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Solo pagine dispari</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Solo pagine pari</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Verticale capovolto</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Orizzontale capovolto</translation>
    </message>
    <message>
        <source>Right, then down</source>
        <translation>A destra, poi in basso</translation>
    </message>
    <message>
        <source>Down, then right</source>
        <translation>In basso, poi a destra</translation>
    </message>
    <message>
        <source>Left, then down</source>
        <translation>A sinistra, poi in basso</translation>
    </message>
    <message>
        <source>Down, then left</source>
        <translation>In basso, poi a sinistra</translation>
    </message>
    <message>
        <source>Right, then up</source>
        <translation>A destra, poi in alto</translation>
    </message>
    <message>
        <source>Up, then right</source>
        <translation>In alto, poi a destra</translation>
    </message>
    <message>
        <source>Left, then up</source>
        <translation>A sinistra, poi in alto</translation>
    </message>
    <message>
        <source>Up, then left</source>
        <translation>In alto, poi a sinistra</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>Nessun bordo</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>Linea sottile</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>Linea spessa</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>Due linee sottili</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>Due linee spesse</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Dimensioni reali</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>Adatta alla carta</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>Riempi la carta</translation>
    </message>
</context>
<context>
    <name>MemoryMessages</name>
    <message>
        <source>Your home folder does not answer, so that your last settings could not be read. The printer&apos;s default settings are shown.</source>
        <translation>La tua cartella personale non risponde, quindi non è stato possibile leggere le tue ultime impostazioni. Vengono mostrate le impostazioni predefinite della stampante.</translation>
    </message>
    <message>
        <source>The file with the size of this window was damaged. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>Il file con le dimensioni di questa finestra era danneggiato. È conservato come “%1”. Correggi il file e ridagli il vecchio nome, oppure eliminalo.</translation>
    </message>
    <message>
        <source>The file with your last settings for this printer was damaged, so that the printer&apos;s default settings are shown. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>Il file con le tue ultime impostazioni per questa stampante era danneggiato, quindi vengono mostrate le impostazioni predefinite della stampante. È conservato come “%1”. Correggi il file e ridagli il vecchio nome, oppure eliminalo.</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read, because “%1” may not be read or written. Allow it, and open the dialog again.</source>
        <translation>Non è stato possibile leggere ciò che questa finestra ricorda, perché “%1” non può essere letto o scritto. Consentilo e apri di nuovo la finestra.</translation>
    </message>
    <message>
        <source>What this dialog remembers was not read, because “%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>Ciò che questa finestra ricorda non è stato letto, perché “%1” è un collegamento, appartiene a qualcun altro o altri possono scriverci. Sostituiscilo con una cartella in cui solo tu puoi scrivere.</translation>
    </message>
    <message>
        <source>What this dialog remembers in “%1” is of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>Ciò che questa finestra ricorda in “%1” è di una versione più recente di questo programma. Aggiorna il programma o sposta il file per ricominciare.</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read from “%1”: %2.</source>
        <translation>Non è stato possibile leggere da “%1” ciò che questa finestra ricorda: %2.</translation>
    </message>
</context>
<context>
    <name>PathRefusal</name>
    <message>
        <source>it lies outside /Library/Printers</source>
        <translation>si trova fuori da /Library/Printers</translation>
    </message>
    <message>
        <source>the path goes through “..”</source>
        <translation>il percorso passa per “..”</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>non esiste</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>è un collegamento</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>appartiene a qualcun altro</translation>
    </message>
    <message>
        <source>others may write it</source>
        <translation>altri possono modificarlo</translation>
    </message>
    <message>
        <source>it is no ordinary file or folder</source>
        <translation>non è un normale file o una normale cartella</translation>
    </message>
</context>
<context>
    <name>PlugInTexts</name>
    <message>
        <source>The printer&apos;s panels are not installed: there is no %1. Install the maker&apos;s driver.</source>
        <translation>I pannelli della stampante non sono installati: %1 non esiste. Installa il driver del produttore.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels were not loaded: %1 (%2). Install the maker&apos;s driver again as an administrator.</source>
        <translation>I pannelli della stampante non sono stati caricati: %1 (%2). Reinstalla il driver del produttore come amministratore.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels could not be loaded: %1 is damaged (%2). Install the maker&apos;s driver again.</source>
        <translation>Non è stato possibile caricare i pannelli della stampante: %1 è danneggiato (%2). Reinstalla il driver del produttore.</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>è troncato</translation>
    </message>
    <message>
        <source>The printer&apos;s panels do not fit this dialog: %1 was made for another version. Install the maker&apos;s current driver.</source>
        <translation>I pannelli della stampante non sono adatti a questa finestra: %1 è stato creato per un’altra versione. Installa il driver attuale del produttore.</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>Il driver del produttore non offre pannelli per questa stampante.</translation>
    </message>
</context>
<context>
    <name>PresetMessages</name>
    <message>
        <source>There is no such preset any more; another print dialog has deleted or renamed it.</source>
        <translation>Questa preimpostazione non esiste più; un’altra finestra di stampa l’ha eliminata o rinominata.</translation>
    </message>
    <message numerus="yes">
        <source>There is room for %n preset(s) only. Delete one that is not needed any more.</source>
        <translation>
            <numerusform>C’è posto solo per %n preimpostazione. Eliminane una che non serve più.</numerusform>
            <numerusform>C’è posto solo per %n preimpostazioni. Eliminane una che non serve più.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another print dialog is changing the presets. Try again.</source>
        <translation>Un’altra finestra di stampa sta modificando le preimpostazioni. Riprova.</translation>
    </message>
    <message>
        <source>The presets could not be written to “%1” because there is no room left. Free some space and try again.</source>
        <translation>Non è stato possibile scrivere le preimpostazioni in “%1” perché non c’è più spazio. Libera spazio e riprova.</translation>
    </message>
    <message>
        <source>“%1” may not be read or written. Allow it, and try again.</source>
        <translation>“%1” non può essere letto o scritto. Consentilo e riprova.</translation>
    </message>
    <message>
        <source>“%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>“%1” è un collegamento, appartiene a qualcun altro o altri possono scriverci. Sostituiscilo con una cartella in cui solo tu puoi scrivere.</translation>
    </message>
    <message>
        <source>The presets in “%1” are of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>Le preimpostazioni in “%1” sono di una versione più recente di questo programma. Aggiorna il programma o sposta il file per ricominciare.</translation>
    </message>
    <message>
        <source>“%1” cannot be used for presets: %2.</source>
        <translation>“%1” non può essere usato per le preimpostazioni: %2.</translation>
    </message>
    <message>
        <source>The file of your presets for this printer was damaged. It is kept as “%1”; what could be read of it is still here. Correct the file and give it back its old name, or delete it.</source>
        <translation>Il file delle tue preimpostazioni per questa stampante era danneggiato. È conservato come “%1”; ciò che è stato possibile leggere è ancora qui. Correggi il file e ridagli il vecchio nome, oppure eliminalo.</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>Digita un nome.</translation>
    </message>
    <message numerus="yes">
        <source>A name has at most %n character(s).</source>
        <translation>
            <numerusform>Un nome ha al massimo %n carattere.</numerusform>
            <numerusform>Un nome ha al massimo %n caratteri.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another preset has this name.</source>
        <translation>Un’altra preimpostazione ha questo nome.</translation>
    </message>
    <message>
        <source>This printer does not have everything that “%1” sets. These settings were left as the printer has them:</source>
        <translation>Questa stampante non ha tutto ciò che “%1” imposta. Queste impostazioni sono rimaste quelle della stampante:</translation>
    </message>
    <message>
        <source>These settings cannot be used together on this printer:</source>
        <translation>Queste impostazioni non possono essere usate insieme su questa stampante:</translation>
    </message>
    <message>
        <source>“%1” and “%2”</source>
        <translation>“%1” e “%2”</translation>
    </message>
</context>
<context>
    <name>PreviewWords</name>
    <message>
        <source>Page %1 is damaged and stays empty.</source>
        <translation>La pagina %1 è danneggiata e resta vuota.</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Nessuna pagina</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Pagina %1</translation>
    </message>
    <message>
        <source>Pages %1 and %2</source>
        <translation>Pagine %1 e %2</translation>
    </message>
    <message>
        <source>Pages %1 to %2</source>
        <translation>Pagine da %1 a %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Foglio %1 di %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Foglio %1 di %2, fronte</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Foglio %1 di %2, retro</translation>
    </message>
    <message>
        <source>front</source>
        <translation>fronte</translation>
    </message>
    <message>
        <source>back</source>
        <translation>retro</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copia</numerusform>
            <numerusform>%n copie</numerusform>
        </translation>
    </message>
    <message>
        <source>collated</source>
        <translation>fascicolate</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>orizzontale</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>verticale</translation>
    </message>
    <message>
        <source>grayscale</source>
        <translation>scala di grigi</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>capovolta</translation>
    </message>
</context>
<context>
    <name>PrinterLists</name>
    <message>
        <source>As the printer is set</source>
        <translation>Come impostato nella stampante</translation>
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
        <translation>Busta DL</translation>
    </message>
    <message>
        <source>No. 10 envelope</source>
        <translation>Busta n. 10</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>Gira sul lato lungo</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>Gira sul lato corto</translation>
    </message>
</context>
<context>
    <name>PrinterWords</name>
    <message>
        <source>There is no printer %1 at the print server. Choose another one.</source>
        <translation>Il server di stampa non ha una stampante %1. Scegline un’altra.</translation>
    </message>
    <message>
        <source>The printer %1 cannot be used, because its PPD is damaged: %2. Have the printer set up again or choose another one.</source>
        <translation>La stampante %1 non può essere usata perché il suo PPD è danneggiato: %2. Fai configurare di nuovo la stampante o scegline un’altra.</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Non raggiungibile</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>In pausa: %1</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>Non accetta lavori</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Non in linea</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>Non in linea: %1</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Stampa in corso</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Pronta</translation>
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
        <translation>Nessun server di stampa risponde a %1 (%2). Avvia il server o controlla la rete, poi riprova.</translation>
    </message>
    <message>
        <source>The print server at %1 does not answer. Wait a moment or have it restarted, then try again.</source>
        <translation>Il server di stampa a %1 non risponde. Attendi un momento o fallo riavviare, poi riprova.</translation>
    </message>
    <message>
        <source>The print server at %1 refused to answer: %2. Ask its administrator for access, then try again.</source>
        <translation>Il server di stampa a %1 ha rifiutato di rispondere: %2. Chiedi l’accesso all’amministratore, poi riprova.</translation>
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
        <translation>predefinita</translation>
    </message>
</context>
<context>
    <name>RangeTexts</name>
    <message>
        <source>Type the pages to print, such as 1-3, 5, 8-.</source>
        <translation>Digita le pagine da stampare, per esempio 1-3, 5, 8-.</translation>
    </message>
    <message>
        <source>“%1” is no page number. Write pages as 1-3, 5, 8-.</source>
        <translation>“%1” non è un numero di pagina. Scrivi le pagine così: 1-3, 5, 8-.</translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation>“%1”: le pagine si contano da 1.</translation>
    </message>
    <message>
        <source>“%1”: no document has so many pages.</source>
        <translation>“%1”: nessun documento ha così tante pagine.</translation>
    </message>
    <message>
        <source>“%1” runs backwards. Write %2.</source>
        <translation>“%1” è al contrario. Scrivi %2.</translation>
    </message>
    <message>
        <source>“%1” is no range. Write a range as 1-3.</source>
        <translation>“%1” non è un intervallo. Scrivi un intervallo così: 1-3.</translation>
    </message>
    <message numerus="yes">
        <source>“%1”: the document has only %n page(s).</source>
        <translation>
            <numerusform>“%1”: il documento ha solo %n pagina.</numerusform>
            <numerusform>“%1”: il documento ha solo %n pagine.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Fascicola</translation>
    </message>
    <message>
        <source>Order of sheets</source>
        <translation>Ordine dei fogli</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>Pagine pari o dispari</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientamento</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Fronte-retro</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pagine per foglio</translation>
    </message>
    <message>
        <source>Layout order</source>
        <translation>Ordine di layout</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordo</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Scala</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Vassoio di uscita</translation>
    </message>
    <message>
        <source>Flip horizontally</source>
        <translation>Capovolgi in orizzontale</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>Prima la prima pagina</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Prima l’ultima pagina</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Scala di grigi</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Bozza</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Pages side by side</source>
        <translation>Pagine affiancate</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>Gira sul lato lungo</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>Gira sul lato corto</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>Opzioni installate</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Job Control</source>
        <translation>Controllo dei lavori</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Altre opzioni</translation>
    </message>
</context>
<context>
    <name>SummaryTexts</name>
    <message>
        <source>Job</source>
        <translation>Lavoro</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Altre</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modificato</translation>
    </message>
    <message>
        <source>replaced by a setting of the job</source>
        <translation>sostituito da un’impostazione del lavoro</translation>
    </message>
</context>
<context>
    <name>Unsendable</name>
    <message>
        <source>a setting has no name</source>
        <translation>un’impostazione non ha nome</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>il nome è troppo lungo</translation>
    </message>
    <message>
        <source>the name contains a character that cannot be sent</source>
        <translation>il nome contiene un carattere che non può essere inviato</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>il valore è vuoto</translation>
    </message>
    <message>
        <source>a value cannot begin with “{”</source>
        <translation>un valore non può iniziare con “{”</translation>
    </message>
    <message>
        <source>the value contains a character that cannot be sent</source>
        <translation>il valore contiene un carattere che non può essere inviato</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>il valore è troppo lungo</translation>
    </message>
    <message>
        <source>the printer would read it as “off”</source>
        <translation>la stampante lo interpreterebbe come “disattivato”</translation>
    </message>
    <message>
        <source>all settings together are too long</source>
        <translation>tutte le impostazioni insieme sono troppo lunghe</translation>
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
        <translation>Ciò che è installato nella stampante viene impostato da chi la amministra.</translation>
    </message>
    <message>
        <source>No change of a few other settings makes it possible.</source>
        <translation>Cambiare poche altre impostazioni non lo rende possibile.</translation>
    </message>
    <message>
        <source>Keep It This Way</source>
        <translation>Lascia così</translation>
    </message>
</context>
<context>
    <name>dialog::ConflictSheet</name>
    <message>
        <source>Keep What I Had</source>
        <translation>Mantieni com’era</translation>
    </message>
    <message>
        <source>Make This Change</source>
        <translation>Applica questa modifica</translation>
    </message>
    <message>
        <source>What should change?</source>
        <translation>Che cosa deve cambiare?</translation>
    </message>
</context>
<context>
    <name>dialog::FeaturesPanel</name>
    <message>
        <source>Printer Features</source>
        <translation>Funzioni della stampante</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>Nessuna funzione corrisponde.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Cerca una funzione</translation>
    </message>
    <message>
        <source>Whoever administers the printer sets these.</source>
        <translation>Le imposta chi amministra la stampante.</translation>
    </message>
    <message>
        <source>Changed from the default “%1”</source>
        <translation>Modificato rispetto al predefinito “%1”</translation>
    </message>
</context>
<context>
    <name>dialog::GeneralView</name>
    <message>
        <source>Collate</source>
        <translation>Fascicola</translation>
    </message>
    <message>
        <source>Reverse order</source>
        <translation>Ordine inverso</translation>
    </message>
    <message>
        <source>How often the document is printed</source>
        <translation>Quante volte viene stampato il documento</translation>
    </message>
    <message>
        <source>Prints one whole copy after the other</source>
        <translation>Stampa una copia completa dopo l’altra</translation>
    </message>
    <message>
        <source>Prints the last page first</source>
        <translation>Stampa per prima l’ultima pagina</translation>
    </message>
    <message>
        <source>Which of these pages are printed</source>
        <translation>Quali di queste pagine vengono stampate</translation>
    </message>
    <message>
        <source>How the pages lie on the paper</source>
        <translation>Come sono disposte le pagine sulla carta</translation>
    </message>
    <message>
        <source>The paper in the printer</source>
        <translation>La carta nella stampante</translation>
    </message>
    <message>
        <source>Whether the paper is printed on both sides</source>
        <translation>Se la carta viene stampata su entrambi i lati</translation>
    </message>
    <message>
        <source>Paper size:</source>
        <translation>Formato carta:</translation>
    </message>
    <message>
        <source>Two-sided:</source>
        <translation>Fronte-retro:</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>Copie:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pagine:</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>Pari/dispari:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientamento:</translation>
    </message>
</context>
<context>
    <name>dialog::JobDesk</name>
    <message>
        <source>There is nothing to print. Start the dialog with a document.</source>
        <translation>Non c’è nulla da stampare. Apri la finestra con un documento.</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Stampa comunque</translation>
    </message>
    <message>
        <source>Before this prints:</source>
        <translation>Prima di stampare:</translation>
    </message>
    <message>
        <source>The job could not be written to %1: %2. Make room or allow writing there, then print again.</source>
        <translation>Non è stato possibile scrivere il lavoro in %1: %2. Libera spazio o consenti la scrittura, poi stampa di nuovo.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>Non è stato inviato nulla perché un’impostazione andrebbe persa: %1. Scegli un altro valore.</translation>
    </message>
    <message>
        <source>Sending to %1: %2 %.</source>
        <translation>Invio a %1: %2%.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annulla lavoro</translation>
    </message>
    <message>
        <source>Sent as job %1.</source>
        <translation>Inviato come lavoro %1.</translation>
    </message>
    <message>
        <source>Writing the job: %1 %.</source>
        <translation>Scrittura del lavoro: %1%.</translation>
    </message>
</context>
<context>
    <name>dialog::LayoutPanel</name>
    <message>
        <source>Flip horizontally</source>
        <translation>Capovolgi in orizzontale</translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation>Pagine per foglio:</translation>
    </message>
    <message>
        <source>How many pages share a side of the paper</source>
        <translation>Quante pagine condividono un lato della carta</translation>
    </message>
    <message>
        <source>Layout order:</source>
        <translation>Ordine di layout:</translation>
    </message>
    <message>
        <source>In which order they lie there</source>
        <translation>In quale ordine sono disposte</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Bordo:</translation>
    </message>
    <message>
        <source>A line around each page</source>
        <translation>Una linea intorno a ogni pagina</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>Scala:</translation>
    </message>
    <message>
        <source>How large the pages are on the paper</source>
        <translation>Quanto sono grandi le pagine sulla carta</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Prints every page as in a mirror</source>
        <translation>Stampa ogni pagina come in uno specchio</translation>
    </message>
    <message>
        <source>On this system the printer&apos;s own panel mirrors the pages.</source>
        <translation>Su questo sistema è il pannello della stampante a capovolgere le pagine.</translation>
    </message>
</context>
<context>
    <name>dialog::NoticeArea</name>
    <message>
        <source>Dismiss this notice</source>
        <translation>Chiudi questo avviso</translation>
    </message>
</context>
<context>
    <name>dialog::PanelStack</name>
    <message>
        <source>This printer has no PPD, so there are no panels for it. Print uses the settings that its queue has.</source>
        <translation>Questa stampante non ha un PPD, quindi non ci sono pannelli. Si stampa con le impostazioni della sua coda.</translation>
    </message>
    <message>
        <source>The PPD of this printer names no panels. Print uses the settings that are marked in it.</source>
        <translation>Il PPD di questa stampante non indica pannelli. Si stampa con le impostazioni che vi sono selezionate.</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>Il driver del produttore non offre pannelli per questa stampante.</translation>
    </message>
</context>
<context>
    <name>dialog::PresetBar</name>
    <message>
        <source>Presets</source>
        <translation>Preimpostazioni</translation>
    </message>
    <message>
        <source>(changed)</source>
        <translation>(modificata)</translation>
    </message>
    <message>
        <source>The settings are others than those of the preset.</source>
        <translation>Le impostazioni sono diverse da quelle della preimpostazione.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>Gestisci preimpostazioni</translation>
    </message>
    <message>
        <source>Save, change and compare presets</source>
        <translation>Salva, modifica e confronta preimpostazioni</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Salva con nome…</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Rinomina…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Compare with Settings</source>
        <translation>Confronta con le impostazioni</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nome della preimpostazione</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Differences from the preset</source>
        <translation>Differenze dalla preimpostazione</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>In the Preset</source>
        <translation>Nella preimpostazione</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>Le mie preimpostazioni</translation>
    </message>
    <message>
        <source>Presets of the Printer</source>
        <translation>Preimpostazioni della stampante</translation>
    </message>
    <message>
        <source>Default Settings</source>
        <translation>Impostazioni predefinite</translation>
    </message>
    <message>
        <source>Last Used Settings</source>
        <translation>Ultime impostazioni usate</translation>
    </message>
</context>
<context>
    <name>dialog::PresetDesk</name>
    <message>
        <source>Last Used Settings</source>
        <translation>Ultime impostazioni usate</translation>
    </message>
    <message>
        <source>Preset “%1”</source>
        <translation>Preimpostazione “%1”</translation>
    </message>
    <message>
        <source>The preset “%1” has the present settings now.</source>
        <translation>La preimpostazione “%1” ora ha le impostazioni attuali.</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>La preimpostazione “%1” è stata eliminata.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Ripristina predefiniti</translation>
    </message>
    <message>
        <source>Your home folder does not answer. As soon as it does, your presets appear in the menu, and what you have changed in them is written.</source>
        <translation>La tua cartella personale non risponde. Appena risponde, le tue preimpostazioni appaiono nel menu e ciò che vi hai modificato viene salvato.</translation>
    </message>
</context>
<context>
    <name>dialog::PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Previous sheet</source>
        <translation>Foglio precedente</translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation>Foglio successivo</translation>
    </message>
    <message>
        <source>Sheet shown</source>
        <translation>Foglio mostrato</translation>
    </message>
    <message>
        <source>Make the preview smaller</source>
        <translation>Riduci l’anteprima</translation>
    </message>
    <message>
        <source>Make the preview larger</source>
        <translation>Ingrandisci l’anteprima</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Show the whole sheet</source>
        <translation>Mostra l’intero foglio</translation>
    </message>
    <message>
        <source>Side </source>
        <extracomment>Stands before the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation>Lato </translation>
    </message>
    <message>
        <source>Sheet </source>
        <translation>Foglio </translation>
    </message>
    <message>
        <source> of %1</source>
        <extracomment>Stands behind the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation> di %1</translation>
    </message>
    <message>
        <source>Nothing would be printed: no page is among those chosen.</source>
        <translation>Non verrebbe stampato nulla: nessuna pagina è tra quelle scelte.</translation>
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
        <translation>Nessun documento. Il foglio resta vuoto.</translation>
    </message>
    <message>
        <source>The document cannot be read. Check that it is still in its place and that you may read it.</source>
        <translation>Il documento non è leggibile. Controlla che sia ancora al suo posto e che tu possa leggerlo.</translation>
    </message>
    <message>
        <source>The document is damaged. Open it in the program that made it and save it again.</source>
        <translation>Il documento è danneggiato. Aprilo nel programma che l’ha creato e salvalo di nuovo.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Save a copy of it without the password and print that.</source>
        <translation>Il documento è protetto da una password. Salvane una copia senza password e stampa quella.</translation>
    </message>
    <message>
        <source>The document has no pages. Choose another one.</source>
        <translation>Il documento non ha pagine. Scegline un altro.</translation>
    </message>
    <message>
        <source>The picture is too large to be shown. Scale it down to see it here; it can be printed as it is.</source>
        <translation>L’immagine è troppo grande per essere mostrata. Riducila per vederla qui; può essere stampata così com’è.</translation>
    </message>
    <message>
        <source>There is no preview for this kind of document. It can be printed all the same.</source>
        <translation>Non c’è anteprima per questo tipo di documento. Può comunque essere stampato.</translation>
    </message>
    <message>
        <source>There is no preview of PDF documents: the part of this program that reads them is not installed. Install the program again to see it; the document can be printed as it is.</source>
        <translation>Non c’è anteprima dei documenti PDF: la parte di questo programma che li legge non è installata. Installare di nuovo il programma per vederla; il documento può essere stampato così com’è.</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Choose a group of settings from the pop-up menu, change what you need, and press Print. Where the printer cannot combine a choice with another one, the window says which one is in the way, and what could change instead.</source>
        <translation>Scegli un gruppo di impostazioni dal menu a comparsa, modifica ciò che serve e premi Stampa. Se la stampante non può combinare una scelta con un’altra, la finestra dice quale lo impedisce e che cosa potrebbe cambiare al suo posto.</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Modificato: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>dialog::PrintWindow</name>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Impostazioni:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Stampante:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Documento:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Invio…</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Ripristina predefiniti</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Preimpostazioni:</translation>
    </message>
</context>
<context>
    <name>dialog::PrinterPicker</name>
    <message>
        <source>Find a printer</source>
        <translation>Cerca una stampante</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
</context>
<context>
    <name>dialog::QueueDialog</name>
    <message>
        <source>Connecting to %1…</source>
        <translation>Connessione a %1…</translation>
    </message>
    <message>
        <source>The print server at %1 has no printers. Add one there, then try again.</source>
        <translation>Il server di stampa a %1 non ha stampanti. Aggiungine una, poi riprova.</translation>
    </message>
    <message>
        <source>This printer does not have what you chose for the one before:</source>
        <translation>Questa stampante non ha ciò che avevi scelto per la precedente:</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Riprova</translation>
    </message>
</context>
<context>
    <name>dialog::RangeField</name>
    <message numerus="yes">
        <source>The document has %n page(s): it is printed up to its end.</source>
        <translation>
            <numerusform>Il documento ha %n pagina: viene stampato fino alla fine.</numerusform>
            <numerusform>Il documento ha %n pagine: viene stampato fino alla fine.</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutte</translation>
    </message>
    <message>
        <source>Only:</source>
        <translation>Solo:</translation>
    </message>
    <message>
        <source>Prints the whole document</source>
        <translation>Stampa tutto il documento</translation>
    </message>
    <message>
        <source>Prints the pages that are named beside it</source>
        <translation>Stampa le pagine indicate accanto</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Tutte le pagine</translation>
    </message>
    <message>
        <source>Only some pages</source>
        <translation>Solo alcune pagine</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Pagine da stampare</translation>
    </message>
    <message>
        <source>for example 1-3, 5, 8-</source>
        <translation>per esempio 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Pages and ranges of pages, with commas between them</source>
        <translation>Pagine e intervalli di pagine, separati da virgole</translation>
    </message>
    <message>
        <source>“%1”: with %2 pages per sheet the numbers count printed sides, and there are fewer.</source>
        <translation>“%1”: con %2 pagine per foglio i numeri contano le facciate stampate, e ce ne sono meno.</translation>
    </message>
    <message>
        <source>With %1 pages per sheet the numbers count printed sides: these have the pages %2 of the document.</source>
        <translation>Con %1 pagine per foglio i numeri contano le facciate stampate: contengono le pagine %2 del documento.</translation>
    </message>
</context>
<context>
    <name>dialog::SaveDesk</name>
    <message>
        <source>Save as PDF…</source>
        <translation>Salva come PDF…</translation>
    </message>
    <message>
        <source>Save Job Ticket…</source>
        <translation>Salva ticket del lavoro…</translation>
    </message>
    <message>
        <source>There is no document. Start the dialog with one.</source>
        <translation>Non c’è alcun documento. Apri la finestra con un documento.</translation>
    </message>
    <message>
        <source>Saving %1: side %2 of %3.</source>
        <translation>Salvataggio di %1: lato %2 di %3.</translation>
    </message>
    <message>
        <source>Cancel Saving</source>
        <translation>Annulla salvataggio</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Salvato come %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2. Choose another place, or make room and allow writing there.</source>
        <translation>Non è stato possibile salvare %1: %2. Scegli un altro posto, oppure libera spazio e consenti la scrittura.</translation>
    </message>
    <message>
        <source>%1 could not be saved. %2</source>
        <translation>Non è stato possibile salvare %1. %2</translation>
    </message>
</context>
<context>
    <name>dialog::SignInPrompt</name>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>The print server did not accept this name and password.</source>
        <translation>Il server di stampa non ha accettato questo nome e questa password.</translation>
    </message>
    <message>
        <source>The print server %1 wants a name and password before it prints to %2. They are sent for this job and not kept.</source>
        <translation>Il server di stampa %1 richiede un nome e una password prima di stampare su %2. Vengono inviati per questo lavoro e non conservati.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others in the network could read the password.</source>
        <translation>La connessione non è cifrata: altri nella rete potrebbero leggere la password.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annulla lavoro</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Accedi</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPanel</name>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>No setting matches.</source>
        <translation>Nessuna impostazione corrisponde.</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Cerca un’impostazione</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copia come testo</translation>
    </message>
</context>
</TS>
