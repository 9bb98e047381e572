<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>BoardGame</name>
    <message>
        <source>Scores</source>
        <translation>Marcador</translation>
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
        <translation>%1, botón %2</translation>
    </message>
    <message>
        <source>%1 is one of the game&apos;s own keys; press another.</source>
        <translation>%1 es una de las teclas propias del juego; pulse otra.</translation>
    </message>
</context>
<context>
    <name>GameJournal</name>
    <message>
        <source>The question set %1 has changed or is gone since the game was interrupted, so the game cannot be resumed.</source>
        <translation>La colección de preguntas %1 ha cambiado o ya no está desde que se interrumpió la partida, así que no se puede reanudar.</translation>
    </message>
    <message>
        <source>Resume the interrupted game of %1?<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>¿Reanudar la partida interrumpida de %1?<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>The final</source>
        <translation>Ronda final</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Ronda %1</translation>
    </message>
</context>
<context>
    <name>GameRules</name>
    <message>
        <source>Team %1</source>
        <translation>Equipo %1</translation>
    </message>
    <message>
        <source>  TIED</source>
        <translation>  EMPATE</translation>
    </message>
    <message>
        <source>  WINNER</source>
        <translation>  GANADOR</translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>Starting</source>
        <translation>Para empezar</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Cómo se juega</translation>
    </message>
    <message>
        <source>Special Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Puntuación</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>Click on the question/answer file you wish to use, then click on Start Game.</source>
        <translation>Haga clic en la colección de preguntas que quiera usar y, después, en Iniciar partida.</translation>
    </message>
    <message>
        <source>Clicking on any one of the categories will display all the categories, one at a time. You must wait until this is finished to continue. This should be done once, just after the board has been set up, just like in the real game on TV.</source>
        <translation>Al hacer clic en cualquiera de las categorías, aparecen todas las categorías, una tras otra. Espere a que termine el desfile antes de continuar. Conviene hacerlo una vez, justo después de que aparezca el tablero.</translation>
    </message>
    <message>
        <source>Two daily doubles are picked at random for each game and round.</source>
        <translation>En cada partida se eligen al azar dos pistas sorpresa por ronda.</translation>
    </message>
    <message>
        <source>In order to display an answer, click on the dollar amount. Once the answer has been displayed for at least three seconds, you can click on the answer to reveal the question. Three seconds later, you can click on the question to return to the board.</source>
        <translation>Para mostrar una pista, haga clic en su valor ($). Cuando la pista lleve al menos tres segundos en pantalla, puede hacer clic en ella para descubrir la pregunta. Tres segundos después, un clic en la pregunta le devuelve al tablero.</translation>
    </message>
    <message>
        <source>The three second delay keeps you from accidently clicking too fast.</source>
        <translation>La espera de tres segundos evita que se salte un paso por hacer clic demasiado deprisa.</translation>
    </message>
    <message>
        <source>For Final Quizzarr, after the answer is displayed, you will have to wait the ENTIRE 30 seconds to click to show the question. Once the question is displayed, clicking on the empty board will take you back to the file selection screen.</source>
        <translation>En la Final Quizzarr, una vez mostrada la pista, tendrá que esperar los 30 segundos COMPLETOS antes de poder mostrar la pregunta con un clic. Con la pregunta en pantalla, un clic en el tablero vacío le lleva de vuelta a la pantalla de selección de colecciones.</translation>
    </message>
    <message>
        <source>If you accidently display an answer, you can click while holding SHIFT, ALT and CTRL on an answer already displayed and the answer will return to the play board.</source>
        <translation>Si abre una pista por error, haga clic en ella manteniendo pulsadas MAYÚS, ALT y CTRL, y la pista volverá al tablero.</translation>
    </message>
    <message>
        <source>Likewise, if you want to remove an answer from play, you can click while holding SHIFT, ALT and CTRL on an answer and the answer will be removed from the play board.</source>
        <translation>Del mismo modo, si quiere retirar una pista del juego, haga clic en ella manteniendo pulsadas MAYÚS, ALT y CTRL, y la pista desaparecerá del tablero.</translation>
    </message>
    <message>
        <source>Pressing SHIFT, ALT, CTRL and N will prematurely end the round and start the next round.</source>
        <translation>Al pulsar MAYÚS, ALT, CTRL y N, la ronda termina antes de tiempo y empieza la siguiente.</translation>
    </message>
    <message>
        <source>Pressing SHIFT, ALT, CTRL and Q will prematurely end the game and take you back to the file selection screen.</source>
        <translation>Al pulsar MAYÚS, ALT, CTRL y Q, la partida termina antes de tiempo y el juego vuelve a la pantalla de selección de colecciones.</translation>
    </message>
    <message>
        <source>To keep score, select the number of teams before clicking Start Game.</source>
        <translation>Para llevar el marcador, elija el número de equipos antes de hacer clic en Iniciar partida.</translation>
    </message>
    <message>
        <source>Once the answer and question has been clicked on and the playing board is shown, press 1 to add the point value to team 1, 2 to add the point value to team 2, ad nauseum. Press 0 to add the point value to team 10.</source>
        <translation>Cuando ya se hayan mostrado la pista y la pregunta y vuelva a verse el tablero, pulse 1 para sumar el valor de la casilla al equipo 1, 2 para sumarlo al equipo 2, y así sucesivamente. Pulse 0 para sumarlo al equipo 10.</translation>
    </message>
    <message>
        <source>If you wish to subtract the point value from a team, press SHIFT with the team number.</source>
        <translation>Para restar el valor a un equipo, pulse MAYÚS junto con el número del equipo.</translation>
    </message>
    <message>
        <source>For Daily Doubles and Final Quizzarr, the point value is reset to $100 to allow you to add (or subtract) the appropriate number of points.</source>
        <translation>En las pistas sorpresa y en la Final Quizzarr, el valor vuelve a $100 para que pueda sumar (o restar) los puntos que correspondan.</translation>
    </message>
    <message>
        <source>To create or edit your own question/answer file, click on Question Editor/Creator and use the new editor to create the new QZ2 files. </source>
        <translation>Para crear o editar sus propias colecciones de preguntas, haga clic en Editor de preguntas y cree con él los nuevos archivos QZ2. </translation>
    </message>
    <message>
        <source>To migrate your old QZA files, just OPEN the old file and SAVE AS to automatically convert it to the new format.</source>
        <translation>Para aprovechar sus antiguos archivos QZA, basta con ABRIR el archivo antiguo y usar GUARDAR COMO: se convertirá automáticamente al nuevo formato.</translation>
    </message>
</context>
<context>
    <name>HostSheet</name>
    <message>
        <source>Final</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>picture: %1</source>
        <translation>imagen: %1</translation>
    </message>
    <message>
        <source>Answer time: %1 seconds. Clue, then the response in bold.</source>
        <translation>Tiempo para responder: %1 segundos. Primero la pista y, en negrita, la respuesta.</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Ronda %1</translation>
    </message>
</context>
<context>
    <name>JoinScreen</name>
    <message>
        <source>Play on your phone</source>
        <translation>Juega con tu móvil</translation>
    </message>
    <message>
        <source>Scan the code, or open:</source>
        <translation>Escanea el código o abre:</translation>
    </message>
    <message>
        <source>Room code:</source>
        <translation>Código de sala:</translation>
    </message>
    <message>
        <source>1 player has joined</source>
        <translation>Ya hay 1 jugador</translation>
    </message>
    <message>
        <source>%1 players have joined</source>
        <translation>Ya hay %1 jugadores</translation>
    </message>
</context>
<context>
    <name>JoystickReader</name>
    <message>
        <source>SDL2 (libSDL2-2.0.so.0) could not be loaded</source>
        <translation>No se pudo cargar SDL2 (libSDL2-2.0.so.0)</translation>
    </message>
    <message>
        <source>SDL2 could not start its joysticks</source>
        <translation>SDL2 no pudo iniciar los joysticks</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>is missing</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>is too large (%1 MB)</source>
        <translation>es demasiado grande (%1 MB)</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>cannot be read as a picture (%1)</source>
        <translation>no se puede leer como imagen (%1)</translation>
    </message>
</context>
<context>
    <name>QtFileDialog</name>
    <message>
        <source>%1
The folder does not exist.
Check the path and try again.</source>
        <translation>%1
La carpeta no existe.
Compruebe la ruta e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>%1
This file is set to read-only.
Try again with a different file name.</source>
        <translation>%1
Este archivo es de solo lectura.
Inténtelo de nuevo con otro nombre de archivo.</translation>
    </message>
    <message>
        <source>%1
This file does not exist.
Do you want to create it?</source>
        <translation>%1
Este archivo no existe.
¿Desea crearlo?</translation>
    </message>
</context>
<context>
    <name>QuestionTable</name>
    <message>
        <source>row %1 (&quot;%2&quot;)</source>
        <translation>fila %1 («%2»)</translation>
    </message>
    <message>
        <source>round</source>
        <translation>ronda</translation>
    </message>
    <message>
        <source>category</source>
        <translation>categoría</translation>
    </message>
    <message>
        <source>clue</source>
        <translation>pista</translation>
    </message>
    <message>
        <source>response</source>
        <translation>respuesta</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>imagen</translation>
    </message>
    <message>
        <source>round %1</source>
        <translation>la ronda %1</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>fila %1</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>filas %1</translation>
    </message>
    <message>
        <source>the table is empty; its first row must name the columns Round, Category, Clue and Response</source>
        <extracomment>Round, Category, Clue and Response are the names a table&apos;s columns must have, in English.</extracomment>
        <translation>la tabla está vacía; su primera fila debe llevar los nombres de columna Round, Category, Clue y Response (en inglés)</translation>
    </message>
    <message>
        <source>%1, column %2 (%3)</source>
        <translation>%1, columna %2 (%3)</translation>
    </message>
    <message>
        <source>%1, column %2: a second column %3 (the first is column %4)</source>
        <translation>%1, columna %2: una segunda columna %3 (la primera es la columna %4)</translation>
    </message>
    <message>
        <source>%1: the header has no columns %2; one of the first ten filled rows must name the columns Round, Category, Clue and Response</source>
        <extracomment>Round, Category, Clue and Response are the names a table&apos;s columns must have, in English.</extracomment>
        <translation>%1: al encabezado le faltan las columnas %2; una de las diez primeras filas con datos debe llevar los nombres de columna Round, Category, Clue y Response (en inglés)</translation>
    </message>
    <message>
        <source>%1: the header has no column %2; one of the first ten filled rows must name the columns Round, Category, Clue and Response</source>
        <translation>%1: al encabezado le falta la columna %2; una de las diez primeras filas con datos debe llevar los nombres de columna Round, Category, Clue y Response (en inglés)</translation>
    </message>
    <message>
        <source>%1: the %2 is empty</source>
        <translation>%1: la %2 está vacía</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 is not a round; write 1, 2 or Final</source>
        <translation>%1: %2 no es una ronda; escriba 1, 2 o Final</translation>
    </message>
    <message>
        <source>%1: a seventh category, %2, in %3; a round holds at most 6</source>
        <translation>%1: una séptima categoría, %2, en %3; una ronda tiene como máximo 6</translation>
    </message>
    <message>
        <source>%1: a sixth clue for %2 in %3 (five are in %4); a category holds 5</source>
        <translation>%1: una sexta pista para %2 en %3 (ya hay cinco, en %4); una categoría tiene 5</translation>
    </message>
    <message>
        <source>%1: a second Final row (the first is row %2); a set has one final clue</source>
        <translation>%1: una segunda fila Final (la primera es la fila %2); una colección tiene una sola pista final</translation>
    </message>
    <message>
        <source>%1: %2 (%3) in %4 is spelled otherwise than %5 (%6); the five rows of a category name it alike</source>
        <translation>%1: la categoría %2 (%3) de %4 está escrita de otra forma que %5 (%6); las cinco filas de una categoría deben escribirla igual</translation>
    </message>
    <message>
        <source>%1: %2 in %3 has %4 clue (%5); a category needs 5</source>
        <translation>%1: la categoría %2 de %3 tiene %4 pista (%5); una categoría necesita 5</translation>
    </message>
    <message>
        <source>%1: %2 in %3 has %4 clues (%5); a category needs 5</source>
        <translation>%1: la categoría %2 de %3 tiene %4 pistas (%5); una categoría necesita 5</translation>
    </message>
    <message>
        <source>no row of round 1 (round 2 starts at %1); a set starts with round 1</source>
        <translation>ninguna fila de la ronda 1 (la ronda 2 empieza en la %1); una colección empieza por la ronda 1</translation>
    </message>
    <message>
        <source>no row of round 1 below the header (%1); a set needs at least one category of round 1</source>
        <translation>ninguna fila de la ronda 1 debajo del encabezado (%1); una colección necesita al menos una categoría de la ronda 1</translation>
    </message>
    <message>
        <source>no Final row; a set needs one final clue, a row whose Round is Final</source>
        <translation>ninguna fila Final; una colección necesita una pista final, es decir, una fila cuya columna Round diga Final</translation>
    </message>
    <message>
        <source>a line break inside the text; a set holds every text on one line</source>
        <translation>un salto de línea dentro del texto; en una colección, cada texto ocupa una sola línea</translation>
    </message>
    <message>
        <source>a control character (U+%1) inside the text</source>
        <translation>un carácter de control (U+%1) dentro del texto</translation>
    </message>
    <message>
        <source>%1 characters; a text holds at most %2</source>
        <translation>%1 caracteres; un texto admite como máximo %2</translation>
    </message>
</context>
<context>
    <name>ReadableFile</name>
    <message>
        <source>no such file</source>
        <translation>el archivo no existe</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>not an ordinary file</source>
        <translation>no es un archivo normal</translation>
    </message>
</context>
<context>
    <name>RevealPanel</name>
    <message>
        <source>(no response)</source>
        <translation>(sin respuesta)</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>Right!</source>
        <translation>¡Correcto!</translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>Incorrecto</translation>
    </message>
</context>
<context>
    <name>TableFiles</name>
    <message>
        <source>%1 inside is damaged (XML error in line %2: %3)</source>
        <translation>%1, dentro del archivo, está dañado (error XML en la línea %2: %3)</translation>
    </message>
    <message>
        <source>a damaged zip container</source>
        <translation>un contenedor zip dañado</translation>
    </message>
    <message>
        <source>a zip container, but neither an .xlsx workbook nor an .ods spreadsheet</source>
        <translation>un contenedor zip, pero no es ni un libro .xlsx ni una hoja de cálculo .ods</translation>
    </message>
    <message>
        <source>not a zip container, so not a workbook: the file is damaged or only named so</source>
        <translation>no es un contenedor zip y, por tanto, tampoco un libro: el archivo está dañado o solo lleva esa extensión</translation>
    </message>
    <message>
        <source>not a spreadsheet; .csv, .xlsx and .ods files are read</source>
        <translation>no es una hoja de cálculo; se leen archivos .csv, .xlsx y .ods</translation>
    </message>
    <message>
        <source>%1 MB is too large for a question set&apos;s table</source>
        <translation>%1 MB es demasiado para la tabla de una colección de preguntas</translation>
    </message>
    <message>
        <source>more than %1 filled rows by row %2; a question set&apos;s table has at most 62</source>
        <translation>más de %1 filas con datos al llegar a la fila %2; la tabla de una colección de preguntas tiene como máximo 62</translation>
    </message>
    <message>
        <source>%1 inside is too large for a question set&apos;s table</source>
        <translation>%1, dentro del archivo, es demasiado grande para la tabla de una colección de preguntas</translation>
    </message>
    <message>
        <source>%1 inside is damaged (a tag with over %2 attributes)</source>
        <translation>%1, dentro del archivo, está dañado (una etiqueta con más de %2 atributos)</translation>
    </message>
    <message>
        <source>an old Excel workbook (.xls); save it as .xlsx or .csv</source>
        <translation>un libro de Excel antiguo (.xls); guárdelo como .xlsx o .csv</translation>
    </message>
    <message>
        <source>a spreadsheet is written as .csv or .xlsx</source>
        <translation>una hoja de cálculo se guarda como .csv o .xlsx</translation>
    </message>
    <message>
        <source>%1 is missing from the zip container</source>
        <translation>falta %1 en el contenedor zip</translation>
    </message>
    <message>
        <source>%1 inside is damaged or encrypted</source>
        <translation>%1, dentro del archivo, está dañado o cifrado</translation>
    </message>
    <message>
        <source>%1 inside is damaged (zip error %2)</source>
        <translation>%1, dentro del archivo, está dañado (error zip %2)</translation>
    </message>
    <message>
        <source>%1 (libxlsxwriter) could not be loaded</source>
        <translation>no se pudo cargar %1 (libxlsxwriter)</translation>
    </message>
    <message>
        <source>no temporary file for the workbook</source>
        <translation>no se pudo crear un archivo temporal para el libro</translation>
    </message>
    <message>
        <source>row %1: a quotation mark opens a text that never ends</source>
        <translation>fila %1: unas comillas abren un texto que nunca se cierra</translation>
    </message>
</context>
<context>
    <name>WriteFileReplacing</name>
    <message>
        <source>A file cannot be copied onto itself.</source>
        <translation>Un archivo no se puede copiar sobre sí mismo.</translation>
    </message>
</context>
<context>
    <name>basPLOVQuzr</name>
    <message>
        <source>Unable to load %1. The game will still work, but with no graphics.</source>
        <translation>No se pudo cargar %1. El juego funcionará igualmente, pero sin gráficos.</translation>
    </message>
    <message>
        <source>Unable to load %1. The game will still work, but with no sounds.</source>
        <translation>No se pudo cargar %1. El juego funcionará igualmente, pero sin sonido.</translation>
    </message>
</context>
<context>
    <name>clsOpenSaveDlg</name>
    <message>
        <source>All Files</source>
        <translation>Todos los archivos</translation>
    </message>
</context>
<context>
    <name>frmBuzzers</name>
    <message>
        <source>Buzzers</source>
        <translation>Pulsadores</translation>
    </message>
    <message>
        <source>Press Learn beside a team, then press that team&apos;s buzzer: a key of a buzzer box or of the keyboard, or a button of a joystick or game controller. The game&apos;s own keys (the digits, BackSpace, Space, + and −) cannot be buzzers.</source>
        <translation>Haga clic en Asignar junto a un equipo y luego presione el pulsador de ese equipo: una tecla de una caja de pulsadores o del teclado, o un botón de un joystick o mando. Las teclas propias del juego (los dígitos, Retroceso, Espacio, + y −) no pueden servir de pulsador.</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>Asignar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Press %1&apos;s buzzer now (Escape: stop).</source>
        <translation>Presione ahora el pulsador de %1 (Esc: parar).</translation>
    </message>
    <message>
        <source>Buzz-in is on.</source>
        <translation>Pulsadores activados.</translation>
    </message>
    <message>
        <source>Buzz-in is off.</source>
        <translation>Pulsadores desactivados.</translation>
    </message>
    <message>
        <source>waiting for a press…</source>
        <translation>esperando una pulsación…</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Joysticks cannot be read: %1.</source>
        <translation>No se pueden leer los joysticks: %1.</translation>
    </message>
    <message>
        <source>No joystick or game controller is plugged in.</source>
        <translation>No hay ningún joystick ni mando conectado.</translation>
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
        <translation>Móviles</translation>
    </message>
    <message>
        <source>Join screen (J)</source>
        <translation>Cómo unirse (J)</translation>
    </message>
    <message>
        <source>Remove player</source>
        <translation>Quitar jugador</translation>
    </message>
    <message>
        <source>Room %1 — %2</source>
        <translation>Sala %1 — %2</translation>
    </message>
    <message>
        <source>Daily double for:</source>
        <translation>Pista sorpresa para:</translation>
    </message>
    <message>
        <source>The final: each team&apos;s wager and response</source>
        <translation>Ronda final: apuesta y respuesta de cada equipo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>Incorrecto</translation>
    </message>
    <message>
        <source>Reveal the next team</source>
        <translation>Mostrar siguiente equipo</translation>
    </message>
    <message>
        <source>(choose the team)</source>
        <translation>(elija el equipo)</translation>
    </message>
    <message>
        <source>Daily double for (wager $ %1):</source>
        <translation>Pista sorpresa para (apuesta: $ %1):</translation>
    </message>
    <message>
        <source>no wager</source>
        <translation>sin apuesta</translation>
    </message>
    <message>
        <source> — “%1”</source>
        <translation> — «%1»</translation>
    </message>
    <message>
        <source> (shown)</source>
        <translation> (mostrada)</translation>
    </message>
    <message>
        <source>No clue open</source>
        <translation>Ninguna pista abierta</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Espere</translation>
    </message>
    <message>
        <source>Show the final category</source>
        <translation>Mostrar la categoría final</translation>
    </message>
    <message>
        <source>Show the final clue</source>
        <translation>Mostrar la pista final</translation>
    </message>
    <message>
        <source>Show the clue</source>
        <translation>Mostrar la pista</translation>
    </message>
    <message>
        <source>Reveal the response</source>
        <translation>Mostrar la respuesta</translation>
    </message>
    <message>
        <source>Close the clue</source>
        <translation>Cerrar la pista</translation>
    </message>
    <message>
        <source>Think music: %1 s left</source>
        <translation>Música para pensar: quedan %1 s</translation>
    </message>
    <message>
        <source>Locked: %1 s</source>
        <translation>Bloqueo: %1 s</translation>
    </message>
    <message>
        <source>Host&apos;s console</source>
        <translation>Panel del presentador</translation>
    </message>
    <message>
        <source>End round</source>
        <translation>Acabar ronda</translation>
    </message>
    <message>
        <source>End game</source>
        <translation>Acabar partida</translation>
    </message>
    <message>
        <source>Switch screens</source>
        <translation>Cambiar pantallas</translation>
    </message>
    <message>
        <source>End this round now? The tiles left in it will not be played.</source>
        <translation>¿Terminar ya esta ronda? Las casillas que quedan en ella no se jugarán.</translation>
    </message>
    <message>
        <source>End the game now, without the standings?</source>
        <translation>¿Terminar ya la partida, sin mostrar la clasificación?</translation>
    </message>
    <message>
        <source>Parade the titles</source>
        <translation>Presentar las categorías una a una</translation>
    </message>
    <message>
        <source>Buzz in</source>
        <translation>Pulsadores</translation>
    </message>
    <message>
        <source>Buzzers…</source>
        <translation>Configurar…</translation>
    </message>
    <message>
        <source>Buzzers off</source>
        <translation>Pulsadores desactivados</translation>
    </message>
    <message>
        <source>Buzzers OPEN</source>
        <translation>Pulsadores ABIERTOS</translation>
    </message>
    <message>
        <source>Buzzers closed</source>
        <translation>Pulsadores cerrados</translation>
    </message>
    <message>
        <source>Close (Space)</source>
        <translation>Cerrar (Espacio)</translation>
    </message>
    <message>
        <source>Open (Space)</source>
        <translation>Abrir (Espacio)</translation>
    </message>
    <message>
        <source> +%1 s</source>
        <translation> +%1 s</translation>
    </message>
    <message>
        <source> (wrong)</source>
        <translation> (falló)</translation>
    </message>
    <message>
        <source>Too early: %1</source>
        <translation>Muy pronto: %1</translation>
    </message>
    <message>
        <source>Right (+): %1</source>
        <translation>Correcto (+): %1</translation>
    </message>
    <message>
        <source>Right (+)</source>
        <translation>Correcto (+)</translation>
    </message>
    <message>
        <source>Wrong (−): %1</source>
        <translation>Incorrecto (−): %1</translation>
    </message>
    <message>
        <source>Wrong (−)</source>
        <translation>Incorrecto (−)</translation>
    </message>
    <message>
        <source>Undo last score</source>
        <translation>Deshacer puntuación</translation>
    </message>
    <message>
        <source>Amount to give (+) or take (−):</source>
        <translation>Puntos que sumar (+) o restar (−):</translation>
    </message>
    <message>
        <source>%1 This cannot be undone.</source>
        <translation>%1 Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>No game running: name the teams, then start a game on the home screen.</source>
        <translation>No hay ninguna partida en curso: ponga nombre a los equipos y luego inicie una partida en la pantalla de inicio.</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Ronda %1</translation>
    </message>
    <message>
        <source>  (daily double)</source>
        <translation>  (pista sorpresa)</translation>
    </message>
    <message>
        <source>Response: %1</source>
        <translation>Respuesta: %1</translation>
    </message>
    <message>
        <source>Choose a value on the board below.</source>
        <translation>Elija un valor en el tablero de abajo.</translation>
    </message>
</context>
<context>
    <name>frmEditor</name>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Secs/Answer:</source>
        <translation>Seg./pista:</translation>
    </message>
    <message>
        <source>Cat. Title:</source>
        <translation>Título cat.:</translation>
    </message>
    <message>
        <source>Answer %1:</source>
        <translation>Pista %1:</translation>
    </message>
    <message>
        <source>Question %1:</source>
        <translation>Pregunta %1:</translation>
    </message>
    <message>
        <source>Rounds:</source>
        <translation>Rondas:</translation>
    </message>
    <message>
        <source>Categories:</source>
        <translation>Categorías:</translation>
    </message>
    <message>
        <source>Round 1</source>
        <translation>Ronda 1</translation>
    </message>
    <message>
        <source>Round 2</source>
        <translation>Ronda 2</translation>
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
        <translation>Editor de preguntas</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Guardar como...</translation>
    </message>
    <message>
        <source>&amp;Print Host Sheet...</source>
        <translation>Im&amp;primir guion...</translation>
    </message>
    <message>
        <source>&amp;Import Spreadsheet...</source>
        <translation>&amp;Importar tabla...</translation>
    </message>
    <message>
        <source>E&amp;xport Spreadsheet...</source>
        <translation>&amp;Exportar tabla...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Would you like to save your work?</source>
        <translation>¿Desea guardar los cambios?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>PLOV(tm) Quizzarr! QA Files (*.QZ2;*.QZA)|*.QZ2;*.QZA</source>
        <translation>Archivos de preguntas PLOV(tm) Quizzarr! (*.QZ2;*.QZA)|*.QZ2;*.QZA</translation>
    </message>
    <message>
        <source>QZ2 Files (*.QZ2)|*.QZ2</source>
        <translation>Archivos QZ2 (*.QZ2)|*.QZ2</translation>
    </message>
    <message>
        <source>Save file error #:%1<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Error n.º %1 al guardar el archivo<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>The set was saved, but its pictures could not all be copied beside it:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>La colección se guardó, pero no se pudieron copiar todas sus imágenes junto a ella:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Remove Picture</source>
        <translation>Quitar imagen</translation>
    </message>
    <message>
        <source>Picture...</source>
        <translation>Imagen...</translation>
    </message>
    <message>
        <source>Choose a picture to show with this clue</source>
        <translation>Elija una imagen para mostrar con esta pista</translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation>%1 (no encontrada)</translation>
    </message>
    <message>
        <source>Choose a Picture for the Clue</source>
        <translation>Elegir una imagen para la pista</translation>
    </message>
    <message>
        <source>Pictures (*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp)|*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp</source>
        <translation>Imágenes (*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp)|*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp</translation>
    </message>
    <message>
        <source>Import Spreadsheet</source>
        <translation>Importar tabla</translation>
    </message>
    <message>
        <source>Spreadsheets (*.csv;*.xlsx;*.ods)|*.csv;*.xlsx;*.ods</source>
        <translation>Hojas de cálculo (*.csv;*.xlsx;*.ods)|*.csv;*.xlsx;*.ods</translation>
    </message>
    <message>
        <source>Cannot read %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>No se puede leer %1:<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Cannot import %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>No se puede importar %1:<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Export Spreadsheet</source>
        <translation>Exportar tabla</translation>
    </message>
    <message>
        <source>Excel Workbook (*.xlsx)|*.xlsx|CSV Text (*.csv)|*.csv</source>
        <translation>Libro de Excel (*.xlsx)|*.xlsx|Texto CSV (*.csv)|*.csv</translation>
    </message>
    <message>
        <source>Export file error #:%1<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Error n.º %1 al exportar el archivo<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>The spreadsheet was written, but it will not import as it is:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>La tabla se guardó, pero tal como está no se podrá importar:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>%1 - host sheet.pdf</source>
        <translation>%1 - guion del presentador.pdf</translation>
    </message>
    <message>
        <source>Question Set</source>
        <translation>Colección de preguntas</translation>
    </message>
    <message>
        <source>Print Host Sheet</source>
        <translation>Imprimir guion del presentador</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)|*.pdf</source>
        <translation>Archivos PDF (*.pdf)|*.pdf</translation>
    </message>
    <message>
        <source>The host sheet could not be written to %1:<byte value="xd"/>
%2</source>
        <translation>No se pudo guardar el guion del presentador en %1:<byte value="xd"/>
%2</translation>
    </message>
</context>
<context>
    <name>frmHowToPlay</name>
    <message>
        <source>How To Play Quizzarr!</source>
        <translation>Cómo jugar a Quizzarr</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Please wait until all sounds playing have stopped, then click OK to start!</source>
        <translation>Espere a que terminen todos los sonidos y luego haga clic en Aceptar para empezar.</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>I am unable to initialize DirectSound. This might be caused if a sound is currently playing. Click RETRY after all sounds have stopped to try again. Click CANCEL to play the game WITHOUT sound.</source>
        <translation>No se puede iniciar DirectSound. Puede deberse a que se está reproduciendo un sonido. Haga clic en REINTENTAR cuando hayan terminado todos los sonidos para volver a intentarlo. Haga clic en CANCELAR para jugar SIN sonido.</translation>
    </message>
</context>
<context>
    <name>frmSelect</name>
    <message>
        <source>PLOV(tm) Quizzarr! QA Files (*.QZ2)|*.QZ2</source>
        <translation>Archivos de preguntas PLOV(tm) Quizzarr! (*.QZ2)|*.QZ2</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>To a floppy disk (A:)...</source>
        <translation>A un disquete (A:)...</translation>
    </message>
    <message>
        <source>To another drive...</source>
        <translation>A otra unidad...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>From a floppy disk (A:)...</source>
        <translation>Desde un disquete (A:)...</translation>
    </message>
    <message>
        <source>From another drive...</source>
        <translation>Desde otra unidad...</translation>
    </message>
    <message>
        <source>Export Question File To</source>
        <translation>Exportar archivo de preguntas a</translation>
    </message>
    <message>
        <source>Export File Failure<byte value="xd"/>
%1</source>
        <translation>Error al exportar el archivo<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>Select Question File To Import</source>
        <translation>Seleccionar el archivo de preguntas que importar</translation>
    </message>
    <message>
        <source>Import File Failure<byte value="xd"/>
%1</source>
        <translation>Error al importar el archivo<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>No scoring</source>
        <translation>Sin marcador</translation>
    </message>
    <message>
        <source>One team</source>
        <translation>Un equipo</translation>
    </message>
    <message>
        <source>Two teams</source>
        <translation>Dos equipos</translation>
    </message>
    <message>
        <source>Three teams</source>
        <translation>Tres equipos</translation>
    </message>
    <message>
        <source>Four teams</source>
        <translation>Cuatro equipos</translation>
    </message>
    <message>
        <source>Five teams</source>
        <translation>Cinco equipos</translation>
    </message>
    <message>
        <source>Six teams</source>
        <translation>Seis equipos</translation>
    </message>
    <message>
        <source>Seven teams</source>
        <translation>Siete equipos</translation>
    </message>
    <message>
        <source>Eight teams</source>
        <translation>Ocho equipos</translation>
    </message>
    <message>
        <source>Nine teams</source>
        <translation>Nueve equipos</translation>
    </message>
    <message>
        <source>Ten teams!</source>
        <translation>¡Diez equipos!</translation>
    </message>
    <message>
        <source>Select the question set to use</source>
        <translation>Elija la colección de preguntas</translation>
    </message>
    <message>
        <source>Keep score for:</source>
        <translation>Marcador para:</translation>
    </message>
    <message>
        <source>Buzz in</source>
        <translation>Pulsadores</translation>
    </message>
    <message>
        <source>Buzzers…</source>
        <translation>Configurar…</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>Móviles</translation>
    </message>
    <message>
        <source>The phones cannot be used: no network port from %1 on is free on this computer.</source>
        <translation>No se pueden usar los móviles: no hay ningún puerto de red libre a partir del %1.</translation>
    </message>
    <message>
        <source>Start Game</source>
        <translation>Iniciar partida</translation>
    </message>
    <message>
        <source>Question Editor/Creator</source>
        <translation>Editor de preguntas</translation>
    </message>
    <message>
        <source>How To Play</source>
        <translation>Cómo jugar</translation>
    </message>
    <message>
        <source>&gt;&gt; Export File</source>
        <translation>&gt;&gt; Exportar archivo</translation>
    </message>
    <message>
        <source>&lt;&lt; Import File(s)</source>
        <translation>&lt;&lt; Importar archivo(s)</translation>
    </message>
    <message>
        <source>Please select a question set to use before starting the game.</source>
        <translation>Elija una colección de preguntas antes de iniciar la partida.</translation>
    </message>
    <message>
        <source>I&apos;m sorry, but I am unable to locate any valid .QZ2 files.</source>
        <translation>Lo siento, pero no encuentro ningún archivo .QZ2 válido.</translation>
    </message>
    <message>
        <source>Click YES to edit %1, else click NO to create a new Question set.</source>
        <translation>Haga clic en SÍ para editar %1 o en NO para crear una colección de preguntas nueva.</translation>
    </message>
</context>
</TS>
