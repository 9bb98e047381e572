#pragma once

#include <QLocale>
#include <QString>

// Puts the game's texts and Qt's own (the buttons of a box, the file
// dialogs) into the first language of the locale's list that the game
// speaks. English, or a list that names English before any language the
// game speaks, keeps the texts as written. Called again, it replaces the
// languages installed before. Returns the language installed ("de"), empty
// for English.
QString InstallTranslations(const QLocale &locale);
