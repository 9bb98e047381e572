<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>BoardGame</name>
    <message>
        <source>Scores</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BuzzerInputs</name>
    <message>
        <source>key %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, button %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is one of the game&apos;s own keys; press another.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GameJournal</name>
    <message>
        <source>The question set %1 has changed or is gone since the game was interrupted, so the game cannot be resumed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume the interrupted game of %1?<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The final</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GameRules</name>
    <message>
        <source>Team %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  TIED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  WINNER</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>Starting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Special Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Editing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on the question/answer file you wish to use, then click on Start Game.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clicking on any one of the categories will display all the categories, one at a time. You must wait until this is finished to continue. This should be done once, just after the board has been set up, just like in the real game on TV.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two daily doubles are picked at random for each game and round.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In order to display an answer, click on the dollar amount. Once the answer has been displayed for at least three seconds, you can click on the answer to reveal the question. Three seconds later, you can click on the question to return to the board.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The three second delay keeps you from accidently clicking too fast.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For Final Quizzarr, after the answer is displayed, you will have to wait the ENTIRE 30 seconds to click to show the question. Once the question is displayed, clicking on the empty board will take you back to the file selection screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you accidently display an answer, you can click while holding SHIFT, ALT and CTRL on an answer already displayed and the answer will return to the play board.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Likewise, if you want to remove an answer from play, you can click while holding SHIFT, ALT and CTRL on an answer and the answer will be removed from the play board.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressing SHIFT, ALT, CTRL and N will prematurely end the round and start the next round.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressing SHIFT, ALT, CTRL and Q will prematurely end the game and take you back to the file selection screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To keep score, select the number of teams before clicking Start Game.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Once the answer and question has been clicked on and the playing board is shown, press 1 to add the point value to team 1, 2 to add the point value to team 2, ad nauseum. Press 0 to add the point value to team 10.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you wish to subtract the point value from a team, press SHIFT with the team number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For Daily Doubles and Final Quizzarr, the point value is reset to $100 to allow you to add (or subtract) the appropriate number of points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To create or edit your own question/answer file, click on Question Editor/Creator and use the new editor to create the new QZ2 files. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To migrate your old QZA files, just OPEN the old file and SAVE AS to automatically convert it to the new format.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HostSheet</name>
    <message>
        <source>Final</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>picture: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answer time: %1 seconds. Clue, then the response in bold.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JoinScreen</name>
    <message>
        <source>Play on your phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan the code, or open:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Room code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 player has joined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 players have joined</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JoystickReader</name>
    <message>
        <source>SDL2 (libSDL2-2.0.so.0) could not be loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SDL2 could not start its joysticks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is too large (%1 MB)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read as a picture (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QtFileDialog</name>
    <message>
        <source>%1
The folder does not exist.
Check the path and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
This file is set to read-only.
Try again with a different file name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
This file does not exist.
Do you want to create it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuestionTable</name>
    <message>
        <source>row %1 (&quot;%2&quot;)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>round</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>response</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>round %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the table is empty; its first row must name the columns Round, Category, Clue and Response</source>
        <extracomment>Round, Category, Clue and Response are the names a table&apos;s columns must have, in English.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, column %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, column %2: a second column %3 (the first is column %4)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the header has no columns %2; one of the first ten filled rows must name the columns Round, Category, Clue and Response</source>
        <extracomment>Round, Category, Clue and Response are the names a table&apos;s columns must have, in English.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the header has no column %2; one of the first ten filled rows must name the columns Round, Category, Clue and Response</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the %2 is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 is not a round; write 1, 2 or Final</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a seventh category, %2, in %3; a round holds at most 6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a sixth clue for %2 in %3 (five are in %4); a category holds 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a second Final row (the first is row %2); a set has one final clue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 (%3) in %4 is spelled otherwise than %5 (%6); the five rows of a category name it alike</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 in %3 has %4 clue (%5); a category needs 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 in %3 has %4 clues (%5); a category needs 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no row of round 1 (round 2 starts at %1); a set starts with round 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no row of round 1 below the header (%1); a set needs at least one category of round 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no Final row; a set needs one final clue, a row whose Round is Final</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a line break inside the text; a set holds every text on one line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a control character (U+%1) inside the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 characters; a text holds at most %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReadableFile</name>
    <message>
        <source>no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not an ordinary file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RevealPanel</name>
    <message>
        <source>(no response)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableFiles</name>
    <message>
        <source>%1 inside is damaged (XML error in line %2: %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a damaged zip container</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a zip container, but neither an .xlsx workbook nor an .ods spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a zip container, so not a workbook: the file is damaged or only named so</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a spreadsheet; .csv, .xlsx and .ods files are read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB is too large for a question set&apos;s table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 filled rows by row %2; a question set&apos;s table has at most 62</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 inside is too large for a question set&apos;s table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 inside is damaged (a tag with over %2 attributes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an old Excel workbook (.xls); save it as .xlsx or .csv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a spreadsheet is written as .csv or .xlsx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing from the zip container</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 inside is damaged or encrypted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 inside is damaged (zip error %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (libxlsxwriter) could not be loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no temporary file for the workbook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row %1: a quotation mark opens a text that never ends</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WriteFileReplacing</name>
    <message>
        <source>A file cannot be copied onto itself.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>basPLOVQuzr</name>
    <message>
        <source>Unable to load %1. The game will still work, but with no graphics.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to load %1. The game will still work, but with no sounds.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>clsOpenSaveDlg</name>
    <message>
        <source>All Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmBuzzers</name>
    <message>
        <source>Buzzers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Learn beside a team, then press that team&apos;s buzzer: a key of a buzzer box or of the keyboard, or a button of a joystick or game controller. The game&apos;s own keys (the digits, BackSpace, Space, + and −) cannot be buzzers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Learn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press %1&apos;s buzzer now (Escape: stop).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzz-in is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzz-in is off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waiting for a press…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Joysticks cannot be read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No joystick or game controller is plugged in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plugged in: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmConsole</name>
    <message>
        <source>Phones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join screen (J)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Room %1 — %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daily double for:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The final: each team&apos;s wager and response</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal the next team</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(choose the team)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daily double for (wager $ %1):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no wager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> — “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (shown)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No clue open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the final category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the final clue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the clue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal the response</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the clue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Think music: %1 s left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked: %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host&apos;s console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End round</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch screens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End this round now? The tiles left in it will not be played.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End the game now, without the standings?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parade the titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzz in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzzers…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzzers off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzzers OPEN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzzers closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close (Space)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open (Space)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> +%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (wrong)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too early: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right (+): %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right (+)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong (−): %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong (−)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo last score</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount to give (+) or take (−):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 This cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No game running: name the teams, then start a game on the home screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Final</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  (daily double)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Response: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a value on the board below.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmEditor</name>
    <message>
        <source>Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secs/Answer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cat. Title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answer %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rounds:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Categories:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Final</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cat. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question Editor/Creator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print Host Sheet...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Spreadsheet...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport Spreadsheet...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would you like to save your work?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLOV(tm) Quizzarr! QA Files (*.QZ2;*.QZA)|*.QZ2;*.QZA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QZ2 Files (*.QZ2)|*.QZ2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save file error #:%1<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The set was saved, but its pictures could not all be copied beside it:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a picture to show with this clue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a Picture for the Clue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures (*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp)|*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spreadsheets (*.csv;*.xlsx;*.ods)|*.csv;*.xlsx;*.ods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot import %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Excel Workbook (*.xlsx)|*.xlsx|CSV Text (*.csv)|*.csv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export file error #:%1<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The spreadsheet was written, but it will not import as it is:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - host sheet.pdf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Host Sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)|*.pdf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The host sheet could not be written to %1:<byte value="xd"/>
%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmHowToPlay</name>
    <message>
        <source>How To Play Quizzarr!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Please wait until all sounds playing have stopped, then click OK to start!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I am unable to initialize DirectSound. This might be caused if a sound is currently playing. Click RETRY after all sounds have stopped to try again. Click CANCEL to play the game WITHOUT sound.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSelect</name>
    <message>
        <source>PLOV(tm) Quizzarr! QA Files (*.QZ2)|*.QZ2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To a floppy disk (A:)...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To another drive...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From a floppy disk (A:)...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From another drive...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Question File To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export File Failure<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Question File To Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import File Failure<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scoring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One team</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two teams</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three teams</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Four teams</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Five teams</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Six teams</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seven teams</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eight teams</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nine teams</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ten teams!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the question set to use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep score for:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzz in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzzers…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The phones cannot be used: no network port from %1 on is free on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question Editor/Creator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How To Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&gt;&gt; Export File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;&lt; Import File(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a question set to use before starting the game.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&apos;m sorry, but I am unable to locate any valid .QZ2 files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click YES to edit %1, else click NO to create a new Question set.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
