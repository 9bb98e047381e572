// The five how-to-play topics.
#pragma once

#include <QString>
#include <QStringList>

// "Starting", "Playing", "Special Keys", "Scoring", "Editing".
QStringList HelpTopicCaptions();

// The text of topic 0..4: paragraphs joined by two CR LF, no break at the
// end; "" for any other index.
QString HelpTopicText(int index);
