// The host's sheet: a whole set on paper, to hold during the game or to
// check before it — every category of each round with its clues, values and
// responses, and the final. A PDF, in the paper size of the host's country.
#pragma once

#include "QuestionSet.h"

#include <QList>
#include <QLocale>
#include <QPageSize>

// Letter where the country measures in inches, else A4.
QPageSize::PageSizeId HostSheetPaper(const QLocale &locale = QLocale::system());

// The sheet as the pieces that are laid out one after another on its
// pages: the title, each round's heading (from a new page), each
// category's heading, and each clue's row with its response. A row is
// never split across pages, and a heading never stands alone at a page's
// foot: it goes with the piece after it.
struct SheetPiece {
    QString html;
    bool newPage = false;      // starts a page
    bool keepWithNext = false; // on the same page as the piece after it
};
QList<SheetPiece> HostSheetPieces(const QuestionSet &set);

// Writes the sheet to pdfPath through the safe writer. Needs a
// QGuiApplication, for its fonts.
FileError WriteHostSheet(const QuestionSet &set, const QString &pdfPath, QPageSize::PageSizeId paper = HostSheetPaper());
