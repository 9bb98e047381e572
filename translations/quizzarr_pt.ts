<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>BoardGame</name>
    <message>
        <source>Scores</source>
        <translation>Pontuação</translation>
    </message>
</context>
<context>
    <name>BuzzerInputs</name>
    <message>
        <source>key %1</source>
        <translation>tecla %1</translation>
    </message>
    <message>
        <source>%1, button %2</source>
        <translation>%1, botão %2</translation>
    </message>
    <message>
        <source>%1 is one of the game&apos;s own keys; press another.</source>
        <translation>%1 é uma das teclas do próprio jogo; pressione outra.</translation>
    </message>
</context>
<context>
    <name>GameJournal</name>
    <message>
        <source>The question set %1 has changed or is gone since the game was interrupted, so the game cannot be resumed.</source>
        <translation>O conjunto de perguntas %1 foi alterado ou removido depois que o jogo foi interrompido; por isso, não é possível retomar o jogo.</translation>
    </message>
    <message>
        <source>Resume the interrupted game of %1?<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Retomar o jogo interrompido de “%1”?<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>The final</source>
        <translation>A grande final</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Rodada %1</translation>
    </message>
</context>
<context>
    <name>GameRules</name>
    <message>
        <source>Team %1</source>
        <translation>Equipe %1</translation>
    </message>
    <message>
        <source>  TIED</source>
        <translation>  EMPATE</translation>
    </message>
    <message>
        <source>  WINNER</source>
        <translation>  VITÓRIA</translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>Starting</source>
        <translation>Para começar</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Durante o jogo</translation>
    </message>
    <message>
        <source>Special Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Pontuação</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Edição</translation>
    </message>
    <message>
        <source>Click on the question/answer file you wish to use, then click on Start Game.</source>
        <translation>Clique no arquivo de perguntas que deseja usar e depois em Iniciar jogo.</translation>
    </message>
    <message>
        <source>Clicking on any one of the categories will display all the categories, one at a time. You must wait until this is finished to continue. This should be done once, just after the board has been set up, just like in the real game on TV.</source>
        <translation>Ao clicar em qualquer categoria, todas as categorias são apresentadas, uma de cada vez. Espere a apresentação terminar para continuar. Faça isso uma única vez, logo depois de o quadro ser montado, para abrir a rodada em grande estilo.</translation>
    </message>
    <message>
        <source>Two daily doubles are picked at random for each game and round.</source>
        <translation>Em cada rodada, duas pistas são sorteadas para serem a Aposta em dobro.</translation>
    </message>
    <message>
        <source>In order to display an answer, click on the dollar amount. Once the answer has been displayed for at least three seconds, you can click on the answer to reveal the question. Three seconds later, you can click on the question to return to the board.</source>
        <translation>Para mostrar uma pista, clique no valor em $. Depois que a pista estiver na tela há pelo menos três segundos, clique nela para revelar a resposta. Três segundos depois, clique na resposta para voltar ao quadro.</translation>
    </message>
    <message>
        <source>The three second delay keeps you from accidently clicking too fast.</source>
        <translation>A espera de três segundos evita que você clique rápido demais por engano.</translation>
    </message>
    <message>
        <source>For Final Quizzarr, after the answer is displayed, you will have to wait the ENTIRE 30 seconds to click to show the question. Once the question is displayed, clicking on the empty board will take you back to the file selection screen.</source>
        <translation>Na grande final do Quizzarr, depois que a pista aparece, é preciso esperar os 30 segundos INTEIROS para poder clicar e mostrar a resposta. Com a resposta na tela, um clique no quadro vazio leva de volta à tela de escolha de arquivos.</translation>
    </message>
    <message>
        <source>If you accidently display an answer, you can click while holding SHIFT, ALT and CTRL on an answer already displayed and the answer will return to the play board.</source>
        <translation>Se você abrir uma pista por engano, clique nela segurando SHIFT, ALT e CTRL: a pista volta para o quadro de jogo.</translation>
    </message>
    <message>
        <source>Likewise, if you want to remove an answer from play, you can click while holding SHIFT, ALT and CTRL on an answer and the answer will be removed from the play board.</source>
        <translation>Da mesma forma, para tirar uma pista do jogo, clique no valor dela segurando SHIFT, ALT e CTRL: a pista sai do quadro de jogo.</translation>
    </message>
    <message>
        <source>Pressing SHIFT, ALT, CTRL and N will prematurely end the round and start the next round.</source>
        <translation>Pressionar SHIFT, ALT, CTRL e N encerra a rodada antes da hora e inicia a rodada seguinte.</translation>
    </message>
    <message>
        <source>Pressing SHIFT, ALT, CTRL and Q will prematurely end the game and take you back to the file selection screen.</source>
        <translation>Pressionar SHIFT, ALT, CTRL e Q encerra o jogo antes da hora e volta à tela de escolha de arquivos.</translation>
    </message>
    <message>
        <source>To keep score, select the number of teams before clicking Start Game.</source>
        <translation>Para marcar os pontos, escolha o número de equipes antes de clicar em Iniciar jogo.</translation>
    </message>
    <message>
        <source>Once the answer and question has been clicked on and the playing board is shown, press 1 to add the point value to team 1, 2 to add the point value to team 2, ad nauseum. Press 0 to add the point value to team 10.</source>
        <translation>Depois de clicar na pista e na resposta, quando o quadro de jogo voltar à tela, pressione 1 para dar o valor da pista à equipe 1, 2 para dar o valor à equipe 2, e assim por diante. Pressione 0 para dar o valor à equipe 10.</translation>
    </message>
    <message>
        <source>If you wish to subtract the point value from a team, press SHIFT with the team number.</source>
        <translation>Para tirar o valor de uma equipe, pressione SHIFT junto com o número da equipe.</translation>
    </message>
    <message>
        <source>For Daily Doubles and Final Quizzarr, the point value is reset to $100 to allow you to add (or subtract) the appropriate number of points.</source>
        <translation>Na Aposta em dobro e na grande final do Quizzarr, o valor volta a $100 para que você possa somar (ou subtrair) a quantidade de pontos adequada.</translation>
    </message>
    <message>
        <source>To create or edit your own question/answer file, click on Question Editor/Creator and use the new editor to create the new QZ2 files. </source>
        <translation>Para criar ou editar o seu próprio arquivo de perguntas, clique em Editor de perguntas e use o novo editor para criar arquivos QZ2. </translation>
    </message>
    <message>
        <source>To migrate your old QZA files, just OPEN the old file and SAVE AS to automatically convert it to the new format.</source>
        <translation>Para aproveitar os seus antigos arquivos QZA, basta ABRIR o arquivo antigo e usar SALVAR COMO: ele é convertido automaticamente para o novo formato.</translation>
    </message>
</context>
<context>
    <name>HostSheet</name>
    <message>
        <source>Final</source>
        <translation>Grande final</translation>
    </message>
    <message>
        <source>picture: %1</source>
        <translation>imagem: %1</translation>
    </message>
    <message>
        <source>Answer time: %1 seconds. Clue, then the response in bold.</source>
        <translation>Tempo por pista: %1 segundos. Primeiro a pista, depois a resposta em negrito.</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Rodada %1</translation>
    </message>
</context>
<context>
    <name>JoinScreen</name>
    <message>
        <source>Play on your phone</source>
        <translation>Jogue pelo celular</translation>
    </message>
    <message>
        <source>Scan the code, or open:</source>
        <translation>Leia o código ou abra:</translation>
    </message>
    <message>
        <source>Room code:</source>
        <translation>Código da sala:</translation>
    </message>
    <message>
        <source>1 player has joined</source>
        <translation>1 jogador entrou</translation>
    </message>
    <message>
        <source>%1 players have joined</source>
        <translation>%1 jogadores entraram</translation>
    </message>
</context>
<context>
    <name>JoystickReader</name>
    <message>
        <source>SDL2 (libSDL2-2.0.so.0) could not be loaded</source>
        <translation>SDL2 (libSDL2-2.0.so.0) não pôde ser carregado</translation>
    </message>
    <message>
        <source>SDL2 could not start its joysticks</source>
        <translation>SDL2 não conseguiu iniciar os joysticks</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>is missing</source>
        <translation>não existe</translation>
    </message>
    <message>
        <source>is too large (%1 MB)</source>
        <translation>é grande demais (%1 MB)</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>está ilegível</translation>
    </message>
    <message>
        <source>cannot be read as a picture (%1)</source>
        <translation>não é uma imagem legível (%1)</translation>
    </message>
</context>
<context>
    <name>QtFileDialog</name>
    <message>
        <source>%1
The folder does not exist.
Check the path and try again.</source>
        <translation>%1
A pasta não existe.
Verifique o caminho e tente de novo.</translation>
    </message>
    <message>
        <source>%1
This file is set to read-only.
Try again with a different file name.</source>
        <translation>%1
Este arquivo é somente leitura.
Tente de novo com outro nome de arquivo.</translation>
    </message>
    <message>
        <source>%1
This file does not exist.
Do you want to create it?</source>
        <translation>%1
Este arquivo não existe.
Deseja criá-lo?</translation>
    </message>
</context>
<context>
    <name>QuestionTable</name>
    <message>
        <source>row %1 (&quot;%2&quot;)</source>
        <translation>linha %1 (“%2”)</translation>
    </message>
    <message>
        <source>round</source>
        <translation>rodada</translation>
    </message>
    <message>
        <source>category</source>
        <translation>categoria</translation>
    </message>
    <message>
        <source>clue</source>
        <translation>pista</translation>
    </message>
    <message>
        <source>response</source>
        <translation>resposta</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>imagem</translation>
    </message>
    <message>
        <source>round %1</source>
        <translation>rodada %1</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>linha %1</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>linhas %1</translation>
    </message>
    <message>
        <source>the table is empty; its first row must name the columns Round, Category, Clue and Response</source>
        <extracomment>Round, Category, Clue and Response are the names a table&apos;s columns must have, in English.</extracomment>
        <translation>a tabela está vazia; a primeira linha deve dar às colunas os nomes Round, Category, Clue e Response</translation>
    </message>
    <message>
        <source>%1, column %2 (%3)</source>
        <translation>%1, coluna %2 (%3)</translation>
    </message>
    <message>
        <source>%1, column %2: a second column %3 (the first is column %4)</source>
        <translation>%1, coluna %2: uma segunda coluna %3 (a primeira é a coluna %4)</translation>
    </message>
    <message>
        <source>%1: the header has no columns %2; one of the first ten filled rows must name the columns Round, Category, Clue and Response</source>
        <extracomment>Round, Category, Clue and Response are the names a table&apos;s columns must have, in English.</extracomment>
        <translation>%1: o cabeçalho não tem as colunas %2; uma das dez primeiras linhas preenchidas deve dar às colunas os nomes Round, Category, Clue e Response</translation>
    </message>
    <message>
        <source>%1: the header has no column %2; one of the first ten filled rows must name the columns Round, Category, Clue and Response</source>
        <translation>%1: o cabeçalho não tem a coluna %2; uma das dez primeiras linhas preenchidas deve dar às colunas os nomes Round, Category, Clue e Response</translation>
    </message>
    <message>
        <source>%1: the %2 is empty</source>
        <translation>%1: a %2 está vazia</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 is not a round; write 1, 2 or Final</source>
        <translation>%1: %2 não é uma rodada; escreva 1, 2 ou Final</translation>
    </message>
    <message>
        <source>%1: a seventh category, %2, in %3; a round holds at most 6</source>
        <translation>%1: uma sétima categoria, %2, na %3; uma rodada tem no máximo 6</translation>
    </message>
    <message>
        <source>%1: a sixth clue for %2 in %3 (five are in %4); a category holds 5</source>
        <translation>%1: uma sexta pista para %2 na %3 (as cinco primeiras: %4); uma categoria tem 5</translation>
    </message>
    <message>
        <source>%1: a second Final row (the first is row %2); a set has one final clue</source>
        <translation>%1: uma segunda linha Final (a primeira é a linha %2); um conjunto tem uma só pista final</translation>
    </message>
    <message>
        <source>%1: %2 (%3) in %4 is spelled otherwise than %5 (%6); the five rows of a category name it alike</source>
        <translation>%1: %2 (%3) na %4 está escrita de forma diferente de %5 (%6); nas cinco linhas de uma categoria, o nome deve ser escrito igual</translation>
    </message>
    <message>
        <source>%1: %2 in %3 has %4 clue (%5); a category needs 5</source>
        <translation>%1: %2 na %3 tem %4 pista (%5); uma categoria precisa de 5</translation>
    </message>
    <message>
        <source>%1: %2 in %3 has %4 clues (%5); a category needs 5</source>
        <translation>%1: %2 na %3 tem %4 pistas (%5); uma categoria precisa de 5</translation>
    </message>
    <message>
        <source>no row of round 1 (round 2 starts at %1); a set starts with round 1</source>
        <translation>nenhuma linha da rodada 1 (a rodada 2 começa na %1); um conjunto começa pela rodada 1</translation>
    </message>
    <message>
        <source>no row of round 1 below the header (%1); a set needs at least one category of round 1</source>
        <translation>nenhuma linha da rodada 1 abaixo do cabeçalho (%1); um conjunto precisa de pelo menos uma categoria da rodada 1</translation>
    </message>
    <message>
        <source>no Final row; a set needs one final clue, a row whose Round is Final</source>
        <translation>nenhuma linha Final; um conjunto precisa de uma pista final, numa linha com Final na coluna Round</translation>
    </message>
    <message>
        <source>a line break inside the text; a set holds every text on one line</source>
        <translation>uma quebra de linha dentro do texto; num conjunto, cada texto fica em uma só linha</translation>
    </message>
    <message>
        <source>a control character (U+%1) inside the text</source>
        <translation>um caractere de controle (U+%1) dentro do texto</translation>
    </message>
    <message>
        <source>%1 characters; a text holds at most %2</source>
        <translation>%1 caracteres; um texto tem no máximo %2</translation>
    </message>
</context>
<context>
    <name>ReadableFile</name>
    <message>
        <source>no such file</source>
        <translation>o arquivo não existe</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>not an ordinary file</source>
        <translation>não é um arquivo comum</translation>
    </message>
</context>
<context>
    <name>RevealPanel</name>
    <message>
        <source>(no response)</source>
        <translation>(sem resposta)</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>Right!</source>
        <translation>Certo!</translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>Errado</translation>
    </message>
</context>
<context>
    <name>TableFiles</name>
    <message>
        <source>%1 inside is damaged (XML error in line %2: %3)</source>
        <translation>o arquivo interno %1 está danificado (erro de XML na linha %2: %3)</translation>
    </message>
    <message>
        <source>a damaged zip container</source>
        <translation>um arquivo zip danificado</translation>
    </message>
    <message>
        <source>a zip container, but neither an .xlsx workbook nor an .ods spreadsheet</source>
        <translation>um arquivo zip, mas que não é uma planilha .xlsx nem .ods</translation>
    </message>
    <message>
        <source>not a zip container, so not a workbook: the file is damaged or only named so</source>
        <translation>não é um arquivo zip e, portanto, não é uma planilha: o arquivo está danificado ou só tem nome de planilha</translation>
    </message>
    <message>
        <source>not a spreadsheet; .csv, .xlsx and .ods files are read</source>
        <translation>não é uma planilha; são lidos arquivos .csv, .xlsx e .ods</translation>
    </message>
    <message>
        <source>%1 MB is too large for a question set&apos;s table</source>
        <translation>%1 MB é grande demais para a tabela de um conjunto de perguntas</translation>
    </message>
    <message>
        <source>more than %1 filled rows by row %2; a question set&apos;s table has at most 62</source>
        <translation>mais de %1 linhas preenchidas até a linha %2; a tabela de um conjunto de perguntas tem no máximo 62</translation>
    </message>
    <message>
        <source>%1 inside is too large for a question set&apos;s table</source>
        <translation>o arquivo interno %1 é grande demais para a tabela de um conjunto de perguntas</translation>
    </message>
    <message>
        <source>%1 inside is damaged (a tag with over %2 attributes)</source>
        <translation>o arquivo interno %1 está danificado (uma tag com mais de %2 atributos)</translation>
    </message>
    <message>
        <source>an old Excel workbook (.xls); save it as .xlsx or .csv</source>
        <translation>uma planilha antiga do Excel (.xls); salve-a como .xlsx ou .csv</translation>
    </message>
    <message>
        <source>a spreadsheet is written as .csv or .xlsx</source>
        <translation>uma planilha só pode ser gravada como .csv ou .xlsx</translation>
    </message>
    <message>
        <source>%1 is missing from the zip container</source>
        <translation>o arquivo zip não contém %1</translation>
    </message>
    <message>
        <source>%1 inside is damaged or encrypted</source>
        <translation>o arquivo interno %1 está danificado ou criptografado</translation>
    </message>
    <message>
        <source>%1 inside is damaged (zip error %2)</source>
        <translation>o arquivo interno %1 está danificado (erro de zip %2)</translation>
    </message>
    <message>
        <source>%1 (libxlsxwriter) could not be loaded</source>
        <translation>não foi possível carregar %1 (libxlsxwriter)</translation>
    </message>
    <message>
        <source>no temporary file for the workbook</source>
        <translation>não foi possível criar um arquivo temporário para a planilha</translation>
    </message>
    <message>
        <source>row %1: a quotation mark opens a text that never ends</source>
        <translation>linha %1: um texto aberto com aspas nunca é fechado</translation>
    </message>
</context>
<context>
    <name>WriteFileReplacing</name>
    <message>
        <source>A file cannot be copied onto itself.</source>
        <translation>Um arquivo não pode ser copiado sobre si mesmo.</translation>
    </message>
</context>
<context>
    <name>basPLOVQuzr</name>
    <message>
        <source>Unable to load %1. The game will still work, but with no graphics.</source>
        <translation>Não foi possível carregar %1. O jogo funciona mesmo assim, mas sem imagens.</translation>
    </message>
    <message>
        <source>Unable to load %1. The game will still work, but with no sounds.</source>
        <translation>Não foi possível carregar %1. O jogo funciona mesmo assim, mas sem som.</translation>
    </message>
</context>
<context>
    <name>clsOpenSaveDlg</name>
    <message>
        <source>All Files</source>
        <translation>Todos os arquivos</translation>
    </message>
</context>
<context>
    <name>frmBuzzers</name>
    <message>
        <source>Buzzers</source>
        <translation>Campainhas</translation>
    </message>
    <message>
        <source>Press Learn beside a team, then press that team&apos;s buzzer: a key of a buzzer box or of the keyboard, or a button of a joystick or game controller. The game&apos;s own keys (the digits, BackSpace, Space, + and −) cannot be buzzers.</source>
        <translation>Clique em Definir ao lado de uma equipe e depois acione a campainha dessa equipe: uma tecla de uma caixa de campainhas ou do teclado, ou um botão de joystick ou de controle de jogo. As teclas do próprio jogo (os algarismos, Backspace, Espaço, + e −) não podem ser campainhas.</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>Definir</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Press %1&apos;s buzzer now (Escape: stop).</source>
        <translation>Acione agora a campainha de %1 (Esc: parar).</translation>
    </message>
    <message>
        <source>Buzz-in is on.</source>
        <translation>Campainhas ativadas.</translation>
    </message>
    <message>
        <source>Buzz-in is off.</source>
        <translation>Campainhas desativadas.</translation>
    </message>
    <message>
        <source>waiting for a press…</source>
        <translation>à espera de um toque…</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhuma</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Joysticks cannot be read: %1.</source>
        <translation>Não é possível ler os joysticks: %1.</translation>
    </message>
    <message>
        <source>No joystick or game controller is plugged in.</source>
        <translation>Nenhum joystick ou controle de jogo conectado.</translation>
    </message>
    <message>
        <source>Plugged in: %1</source>
        <translation>Conectados: %1</translation>
    </message>
</context>
<context>
    <name>frmConsole</name>
    <message>
        <source>Phones</source>
        <translation>Celulares</translation>
    </message>
    <message>
        <source>Join screen (J)</source>
        <translation>Tela de entrada (J)</translation>
    </message>
    <message>
        <source>Remove player</source>
        <translation>Remover jogador</translation>
    </message>
    <message>
        <source>Room %1 — %2</source>
        <translation>Sala %1 — %2</translation>
    </message>
    <message>
        <source>Daily double for:</source>
        <translation>Aposta em dobro para:</translation>
    </message>
    <message>
        <source>The final: each team&apos;s wager and response</source>
        <translation>Grande final: aposta e resposta de cada equipe</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Certo</translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>Errado</translation>
    </message>
    <message>
        <source>Reveal the next team</source>
        <translation>Revelar a próxima equipe</translation>
    </message>
    <message>
        <source>(choose the team)</source>
        <translation>(escolha a equipe)</translation>
    </message>
    <message>
        <source>Daily double for (wager $ %1):</source>
        <translation>Aposta em dobro para (valor: $ %1):</translation>
    </message>
    <message>
        <source>no wager</source>
        <translation>sem aposta</translation>
    </message>
    <message>
        <source> — “%1”</source>
        <translation> — “%1”</translation>
    </message>
    <message>
        <source> (shown)</source>
        <translation> (revelada)</translation>
    </message>
    <message>
        <source>No clue open</source>
        <translation>Nenhuma pista aberta</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Aguarde</translation>
    </message>
    <message>
        <source>Show the final category</source>
        <translation>Mostrar a categoria final</translation>
    </message>
    <message>
        <source>Show the final clue</source>
        <translation>Mostrar a pista final</translation>
    </message>
    <message>
        <source>Show the clue</source>
        <translation>Mostrar a pista</translation>
    </message>
    <message>
        <source>Reveal the response</source>
        <translation>Revelar a resposta</translation>
    </message>
    <message>
        <source>Close the clue</source>
        <translation>Fechar a pista</translation>
    </message>
    <message>
        <source>Think music: %1 s left</source>
        <translation>Música de suspense: faltam %1 s</translation>
    </message>
    <message>
        <source>Locked: %1 s</source>
        <translation>Bloqueado: %1 s</translation>
    </message>
    <message>
        <source>Host&apos;s console</source>
        <translation>Painel do apresentador</translation>
    </message>
    <message>
        <source>End round</source>
        <translation>Encerrar rodada</translation>
    </message>
    <message>
        <source>End game</source>
        <translation>Encerrar jogo</translation>
    </message>
    <message>
        <source>Switch screens</source>
        <translation>Trocar telas</translation>
    </message>
    <message>
        <source>End this round now? The tiles left in it will not be played.</source>
        <translation>Encerrar esta rodada agora? As pistas que restam nela não serão jogadas.</translation>
    </message>
    <message>
        <source>End the game now, without the standings?</source>
        <translation>Encerrar o jogo agora, sem a classificação final?</translation>
    </message>
    <message>
        <source>Parade the titles</source>
        <translation>Apresentar os títulos das categorias</translation>
    </message>
    <message>
        <source>Buzz in</source>
        <translation>Campainha</translation>
    </message>
    <message>
        <source>Buzzers…</source>
        <translation>Campainhas…</translation>
    </message>
    <message>
        <source>Buzzers off</source>
        <translation>Campainhas desligadas</translation>
    </message>
    <message>
        <source>Buzzers OPEN</source>
        <translation>Campainhas LIBERADAS</translation>
    </message>
    <message>
        <source>Buzzers closed</source>
        <translation>Campainhas bloqueadas</translation>
    </message>
    <message>
        <source>Close (Space)</source>
        <translation>Bloquear (Espaço)</translation>
    </message>
    <message>
        <source>Open (Space)</source>
        <translation>Liberar (Espaço)</translation>
    </message>
    <message>
        <source> +%1 s</source>
        <translation> +%1 s</translation>
    </message>
    <message>
        <source> (wrong)</source>
        <translation> (errou)</translation>
    </message>
    <message>
        <source>Too early: %1</source>
        <translation>Cedo demais: %1</translation>
    </message>
    <message>
        <source>Right (+): %1</source>
        <translation>Certo (+): %1</translation>
    </message>
    <message>
        <source>Right (+)</source>
        <translation>Certo (+)</translation>
    </message>
    <message>
        <source>Wrong (−): %1</source>
        <translation>Errado (−): %1</translation>
    </message>
    <message>
        <source>Wrong (−)</source>
        <translation>Errado (−)</translation>
    </message>
    <message>
        <source>Undo last score</source>
        <translation>Desfazer pontuação</translation>
    </message>
    <message>
        <source>Amount to give (+) or take (−):</source>
        <translation>Valor a dar (+) ou tirar (−):</translation>
    </message>
    <message>
        <source>%1 This cannot be undone.</source>
        <translation>%1 Esta ação não pode ser desfeita.</translation>
    </message>
    <message>
        <source>No game running: name the teams, then start a game on the home screen.</source>
        <translation>Nenhum jogo em andamento: dê nomes às equipes e depois inicie um jogo na tela inicial.</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Grande final</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Rodada %1</translation>
    </message>
    <message>
        <source>  (daily double)</source>
        <translation>  (aposta em dobro)</translation>
    </message>
    <message>
        <source>Response: %1</source>
        <translation>Resposta: %1</translation>
    </message>
    <message>
        <source>Choose a value on the board below.</source>
        <translation>Escolha um valor no quadro abaixo.</translation>
    </message>
</context>
<context>
    <name>frmEditor</name>
    <message>
        <source>Description:</source>
        <translation>Descrição:</translation>
    </message>
    <message>
        <source>Secs/Answer:</source>
        <translation>Seg./pista:</translation>
    </message>
    <message>
        <source>Cat. Title:</source>
        <translation>Categoria:</translation>
    </message>
    <message>
        <source>Answer %1:</source>
        <translation>Pista %1:</translation>
    </message>
    <message>
        <source>Question %1:</source>
        <translation>Resposta %1:</translation>
    </message>
    <message>
        <source>Rounds:</source>
        <translation>Rodadas:</translation>
    </message>
    <message>
        <source>Categories:</source>
        <translation>Categorias:</translation>
    </message>
    <message>
        <source>Round 1</source>
        <translation>Rodada 1</translation>
    </message>
    <message>
        <source>Round 2</source>
        <translation>Rodada 2</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Cat. %1</source>
        <translation>Cat. %1</translation>
    </message>
    <message>
        <source>Question Editor/Creator</source>
        <translation>Editor de perguntas</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Novo</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Salvar &amp;como...</translation>
    </message>
    <message>
        <source>&amp;Print Host Sheet...</source>
        <translation>&amp;Imprimir folha...</translation>
    </message>
    <message>
        <source>&amp;Import Spreadsheet...</source>
        <translation>I&amp;mportar planilha...</translation>
    </message>
    <message>
        <source>E&amp;xport Spreadsheet...</source>
        <translation>&amp;Exportar planilha...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>Would you like to save your work?</source>
        <translation>Deseja salvar o seu trabalho?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>PLOV(tm) Quizzarr! QA Files (*.QZ2;*.QZA)|*.QZ2;*.QZA</source>
        <translation>Arquivos de perguntas do PLOV(tm) Quizzarr! (*.QZ2;*.QZA)|*.QZ2;*.QZA</translation>
    </message>
    <message>
        <source>QZ2 Files (*.QZ2)|*.QZ2</source>
        <translation>Arquivos QZ2 (*.QZ2)|*.QZ2</translation>
    </message>
    <message>
        <source>Save file error #:%1<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Erro ao salvar o arquivo (código %1):<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Salvar como...</translation>
    </message>
    <message>
        <source>The set was saved, but its pictures could not all be copied beside it:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>O conjunto foi salvo, mas nem todas as imagens puderam ser copiadas para a mesma pasta:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Remove Picture</source>
        <translation>Remover imagem</translation>
    </message>
    <message>
        <source>Picture...</source>
        <translation>Imagem...</translation>
    </message>
    <message>
        <source>Choose a picture to show with this clue</source>
        <translation>Escolha uma imagem para mostrar com esta pista</translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation>%1 (arquivo não encontrado)</translation>
    </message>
    <message>
        <source>Choose a Picture for the Clue</source>
        <translation>Escolha uma imagem para a pista</translation>
    </message>
    <message>
        <source>Pictures (*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp)|*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp</source>
        <translation>Imagens (*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp)|*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp</translation>
    </message>
    <message>
        <source>Import Spreadsheet</source>
        <translation>Importar planilha</translation>
    </message>
    <message>
        <source>Spreadsheets (*.csv;*.xlsx;*.ods)|*.csv;*.xlsx;*.ods</source>
        <translation>Planilhas (*.csv;*.xlsx;*.ods)|*.csv;*.xlsx;*.ods</translation>
    </message>
    <message>
        <source>Cannot read %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Não foi possível ler %1:<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Cannot import %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Não foi possível importar %1:<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Export Spreadsheet</source>
        <translation>Exportar planilha</translation>
    </message>
    <message>
        <source>Excel Workbook (*.xlsx)|*.xlsx|CSV Text (*.csv)|*.csv</source>
        <translation>Planilha do Excel (*.xlsx)|*.xlsx|Texto CSV (*.csv)|*.csv</translation>
    </message>
    <message>
        <source>Export file error #:%1<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Erro ao exportar o arquivo (código %1):<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>The spreadsheet was written, but it will not import as it is:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>A planilha foi gravada, mas não poderá ser importada tal como está:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>%1 - host sheet.pdf</source>
        <translation>%1 - folha do apresentador.pdf</translation>
    </message>
    <message>
        <source>Question Set</source>
        <translation>Conjunto de perguntas</translation>
    </message>
    <message>
        <source>Print Host Sheet</source>
        <translation>Imprimir folha do apresentador</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)|*.pdf</source>
        <translation>Arquivos PDF (*.pdf)|*.pdf</translation>
    </message>
    <message>
        <source>The host sheet could not be written to %1:<byte value="xd"/>
%2</source>
        <translation>Não foi possível gravar a folha do apresentador em %1:<byte value="xd"/>
%2</translation>
    </message>
</context>
<context>
    <name>frmHowToPlay</name>
    <message>
        <source>How To Play Quizzarr!</source>
        <translation>Como jogar Quizzarr!</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Please wait until all sounds playing have stopped, then click OK to start!</source>
        <translation>Espere até que todos os sons parem de tocar e clique em OK para começar!</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>I am unable to initialize DirectSound. This might be caused if a sound is currently playing. Click RETRY after all sounds have stopped to try again. Click CANCEL to play the game WITHOUT sound.</source>
        <translation>Não foi possível iniciar o DirectSound. Isso pode acontecer quando algum som está tocando. Clique em REPETIR depois que todos os sons pararem para tentar de novo. Clique em CANCELAR para jogar SEM som.</translation>
    </message>
</context>
<context>
    <name>frmSelect</name>
    <message>
        <source>PLOV(tm) Quizzarr! QA Files (*.QZ2)|*.QZ2</source>
        <translation>Arquivos de perguntas do PLOV(tm) Quizzarr! (*.QZ2)|*.QZ2</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>To a floppy disk (A:)...</source>
        <translation>Para um disquete (A:)...</translation>
    </message>
    <message>
        <source>To another drive...</source>
        <translation>Para outra unidade...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>From a floppy disk (A:)...</source>
        <translation>De um disquete (A:)...</translation>
    </message>
    <message>
        <source>From another drive...</source>
        <translation>De outra unidade...</translation>
    </message>
    <message>
        <source>Export Question File To</source>
        <translation>Exportar arquivo de perguntas para</translation>
    </message>
    <message>
        <source>Export File Failure<byte value="xd"/>
%1</source>
        <translation>Falha ao exportar o arquivo<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>Select Question File To Import</source>
        <translation>Escolha o arquivo de perguntas a importar</translation>
    </message>
    <message>
        <source>Import File Failure<byte value="xd"/>
%1</source>
        <translation>Falha ao importar o arquivo<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>No scoring</source>
        <translation>Sem pontuação</translation>
    </message>
    <message>
        <source>One team</source>
        <translation>Uma equipe</translation>
    </message>
    <message>
        <source>Two teams</source>
        <translation>Duas equipes</translation>
    </message>
    <message>
        <source>Three teams</source>
        <translation>Três equipes</translation>
    </message>
    <message>
        <source>Four teams</source>
        <translation>Quatro equipes</translation>
    </message>
    <message>
        <source>Five teams</source>
        <translation>Cinco equipes</translation>
    </message>
    <message>
        <source>Six teams</source>
        <translation>Seis equipes</translation>
    </message>
    <message>
        <source>Seven teams</source>
        <translation>Sete equipes</translation>
    </message>
    <message>
        <source>Eight teams</source>
        <translation>Oito equipes</translation>
    </message>
    <message>
        <source>Nine teams</source>
        <translation>Nove equipes</translation>
    </message>
    <message>
        <source>Ten teams!</source>
        <translation>Dez equipes!</translation>
    </message>
    <message>
        <source>Select the question set to use</source>
        <translation>Escolha o conjunto de perguntas</translation>
    </message>
    <message>
        <source>Keep score for:</source>
        <translation>Pontos para:</translation>
    </message>
    <message>
        <source>Buzz in</source>
        <translation>Campainha</translation>
    </message>
    <message>
        <source>Buzzers…</source>
        <translation>Campainhas…</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>Celulares</translation>
    </message>
    <message>
        <source>The phones cannot be used: no network port from %1 on is free on this computer.</source>
        <translation>Não é possível usar os celulares: nenhuma porta de rede a partir da %1 está livre neste computador.</translation>
    </message>
    <message>
        <source>Start Game</source>
        <translation>Iniciar jogo</translation>
    </message>
    <message>
        <source>Question Editor/Creator</source>
        <translation>Editor de perguntas</translation>
    </message>
    <message>
        <source>How To Play</source>
        <translation>Como jogar</translation>
    </message>
    <message>
        <source>&gt;&gt; Export File</source>
        <translation>&gt;&gt; Exportar arquivo</translation>
    </message>
    <message>
        <source>&lt;&lt; Import File(s)</source>
        <translation>&lt;&lt; Importar arquivos</translation>
    </message>
    <message>
        <source>Please select a question set to use before starting the game.</source>
        <translation>Escolha um conjunto de perguntas antes de iniciar o jogo.</translation>
    </message>
    <message>
        <source>I&apos;m sorry, but I am unable to locate any valid .QZ2 files.</source>
        <translation>Desculpe, mas não foi encontrado nenhum arquivo .QZ2 válido.</translation>
    </message>
    <message>
        <source>Click YES to edit %1, else click NO to create a new Question set.</source>
        <translation>Clique em SIM para editar %1 ou em NÃO para criar um novo conjunto de perguntas.</translation>
    </message>
</context>
</TS>
