#include "HostSheet.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QTextDocument>

namespace {

// Readable at arm's length, and a round of six categories on one page
// where the clues are short.
constexpr qreal kPoints = 12;

QString cell(const QString &text)
{
    return text.toHtmlEscaped();
}

QString categoryTable(const CategoryEntry &c, int round)
{
    QString html = QStringLiteral("<h3>") + cell(c.Title) + QStringLiteral("</h3><table width=\"100%\" cellpadding=\"3\">");
    const int rows = round == 2 ? 1 : 5;
    for (int j = 0; j < rows; ++j) {
        const QString value = round == 2 ? QStringLiteral("Final") : QLatin1Char('$') + QString::number((j + 1) * (round + 1) * 100);
        QString clue = cell(c.Answer[size_t(j)]);
        if (!c.Picture[size_t(j)].isEmpty())
            clue += QStringLiteral(" <i>[picture: ") + cell(c.Picture[size_t(j)]) + QStringLiteral("]</i>");
        html += QStringLiteral("<tr><td width=\"12%\" style=\"white-space: nowrap\"><b>") + value + QStringLiteral("</b></td><td width=\"53%\">") + clue +
                QStringLiteral("</td><td width=\"35%\"><b>") + cell(c.Question[size_t(j)]) + QStringLiteral("</b></td></tr>");
    }
    return html + QStringLiteral("</table>");
}

} // namespace

QPageSize::PageSizeId HostSheetPaper(const QLocale &locale)
{
    return locale.measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter : QPageSize::A4;
}

QString HostSheetHtml(const QuestionSet &set)
{
    QString html = QStringLiteral("<h1>") + cell(set.Description) + QStringLiteral("</h1><p>Answer time: ") +
                   QString::number(set.Timer) + QStringLiteral(" seconds. Clue, then the response in bold.</p>");
    for (int r = 0; r < set.RoundCount; ++r) {
        html += QStringLiteral("<h2") + (r > 0 ? QStringLiteral(" style=\"page-break-before: always\"") : QString()) +
                QStringLiteral(">Round ") + QString::number(r + 1) + QStringLiteral("</h2>");
        for (int c = 0; c < set.CategoryCount[size_t(r)]; ++c)
            html += categoryTable(set.Categories[size_t(r)][size_t(c)], r);
    }
    html += QStringLiteral("<h2 style=\"page-break-before: always\">Final</h2>") + categoryTable(set.Categories[2][0], 2);
    return html;
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
        QTextDocument doc;
        QFont font(QStringLiteral("Arial"));
        font.setPointSizeF(kPoints);
        doc.setDefaultFont(font);
        doc.setHtml(HostSheetHtml(set));
        // Laid out on the page's own width, in points, so the tables use it whole.
        doc.setPageSize(pdf.pageLayout().paintRectPoints().size());
        doc.print(&pdf);
    }
    return WriteFileReplacing(pdfPath, bytes.data());
}
