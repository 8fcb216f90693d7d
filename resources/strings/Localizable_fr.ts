<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>1) Cancel the Print dialog.</source>
        <translation>1) Annulez la boîte de dialogue Imprimer.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Layout.</source>
        <translation>1) Dans le menu local, choisissez Disposition.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Quality &amp; Media.</source>
        <translation>1) Dans le menu local, choisissez Qualité et Papiers.</translation>
    </message>
    <message>
        <source>1) If your application does not have File -&gt; Page Setup, skip to step 7.</source>
        <translation>1) Si votre application ne propose pas Fichier -&gt; Mise en page, passez à l’étape 7.</translation>
    </message>
    <message>
        <source>2) Cancel the Print dialog.</source>
        <translation>2) Annulez la boîte de dialogue Imprimer.</translation>
    </message>
    <message>
        <source>2) From the Pages per Sheet popup menu, choose 1.</source>
        <translation>2) Dans le menu local Pages par feuille, choisissez 1.</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Color Output pop-up menu, choose Color.</source>
        <translation>2) Ouvrez Options avancées -&gt; Dans le menu local Sortie couleur, choisissez Color (couleur).</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Ink To Use pop-up menu, choose Automatic.</source>
        <translation>2) Ouvrez Options avancées -&gt; Dans le menu local Encre à utiliser, choisissez Automatique.</translation>
    </message>
    <message>
        <source>2) Launch the Korvane Utility</source>
        <translation>2) Lancez l’utilitaire Korvane</translation>
    </message>
    <message>
        <source>3) Click the close button in the upper left corner of this screen.</source>
        <translation>3) Cliquez sur le bouton de fermeture de cette fenêtre.</translation>
    </message>
    <message>
        <source>3) Select File -&gt; Page Setup.</source>
        <translation>3) Choisissez Fichier -&gt; Mise en page.</translation>
    </message>
    <message>
        <source>3) Select the Install/ Change Cartridge... button.</source>
        <translation>3) Cliquez sur le bouton Installer/Changer une cartouche...</translation>
    </message>
    <message>
        <source>4) From the Paper Size pop-up menu, select the desired paper size.</source>
        <translation>4) Dans le menu local Format de papier, sélectionnez le format souhaité.</translation>
    </message>
    <message>
        <source>4) Install a black cartridge.</source>
        <translation>4) Installez une cartouche noire.</translation>
    </message>
    <message>
        <source>5) Click OK.</source>
        <translation>5) Cliquez sur OK.</translation>
    </message>
    <message>
        <source>5) Open the Print dialog, and then reselect your settings.</source>
        <translation>5) Ouvrez la boîte de dialogue Imprimer, puis sélectionnez à nouveau vos réglages.</translation>
    </message>
    <message>
        <source>6) Click the close button in the upper left corner of this screen.</source>
        <translation>6) Cliquez sur le bouton de fermeture de cette fenêtre.</translation>
    </message>
    <message>
        <source>6) Open the Print dialog.</source>
        <translation>6) Ouvrez la boîte de dialogue Imprimer.</translation>
    </message>
    <message>
        <source>7) From the Print dialog, select your desired settings.</source>
        <translation>7) Dans la boîte de dialogue Imprimer, sélectionnez les réglages souhaités.</translation>
    </message>
    <message>
        <source>8) Click the close button in the upper left corner of this screen.</source>
        <translation>8) Cliquez sur le bouton de fermeture de cette fenêtre.</translation>
    </message>
    <message>
        <source>Adjusts how dark text and images are printed.</source>
        <translation>Ajuste l’intensité d’impression du texte et des images.</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Options avancées</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (OFF)</source>
        <translation>Options avancées : Miroir (DÉSACTIVÉ)</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (ON)</source>
        <translation>Options avancées : Miroir (ACTIVÉ)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Only Color</source>
        <translation>Cartouche(s) installée(s) : Couleur seule</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Photo</source>
        <translation>Cartouche(s) installée(s) : Photo</translation>
    </message>
    <message>
        <source>Changes how the printer works to correct the problem chosen below.</source>
        <translation>Modifie le fonctionnement de l’imprimante pour corriger le problème choisi ci-dessous.</translation>
    </message>
    <message>
        <source>Choose an option to resolve the conflict:</source>
        <translation>Choisissez une option pour résoudre le conflit :</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Color Output:</source>
        <translation>Sortie couleur :</translation>
    </message>
    <message>
        <source>Color Preferences:</source>
        <translation>Préférences de couleur :</translation>
    </message>
    <message>
        <source>Conflicting settings</source>
        <translation>Réglages incompatibles</translation>
    </message>
    <message>
        <source>Continue without resolving the conflict.</source>
        <translation>Continuer sans résoudre le conflit.</translation>
    </message>
    <message>
        <source>Document Color: Black Only</source>
        <translation>Couleur du document : Noir seul</translation>
    </message>
    <message>
        <source>Document Color: Color</source>
        <translation>Couleur du document : Couleur</translation>
    </message>
    <message>
        <source>Dry Time</source>
        <translation>Temps de séchage</translation>
    </message>
    <message>
        <source>Dry Time:</source>
        <translation>Temps de séchage :</translation>
    </message>
    <message>
        <source>Halftone:</source>
        <translation>Trame :</translation>
    </message>
    <message>
        <source>How carefully the page is printed: better quality takes longer and uses more ink or toner.</source>
        <translation>Le soin apporté à l’impression : une meilleure qualité demande plus de temps et plus d’encre ou de toner.</translation>
    </message>
    <message>
        <source>How colors are matched between the screen and the print.</source>
        <translation>La façon dont les couleurs de l’écran et de l’impression sont accordées.</translation>
    </message>
    <message>
        <source>How dark a gray must be to be printed as black, from 1 to 5.</source>
        <translation>À partir de quel gris on imprime en noir, de 1 à 5.</translation>
    </message>
    <message>
        <source>How long the printer waits for the ink to dry before it prints the other side of the sheet.</source>
        <translation>Le temps de séchage de l’encre avant que l’imprimante n’imprime l’autre face de la feuille.</translation>
    </message>
    <message>
        <source>ICC Test Chart</source>
        <translation>Mire ICC</translation>
    </message>
    <message>
        <source>Improve toner fixing</source>
        <translation>Améliorer la fixation du toner</translation>
    </message>
    <message>
        <source>Improvement</source>
        <translation>Amélioration</translation>
    </message>
    <message>
        <source>Improvement Settings</source>
        <translation>Réglages d’amélioration</translation>
    </message>
    <message>
        <source>Ink To Use</source>
        <translation>Encre à utiliser</translation>
    </message>
    <message>
        <source>Ink To Use:</source>
        <translation>Encre à utiliser :</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>Keeps faint copies of an image from appearing further down the page.</source>
        <translation>Évite que des copies pâles d’une image apparaissent plus bas sur la page.</translation>
    </message>
    <message>
        <source>Layout: Pages per Sheet (&gt;1)</source>
        <translation>Disposition : Pages par feuille (&gt;1)</translation>
    </message>
    <message>
        <source>Makes the edges in pictures crisper. Too much of it looks grainy.</source>
        <translation>Rend les contours des images plus nets. À l’excès, l’image paraît granuleuse.</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Miroir</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>Paper Size: </source>
        <translation>Format de papier : </translation>
    </message>
    <message>
        <source>Paper Source:</source>
        <translation>Source du papier :</translation>
    </message>
    <message>
        <source>Paper Type:</source>
        <translation>Type de papier :</translation>
    </message>
    <message>
        <source>Paper Type: </source>
        <translation>Type de papier : </translation>
    </message>
    <message>
        <source>Paper Type: Automatic</source>
        <translation>Type de papier : Automatique</translation>
    </message>
    <message>
        <source>Paper Type: Envelope</source>
        <translation>Type de papier : Enveloppe</translation>
    </message>
    <message>
        <source>Paper Type: Iron-On Transfer</source>
        <translation>Type de papier : Transfert thermocollant</translation>
    </message>
    <message>
        <source>Paper Type: Plain Paper</source>
        <translation>Type de papier : Papier ordinaire</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>Densité d’impression</translation>
    </message>
    <message>
        <source>Print Quality:</source>
        <translation>Qualité d’impression :</translation>
    </message>
    <message>
        <source>Print Quality: Draft</source>
        <translation>Qualité d’impression : Brouillon</translation>
    </message>
    <message>
        <source>Print Quality: Normal</source>
        <translation>Qualité d’impression : Normale</translation>
    </message>
    <message>
        <source>Prints in color, or in black and shades of gray. Other settings depend on it.</source>
        <translation>Imprime en couleur, ou en noir et niveaux de gris. D’autres réglages en dépendent.</translation>
    </message>
    <message>
        <source>Prints lighter, so that the toner lasts longer.</source>
        <translation>Imprime plus clair pour que le toner dure plus longtemps.</translation>
    </message>
    <message>
        <source>Prints the page reversed from left to right, as iron-on transfers need it.</source>
        <translation>Imprime la page inversée de gauche à droite, comme l’exigent les transferts thermocollants.</translation>
    </message>
    <message>
        <source>Prints without any color correction, for measuring a test chart.</source>
        <translation>Imprime sans correction des couleurs, pour mesurer une mire.</translation>
    </message>
    <message>
        <source>Prints without colors.</source>
        <translation>Imprime sans couleurs.</translation>
    </message>
    <message>
        <source>Quality &amp; Media</source>
        <translation>Qualité et Papiers</translation>
    </message>
    <message>
        <source>Raises or lowers the threshold by one.</source>
        <translation>Augmente ou diminue le seuil d’un cran.</translation>
    </message>
    <message>
        <source>Reduce Ghosting</source>
        <translation>Réduire les images fantômes</translation>
    </message>
    <message>
        <source>Reduce paper curl</source>
        <translation>Réduire le gondolage du papier</translation>
    </message>
    <message>
        <source>Reduce wrinkles or creases</source>
        <translation>Réduire les plis et les froissements</translation>
    </message>
    <message>
        <source>Sharpening:</source>
        <translation>Netteté :</translation>
    </message>
    <message>
        <source>Show instructions to resolve the conflict settings.</source>
        <translation>Afficher les instructions pour résoudre le conflit.</translation>
    </message>
    <message>
        <source>Shows or hides the less common settings.</source>
        <translation>Affiche ou masque les réglages moins courants.</translation>
    </message>
    <message>
        <source>The ink cartridges that the page is printed with.</source>
        <translation>Les cartouches d’encre utilisées pour imprimer la page.</translation>
    </message>
    <message>
        <source>The kind of paper in the printer. It decides how much ink is laid down and how fast the paper moves.</source>
        <translation>Le papier chargé dans l’imprimante. Il détermine la quantité d’encre déposée et la vitesse d’avance.</translation>
    </message>
    <message>
        <source>The pattern of dots that shades of gray are made of.</source>
        <translation>La trame de points qui compose les niveaux de gris.</translation>
    </message>
    <message>
        <source>The problem that the printer corrects.</source>
        <translation>Le problème que l’imprimante corrige.</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>Le bac d’où le papier est pris.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Threshold:</source>
        <translation>Seuil :</translation>
    </message>
    <message>
        <source>Toner Save</source>
        <translation>Économie de toner</translation>
    </message>
    <message>
        <source>is not compatible with</source>
        <translation>n’est pas compatible avec</translation>
    </message>
</context>
</TS>
