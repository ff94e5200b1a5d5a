#include "verbs/ending_rows.h"

#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "verbs/verb_forms.h"
#include "verbs/verb_tables.h"

namespace verbs {

namespace {

// The form's own string is built in place: it keeps its memory from verb to verb.
void buildForm(std::string& form, const shell::FormParts& parts, std::string_view mark)
{
    form.clear();
    if (!parts.exist())
        return;
    form += parts.stem;
    shell::appendMarked(form, parts.ending, mark);
}

} // namespace

void buildForms(VerbClass verbClass, const VerbStems& stems)
{
    auto& column = verbTables.Forms[verbClass];
    for (const auto& rows : pageOf(verbClass).rows)
        for (const EndingRow& row : rows) {
            const std::string_view stem = stemFor(row.stem, stems);
            int form = formNumber(row.block, FirstSingular);
            for (const std::string_view ending : row.endings)
                buildForm(column[form++], partsOf(stem, ending), shell::settings.VowelMark);
        }
}

} // namespace verbs
