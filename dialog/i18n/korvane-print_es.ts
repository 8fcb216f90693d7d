<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>ChoiceWords</name>
    <message>
        <source>“%1: %2” and “%3: %4” do not go together.</source>
        <translation>«%1: %2» y «%3: %4» no se pueden combinar.</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, the job has “%3”.</source>
        <translation>%1: eligió «%2», el trabajo tiene «%3».</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be used together with “%3: %4”.</source>
        <translation>«%1: %2» no se puede usar junto con «%3: %4».</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be chosen now.</source>
        <translation>«%1: %2» no se puede elegir ahora.</translation>
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
        <translation>%1: eligió «%2», pero está ajustado «%3».</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>“%1” cannot be used together with %2.</source>
        <translation>«%1» no se puede usar junto con %2.</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>no con %1</translation>
    </message>
    <message>
        <source>%1: without “%2”</source>
        <translation>%1: sin «%2»</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1: «%2»</translation>
    </message>
    <message>
        <source>%1: “%2” instead of “%3”</source>
        <translation>%1: «%2» en lugar de «%3»</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>There is no document %1. Nothing was sent; choose another document.</source>
        <translation>No existe el documento %1. No se ha enviado nada; elija otro documento.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read. Nothing was sent; choose another document or allow reading it.</source>
        <translation>No se puede leer el documento %1. No se ha enviado nada; elija otro documento o permita su lectura.</translation>
    </message>
</context>
<context>
    <name>JobMessages</name>
    <message>
        <source>There is no print server to send the job to (%1). Nothing was sent, and your settings are kept: start the print server or correct CUPS_SERVER, and print again.</source>
        <translation>No hay ningún servidor de impresión al que enviar el trabajo (%1). No se ha enviado nada y sus ajustes se conservan: inicie el servidor de impresión o corrija CUPS_SERVER e imprima de nuevo.</translation>
    </message>
    <message>
        <source>The print server does not answer. Your settings are kept. Print again when it does: what may have arrived by then is found, and not sent a second time.</source>
        <translation>El servidor de impresión no responde. Sus ajustes se conservan. Imprima de nuevo cuando responda: lo que haya llegado para entonces se encontrará y no se enviará dos veces.</translation>
    </message>
    <message>
        <source>The connection to the print server broke (%1). Your settings are kept. Print again: what may have arrived is found, and not sent a second time.</source>
        <translation>Se ha interrumpido la conexión con el servidor de impresión (%1). Sus ajustes se conservan. Imprima de nuevo: lo que haya llegado se encontrará y no se enviará dos veces.</translation>
    </message>
    <message>
        <source>The print server does not let you print to the queue %1 without a name and password that it accepts. Nothing was printed, and your settings are kept: print again and sign in, ask its administrator, or choose another queue.</source>
        <translation>El servidor de impresión no le permite imprimir en la cola %1 sin un nombre y una contraseña que acepte. No se ha impreso nada y sus ajustes se conservan: imprima de nuevo e inicie sesión, consulte a su administrador o elija otra cola.</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs at present. Nothing was sent, and your settings are kept: ask for the queue to be opened, or choose another one.</source>
        <translation>La cola %1 no acepta trabajos en este momento. No se ha enviado nada y sus ajustes se conservan: pida que se abra la cola o elija otra.</translation>
    </message>
    <message>
        <source>The print server no longer has a queue %1. Nothing was sent, and your settings are kept: choose another queue.</source>
        <translation>El servidor de impresión ya no tiene la cola %1. No se ha enviado nada y sus ajustes se conservan: elija otra cola.</translation>
    </message>
    <message>
        <source>The queue %1 cannot print a document of this kind (%2). Nothing was printed. Convert the document to PDF, or choose another queue.</source>
        <translation>La cola %1 no puede imprimir documentos de este tipo (%2). No se ha impreso nada. Convierta el documento a PDF o elija otra cola.</translation>
    </message>
    <message>
        <source>The print server did not take the job: %1. Your settings are kept; print again when it answers.</source>
        <translation>El servidor de impresión no ha aceptado el trabajo: %1. Sus ajustes se conservan; imprima de nuevo cuando responda.</translation>
    </message>
    <message>
        <source>The document can no longer be read (%1). Nothing was printed, and your settings are kept: put the document back and print again.</source>
        <translation>Ya no se puede leer el documento (%1). No se ha impreso nada y sus ajustes se conservan: vuelva a poner el documento en su sitio e imprima de nuevo.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>No se ha enviado nada porque se perdería un ajuste: %1. Elija otro valor.</translation>
    </message>
    <message>
        <source>The job could not be noted in your state folder, so nothing was sent: a second copy could not be ruled out later. Make room on that disk and print again.</source>
        <translation>No se ha podido anotar el trabajo en su carpeta de estado, así que no se ha enviado nada: después no se podría descartar una segunda copia. Libere espacio en ese disco e imprima de nuevo.</translation>
    </message>
    <message>
        <source>The job was cancelled; nothing of it prints. Your settings are kept.</source>
        <translation>Se ha cancelado el trabajo; no se imprimirá nada. Sus ajustes se conservan.</translation>
    </message>
    <message>
        <source>An earlier attempt was sent whole to the queue %1, and the print server no longer knows it: it may have printed. Look at the printer before you press Print again.</source>
        <translation>Un intento anterior se envió completo a la cola %1 y el servidor de impresión ya no lo conoce: puede que se haya impreso. Mire la impresora antes de volver a pulsar Imprimir.</translation>
    </message>
    <message>
        <source>The print server took the job and gave it up (%2). Your settings are kept; look at the queue %1, and print again.</source>
        <translation>El servidor de impresión aceptó el trabajo y lo abandonó (%2). Sus ajustes se conservan; revise la cola %1 e imprima de nuevo.</translation>
    </message>
    <message>
        <source>The earlier attempt had arrived as job %1, so nothing was sent again. Press Print once more for another copy.</source>
        <translation>El intento anterior había llegado como trabajo %1, así que no se ha vuelto a enviar nada. Pulse Imprimir otra vez para obtener otra copia.</translation>
    </message>
    <message>
        <source>Job %1 waits, because the queue %2 is paused. It prints when somebody resumes the queue.</source>
        <translation>El trabajo %1 está a la espera porque la cola %2 está en pausa. Se imprimirá cuando alguien reanude la cola.</translation>
    </message>
    <message>
        <source>The print server did not keep the setting %1 (%2). Check the first page.</source>
        <translation>El servidor de impresión no ha mantenido el ajuste %1 (%2). Compruebe la primera página.</translation>
    </message>
    <message>
        <source>The print server changed the setting %1 from %2 to %3. Check the first page.</source>
        <translation>El servidor de impresión ha cambiado el ajuste %1 de %2 a %3. Compruebe la primera página.</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had arrived as job %3. It was not sent again.</source>
        <translation>«%1», enviado a %2 antes de abrir este diálogo, había llegado como trabajo %3. No se ha vuelto a enviar.</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had not arrived whole, and nothing of it prints. Print it again if you still need it.</source>
        <translation>«%1», enviado a %2 antes de abrir este diálogo, no había llegado completo y no se imprimirá nada. Imprímalo de nuevo si aún lo necesita.</translation>
    </message>
    <message>
        <source>“%1” was sent whole to %2 before this dialog was opened, and the print server no longer knows it: it may have printed. Look at the printer before you print it again.</source>
        <translation>«%1» se envió completo a %2 antes de abrir este diálogo y el servidor de impresión ya no lo conoce: puede que se haya impreso. Mire la impresora antes de imprimirlo de nuevo.</translation>
    </message>
</context>
<context>
    <name>JobSettings</name>
    <message>
        <source>Both</source>
        <translation>Ambas</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Solo páginas impares</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Solo páginas pares</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Vertical invertida</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Horizontal invertida</translation>
    </message>
    <message>
        <source>Right, then down</source>
        <translation>A la derecha, luego abajo</translation>
    </message>
    <message>
        <source>Down, then right</source>
        <translation>Abajo, luego a la derecha</translation>
    </message>
    <message>
        <source>Left, then down</source>
        <translation>A la izquierda, luego abajo</translation>
    </message>
    <message>
        <source>Down, then left</source>
        <translation>Abajo, luego a la izquierda</translation>
    </message>
    <message>
        <source>Right, then up</source>
        <translation>A la derecha, luego arriba</translation>
    </message>
    <message>
        <source>Up, then right</source>
        <translation>Arriba, luego a la derecha</translation>
    </message>
    <message>
        <source>Left, then up</source>
        <translation>A la izquierda, luego arriba</translation>
    </message>
    <message>
        <source>Up, then left</source>
        <translation>Arriba, luego a la izquierda</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>Sin borde</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>Línea fina</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>Línea gruesa</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>Dos líneas finas</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>Dos líneas gruesas</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>Ajustar al papel</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>Llenar el papel</translation>
    </message>
</context>
<context>
    <name>MemoryMessages</name>
    <message>
        <source>Your home folder does not answer, so that your last settings could not be read. The printer&apos;s default settings are shown.</source>
        <translation>Su carpeta personal no responde, por lo que no se pudieron leer sus últimos ajustes. Se muestran los ajustes predeterminados de la impresora.</translation>
    </message>
    <message>
        <source>The file with the size of this window was damaged. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>El archivo con el tamaño de esta ventana estaba dañado. Se conserva como «%1». Corrija el archivo y devuélvale su nombre, o elimínelo.</translation>
    </message>
    <message>
        <source>The file with your last settings for this printer was damaged, so that the printer&apos;s default settings are shown. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>El archivo con sus últimos ajustes para esta impresora estaba dañado, por lo que se muestran los ajustes predeterminados de la impresora. Se conserva como «%1». Corrija el archivo y devuélvale su nombre, o elimínelo.</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read, because “%1” may not be read or written. Allow it, and open the dialog again.</source>
        <translation>No se pudo leer lo que este diálogo recuerda, porque no se permite leer o escribir «%1». Permítalo y abra el diálogo de nuevo.</translation>
    </message>
    <message>
        <source>What this dialog remembers was not read, because “%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>No se leyó lo que este diálogo recuerda, porque «%1» es un enlace, pertenece a otra persona u otros pueden escribir en él. Sustitúyalo por una carpeta en la que solo usted pueda escribir.</translation>
    </message>
    <message>
        <source>What this dialog remembers in “%1” is of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>Lo que este diálogo recuerda en «%1» es de una versión más reciente de este programa. Actualice el programa o mueva el archivo para empezar de cero.</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read from “%1”: %2.</source>
        <translation>Lo que este diálogo recuerda no se pudo leer de «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>PathRefusal</name>
    <message>
        <source>it lies outside /Library/Printers</source>
        <translation>está fuera de /Library/Printers</translation>
    </message>
    <message>
        <source>the path goes through “..”</source>
        <translation>la ruta pasa por «..»</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>es un enlace</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>pertenece a otra persona</translation>
    </message>
    <message>
        <source>others may write it</source>
        <translation>otros pueden modificarlo</translation>
    </message>
    <message>
        <source>it is no ordinary file or folder</source>
        <translation>no es un archivo ni una carpeta normal</translation>
    </message>
</context>
<context>
    <name>PlugInTexts</name>
    <message>
        <source>The printer&apos;s panels are not installed: there is no %1. Install the maker&apos;s driver.</source>
        <translation>Los paneles de la impresora no están instalados: no existe %1. Instale el controlador del fabricante.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels were not loaded: %1 (%2). Install the maker&apos;s driver again as an administrator.</source>
        <translation>No se han cargado los paneles de la impresora: %1 (%2). Vuelva a instalar el controlador del fabricante como administrador.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels could not be loaded: %1 is damaged (%2). Install the maker&apos;s driver again.</source>
        <translation>No se han podido cargar los paneles de la impresora: %1 está dañado (%2). Vuelva a instalar el controlador del fabricante.</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>está cortado</translation>
    </message>
    <message>
        <source>The printer&apos;s panels do not fit this dialog: %1 was made for another version. Install the maker&apos;s current driver.</source>
        <translation>Los paneles de la impresora no son compatibles con este diálogo: %1 se hizo para otra versión. Instale el controlador actual del fabricante.</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>El controlador del fabricante no ofrece paneles para esta impresora.</translation>
    </message>
</context>
<context>
    <name>PresetMessages</name>
    <message>
        <source>There is no such preset any more; another print dialog has deleted or renamed it.</source>
        <translation>Este preajuste ya no existe; otro diálogo de impresión lo ha eliminado o le ha cambiado el nombre.</translation>
    </message>
    <message numerus="yes">
        <source>There is room for %n preset(s) only. Delete one that is not needed any more.</source>
        <translation>
            <numerusform>Solo hay sitio para %n preajuste. Elimine uno que ya no necesite.</numerusform>
            <numerusform>Solo hay sitio para %n preajustes. Elimine uno que ya no necesite.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another print dialog is changing the presets. Try again.</source>
        <translation>Otro diálogo de impresión está cambiando los preajustes. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The presets could not be written to “%1” because there is no room left. Free some space and try again.</source>
        <translation>No se han podido escribir los preajustes en «%1» porque no queda espacio. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>“%1” may not be read or written. Allow it, and try again.</source>
        <translation>No se permite leer o escribir «%1». Permítalo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>“%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>«%1» es un enlace, pertenece a otra persona u otros pueden escribir en él. Sustitúyalo por una carpeta en la que solo usted pueda escribir.</translation>
    </message>
    <message>
        <source>The presets in “%1” are of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>Los preajustes de «%1» son de una versión más reciente de este programa. Actualice el programa o mueva el archivo para empezar de cero.</translation>
    </message>
    <message>
        <source>“%1” cannot be used for presets: %2.</source>
        <translation>«%1» no se puede usar para preajustes: %2.</translation>
    </message>
    <message>
        <source>The file of your presets for this printer was damaged. It is kept as “%1”; what could be read of it is still here. Correct the file and give it back its old name, or delete it.</source>
        <translation>El archivo de sus preajustes para esta impresora estaba dañado. Se conserva como «%1»; lo que se pudo leer sigue aquí. Corrija el archivo y devuélvale su nombre, o elimínelo.</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>Escriba un nombre.</translation>
    </message>
    <message numerus="yes">
        <source>A name has at most %n character(s).</source>
        <translation>
            <numerusform>Un nombre tiene como máximo %n carácter.</numerusform>
            <numerusform>Un nombre tiene como máximo %n caracteres.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another preset has this name.</source>
        <translation>Otro preajuste tiene este nombre.</translation>
    </message>
    <message>
        <source>This printer does not have everything that “%1” sets. These settings were left as the printer has them:</source>
        <translation>Esta impresora no tiene todo lo que ajusta «%1». Estos ajustes se han dejado como los tiene la impresora:</translation>
    </message>
    <message>
        <source>These settings cannot be used together on this printer:</source>
        <translation>Estos ajustes no se pueden usar juntos en esta impresora:</translation>
    </message>
    <message>
        <source>“%1” and “%2”</source>
        <translation>«%1» y «%2»</translation>
    </message>
</context>
<context>
    <name>PreviewWords</name>
    <message>
        <source>Page %1 is damaged and stays empty.</source>
        <translation>La página %1 está dañada y queda vacía.</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Ninguna página</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Página %1</translation>
    </message>
    <message>
        <source>Pages %1 and %2</source>
        <translation>Páginas %1 y %2</translation>
    </message>
    <message>
        <source>Pages %1 to %2</source>
        <translation>Páginas %1 a %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Hoja %1 de %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Hoja %1 de %2, anverso</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Hoja %1 de %2, reverso</translation>
    </message>
    <message>
        <source>front</source>
        <translation>anverso</translation>
    </message>
    <message>
        <source>back</source>
        <translation>reverso</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copia</numerusform>
            <numerusform>%n copias</numerusform>
        </translation>
    </message>
    <message>
        <source>collated</source>
        <translation>intercaladas</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>horizontal</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>vertical</translation>
    </message>
    <message>
        <source>grayscale</source>
        <translation>escala de grises</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>volteada</translation>
    </message>
</context>
<context>
    <name>PrinterLists</name>
    <message>
        <source>As the printer is set</source>
        <translation>Según la impresora</translation>
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
        <translation>Carta EE. UU.</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>Legal EE. UU.</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloide</translation>
    </message>
    <message>
        <source>Photo 10 × 15 cm</source>
        <translation>Foto 10 × 15 cm</translation>
    </message>
    <message>
        <source>DL envelope</source>
        <translation>Sobre DL</translation>
    </message>
    <message>
        <source>No. 10 envelope</source>
        <translation>Sobre n.º 10</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>Girar por el borde largo</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>Girar por el borde corto</translation>
    </message>
</context>
<context>
    <name>PrinterWords</name>
    <message>
        <source>There is no printer %1 at the print server. Choose another one.</source>
        <translation>El servidor de impresión no tiene la impresora %1. Elija otra.</translation>
    </message>
    <message>
        <source>The printer %1 cannot be used, because its PPD is damaged: %2. Have the printer set up again or choose another one.</source>
        <translation>No se puede usar la impresora %1 porque su PPD está dañado: %2. Haga que vuelvan a configurar la impresora o elija otra.</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>En pausa: %1</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>No acepta trabajos</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>Sin conexión: %1</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Lista</translation>
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
        <translation>Ningún servidor de impresión responde en %1 (%2). Inicie el servidor o compruebe la red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The print server at %1 does not answer. Wait a moment or have it restarted, then try again.</source>
        <translation>El servidor de impresión en %1 no responde. Espere un momento o haga que lo reinicien e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The print server at %1 refused to answer: %2. Ask its administrator for access, then try again.</source>
        <translation>El servidor de impresión en %1 se ha negado a responder: %2. Pida acceso a su administrador e inténtelo de nuevo.</translation>
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
        <translation>predeterminada</translation>
    </message>
</context>
<context>
    <name>RangeTexts</name>
    <message>
        <source>Type the pages to print, such as 1-3, 5, 8-.</source>
        <translation>Escriba las páginas que desea imprimir, por ejemplo 1-3, 5, 8-.</translation>
    </message>
    <message>
        <source>“%1” is no page number. Write pages as 1-3, 5, 8-.</source>
        <translation>«%1» no es un número de página. Escriba las páginas así: 1-3, 5, 8-.</translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation>«%1»: las páginas se cuentan desde 1.</translation>
    </message>
    <message>
        <source>“%1”: no document has so many pages.</source>
        <translation>«%1»: ningún documento tiene tantas páginas.</translation>
    </message>
    <message>
        <source>“%1” runs backwards. Write %2.</source>
        <translation>«%1» está al revés. Escriba %2.</translation>
    </message>
    <message>
        <source>“%1” is no range. Write a range as 1-3.</source>
        <translation>«%1» no es un intervalo. Escriba un intervalo así: 1-3.</translation>
    </message>
    <message numerus="yes">
        <source>“%1”: the document has only %n page(s).</source>
        <translation>
            <numerusform>«%1»: el documento solo tiene %n página.</numerusform>
            <numerusform>«%1»: el documento solo tiene %n páginas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Order of sheets</source>
        <translation>Orden de las hojas</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>Páginas pares o impares</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>A dos caras</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por hoja</translation>
    </message>
    <message>
        <source>Layout order</source>
        <translation>Orden de las páginas</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borde</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bandeja de salida</translation>
    </message>
    <message>
        <source>Flip horizontally</source>
        <translation>Voltear horizontalmente</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>Primera página primero</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Última página primero</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Escala de grises</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Pages side by side</source>
        <translation>Páginas contiguas</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>Girar por el borde largo</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>Girar por el borde corto</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>Opciones instaladas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Job Control</source>
        <translation>Control de trabajos</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Más opciones</translation>
    </message>
</context>
<context>
    <name>SummaryTexts</name>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>cambiado</translation>
    </message>
    <message>
        <source>replaced by a setting of the job</source>
        <translation>sustituido por un ajuste del trabajo</translation>
    </message>
</context>
<context>
    <name>Unsendable</name>
    <message>
        <source>a setting has no name</source>
        <translation>un ajuste no tiene nombre</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>el nombre es demasiado largo</translation>
    </message>
    <message>
        <source>the name contains a character that cannot be sent</source>
        <translation>el nombre contiene un carácter que no se puede enviar</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>el valor está vacío</translation>
    </message>
    <message>
        <source>a value cannot begin with “{”</source>
        <translation>un valor no puede empezar por «{»</translation>
    </message>
    <message>
        <source>the value contains a character that cannot be sent</source>
        <translation>el valor contiene un carácter que no se puede enviar</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>el valor es demasiado largo</translation>
    </message>
    <message>
        <source>the printer would read it as “off”</source>
        <translation>la impresora lo interpretaría como «desactivado»</translation>
    </message>
    <message>
        <source>all settings together are too long</source>
        <translation>todos los ajustes juntos son demasiado largos</translation>
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
        <translation>Lo que está instalado en la impresora lo ajusta quien la administra.</translation>
    </message>
    <message>
        <source>No change of a few other settings makes it possible.</source>
        <translation>Cambiar unos pocos ajustes no lo hace posible.</translation>
    </message>
    <message>
        <source>Keep It This Way</source>
        <translation>Dejarlo así</translation>
    </message>
</context>
<context>
    <name>dialog::ConflictSheet</name>
    <message>
        <source>Keep What I Had</source>
        <translation>Conservar lo que tenía</translation>
    </message>
    <message>
        <source>Make This Change</source>
        <translation>Hacer este cambio</translation>
    </message>
    <message>
        <source>What should change?</source>
        <translation>¿Qué debe cambiar?</translation>
    </message>
</context>
<context>
    <name>dialog::FeaturesPanel</name>
    <message>
        <source>Printer Features</source>
        <translation>Funciones de la impresora</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>Ninguna función coincide.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Buscar una función</translation>
    </message>
    <message>
        <source>Whoever administers the printer sets these.</source>
        <translation>Las ajusta quien administra la impresora.</translation>
    </message>
    <message>
        <source>Changed from the default “%1”</source>
        <translation>Cambiado; el valor predeterminado es «%1»</translation>
    </message>
</context>
<context>
    <name>dialog::GeneralView</name>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Reverse order</source>
        <translation>Orden inverso</translation>
    </message>
    <message>
        <source>How often the document is printed</source>
        <translation>Cuántas veces se imprime el documento</translation>
    </message>
    <message>
        <source>Prints one whole copy after the other</source>
        <translation>Imprime una copia completa tras otra</translation>
    </message>
    <message>
        <source>Prints the last page first</source>
        <translation>Imprime primero la última página</translation>
    </message>
    <message>
        <source>Which of these pages are printed</source>
        <translation>Cuáles de estas páginas se imprimen</translation>
    </message>
    <message>
        <source>How the pages lie on the paper</source>
        <translation>Cómo se colocan las páginas en el papel</translation>
    </message>
    <message>
        <source>The paper in the printer</source>
        <translation>El papel de la impresora</translation>
    </message>
    <message>
        <source>Whether the paper is printed on both sides</source>
        <translation>Si el papel se imprime por las dos caras</translation>
    </message>
    <message>
        <source>Paper size:</source>
        <translation>Tamaño del papel:</translation>
    </message>
    <message>
        <source>Two-sided:</source>
        <translation>Dos caras:</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>Copias:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Páginas:</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>Pares/impares:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientación:</translation>
    </message>
</context>
<context>
    <name>dialog::JobDesk</name>
    <message>
        <source>There is nothing to print. Start the dialog with a document.</source>
        <translation>No hay nada que imprimir. Abra el diálogo con un documento.</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Imprimir de todos modos</translation>
    </message>
    <message>
        <source>Before this prints:</source>
        <translation>Antes de imprimir:</translation>
    </message>
    <message>
        <source>The job could not be written to %1: %2. Make room or allow writing there, then print again.</source>
        <translation>No se ha podido escribir el trabajo en %1: %2. Libere espacio o permita la escritura e imprima de nuevo.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>No se ha enviado nada porque se perdería un ajuste: %1. Elija otro valor.</translation>
    </message>
    <message>
        <source>Sending to %1: %2 %.</source>
        <translation>Enviando a %1: %2&#xa0;%.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabajo</translation>
    </message>
    <message>
        <source>Sent as job %1.</source>
        <translation>Enviado como trabajo %1.</translation>
    </message>
    <message>
        <source>Writing the job: %1 %.</source>
        <translation>Escribiendo el trabajo: %1&#xa0;%.</translation>
    </message>
</context>
<context>
    <name>dialog::LayoutPanel</name>
    <message>
        <source>Flip horizontally</source>
        <translation>Voltear horizontalmente</translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation>Páginas por hoja:</translation>
    </message>
    <message>
        <source>How many pages share a side of the paper</source>
        <translation>Cuántas páginas comparten una cara del papel</translation>
    </message>
    <message>
        <source>Layout order:</source>
        <translation>Orden de las páginas:</translation>
    </message>
    <message>
        <source>In which order they lie there</source>
        <translation>En qué orden se colocan</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Borde:</translation>
    </message>
    <message>
        <source>A line around each page</source>
        <translation>Una línea alrededor de cada página</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>Escala:</translation>
    </message>
    <message>
        <source>How large the pages are on the paper</source>
        <translation>Qué tamaño tienen las páginas en el papel</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposición</translation>
    </message>
    <message>
        <source>Prints every page as in a mirror</source>
        <translation>Imprime cada página como en un espejo</translation>
    </message>
    <message>
        <source>On this system the printer&apos;s own panel mirrors the pages.</source>
        <translation>En este sistema, el panel de la impresora voltea las páginas.</translation>
    </message>
</context>
<context>
    <name>dialog::NoticeArea</name>
    <message>
        <source>Dismiss this notice</source>
        <translation>Cerrar este aviso</translation>
    </message>
</context>
<context>
    <name>dialog::PanelStack</name>
    <message>
        <source>This printer has no PPD, so there are no panels for it. Print uses the settings that its queue has.</source>
        <translation>Esta impresora no tiene PPD, por lo que no hay paneles para ella. Se imprime con los ajustes de su cola.</translation>
    </message>
    <message>
        <source>The PPD of this printer names no panels. Print uses the settings that are marked in it.</source>
        <translation>El PPD de esta impresora no indica ningún panel. Se imprime con los ajustes marcados en él.</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>El controlador del fabricante no ofrece paneles para esta impresora.</translation>
    </message>
</context>
<context>
    <name>dialog::PresetBar</name>
    <message>
        <source>Presets</source>
        <translation>Preajustes</translation>
    </message>
    <message>
        <source>(changed)</source>
        <translation>(cambiado)</translation>
    </message>
    <message>
        <source>The settings are others than those of the preset.</source>
        <translation>Los ajustes no son los del preajuste.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestionar</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>Gestionar preajustes</translation>
    </message>
    <message>
        <source>Save, change and compare presets</source>
        <translation>Guardar, cambiar y comparar preajustes</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Cambiar nombre…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Compare with Settings</source>
        <translation>Comparar con los ajustes</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nombre del preajuste</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Differences from the preset</source>
        <translation>Diferencias con el preajuste</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>In the Preset</source>
        <translation>En el preajuste</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>Mis preajustes</translation>
    </message>
    <message>
        <source>Presets of the Printer</source>
        <translation>Preajustes de la impresora</translation>
    </message>
    <message>
        <source>Default Settings</source>
        <translation>Ajustes predeterminados</translation>
    </message>
    <message>
        <source>Last Used Settings</source>
        <translation>Últimos ajustes usados</translation>
    </message>
</context>
<context>
    <name>dialog::PresetDesk</name>
    <message>
        <source>Last Used Settings</source>
        <translation>Últimos ajustes usados</translation>
    </message>
    <message>
        <source>Preset “%1”</source>
        <translation>Preajuste «%1»</translation>
    </message>
    <message>
        <source>The preset “%1” has the present settings now.</source>
        <translation>El preajuste «%1» tiene ahora los ajustes actuales.</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>Se ha eliminado el preajuste «%1».</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restablecer valores</translation>
    </message>
    <message>
        <source>Your home folder does not answer. As soon as it does, your presets appear in the menu, and what you have changed in them is written.</source>
        <translation>Su carpeta personal no responde. En cuanto lo haga, sus preajustes aparecerán en el menú y se guardará lo que haya cambiado en ellos.</translation>
    </message>
</context>
<context>
    <name>dialog::PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Previous sheet</source>
        <translation>Hoja anterior</translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation>Hoja siguiente</translation>
    </message>
    <message>
        <source>Sheet shown</source>
        <translation>Hoja mostrada</translation>
    </message>
    <message>
        <source>Make the preview smaller</source>
        <translation>Reducir la vista previa</translation>
    </message>
    <message>
        <source>Make the preview larger</source>
        <translation>Ampliar la vista previa</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Show the whole sheet</source>
        <translation>Mostrar la hoja entera</translation>
    </message>
    <message>
        <source>Side </source>
        <extracomment>Stands before the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation>Cara </translation>
    </message>
    <message>
        <source>Sheet </source>
        <translation>Hoja </translation>
    </message>
    <message>
        <source> of %1</source>
        <extracomment>Stands behind the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation> de %1</translation>
    </message>
    <message>
        <source>Nothing would be printed: no page is among those chosen.</source>
        <translation>No se imprimiría nada: ninguna página está entre las elegidas.</translation>
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
        <translation>No hay documento. La hoja queda vacía.</translation>
    </message>
    <message>
        <source>The document cannot be read. Check that it is still in its place and that you may read it.</source>
        <translation>No se puede leer el documento. Compruebe que sigue en su sitio y que tiene permiso para leerlo.</translation>
    </message>
    <message>
        <source>The document is damaged. Open it in the program that made it and save it again.</source>
        <translation>El documento está dañado. Ábralo en el programa que lo creó y guárdelo de nuevo.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Save a copy of it without the password and print that.</source>
        <translation>El documento está protegido con contraseña. Guarde una copia sin contraseña e imprímala.</translation>
    </message>
    <message>
        <source>The document has no pages. Choose another one.</source>
        <translation>El documento no tiene páginas. Elija otro.</translation>
    </message>
    <message>
        <source>The picture is too large to be shown. Scale it down to see it here; it can be printed as it is.</source>
        <translation>La imagen es demasiado grande para mostrarla. Redúzcala para verla aquí; se puede imprimir tal como está.</translation>
    </message>
    <message>
        <source>There is no preview for this kind of document. It can be printed all the same.</source>
        <translation>No hay vista previa para este tipo de documento. Se puede imprimir de todos modos.</translation>
    </message>
    <message>
        <source>There is no preview of PDF documents: the part of this program that reads them is not installed. Install the program again to see it; the document can be printed as it is.</source>
        <translation>No hay vista previa de documentos PDF: la parte de este programa que los lee no está instalada. Vuelva a instalar el programa para verla; el documento se puede imprimir tal como está.</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Choose a group of settings from the pop-up menu, change what you need, and press Print. Where the printer cannot combine a choice with another one, the window says which one is in the way, and what could change instead.</source>
        <translation>Elija un grupo de ajustes en el menú desplegable, cambie lo que necesite y pulse Imprimir. Si la impresora no puede combinar una opción con otra, la ventana indica cuál lo impide y qué podría cambiar en su lugar.</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Cambiado: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
</context>
<context>
    <name>dialog::PrintWindow</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Ajustes:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Impresora:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Documento:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restablecer valores</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Preajustes:</translation>
    </message>
</context>
<context>
    <name>dialog::PrinterPicker</name>
    <message>
        <source>Find a printer</source>
        <translation>Buscar una impresora</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
</context>
<context>
    <name>dialog::QueueDialog</name>
    <message>
        <source>Connecting to %1…</source>
        <translation>Conectando con %1…</translation>
    </message>
    <message>
        <source>The print server at %1 has no printers. Add one there, then try again.</source>
        <translation>El servidor de impresión en %1 no tiene impresoras. Añada una e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This printer does not have what you chose for the one before:</source>
        <translation>Esta impresora no tiene lo que eligió para la anterior:</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
</context>
<context>
    <name>dialog::RangeField</name>
    <message numerus="yes">
        <source>The document has %n page(s): it is printed up to its end.</source>
        <translation>
            <numerusform>El documento tiene %n página: se imprime hasta el final.</numerusform>
            <numerusform>El documento tiene %n páginas: se imprime hasta el final.</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Only:</source>
        <translation>Solo:</translation>
    </message>
    <message>
        <source>Prints the whole document</source>
        <translation>Imprime todo el documento</translation>
    </message>
    <message>
        <source>Prints the pages that are named beside it</source>
        <translation>Imprime las páginas indicadas al lado</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Todas las páginas</translation>
    </message>
    <message>
        <source>Only some pages</source>
        <translation>Solo algunas páginas</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Páginas que imprimir</translation>
    </message>
    <message>
        <source>for example 1-3, 5, 8-</source>
        <translation>por ejemplo 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Pages and ranges of pages, with commas between them</source>
        <translation>Páginas e intervalos de páginas, separados por comas</translation>
    </message>
    <message>
        <source>“%1”: with %2 pages per sheet the numbers count printed sides, and there are fewer.</source>
        <translation>«%1»: con %2 páginas por hoja, los números cuentan las caras impresas, y hay menos.</translation>
    </message>
    <message>
        <source>With %1 pages per sheet the numbers count printed sides: these have the pages %2 of the document.</source>
        <translation>Con %1 páginas por hoja, los números cuentan las caras impresas: contienen las páginas %2 del documento.</translation>
    </message>
</context>
<context>
    <name>dialog::SaveDesk</name>
    <message>
        <source>Save as PDF…</source>
        <translation>Guardar como PDF…</translation>
    </message>
    <message>
        <source>Save Job Ticket…</source>
        <translation>Guardar tique del trabajo…</translation>
    </message>
    <message>
        <source>There is no document. Start the dialog with one.</source>
        <translation>No hay ningún documento. Abra el diálogo con uno.</translation>
    </message>
    <message>
        <source>Saving %1: side %2 of %3.</source>
        <translation>Guardando %1: cara %2 de %3.</translation>
    </message>
    <message>
        <source>Cancel Saving</source>
        <translation>Cancelar el guardado</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Guardado como %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2. Choose another place, or make room and allow writing there.</source>
        <translation>No se ha podido guardar %1: %2. Elija otro lugar, o libere espacio y permita la escritura allí.</translation>
    </message>
    <message>
        <source>%1 could not be saved. %2</source>
        <translation>No se ha podido guardar %1. %2</translation>
    </message>
</context>
<context>
    <name>dialog::SignInPrompt</name>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>The print server did not accept this name and password.</source>
        <translation>El servidor de impresión no ha aceptado este nombre y esta contraseña.</translation>
    </message>
    <message>
        <source>The print server %1 wants a name and password before it prints to %2. They are sent for this job and not kept.</source>
        <translation>El servidor de impresión %1 pide un nombre y una contraseña antes de imprimir en %2. Se envían para este trabajo y no se guardan.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others in the network could read the password.</source>
        <translation>La conexión no está cifrada: otras personas de la red podrían leer la contraseña.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabajo</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Iniciar sesión</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPanel</name>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>No setting matches.</source>
        <translation>Ningún ajuste coincide.</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Buscar un ajuste</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copiar como texto</translation>
    </message>
</context>
</TS>
