<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>ChoiceWords</name>
    <message>
        <source>“%1: %2” and “%3: %4” do not go together.</source>
        <translation>« %1 : %2 » et « %3 : %4 » ne vont pas ensemble.</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, the job has “%3”.</source>
        <translation>%1 : vous avez choisi « %2 », la tâche a « %3 ».</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be used together with “%3: %4”.</source>
        <translation>« %1 : %2 » ne peut pas être utilisé avec « %3 : %4 ».</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be chosen now.</source>
        <translation>« %1 : %2 » ne peut pas être choisi maintenant.</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>There is no document %1. Nothing was sent; choose another document.</source>
        <translation>Le document %1 n’existe pas. Rien n’a été envoyé ; choisissez un autre document.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read. Nothing was sent; choose another document or allow reading it.</source>
        <translation>Le document %1 est illisible. Rien n’a été envoyé ; choisissez un autre document ou autorisez sa lecture.</translation>
    </message>
</context>
<context>
    <name>JobMessages</name>
    <message>
        <source>There is no print server to send the job to (%1). Nothing was sent, and your settings are kept: start the print server or correct CUPS_SERVER, and print again.</source>
        <translation>Il n’y a pas de serveur d’impression auquel envoyer la tâche (%1). Rien n’a été envoyé, et vos réglages sont conservés : démarrez le serveur d’impression ou corrigez CUPS_SERVER, puis imprimez à nouveau.</translation>
    </message>
    <message>
        <source>The print server does not answer. Your settings are kept. Print again when it does: what may have arrived by then is found, and not sent a second time.</source>
        <translation>Le serveur d’impression ne répond pas. Vos réglages sont conservés. Imprimez à nouveau lorsqu’il répondra : ce qui sera arrivé entre-temps sera retrouvé et ne sera pas envoyé une seconde fois.</translation>
    </message>
    <message>
        <source>The connection to the print server broke (%1). Your settings are kept. Print again: what may have arrived is found, and not sent a second time.</source>
        <translation>La connexion au serveur d’impression a été interrompue (%1). Vos réglages sont conservés. Imprimez à nouveau : ce qui est arrivé sera retrouvé et ne sera pas envoyé une seconde fois.</translation>
    </message>
    <message>
        <source>The print server does not let you print to the queue %1 without a name and password that it accepts. Nothing was printed, and your settings are kept: print again and sign in, ask its administrator, or choose another queue.</source>
        <translation>Le serveur d’impression ne vous laisse pas imprimer vers la file %1 sans un nom et un mot de passe qu’il accepte. Rien n’a été imprimé, et vos réglages sont conservés : imprimez à nouveau et identifiez-vous, adressez-vous à son administrateur, ou choisissez une autre file.</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs at present. Nothing was sent, and your settings are kept: ask for the queue to be opened, or choose another one.</source>
        <translation>La file %1 n’accepte pas de tâches actuellement. Rien n’a été envoyé, et vos réglages sont conservés : demandez que la file soit ouverte, ou choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The print server no longer has a queue %1. Nothing was sent, and your settings are kept: choose another queue.</source>
        <translation>Le serveur d’impression n’a plus de file %1. Rien n’a été envoyé, et vos réglages sont conservés : choisissez une autre file.</translation>
    </message>
    <message>
        <source>The queue %1 cannot print a document of this kind (%2). Nothing was printed. Convert the document to PDF, or choose another queue.</source>
        <translation>La file %1 ne peut pas imprimer un document de ce type (%2). Rien n’a été imprimé. Convertissez le document en PDF, ou choisissez une autre file.</translation>
    </message>
    <message>
        <source>The print server did not take the job: %1. Your settings are kept; print again when it answers.</source>
        <translation>Le serveur d’impression n’a pas accepté la tâche : %1. Vos réglages sont conservés ; imprimez à nouveau lorsqu’il répondra.</translation>
    </message>
    <message>
        <source>The document can no longer be read (%1). Nothing was printed, and your settings are kept: put the document back and print again.</source>
        <translation>Le document n’est plus lisible (%1). Rien n’a été imprimé, et vos réglages sont conservés : remettez le document en place et imprimez à nouveau.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>Rien n’a été envoyé, car un réglage serait perdu : %1. Choisissez-lui une autre valeur.</translation>
    </message>
    <message>
        <source>The job could not be noted in your state folder, so nothing was sent: a second copy could not be ruled out later. Make room on that disk and print again.</source>
        <translation>La tâche n’a pas pu être notée dans votre dossier d’état, donc rien n’a été envoyé : un second exemplaire ne pourrait pas être exclu ensuite. Libérez de l’espace sur ce disque et imprimez à nouveau.</translation>
    </message>
    <message>
        <source>The job was cancelled; nothing of it prints. Your settings are kept.</source>
        <translation>La tâche a été annulée ; rien n’en sera imprimé. Vos réglages sont conservés.</translation>
    </message>
    <message>
        <source>An earlier attempt was sent whole to the queue %1, and the print server no longer knows it: it may have printed. Look at the printer before you press Print again.</source>
        <translation>Un essai précédent a été envoyé en entier à la file %1, et le serveur d’impression ne le connaît plus : il a peut-être été imprimé. Regardez l’imprimante avant d’appuyer à nouveau sur Imprimer.</translation>
    </message>
    <message>
        <source>The print server took the job and gave it up (%2). Your settings are kept; look at the queue %1, and print again.</source>
        <translation>Le serveur d’impression a pris la tâche puis l’a abandonnée (%2). Vos réglages sont conservés ; vérifiez la file %1, puis imprimez à nouveau.</translation>
    </message>
    <message>
        <source>The earlier attempt had arrived as job %1, so nothing was sent again. Press Print once more for another copy.</source>
        <translation>L’essai précédent était arrivé comme tâche %1, donc rien n’a été renvoyé. Appuyez encore une fois sur Imprimer pour un autre exemplaire.</translation>
    </message>
    <message>
        <source>Job %1 waits, because the queue %2 is paused. It prints when somebody resumes the queue.</source>
        <translation>La tâche %1 attend, car la file %2 est en pause. Elle sera imprimée lorsque quelqu’un relancera la file.</translation>
    </message>
    <message>
        <source>The print server did not keep the setting %1 (%2). Check the first page.</source>
        <translation>Le serveur d’impression n’a pas conservé le réglage %1 (%2). Vérifiez la première page.</translation>
    </message>
    <message>
        <source>The print server changed the setting %1 from %2 to %3. Check the first page.</source>
        <translation>Le serveur d’impression a changé le réglage %1 de %2 en %3. Vérifiez la première page.</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had arrived as job %3. It was not sent again.</source>
        <translation>« %1 », envoyé à %2 avant l’ouverture de ce dialogue, était arrivé comme tâche %3. Il n’a pas été renvoyé.</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had not arrived whole, and nothing of it prints. Print it again if you still need it.</source>
        <translation>« %1 », envoyé à %2 avant l’ouverture de ce dialogue, n’était pas arrivé en entier, et rien n’en sera imprimé. Imprimez-le à nouveau si vous en avez encore besoin.</translation>
    </message>
    <message>
        <source>“%1” was sent whole to %2 before this dialog was opened, and the print server no longer knows it: it may have printed. Look at the printer before you print it again.</source>
        <translation>« %1 » a été envoyé en entier à %2 avant l’ouverture de ce dialogue, et le serveur d’impression ne le connaît plus : il a peut-être été imprimé. Regardez l’imprimante avant de l’imprimer à nouveau.</translation>
    </message>
</context>
<context>
    <name>JobSettings</name>
    <message>
        <source>Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right, then down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down, then right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left, then down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down, then left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right, then up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up, then right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left, then up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up, then left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PathRefusal</name>
    <message>
        <source>it lies outside /Library/Printers</source>
        <translation>il se trouve hors de /Library/Printers</translation>
    </message>
    <message>
        <source>the path goes through “..”</source>
        <translation>le chemin passe par « .. »</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>il n’existe pas</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>c’est un lien</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>il appartient à quelqu’un d’autre</translation>
    </message>
    <message>
        <source>others may write it</source>
        <translation>d’autres peuvent y écrire</translation>
    </message>
    <message>
        <source>it is no ordinary file or folder</source>
        <translation>ce n’est ni un fichier ni un dossier ordinaire</translation>
    </message>
</context>
<context>
    <name>PlugInTexts</name>
    <message>
        <source>The printer&apos;s panels are not installed: there is no %1. Install the maker&apos;s driver.</source>
        <translation>Les panneaux de l’imprimante ne sont pas installés : %1 n’existe pas. Installez le pilote du fabricant.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels were not loaded: %1 (%2). Install the maker&apos;s driver again as an administrator.</source>
        <translation>Les panneaux de l’imprimante n’ont pas été chargés : %1 (%2). Réinstallez le pilote du fabricant en tant qu’administrateur.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels could not be loaded: %1 is damaged (%2). Install the maker&apos;s driver again.</source>
        <translation>Les panneaux de l’imprimante n’ont pas pu être chargés : %1 est endommagé (%2). Réinstallez le pilote du fabricant.</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>il est tronqué</translation>
    </message>
    <message>
        <source>The printer&apos;s panels do not fit this dialog: %1 was made for another version. Install the maker&apos;s current driver.</source>
        <translation>Les panneaux de l’imprimante ne conviennent pas à ce dialogue : %1 a été fait pour une autre version. Installez le pilote actuel du fabricant.</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>Le pilote du fabricant n’offre pas de panneaux pour cette imprimante.</translation>
    </message>
</context>
<context>
    <name>PresetMessages</name>
    <message>
        <source>There is no such preset any more; another print dialog has deleted or renamed it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>There is room for %n preset(s) only. Delete one that is not needed any more.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Another print dialog is changing the presets. Try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The presets could not be written to “%1” because there is no room left. Free some space and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” may not be read or written. Allow it, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The presets in “%1” are of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be used for presets: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file of your presets for this printer was damaged. It is kept as “%1”; what could be read of it is still here. Correct the file and give it back its old name, or delete it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>A name has at most %n character(s).</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Another preset has this name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This printer does not have everything that “%1” sets. These settings were left as the printer has them:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These settings cannot be used together on this printer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” and “%2”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviewWords</name>
    <message>
        <source>Page %1 is damaged and stays empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages %1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>back</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>collated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grayscale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>flipped</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrinterLists</name>
    <message>
        <source>As the printer is set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B5 (JIS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo 10 × 15 cm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DL envelope</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No. 10 envelope</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrinterWords</name>
    <message>
        <source>Not reachable</source>
        <translation>Injoignable</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>En pause : %1</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>N’accepte pas de tâches</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>Hors ligne : %1</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression en cours</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Prête</translation>
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
        <translation>Aucun serveur d’impression ne répond à %1 (%2). Démarrez le serveur ou vérifiez le réseau, puis réessayez.</translation>
    </message>
    <message>
        <source>The print server at %1 does not answer. Wait a moment or have it restarted, then try again.</source>
        <translation>Le serveur d’impression à %1 ne répond pas. Attendez un instant ou faites-le redémarrer, puis réessayez.</translation>
    </message>
    <message>
        <source>The print server at %1 refused to answer: %2. Ask its administrator for access, then try again.</source>
        <translation>Le serveur d’impression à %1 a refusé de répondre : %2. Demandez l’accès à son administrateur, puis réessayez.</translation>
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
        <translation>par défaut</translation>
    </message>
</context>
<context>
    <name>RangeTexts</name>
    <message>
        <source>Type the pages to print, such as 1-3, 5, 8-.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no page number. Write pages as 1-3, 5, 8-.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: no document has so many pages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” runs backwards. Write %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no range. Write a range as 1-3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>“%1”: the document has only %n page(s).</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order of sheets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First page first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages side by side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SummaryTexts</name>
    <message>
        <source>Job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>replaced by a setting of the job</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Unsendable</name>
    <message>
        <source>a setting has no name</source>
        <translation>un réglage n’a pas de nom</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>le nom est trop long</translation>
    </message>
    <message>
        <source>the name contains a character that cannot be sent</source>
        <translation>le nom contient un caractère qui ne peut pas être envoyé</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>la valeur est vide</translation>
    </message>
    <message>
        <source>a value cannot begin with “{”</source>
        <translation>une valeur ne peut pas commencer par « { »</translation>
    </message>
    <message>
        <source>the value contains a character that cannot be sent</source>
        <translation>la valeur contient un caractère qui ne peut pas être envoyé</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>la valeur est trop longue</translation>
    </message>
    <message>
        <source>the printer would read it as “off”</source>
        <translation>l’imprimante l’interpréterait comme « désactivé »</translation>
    </message>
    <message>
        <source>all settings together are too long</source>
        <translation>l’ensemble des réglages est trop long</translation>
    </message>
</context>
<context>
    <name>dialog::GeneralView</name>
    <message>
        <source>Collate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reverse order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How often the document is printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints one whole copy after the other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the last page first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which of these pages are printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the pages lie on the paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The paper in the printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the paper is printed on both sides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two-sided:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::JobDesk</name>
    <message>
        <source>There is nothing to print. Start the dialog with a document.</source>
        <translation>Il n’y a rien à imprimer. Ouvrez le dialogue avec un document.</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Imprimer quand même</translation>
    </message>
    <message>
        <source>Before this prints:</source>
        <translation>Avant l’impression :</translation>
    </message>
    <message>
        <source>The job could not be written to %1: %2. Make room or allow writing there, then print again.</source>
        <translation>La tâche n’a pas pu être écrite dans %1 : %2. Libérez de l’espace ou autorisez l’écriture, puis imprimez à nouveau.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>Rien n’a été envoyé, car un réglage serait perdu : %1. Choisissez-lui une autre valeur.</translation>
    </message>
    <message>
        <source>Sending to %1: %2 %.</source>
        <translation>Envoi à %1 : %2 %.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annuler la tâche</translation>
    </message>
    <message>
        <source>Sent as job %1.</source>
        <translation>Envoyé comme tâche %1.</translation>
    </message>
</context>
<context>
    <name>dialog::LayoutPanel</name>
    <message>
        <source>Flip horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many pages share a side of the paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout order:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In which order they lie there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line around each page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How large the pages are on the paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints every page as in a mirror</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On this system the printer&apos;s own panel mirrors the pages.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::NoticeArea</name>
    <message>
        <source>Dismiss this notice</source>
        <translation>Fermer cet avis</translation>
    </message>
</context>
<context>
    <name>dialog::PanelStack</name>
    <message>
        <source>This printer has no PPD, so there are no panels for it. Print uses the settings that its queue has.</source>
        <translation>Cette imprimante n’a pas de PPD, elle n’a donc pas de panneaux. L’impression utilise les réglages de sa file.</translation>
    </message>
    <message>
        <source>The PPD of this printer names no panels. Print uses the settings that are marked in it.</source>
        <translation>Le PPD de cette imprimante ne nomme aucun panneau. L’impression utilise les réglages qui y sont marqués.</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>Le pilote du fabricant n’offre pas de panneaux pour cette imprimante.</translation>
    </message>
</context>
<context>
    <name>dialog::PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the preview smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the preview larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the whole sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side </source>
        <extracomment>Stands before the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> of %1</source>
        <extracomment>Stands behind the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing would be printed: no page is among those chosen.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PreviewWords</name>
    <message>
        <source>No document. The sheet stays empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document cannot be read. Check that it is still in its place and that you may read it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is damaged. Open it in the program that made it and save it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is protected by a password. Save a copy of it without the password and print that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document has no pages. Choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is too large to be shown. Scale it down to see it here; it can be printed as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no preview for this kind of document. It can be printed all the same.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Choose a group of settings from the pop-up menu, change what you need, and press Print. A choice that the printer cannot combine with another one is refused, and a notice says which one is in the way.</source>
        <translation>Choisissez un groupe de réglages dans le menu local, modifiez ce qu’il faut, et appuyez sur Imprimer. Un choix que l’imprimante ne peut pas combiner avec un autre est refusé, et un avis dit lequel fait obstacle.</translation>
    </message>
</context>
<context>
    <name>dialog::PrintWindow</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Réglages :</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Imprimante :</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Document :</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Envoi…</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Rétablir les réglages par défaut</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Préréglages :</translation>
    </message>
</context>
<context>
    <name>dialog::PrinterPicker</name>
    <message>
        <source>Find a printer</source>
        <translation>Chercher une imprimante</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
</context>
<context>
    <name>dialog::QueueDialog</name>
    <message>
        <source>Connecting to %1…</source>
        <translation>Connexion à %1…</translation>
    </message>
    <message>
        <source>The print server at %1 has no printers. Add one there, then try again.</source>
        <translation>Le serveur d’impression à %1 n’a pas d’imprimantes. Ajoutez-en une, puis réessayez.</translation>
    </message>
    <message>
        <source>There is no printer %1 at the print server. Choose another one.</source>
        <translation>Le serveur d’impression n’a pas d’imprimante %1. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The printer %1 cannot be used, because its PPD is damaged: %2. Have the printer set up again or choose another one.</source>
        <translation>L’imprimante %1 est inutilisable, car son PPD est endommagé : %2. Faites reconfigurer l’imprimante ou choisissez-en une autre.</translation>
    </message>
    <message>
        <source>This printer does not have what you chose for the one before:</source>
        <translation>Cette imprimante n’a pas ce que vous aviez choisi pour la précédente :</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>dialog::RangeField</name>
    <message numerus="yes">
        <source>The document has %n page(s): it is printed up to its end.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the whole document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the pages that are named beside it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only some pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for example 1-3, 5, 8-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages and ranges of pages, with commas between them</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::SignInPrompt</name>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>The print server did not accept this name and password.</source>
        <translation>Le serveur d’impression n’a pas accepté ce nom et ce mot de passe.</translation>
    </message>
    <message>
        <source>The print server %1 wants a name and password before it prints to %2. They are sent for this job and not kept.</source>
        <translation>Le serveur d’impression %1 demande un nom et un mot de passe avant d’imprimer vers %2. Ils sont envoyés pour cette tâche et ne sont pas conservés.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others in the network could read the password.</source>
        <translation>La connexion n’est pas chiffrée : d’autres personnes sur le réseau pourraient lire le mot de passe.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annuler la tâche</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>S’identifier</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPanel</name>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>No setting matches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
