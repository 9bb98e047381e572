#include "HelpTexts.h"

QStringList HelpTopicCaptions()
{
    return {QStringLiteral("Starting"), QStringLiteral("Playing"), QStringLiteral("Special Keys"),
            QStringLiteral("Scoring"), QStringLiteral("Editing")};
}

QString HelpTopicText(int index)
{
    static const QList<QStringList> topics{
        {QStringLiteral("Click on the question/answer file you wish to use, then click on Start Game."),
         QStringLiteral("Clicking on any one of the categories will display all the categories, one at a time. "
                        "You must wait until this is finished to continue. This should be done once, just after "
                        "the board has been set up, just like in the real game on TV."),
         QStringLiteral("Two daily doubles are picked at random for each game and round.")},
        {QStringLiteral("In order to display an answer, click on the dollar amount. Once the answer has been "
                        "displayed for at least three seconds, you can click on the answer to reveal the question. "
                        "Three seconds later, you can click on the question to return to the board."),
         QStringLiteral("The three second delay keeps you from accidently clicking too fast."),
         QStringLiteral("For Final Quizzarr, after the answer is displayed, you will have to wait the ENTIRE 30 "
                        "seconds to click to show the question. Once the question is displayed, clicking on the "
                        "empty board will take you back to the file selection screen.")},
        {QStringLiteral("If you accidently display an answer, you can click while holding SHIFT, ALT and CTRL on "
                        "an answer already displayed and the answer will return to the play board."),
         QStringLiteral("Likewise, if you want to remove an answer from play, you can click while holding SHIFT, "
                        "ALT and CTRL on an answer and the answer will be removed from the play board."),
         QStringLiteral("Pressing SHIFT, ALT, CTRL and N will prematurely end the round and start the next round."),
         QStringLiteral("Pressing SHIFT, ALT, CTRL and Q will prematurely end the game and take you back to the "
                        "file selection screen.")},
        {QStringLiteral("To keep score, select the number of teams before clicking Start Game."),
         QStringLiteral("Once the answer and question has been clicked on and the playing board is shown, press 1 "
                        "to add the point value to team 1, 2 to add the point value to team 2, ad nauseum. Press 0 "
                        "to add the point value to team 10."),
         QStringLiteral("If you wish to subtract the point value from a team, press SHIFT with the team number."),
         QStringLiteral("For Daily Doubles and Final Quizzarr, the point value is reset to $100 to allow you to add "
                        "(or subtract) the appropriate number of points.")},
        {QStringLiteral("To create or edit your own question/answer file, click on Question Editor/Creator and use "
                        "the new editor to create the new QZ2 files. "),
         QStringLiteral("To migrate your old QZA files, just OPEN the old file and SAVE AS to automatically convert "
                        "it to the new format.")},
    };
    if (index < 0 || index >= topics.size())
        return QString();
    return topics.at(index).join(QStringLiteral("\r\n\r\n"));
}
