<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>1) Cancel the Print dialog.</source>
        <translation>1) Cancele el cuadro de diálogo Imprimir.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Layout.</source>
        <translation>1) En el menú desplegable, elija Disposición.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Quality &amp; Media.</source>
        <translation>1) En el menú desplegable, elija Calidad y material.</translation>
    </message>
    <message>
        <source>1) If your application does not have File -&gt; Page Setup, skip to step 7.</source>
        <translation>1) Si su aplicación no tiene Archivo -&gt; Configurar página, vaya al paso 7.</translation>
    </message>
    <message>
        <source>2) Cancel the Print dialog.</source>
        <translation>2) Cancele el cuadro de diálogo Imprimir.</translation>
    </message>
    <message>
        <source>2) From the Pages per Sheet popup menu, choose 1.</source>
        <translation>2) En el menú desplegable Páginas por hoja, elija 1.</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Color Output pop-up menu, choose Color.</source>
        <translation>2) Vaya a Opciones avanzadas -&gt; En el menú desplegable Salida de color, elija Color.</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Ink To Use pop-up menu, choose Automatic.</source>
        <translation>2) Vaya a Opciones avanzadas -&gt; En el menú desplegable Tinta que se usará, elija Automático.</translation>
    </message>
    <message>
        <source>2) Launch the Korvane Utility</source>
        <translation>2) Abra la utilidad Korvane</translation>
    </message>
    <message>
        <source>3) Click the close button in the upper left corner of this screen.</source>
        <translation>3) Haga clic en el botón de cierre de esta ventana.</translation>
    </message>
    <message>
        <source>3) Select File -&gt; Page Setup.</source>
        <translation>3) Seleccione Archivo -&gt; Configurar página.</translation>
    </message>
    <message>
        <source>3) Select the Install/ Change Cartridge... button.</source>
        <translation>3) Haga clic en el botón Instalar/Cambiar cartucho...</translation>
    </message>
    <message>
        <source>4) From the Paper Size pop-up menu, select the desired paper size.</source>
        <translation>4) En el menú desplegable Tamaño de papel, seleccione el tamaño que desee.</translation>
    </message>
    <message>
        <source>4) Install a black cartridge.</source>
        <translation>4) Instale un cartucho negro.</translation>
    </message>
    <message>
        <source>5) Click OK.</source>
        <translation>5) Haga clic en Aceptar.</translation>
    </message>
    <message>
        <source>5) Open the Print dialog, and then reselect your settings.</source>
        <translation>5) Abra el cuadro de diálogo Imprimir y vuelva a seleccionar sus ajustes.</translation>
    </message>
    <message>
        <source>6) Click the close button in the upper left corner of this screen.</source>
        <translation>6) Haga clic en el botón de cierre de esta ventana.</translation>
    </message>
    <message>
        <source>6) Open the Print dialog.</source>
        <translation>6) Abra el cuadro de diálogo Imprimir.</translation>
    </message>
    <message>
        <source>7) From the Print dialog, select your desired settings.</source>
        <translation>7) En el cuadro de diálogo Imprimir, seleccione los ajustes que desee.</translation>
    </message>
    <message>
        <source>8) Click the close button in the upper left corner of this screen.</source>
        <translation>8) Haga clic en el botón de cierre de esta ventana.</translation>
    </message>
    <message>
        <source>Adjusts how dark text and images are printed.</source>
        <translation>Ajusta la intensidad con que se imprimen el texto y las imágenes.</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Opciones avanzadas</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (OFF)</source>
        <translation>Opciones avanzadas: Espejo (DESACTIVADO)</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (ON)</source>
        <translation>Opciones avanzadas: Espejo (ACTIVADO)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Only Color</source>
        <translation>Cartucho(s) instalado(s): Solo color</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Photo</source>
        <translation>Cartucho(s) instalado(s): Foto</translation>
    </message>
    <message>
        <source>Changes how the printer works to correct the problem chosen below.</source>
        <translation>Cambia el modo de trabajo de la impresora para corregir el problema elegido abajo.</translation>
    </message>
    <message>
        <source>Choose an option to resolve the conflict:</source>
        <translation>Elija una opción para resolver el conflicto:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Color Output:</source>
        <translation>Salida de color:</translation>
    </message>
    <message>
        <source>Color Preferences:</source>
        <translation>Preferencias de color:</translation>
    </message>
    <message>
        <source>Conflicting settings</source>
        <translation>Ajustes incompatibles</translation>
    </message>
    <message>
        <source>Continue without resolving the conflict.</source>
        <translation>Continuar sin resolver el conflicto.</translation>
    </message>
    <message>
        <source>Document Color: Black Only</source>
        <translation>Color del documento: Solo negro</translation>
    </message>
    <message>
        <source>Document Color: Color</source>
        <translation>Color del documento: Color</translation>
    </message>
    <message>
        <source>Dry Time</source>
        <translation>Tiempo de secado</translation>
    </message>
    <message>
        <source>Dry Time:</source>
        <translation>Tiempo de secado:</translation>
    </message>
    <message>
        <source>Halftone:</source>
        <translation>Trama:</translation>
    </message>
    <message>
        <source>How carefully the page is printed: better quality takes longer and uses more ink or toner.</source>
        <translation>Con qué cuidado se imprime la página: una calidad mayor tarda más y gasta más tinta o tóner.</translation>
    </message>
    <message>
        <source>How colors are matched between the screen and the print.</source>
        <translation>Cómo se ajustan los colores entre la pantalla y la impresión.</translation>
    </message>
    <message>
        <source>How dark a gray must be to be printed as black, from 1 to 5.</source>
        <translation>Lo oscuro que debe ser un gris para imprimirse en negro, de 1 a 5.</translation>
    </message>
    <message>
        <source>How long the printer waits for the ink to dry before it prints the other side of the sheet.</source>
        <translation>Cuánto espera la impresora a que se seque la tinta antes de imprimir la otra cara de la hoja.</translation>
    </message>
    <message>
        <source>ICC Test Chart</source>
        <translation>Carta de prueba ICC</translation>
    </message>
    <message>
        <source>Improve toner fixing</source>
        <translation>Mejorar la fijación del tóner</translation>
    </message>
    <message>
        <source>Improvement</source>
        <translation>Mejora</translation>
    </message>
    <message>
        <source>Improvement Settings</source>
        <translation>Ajustes de mejora</translation>
    </message>
    <message>
        <source>Ink To Use</source>
        <translation>Tinta que se usará</translation>
    </message>
    <message>
        <source>Ink To Use:</source>
        <translation>Tinta que se usará:</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instrucciones</translation>
    </message>
    <message>
        <source>Keeps faint copies of an image from appearing further down the page.</source>
        <translation>Evita que aparezcan copias tenues de una imagen más abajo en la página.</translation>
    </message>
    <message>
        <source>Layout: Pages per Sheet (&gt;1)</source>
        <translation>Disposición: Páginas por hoja (&gt;1)</translation>
    </message>
    <message>
        <source>Makes the edges in pictures crisper. Too much of it looks grainy.</source>
        <translation>Hace más nítidos los bordes de las imágenes. En exceso se ve granulado.</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Espejo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otro</translation>
    </message>
    <message>
        <source>Paper Size: </source>
        <translation>Tamaño de papel: </translation>
    </message>
    <message>
        <source>Paper Source:</source>
        <translation>Origen del papel:</translation>
    </message>
    <message>
        <source>Paper Type:</source>
        <translation>Tipo de papel:</translation>
    </message>
    <message>
        <source>Paper Type: </source>
        <translation>Tipo de papel: </translation>
    </message>
    <message>
        <source>Paper Type: Automatic</source>
        <translation>Tipo de papel: Automático</translation>
    </message>
    <message>
        <source>Paper Type: Envelope</source>
        <translation>Tipo de papel: Sobre</translation>
    </message>
    <message>
        <source>Paper Type: Iron-On Transfer</source>
        <translation>Tipo de papel: Transferencia térmica</translation>
    </message>
    <message>
        <source>Paper Type: Plain Paper</source>
        <translation>Tipo de papel: Papel normal</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>Densidad de impresión</translation>
    </message>
    <message>
        <source>Print Quality:</source>
        <translation>Calidad de impresión:</translation>
    </message>
    <message>
        <source>Print Quality: Draft</source>
        <translation>Calidad de impresión: Borrador</translation>
    </message>
    <message>
        <source>Print Quality: Normal</source>
        <translation>Calidad de impresión: Normal</translation>
    </message>
    <message>
        <source>Prints in color, or in black and shades of gray. Other settings depend on it.</source>
        <translation>Imprime en color o en negro y tonos de gris. Otros ajustes dependen de ello.</translation>
    </message>
    <message>
        <source>Prints lighter, so that the toner lasts longer.</source>
        <translation>Imprime más claro para que el tóner dure más.</translation>
    </message>
    <message>
        <source>Prints the page reversed from left to right, as iron-on transfers need it.</source>
        <translation>Imprime la página invertida de izquierda a derecha, como requieren las transferencias térmicas.</translation>
    </message>
    <message>
        <source>Prints without any color correction, for measuring a test chart.</source>
        <translation>Imprime sin corrección de color, para medir una carta de prueba.</translation>
    </message>
    <message>
        <source>Prints without colors.</source>
        <translation>Imprime sin colores.</translation>
    </message>
    <message>
        <source>Quality &amp; Media</source>
        <translation>Calidad y material</translation>
    </message>
    <message>
        <source>Raises or lowers the threshold by one.</source>
        <translation>Sube o baja el umbral en uno.</translation>
    </message>
    <message>
        <source>Reduce Ghosting</source>
        <translation>Reducir imágenes fantasma</translation>
    </message>
    <message>
        <source>Reduce paper curl</source>
        <translation>Reducir la curvatura del papel</translation>
    </message>
    <message>
        <source>Reduce wrinkles or creases</source>
        <translation>Reducir arrugas o pliegues</translation>
    </message>
    <message>
        <source>Sharpening:</source>
        <translation>Nitidez:</translation>
    </message>
    <message>
        <source>Show instructions to resolve the conflict settings.</source>
        <translation>Mostrar instrucciones para resolver el conflicto.</translation>
    </message>
    <message>
        <source>Shows or hides the less common settings.</source>
        <translation>Muestra u oculta los ajustes menos habituales.</translation>
    </message>
    <message>
        <source>The ink cartridges that the page is printed with.</source>
        <translation>Los cartuchos de tinta con los que se imprime la página.</translation>
    </message>
    <message>
        <source>The kind of paper in the printer. It decides how much ink is laid down and how fast the paper moves.</source>
        <translation>La clase de papel que hay en la impresora. De ella dependen la cantidad de tinta y la velocidad del papel.</translation>
    </message>
    <message>
        <source>The pattern of dots that shades of gray are made of.</source>
        <translation>La trama de puntos con la que se forman los grises.</translation>
    </message>
    <message>
        <source>The problem that the printer corrects.</source>
        <translation>El problema que corrige la impresora.</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>La bandeja de la que se toma el papel.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>Threshold:</source>
        <translation>Umbral:</translation>
    </message>
    <message>
        <source>Toner Save</source>
        <translation>Ahorrar tóner</translation>
    </message>
    <message>
        <source>is not compatible with</source>
        <translation>no es compatible con</translation>
    </message>
</context>
</TS>
