<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>BoardGame</name>
    <message>
        <source>Scores</source>
        <translation>Scores</translation>
    </message>
</context>
<context>
    <name>BuzzerInputs</name>
    <message>
        <source>key %1</source>
        <translation>Touche %1</translation>
    </message>
    <message>
        <source>%1, button %2</source>
        <translation>%1, bouton %2</translation>
    </message>
    <message>
        <source>%1 is one of the game&apos;s own keys; press another.</source>
        <translation>%1 : cette touche est réservée au jeu ; appuyez sur une autre.</translation>
    </message>
</context>
<context>
    <name>GameJournal</name>
    <message>
        <source>The question set %1 has changed or is gone since the game was interrupted, so the game cannot be resumed.</source>
        <translation>La série de questions %1 a changé ou a disparu depuis l&apos;interruption de la partie : impossible de la reprendre.</translation>
    </message>
    <message>
        <source>Resume the interrupted game of %1?<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Reprendre la partie interrompue avec « %1 » ?<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>The final</source>
        <translation>La finale</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Manche %1</translation>
    </message>
</context>
<context>
    <name>GameRules</name>
    <message>
        <source>Team %1</source>
        <translation>Équipe %1</translation>
    </message>
    <message>
        <source>  TIED</source>
        <translation>  ÉGALITÉ</translation>
    </message>
    <message>
        <source>  WINNER</source>
        <translation>  VAINQUEUR</translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>Starting</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Jouer</translation>
    </message>
    <message>
        <source>Special Keys</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Click on the question/answer file you wish to use, then click on Start Game.</source>
        <translation>Cliquez sur le fichier de questions à utiliser, puis sur Commencer.</translation>
    </message>
    <message>
        <source>Clicking on any one of the categories will display all the categories, one at a time. You must wait until this is finished to continue. This should be done once, just after the board has been set up, just like in the real game on TV.</source>
        <translation>Un clic sur l&apos;une des catégories présente toutes les catégories, l&apos;une après l&apos;autre. Attendez la fin de la présentation pour continuer. Faites-le une seule fois, juste après la mise en place du tableau.</translation>
    </message>
    <message>
        <source>Two daily doubles are picked at random for each game and round.</source>
        <translation>Deux mises surprises sont tirées au sort à chaque manche de chaque partie.</translation>
    </message>
    <message>
        <source>In order to display an answer, click on the dollar amount. Once the answer has been displayed for at least three seconds, you can click on the answer to reveal the question. Three seconds later, you can click on the question to return to the board.</source>
        <translation>Pour afficher un indice, cliquez sur sa valeur en $. Quand l&apos;indice est affiché depuis au moins trois secondes, vous pouvez cliquer dessus pour révéler la question. Trois secondes plus tard, un clic sur la question vous ramène au tableau.</translation>
    </message>
    <message>
        <source>The three second delay keeps you from accidently clicking too fast.</source>
        <translation>Ce délai de trois secondes vous évite de cliquer trop vite par mégarde.</translation>
    </message>
    <message>
        <source>For Final Quizzarr, after the answer is displayed, you will have to wait the ENTIRE 30 seconds to click to show the question. Once the question is displayed, clicking on the empty board will take you back to the file selection screen.</source>
        <translation>Pour la finale Quizzarr, une fois l&apos;indice affiché, vous devez attendre les 30 secondes EN ENTIER avant de pouvoir cliquer pour afficher la question. Une fois la question affichée, un clic sur le tableau vide vous ramène à l&apos;écran de choix du fichier.</translation>
    </message>
    <message>
        <source>If you accidently display an answer, you can click while holding SHIFT, ALT and CTRL on an answer already displayed and the answer will return to the play board.</source>
        <translation>Si vous avez affiché un indice par erreur, cliquez dessus en maintenant MAJ, ALT et CTRL enfoncées : l&apos;indice retourne sur le tableau de jeu.</translation>
    </message>
    <message>
        <source>Likewise, if you want to remove an answer from play, you can click while holding SHIFT, ALT and CTRL on an answer and the answer will be removed from the play board.</source>
        <translation>De même, pour retirer un indice du jeu, cliquez dessus en maintenant MAJ, ALT et CTRL enfoncées : l&apos;indice disparaît du tableau de jeu.</translation>
    </message>
    <message>
        <source>Pressing SHIFT, ALT, CTRL and N will prematurely end the round and start the next round.</source>
        <translation>MAJ + ALT + CTRL + N termine la manche avant son terme et lance la manche suivante.</translation>
    </message>
    <message>
        <source>Pressing SHIFT, ALT, CTRL and Q will prematurely end the game and take you back to the file selection screen.</source>
        <translation>MAJ + ALT + CTRL + Q termine la partie avant son terme et vous ramène à l&apos;écran de choix du fichier.</translation>
    </message>
    <message>
        <source>To keep score, select the number of teams before clicking Start Game.</source>
        <translation>Pour compter les points, choisissez le nombre d&apos;équipes avant de cliquer sur Commencer.</translation>
    </message>
    <message>
        <source>Once the answer and question has been clicked on and the playing board is shown, press 1 to add the point value to team 1, 2 to add the point value to team 2, ad nauseum. Press 0 to add the point value to team 10.</source>
        <translation>Quand vous avez cliqué sur l&apos;indice puis sur la question et que le tableau de jeu est réaffiché, appuyez sur 1 pour ajouter la valeur de la case à l&apos;équipe 1, sur 2 pour l&apos;ajouter à l&apos;équipe 2, et ainsi de suite. Appuyez sur 0 pour l&apos;ajouter à l&apos;équipe 10.</translation>
    </message>
    <message>
        <source>If you wish to subtract the point value from a team, press SHIFT with the team number.</source>
        <translation>Pour retirer la valeur de la case à une équipe, appuyez sur MAJ en même temps que sur le numéro de l&apos;équipe.</translation>
    </message>
    <message>
        <source>For Daily Doubles and Final Quizzarr, the point value is reset to $100 to allow you to add (or subtract) the appropriate number of points.</source>
        <translation>Pour les mises surprises et la finale Quizzarr, la valeur est remise à $100 : vous pouvez ainsi ajouter (ou retirer) le nombre de points voulu.</translation>
    </message>
    <message>
        <source>To create or edit your own question/answer file, click on Question Editor/Creator and use the new editor to create the new QZ2 files. </source>
        <translation>Pour créer ou modifier votre propre fichier de questions, cliquez sur Éditeur de questions : l&apos;éditeur crée des fichiers au nouveau format QZ2. </translation>
    </message>
    <message>
        <source>To migrate your old QZA files, just OPEN the old file and SAVE AS to automatically convert it to the new format.</source>
        <translation>Pour convertir vos anciens fichiers QZA, il suffit d&apos;OUVRIR l&apos;ancien fichier puis d&apos;utiliser ENREGISTRER SOUS : il est automatiquement converti au nouveau format.</translation>
    </message>
</context>
<context>
    <name>HostSheet</name>
    <message>
        <source>Final</source>
        <translation>Finale</translation>
    </message>
    <message>
        <source>picture: %1</source>
        <translation>image : %1</translation>
    </message>
    <message>
        <source>Answer time: %1 seconds. Clue, then the response in bold.</source>
        <translation>Temps de réponse : %1 secondes. L&apos;indice, puis la réponse en gras.</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Manche %1</translation>
    </message>
</context>
<context>
    <name>JoinScreen</name>
    <message>
        <source>Play on your phone</source>
        <translation>Joue avec ton portable</translation>
    </message>
    <message>
        <source>Scan the code, or open:</source>
        <translation>Scanne le code ou ouvre :</translation>
    </message>
    <message>
        <source>Room code:</source>
        <translation>Code de salle :</translation>
    </message>
    <message>
        <source>1 player has joined</source>
        <translation>1 joueur a rejoint la partie</translation>
    </message>
    <message>
        <source>%1 players have joined</source>
        <translation>%1 joueurs ont rejoint la partie</translation>
    </message>
</context>
<context>
    <name>JoystickReader</name>
    <message>
        <source>SDL2 (libSDL2-2.0.so.0) could not be loaded</source>
        <translation>impossible de charger SDL2 (libSDL2-2.0.so.0)</translation>
    </message>
    <message>
        <source>SDL2 could not start its joysticks</source>
        <translation>SDL2 n&apos;a pas pu initialiser les joysticks</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>is missing</source>
        <translation>est introuvable</translation>
    </message>
    <message>
        <source>is too large (%1 MB)</source>
        <translation>pèse trop lourd (%1 Mo)</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>est illisible</translation>
    </message>
    <message>
        <source>cannot be read as a picture (%1)</source>
        <translation>n&apos;est pas lisible comme image (%1)</translation>
    </message>
</context>
<context>
    <name>QtFileDialog</name>
    <message>
        <source>%1
The folder does not exist.
Check the path and try again.</source>
        <translation>%1
Ce dossier n&apos;existe pas.
Vérifiez le chemin et réessayez.</translation>
    </message>
    <message>
        <source>%1
This file is set to read-only.
Try again with a different file name.</source>
        <translation>%1
Ce fichier est en lecture seule.
Réessayez avec un autre nom de fichier.</translation>
    </message>
    <message>
        <source>%1
This file does not exist.
Do you want to create it?</source>
        <translation>%1
Ce fichier n&apos;existe pas.
Voulez-vous le créer ?</translation>
    </message>
</context>
<context>
    <name>QuestionTable</name>
    <message>
        <source>row %1 (&quot;%2&quot;)</source>
        <translation>ligne %1 (« %2 »)</translation>
    </message>
    <message>
        <source>round</source>
        <translation>Round</translation>
    </message>
    <message>
        <source>category</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>clue</source>
        <translation>Clue</translation>
    </message>
    <message>
        <source>response</source>
        <translation>Response</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>round %1</source>
        <translation>manche %1</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>lignes %1</translation>
    </message>
    <message>
        <source>the table is empty; its first row must name the columns Round, Category, Clue and Response</source>
        <extracomment>Round, Category, Clue and Response are the names a table&apos;s columns must have, in English.</extracomment>
        <translation>le tableau est vide ; sa première ligne doit porter les noms de colonnes « Round », « Category », « Clue » et « Response »</translation>
    </message>
    <message>
        <source>%1, column %2 (%3)</source>
        <translation>%1, colonne %2 (%3)</translation>
    </message>
    <message>
        <source>%1, column %2: a second column %3 (the first is column %4)</source>
        <translation>%1, colonne %2 : une deuxième colonne %3 (la première est la colonne %4)</translation>
    </message>
    <message>
        <source>%1: the header has no columns %2; one of the first ten filled rows must name the columns Round, Category, Clue and Response</source>
        <extracomment>Round, Category, Clue and Response are the names a table&apos;s columns must have, in English.</extracomment>
        <translation>%1 : il manque à l&apos;en-tête les colonnes %2 ; l&apos;une des dix premières lignes remplies doit porter les noms de colonnes « Round », « Category », « Clue » et « Response »</translation>
    </message>
    <message>
        <source>%1: the header has no column %2; one of the first ten filled rows must name the columns Round, Category, Clue and Response</source>
        <translation>%1 : il manque à l&apos;en-tête la colonne %2 ; l&apos;une des dix premières lignes remplies doit porter les noms de colonnes « Round », « Category », « Clue » et « Response »</translation>
    </message>
    <message>
        <source>%1: the %2 is empty</source>
        <translation>%1 : la case « %2 » est vide</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1: %2 is not a round; write 1, 2 or Final</source>
        <translation>%1 : %2 n&apos;est pas une manche ; écrivez 1, 2 ou « Final »</translation>
    </message>
    <message>
        <source>%1: a seventh category, %2, in %3; a round holds at most 6</source>
        <translation>%1 : une septième catégorie, %2, dans la %3 ; une manche en compte au plus 6</translation>
    </message>
    <message>
        <source>%1: a sixth clue for %2 in %3 (five are in %4); a category holds 5</source>
        <translation>%1 : un sixième indice pour %2 dans la %3 (il y en a déjà cinq : %4) ; une catégorie en compte 5</translation>
    </message>
    <message>
        <source>%1: a second Final row (the first is row %2); a set has one final clue</source>
        <translation>%1 : une deuxième ligne « Final » (la première est la ligne %2) ; une série n&apos;a qu&apos;un seul indice final</translation>
    </message>
    <message>
        <source>%1: %2 (%3) in %4 is spelled otherwise than %5 (%6); the five rows of a category name it alike</source>
        <translation>%1 : %2 (%3) dans la %4 ne s&apos;écrit pas comme %5 (%6) ; les cinq lignes d&apos;une catégorie doivent l&apos;écrire de la même façon</translation>
    </message>
    <message>
        <source>%1: %2 in %3 has %4 clue (%5); a category needs 5</source>
        <translation>%1 : %2 dans la %3 n&apos;a que %4 indice (%5) ; il en faut 5 par catégorie</translation>
    </message>
    <message>
        <source>%1: %2 in %3 has %4 clues (%5); a category needs 5</source>
        <translation>%1 : %2 dans la %3 n&apos;a que %4 indices (%5) ; il en faut 5 par catégorie</translation>
    </message>
    <message>
        <source>no row of round 1 (round 2 starts at %1); a set starts with round 1</source>
        <translation>aucune ligne de la manche 1 (la manche 2 commence à la %1) ; une série commence par la manche 1</translation>
    </message>
    <message>
        <source>no row of round 1 below the header (%1); a set needs at least one category of round 1</source>
        <translation>aucune ligne de la manche 1 sous l&apos;en-tête (%1) ; une série a besoin d&apos;au moins une catégorie en manche 1</translation>
    </message>
    <message>
        <source>no Final row; a set needs one final clue, a row whose Round is Final</source>
        <translation>aucune ligne « Final » ; une série a besoin d&apos;un indice final, sur une ligne dont la colonne « Round » vaut « Final »</translation>
    </message>
    <message>
        <source>a line break inside the text; a set holds every text on one line</source>
        <translation>un saut de ligne dans le texte ; dans une série, chaque texte tient sur une seule ligne</translation>
    </message>
    <message>
        <source>a control character (U+%1) inside the text</source>
        <translation>un caractère de contrôle (U+%1) dans le texte</translation>
    </message>
    <message>
        <source>%1 characters; a text holds at most %2</source>
        <translation>%1 caractères ; un texte en compte au plus %2</translation>
    </message>
</context>
<context>
    <name>ReadableFile</name>
    <message>
        <source>no such file</source>
        <translation>fichier introuvable</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>c&apos;est un dossier</translation>
    </message>
    <message>
        <source>not an ordinary file</source>
        <translation>ce n&apos;est pas un fichier ordinaire</translation>
    </message>
</context>
<context>
    <name>RevealPanel</name>
    <message>
        <source>(no response)</source>
        <translation>(pas de réponse)</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>« %1 »</translation>
    </message>
    <message>
        <source>Right!</source>
        <translation>Juste !</translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>Faux</translation>
    </message>
</context>
<context>
    <name>TableFiles</name>
    <message>
        <source>%1 inside is damaged (XML error in line %2: %3)</source>
        <translation>le fichier interne %1 est endommagé (erreur XML à la ligne %2 : %3)</translation>
    </message>
    <message>
        <source>a damaged zip container</source>
        <translation>un conteneur zip endommagé</translation>
    </message>
    <message>
        <source>a zip container, but neither an .xlsx workbook nor an .ods spreadsheet</source>
        <translation>un conteneur zip, mais ni un classeur .xlsx ni une feuille de calcul .ods</translation>
    </message>
    <message>
        <source>not a zip container, so not a workbook: the file is damaged or only named so</source>
        <translation>pas un conteneur zip, donc pas un classeur : le fichier est endommagé ou n&apos;en a que le nom</translation>
    </message>
    <message>
        <source>not a spreadsheet; .csv, .xlsx and .ods files are read</source>
        <translation>pas une feuille de calcul ; seuls les fichiers .csv, .xlsx et .ods sont lus</translation>
    </message>
    <message>
        <source>%1 MB is too large for a question set&apos;s table</source>
        <translation>%1 Mo, c&apos;est trop gros pour le tableau d&apos;une série de questions</translation>
    </message>
    <message>
        <source>more than %1 filled rows by row %2; a question set&apos;s table has at most 62</source>
        <translation>plus de %1 lignes remplies à la ligne %2 ; le tableau d&apos;une série de questions en compte au plus 62</translation>
    </message>
    <message>
        <source>%1 inside is too large for a question set&apos;s table</source>
        <translation>le fichier interne %1 est trop gros pour le tableau d&apos;une série de questions</translation>
    </message>
    <message>
        <source>%1 inside is damaged (a tag with over %2 attributes)</source>
        <translation>le fichier interne %1 est endommagé (une balise a plus de %2 attributs)</translation>
    </message>
    <message>
        <source>an old Excel workbook (.xls); save it as .xlsx or .csv</source>
        <translation>un ancien classeur Excel (.xls) ; enregistrez-le en .xlsx ou en .csv</translation>
    </message>
    <message>
        <source>a spreadsheet is written as .csv or .xlsx</source>
        <translation>une feuille de calcul s&apos;enregistre en .csv ou en .xlsx</translation>
    </message>
    <message>
        <source>%1 is missing from the zip container</source>
        <translation>%1 manque dans le conteneur zip</translation>
    </message>
    <message>
        <source>%1 inside is damaged or encrypted</source>
        <translation>le fichier interne %1 est endommagé ou chiffré</translation>
    </message>
    <message>
        <source>%1 inside is damaged (zip error %2)</source>
        <translation>le fichier interne %1 est endommagé (erreur zip %2)</translation>
    </message>
    <message>
        <source>%1 (libxlsxwriter) could not be loaded</source>
        <translation>impossible de charger %1 (libxlsxwriter)</translation>
    </message>
    <message>
        <source>no temporary file for the workbook</source>
        <translation>impossible de créer un fichier temporaire pour le classeur</translation>
    </message>
    <message>
        <source>row %1: a quotation mark opens a text that never ends</source>
        <translation>ligne %1 : un guillemet ouvre un texte qui ne se termine jamais</translation>
    </message>
</context>
<context>
    <name>WriteFileReplacing</name>
    <message>
        <source>A file cannot be copied onto itself.</source>
        <translation>Un fichier ne peut pas être copié sur lui-même.</translation>
    </message>
</context>
<context>
    <name>basPLOVQuzr</name>
    <message>
        <source>Unable to load %1. The game will still work, but with no graphics.</source>
        <translation>Impossible de charger %1. Le jeu fonctionnera quand même, mais sans graphismes.</translation>
    </message>
    <message>
        <source>Unable to load %1. The game will still work, but with no sounds.</source>
        <translation>Impossible de charger %1. Le jeu fonctionnera quand même, mais sans son.</translation>
    </message>
</context>
<context>
    <name>clsOpenSaveDlg</name>
    <message>
        <source>All Files</source>
        <translation>Tous les fichiers</translation>
    </message>
</context>
<context>
    <name>frmBuzzers</name>
    <message>
        <source>Buzzers</source>
        <translation>Buzzers</translation>
    </message>
    <message>
        <source>Press Learn beside a team, then press that team&apos;s buzzer: a key of a buzzer box or of the keyboard, or a button of a joystick or game controller. The game&apos;s own keys (the digits, BackSpace, Space, + and −) cannot be buzzers.</source>
        <translation>Cliquez sur Définir à côté d&apos;une équipe, puis appuyez sur le buzzer de cette équipe : une touche d&apos;un boîtier de buzzers ou du clavier, ou un bouton d&apos;un joystick ou d&apos;une manette de jeu. Les touches du jeu lui-même (les chiffres, Retour arrière, Espace, + et −) ne peuvent pas servir de buzzers.</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>Définir</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Press %1&apos;s buzzer now (Escape: stop).</source>
        <translation>%1 : appuyez maintenant sur son buzzer (Échap : arrêter).</translation>
    </message>
    <message>
        <source>Buzz-in is on.</source>
        <translation>Jeu au buzzer activé.</translation>
    </message>
    <message>
        <source>Buzz-in is off.</source>
        <translation>Jeu au buzzer désactivé.</translation>
    </message>
    <message>
        <source>waiting for a press…</source>
        <translation>En attente d&apos;un appui…</translation>
    </message>
    <message>
        <source>none</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Joysticks cannot be read: %1.</source>
        <translation>Joysticks indisponibles : %1.</translation>
    </message>
    <message>
        <source>No joystick or game controller is plugged in.</source>
        <translation>Aucun joystick ni manette de jeu n&apos;est branché.</translation>
    </message>
    <message>
        <source>Plugged in: %1</source>
        <translation>Appareils branchés : %1</translation>
    </message>
</context>
<context>
    <name>frmConsole</name>
    <message>
        <source>Phones</source>
        <translation>Portables</translation>
    </message>
    <message>
        <source>Join screen (J)</source>
        <translation>Écran d&apos;accès (J)</translation>
    </message>
    <message>
        <source>Remove player</source>
        <translation>Retirer le joueur</translation>
    </message>
    <message>
        <source>Room %1 — %2</source>
        <translation>Salle %1 — %2</translation>
    </message>
    <message>
        <source>Daily double for:</source>
        <translation>Mise surprise pour :</translation>
    </message>
    <message>
        <source>The final: each team&apos;s wager and response</source>
        <translation>La finale : mise et réponse de chaque équipe</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Juste</translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>Faux</translation>
    </message>
    <message>
        <source>Reveal the next team</source>
        <translation>Révéler l&apos;équipe suivante</translation>
    </message>
    <message>
        <source>(choose the team)</source>
        <translation>(choisir l&apos;équipe)</translation>
    </message>
    <message>
        <source>Daily double for (wager $ %1):</source>
        <translation>Mise surprise ($ %1) pour :</translation>
    </message>
    <message>
        <source>no wager</source>
        <translation>pas de mise</translation>
    </message>
    <message>
        <source> — “%1”</source>
        <translation> — « %1 »</translation>
    </message>
    <message>
        <source> (shown)</source>
        <translation> (à l&apos;écran)</translation>
    </message>
    <message>
        <source>No clue open</source>
        <translation>Aucun indice ouvert</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Patientez</translation>
    </message>
    <message>
        <source>Show the final category</source>
        <translation>Afficher la catégorie finale</translation>
    </message>
    <message>
        <source>Show the final clue</source>
        <translation>Afficher l&apos;indice final</translation>
    </message>
    <message>
        <source>Show the clue</source>
        <translation>Afficher l&apos;indice</translation>
    </message>
    <message>
        <source>Reveal the response</source>
        <translation>Révéler la réponse</translation>
    </message>
    <message>
        <source>Close the clue</source>
        <translation>Fermer l&apos;indice</translation>
    </message>
    <message>
        <source>Think music: %1 s left</source>
        <translation>Musique de réflexion : encore %1 s</translation>
    </message>
    <message>
        <source>Locked: %1 s</source>
        <translation>Bloqué : %1 s</translation>
    </message>
    <message>
        <source>Host&apos;s console</source>
        <translation>Console de l&apos;hôte</translation>
    </message>
    <message>
        <source>End round</source>
        <translation>Fin de manche</translation>
    </message>
    <message>
        <source>End game</source>
        <translation>Fin de partie</translation>
    </message>
    <message>
        <source>Switch screens</source>
        <translation>Inverser les écrans</translation>
    </message>
    <message>
        <source>End this round now? The tiles left in it will not be played.</source>
        <translation>Terminer cette manche maintenant ? Les cases restantes ne seront pas jouées.</translation>
    </message>
    <message>
        <source>End the game now, without the standings?</source>
        <translation>Terminer la partie maintenant, sans le classement ?</translation>
    </message>
    <message>
        <source>Parade the titles</source>
        <translation>Présenter les catégories</translation>
    </message>
    <message>
        <source>Buzz in</source>
        <translation>Au buzzer</translation>
    </message>
    <message>
        <source>Buzzers…</source>
        <translation>Buzzers…</translation>
    </message>
    <message>
        <source>Buzzers off</source>
        <translation>Buzzers désactivés</translation>
    </message>
    <message>
        <source>Buzzers OPEN</source>
        <translation>Buzzers OUVERTS</translation>
    </message>
    <message>
        <source>Buzzers closed</source>
        <translation>Buzzers fermés</translation>
    </message>
    <message>
        <source>Close (Space)</source>
        <translation>Fermer (Espace)</translation>
    </message>
    <message>
        <source>Open (Space)</source>
        <translation>Ouvrir (Espace)</translation>
    </message>
    <message>
        <source> +%1 s</source>
        <translation> +%1 s</translation>
    </message>
    <message>
        <source> (wrong)</source>
        <translation> (faux)</translation>
    </message>
    <message>
        <source>Too early: %1</source>
        <translation>Trop tôt : %1</translation>
    </message>
    <message>
        <source>Right (+): %1</source>
        <translation>Juste (+) : %1</translation>
    </message>
    <message>
        <source>Right (+)</source>
        <translation>Juste (+)</translation>
    </message>
    <message>
        <source>Wrong (−): %1</source>
        <translation>Faux (−) : %1</translation>
    </message>
    <message>
        <source>Wrong (−)</source>
        <translation>Faux (−)</translation>
    </message>
    <message>
        <source>Undo last score</source>
        <translation>Annuler le dernier score</translation>
    </message>
    <message>
        <source>Amount to give (+) or take (−):</source>
        <translation>Montant à ajouter (+) ou à retirer (−) :</translation>
    </message>
    <message>
        <source>%1 This cannot be undone.</source>
        <translation>%1 Cette action est irréversible.</translation>
    </message>
    <message>
        <source>No game running: name the teams, then start a game on the home screen.</source>
        <translation>Aucune partie en cours : nommez les équipes, puis lancez une partie depuis l&apos;écran d&apos;accueil.</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Finale</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Manche %1</translation>
    </message>
    <message>
        <source>  (daily double)</source>
        <translation>  (mise surprise)</translation>
    </message>
    <message>
        <source>Response: %1</source>
        <translation>Réponse : %1</translation>
    </message>
    <message>
        <source>Choose a value on the board below.</source>
        <translation>Choisissez une valeur sur le tableau ci-dessous.</translation>
    </message>
</context>
<context>
    <name>frmEditor</name>
    <message>
        <source>Description:</source>
        <translation>Description :</translation>
    </message>
    <message>
        <source>Secs/Answer:</source>
        <translation>Temps (s) :</translation>
    </message>
    <message>
        <source>Cat. Title:</source>
        <translation>Catégorie :</translation>
    </message>
    <message>
        <source>Answer %1:</source>
        <translation>Indice %1 :</translation>
    </message>
    <message>
        <source>Question %1:</source>
        <translation>Question %1 :</translation>
    </message>
    <message>
        <source>Rounds:</source>
        <translation>Manches :</translation>
    </message>
    <message>
        <source>Categories:</source>
        <translation>Catégories :</translation>
    </message>
    <message>
        <source>Round 1</source>
        <translation>Manche 1</translation>
    </message>
    <message>
        <source>Round 2</source>
        <translation>Manche 2</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Finale</translation>
    </message>
    <message>
        <source>Cat. %1</source>
        <translation>Cat. %1</translation>
    </message>
    <message>
        <source>Question Editor/Creator</source>
        <translation>Éditeur de questions</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>&amp;Print Host Sheet...</source>
        <translation>&amp;Fiche hôte...</translation>
    </message>
    <message>
        <source>&amp;Import Spreadsheet...</source>
        <translation>&amp;Import tableur...</translation>
    </message>
    <message>
        <source>E&amp;xport Spreadsheet...</source>
        <translation>E&amp;xport tableur...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Would you like to save your work?</source>
        <translation>Voulez-vous enregistrer votre travail ?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>PLOV(tm) Quizzarr! QA Files (*.QZ2;*.QZA)|*.QZ2;*.QZA</source>
        <translation>Fichiers de questions PLOV(tm) Quizzarr! (*.QZ2;*.QZA)|*.QZ2;*.QZA</translation>
    </message>
    <message>
        <source>QZ2 Files (*.QZ2)|*.QZ2</source>
        <translation>Fichiers QZ2 (*.QZ2)|*.QZ2</translation>
    </message>
    <message>
        <source>Save file error #:%1<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Erreur n° %1 à l&apos;enregistrement<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>The set was saved, but its pictures could not all be copied beside it:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>La série a été enregistrée, mais ses images n&apos;ont pas toutes pu être copiées à côté d&apos;elle :<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Remove Picture</source>
        <translation>Retirer l&apos;image</translation>
    </message>
    <message>
        <source>Picture...</source>
        <translation>Image...</translation>
    </message>
    <message>
        <source>Choose a picture to show with this clue</source>
        <translation>Choisir une image à afficher avec cet indice</translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation>%1 (introuvable)</translation>
    </message>
    <message>
        <source>Choose a Picture for the Clue</source>
        <translation>Choisir une image pour l&apos;indice</translation>
    </message>
    <message>
        <source>Pictures (*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp)|*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp</source>
        <translation>Images (*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp)|*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp</translation>
    </message>
    <message>
        <source>Import Spreadsheet</source>
        <translation>Importer un tableur</translation>
    </message>
    <message>
        <source>Spreadsheets (*.csv;*.xlsx;*.ods)|*.csv;*.xlsx;*.ods</source>
        <translation>Feuilles de calcul (*.csv;*.xlsx;*.ods)|*.csv;*.xlsx;*.ods</translation>
    </message>
    <message>
        <source>Cannot read %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Impossible de lire %1 :<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Cannot import %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Impossible d&apos;importer %1 :<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Export Spreadsheet</source>
        <translation>Exporter un tableur</translation>
    </message>
    <message>
        <source>Excel Workbook (*.xlsx)|*.xlsx|CSV Text (*.csv)|*.csv</source>
        <translation>Classeur Excel (*.xlsx)|*.xlsx|Texte CSV (*.csv)|*.csv</translation>
    </message>
    <message>
        <source>Export file error #:%1<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Erreur n° %1 à l&apos;exportation<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>The spreadsheet was written, but it will not import as it is:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>La feuille de calcul a été enregistrée, mais elle ne pourra pas être importée telle quelle :<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>%1 - host sheet.pdf</source>
        <translation>%1 - fiche de l&apos;hôte.pdf</translation>
    </message>
    <message>
        <source>Question Set</source>
        <translation>Série de questions</translation>
    </message>
    <message>
        <source>Print Host Sheet</source>
        <translation>Imprimer la fiche de l&apos;hôte</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)|*.pdf</source>
        <translation>Fichiers PDF (*.pdf)|*.pdf</translation>
    </message>
    <message>
        <source>The host sheet could not be written to %1:<byte value="xd"/>
%2</source>
        <translation>Impossible d&apos;écrire la fiche de l&apos;hôte dans %1 :<byte value="xd"/>
%2</translation>
    </message>
</context>
<context>
    <name>frmHowToPlay</name>
    <message>
        <source>How To Play Quizzarr!</source>
        <translation>Comment jouer à Quizzarr !</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Please wait until all sounds playing have stopped, then click OK to start!</source>
        <translation>Attendez que tous les sons en cours soient terminés, puis cliquez sur OK pour commencer !</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>I am unable to initialize DirectSound. This might be caused if a sound is currently playing. Click RETRY after all sounds have stopped to try again. Click CANCEL to play the game WITHOUT sound.</source>
        <translation>Impossible d&apos;initialiser DirectSound. Cela peut arriver quand un son est en cours de lecture. Une fois tous les sons arrêtés, cliquez sur RÉESSAYER pour essayer à nouveau. Cliquez sur ANNULER pour jouer SANS le son.</translation>
    </message>
</context>
<context>
    <name>frmSelect</name>
    <message>
        <source>PLOV(tm) Quizzarr! QA Files (*.QZ2)|*.QZ2</source>
        <translation>Fichiers de questions PLOV(tm) Quizzarr! (*.QZ2)|*.QZ2</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>To a floppy disk (A:)...</source>
        <translation>Vers une disquette (A:)...</translation>
    </message>
    <message>
        <source>To another drive...</source>
        <translation>Vers un autre lecteur...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>From a floppy disk (A:)...</source>
        <translation>Depuis une disquette (A:)...</translation>
    </message>
    <message>
        <source>From another drive...</source>
        <translation>Depuis un autre lecteur...</translation>
    </message>
    <message>
        <source>Export Question File To</source>
        <translation>Exporter le fichier de questions vers</translation>
    </message>
    <message>
        <source>Export File Failure<byte value="xd"/>
%1</source>
        <translation>Échec de l&apos;exportation<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>Select Question File To Import</source>
        <translation>Choisir le fichier de questions à importer</translation>
    </message>
    <message>
        <source>Import File Failure<byte value="xd"/>
%1</source>
        <translation>Échec de l&apos;importation<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>No scoring</source>
        <translation>Sans score</translation>
    </message>
    <message>
        <source>One team</source>
        <translation>Une équipe</translation>
    </message>
    <message>
        <source>Two teams</source>
        <translation>Deux équipes</translation>
    </message>
    <message>
        <source>Three teams</source>
        <translation>Trois équipes</translation>
    </message>
    <message>
        <source>Four teams</source>
        <translation>Quatre équipes</translation>
    </message>
    <message>
        <source>Five teams</source>
        <translation>Cinq équipes</translation>
    </message>
    <message>
        <source>Six teams</source>
        <translation>Six équipes</translation>
    </message>
    <message>
        <source>Seven teams</source>
        <translation>Sept équipes</translation>
    </message>
    <message>
        <source>Eight teams</source>
        <translation>Huit équipes</translation>
    </message>
    <message>
        <source>Nine teams</source>
        <translation>Neuf équipes</translation>
    </message>
    <message>
        <source>Ten teams!</source>
        <translation>Dix équipes !</translation>
    </message>
    <message>
        <source>Select the question set to use</source>
        <translation>Choisir une série de questions</translation>
    </message>
    <message>
        <source>Keep score for:</source>
        <translation>Points pour :</translation>
    </message>
    <message>
        <source>Buzz in</source>
        <translation>Au buzzer</translation>
    </message>
    <message>
        <source>Buzzers…</source>
        <translation>Buzzers…</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>Portables</translation>
    </message>
    <message>
        <source>The phones cannot be used: no network port from %1 on is free on this computer.</source>
        <translation>Impossible d&apos;utiliser les portables : aucun port réseau à partir de %1 n&apos;est libre sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Start Game</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Question Editor/Creator</source>
        <translation>Éditeur de questions</translation>
    </message>
    <message>
        <source>How To Play</source>
        <translation>Comment jouer</translation>
    </message>
    <message>
        <source>&gt;&gt; Export File</source>
        <translation>&gt;&gt; Exporter</translation>
    </message>
    <message>
        <source>&lt;&lt; Import File(s)</source>
        <translation>&lt;&lt; Importer</translation>
    </message>
    <message>
        <source>Please select a question set to use before starting the game.</source>
        <translation>Choisissez une série de questions avant de lancer la partie.</translation>
    </message>
    <message>
        <source>I&apos;m sorry, but I am unable to locate any valid .QZ2 files.</source>
        <translation>Désolé, je ne trouve aucun fichier .QZ2 valide.</translation>
    </message>
    <message>
        <source>Click YES to edit %1, else click NO to create a new Question set.</source>
        <translation>Cliquez sur OUI pour modifier %1, ou sur NON pour créer une nouvelle série de questions.</translation>
    </message>
</context>
</TS>
