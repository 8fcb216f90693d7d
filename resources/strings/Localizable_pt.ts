<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>1) Cancel the Print dialog.</source>
        <translation>1) Cancele a caixa de diálogo Imprimir.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Layout.</source>
        <translation>1) No menu suspenso, escolha Disposição.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Quality &amp; Media.</source>
        <translation>1) No menu suspenso, escolha Papel e Qualidade.</translation>
    </message>
    <message>
        <source>1) If your application does not have File -&gt; Page Setup, skip to step 7.</source>
        <translation>1) Se o seu aplicativo não tiver Arquivo -&gt; Configurar página, vá para o passo 7.</translation>
    </message>
    <message>
        <source>2) Cancel the Print dialog.</source>
        <translation>2) Cancele a caixa de diálogo Imprimir.</translation>
    </message>
    <message>
        <source>2) From the Pages per Sheet popup menu, choose 1.</source>
        <translation>2) No menu suspenso Páginas por folha, escolha 1.</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Color Output pop-up menu, choose Color.</source>
        <translation>2) Vá para Opções avançadas -&gt; No menu suspenso Saída de cor, escolha Color (cor).</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Ink To Use pop-up menu, choose Automatic.</source>
        <translation>2) Vá para Opções avançadas -&gt; No menu suspenso Tinta a usar, escolha Automático.</translation>
    </message>
    <message>
        <source>2) Launch the Korvane Utility</source>
        <translation>2) Abra o utilitário Korvane</translation>
    </message>
    <message>
        <source>3) Click the close button in the upper left corner of this screen.</source>
        <translation>3) Clique no botão de fechar desta janela.</translation>
    </message>
    <message>
        <source>3) Select File -&gt; Page Setup.</source>
        <translation>3) Selecione Arquivo -&gt; Configurar página.</translation>
    </message>
    <message>
        <source>3) Select the Install/ Change Cartridge... button.</source>
        <translation>3) Clique no botão Instalar/Trocar cartucho...</translation>
    </message>
    <message>
        <source>4) From the Paper Size pop-up menu, select the desired paper size.</source>
        <translation>4) No menu suspenso Tamanho do papel, selecione o tamanho desejado.</translation>
    </message>
    <message>
        <source>4) Install a black cartridge.</source>
        <translation>4) Instale um cartucho preto.</translation>
    </message>
    <message>
        <source>5) Click OK.</source>
        <translation>5) Clique em OK.</translation>
    </message>
    <message>
        <source>5) Open the Print dialog, and then reselect your settings.</source>
        <translation>5) Abra a caixa de diálogo Imprimir e selecione novamente as suas definições.</translation>
    </message>
    <message>
        <source>6) Click the close button in the upper left corner of this screen.</source>
        <translation>6) Clique no botão de fechar desta janela.</translation>
    </message>
    <message>
        <source>6) Open the Print dialog.</source>
        <translation>6) Abra a caixa de diálogo Imprimir.</translation>
    </message>
    <message>
        <source>7) From the Print dialog, select your desired settings.</source>
        <translation>7) Na caixa de diálogo Imprimir, selecione as definições desejadas.</translation>
    </message>
    <message>
        <source>8) Click the close button in the upper left corner of this screen.</source>
        <translation>8) Clique no botão de fechar desta janela.</translation>
    </message>
    <message>
        <source>Adjusts how dark text and images are printed.</source>
        <translation>Ajusta a intensidade com que o texto e as imagens são impressos.</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Opções avançadas</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (OFF)</source>
        <translation>Opções avançadas: Espelho (DESATIVADO)</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (ON)</source>
        <translation>Opções avançadas: Espelho (ATIVADO)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Preto e branco</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Only Color</source>
        <translation>Cartucho(s) instalado(s): Somente cor</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Photo</source>
        <translation>Cartucho(s) instalado(s): Foto</translation>
    </message>
    <message>
        <source>Changes how the printer works to correct the problem chosen below.</source>
        <translation>Altera o funcionamento da impressora para corrigir o problema escolhido abaixo.</translation>
    </message>
    <message>
        <source>Choose an option to resolve the conflict:</source>
        <translation>Escolha uma opção para resolver o conflito:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Color Output:</source>
        <translation>Saída de cor:</translation>
    </message>
    <message>
        <source>Color Preferences:</source>
        <translation>Preferências de cor:</translation>
    </message>
    <message>
        <source>Conflicting settings</source>
        <translation>Definições incompatíveis</translation>
    </message>
    <message>
        <source>Continue without resolving the conflict.</source>
        <translation>Continuar sem resolver o conflito.</translation>
    </message>
    <message>
        <source>Document Color: Black Only</source>
        <translation>Cor do documento: Somente preto</translation>
    </message>
    <message>
        <source>Document Color: Color</source>
        <translation>Cor do documento: Cor</translation>
    </message>
    <message>
        <source>Dry Time</source>
        <translation>Tempo de secagem</translation>
    </message>
    <message>
        <source>Dry Time:</source>
        <translation>Tempo de secagem:</translation>
    </message>
    <message>
        <source>Halftone:</source>
        <translation>Meio-tom:</translation>
    </message>
    <message>
        <source>How carefully the page is printed: better quality takes longer and uses more ink or toner.</source>
        <translation>O cuidado com que a página é impressa: mais qualidade leva mais tempo e gasta mais tinta ou toner.</translation>
    </message>
    <message>
        <source>How colors are matched between the screen and the print.</source>
        <translation>Como as cores da impressão correspondem às da tela.</translation>
    </message>
    <message>
        <source>How dark a gray must be to be printed as black, from 1 to 5.</source>
        <translation>Quão escuro um cinza deve ser para sair preto, de 1 a 5.</translation>
    </message>
    <message>
        <source>How long the printer waits for the ink to dry before it prints the other side of the sheet.</source>
        <translation>Quanto a impressora espera a tinta secar antes de imprimir o outro lado da folha.</translation>
    </message>
    <message>
        <source>ICC Test Chart</source>
        <translation>Gráfico de teste ICC</translation>
    </message>
    <message>
        <source>Improve toner fixing</source>
        <translation>Melhorar a fixação do toner</translation>
    </message>
    <message>
        <source>Improvement</source>
        <translation>Melhoria</translation>
    </message>
    <message>
        <source>Improvement Settings</source>
        <translation>Definições de melhoria</translation>
    </message>
    <message>
        <source>Ink To Use</source>
        <translation>Tinta a usar</translation>
    </message>
    <message>
        <source>Ink To Use:</source>
        <translation>Tinta a usar:</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instruções</translation>
    </message>
    <message>
        <source>Keeps faint copies of an image from appearing further down the page.</source>
        <translation>Evita que cópias ténues de uma imagem apareçam mais abaixo na página.</translation>
    </message>
    <message>
        <source>Layout: Pages per Sheet (&gt;1)</source>
        <translation>Disposição: Páginas por folha (&gt;1)</translation>
    </message>
    <message>
        <source>Makes the edges in pictures crisper. Too much of it looks grainy.</source>
        <translation>Deixa mais nítidos os contornos das imagens. Em excesso, a imagem fica granulada.</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Espelho</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Outro</translation>
    </message>
    <message>
        <source>Paper Size: </source>
        <translation>Tamanho do papel: </translation>
    </message>
    <message>
        <source>Paper Source:</source>
        <translation>Origem do papel:</translation>
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
        <translation>Tipo de papel: Envelope</translation>
    </message>
    <message>
        <source>Paper Type: Iron-On Transfer</source>
        <translation>Tipo de papel: Transferência a quente</translation>
    </message>
    <message>
        <source>Paper Type: Plain Paper</source>
        <translation>Tipo de papel: Papel comum</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>Densidade de impressão</translation>
    </message>
    <message>
        <source>Print Quality:</source>
        <translation>Qualidade de impressão:</translation>
    </message>
    <message>
        <source>Print Quality: Draft</source>
        <translation>Qualidade de impressão: Rascunho</translation>
    </message>
    <message>
        <source>Print Quality: Normal</source>
        <translation>Qualidade de impressão: Normal</translation>
    </message>
    <message>
        <source>Prints in color, or in black and shades of gray. Other settings depend on it.</source>
        <translation>Imprime em cores ou em preto e tons de cinza. Outros ajustes dependem disso.</translation>
    </message>
    <message>
        <source>Prints lighter, so that the toner lasts longer.</source>
        <translation>Imprime mais claro, para que o toner dure mais.</translation>
    </message>
    <message>
        <source>Prints the page reversed from left to right, as iron-on transfers need it.</source>
        <translation>Imprime a página invertida da esquerda para a direita, como pedem as transferências a quente.</translation>
    </message>
    <message>
        <source>Prints without any color correction, for measuring a test chart.</source>
        <translation>Imprime sem correção de cor, para medir uma carta de teste.</translation>
    </message>
    <message>
        <source>Prints without colors.</source>
        <translation>Imprime sem cores.</translation>
    </message>
    <message>
        <source>Quality &amp; Media</source>
        <translation>Papel e Qualidade</translation>
    </message>
    <message>
        <source>Raises or lowers the threshold by one.</source>
        <translation>Aumenta ou diminui o limiar em um.</translation>
    </message>
    <message>
        <source>Reduce Ghosting</source>
        <translation>Reduzir imagens fantasma</translation>
    </message>
    <message>
        <source>Reduce paper curl</source>
        <translation>Reduzir a ondulação do papel</translation>
    </message>
    <message>
        <source>Reduce wrinkles or creases</source>
        <translation>Reduzir rugas ou vincos</translation>
    </message>
    <message>
        <source>Sharpening:</source>
        <translation>Nitidez:</translation>
    </message>
    <message>
        <source>Show instructions to resolve the conflict settings.</source>
        <translation>Mostrar instruções para resolver o conflito.</translation>
    </message>
    <message>
        <source>Shows or hides the less common settings.</source>
        <translation>Mostra ou oculta os ajustes menos comuns.</translation>
    </message>
    <message>
        <source>The ink cartridges that the page is printed with.</source>
        <translation>Os cartuchos de tinta com que a página é impressa.</translation>
    </message>
    <message>
        <source>The kind of paper in the printer. It decides how much ink is laid down and how fast the paper moves.</source>
        <translation>O tipo de papel na impressora. Dele dependem a quantidade de tinta e a velocidade do papel.</translation>
    </message>
    <message>
        <source>The pattern of dots that shades of gray are made of.</source>
        <translation>O padrão de pontos que forma os tons de cinza.</translation>
    </message>
    <message>
        <source>The problem that the printer corrects.</source>
        <translation>O problema que a impressora corrige.</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>A bandeja de onde o papel é retirado.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Limiar</translation>
    </message>
    <message>
        <source>Threshold:</source>
        <translation>Limiar:</translation>
    </message>
    <message>
        <source>Toner Save</source>
        <translation>Economizar toner</translation>
    </message>
    <message>
        <source>is not compatible with</source>
        <translation>não é compatível com</translation>
    </message>
</context>
</TS>
