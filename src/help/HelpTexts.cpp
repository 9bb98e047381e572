#include "HelpTexts.h"

#include <QCoreApplication>

#include <vector>

QStringList HelpTopicCaptions()
{
    return {QCoreApplication::translate("HelpTexts", "Starting"), QCoreApplication::translate("HelpTexts", "Playing"),
            QCoreApplication::translate("HelpTexts", "Special Keys"), QCoreApplication::translate("HelpTexts", "Scoring"),
            QCoreApplication::translate("HelpTexts", "Editing")};
}

QString HelpTopicText(int index)
{
    // Marked here, translated when shown: the language is chosen after start-up.
    static const std::vector<std::vector<const char *>> topics{
        {QT_TRANSLATE_NOOP("HelpTexts", "Click on the question/answer file you wish to use, then click on Start Game."),
         QT_TRANSLATE_NOOP("HelpTexts", "Clicking on any one of the categories will display all the categories, one at a time. "
                        "You must wait until this is finished to continue. This should be done once, just after "
                        "the board has been set up, just like in the real game on TV."),
         QT_TRANSLATE_NOOP("HelpTexts", "Two daily doubles are picked at random for each game and round.")},
        {QT_TRANSLATE_NOOP("HelpTexts", "In order to display an answer, click on the dollar amount. Once the answer has been "
                        "displayed for at least three seconds, you can click on the answer to reveal the question. "
                        "Three seconds later, you can click on the question to return to the board."),
         QT_TRANSLATE_NOOP("HelpTexts", "The three second delay keeps you from accidently clicking too fast."),
         QT_TRANSLATE_NOOP("HelpTexts", "For Final Quizzarr, after the answer is displayed, you will have to wait the ENTIRE 30 "
                        "seconds to click to show the question. Once the question is displayed, clicking on the "
                        "empty board will take you back to the file selection screen.")},
        {QT_TRANSLATE_NOOP("HelpTexts", "If you accidently display an answer, you can click while holding SHIFT, ALT and CTRL on "
                        "an answer already displayed and the answer will return to the play board."),
         QT_TRANSLATE_NOOP("HelpTexts", "Likewise, if you want to remove an answer from play, you can click while holding SHIFT, "
                        "ALT and CTRL on an answer and the answer will be removed from the play board."),
         QT_TRANSLATE_NOOP("HelpTexts", "Pressing SHIFT, ALT, CTRL and N will prematurely end the round and start the next round."),
         QT_TRANSLATE_NOOP("HelpTexts", "Pressing SHIFT, ALT, CTRL and Q will prematurely end the game and take you back to the "
                        "file selection screen.")},
        {QT_TRANSLATE_NOOP("HelpTexts", "To keep score, select the number of teams before clicking Start Game."),
         QT_TRANSLATE_NOOP("HelpTexts", "Once the answer and question has been clicked on and the playing board is shown, press 1 "
                        "to add the point value to team 1, 2 to add the point value to team 2, ad nauseum. Press 0 "
                        "to add the point value to team 10."),
         QT_TRANSLATE_NOOP("HelpTexts", "If you wish to subtract the point value from a team, press SHIFT with the team number."),
         QT_TRANSLATE_NOOP("HelpTexts", "For Daily Doubles and Final Quizzarr, the point value is reset to $100 to allow you to add "
                        "(or subtract) the appropriate number of points.")},
        {QT_TRANSLATE_NOOP("HelpTexts", "To create or edit your own question/answer file, click on Question Editor/Creator and use "
                        "the new editor to create the new QZ2 files. "),
         QT_TRANSLATE_NOOP("HelpTexts", "To migrate your old QZA files, just OPEN the old file and SAVE AS to automatically convert "
                        "it to the new format.")},
    };
    if (index < 0 || index >= int(topics.size()))
        return QString();
    QStringList paragraphs;
    for (const char *paragraph : topics.at(size_t(index)))
        paragraphs << QCoreApplication::translate("HelpTexts", paragraph);
    return paragraphs.join(QStringLiteral("\r\n\r\n"));
}
