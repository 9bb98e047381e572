#include "TableFixtures.h"


#include <QFile>

Rows setRows(int round1, int round2, bool final)
{
    Rows rows{{QStringLiteral("Round"), QStringLiteral("Category"), QStringLiteral("Clue"), QStringLiteral("Response")}};
    const int counts[2] = {round1, round2};
    for (int r = 1; r <= 2; ++r) {
        for (int c = 0; c < counts[r - 1]; ++c) {
            for (int j = 0; j < 5; ++j) {
                const QString id = QStringLiteral("r%1c%2").arg(r).arg(c);
                rows << QStringList{QString::number(r), QStringLiteral("R%1 Cat %2").arg(r).arg(c),
                                    id + QStringLiteral(" clue %1").arg(j), id + QStringLiteral(" response %1").arg(j)};
            }
        }
    }
    if (final)
        rows << QStringList{QStringLiteral("Final"), QStringLiteral("Final Cat"), QStringLiteral("final clue"),
                            QStringLiteral("final response")};
    return rows;
}

QByteArray csvText(const Rows &rows, char separator, const QByteArray &lineEnd)
{
    QByteArray out;
    for (const QStringList &row : rows) {
        QByteArrayList cells;
        for (const QString &cell : row) {
            QByteArray bytes = cell.toUtf8();
            if (bytes.contains(separator) || bytes.contains('"') || bytes.contains('\n') || bytes.contains('\r'))
                bytes = '"' + bytes.replace("\"", "\"\"") + '"';
            cells << bytes;
        }
        out += cells.join(separator) + lineEnd;
    }
    return out;
}

bool equalSets(const QuestionSet &a, const QuestionSet &b, QString *where)
{
    auto differ = [&](const QString &what, const QString &x, const QString &y) {
        *where = what + QStringLiteral(": '") + x + QStringLiteral("' vs '") + y + QLatin1Char('\'');
        return false;
    };
    if (a.Description != b.Description || a.Timer != b.Timer || a.RoundCount != b.RoundCount)
        return differ(QStringLiteral("head"), a.Description, b.Description);
    for (int r = 0; r < 3; ++r) {
        if (r == 1 && a.RoundCount == 1)
            continue;
        const int count = r == 2 ? 1 : a.CategoryCount[size_t(r)];
        if (r < 2 && count != b.CategoryCount[size_t(r)])
            return differ(QStringLiteral("count of round %1").arg(r), QString::number(count), QString());
        for (int c = 0; c < count; ++c) {
            const CategoryEntry &x = a.Categories[size_t(r)][size_t(c)];
            const CategoryEntry &y = b.Categories[size_t(r)][size_t(c)];
            if (x.Title != y.Title)
                return differ(QStringLiteral("title %1.%2").arg(r).arg(c), x.Title, y.Title);
            for (int j = 0; j < (r == 2 ? 1 : 5); ++j) {
                const QString at = QStringLiteral("%1.%2.%3").arg(r).arg(c).arg(j);
                if (x.Answer[size_t(j)] != y.Answer[size_t(j)])
                    return differ(QStringLiteral("clue ") + at, x.Answer[size_t(j)], y.Answer[size_t(j)]);
                if (x.Question[size_t(j)] != y.Question[size_t(j)])
                    return differ(QStringLiteral("response ") + at, x.Question[size_t(j)], y.Question[size_t(j)]);
                if (x.Picture[size_t(j)] != y.Picture[size_t(j)])
                    return differ(QStringLiteral("picture ") + at, x.Picture[size_t(j)], y.Picture[size_t(j)]);
            }
        }
    }
    return true;
}
