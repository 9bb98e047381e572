#include "HostSheet.h"

#include <QCoreApplication>
#include <QLocale>
#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>

#include <memory>

namespace {

// Readable at arm's length, and a round of six categories on one page
// where the clues are short.
constexpr qreal kPoints = 12;

QString cell(const QString &text)
{
    return text.toHtmlEscaped();
}

// One clue's row: the same column widths in every row, so the rows of a
// category line up as one table.
QString clueRow(const CategoryEntry &c, int round, int j)
{
    const QString value = round == 2 ? QCoreApplication::translate("HostSheet", "Final") : QLatin1Char('$') + QString::number((j + 1) * (round + 1) * 100);
    QString clue = cell(c.Answer[size_t(j)]);
    if (!c.Picture[size_t(j)].isEmpty())
        clue += QStringLiteral(" <i>[%1]</i>").arg(QCoreApplication::translate("HostSheet", "picture: %1").arg(cell(c.Picture[size_t(j)])));
    return QStringLiteral("<table width=\"100%\" cellpadding=\"3\"><tr><td width=\"12%\" style=\"white-space: nowrap\"><b>") +
           value + QStringLiteral("</b></td><td width=\"53%\">") + clue + QStringLiteral("</td><td width=\"35%\"><b>") +
           cell(c.Question[size_t(j)]) + QStringLiteral("</b></td></tr></table>");
}

void appendCategory(QList<SheetPiece> &pieces, const CategoryEntry &c, int round)
{
    pieces.append({QStringLiteral("<h3>") + cell(c.Title) + QStringLiteral("</h3>"), false, true});
    for (int j = 0; j < (round == 2 ? 1 : 5); ++j)
        pieces.append({clueRow(c, round, j), false, false});
}

// One piece, laid out at the page's width in the PDF's own units.
std::unique_ptr<QTextDocument> laidOut(const SheetPiece &piece, QPdfWriter &pdf, qreal width)
{
    auto doc = std::make_unique<QTextDocument>();
    doc->documentLayout()->setPaintDevice(&pdf);
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(kPoints);
    doc->setDefaultFont(font);
    doc->setHtml(piece.html);
    doc->setTextWidth(width);
    return doc;
}

// Places the pieces page by page: a piece goes to a new page when it (and
// whatever must stay with it) does not fit the rest of this one; only a
// piece taller than a whole page is cut, at the page's foot.
void paginate(const QList<SheetPiece> &pieces, QPdfWriter &pdf)
{
    const QRectF page = pdf.pageLayout().paintRectPixels(pdf.resolution()).toRectF();
    const qreal width = page.width(), height = page.height();
    std::vector<std::unique_ptr<QTextDocument>> docs;
    for (const SheetPiece &piece : pieces)
        docs.push_back(laidOut(piece, pdf, width));
    QPainter painter(&pdf);
    qreal y = 0;
    for (size_t i = 0; i < docs.size(); ++i) {
        qreal needed = docs[i]->size().height();
        for (size_t k = i; k + 1 < docs.size() && pieces[qsizetype(k)].keepWithNext; ++k)
            needed += docs[k + 1]->size().height();
        if (y > 0 && (pieces[qsizetype(i)].newPage || (y + needed > height && needed <= height))) {
            pdf.newPage();
            y = 0;
        }
        const qreal h = docs[i]->size().height();
        for (qreal shown = 0; shown < h; shown += height) {
            if (shown > 0) {
                pdf.newPage();
                y = 0;
            }
            painter.save();
            painter.translate(0, y - shown);
            docs[i]->drawContents(&painter, QRectF(0, shown, width, qMin(height - y, h - shown)));
            painter.restore();
            y += qMin(height - y, h - shown);
        }
    }
}

} // namespace

QPageSize::PageSizeId HostSheetPaper(const QLocale &locale)
{
    return locale.measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter : QPageSize::A4;
}

QList<SheetPiece> HostSheetPieces(const QuestionSet &set)
{
    const QString intro = QCoreApplication::translate("HostSheet", "Answer time: %1 seconds. Clue, then the response in bold.")
                              .arg(QLocale().toString(set.Timer));
    QList<SheetPiece> pieces{{QStringLiteral("<h1>%1</h1><p>%2</p>").arg(cell(set.Description), intro), false, true}};
    for (int r = 0; r < set.RoundCount; ++r) {
        pieces.append({QStringLiteral("<h2>%1</h2>").arg(QCoreApplication::translate("HostSheet", "Round %1").arg(r + 1)), r > 0, true});
        for (int c = 0; c < set.CategoryCount[size_t(r)]; ++c)
            appendCategory(pieces, set.Categories[size_t(r)][size_t(c)], r);
    }
    pieces.append({QStringLiteral("<h2>%1</h2>").arg(QCoreApplication::translate("HostSheet", "Final")), true, true});
    appendCategory(pieces, set.Categories[2][0], 2);
    return pieces;
}

FileError WriteHostSheet(const QuestionSet &set, const QString &pdfPath, QPageSize::PageSizeId paper)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&bytes);
        pdf.setTitle(set.Description);
        pdf.setCreator(QStringLiteral("PLOV(tm) Quizzarr!"));
        pdf.setPageSize(QPageSize(paper));
        pdf.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
        paginate(HostSheetPieces(set), pdf);
    }
    return WriteFileReplacing(pdfPath, bytes.data());
}
