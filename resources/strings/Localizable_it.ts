<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>1) Cancel the Print dialog.</source>
        <translation>1) Annullare la finestra Stampa.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Layout.</source>
        <translation>1) Dal menu a comparsa, scegliere Layout.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Quality &amp; Media.</source>
        <translation>1) Dal menu a comparsa, scegliere Qualità e Tipo di carta.</translation>
    </message>
    <message>
        <source>1) If your application does not have File -&gt; Page Setup, skip to step 7.</source>
        <translation>1) Se l’applicazione non ha File -&gt; Imposta pagina, andare al passo 7.</translation>
    </message>
    <message>
        <source>2) Cancel the Print dialog.</source>
        <translation>2) Annullare la finestra Stampa.</translation>
    </message>
    <message>
        <source>2) From the Pages per Sheet popup menu, choose 1.</source>
        <translation>2) Dal menu a comparsa Pagine per foglio, scegliere 1.</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Color Output pop-up menu, choose Color.</source>
        <translation>2) Aprire Opzioni avanzate -&gt; Dal menu a comparsa Uscita colore, scegliere Color (colore).</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Ink To Use pop-up menu, choose Automatic.</source>
        <translation>2) Aprire Opzioni avanzate -&gt; Dal menu a comparsa Inchiostro da usare, scegliere Automatico.</translation>
    </message>
    <message>
        <source>2) Launch the Korvane Utility</source>
        <translation>2) Avviare l’utility Korvane</translation>
    </message>
    <message>
        <source>3) Click the close button in the upper left corner of this screen.</source>
        <translation>3) Fare clic sul pulsante di chiusura di questa finestra.</translation>
    </message>
    <message>
        <source>3) Select File -&gt; Page Setup.</source>
        <translation>3) Selezionare File -&gt; Imposta pagina.</translation>
    </message>
    <message>
        <source>3) Select the Install/ Change Cartridge... button.</source>
        <translation>3) Fare clic sul pulsante Installa/Cambia cartuccia...</translation>
    </message>
    <message>
        <source>4) From the Paper Size pop-up menu, select the desired paper size.</source>
        <translation>4) Dal menu a comparsa Formato carta, selezionare il formato desiderato.</translation>
    </message>
    <message>
        <source>4) Install a black cartridge.</source>
        <translation>4) Installare una cartuccia nera.</translation>
    </message>
    <message>
        <source>5) Click OK.</source>
        <translation>5) Fare clic su OK.</translation>
    </message>
    <message>
        <source>5) Open the Print dialog, and then reselect your settings.</source>
        <translation>5) Aprire la finestra Stampa e selezionare di nuovo le impostazioni.</translation>
    </message>
    <message>
        <source>6) Click the close button in the upper left corner of this screen.</source>
        <translation>6) Fare clic sul pulsante di chiusura di questa finestra.</translation>
    </message>
    <message>
        <source>6) Open the Print dialog.</source>
        <translation>6) Aprire la finestra Stampa.</translation>
    </message>
    <message>
        <source>7) From the Print dialog, select your desired settings.</source>
        <translation>7) Nella finestra Stampa, selezionare le impostazioni desiderate.</translation>
    </message>
    <message>
        <source>8) Click the close button in the upper left corner of this screen.</source>
        <translation>8) Fare clic sul pulsante di chiusura di questa finestra.</translation>
    </message>
    <message>
        <source>Adjusts how dark text and images are printed.</source>
        <translation>Regola l’intensità di stampa di testo e immagini.</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Opzioni avanzate</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (OFF)</source>
        <translation>Opzioni avanzate: Speculare (NON ATTIVO)</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (ON)</source>
        <translation>Opzioni avanzate: Speculare (ATTIVO)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Bianco e nero</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Only Color</source>
        <translation>Cartucce installate: Solo colore</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Photo</source>
        <translation>Cartucce installate: Foto</translation>
    </message>
    <message>
        <source>Changes how the printer works to correct the problem chosen below.</source>
        <translation>Modifica il funzionamento della stampante per correggere il problema scelto sotto.</translation>
    </message>
    <message>
        <source>Choose an option to resolve the conflict:</source>
        <translation>Scegliere un’opzione per risolvere il conflitto:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Color Output:</source>
        <translation>Uscita colore:</translation>
    </message>
    <message>
        <source>Color Preferences:</source>
        <translation>Preferenze colore:</translation>
    </message>
    <message>
        <source>Conflicting settings</source>
        <translation>Impostazioni incompatibili</translation>
    </message>
    <message>
        <source>Continue without resolving the conflict.</source>
        <translation>Continuare senza risolvere il conflitto.</translation>
    </message>
    <message>
        <source>Document Color: Black Only</source>
        <translation>Colore documento: Solo nero</translation>
    </message>
    <message>
        <source>Document Color: Color</source>
        <translation>Colore documento: Colore</translation>
    </message>
    <message>
        <source>Dry Time</source>
        <translation>Tempo di asciugatura</translation>
    </message>
    <message>
        <source>Dry Time:</source>
        <translation>Tempo di asciugatura:</translation>
    </message>
    <message>
        <source>Halftone:</source>
        <translation>Retino:</translation>
    </message>
    <message>
        <source>How carefully the page is printed: better quality takes longer and uses more ink or toner.</source>
        <translation>La cura con cui si stampa la pagina: una qualità migliore richiede più tempo e più inchiostro o toner.</translation>
    </message>
    <message>
        <source>How colors are matched between the screen and the print.</source>
        <translation>Come i colori della stampa corrispondono a quelli dello schermo.</translation>
    </message>
    <message>
        <source>How dark a gray must be to be printed as black, from 1 to 5.</source>
        <translation>Quanto scuro dev’essere un grigio per essere stampato in nero, da 1 a 5.</translation>
    </message>
    <message>
        <source>How long the printer waits for the ink to dry before it prints the other side of the sheet.</source>
        <translation>Quanto la stampante lascia asciugare l’inchiostro prima di stampare l’altro lato del foglio.</translation>
    </message>
    <message>
        <source>ICC Test Chart</source>
        <translation>Tabella di prova ICC</translation>
    </message>
    <message>
        <source>Improve toner fixing</source>
        <translation>Migliora il fissaggio del toner</translation>
    </message>
    <message>
        <source>Improvement</source>
        <translation>Miglioramento</translation>
    </message>
    <message>
        <source>Improvement Settings</source>
        <translation>Impostazioni di miglioramento</translation>
    </message>
    <message>
        <source>Ink To Use</source>
        <translation>Inchiostro da usare</translation>
    </message>
    <message>
        <source>Ink To Use:</source>
        <translation>Inchiostro da usare:</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Istruzioni</translation>
    </message>
    <message>
        <source>Keeps faint copies of an image from appearing further down the page.</source>
        <translation>Evita che copie sbiadite di un’immagine appaiano più in basso nella pagina.</translation>
    </message>
    <message>
        <source>Layout: Pages per Sheet (&gt;1)</source>
        <translation>Layout: Pagine per foglio (&gt;1)</translation>
    </message>
    <message>
        <source>Makes the edges in pictures crisper. Too much of it looks grainy.</source>
        <translation>Rende più nitidi i bordi delle immagini. Se eccessiva, l’immagine appare sgranata.</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Speculare</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Paper Size: </source>
        <translation>Formato carta: </translation>
    </message>
    <message>
        <source>Paper Source:</source>
        <translation>Alimentazione carta:</translation>
    </message>
    <message>
        <source>Paper Type:</source>
        <translation>Tipo di carta:</translation>
    </message>
    <message>
        <source>Paper Type: </source>
        <translation>Tipo di carta: </translation>
    </message>
    <message>
        <source>Paper Type: Automatic</source>
        <translation>Tipo di carta: Automatico</translation>
    </message>
    <message>
        <source>Paper Type: Envelope</source>
        <translation>Tipo di carta: Busta</translation>
    </message>
    <message>
        <source>Paper Type: Iron-On Transfer</source>
        <translation>Tipo di carta: Trasferibile a caldo</translation>
    </message>
    <message>
        <source>Paper Type: Plain Paper</source>
        <translation>Tipo di carta: Carta comune</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>Densità di stampa</translation>
    </message>
    <message>
        <source>Print Quality:</source>
        <translation>Qualità di stampa:</translation>
    </message>
    <message>
        <source>Print Quality: Draft</source>
        <translation>Qualità di stampa: Bozza</translation>
    </message>
    <message>
        <source>Print Quality: Normal</source>
        <translation>Qualità di stampa: Normale</translation>
    </message>
    <message>
        <source>Prints in color, or in black and shades of gray. Other settings depend on it.</source>
        <translation>Stampa a colori oppure in nero e toni di grigio. Altre impostazioni ne dipendono.</translation>
    </message>
    <message>
        <source>Prints lighter, so that the toner lasts longer.</source>
        <translation>Stampa più chiaro, così il toner dura di più.</translation>
    </message>
    <message>
        <source>Prints the page reversed from left to right, as iron-on transfers need it.</source>
        <translation>Stampa la pagina rovesciata da sinistra a destra, come richiesto dai trasferibili a caldo.</translation>
    </message>
    <message>
        <source>Prints without any color correction, for measuring a test chart.</source>
        <translation>Stampa senza correzione del colore, per misurare una tavola di prova.</translation>
    </message>
    <message>
        <source>Prints without colors.</source>
        <translation>Stampa senza colori.</translation>
    </message>
    <message>
        <source>Quality &amp; Media</source>
        <translation>Qualità e Tipo di carta</translation>
    </message>
    <message>
        <source>Raises or lowers the threshold by one.</source>
        <translation>Aumenta o riduce la soglia di uno.</translation>
    </message>
    <message>
        <source>Reduce Ghosting</source>
        <translation>Riduci le immagini fantasma</translation>
    </message>
    <message>
        <source>Reduce paper curl</source>
        <translation>Riduci l’arricciamento della carta</translation>
    </message>
    <message>
        <source>Reduce wrinkles or creases</source>
        <translation>Riduci grinze o pieghe</translation>
    </message>
    <message>
        <source>Sharpening:</source>
        <translation>Nitidezza:</translation>
    </message>
    <message>
        <source>Show instructions to resolve the conflict settings.</source>
        <translation>Mostrare le istruzioni per risolvere il conflitto.</translation>
    </message>
    <message>
        <source>Shows or hides the less common settings.</source>
        <translation>Mostra o nasconde le impostazioni meno comuni.</translation>
    </message>
    <message>
        <source>The ink cartridges that the page is printed with.</source>
        <translation>Le cartucce d’inchiostro con cui si stampa la pagina.</translation>
    </message>
    <message>
        <source>The kind of paper in the printer. It decides how much ink is laid down and how fast the paper moves.</source>
        <translation>Il tipo di carta nella stampante. Ne dipendono la quantità di inchiostro e la velocità della carta.</translation>
    </message>
    <message>
        <source>The pattern of dots that shades of gray are made of.</source>
        <translation>Il motivo di punti con cui si formano i grigi.</translation>
    </message>
    <message>
        <source>The problem that the printer corrects.</source>
        <translation>Il problema che la stampante corregge.</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>Il cassetto da cui viene presa la carta.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Soglia</translation>
    </message>
    <message>
        <source>Threshold:</source>
        <translation>Soglia:</translation>
    </message>
    <message>
        <source>Toner Save</source>
        <translation>Risparmio toner</translation>
    </message>
    <message>
        <source>is not compatible with</source>
        <translation>non è compatibile con</translation>
    </message>
</context>
</TS>
