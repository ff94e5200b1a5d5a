#include "verbs/ending_rows.h"

#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "verbs/verb_tables.h"

namespace verbs {

namespace {

std::string_view stemFor(Stem stem, const VerbStems& stems)
{
    switch (stem) {
    case Stem::Present:
        return stems.present;
    case Stem::Perfect:
        return stems.perfect;
    case Stem::Supine:
        return stems.supine;
    case Stem::None:
        break;
    }
    return {};
}

// The form's own string is built in place: it keeps its memory from verb to verb.
void buildForm(std::string& form, std::string_view stem, std::string_view ending, std::string_view mark)
{
    form.clear();
    if (ending.empty())
        return;
    form += stem;
    shell::appendMarked(form, ending, mark);
}

} // namespace

void buildForms(VerbClass verbClass, const VerbStems& stems, std::span<const EndingRow> rows)
{
    auto& column = verbTables.Forms[verbClass];
    for (const EndingRow& row : rows) {
        const std::string_view stem = stemFor(row.stem, stems);
        int form = formNumber(row.block, FirstSingular);
        for (const std::string_view ending : row.endings)
            buildForm(column[form++], stem, ending, shell::settings.VowelMark);
    }
}

} // namespace verbs
