// The editor's loader on any file, as a current set (.QZ2) or a legacy one
// (.QZA): it must come back, without a crash, a leak or a long wait, and
// with a set the editor can show.

#include "FuzzFiles.h"

#include "questions/QuestionSet.h"

#include <cstdio>
#include <cstdlib>

namespace {

void require(bool holds, const char *what)
{
    if (!holds) {
        std::fprintf(stderr, "\n=== the loaded set breaks a rule: %s\n", what);
        std::abort();
    }
}

// The first rows of an entry were loaded (five, one for the final, none
// for an entry out of use): each is a value as read, never empty (an empty
// one takes the editor's default); the rest stay as New left them.
void requireEntry(const CategoryEntry &entry, size_t loadedRows)
{
    const auto ok = [](const QString &text, bool loaded) {
        return loaded ? !text.isEmpty() && text.size() <= 1999 : text.isEmpty();
    };
    require(ok(entry.Title, loadedRows > 0), "a title empty or longer than a value, or left over");
    for (size_t j = 0; j < 5; ++j) {
        require(ok(entry.Answer[j], j < loadedRows), "an answer empty or longer than a value, or left over");
        require(ok(entry.Question[j], j < loadedRows), "a question empty or longer than a value, or left over");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider input(data, size);
    const bool legacy = input.ConsumeBool();
    const QString path = Fuzz::writeFile(legacy ? QStringLiteral("set.QZA") : QStringLiteral("set.QZ2"),
                                         Fuzz::shapedFile(input));
    const QuestionSet set = LoadQuestionSet(path);

    require(set.Timer >= 5 && set.Timer <= 60, "the timer outside 5 to 60 seconds");
    require(set.RoundCount == 1 || set.RoundCount == 2, "neither one nor two rounds");
    require(set.Description.size() <= 1999, "a description longer than a value");
    for (size_t round = 0; round < 2; ++round) {
        const bool played = round < size_t(set.RoundCount);
        const int count = set.CategoryCount[round];
        require(!played || (count >= 1 && count <= 6), "a round with no categories or more than six");
        for (size_t c = 0; c < 6; ++c)
            requireEntry(set.Categories[round][c], played && int(c) < count ? 5 : 0);
    }
    requireEntry(set.Categories[2][0], 1);
    for (size_t c = 1; c < 6; ++c)
        requireEntry(set.Categories[2][c], 0);
    return 0;
}
