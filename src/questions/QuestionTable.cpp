#include "QuestionTable.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

// The messages a host reads when a table will not import.
struct Say {
    Q_DECLARE_TR_FUNCTIONS(QuestionTable)
};

enum Field { RoundField, CategoryField, ClueField, ResponseField, PictureField, FieldCount };

// The header's names, compared without letter case; the first four are
// required, a picture is optional.
const std::array<QString, FieldCount> kFieldNames{QStringLiteral("Round"), QStringLiteral("Category"),
                                                  QStringLiteral("Clue"), QStringLiteral("Response"),
                                                  QStringLiteral("Picture")};
constexpr int kRequiredFields = PictureField;
// Title rows may stand above the header: it is the first of these many
// filled rows that names every required column.
constexpr int kHeaderSearch = 10;

struct Clue {
    qint64 row = 0;
    std::array<QString, FieldCount> text;
};

struct Category {
    QString title;
    QList<Clue> clues;
};

// A host's text inside a message, cut short when it is long.
QString quoted(const QString &text)
{
    return QLatin1Char('"') + (text.size() > 40 ? text.left(40) + QStringLiteral("…") : text) + QLatin1Char('"');
}

// A row named as a host finds it: its number and what it holds, its cells
// parted by " | ", cut short when long.
QString rowName(const TableRow &row)
{
    QString holds;
    qsizetype filled = row.cells.size();
    while (filled > 0 && row.cells[filled - 1].trimmed().isEmpty())
        --filled;
    for (qsizetype c = 0; c < filled && holds.size() <= 60; ++c)
        holds += (c ? QStringLiteral(" | ") : QString()) + row.cells[c].left(61).trimmed();
    for (QChar &c : holds) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = QLatin1Char(' ');
    }
    return Say::tr("row %1 (\"%2\")").arg(QString::number(row.number), holds.size() > 60 ? holds.left(60) + QStringLiteral("…") : holds);
}

// A round as a cell may hold it: 1, 2 (also as a number such as "1.0") or
// Final in any letter case; 0 for anything else.
int roundOf(const QString &text)
{
    if (text.compare(QStringLiteral("Final"), Qt::CaseInsensitive) == 0)
        return 3;
    bool ok = false;
    const double n = text.toDouble(&ok);
    return ok && (n == 1.0 || n == 2.0) ? int(n) : 0;
}

// A column's name inside a sentence: "the clue is empty".
QString fieldWord(Field field)
{
    switch (field) {
    case RoundField: return Say::tr("round");
    case CategoryField: return Say::tr("category");
    case ClueField: return Say::tr("clue");
    case ResponseField: return Say::tr("response");
    case PictureField:
    case FieldCount: break;
    }
    return Say::tr("picture");
}

QString roundName(int round)
{
    return Say::tr("round %1").arg(round + 1);
}

QString rowList(const QList<Clue> &clues)
{
    QStringList rows;
    for (const Clue &c : clues)
        rows << QString::number(c.row);
    return (rows.size() == 1 ? Say::tr("row %1") : Say::tr("rows %1")).arg(rows.join(QStringLiteral(", ")));
}

// Walks the rows once, gathering clues by round and category in the order
// they come; the first fault ends the walk.
class TableMapper {
public:
    explicit TableMapper(const Table &table) : table_(table) { columns_.fill(-1); }

    QString run()
    {
        if (table_.rows.isEmpty())
            //: Round, Category, Clue and Response are the names a table's columns must have, in English.
            return Say::tr("the table is empty; its first row must name the columns Round, Category, Clue and Response");
        QString fault = findHeader();
        for (qsizetype i = header_ + 1; fault.isEmpty() && i < table_.rows.size(); ++i)
            fault = addRow(table_.rows[i]);
        return fault.isEmpty() ? checkComplete() : fault;
    }

    QuestionSet set(const QString &description, qint16 timer) const;

private:
    QString where(qint64 row, Field field) const
    {
        const int column = columns_[size_t(field)];
        return Say::tr("%1, column %2 (%3)").arg(rowName(rowNumbered(row)), ColumnLetters(column), headerText(column));
    }

    const TableRow &rowNumbered(qint64 number) const
    {
        const auto it = std::lower_bound(table_.rows.begin(), table_.rows.end(), number,
                                         [](const TableRow &r, qint64 n) { return r.number < n; });
        return it != table_.rows.end() ? *it : table_.rows.first();
    }

    const TableRow &header() const { return table_.rows[header_]; }
    QString headerText(int column) const { return header().cells.value(column).trimmed(); }

    QString cell(const TableRow &row, Field field) const
    {
        const int column = columns_[size_t(field)];
        return column < 0 ? QString() : row.cells.value(column).trimmed();
    }

    QString findHeader();
    QString readHeader(const TableRow &header);
    QString misspelt(int round, const Category &category) const;
    QString addRow(const TableRow &row);
    QString addClue(int round, const Clue &clue);
    QString addFinal(const Clue &clue);
    QString checkComplete() const;

    const Table &table_;
    qsizetype header_ = 0;
    std::array<int, FieldCount> columns_{};
    std::array<QList<Category>, 2> rounds_;
    std::optional<Clue> final_;
};

// The first of the first rows that names every required column; if none
// does, the fault names the row that comes closest.
QString TableMapper::findHeader()
{
    qsizetype best = 0;
    int bestFound = -1;
    for (qsizetype i = 0; i < qMin<qsizetype>(kHeaderSearch, table_.rows.size()); ++i) {
        int found = 0;
        for (const QString &name : table_.rows[i].cells) {
            // A header's name is short: a long cell is passed over unread.
            for (int f = 0; f < kRequiredFields && name.size() < 64; ++f)
                found += name.trimmed().compare(kFieldNames[size_t(f)], Qt::CaseInsensitive) == 0 ? 1 : 0;
        }
        if (found >= kRequiredFields) {
            best = i;
            break;
        }
        if (found > bestFound) {
            best = i;
            bestFound = found;
        }
    }
    header_ = best;
    return readHeader(table_.rows[best]);
}

QString TableMapper::readHeader(const TableRow &header)
{
    for (int column = 0; column < header.cells.size(); ++column) {
        for (int f = 0; f < FieldCount; ++f) {
            if (header.cells[column].size() >= 64 ||
                header.cells[column].trimmed().compare(kFieldNames[size_t(f)], Qt::CaseInsensitive) != 0)
                continue;
            if (columns_[size_t(f)] >= 0)
                return Say::tr("%1, column %2: a second column %3 (the first is column %4)")
                    .arg(rowName(header), ColumnLetters(column), quoted(kFieldNames[size_t(f)]),
                         ColumnLetters(columns_[size_t(f)]));
            columns_[size_t(f)] = column;
        }
    }
    QStringList missing;
    for (int f = 0; f < kRequiredFields; ++f) {
        if (columns_[size_t(f)] < 0)
            missing << quoted(kFieldNames[size_t(f)]);
    }
    if (missing.isEmpty())
        return QString();
    //: Round, Category, Clue and Response are the names a table's columns must have, in English.
    return (missing.size() > 1 ? Say::tr("%1: the header has no columns %2; one of the first ten filled rows must name "
                                         "the columns Round, Category, Clue and Response")
                               : Say::tr("%1: the header has no column %2; one of the first ten filled rows must name "
                                         "the columns Round, Category, Clue and Response"))
        .arg(rowName(header), missing.join(QStringLiteral(", ")));
}

QString TableMapper::addRow(const TableRow &row)
{
    Clue clue{row.number, {}};
    bool blank = true;
    for (int f = 0; f < FieldCount; ++f) {
        clue.text[size_t(f)] = cell(row, Field(f));
        blank = blank && clue.text[size_t(f)].isEmpty();
    }
    // A row with notes only in other columns is no clue.
    if (blank)
        return QString();
    for (int f = 0; f < FieldCount; ++f) {
        const QString &text = clue.text[size_t(f)];
        if (text.isEmpty() && f != PictureField)
            return Say::tr("%1: the %2 is empty").arg(where(row.number, Field(f)), fieldWord(Field(f)));
        const QString fault = SetTextFault(text);
        if (!fault.isEmpty())
            return Say::tr("%1: %2").arg(where(row.number, Field(f)), fault);
    }
    const int round = roundOf(clue.text[RoundField]);
    if (round == 3)
        return addFinal(clue);
    if (round > 0)
        return addClue(round - 1, clue);
    return Say::tr("%1: %2 is not a round; write 1, 2 or Final").arg(where(row.number, RoundField), quoted(clue.text[RoundField]));
}

QString TableMapper::addClue(int round, const Clue &clue)
{
    QList<Category> &categories = rounds_[size_t(round)];
    const QString &title = clue.text[CategoryField];
    // Spelled alike in any letter case: the first row's spelling stands.
    auto it = std::find_if(categories.begin(), categories.end(),
                           [&](const Category &c) { return c.title.compare(title, Qt::CaseInsensitive) == 0; });
    if (it == categories.end()) {
        if (categories.size() == 6)
            return Say::tr("%1: a seventh category, %2, in %3; a round holds at most 6")
                .arg(where(clue.row, CategoryField), quoted(title), roundName(round));
        categories.append(Category{title, {}});
        it = categories.end() - 1;
    }
    if (it->clues.size() == 5)
        return Say::tr("%1: a sixth clue for %2 in %3 (five are in %4); a category holds 5")
            .arg(where(clue.row, CategoryField), quoted(title), roundName(round), rowList(it->clues));
    it->clues.append(clue);
    return QString();
}

QString TableMapper::addFinal(const Clue &clue)
{
    if (final_)
        return Say::tr("%1: a second Final row (the first is row %2); a set has one final clue")
            .arg(where(clue.row, RoundField), QString::number(final_->row));
    final_ = clue;
    return QString();
}

// A short category that another short one of its round would make whole
// is most likely spelled otherwise in its rows: the fault names those.
QString TableMapper::misspelt(int round, const Category &category) const
{
    for (const Category &other : rounds_[size_t(round)]) {
        if (&other == &category || other.clues.size() + category.clues.size() != 5)
            continue;
        const Category &odd = other.clues.size() < category.clues.size() ? other : category;
        const Category &rest = &odd == &other ? category : other;
        return Say::tr("%1: %2 (%3) in %4 is spelled otherwise than %5 (%6); the five rows of a category name it alike")
            .arg(where(odd.clues.first().row, CategoryField), quoted(odd.title), rowList(odd.clues), roundName(round),
                 quoted(rest.title), rowList(rest.clues));
    }
    return QString();
}

QString TableMapper::checkComplete() const
{
    for (int r = 0; r < 2; ++r) {
        for (const Category &c : rounds_[size_t(r)]) {
            const QString odd = c.clues.size() < 5 ? misspelt(r, c) : QString();
            if (!odd.isEmpty())
                return odd;
            if (c.clues.size() < 5)
                return (c.clues.size() == 1 ? Say::tr("%1: %2 in %3 has %4 clue (%5); a category needs 5")
                                            : Say::tr("%1: %2 in %3 has %4 clues (%5); a category needs 5"))
                    .arg(where(c.clues.last().row, CategoryField), quoted(c.title), roundName(r),
                         QString::number(c.clues.size()), rowList(c.clues));
        }
    }
    if (rounds_[0].isEmpty()) {
        if (!rounds_[1].isEmpty())
            return Say::tr("no row of round 1 (round 2 starts at %1); a set starts with round 1")
                .arg(rowName(rowNumbered(rounds_[1].first().clues.first().row)));
        return Say::tr("no row of round 1 below the header (%1); a set needs at least one category of round 1")
            .arg(rowName(header()));
    }
    if (!final_)
        return Say::tr("no Final row; a set needs one final clue, a row whose Round is Final");
    return QString();
}

QuestionSet TableMapper::set(const QString &description, qint16 timer) const
{
    QuestionSet set;
    set.Description = description;
    set.Timer = timer;
    set.RoundCount = rounds_[1].isEmpty() ? 1 : 2;
    for (int r = 0; r < set.RoundCount; ++r) {
        const QList<Category> &categories = rounds_[size_t(r)];
        set.CategoryCount[size_t(r)] = qint16(categories.size());
        for (qsizetype c = 0; c < categories.size(); ++c) {
            CategoryEntry &entry = set.Categories[size_t(r)][size_t(c)];
            entry.Title = categories[c].title;
            for (int j = 0; j < 5; ++j) {
                entry.Answer[size_t(j)] = categories[c].clues[j].text[ClueField];
                entry.Question[size_t(j)] = categories[c].clues[j].text[ResponseField];
                entry.Picture[size_t(j)] = categories[c].clues[j].text[PictureField];
            }
        }
    }
    CategoryEntry &final = set.Categories[2][0];
    final.Title = final_->text[CategoryField];
    final.Answer[0] = final_->text[ClueField];
    final.Question[0] = final_->text[ResponseField];
    final.Picture[0] = final_->text[PictureField];
    return set;
}

QStringList exportRow(const QString &round, const CategoryEntry &entry, int row, const QString &value)
{
    return {round, entry.Title, value, entry.Answer[size_t(row)], entry.Question[size_t(row)], entry.Picture[size_t(row)]};
}

} // namespace

QString ColumnLetters(int column)
{
    QString letters;
    for (int n = column + 1; n > 0; n = (n - 1) / 26)
        letters.prepend(QChar(char16_t(u'A' + (n - 1) % 26)));
    return letters;
}

QString SetTextFault(const QString &text)
{
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u == u'\n' || u == u'\r' || u == u'\v' || u == u'\f' || u == 0x85 || u == 0x2028 || u == 0x2029)
            return Say::tr("a line break inside the text; a set holds every text on one line");
        if (c.category() == QChar::Other_Control && u != u'\t')
            return Say::tr("a control character (U+%1) inside the text")
                .arg(QString::number(u, 16).toUpper().rightJustified(4, QLatin1Char('0')));
    }
    if (text.size() > kMaxSetText)
        return Say::tr("%1 characters; a text holds at most %2").arg(text.size()).arg(kMaxSetText);
    return QString();
}

TableImport QuestionSetFromTable(const Table &table, const QString &description, qint16 timer)
{
    TableMapper mapper(table);
    TableImport result;
    result.error = mapper.run();
    if (result.error.isEmpty())
        result.set = mapper.set(description, timer);
    return result;
}

Table TableFromQuestionSet(const QuestionSet &set)
{
    Table table;
    table.numberColumns = {0, 2};
    table.rows.append({1, {QStringLiteral("Round"), QStringLiteral("Category"), QStringLiteral("Value"),
                           QStringLiteral("Clue"), QStringLiteral("Response"), QStringLiteral("Picture")}});
    for (int r = 0; r < set.RoundCount; ++r) {
        for (int c = 0; c < set.CategoryCount[size_t(r)]; ++c) {
            for (int j = 0; j < 5; ++j) {
                // What the board shows on the tile, for the host's eyes only.
                const QString value = QString::number((j + 1) * (r + 1) * 100);
                table.rows.append({table.rows.size() + 1, exportRow(QString::number(r + 1),
                                                                    set.Categories[size_t(r)][size_t(c)], j, value)});
            }
        }
    }
    table.rows.append({table.rows.size() + 1, exportRow(QStringLiteral("Final"), set.Categories[2][0], 0, QString())});
    return table;
}
