<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>BoardGame</name>
    <message>
        <source>Scores</source>
        <translation>Punktestand</translation>
    </message>
</context>
<context>
    <name>BuzzerInputs</name>
    <message>
        <source>key %1</source>
        <translation>Taste %1</translation>
    </message>
    <message>
        <source>%1, button %2</source>
        <translation>%1, Knopf %2</translation>
    </message>
    <message>
        <source>%1 is one of the game&apos;s own keys; press another.</source>
        <translation>%1 ist eine Taste des Spiels selbst; bitte drücken Sie eine andere.</translation>
    </message>
</context>
<context>
    <name>GameJournal</name>
    <message>
        <source>The question set %1 has changed or is gone since the game was interrupted, so the game cannot be resumed.</source>
        <translation>Das Fragenset %1 wurde seit der Unterbrechung geändert oder entfernt; das Spiel kann deshalb nicht fortgesetzt werden.</translation>
    </message>
    <message>
        <source>Resume the interrupted game of %1?<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Das unterbrochene Spiel mit %1 fortsetzen?<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>The final</source>
        <translation>Finalrunde</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Runde %1</translation>
    </message>
</context>
<context>
    <name>GameRules</name>
    <message>
        <source>Team %1</source>
        <translation>Team %1</translation>
    </message>
    <message>
        <source>  TIED</source>
        <translation>  GLEICHSTAND</translation>
    </message>
    <message>
        <source>  WINNER</source>
        <translation>  GEWINNT</translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>Starting</source>
        <translation>Spielbeginn</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Spielablauf</translation>
    </message>
    <message>
        <source>Special Keys</source>
        <translation>Sondertasten</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Punkte zählen</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Click on the question/answer file you wish to use, then click on Start Game.</source>
        <translation>Klicken Sie auf das Fragenset, mit dem Sie spielen möchten, und dann auf „Spiel starten“.</translation>
    </message>
    <message>
        <source>Clicking on any one of the categories will display all the categories, one at a time. You must wait until this is finished to continue. This should be done once, just after the board has been set up, just like in the real game on TV.</source>
        <translation>Ein Klick auf eine beliebige Kategorie stellt alle Kategorien nacheinander vor. Warten Sie, bis alle gezeigt wurden, bevor Sie weiterspielen. Machen Sie das einmal, gleich nachdem das Spielfeld aufgebaut ist – so kennen alle die Kategorien, bevor es losgeht.</translation>
    </message>
    <message>
        <source>Two daily doubles are picked at random for each game and round.</source>
        <translation>In jedem Spiel werden pro Runde zwei Einsatzfragen zufällig festgelegt.</translation>
    </message>
    <message>
        <source>In order to display an answer, click on the dollar amount. Once the answer has been displayed for at least three seconds, you can click on the answer to reveal the question. Three seconds later, you can click on the question to return to the board.</source>
        <translation>Um eine Antwort anzuzeigen, klicken Sie auf ihren $-Betrag. Sobald die Antwort mindestens drei Sekunden lang zu sehen war, können Sie auf sie klicken, um die Frage aufzudecken. Drei Sekunden später bringt Sie ein Klick auf die Frage zurück zum Spielfeld.</translation>
    </message>
    <message>
        <source>The three second delay keeps you from accidently clicking too fast.</source>
        <translation>Die Wartezeit von drei Sekunden verhindert, dass Sie versehentlich zu schnell weiterklicken.</translation>
    </message>
    <message>
        <source>For Final Quizzarr, after the answer is displayed, you will have to wait the ENTIRE 30 seconds to click to show the question. Once the question is displayed, clicking on the empty board will take you back to the file selection screen.</source>
        <translation>Im Quizzarr-Finale müssen Sie, nachdem die Antwort angezeigt wurde, die GANZEN 30 Sekunden abwarten, bevor Sie die Frage per Klick aufdecken können. Sobald die Frage zu sehen ist, gelangen Sie mit einem Klick auf das leere Spielfeld zurück zum Startbildschirm.</translation>
    </message>
    <message>
        <source>If you accidently display an answer, you can click while holding SHIFT, ALT and CTRL on an answer already displayed and the answer will return to the play board.</source>
        <translation>Haben Sie versehentlich eine Antwort geöffnet, klicken Sie bei gedrückter Umschalt-, Alt- und Strg-Taste auf die angezeigte Antwort; sie kehrt dann auf das Spielfeld zurück.</translation>
    </message>
    <message>
        <source>Likewise, if you want to remove an answer from play, you can click while holding SHIFT, ALT and CTRL on an answer and the answer will be removed from the play board.</source>
        <translation>Ebenso können Sie eine Antwort aus dem Spiel nehmen: Klicken Sie bei gedrückter Umschalt-, Alt- und Strg-Taste auf die Antwort, dann wird sie vom Spielfeld entfernt.</translation>
    </message>
    <message>
        <source>Pressing SHIFT, ALT, CTRL and N will prematurely end the round and start the next round.</source>
        <translation>Mit Umschalt+Alt+Strg+N beenden Sie die Runde vorzeitig und beginnen die nächste Runde.</translation>
    </message>
    <message>
        <source>Pressing SHIFT, ALT, CTRL and Q will prematurely end the game and take you back to the file selection screen.</source>
        <translation>Mit Umschalt+Alt+Strg+Q beenden Sie das Spiel vorzeitig und kehren zum Startbildschirm zurück.</translation>
    </message>
    <message>
        <source>To keep score, select the number of teams before clicking Start Game.</source>
        <translation>Wenn Sie Punkte zählen möchten, wählen Sie die Anzahl der Teams, bevor Sie auf „Spiel starten“ klicken.</translation>
    </message>
    <message>
        <source>Once the answer and question has been clicked on and the playing board is shown, press 1 to add the point value to team 1, 2 to add the point value to team 2, ad nauseum. Press 0 to add the point value to team 10.</source>
        <translation>Sobald Antwort und Frage angeklickt wurden und wieder das Spielfeld zu sehen ist, drücken Sie 1, um Team 1 den Punktwert gutzuschreiben, 2 für Team 2 und so weiter. Mit 0 geht der Punktwert an Team 10.</translation>
    </message>
    <message>
        <source>If you wish to subtract the point value from a team, press SHIFT with the team number.</source>
        <translation>Um einem Team den Punktwert abzuziehen, drücken Sie Umschalt zusammen mit der Teamnummer.</translation>
    </message>
    <message>
        <source>For Daily Doubles and Final Quizzarr, the point value is reset to $100 to allow you to add (or subtract) the appropriate number of points.</source>
        <translation>Bei Einsatzfragen und im Quizzarr-Finale wird der Punktwert auf $100 zurückgesetzt, damit Sie die passende Punktzahl gutschreiben (oder abziehen) können.</translation>
    </message>
    <message>
        <source>To create or edit your own question/answer file, click on Question Editor/Creator and use the new editor to create the new QZ2 files. </source>
        <translation>Um ein eigenes Fragenset zu erstellen oder zu bearbeiten, klicken Sie auf „Fragenset-Editor“ und legen Sie im neuen Editor neue QZ2-Dateien an. </translation>
    </message>
    <message>
        <source>To migrate your old QZA files, just OPEN the old file and SAVE AS to automatically convert it to the new format.</source>
        <translation>Um Ihre alten QZA-Dateien zu übernehmen, öffnen Sie die alte Datei einfach mit „Öffnen“ und speichern Sie sie mit „Speichern unter“ – sie wird dabei automatisch in das neue Format umgewandelt.</translation>
    </message>
</context>
<context>
    <name>HostSheet</name>
    <message>
        <source>Final</source>
        <translation>Finalrunde</translation>
    </message>
    <message>
        <source>picture: %1</source>
        <translation>Bild: %1</translation>
    </message>
    <message>
        <source>Answer time: %1 seconds. Clue, then the response in bold.</source>
        <translation>Zeit je Antwort: %1 Sekunden. Erst die Antwort, dann fett die Frage.</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Runde %1</translation>
    </message>
</context>
<context>
    <name>JoinScreen</name>
    <message>
        <source>Play on your phone</source>
        <translation>Mit dem Handy mitspielen</translation>
    </message>
    <message>
        <source>Scan the code, or open:</source>
        <translation>Code scannen oder öffnen:</translation>
    </message>
    <message>
        <source>Room code:</source>
        <translation>Raumcode:</translation>
    </message>
    <message>
        <source>1 player has joined</source>
        <translation>1 Person ist dabei</translation>
    </message>
    <message>
        <source>%1 players have joined</source>
        <translation>%1 Personen sind dabei</translation>
    </message>
</context>
<context>
    <name>JoystickReader</name>
    <message>
        <source>SDL2 (libSDL2-2.0.so.0) could not be loaded</source>
        <translation>SDL2 (libSDL2-2.0.so.0) konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>SDL2 could not start its joysticks</source>
        <translation>SDL2 konnte die Joysticks nicht starten</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>is missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>is too large (%1 MB)</source>
        <translation>ist zu groß (%1 MB)</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>cannot be read as a picture (%1)</source>
        <translation>kann nicht als Bild gelesen werden (%1)</translation>
    </message>
</context>
<context>
    <name>QtFileDialog</name>
    <message>
        <source>%1
The folder does not exist.
Check the path and try again.</source>
        <translation>%1
Dieser Ordner existiert nicht.
Bitte prüfen Sie den Pfad und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1
This file is set to read-only.
Try again with a different file name.</source>
        <translation>%1
Diese Datei ist schreibgeschützt.
Bitte versuchen Sie es mit einem anderen Dateinamen.</translation>
    </message>
    <message>
        <source>%1
This file does not exist.
Do you want to create it?</source>
        <translation>%1
Diese Datei existiert nicht.
Möchten Sie sie anlegen?</translation>
    </message>
</context>
<context>
    <name>QuestionTable</name>
    <message>
        <source>row %1 (&quot;%2&quot;)</source>
        <translation>Zeile %1 („%2“)</translation>
    </message>
    <message>
        <source>round</source>
        <translation>„Round“</translation>
    </message>
    <message>
        <source>category</source>
        <translation>„Category“</translation>
    </message>
    <message>
        <source>clue</source>
        <translation>„Clue“</translation>
    </message>
    <message>
        <source>response</source>
        <translation>„Response“</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>„Picture“</translation>
    </message>
    <message>
        <source>round %1</source>
        <translation>Runde %1</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>Zeilen %1</translation>
    </message>
    <message>
        <source>the table is empty; its first row must name the columns Round, Category, Clue and Response</source>
        <extracomment>Round, Category, Clue and Response are the names a table&apos;s columns must have, in English.</extracomment>
        <translation>die Tabelle ist leer; ihre erste Zeile muss die Spalten „Round“, „Category“, „Clue“ und „Response“ benennen</translation>
    </message>
    <message>
        <source>%1, column %2 (%3)</source>
        <translation>%1, Spalte %2 (%3)</translation>
    </message>
    <message>
        <source>%1, column %2: a second column %3 (the first is column %4)</source>
        <translation>%1, Spalte %2: eine zweite Spalte %3 (die erste ist Spalte %4)</translation>
    </message>
    <message>
        <source>%1: the header has no columns %2; one of the first ten filled rows must name the columns Round, Category, Clue and Response</source>
        <extracomment>Round, Category, Clue and Response are the names a table&apos;s columns must have, in English.</extracomment>
        <translation>%1: In der Kopfzeile fehlen die Spalten %2; eine der ersten zehn ausgefüllten Zeilen muss die Spalten „Round“, „Category“, „Clue“ und „Response“ benennen</translation>
    </message>
    <message>
        <source>%1: the header has no column %2; one of the first ten filled rows must name the columns Round, Category, Clue and Response</source>
        <translation>%1: In der Kopfzeile fehlt die Spalte %2; eine der ersten zehn ausgefüllten Zeilen muss die Spalten „Round“, „Category“, „Clue“ und „Response“ benennen</translation>
    </message>
    <message>
        <source>%1: the %2 is empty</source>
        <translation>%1: Der Eintrag für %2 fehlt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 is not a round; write 1, 2 or Final</source>
        <translation>%1: %2 ist keine Runde; schreiben Sie 1, 2 oder „Final“</translation>
    </message>
    <message>
        <source>%1: a seventh category, %2, in %3; a round holds at most 6</source>
        <translation>%1: eine siebte Kategorie, %2, in %3; eine Runde hat höchstens 6</translation>
    </message>
    <message>
        <source>%1: a sixth clue for %2 in %3 (five are in %4); a category holds 5</source>
        <translation>%1: eine sechste Zeile für %2 in %3 (fünf stehen schon in %4); eine Kategorie hat 5 Antworten</translation>
    </message>
    <message>
        <source>%1: a second Final row (the first is row %2); a set has one final clue</source>
        <translation>%1: eine zweite „Final“-Zeile (die erste ist Zeile %2); ein Fragenset hat nur eine Antwort für die Finalrunde</translation>
    </message>
    <message>
        <source>%1: %2 (%3) in %4 is spelled otherwise than %5 (%6); the five rows of a category name it alike</source>
        <translation>%1: %2 (%3) in %4 ist anders geschrieben als %5 (%6); alle fünf Zeilen einer Kategorie müssen sie gleich schreiben</translation>
    </message>
    <message>
        <source>%1: %2 in %3 has %4 clue (%5); a category needs 5</source>
        <translation>%1: %2 in %3 hat %4 Antwort (%5); eine Kategorie braucht 5</translation>
    </message>
    <message>
        <source>%1: %2 in %3 has %4 clues (%5); a category needs 5</source>
        <translation>%1: %2 in %3 hat %4 Antworten (%5); eine Kategorie braucht 5</translation>
    </message>
    <message>
        <source>no row of round 1 (round 2 starts at %1); a set starts with round 1</source>
        <translation>keine Zeile für Runde 1 (Runde 2 beginnt in %1); ein Fragenset beginnt mit Runde 1</translation>
    </message>
    <message>
        <source>no row of round 1 below the header (%1); a set needs at least one category of round 1</source>
        <translation>keine Zeile für Runde 1 unter der Kopfzeile (%1); ein Fragenset braucht mindestens eine Kategorie in Runde 1</translation>
    </message>
    <message>
        <source>no Final row; a set needs one final clue, a row whose Round is Final</source>
        <translation>keine „Final“-Zeile; ein Fragenset braucht eine Antwort für die Finalrunde, also eine Zeile mit „Final“ in der Spalte „Round“</translation>
    </message>
    <message>
        <source>a line break inside the text; a set holds every text on one line</source>
        <translation>ein Zeilenumbruch im Text; in einem Fragenset steht jeder Text in einer einzigen Zeile</translation>
    </message>
    <message>
        <source>a control character (U+%1) inside the text</source>
        <translation>ein Steuerzeichen (U+%1) im Text</translation>
    </message>
    <message>
        <source>%1 characters; a text holds at most %2</source>
        <translation>%1 Zeichen; ein Text darf höchstens %2 haben</translation>
    </message>
</context>
<context>
    <name>ReadableFile</name>
    <message>
        <source>no such file</source>
        <translation>Datei nicht vorhanden</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>not an ordinary file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
</context>
<context>
    <name>RevealPanel</name>
    <message>
        <source>(no response)</source>
        <translation>(nichts abgegeben)</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Right!</source>
        <translation>Richtig!</translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>Falsch</translation>
    </message>
</context>
<context>
    <name>TableFiles</name>
    <message>
        <source>%1 inside is damaged (XML error in line %2: %3)</source>
        <translation>%1 in der Datei ist beschädigt (XML-Fehler in Zeile %2: %3)</translation>
    </message>
    <message>
        <source>a damaged zip container</source>
        <translation>ein beschädigter ZIP-Container</translation>
    </message>
    <message>
        <source>a zip container, but neither an .xlsx workbook nor an .ods spreadsheet</source>
        <translation>ein ZIP-Container, aber weder eine .xlsx-Arbeitsmappe noch eine .ods-Tabelle</translation>
    </message>
    <message>
        <source>not a zip container, so not a workbook: the file is damaged or only named so</source>
        <translation>kein ZIP-Container, also keine Arbeitsmappe: Die Datei ist beschädigt oder trägt nur diesen Namen</translation>
    </message>
    <message>
        <source>not a spreadsheet; .csv, .xlsx and .ods files are read</source>
        <translation>keine Tabelle; gelesen werden .csv-, .xlsx- und .ods-Dateien</translation>
    </message>
    <message>
        <source>%1 MB is too large for a question set&apos;s table</source>
        <translation>%1 MB sind zu groß für die Tabelle eines Fragensets</translation>
    </message>
    <message>
        <source>more than %1 filled rows by row %2; a question set&apos;s table has at most 62</source>
        <translation>mehr als %1 ausgefüllte Zeilen bis Zeile %2; die Tabelle eines Fragensets hat höchstens 62</translation>
    </message>
    <message>
        <source>%1 inside is too large for a question set&apos;s table</source>
        <translation>%1 in der Datei ist zu groß für die Tabelle eines Fragensets</translation>
    </message>
    <message>
        <source>%1 inside is damaged (a tag with over %2 attributes)</source>
        <translation>%1 in der Datei ist beschädigt (ein Tag mit über %2 Attributen)</translation>
    </message>
    <message>
        <source>an old Excel workbook (.xls); save it as .xlsx or .csv</source>
        <translation>eine alte Excel-Arbeitsmappe (.xls); speichern Sie sie als .xlsx oder .csv</translation>
    </message>
    <message>
        <source>a spreadsheet is written as .csv or .xlsx</source>
        <translation>eine Tabelle wird als .csv oder .xlsx gespeichert</translation>
    </message>
    <message>
        <source>%1 is missing from the zip container</source>
        <translation>%1 fehlt im ZIP-Container</translation>
    </message>
    <message>
        <source>%1 inside is damaged or encrypted</source>
        <translation>%1 in der Datei ist beschädigt oder verschlüsselt</translation>
    </message>
    <message>
        <source>%1 inside is damaged (zip error %2)</source>
        <translation>%1 in der Datei ist beschädigt (ZIP-Fehler %2)</translation>
    </message>
    <message>
        <source>%1 (libxlsxwriter) could not be loaded</source>
        <translation>%1 (libxlsxwriter) konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>no temporary file for the workbook</source>
        <translation>keine temporäre Datei für die Arbeitsmappe</translation>
    </message>
    <message>
        <source>row %1: a quotation mark opens a text that never ends</source>
        <translation>Zeile %1: Ein Anführungszeichen beginnt einen Text, der nie endet</translation>
    </message>
</context>
<context>
    <name>WriteFileReplacing</name>
    <message>
        <source>A file cannot be copied onto itself.</source>
        <translation>Eine Datei kann nicht auf sich selbst kopiert werden.</translation>
    </message>
</context>
<context>
    <name>basPLOVQuzr</name>
    <message>
        <source>Unable to load %1. The game will still work, but with no graphics.</source>
        <translation>%1 konnte nicht geladen werden. Das Spiel läuft trotzdem, aber ohne Grafik.</translation>
    </message>
    <message>
        <source>Unable to load %1. The game will still work, but with no sounds.</source>
        <translation>%1 konnte nicht geladen werden. Das Spiel läuft trotzdem, aber ohne Ton.</translation>
    </message>
</context>
<context>
    <name>clsOpenSaveDlg</name>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
</context>
<context>
    <name>frmBuzzers</name>
    <message>
        <source>Buzzers</source>
        <translation>Buzzer</translation>
    </message>
    <message>
        <source>Press Learn beside a team, then press that team&apos;s buzzer: a key of a buzzer box or of the keyboard, or a button of a joystick or game controller. The game&apos;s own keys (the digits, BackSpace, Space, + and −) cannot be buzzers.</source>
        <translation>Klicken Sie neben einem Team auf „Anlernen“ und drücken Sie dann den Buzzer dieses Teams: eine Taste einer Buzzer-Box oder der Tastatur oder einen Knopf eines Joysticks oder Gamecontrollers. Die Tasten des Spiels selbst (die Ziffern, Rücktaste, Leertaste, + und −) können keine Buzzer sein.</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>Anlernen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Press %1&apos;s buzzer now (Escape: stop).</source>
        <translation>Drücken Sie jetzt den Buzzer von %1 (Esc: abbrechen).</translation>
    </message>
    <message>
        <source>Buzz-in is on.</source>
        <translation>Buzzern ist eingeschaltet.</translation>
    </message>
    <message>
        <source>Buzz-in is off.</source>
        <translation>Buzzern ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>waiting for a press…</source>
        <translation>warte auf Tastendruck…</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Joysticks cannot be read: %1.</source>
        <translation>Joysticks können nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>No joystick or game controller is plugged in.</source>
        <translation>Kein Joystick oder Gamecontroller angeschlossen.</translation>
    </message>
    <message>
        <source>Plugged in: %1</source>
        <translation>Angeschlossen: %1</translation>
    </message>
</context>
<context>
    <name>frmConsole</name>
    <message>
        <source>Phones</source>
        <translation>Handys</translation>
    </message>
    <message>
        <source>Join screen (J)</source>
        <translation>Anmeldebild (J)</translation>
    </message>
    <message>
        <source>Remove player</source>
        <translation>Person entfernen</translation>
    </message>
    <message>
        <source>Room %1 — %2</source>
        <translation>Raum %1 — %2</translation>
    </message>
    <message>
        <source>Daily double for:</source>
        <translation>Einsatzfrage für:</translation>
    </message>
    <message>
        <source>The final: each team&apos;s wager and response</source>
        <translation>Finalrunde: Einsatz und Frage jedes Teams</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Richtig</translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>Falsch</translation>
    </message>
    <message>
        <source>Reveal the next team</source>
        <translation>Nächstes Team aufdecken</translation>
    </message>
    <message>
        <source>(choose the team)</source>
        <translation>(Team wählen)</translation>
    </message>
    <message>
        <source>Daily double for (wager $ %1):</source>
        <translation>Einsatzfrage für (Einsatz $ %1):</translation>
    </message>
    <message>
        <source>no wager</source>
        <translation>kein Einsatz</translation>
    </message>
    <message>
        <source> — “%1”</source>
        <translation> — „%1“</translation>
    </message>
    <message>
        <source> (shown)</source>
        <translation> (gezeigt)</translation>
    </message>
    <message>
        <source>No clue open</source>
        <translation>Keine Antwort offen</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>Show the final category</source>
        <translation>Finalkategorie zeigen</translation>
    </message>
    <message>
        <source>Show the final clue</source>
        <translation>Antwort der Finalrunde zeigen</translation>
    </message>
    <message>
        <source>Show the clue</source>
        <translation>Antwort zeigen</translation>
    </message>
    <message>
        <source>Reveal the response</source>
        <translation>Frage aufdecken</translation>
    </message>
    <message>
        <source>Close the clue</source>
        <translation>Antwort schließen</translation>
    </message>
    <message>
        <source>Think music: %1 s left</source>
        <translation>Denkmusik: noch %1 s</translation>
    </message>
    <message>
        <source>Locked: %1 s</source>
        <translation>Gesperrt: %1 s</translation>
    </message>
    <message>
        <source>Host&apos;s console</source>
        <translation>Pult der Spielleitung</translation>
    </message>
    <message>
        <source>End round</source>
        <translation>Runde beenden</translation>
    </message>
    <message>
        <source>End game</source>
        <translation>Spiel beenden</translation>
    </message>
    <message>
        <source>Switch screens</source>
        <translation>Bildschirme tauschen</translation>
    </message>
    <message>
        <source>End this round now? The tiles left in it will not be played.</source>
        <translation>Diese Runde jetzt beenden? Die übrigen Felder werden nicht mehr gespielt.</translation>
    </message>
    <message>
        <source>End the game now, without the standings?</source>
        <translation>Das Spiel jetzt beenden, ohne den Punktestand zu zeigen?</translation>
    </message>
    <message>
        <source>Parade the titles</source>
        <translation>Kategorien nacheinander vorstellen</translation>
    </message>
    <message>
        <source>Buzz in</source>
        <translation>Buzzern</translation>
    </message>
    <message>
        <source>Buzzers…</source>
        <translation>Buzzer…</translation>
    </message>
    <message>
        <source>Buzzers off</source>
        <translation>Buzzer aus</translation>
    </message>
    <message>
        <source>Buzzers OPEN</source>
        <translation>Buzzer OFFEN</translation>
    </message>
    <message>
        <source>Buzzers closed</source>
        <translation>Buzzer zu</translation>
    </message>
    <message>
        <source>Close (Space)</source>
        <translation>Schließen (Leertaste)</translation>
    </message>
    <message>
        <source>Open (Space)</source>
        <translation>Öffnen (Leertaste)</translation>
    </message>
    <message>
        <source> +%1 s</source>
        <translation> +%1 s</translation>
    </message>
    <message>
        <source> (wrong)</source>
        <translation> (falsch)</translation>
    </message>
    <message>
        <source>Too early: %1</source>
        <translation>Zu früh: %1</translation>
    </message>
    <message>
        <source>Right (+): %1</source>
        <translation>Richtig (+): %1</translation>
    </message>
    <message>
        <source>Right (+)</source>
        <translation>Richtig (+)</translation>
    </message>
    <message>
        <source>Wrong (−): %1</source>
        <translation>Falsch (−): %1</translation>
    </message>
    <message>
        <source>Wrong (−)</source>
        <translation>Falsch (−)</translation>
    </message>
    <message>
        <source>Undo last score</source>
        <translation>Punkte rückgängig</translation>
    </message>
    <message>
        <source>Amount to give (+) or take (−):</source>
        <translation>Punkte geben (+) oder abziehen (−):</translation>
    </message>
    <message>
        <source>%1 This cannot be undone.</source>
        <translation>%1 Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>No game running: name the teams, then start a game on the home screen.</source>
        <translation>Kein Spiel läuft: Benennen Sie die Teams und starten Sie dann ein Spiel auf dem Startbildschirm.</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Finalrunde</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Runde %1</translation>
    </message>
    <message>
        <source>  (daily double)</source>
        <translation>  (Einsatzfrage)</translation>
    </message>
    <message>
        <source>Response: %1</source>
        <translation>Frage: %1</translation>
    </message>
    <message>
        <source>Choose a value on the board below.</source>
        <translation>Wählen Sie unten auf dem Spielfeld einen Wert.</translation>
    </message>
</context>
<context>
    <name>frmEditor</name>
    <message>
        <source>Description:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Secs/Answer:</source>
        <translation>Sek./Antwort:</translation>
    </message>
    <message>
        <source>Cat. Title:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>Answer %1:</source>
        <translation>Antwort %1:</translation>
    </message>
    <message>
        <source>Question %1:</source>
        <translation>Frage %1:</translation>
    </message>
    <message>
        <source>Rounds:</source>
        <translation>Runden:</translation>
    </message>
    <message>
        <source>Categories:</source>
        <translation>Kategorien:</translation>
    </message>
    <message>
        <source>Round 1</source>
        <translation>Runde 1</translation>
    </message>
    <message>
        <source>Round 2</source>
        <translation>Runde 2</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Finalrunde</translation>
    </message>
    <message>
        <source>Cat. %1</source>
        <translation>Kat. %1</translation>
    </message>
    <message>
        <source>Question Editor/Creator</source>
        <translation>Fragenset-Editor</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Print Host Sheet...</source>
        <translation>&amp;Lösungsblatt...</translation>
    </message>
    <message>
        <source>&amp;Import Spreadsheet...</source>
        <translation>Tabellen&amp;import...</translation>
    </message>
    <message>
        <source>E&amp;xport Spreadsheet...</source>
        <translation>Tabellen&amp;export...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Would you like to save your work?</source>
        <translation>Möchten Sie Ihre Änderungen speichern?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>PLOV(tm) Quizzarr! QA Files (*.QZ2;*.QZA)|*.QZ2;*.QZA</source>
        <translation>PLOV(tm) Quizzarr! Fragendateien (*.QZ2;*.QZA)|*.QZ2;*.QZA</translation>
    </message>
    <message>
        <source>QZ2 Files (*.QZ2)|*.QZ2</source>
        <translation>QZ2-Dateien (*.QZ2)|*.QZ2</translation>
    </message>
    <message>
        <source>Save file error #:%1<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Fehler beim Speichern (Nr. %1)<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>The set was saved, but its pictures could not all be copied beside it:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Das Fragenset wurde gespeichert, aber nicht alle Bilder konnten in denselben Ordner kopiert werden:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Remove Picture</source>
        <translation>Bild entfernen</translation>
    </message>
    <message>
        <source>Picture...</source>
        <translation>Bild...</translation>
    </message>
    <message>
        <source>Choose a picture to show with this clue</source>
        <translation>Bild wählen, das mit dieser Antwort gezeigt wird</translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation>%1 (nicht gefunden)</translation>
    </message>
    <message>
        <source>Choose a Picture for the Clue</source>
        <translation>Bild für die Antwort wählen</translation>
    </message>
    <message>
        <source>Pictures (*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp)|*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp</source>
        <translation>Bilder (*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp)|*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp</translation>
    </message>
    <message>
        <source>Import Spreadsheet</source>
        <translation>Tabelle importieren</translation>
    </message>
    <message>
        <source>Spreadsheets (*.csv;*.xlsx;*.ods)|*.csv;*.xlsx;*.ods</source>
        <translation>Tabellen (*.csv;*.xlsx;*.ods)|*.csv;*.xlsx;*.ods</translation>
    </message>
    <message>
        <source>Cannot read %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>%1 kann nicht gelesen werden:<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Cannot import %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>%1 kann nicht importiert werden:<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Export Spreadsheet</source>
        <translation>Tabelle exportieren</translation>
    </message>
    <message>
        <source>Excel Workbook (*.xlsx)|*.xlsx|CSV Text (*.csv)|*.csv</source>
        <translation>Excel-Arbeitsmappe (*.xlsx)|*.xlsx|CSV-Text (*.csv)|*.csv</translation>
    </message>
    <message>
        <source>Export file error #:%1<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Fehler beim Exportieren (Nr. %1)<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>The spreadsheet was written, but it will not import as it is:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Die Tabelle wurde gespeichert, lässt sich so aber nicht wieder importieren:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>%1 - host sheet.pdf</source>
        <translation>%1 - Lösungsblatt.pdf</translation>
    </message>
    <message>
        <source>Question Set</source>
        <translation>Fragenset</translation>
    </message>
    <message>
        <source>Print Host Sheet</source>
        <translation>Lösungsblatt drucken</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)|*.pdf</source>
        <translation>PDF-Dateien (*.pdf)|*.pdf</translation>
    </message>
    <message>
        <source>The host sheet could not be written to %1:<byte value="xd"/>
%2</source>
        <translation>Das Lösungsblatt konnte nicht als %1 gespeichert werden:<byte value="xd"/>
%2</translation>
    </message>
</context>
<context>
    <name>frmHowToPlay</name>
    <message>
        <source>How To Play Quizzarr!</source>
        <translation>So spielt man Quizzarr!</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Please wait until all sounds playing have stopped, then click OK to start!</source>
        <translation>Bitte warten Sie, bis alle Klänge verstummt sind, und klicken Sie dann zum Start auf „OK“!</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>I am unable to initialize DirectSound. This might be caused if a sound is currently playing. Click RETRY after all sounds have stopped to try again. Click CANCEL to play the game WITHOUT sound.</source>
        <translation>DirectSound kann nicht gestartet werden. Das kann passieren, wenn gerade ein Klang abgespielt wird. Klicken Sie auf „Wiederholen“, sobald alle Klänge verstummt sind, um es erneut zu versuchen. Klicken Sie auf „Abbrechen“, um OHNE Ton zu spielen.</translation>
    </message>
</context>
<context>
    <name>frmSelect</name>
    <message>
        <source>PLOV(tm) Quizzarr! QA Files (*.QZ2)|*.QZ2</source>
        <translation>PLOV(tm) Quizzarr! Fragendateien (*.QZ2)|*.QZ2</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>To a floppy disk (A:)...</source>
        <translation>Auf Diskette (A:)...</translation>
    </message>
    <message>
        <source>To another drive...</source>
        <translation>Auf ein anderes Laufwerk...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>From a floppy disk (A:)...</source>
        <translation>Von Diskette (A:)...</translation>
    </message>
    <message>
        <source>From another drive...</source>
        <translation>Von einem anderen Laufwerk...</translation>
    </message>
    <message>
        <source>Export Question File To</source>
        <translation>Fragendatei exportieren nach</translation>
    </message>
    <message>
        <source>Export File Failure<byte value="xd"/>
%1</source>
        <translation>Export fehlgeschlagen<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>Select Question File To Import</source>
        <translation>Fragendatei zum Importieren wählen</translation>
    </message>
    <message>
        <source>Import File Failure<byte value="xd"/>
%1</source>
        <translation>Import fehlgeschlagen<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>No scoring</source>
        <translation>Ohne Punkte</translation>
    </message>
    <message>
        <source>One team</source>
        <translation>Ein Team</translation>
    </message>
    <message>
        <source>Two teams</source>
        <translation>Zwei Teams</translation>
    </message>
    <message>
        <source>Three teams</source>
        <translation>Drei Teams</translation>
    </message>
    <message>
        <source>Four teams</source>
        <translation>Vier Teams</translation>
    </message>
    <message>
        <source>Five teams</source>
        <translation>Fünf Teams</translation>
    </message>
    <message>
        <source>Six teams</source>
        <translation>Sechs Teams</translation>
    </message>
    <message>
        <source>Seven teams</source>
        <translation>Sieben Teams</translation>
    </message>
    <message>
        <source>Eight teams</source>
        <translation>Acht Teams</translation>
    </message>
    <message>
        <source>Nine teams</source>
        <translation>Neun Teams</translation>
    </message>
    <message>
        <source>Ten teams!</source>
        <translation>Zehn Teams!</translation>
    </message>
    <message>
        <source>Select the question set to use</source>
        <translation>Fragenset auswählen</translation>
    </message>
    <message>
        <source>Keep score for:</source>
        <translation>Punkte zählen für:</translation>
    </message>
    <message>
        <source>Buzz in</source>
        <translation>Buzzern</translation>
    </message>
    <message>
        <source>Buzzers…</source>
        <translation>Buzzer…</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>Handys</translation>
    </message>
    <message>
        <source>The phones cannot be used: no network port from %1 on is free on this computer.</source>
        <translation>Die Handys können nicht genutzt werden: Auf diesem Computer ist ab Port %1 kein Netzwerkport frei.</translation>
    </message>
    <message>
        <source>Start Game</source>
        <translation>Spiel starten</translation>
    </message>
    <message>
        <source>Question Editor/Creator</source>
        <translation>Fragenset-Editor</translation>
    </message>
    <message>
        <source>How To Play</source>
        <translation>Spielanleitung</translation>
    </message>
    <message>
        <source>&gt;&gt; Export File</source>
        <translation>&gt;&gt; Datei exportieren</translation>
    </message>
    <message>
        <source>&lt;&lt; Import File(s)</source>
        <translation>&lt;&lt; Datei(en) importieren</translation>
    </message>
    <message>
        <source>Please select a question set to use before starting the game.</source>
        <translation>Bitte wählen Sie ein Fragenset aus, bevor Sie das Spiel starten.</translation>
    </message>
    <message>
        <source>I&apos;m sorry, but I am unable to locate any valid .QZ2 files.</source>
        <translation>Leider wurden keine gültigen .QZ2-Dateien gefunden.</translation>
    </message>
    <message>
        <source>Click YES to edit %1, else click NO to create a new Question set.</source>
        <translation>Klicken Sie auf „Ja“, um %1 zu bearbeiten, oder auf „Nein“, um ein neues Fragenset anzulegen.</translation>
    </message>
</context>
</TS>
