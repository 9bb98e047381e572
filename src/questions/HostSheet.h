// The host's sheet: a whole set on paper, to hold during the game or to
// check before it — every category of each round with its clues, values and
// responses, and the final. A PDF, in the paper size of the host's country.
#pragma once

#include "QuestionSet.h"

#include <QLocale>
#include <QPageSize>

// Letter where the country measures in inches, else A4.
QPageSize::PageSizeId HostSheetPaper(const QLocale &locale = QLocale::system());

// The sheet as a document: a title, then each round from a new page.
QString HostSheetHtml(const QuestionSet &set);

// Writes the sheet to pdfPath through the safe writer. Needs a
// QGuiApplication, for its fonts.
FileError WriteHostSheet(const QuestionSet &set, const QString &pdfPath, QPageSize::PageSizeId paper = HostSheetPaper());
