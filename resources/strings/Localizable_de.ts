<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>1) Cancel the Print dialog.</source>
        <translation>1) Brechen Sie den Druckdialog ab.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Layout.</source>
        <translation>1) Wählen Sie im Einblendmenü „Layout“.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Quality &amp; Media.</source>
        <translation>1) Wählen Sie im Einblendmenü „Qualität/Medien“.</translation>
    </message>
    <message>
        <source>1) If your application does not have File -&gt; Page Setup, skip to step 7.</source>
        <translation>1) Wenn Ihr Programm den Befehl Datei -&gt; Seite einrichten nicht hat, gehen Sie zu Schritt 7.</translation>
    </message>
    <message>
        <source>2) Cancel the Print dialog.</source>
        <translation>2) Brechen Sie den Druckdialog ab.</translation>
    </message>
    <message>
        <source>2) From the Pages per Sheet popup menu, choose 1.</source>
        <translation>2) Wählen Sie im Einblendmenü „Seiten pro Blatt“ den Wert 1.</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Color Output pop-up menu, choose Color.</source>
        <translation>2) Öffnen Sie „Erweiterte Optionen“ -&gt; Wählen Sie im Einblendmenü „Farbausgabe“ den Eintrag „Color“ (Farbe).</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Ink To Use pop-up menu, choose Automatic.</source>
        <translation>2) Öffnen Sie „Erweiterte Optionen“ -&gt; Wählen Sie im Einblendmenü „Zu verwendende Tinte“ den Eintrag „Automatisch“.</translation>
    </message>
    <message>
        <source>2) Launch the Korvane Utility</source>
        <translation>2) Starten Sie das Korvane-Dienstprogramm für „%@“.</translation>
    </message>
    <message>
        <source>3) Click the close button in the upper left corner of this screen.</source>
        <translation>3) Klicken Sie auf die Schließen-Schaltfläche dieses Fensters.</translation>
    </message>
    <message>
        <source>3) Select File -&gt; Page Setup.</source>
        <translation>3) Wählen Sie Datei -&gt; Seite einrichten.</translation>
    </message>
    <message>
        <source>3) Select the Install/ Change Cartridge... button.</source>
        <translation>3) Klicken Sie auf „Patrone einsetzen/wechseln …“.</translation>
    </message>
    <message>
        <source>4) From the Paper Size pop-up menu, select the desired paper size.</source>
        <translation>4) Wählen Sie im Einblendmenü „Papierformat“ das gewünschte Papierformat.</translation>
    </message>
    <message>
        <source>4) Install a black cartridge.</source>
        <translation>4) Setzen Sie eine schwarze Patrone ein.</translation>
    </message>
    <message>
        <source>5) Click OK.</source>
        <translation>5) Klicken Sie auf „OK“.</translation>
    </message>
    <message>
        <source>5) Open the Print dialog, and then reselect your settings.</source>
        <translation>5) Öffnen Sie den Druckdialog und wählen Sie Ihre Einstellungen erneut.</translation>
    </message>
    <message>
        <source>6) Click the close button in the upper left corner of this screen.</source>
        <translation>6) Klicken Sie auf die Schließen-Schaltfläche dieses Fensters.</translation>
    </message>
    <message>
        <source>6) Open the Print dialog.</source>
        <translation>6) Öffnen Sie den Druckdialog.</translation>
    </message>
    <message>
        <source>7) From the Print dialog, select your desired settings.</source>
        <translation>7) Wählen Sie im Druckdialog die gewünschten Einstellungen.</translation>
    </message>
    <message>
        <source>8) Click the close button in the upper left corner of this screen.</source>
        <translation>8) Klicken Sie auf die Schließen-Schaltfläche dieses Fensters.</translation>
    </message>
    <message>
        <source>Adjusts how dark text and images are printed.</source>
        <translation>Passt an, wie dunkel Text und Bilder gedruckt werden.</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Erweiterte Optionen</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (OFF)</source>
        <translation>Erweiterte Optionen: Spiegelbild (AUS)</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (ON)</source>
        <translation>Erweiterte Optionen: Spiegelbild (EIN)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Only Color</source>
        <translation>Eingesetzte Patrone(n): Nur Farbe</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Photo</source>
        <translation>Eingesetzte Patrone(n): Foto</translation>
    </message>
    <message>
        <source>Changes how the printer works to correct the problem chosen below.</source>
        <translation>Ändert die Arbeitsweise des Druckers, um das unten gewählte Problem zu beheben.</translation>
    </message>
    <message>
        <source>Choose an option to resolve the conflict:</source>
        <translation>Wählen Sie, wie der Konflikt gelöst werden soll:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Color Output:</source>
        <translation>Farbausgabe:</translation>
    </message>
    <message>
        <source>Color Preferences:</source>
        <translation>Farbabstimmung:</translation>
    </message>
    <message>
        <source>Conflicting settings</source>
        <translation>Unvereinbare Einstellungen</translation>
    </message>
    <message>
        <source>Continue without resolving the conflict.</source>
        <translation>Fortfahren, ohne den Konflikt zu lösen.</translation>
    </message>
    <message>
        <source>Document Color: Black Only</source>
        <translation>Dokumentfarbe: Nur Schwarz</translation>
    </message>
    <message>
        <source>Document Color: Color</source>
        <translation>Dokumentfarbe: Farbe</translation>
    </message>
    <message>
        <source>Dry Time</source>
        <translation>Trocknungszeit</translation>
    </message>
    <message>
        <source>Dry Time:</source>
        <translation>Trocknungszeit:</translation>
    </message>
    <message>
        <source>Halftone:</source>
        <translation>Druckraster:</translation>
    </message>
    <message>
        <source>How carefully the page is printed: better quality takes longer and uses more ink or toner.</source>
        <translation>Wie sorgfältig gedruckt wird: Höhere Qualität dauert länger und braucht mehr Tinte oder Toner.</translation>
    </message>
    <message>
        <source>How colors are matched between the screen and the print.</source>
        <translation>Wie die Farben zwischen Bildschirm und Druck abgeglichen werden.</translation>
    </message>
    <message>
        <source>How dark a gray must be to be printed as black, from 1 to 5.</source>
        <translation>Wie dunkel ein Grau sein muss, um schwarz gedruckt zu werden, von 1 bis 5.</translation>
    </message>
    <message>
        <source>How long the printer waits for the ink to dry before it prints the other side of the sheet.</source>
        <translation>Wie lange der Drucker die Tinte trocknen lässt, bevor er die Rückseite bedruckt.</translation>
    </message>
    <message>
        <source>ICC Test Chart</source>
        <translation>ICC-Testtafel</translation>
    </message>
    <message>
        <source>Improve toner fixing</source>
        <translation>Tonerfixierung verbessern</translation>
    </message>
    <message>
        <source>Improvement</source>
        <translation>Verbesserung</translation>
    </message>
    <message>
        <source>Improvement Settings</source>
        <translation>Verbesserungen</translation>
    </message>
    <message>
        <source>Ink To Use</source>
        <translation>Zu verwendende Tinte</translation>
    </message>
    <message>
        <source>Ink To Use:</source>
        <translation>Zu verwendende Tinte:</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>Keeps faint copies of an image from appearing further down the page.</source>
        <translation>Verhindert, dass ein Bild weiter unten auf der Seite schwach noch einmal erscheint.</translation>
    </message>
    <message>
        <source>Layout: Pages per Sheet (&gt;1)</source>
        <translation>Layout: Seiten pro Blatt (&gt;1)</translation>
    </message>
    <message>
        <source>Makes the edges in pictures crisper. Too much of it looks grainy.</source>
        <translation>Macht Kanten in Bildern schärfer. Zu viel davon wirkt körnig.</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegelbild</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Paper Size: </source>
        <translation>Papierformat: </translation>
    </message>
    <message>
        <source>Paper Source:</source>
        <translation>Papierzufuhr:</translation>
    </message>
    <message>
        <source>Paper Type:</source>
        <translation>Papiersorte:</translation>
    </message>
    <message>
        <source>Paper Type: </source>
        <translation>Papiersorte: </translation>
    </message>
    <message>
        <source>Paper Type: Automatic</source>
        <translation>Papiersorte: Automatisch</translation>
    </message>
    <message>
        <source>Paper Type: Envelope</source>
        <translation>Papiersorte: Umschlag</translation>
    </message>
    <message>
        <source>Paper Type: Iron-On Transfer</source>
        <translation>Papiersorte: Transferpapier</translation>
    </message>
    <message>
        <source>Paper Type: Plain Paper</source>
        <translation>Papiersorte: Normalpapier</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>Druckdichte</translation>
    </message>
    <message>
        <source>Print Quality:</source>
        <translation>Druckqualität:</translation>
    </message>
    <message>
        <source>Print Quality: Draft</source>
        <translation>Druckqualität: Entwurf</translation>
    </message>
    <message>
        <source>Print Quality: Normal</source>
        <translation>Druckqualität: Normal</translation>
    </message>
    <message>
        <source>Prints in color, or in black and shades of gray. Other settings depend on it.</source>
        <translation>Druckt farbig oder in Schwarz und Graustufen. Andere Einstellungen hängen davon ab.</translation>
    </message>
    <message>
        <source>Prints lighter, so that the toner lasts longer.</source>
        <translation>Druckt heller, damit der Toner länger reicht.</translation>
    </message>
    <message>
        <source>Prints the page reversed from left to right, as iron-on transfers need it.</source>
        <translation>Druckt die Seite seitenverkehrt, wie es Transferpapier braucht.</translation>
    </message>
    <message>
        <source>Prints without any color correction, for measuring a test chart.</source>
        <translation>Druckt ohne jede Farbkorrektur, zum Ausmessen einer Testtafel.</translation>
    </message>
    <message>
        <source>Prints without colors.</source>
        <translation>Druckt ohne Farben.</translation>
    </message>
    <message>
        <source>Quality &amp; Media</source>
        <translation>Qualität/Medien</translation>
    </message>
    <message>
        <source>Raises or lowers the threshold by one.</source>
        <translation>Erhöht oder senkt den Schwellwert um eins.</translation>
    </message>
    <message>
        <source>Reduce Ghosting</source>
        <translation>Geisterbilder verringern</translation>
    </message>
    <message>
        <source>Reduce paper curl</source>
        <translation>Papierwölbung verringern</translation>
    </message>
    <message>
        <source>Reduce wrinkles or creases</source>
        <translation>Falten und Knicke verringern</translation>
    </message>
    <message>
        <source>Sharpening:</source>
        <translation>Scharfzeichnung:</translation>
    </message>
    <message>
        <source>Show instructions to resolve the conflict settings.</source>
        <translation>Anleitung zum Lösen des Konflikts anzeigen.</translation>
    </message>
    <message>
        <source>Shows or hides the less common settings.</source>
        <translation>Blendet die selteneren Einstellungen ein oder aus.</translation>
    </message>
    <message>
        <source>The ink cartridges that the page is printed with.</source>
        <translation>Die Tintenpatronen, mit denen gedruckt wird.</translation>
    </message>
    <message>
        <source>The kind of paper in the printer. It decides how much ink is laid down and how fast the paper moves.</source>
        <translation>Die Papiersorte im Drucker. Von ihr hängt ab, wie viel Tinte aufgetragen wird und wie schnell das Papier läuft.</translation>
    </message>
    <message>
        <source>The pattern of dots that shades of gray are made of.</source>
        <translation>Das Punktmuster, aus dem Graustufen entstehen.</translation>
    </message>
    <message>
        <source>The problem that the printer corrects.</source>
        <translation>Das Problem, das der Drucker behebt.</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>Das Fach, aus dem das Papier genommen wird.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwellwert</translation>
    </message>
    <message>
        <source>Threshold:</source>
        <translation>Schwellwert:</translation>
    </message>
    <message>
        <source>Toner Save</source>
        <translation>Toner sparen</translation>
    </message>
    <message>
        <source>is not compatible with</source>
        <translation>ist nicht vereinbar mit</translation>
    </message>
</context>
</TS>
