#include "verbs/ending_rows.h"

#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "verbs/verb_forms.h"
#include "verbs/verb_tables.h"

namespace verbs {

void buildForms(VerbClass verbClass, const VerbStems& stems)
{
    auto& column = verbTables.Forms[verbClass];
    for (const auto& rows : pageOf(verbClass).rows)
        for (const EndingRow& row : rows)
            for (int person = FirstSingular; person <= PersonCount; ++person) {
                const auto [stem, ending] = partsOf(row, person, stems);
                // The form's own string is built in place: it keeps its memory from verb to verb.
                std::string& form = column[formNumber(row.block, person)];
                form.assign(stem);
                shell::appendMarked(form, ending, shell::settings.VowelMark);
            }
}

} // namespace verbs
