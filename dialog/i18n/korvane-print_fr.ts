<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>ChoiceWords</name>
    <message>
        <source>“%1: %2” and “%3: %4” do not go together.</source>
        <translation>«&#xa0;%1&#xa0;: %2&#xa0;» et «&#xa0;%3&#xa0;: %4&#xa0;» ne vont pas ensemble.</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, the job has “%3”.</source>
        <translation>%1&#xa0;: vous avez choisi «&#xa0;%2&#xa0;», la tâche a «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be used together with “%3: %4”.</source>
        <translation>«&#xa0;%1&#xa0;: %2&#xa0;» ne peut pas être utilisé avec «&#xa0;%3&#xa0;: %4&#xa0;».</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be chosen now.</source>
        <translation>«&#xa0;%1&#xa0;: %2&#xa0;» ne peut pas être choisi maintenant.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, but “%3” is set.</source>
        <translation>%1&#xa0;: vous avez choisi «&#xa0;%2&#xa0;», mais «&#xa0;%3&#xa0;» est réglé.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>“%1” cannot be used together with %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être utilisé avec %2.</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>pas avec %1</translation>
    </message>
    <message>
        <source>%1: without “%2”</source>
        <translation>%1&#xa0;: sans «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>%1: “%2” instead of “%3”</source>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» au lieu de «&#xa0;%3&#xa0;»</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>There is no document %1. Nothing was sent; choose another document.</source>
        <translation>Le document %1 n’existe pas. Rien n’a été envoyé&#x202f;; choisissez un autre document.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read. Nothing was sent; choose another document or allow reading it.</source>
        <translation>Le document %1 est illisible. Rien n’a été envoyé&#x202f;; choisissez un autre document ou autorisez sa lecture.</translation>
    </message>
</context>
<context>
    <name>JobMessages</name>
    <message>
        <source>There is no print server to send the job to (%1). Nothing was sent, and your settings are kept: start the print server or correct CUPS_SERVER, and print again.</source>
        <translation>Il n’y a pas de serveur d’impression auquel envoyer la tâche (%1). Rien n’a été envoyé, et vos réglages sont conservés&#xa0;: démarrez le serveur d’impression ou corrigez CUPS_SERVER, puis imprimez à nouveau.</translation>
    </message>
    <message>
        <source>The print server does not answer. Your settings are kept. Print again when it does: what may have arrived by then is found, and not sent a second time.</source>
        <translation>Le serveur d’impression ne répond pas. Vos réglages sont conservés. Imprimez à nouveau lorsqu’il répondra&#xa0;: ce qui sera arrivé entre-temps sera retrouvé et ne sera pas envoyé une seconde fois.</translation>
    </message>
    <message>
        <source>The connection to the print server broke (%1). Your settings are kept. Print again: what may have arrived is found, and not sent a second time.</source>
        <translation>La connexion au serveur d’impression a été interrompue (%1). Vos réglages sont conservés. Imprimez à nouveau&#xa0;: ce qui est arrivé sera retrouvé et ne sera pas envoyé une seconde fois.</translation>
    </message>
    <message>
        <source>The print server does not let you print to the queue %1 without a name and password that it accepts. Nothing was printed, and your settings are kept: print again and sign in, ask its administrator, or choose another queue.</source>
        <translation>Le serveur d’impression ne vous laisse pas imprimer vers la file %1 sans un nom et un mot de passe qu’il accepte. Rien n’a été imprimé, et vos réglages sont conservés&#xa0;: imprimez à nouveau et identifiez-vous, adressez-vous à son administrateur, ou choisissez une autre file.</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs at present. Nothing was sent, and your settings are kept: ask for the queue to be opened, or choose another one.</source>
        <translation>La file %1 n’accepte pas de tâches actuellement. Rien n’a été envoyé, et vos réglages sont conservés&#xa0;: demandez que la file soit ouverte, ou choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The print server no longer has a queue %1. Nothing was sent, and your settings are kept: choose another queue.</source>
        <translation>Le serveur d’impression n’a plus de file %1. Rien n’a été envoyé, et vos réglages sont conservés&#xa0;: choisissez une autre file.</translation>
    </message>
    <message>
        <source>The queue %1 cannot print a document of this kind (%2). Nothing was printed. Convert the document to PDF, or choose another queue.</source>
        <translation>La file %1 ne peut pas imprimer un document de ce type (%2). Rien n’a été imprimé. Convertissez le document en PDF, ou choisissez une autre file.</translation>
    </message>
    <message>
        <source>The print server did not take the job: %1. Your settings are kept; print again when it answers.</source>
        <translation>Le serveur d’impression n’a pas accepté la tâche&#xa0;: %1. Vos réglages sont conservés&#x202f;; imprimez à nouveau lorsqu’il répondra.</translation>
    </message>
    <message>
        <source>The document can no longer be read (%1). Nothing was printed, and your settings are kept: put the document back and print again.</source>
        <translation>Le document n’est plus lisible (%1). Rien n’a été imprimé, et vos réglages sont conservés&#xa0;: remettez le document en place et imprimez à nouveau.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>Rien n’a été envoyé, car un réglage serait perdu&#xa0;: %1. Choisissez-lui une autre valeur.</translation>
    </message>
    <message>
        <source>The job could not be noted in your state folder, so nothing was sent: a second copy could not be ruled out later. Make room on that disk and print again.</source>
        <translation>La tâche n’a pas pu être notée dans votre dossier d’état, donc rien n’a été envoyé&#xa0;: un second exemplaire ne pourrait pas être exclu ensuite. Libérez de l’espace sur ce disque et imprimez à nouveau.</translation>
    </message>
    <message>
        <source>The job was cancelled; nothing of it prints. Your settings are kept.</source>
        <translation>La tâche a été annulée&#x202f;; rien n’en sera imprimé. Vos réglages sont conservés.</translation>
    </message>
    <message>
        <source>An earlier attempt was sent whole to the queue %1, and the print server no longer knows it: it may have printed. Look at the printer before you press Print again.</source>
        <translation>Un essai précédent a été envoyé en entier à la file %1, et le serveur d’impression ne le connaît plus&#xa0;: il a peut-être été imprimé. Regardez l’imprimante avant d’appuyer à nouveau sur Imprimer.</translation>
    </message>
    <message>
        <source>The print server took the job and gave it up (%2). Your settings are kept; look at the queue %1, and print again.</source>
        <translation>Le serveur d’impression a pris la tâche puis l’a abandonnée (%2). Vos réglages sont conservés&#x202f;; vérifiez la file %1, puis imprimez à nouveau.</translation>
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
        <translation>«&#xa0;%1&#xa0;», envoyé à %2 avant l’ouverture de ce dialogue, était arrivé comme tâche %3. Il n’a pas été renvoyé.</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had not arrived whole, and nothing of it prints. Print it again if you still need it.</source>
        <translation>«&#xa0;%1&#xa0;», envoyé à %2 avant l’ouverture de ce dialogue, n’était pas arrivé en entier, et rien n’en sera imprimé. Imprimez-le à nouveau si vous en avez encore besoin.</translation>
    </message>
    <message>
        <source>“%1” was sent whole to %2 before this dialog was opened, and the print server no longer knows it: it may have printed. Look at the printer before you print it again.</source>
        <translation>«&#xa0;%1&#xa0;» a été envoyé en entier à %2 avant l’ouverture de ce dialogue, et le serveur d’impression ne le connaît plus&#xa0;: il a peut-être été imprimé. Regardez l’imprimante avant de l’imprimer à nouveau.</translation>
    </message>
</context>
<context>
    <name>JobSettings</name>
    <message>
        <source>Both</source>
        <translation>Les deux</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Pages impaires seulement</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Pages paires seulement</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Portrait inversé</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Paysage inversé</translation>
    </message>
    <message>
        <source>Right, then down</source>
        <translation>À droite, puis vers le bas</translation>
    </message>
    <message>
        <source>Down, then right</source>
        <translation>Vers le bas, puis à droite</translation>
    </message>
    <message>
        <source>Left, then down</source>
        <translation>À gauche, puis vers le bas</translation>
    </message>
    <message>
        <source>Down, then left</source>
        <translation>Vers le bas, puis à gauche</translation>
    </message>
    <message>
        <source>Right, then up</source>
        <translation>À droite, puis vers le haut</translation>
    </message>
    <message>
        <source>Up, then right</source>
        <translation>Vers le haut, puis à droite</translation>
    </message>
    <message>
        <source>Left, then up</source>
        <translation>À gauche, puis vers le haut</translation>
    </message>
    <message>
        <source>Up, then left</source>
        <translation>Vers le haut, puis à gauche</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>Aucun cadre</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>Trait fin</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>Trait épais</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>Deux traits fins</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>Deux traits épais</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>Adapter au papier</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>Remplir le papier</translation>
    </message>
</context>
<context>
    <name>MemoryMessages</name>
    <message>
        <source>Your home folder does not answer, so that your last settings could not be read. The printer&apos;s default settings are shown.</source>
        <translation>Votre dossier personnel ne répond pas&#x202f;; vos derniers réglages n’ont donc pas pu être lus. Les réglages par défaut de l’imprimante sont affichés.</translation>
    </message>
    <message>
        <source>The file with the size of this window was damaged. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>Le fichier contenant la taille de cette fenêtre était endommagé. Il est conservé sous «&#xa0;%1&#xa0;». Corrigez le fichier et rendez-lui son ancien nom, ou supprimez-le.</translation>
    </message>
    <message>
        <source>The file with your last settings for this printer was damaged, so that the printer&apos;s default settings are shown. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>Le fichier de vos derniers réglages pour cette imprimante était endommagé&#x202f;; les réglages par défaut de l’imprimante sont donc affichés. Il est conservé sous «&#xa0;%1&#xa0;». Corrigez le fichier et rendez-lui son ancien nom, ou supprimez-le.</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read, because “%1” may not be read or written. Allow it, and open the dialog again.</source>
        <translation>Ce que ce dialogue garde en mémoire n’a pas pu être lu, car «&#xa0;%1&#xa0;» ne peut pas être lu ou écrit. Autorisez-le et rouvrez le dialogue.</translation>
    </message>
    <message>
        <source>What this dialog remembers was not read, because “%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>Ce que ce dialogue garde en mémoire n’a pas été lu, car «&#xa0;%1&#xa0;» est un lien, appartient à quelqu’un d’autre, ou d’autres peuvent y écrire. Remplacez-le par un dossier où vous seul pouvez écrire.</translation>
    </message>
    <message>
        <source>What this dialog remembers in “%1” is of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>Ce que ce dialogue garde en mémoire dans «&#xa0;%1&#xa0;» vient d’une version plus récente de ce programme. Mettez le programme à jour, ou déplacez le fichier pour repartir à neuf.</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read from “%1”: %2.</source>
        <translation>Ce que ce dialogue garde en mémoire n’a pas pu être lu dans «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
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
        <translation>le chemin passe par «&#xa0;..&#xa0;»</translation>
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
        <translation>Les panneaux de l’imprimante ne sont pas installés&#xa0;: %1 n’existe pas. Installez le pilote du fabricant.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels were not loaded: %1 (%2). Install the maker&apos;s driver again as an administrator.</source>
        <translation>Les panneaux de l’imprimante n’ont pas été chargés&#xa0;: %1 (%2). Réinstallez le pilote du fabricant en tant qu’administrateur.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels could not be loaded: %1 is damaged (%2). Install the maker&apos;s driver again.</source>
        <translation>Les panneaux de l’imprimante n’ont pas pu être chargés&#xa0;: %1 est endommagé (%2). Réinstallez le pilote du fabricant.</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>il est tronqué</translation>
    </message>
    <message>
        <source>The printer&apos;s panels do not fit this dialog: %1 was made for another version. Install the maker&apos;s current driver.</source>
        <translation>Les panneaux de l’imprimante ne conviennent pas à ce dialogue&#xa0;: %1 a été fait pour une autre version. Installez le pilote actuel du fabricant.</translation>
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
        <translation>Ce préréglage n’existe plus&#x202f;; un autre dialogue d’impression l’a supprimé ou renommé.</translation>
    </message>
    <message numerus="yes">
        <source>There is room for %n preset(s) only. Delete one that is not needed any more.</source>
        <translation>
            <numerusform>Il n’y a de place que pour %n préréglage. Supprimez-en un qui ne sert plus.</numerusform>
            <numerusform>Il n’y a de place que pour %n préréglages. Supprimez-en un qui ne sert plus.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another print dialog is changing the presets. Try again.</source>
        <translation>Un autre dialogue d’impression modifie les préréglages. Réessayez.</translation>
    </message>
    <message>
        <source>The presets could not be written to “%1” because there is no room left. Free some space and try again.</source>
        <translation>Les préréglages n’ont pas pu être écrits dans «&#xa0;%1&#xa0;», car il n’y a plus de place. Libérez de l’espace et réessayez.</translation>
    </message>
    <message>
        <source>“%1” may not be read or written. Allow it, and try again.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu ou écrit. Autorisez-le et réessayez.</translation>
    </message>
    <message>
        <source>“%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>«&#xa0;%1&#xa0;» est un lien, appartient à quelqu’un d’autre, ou d’autres peuvent y écrire. Remplacez-le par un dossier où vous seul pouvez écrire.</translation>
    </message>
    <message>
        <source>The presets in “%1” are of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>Les préréglages de «&#xa0;%1&#xa0;» viennent d’une version plus récente de ce programme. Mettez le programme à jour, ou déplacez le fichier pour repartir à neuf.</translation>
    </message>
    <message>
        <source>“%1” cannot be used for presets: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas servir aux préréglages&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file of your presets for this printer was damaged. It is kept as “%1”; what could be read of it is still here. Correct the file and give it back its old name, or delete it.</source>
        <translation>Le fichier de vos préréglages pour cette imprimante était endommagé. Il est conservé sous «&#xa0;%1&#xa0;»&#x202f;; ce qui a pu en être lu est toujours là. Corrigez le fichier et rendez-lui son ancien nom, ou supprimez-le.</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>Saisissez un nom.</translation>
    </message>
    <message numerus="yes">
        <source>A name has at most %n character(s).</source>
        <translation>
            <numerusform>Un nom a au plus %n caractère.</numerusform>
            <numerusform>Un nom a au plus %n caractères.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another preset has this name.</source>
        <translation>Un autre préréglage porte ce nom.</translation>
    </message>
    <message>
        <source>This printer does not have everything that “%1” sets. These settings were left as the printer has them:</source>
        <translation>Cette imprimante n’a pas tout ce que règle «&#xa0;%1&#xa0;». Ces réglages sont restés ceux de l’imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>These settings cannot be used together on this printer:</source>
        <translation>Ces réglages ne peuvent pas être utilisés ensemble sur cette imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>“%1” and “%2”</source>
        <translation>«&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;»</translation>
    </message>
</context>
<context>
    <name>PreviewWords</name>
    <message>
        <source>Page %1 is damaged and stays empty.</source>
        <translation>La page %1 est endommagée et reste vide.</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Aucune page</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>Pages %1 and %2</source>
        <translation>Pages %1 et %2</translation>
    </message>
    <message>
        <source>Pages %1 to %2</source>
        <translation>Pages %1 à %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Feuille %1 sur %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Feuille %1 sur %2, recto</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Feuille %1 sur %2, verso</translation>
    </message>
    <message>
        <source>front</source>
        <translation>recto</translation>
    </message>
    <message>
        <source>back</source>
        <translation>verso</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n exemplaire</numerusform>
            <numerusform>%n exemplaires</numerusform>
        </translation>
    </message>
    <message>
        <source>collated</source>
        <translation>assemblées</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>paysage</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>portrait</translation>
    </message>
    <message>
        <source>grayscale</source>
        <translation>niveaux de gris</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>inversée</translation>
    </message>
</context>
<context>
    <name>PrinterLists</name>
    <message>
        <source>As the printer is set</source>
        <translation>Comme réglé sur l’imprimante</translation>
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
        <translation>Tabloïd</translation>
    </message>
    <message>
        <source>Photo 10 × 15 cm</source>
        <translation>Photo 10 × 15 cm</translation>
    </message>
    <message>
        <source>DL envelope</source>
        <translation>Enveloppe DL</translation>
    </message>
    <message>
        <source>No. 10 envelope</source>
        <translation>Enveloppe nº 10</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>Reliure sur le bord long</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>Reliure sur le bord court</translation>
    </message>
</context>
<context>
    <name>PrinterWords</name>
    <message>
        <source>There is no printer %1 at the print server. Choose another one.</source>
        <translation>Le serveur d’impression n’a pas d’imprimante %1. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The printer %1 cannot be used, because its PPD is damaged: %2. Have the printer set up again or choose another one.</source>
        <translation>L’imprimante %1 est inutilisable, car son PPD est endommagé&#xa0;: %2. Faites reconfigurer l’imprimante ou choisissez-en une autre.</translation>
    </message>
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
        <translation>En pause&#xa0;: %1</translation>
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
        <translation>Hors ligne&#xa0;: %1</translation>
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
        <translation>Le serveur d’impression à %1 a refusé de répondre&#xa0;: %2. Demandez l’accès à son administrateur, puis réessayez.</translation>
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
        <translation>Saisissez les pages à imprimer, par exemple 1-3, 5, 8-.</translation>
    </message>
    <message>
        <source>“%1” is no page number. Write pages as 1-3, 5, 8-.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un numéro de page. Écrivez les pages ainsi&#xa0;: 1-3, 5, 8-.</translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: les pages sont comptées à partir de 1.</translation>
    </message>
    <message>
        <source>“%1”: no document has so many pages.</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: aucun document n’a autant de pages.</translation>
    </message>
    <message>
        <source>“%1” runs backwards. Write %2.</source>
        <translation>«&#xa0;%1&#xa0;» est à l’envers. Écrivez %2.</translation>
    </message>
    <message>
        <source>“%1” is no range. Write a range as 1-3.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un intervalle. Écrivez un intervalle ainsi&#xa0;: 1-3.</translation>
    </message>
    <message numerus="yes">
        <source>“%1”: the document has only %n page(s).</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;»&#xa0;: le document n’a que %n page.</numerusform>
            <numerusform>«&#xa0;%1&#xa0;»&#xa0;: le document n’a que %n pages.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Order of sheets</source>
        <translation>Ordre des feuilles</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>Pages paires ou impaires</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pages par feuille</translation>
    </message>
    <message>
        <source>Layout order</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bac de sortie</translation>
    </message>
    <message>
        <source>Flip horizontally</source>
        <translation>Inverser horizontalement</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>Première page d’abord</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Dernière page d’abord</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haute</translation>
    </message>
    <message>
        <source>Pages side by side</source>
        <translation>Pages côte à côte</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>Reliure sur le bord long</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>Reliure sur le bord court</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>Options installées</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Job Control</source>
        <translation>Gestion des tâches</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Autres options</translation>
    </message>
</context>
<context>
    <name>SummaryTexts</name>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>replaced by a setting of the job</source>
        <translation>remplacé par un réglage de la tâche</translation>
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
        <translation>une valeur ne peut pas commencer par «&#xa0;{&#xa0;»</translation>
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
        <translation>l’imprimante l’interpréterait comme «&#xa0;désactivé&#xa0;»</translation>
    </message>
    <message>
        <source>all settings together are too long</source>
        <translation>l’ensemble des réglages est trop long</translation>
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
        <translation>Ce qui est installé dans l’imprimante est réglé par la personne qui l’administre.</translation>
    </message>
    <message>
        <source>No change of a few other settings makes it possible.</source>
        <translation>Changer quelques autres réglages ne suffit pas à le rendre possible.</translation>
    </message>
    <message>
        <source>Keep It This Way</source>
        <translation>Laisser ainsi</translation>
    </message>
</context>
<context>
    <name>dialog::ConflictSheet</name>
    <message>
        <source>Keep What I Had</source>
        <translation>Garder ce que j’avais</translation>
    </message>
    <message>
        <source>Make This Change</source>
        <translation>Faire ce changement</translation>
    </message>
    <message>
        <source>What should change?</source>
        <translation>Que faut-il changer&#x202f;?</translation>
    </message>
</context>
<context>
    <name>dialog::FeaturesPanel</name>
    <message>
        <source>Printer Features</source>
        <translation>Fonctions de l’imprimante</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>Aucune fonction ne correspond.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Chercher une fonction</translation>
    </message>
    <message>
        <source>Whoever administers the printer sets these.</source>
        <translation>La personne qui administre l’imprimante les règle.</translation>
    </message>
    <message>
        <source>Changed from the default “%1”</source>
        <translation>Modifié, «&#xa0;%1&#xa0;» par défaut</translation>
    </message>
</context>
<context>
    <name>dialog::GeneralView</name>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Reverse order</source>
        <translation>Ordre inverse</translation>
    </message>
    <message>
        <source>How often the document is printed</source>
        <translation>Combien de fois le document est imprimé</translation>
    </message>
    <message>
        <source>Prints one whole copy after the other</source>
        <translation>Imprime un exemplaire complet après l’autre</translation>
    </message>
    <message>
        <source>Prints the last page first</source>
        <translation>Imprime la dernière page en premier</translation>
    </message>
    <message>
        <source>Which of these pages are printed</source>
        <translation>Lesquelles de ces pages sont imprimées</translation>
    </message>
    <message>
        <source>How the pages lie on the paper</source>
        <translation>Comment les pages sont placées sur le papier</translation>
    </message>
    <message>
        <source>The paper in the printer</source>
        <translation>Le papier dans l’imprimante</translation>
    </message>
    <message>
        <source>Whether the paper is printed on both sides</source>
        <translation>Si le papier est imprimé des deux côtés</translation>
    </message>
    <message>
        <source>Paper size:</source>
        <translation>Taille du papier&#xa0;:</translation>
    </message>
    <message>
        <source>Two-sided:</source>
        <translation>Recto verso&#xa0;:</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>Copies&#xa0;:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages&#xa0;:</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>Paires/impaires&#xa0;:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientation&#xa0;:</translation>
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
        <translation>Avant l’impression&#xa0;:</translation>
    </message>
    <message>
        <source>The job could not be written to %1: %2. Make room or allow writing there, then print again.</source>
        <translation>La tâche n’a pas pu être écrite dans %1&#xa0;: %2. Libérez de l’espace ou autorisez l’écriture, puis imprimez à nouveau.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>Rien n’a été envoyé, car un réglage serait perdu&#xa0;: %1. Choisissez-lui une autre valeur.</translation>
    </message>
    <message>
        <source>Sending to %1: %2 %.</source>
        <translation>Envoi à %1&#xa0;: %2&#xa0;%.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annuler la tâche</translation>
    </message>
    <message>
        <source>Sent as job %1.</source>
        <translation>Envoyé comme tâche %1.</translation>
    </message>
    <message>
        <source>Writing the job: %1 %.</source>
        <translation>Écriture de la tâche&#xa0;: %1&#xa0;%.</translation>
    </message>
</context>
<context>
    <name>dialog::LayoutPanel</name>
    <message>
        <source>Flip horizontally</source>
        <translation>Inverser horizontalement</translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation>Pages par feuille&#xa0;:</translation>
    </message>
    <message>
        <source>How many pages share a side of the paper</source>
        <translation>Combien de pages se partagent un côté du papier</translation>
    </message>
    <message>
        <source>Layout order:</source>
        <translation>Disposition&#xa0;:</translation>
    </message>
    <message>
        <source>In which order they lie there</source>
        <translation>Dans quel ordre elles y sont placées</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Cadre&#xa0;:</translation>
    </message>
    <message>
        <source>A line around each page</source>
        <translation>Un trait autour de chaque page</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>Échelle&#xa0;:</translation>
    </message>
    <message>
        <source>How large the pages are on the paper</source>
        <translation>La taille des pages sur le papier</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Prints every page as in a mirror</source>
        <translation>Imprime chaque page comme dans un miroir</translation>
    </message>
    <message>
        <source>On this system the printer&apos;s own panel mirrors the pages.</source>
        <translation>Sur ce système, le panneau de l’imprimante inverse les pages.</translation>
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
    <name>dialog::PresetBar</name>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>(changed)</source>
        <translation>(modifié)</translation>
    </message>
    <message>
        <source>The settings are others than those of the preset.</source>
        <translation>Les réglages ne sont plus ceux du préréglage.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>Gérer les préréglages</translation>
    </message>
    <message>
        <source>Save, change and compare presets</source>
        <translation>Enregistrer, modifier et comparer les préréglages</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renommer…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Compare with Settings</source>
        <translation>Comparer aux réglages</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nom du préréglage</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Differences from the preset</source>
        <translation>Différences avec le préréglage</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>In the Preset</source>
        <translation>Dans le préréglage</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>Mes préréglages</translation>
    </message>
    <message>
        <source>Presets of the Printer</source>
        <translation>Préréglages de l’imprimante</translation>
    </message>
    <message>
        <source>Default Settings</source>
        <translation>Réglages par défaut</translation>
    </message>
    <message>
        <source>Last Used Settings</source>
        <translation>Derniers réglages utilisés</translation>
    </message>
</context>
<context>
    <name>dialog::PresetDesk</name>
    <message>
        <source>Last Used Settings</source>
        <translation>Derniers réglages utilisés</translation>
    </message>
    <message>
        <source>Preset “%1”</source>
        <translation>Préréglage «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The preset “%1” has the present settings now.</source>
        <translation>Le préréglage «&#xa0;%1&#xa0;» a maintenant les réglages actuels.</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>Le préréglage «&#xa0;%1&#xa0;» a été supprimé.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Rétablir les réglages par défaut</translation>
    </message>
    <message>
        <source>Your home folder does not answer. As soon as it does, your presets appear in the menu, and what you have changed in them is written.</source>
        <translation>Votre dossier personnel ne répond pas. Dès qu’il répondra, vos préréglages apparaîtront dans le menu et ce que vous y avez modifié sera enregistré.</translation>
    </message>
</context>
<context>
    <name>dialog::PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Previous sheet</source>
        <translation>Feuille précédente</translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation>Feuille suivante</translation>
    </message>
    <message>
        <source>Sheet shown</source>
        <translation>Feuille affichée</translation>
    </message>
    <message>
        <source>Make the preview smaller</source>
        <translation>Réduire l’aperçu</translation>
    </message>
    <message>
        <source>Make the preview larger</source>
        <translation>Agrandir l’aperçu</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Show the whole sheet</source>
        <translation>Afficher la feuille entière</translation>
    </message>
    <message>
        <source>Side </source>
        <extracomment>Stands before the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation>Face </translation>
    </message>
    <message>
        <source>Sheet </source>
        <translation>Feuille </translation>
    </message>
    <message>
        <source> of %1</source>
        <extracomment>Stands behind the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation> sur %1</translation>
    </message>
    <message>
        <source>Nothing would be printed: no page is among those chosen.</source>
        <translation>Rien ne serait imprimé&#xa0;: aucune page n’est parmi celles choisies.</translation>
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
        <translation>Aucun document. La feuille reste vide.</translation>
    </message>
    <message>
        <source>The document cannot be read. Check that it is still in its place and that you may read it.</source>
        <translation>Le document est illisible. Vérifiez qu’il est toujours à sa place et que vous pouvez le lire.</translation>
    </message>
    <message>
        <source>The document is damaged. Open it in the program that made it and save it again.</source>
        <translation>Le document est endommagé. Ouvrez-le dans le programme qui l’a créé et enregistrez-le à nouveau.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Save a copy of it without the password and print that.</source>
        <translation>Le document est protégé par un mot de passe. Enregistrez-en une copie sans mot de passe et imprimez-la.</translation>
    </message>
    <message>
        <source>The document has no pages. Choose another one.</source>
        <translation>Le document n’a pas de pages. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>The picture is too large to be shown. Scale it down to see it here; it can be printed as it is.</source>
        <translation>L’image est trop grande pour être affichée. Réduisez-la pour la voir ici&#x202f;; elle peut être imprimée telle quelle.</translation>
    </message>
    <message>
        <source>There is no preview for this kind of document. It can be printed all the same.</source>
        <translation>Il n’y a pas d’aperçu pour ce type de document. Il peut être imprimé quand même.</translation>
    </message>
    <message>
        <source>There is no preview of PDF documents: the part of this program that reads them is not installed. Install the program again to see it; the document can be printed as it is.</source>
        <translation>Aucun aperçu des documents PDF : la partie de ce programme qui les lit n’est pas installée. Réinstallez le programme pour le voir ; le document peut être imprimé tel quel.</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Choose a group of settings from the pop-up menu, change what you need, and press Print. Where the printer cannot combine a choice with another one, the window says which one is in the way, and what could change instead.</source>
        <translation>Choisissez un groupe de réglages dans le menu local, modifiez ce qu’il faut, et appuyez sur Imprimer. Quand l’imprimante ne peut pas combiner un choix avec un autre, la fenêtre dit lequel fait obstacle et ce qui pourrait changer à la place.</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Modifié&#xa0;: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
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
        <translation>Réglages&#xa0;:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Document&#xa0;:</translation>
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
        <translation>Préréglages&#xa0;:</translation>
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
        <source>This printer does not have what you chose for the one before:</source>
        <translation>Cette imprimante n’a pas ce que vous aviez choisi pour la précédente&#xa0;:</translation>
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
        <translation>
            <numerusform>Le document a %n page&#xa0;: il est imprimé jusqu’à la fin.</numerusform>
            <numerusform>Le document a %n pages&#xa0;: il est imprimé jusqu’à la fin.</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Only:</source>
        <translation>Seulement&#xa0;:</translation>
    </message>
    <message>
        <source>Prints the whole document</source>
        <translation>Imprime tout le document</translation>
    </message>
    <message>
        <source>Prints the pages that are named beside it</source>
        <translation>Imprime les pages indiquées à côté</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Toutes les pages</translation>
    </message>
    <message>
        <source>Only some pages</source>
        <translation>Certaines pages seulement</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Pages à imprimer</translation>
    </message>
    <message>
        <source>for example 1-3, 5, 8-</source>
        <translation>par exemple 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Pages and ranges of pages, with commas between them</source>
        <translation>Pages et intervalles de pages, séparés par des virgules</translation>
    </message>
    <message>
        <source>“%1”: with %2 pages per sheet the numbers count printed sides, and there are fewer.</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: avec %2 pages par feuille, les numéros comptent les faces imprimées, et il y en a moins.</translation>
    </message>
    <message>
        <source>With %1 pages per sheet the numbers count printed sides: these have the pages %2 of the document.</source>
        <translation>Avec %1 pages par feuille, les numéros comptent les faces imprimées&#xa0;: elles portent les pages %2 du document.</translation>
    </message>
</context>
<context>
    <name>dialog::SaveDesk</name>
    <message>
        <source>Save as PDF…</source>
        <translation>Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>Save Job Ticket…</source>
        <translation>Enregistrer le ticket de tâche…</translation>
    </message>
    <message>
        <source>There is no document. Start the dialog with one.</source>
        <translation>Il n’y a pas de document. Ouvrez le dialogue avec un document.</translation>
    </message>
    <message>
        <source>Saving %1: side %2 of %3.</source>
        <translation>Enregistrement de %1&#xa0;: face %2 sur %3.</translation>
    </message>
    <message>
        <source>Cancel Saving</source>
        <translation>Annuler l’enregistrement</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Enregistré sous %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2. Choose another place, or make room and allow writing there.</source>
        <translation>%1 n’a pas pu être enregistré&#xa0;: %2. Choisissez un autre emplacement, ou libérez de l’espace et autorisez-y l’écriture.</translation>
    </message>
    <message>
        <source>%1 could not be saved. %2</source>
        <translation>%1 n’a pas pu être enregistré. %2</translation>
    </message>
</context>
<context>
    <name>dialog::SignInPrompt</name>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
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
        <translation>La connexion n’est pas chiffrée&#xa0;: d’autres personnes sur le réseau pourraient lire le mot de passe.</translation>
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
        <translation>Aucun réglage ne correspond.</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Chercher un réglage</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copier comme texte</translation>
    </message>
</context>
</TS>
