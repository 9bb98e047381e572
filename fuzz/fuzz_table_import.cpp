// The spreadsheet import on any file, as a .csv, .xlsx or .ods: a clear
// message or a set, never a crash, a leak or a long wait; and a set it
// makes must be one the game can play and the editor can write.

#include "FuzzFiles.h"

#include "questions/QuestionTable.h"
#include "questions/TableFiles.h"

#include <fuzzer/FuzzedDataProvider.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider input(data, size);
    static const char *const kNames[] = {"table.csv", "table.xlsx", "table.ods", "table.txt"};
    const char *name = kNames[input.ConsumeIntegralInRange<int>(0, 3)];
    const std::string rest = input.ConsumeRemainingBytesAsString();
    const QString path = Fuzz::writeFile(QLatin1String(name), QByteArray::fromStdString(rest));
    const TableImport result = ImportQuestionTable(path, QStringLiteral("fuzz"), 20);
    if (result.set.has_value() == !result.error.isEmpty())
        Fuzz::diverged(QStringLiteral("an import"), QStringLiteral("a set or a message"),
                       result.set ? QStringLiteral("both") : QStringLiteral("neither"));
    if (result.set) {
        // Every text of a made set is one a set can hold.
        for (const auto &round : result.set->Categories) {
            for (const CategoryEntry &e : round) {
                for (const QString &text : e.Answer) {
                    if (!SetTextFault(text).isEmpty() && !text.isEmpty())
                        Fuzz::diverged(QStringLiteral("a clue of an imported set"), QStringLiteral("a text a set holds"),
                                       Fuzz::visible(text));
                }
            }
        }
    }
    return 0;
}
