<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>ChoiceWords</name>
    <message>
        <source>“%1: %2” and “%3: %4” do not go together.</source>
        <translation>“%1: %2” e “%3: %4” não podem ser combinados.</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, the job has “%3”.</source>
        <translation>%1: você escolheu “%2”, o trabalho tem “%3”.</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be used together with “%3: %4”.</source>
        <translation>“%1: %2” não pode ser usado junto com “%3: %4”.</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be chosen now.</source>
        <translation>“%1: %2” não pode ser escolhido agora.</translation>
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
        <translation>%1: você escolheu “%2”, mas está definido “%3”.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>“%1” cannot be used together with %2.</source>
        <translation>“%1” não pode ser usado junto com %2.</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>não com %1</translation>
    </message>
    <message>
        <source>%1: without “%2”</source>
        <translation>%1: sem “%2”</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1: “%2”</translation>
    </message>
    <message>
        <source>%1: “%2” instead of “%3”</source>
        <translation>%1: “%2” em vez de “%3”</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>There is no document %1. Nothing was sent; choose another document.</source>
        <translation>O documento %1 não existe. Nada foi enviado; escolha outro documento.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read. Nothing was sent; choose another document or allow reading it.</source>
        <translation>Não é possível ler o documento %1. Nada foi enviado; escolha outro documento ou permita a leitura.</translation>
    </message>
</context>
<context>
    <name>JobMessages</name>
    <message>
        <source>There is no print server to send the job to (%1). Nothing was sent, and your settings are kept: start the print server or correct CUPS_SERVER, and print again.</source>
        <translation>Não há servidor de impressão para o qual enviar o trabalho (%1). Nada foi enviado e suas definições foram mantidas: inicie o servidor de impressão ou corrija CUPS_SERVER e imprima novamente.</translation>
    </message>
    <message>
        <source>The print server does not answer. Your settings are kept. Print again when it does: what may have arrived by then is found, and not sent a second time.</source>
        <translation>O servidor de impressão não responde. Suas definições foram mantidas. Imprima novamente quando ele responder: o que já tiver chegado será encontrado e não será enviado outra vez.</translation>
    </message>
    <message>
        <source>The connection to the print server broke (%1). Your settings are kept. Print again: what may have arrived is found, and not sent a second time.</source>
        <translation>A conexão com o servidor de impressão foi interrompida (%1). Suas definições foram mantidas. Imprima novamente: o que já tiver chegado será encontrado e não será enviado outra vez.</translation>
    </message>
    <message>
        <source>The print server does not let you print to the queue %1 without a name and password that it accepts. Nothing was printed, and your settings are kept: print again and sign in, ask its administrator, or choose another queue.</source>
        <translation>O servidor de impressão não permite imprimir na fila %1 sem um nome e uma senha que ele aceite. Nada foi impresso e suas definições foram mantidas: imprima novamente e identifique-se, consulte o administrador ou escolha outra fila.</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs at present. Nothing was sent, and your settings are kept: ask for the queue to be opened, or choose another one.</source>
        <translation>A fila %1 não aceita trabalhos no momento. Nada foi enviado e suas definições foram mantidas: peça que a fila seja aberta ou escolha outra.</translation>
    </message>
    <message>
        <source>The print server no longer has a queue %1. Nothing was sent, and your settings are kept: choose another queue.</source>
        <translation>O servidor de impressão não tem mais a fila %1. Nada foi enviado e suas definições foram mantidas: escolha outra fila.</translation>
    </message>
    <message>
        <source>The queue %1 cannot print a document of this kind (%2). Nothing was printed. Convert the document to PDF, or choose another queue.</source>
        <translation>A fila %1 não consegue imprimir um documento deste tipo (%2). Nada foi impresso. Converta o documento em PDF ou escolha outra fila.</translation>
    </message>
    <message>
        <source>The print server did not take the job: %1. Your settings are kept; print again when it answers.</source>
        <translation>O servidor de impressão não aceitou o trabalho: %1. Suas definições foram mantidas; imprima novamente quando ele responder.</translation>
    </message>
    <message>
        <source>The document can no longer be read (%1). Nothing was printed, and your settings are kept: put the document back and print again.</source>
        <translation>Não é mais possível ler o documento (%1). Nada foi impresso e suas definições foram mantidas: coloque o documento de volta e imprima novamente.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>Nada foi enviado porque uma definição seria perdida: %1. Escolha outro valor para ela.</translation>
    </message>
    <message>
        <source>The job could not be noted in your state folder, so nothing was sent: a second copy could not be ruled out later. Make room on that disk and print again.</source>
        <translation>Não foi possível anotar o trabalho na sua pasta de estado, por isso nada foi enviado: uma segunda cópia não poderia ser descartada depois. Libere espaço nesse disco e imprima novamente.</translation>
    </message>
    <message>
        <source>The job was cancelled; nothing of it prints. Your settings are kept.</source>
        <translation>O trabalho foi cancelado; nada dele será impresso. Suas definições foram mantidas.</translation>
    </message>
    <message>
        <source>An earlier attempt was sent whole to the queue %1, and the print server no longer knows it: it may have printed. Look at the printer before you press Print again.</source>
        <translation>Uma tentativa anterior foi enviada por inteiro à fila %1, e o servidor de impressão não a conhece mais: ela pode ter sido impressa. Verifique a impressora antes de pressionar Imprimir novamente.</translation>
    </message>
    <message>
        <source>The print server took the job and gave it up (%2). Your settings are kept; look at the queue %1, and print again.</source>
        <translation>O servidor de impressão aceitou o trabalho e o abandonou (%2). Suas definições foram mantidas; verifique a fila %1 e imprima novamente.</translation>
    </message>
    <message>
        <source>The earlier attempt had arrived as job %1, so nothing was sent again. Press Print once more for another copy.</source>
        <translation>A tentativa anterior havia chegado como trabalho %1, por isso nada foi enviado de novo. Pressione Imprimir mais uma vez para outra cópia.</translation>
    </message>
    <message>
        <source>Job %1 waits, because the queue %2 is paused. It prints when somebody resumes the queue.</source>
        <translation>O trabalho %1 está aguardando porque a fila %2 está em pausa. Ele será impresso quando alguém retomar a fila.</translation>
    </message>
    <message>
        <source>The print server did not keep the setting %1 (%2). Check the first page.</source>
        <translation>O servidor de impressão não manteve a definição %1 (%2). Verifique a primeira página.</translation>
    </message>
    <message>
        <source>The print server changed the setting %1 from %2 to %3. Check the first page.</source>
        <translation>O servidor de impressão alterou a definição %1 de %2 para %3. Verifique a primeira página.</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had arrived as job %3. It was not sent again.</source>
        <translation>“%1”, enviado a %2 antes da abertura desta caixa de diálogo, havia chegado como trabalho %3. Não foi enviado de novo.</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had not arrived whole, and nothing of it prints. Print it again if you still need it.</source>
        <translation>“%1”, enviado a %2 antes da abertura desta caixa de diálogo, não chegou por inteiro e nada dele será impresso. Imprima-o novamente se ainda precisar dele.</translation>
    </message>
    <message>
        <source>“%1” was sent whole to %2 before this dialog was opened, and the print server no longer knows it: it may have printed. Look at the printer before you print it again.</source>
        <translation>“%1” foi enviado por inteiro a %2 antes da abertura desta caixa de diálogo, e o servidor de impressão não o conhece mais: ele pode ter sido impresso. Verifique a impressora antes de imprimi-lo novamente.</translation>
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
        <translation>Somente páginas ímpares</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Somente páginas pares</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Retrato</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paisagem</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Retrato invertido</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Paisagem invertida</translation>
    </message>
    <message>
        <source>Right, then down</source>
        <translation>Para a direita, depois para baixo</translation>
    </message>
    <message>
        <source>Down, then right</source>
        <translation>Para baixo, depois para a direita</translation>
    </message>
    <message>
        <source>Left, then down</source>
        <translation>Para a esquerda, depois para baixo</translation>
    </message>
    <message>
        <source>Down, then left</source>
        <translation>Para baixo, depois para a esquerda</translation>
    </message>
    <message>
        <source>Right, then up</source>
        <translation>Para a direita, depois para cima</translation>
    </message>
    <message>
        <source>Up, then right</source>
        <translation>Para cima, depois para a direita</translation>
    </message>
    <message>
        <source>Left, then up</source>
        <translation>Para a esquerda, depois para cima</translation>
    </message>
    <message>
        <source>Up, then left</source>
        <translation>Para cima, depois para a esquerda</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>Sem borda</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>Linha fina</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>Linha grossa</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>Duas linhas finas</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>Duas linhas grossas</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamanho real</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>Ajustar ao papel</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>Preencher o papel</translation>
    </message>
</context>
<context>
    <name>MemoryMessages</name>
    <message>
        <source>Your home folder does not answer, so that your last settings could not be read. The printer&apos;s default settings are shown.</source>
        <translation>Sua pasta pessoal não responde; por isso, suas últimas definições não puderam ser lidas. São mostradas as definições padrão da impressora.</translation>
    </message>
    <message>
        <source>The file with the size of this window was damaged. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>O arquivo com o tamanho desta janela estava danificado. Ele foi guardado como “%1”. Corrija o arquivo e devolva-lhe o nome antigo, ou exclua-o.</translation>
    </message>
    <message>
        <source>The file with your last settings for this printer was damaged, so that the printer&apos;s default settings are shown. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>O arquivo com suas últimas definições para esta impressora estava danificado; por isso, são mostradas as definições padrão da impressora. Ele foi guardado como “%1”. Corrija o arquivo e devolva-lhe o nome antigo, ou exclua-o.</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read, because “%1” may not be read or written. Allow it, and open the dialog again.</source>
        <translation>O que este diálogo lembra não pôde ser lido, porque a leitura ou gravação de “%1” não é permitida. Permita-a e abra o diálogo novamente.</translation>
    </message>
    <message>
        <source>What this dialog remembers was not read, because “%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>O que este diálogo lembra não foi lido, porque “%1” é um link, pertence a outra pessoa ou outros podem gravar nele. Substitua-o por uma pasta em que somente você possa gravar.</translation>
    </message>
    <message>
        <source>What this dialog remembers in “%1” is of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>O que este diálogo lembra em “%1” é de uma versão mais nova deste programa. Atualize o programa ou mova o arquivo para começar de novo.</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read from “%1”: %2.</source>
        <translation>O que este diálogo lembra não pôde ser lido de “%1”: %2.</translation>
    </message>
</context>
<context>
    <name>PathRefusal</name>
    <message>
        <source>it lies outside /Library/Printers</source>
        <translation>está fora de /Library/Printers</translation>
    </message>
    <message>
        <source>the path goes through “..”</source>
        <translation>o caminho passa por “..”</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>não existe</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>é um link</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>pertence a outra pessoa</translation>
    </message>
    <message>
        <source>others may write it</source>
        <translation>outros podem alterá-lo</translation>
    </message>
    <message>
        <source>it is no ordinary file or folder</source>
        <translation>não é um arquivo nem uma pasta comum</translation>
    </message>
</context>
<context>
    <name>PlugInTexts</name>
    <message>
        <source>The printer&apos;s panels are not installed: there is no %1. Install the maker&apos;s driver.</source>
        <translation>Os painéis da impressora não estão instalados: %1 não existe. Instale o driver do fabricante.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels were not loaded: %1 (%2). Install the maker&apos;s driver again as an administrator.</source>
        <translation>Os painéis da impressora não foram carregados: %1 (%2). Reinstale o driver do fabricante como administrador.</translation>
    </message>
    <message>
        <source>The printer&apos;s panels could not be loaded: %1 is damaged (%2). Install the maker&apos;s driver again.</source>
        <translation>Não foi possível carregar os painéis da impressora: %1 está danificado (%2). Reinstale o driver do fabricante.</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>está cortado</translation>
    </message>
    <message>
        <source>The printer&apos;s panels do not fit this dialog: %1 was made for another version. Install the maker&apos;s current driver.</source>
        <translation>Os painéis da impressora não servem para esta caixa de diálogo: %1 foi feito para outra versão. Instale o driver atual do fabricante.</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>O driver do fabricante não oferece painéis para esta impressora.</translation>
    </message>
</context>
<context>
    <name>PresetMessages</name>
    <message>
        <source>There is no such preset any more; another print dialog has deleted or renamed it.</source>
        <translation>Esta predefinição não existe mais; outra caixa de diálogo de impressão a excluiu ou renomeou.</translation>
    </message>
    <message numerus="yes">
        <source>There is room for %n preset(s) only. Delete one that is not needed any more.</source>
        <translation>
            <numerusform>Há espaço somente para %n predefinição. Exclua uma que não seja mais necessária.</numerusform>
            <numerusform>Há espaço somente para %n predefinições. Exclua uma que não seja mais necessária.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another print dialog is changing the presets. Try again.</source>
        <translation>Outra caixa de diálogo de impressão está alterando as predefinições. Tente novamente.</translation>
    </message>
    <message>
        <source>The presets could not be written to “%1” because there is no room left. Free some space and try again.</source>
        <translation>Não foi possível gravar as predefinições em “%1” porque não há mais espaço. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>“%1” may not be read or written. Allow it, and try again.</source>
        <translation>A leitura ou gravação de “%1” não é permitida. Permita-a e tente novamente.</translation>
    </message>
    <message>
        <source>“%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>“%1” é um link, pertence a outra pessoa ou outros podem gravar nele. Substitua-o por uma pasta em que somente você possa gravar.</translation>
    </message>
    <message>
        <source>The presets in “%1” are of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>As predefinições em “%1” são de uma versão mais nova deste programa. Atualize o programa ou mova o arquivo para começar de novo.</translation>
    </message>
    <message>
        <source>“%1” cannot be used for presets: %2.</source>
        <translation>“%1” não pode ser usado para predefinições: %2.</translation>
    </message>
    <message>
        <source>The file of your presets for this printer was damaged. It is kept as “%1”; what could be read of it is still here. Correct the file and give it back its old name, or delete it.</source>
        <translation>O arquivo das suas predefinições para esta impressora estava danificado. Ele foi guardado como “%1”; o que pôde ser lido ainda está aqui. Corrija o arquivo e devolva-lhe o nome antigo, ou exclua-o.</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>Digite um nome.</translation>
    </message>
    <message numerus="yes">
        <source>A name has at most %n character(s).</source>
        <translation>
            <numerusform>Um nome tem no máximo %n caractere.</numerusform>
            <numerusform>Um nome tem no máximo %n caracteres.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another preset has this name.</source>
        <translation>Outra predefinição tem este nome.</translation>
    </message>
    <message>
        <source>This printer does not have everything that “%1” sets. These settings were left as the printer has them:</source>
        <translation>Esta impressora não tem tudo o que “%1” define. Estas definições ficaram como a impressora as tem:</translation>
    </message>
    <message>
        <source>These settings cannot be used together on this printer:</source>
        <translation>Estas definições não podem ser usadas juntas nesta impressora:</translation>
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
        <translation>A página %1 está danificada e fica vazia.</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Nenhuma página</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Página %1</translation>
    </message>
    <message>
        <source>Pages %1 and %2</source>
        <translation>Páginas %1 e %2</translation>
    </message>
    <message>
        <source>Pages %1 to %2</source>
        <translation>Páginas %1 a %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Folha %1 de %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Folha %1 de %2, frente</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Folha %1 de %2, verso</translation>
    </message>
    <message>
        <source>front</source>
        <translation>frente</translation>
    </message>
    <message>
        <source>back</source>
        <translation>verso</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n cópia</numerusform>
            <numerusform>%n cópias</numerusform>
        </translation>
    </message>
    <message>
        <source>collated</source>
        <translation>agrupadas</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>paisagem</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>retrato</translation>
    </message>
    <message>
        <source>grayscale</source>
        <translation>tons de cinza</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>espelhada</translation>
    </message>
</context>
<context>
    <name>PrinterLists</name>
    <message>
        <source>As the printer is set</source>
        <translation>Conforme a impressora</translation>
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
        <translation>Carta</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>Ofício</translation>
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
        <translation>Envelope DL</translation>
    </message>
    <message>
        <source>No. 10 envelope</source>
        <translation>Envelope nº 10</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>Virar na borda longa</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>Virar na borda curta</translation>
    </message>
</context>
<context>
    <name>PrinterWords</name>
    <message>
        <source>There is no printer %1 at the print server. Choose another one.</source>
        <translation>O servidor de impressão não tem a impressora %1. Escolha outra.</translation>
    </message>
    <message>
        <source>The printer %1 cannot be used, because its PPD is damaged: %2. Have the printer set up again or choose another one.</source>
        <translation>A impressora %1 não pode ser usada porque seu PPD está danificado: %2. Peça que a impressora seja configurada novamente ou escolha outra.</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Inacessível</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Em pausa: %1</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>Não aceita trabalhos</translation>
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
        <translation>Imprimindo</translation>
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
        <translation>Nenhum servidor de impressão responde em %1 (%2). Inicie o servidor ou verifique a rede e tente novamente.</translation>
    </message>
    <message>
        <source>The print server at %1 does not answer. Wait a moment or have it restarted, then try again.</source>
        <translation>O servidor de impressão em %1 não responde. Espere um momento ou peça que seja reiniciado e tente novamente.</translation>
    </message>
    <message>
        <source>The print server at %1 refused to answer: %2. Ask its administrator for access, then try again.</source>
        <translation>O servidor de impressão em %1 recusou-se a responder: %2. Peça acesso ao administrador e tente novamente.</translation>
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
        <translation>padrão</translation>
    </message>
</context>
<context>
    <name>RangeTexts</name>
    <message>
        <source>Type the pages to print, such as 1-3, 5, 8-.</source>
        <translation>Digite as páginas a imprimir, por exemplo 1-3, 5, 8-.</translation>
    </message>
    <message>
        <source>“%1” is no page number. Write pages as 1-3, 5, 8-.</source>
        <translation>“%1” não é um número de página. Escreva as páginas assim: 1-3, 5, 8-.</translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation>“%1”: as páginas são contadas a partir de 1.</translation>
    </message>
    <message>
        <source>“%1”: no document has so many pages.</source>
        <translation>“%1”: nenhum documento tem tantas páginas.</translation>
    </message>
    <message>
        <source>“%1” runs backwards. Write %2.</source>
        <translation>“%1” está ao contrário. Escreva %2.</translation>
    </message>
    <message>
        <source>“%1” is no range. Write a range as 1-3.</source>
        <translation>“%1” não é um intervalo. Escreva um intervalo assim: 1-3.</translation>
    </message>
    <message numerus="yes">
        <source>“%1”: the document has only %n page(s).</source>
        <translation>
            <numerusform>“%1”: o documento tem somente %n página.</numerusform>
            <numerusform>“%1”: o documento tem somente %n páginas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Copies</source>
        <translation>Cópias</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Order of sheets</source>
        <translation>Ordem das folhas</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>Páginas pares ou ímpares</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientação</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Frente e verso</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por folha</translation>
    </message>
    <message>
        <source>Layout order</source>
        <translation>Ordem das páginas</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borda</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bandeja de saída</translation>
    </message>
    <message>
        <source>Flip horizontally</source>
        <translation>Inverter horizontalmente</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>Primeira página primeiro</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Última página primeiro</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Tons de cinza</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Rascunho</translation>
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
        <translation>Páginas lado a lado</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>Virar na borda longa</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>Virar na borda curta</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>Opções instaladas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Job Control</source>
        <translation>Controle de trabalhos</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Mais opções</translation>
    </message>
</context>
<context>
    <name>SummaryTexts</name>
    <message>
        <source>Job</source>
        <translation>Trabalho</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Outras</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>alterado</translation>
    </message>
    <message>
        <source>replaced by a setting of the job</source>
        <translation>substituído por uma definição do trabalho</translation>
    </message>
</context>
<context>
    <name>Unsendable</name>
    <message>
        <source>a setting has no name</source>
        <translation>uma definição não tem nome</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>o nome é longo demais</translation>
    </message>
    <message>
        <source>the name contains a character that cannot be sent</source>
        <translation>o nome contém um caractere que não pode ser enviado</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>o valor está vazio</translation>
    </message>
    <message>
        <source>a value cannot begin with “{”</source>
        <translation>um valor não pode começar com “{”</translation>
    </message>
    <message>
        <source>the value contains a character that cannot be sent</source>
        <translation>o valor contém um caractere que não pode ser enviado</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>o valor é longo demais</translation>
    </message>
    <message>
        <source>the printer would read it as “off”</source>
        <translation>a impressora o interpretaria como “desativado”</translation>
    </message>
    <message>
        <source>all settings together are too long</source>
        <translation>todas as definições juntas são longas demais</translation>
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
        <translation>O que está instalado na impressora é definido por quem a administra.</translation>
    </message>
    <message>
        <source>No change of a few other settings makes it possible.</source>
        <translation>Alterar algumas outras definições não o torna possível.</translation>
    </message>
    <message>
        <source>Keep It This Way</source>
        <translation>Manter assim</translation>
    </message>
</context>
<context>
    <name>dialog::ConflictSheet</name>
    <message>
        <source>Keep What I Had</source>
        <translation>Manter como estava</translation>
    </message>
    <message>
        <source>Make This Change</source>
        <translation>Fazer esta alteração</translation>
    </message>
    <message>
        <source>What should change?</source>
        <translation>O que deve mudar?</translation>
    </message>
</context>
<context>
    <name>dialog::FeaturesPanel</name>
    <message>
        <source>Printer Features</source>
        <translation>Recursos da impressora</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>Nenhum recurso corresponde.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Procurar um recurso</translation>
    </message>
    <message>
        <source>Whoever administers the printer sets these.</source>
        <translation>São definidas por quem administra a impressora.</translation>
    </message>
    <message>
        <source>Changed from the default “%1”</source>
        <translation>Alterado em relação ao padrão “%1”</translation>
    </message>
</context>
<context>
    <name>dialog::GeneralView</name>
    <message>
        <source>Collate</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Reverse order</source>
        <translation>Ordem inversa</translation>
    </message>
    <message>
        <source>How often the document is printed</source>
        <translation>Quantas vezes o documento é impresso</translation>
    </message>
    <message>
        <source>Prints one whole copy after the other</source>
        <translation>Imprime uma cópia completa após a outra</translation>
    </message>
    <message>
        <source>Prints the last page first</source>
        <translation>Imprime primeiro a última página</translation>
    </message>
    <message>
        <source>Which of these pages are printed</source>
        <translation>Quais destas páginas são impressas</translation>
    </message>
    <message>
        <source>How the pages lie on the paper</source>
        <translation>Como as páginas ficam no papel</translation>
    </message>
    <message>
        <source>The paper in the printer</source>
        <translation>O papel na impressora</translation>
    </message>
    <message>
        <source>Whether the paper is printed on both sides</source>
        <translation>Se o papel é impresso nos dois lados</translation>
    </message>
    <message>
        <source>Paper size:</source>
        <translation>Tamanho do papel:</translation>
    </message>
    <message>
        <source>Two-sided:</source>
        <translation>Frente e verso:</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>Cópias:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Páginas:</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>Pares/ímpares:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientação:</translation>
    </message>
</context>
<context>
    <name>dialog::JobDesk</name>
    <message>
        <source>There is nothing to print. Start the dialog with a document.</source>
        <translation>Não há nada para imprimir. Abra a caixa de diálogo com um documento.</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Imprimir mesmo assim</translation>
    </message>
    <message>
        <source>Before this prints:</source>
        <translation>Antes de imprimir:</translation>
    </message>
    <message>
        <source>The job could not be written to %1: %2. Make room or allow writing there, then print again.</source>
        <translation>Não foi possível gravar o trabalho em %1: %2. Libere espaço ou permita a gravação e imprima novamente.</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>Nada foi enviado porque uma definição seria perdida: %1. Escolha outro valor para ela.</translation>
    </message>
    <message>
        <source>Sending to %1: %2 %.</source>
        <translation>Enviando para %1: %2%.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabalho</translation>
    </message>
    <message>
        <source>Sent as job %1.</source>
        <translation>Enviado como trabalho %1.</translation>
    </message>
    <message>
        <source>Writing the job: %1 %.</source>
        <translation>Gravando o trabalho: %1%.</translation>
    </message>
</context>
<context>
    <name>dialog::LayoutPanel</name>
    <message>
        <source>Flip horizontally</source>
        <translation>Inverter horizontalmente</translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation>Páginas por folha:</translation>
    </message>
    <message>
        <source>How many pages share a side of the paper</source>
        <translation>Quantas páginas dividem um lado do papel</translation>
    </message>
    <message>
        <source>Layout order:</source>
        <translation>Ordem das páginas:</translation>
    </message>
    <message>
        <source>In which order they lie there</source>
        <translation>Em que ordem elas ficam</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Borda:</translation>
    </message>
    <message>
        <source>A line around each page</source>
        <translation>Uma linha em volta de cada página</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>Escala:</translation>
    </message>
    <message>
        <source>How large the pages are on the paper</source>
        <translation>O tamanho das páginas no papel</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposição</translation>
    </message>
    <message>
        <source>Prints every page as in a mirror</source>
        <translation>Imprime cada página como em um espelho</translation>
    </message>
    <message>
        <source>On this system the printer&apos;s own panel mirrors the pages.</source>
        <translation>Neste sistema, o painel da própria impressora inverte as páginas.</translation>
    </message>
</context>
<context>
    <name>dialog::NoticeArea</name>
    <message>
        <source>Dismiss this notice</source>
        <translation>Fechar este aviso</translation>
    </message>
</context>
<context>
    <name>dialog::PanelStack</name>
    <message>
        <source>This printer has no PPD, so there are no panels for it. Print uses the settings that its queue has.</source>
        <translation>Esta impressora não tem PPD, portanto não há painéis para ela. A impressão usa as definições da fila.</translation>
    </message>
    <message>
        <source>The PPD of this printer names no panels. Print uses the settings that are marked in it.</source>
        <translation>O PPD desta impressora não indica painéis. A impressão usa as definições marcadas nele.</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>O driver do fabricante não oferece painéis para esta impressora.</translation>
    </message>
</context>
<context>
    <name>dialog::PresetBar</name>
    <message>
        <source>Presets</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>(changed)</source>
        <translation>(alterada)</translation>
    </message>
    <message>
        <source>The settings are others than those of the preset.</source>
        <translation>As definições são diferentes das da predefinição.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerenciar</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>Gerenciar predefinições</translation>
    </message>
    <message>
        <source>Save, change and compare presets</source>
        <translation>Salvar, alterar e comparar predefinições</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Salvar como…</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renomear…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Compare with Settings</source>
        <translation>Comparar com as definições</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nome da predefinição</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Differences from the preset</source>
        <translation>Diferenças em relação à predefinição</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Definição</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>In the Preset</source>
        <translation>Na predefinição</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>Minhas predefinições</translation>
    </message>
    <message>
        <source>Presets of the Printer</source>
        <translation>Predefinições da impressora</translation>
    </message>
    <message>
        <source>Default Settings</source>
        <translation>Definições padrão</translation>
    </message>
    <message>
        <source>Last Used Settings</source>
        <translation>Últimas definições usadas</translation>
    </message>
</context>
<context>
    <name>dialog::PresetDesk</name>
    <message>
        <source>Last Used Settings</source>
        <translation>Últimas definições usadas</translation>
    </message>
    <message>
        <source>Preset “%1”</source>
        <translation>Predefinição “%1”</translation>
    </message>
    <message>
        <source>The preset “%1” has the present settings now.</source>
        <translation>A predefinição “%1” agora tem as definições atuais.</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>A predefinição “%1” foi excluída.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restaurar padrões</translation>
    </message>
    <message>
        <source>Your home folder does not answer. As soon as it does, your presets appear in the menu, and what you have changed in them is written.</source>
        <translation>Sua pasta pessoal não responde. Assim que ela responder, suas predefinições aparecerão no menu e o que você alterou nelas será salvo.</translation>
    </message>
</context>
<context>
    <name>dialog::PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>Previous sheet</source>
        <translation>Folha anterior</translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation>Próxima folha</translation>
    </message>
    <message>
        <source>Sheet shown</source>
        <translation>Folha mostrada</translation>
    </message>
    <message>
        <source>Make the preview smaller</source>
        <translation>Reduzir a visualização</translation>
    </message>
    <message>
        <source>Make the preview larger</source>
        <translation>Ampliar a visualização</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Show the whole sheet</source>
        <translation>Mostrar a folha inteira</translation>
    </message>
    <message>
        <source>Side </source>
        <extracomment>Stands before the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation>Lado </translation>
    </message>
    <message>
        <source>Sheet </source>
        <translation>Folha </translation>
    </message>
    <message>
        <source> of %1</source>
        <extracomment>Stands behind the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation> de %1</translation>
    </message>
    <message>
        <source>Nothing would be printed: no page is among those chosen.</source>
        <translation>Nada seria impresso: nenhuma página está entre as escolhidas.</translation>
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
        <translation>Nenhum documento. A folha fica vazia.</translation>
    </message>
    <message>
        <source>The document cannot be read. Check that it is still in its place and that you may read it.</source>
        <translation>Não é possível ler o documento. Verifique se ele ainda está no lugar e se você pode lê-lo.</translation>
    </message>
    <message>
        <source>The document is damaged. Open it in the program that made it and save it again.</source>
        <translation>O documento está danificado. Abra-o no programa que o criou e salve-o novamente.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Save a copy of it without the password and print that.</source>
        <translation>O documento é protegido por senha. Salve uma cópia sem a senha e imprima-a.</translation>
    </message>
    <message>
        <source>The document has no pages. Choose another one.</source>
        <translation>O documento não tem páginas. Escolha outro.</translation>
    </message>
    <message>
        <source>The picture is too large to be shown. Scale it down to see it here; it can be printed as it is.</source>
        <translation>A imagem é grande demais para ser mostrada. Reduza-a para vê-la aqui; ela pode ser impressa como está.</translation>
    </message>
    <message>
        <source>There is no preview for this kind of document. It can be printed all the same.</source>
        <translation>Não há visualização para este tipo de documento. Mesmo assim ele pode ser impresso.</translation>
    </message>
    <message>
        <source>There is no preview of PDF documents: the part of this program that reads them is not installed. Install the program again to see it; the document can be printed as it is.</source>
        <translation>Não há pré-visualização de documentos PDF: a parte deste programa que os lê não está instalada. Instale o programa novamente para a ver; o documento pode ser impresso tal como está.</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Choose a group of settings from the pop-up menu, change what you need, and press Print. Where the printer cannot combine a choice with another one, the window says which one is in the way, and what could change instead.</source>
        <translation>Escolha um grupo de definições no menu suspenso, altere o que precisar e pressione Imprimir. Quando a impressora não pode combinar uma escolha com outra, a janela diz qual delas impede e o que poderia mudar em seu lugar.</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Alterado: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
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
        <translation>Definições:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Impressora:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Documento:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restaurar padrões</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Predefinições:</translation>
    </message>
</context>
<context>
    <name>dialog::PrinterPicker</name>
    <message>
        <source>Find a printer</source>
        <translation>Procurar uma impressora</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impressora</translation>
    </message>
</context>
<context>
    <name>dialog::QueueDialog</name>
    <message>
        <source>Connecting to %1…</source>
        <translation>Conectando a %1…</translation>
    </message>
    <message>
        <source>The print server at %1 has no printers. Add one there, then try again.</source>
        <translation>O servidor de impressão em %1 não tem impressoras. Adicione uma e tente novamente.</translation>
    </message>
    <message>
        <source>This printer does not have what you chose for the one before:</source>
        <translation>Esta impressora não tem o que você escolheu para a anterior:</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Tentar novamente</translation>
    </message>
</context>
<context>
    <name>dialog::RangeField</name>
    <message numerus="yes">
        <source>The document has %n page(s): it is printed up to its end.</source>
        <translation>
            <numerusform>O documento tem %n página: é impresso até o fim.</numerusform>
            <numerusform>O documento tem %n páginas: é impresso até o fim.</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Only:</source>
        <translation>Somente:</translation>
    </message>
    <message>
        <source>Prints the whole document</source>
        <translation>Imprime o documento inteiro</translation>
    </message>
    <message>
        <source>Prints the pages that are named beside it</source>
        <translation>Imprime as páginas indicadas ao lado</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Todas as páginas</translation>
    </message>
    <message>
        <source>Only some pages</source>
        <translation>Somente algumas páginas</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Páginas a imprimir</translation>
    </message>
    <message>
        <source>for example 1-3, 5, 8-</source>
        <translation>por exemplo 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Pages and ranges of pages, with commas between them</source>
        <translation>Páginas e intervalos de páginas, separados por vírgulas</translation>
    </message>
    <message>
        <source>“%1”: with %2 pages per sheet the numbers count printed sides, and there are fewer.</source>
        <translation>“%1”: com %2 páginas por folha, os números contam os lados impressos, e há menos.</translation>
    </message>
    <message>
        <source>With %1 pages per sheet the numbers count printed sides: these have the pages %2 of the document.</source>
        <translation>Com %1 páginas por folha, os números contam os lados impressos: eles têm as páginas %2 do documento.</translation>
    </message>
</context>
<context>
    <name>dialog::SaveDesk</name>
    <message>
        <source>Save as PDF…</source>
        <translation>Salvar como PDF…</translation>
    </message>
    <message>
        <source>Save Job Ticket…</source>
        <translation>Salvar tíquete do trabalho…</translation>
    </message>
    <message>
        <source>There is no document. Start the dialog with one.</source>
        <translation>Não há documento. Abra a caixa de diálogo com um.</translation>
    </message>
    <message>
        <source>Saving %1: side %2 of %3.</source>
        <translation>Salvando %1: lado %2 de %3.</translation>
    </message>
    <message>
        <source>Cancel Saving</source>
        <translation>Cancelar salvamento</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Salvo como %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2. Choose another place, or make room and allow writing there.</source>
        <translation>Não foi possível salvar %1: %2. Escolha outro lugar, ou libere espaço e permita a gravação ali.</translation>
    </message>
    <message>
        <source>%1 could not be saved. %2</source>
        <translation>Não foi possível salvar %1. %2</translation>
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
        <translation>Senha:</translation>
    </message>
    <message>
        <source>The print server did not accept this name and password.</source>
        <translation>O servidor de impressão não aceitou este nome e esta senha.</translation>
    </message>
    <message>
        <source>The print server %1 wants a name and password before it prints to %2. They are sent for this job and not kept.</source>
        <translation>O servidor de impressão %1 pede um nome e uma senha antes de imprimir em %2. Eles são enviados para este trabalho e não são guardados.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others in the network could read the password.</source>
        <translation>A conexão não é criptografada: outras pessoas na rede poderiam ler a senha.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabalho</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Entrar</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPanel</name>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>No setting matches.</source>
        <translation>Nenhuma definição corresponde.</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Procurar uma definição</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copiar como texto</translation>
    </message>
</context>
</TS>
