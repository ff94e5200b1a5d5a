#include "tables/pronoun_table.h"

namespace tables {

FormsOfPronouns formsOfPronouns(int group)
{
    FormsOfPronouns forms;
    for (int column = 0; column < nouns::ColumnsOfGroup; ++column)
        for (int inCase = nouns::NominativeSingular; inCase <= nouns::CaseCount; ++inCase)
            forms.at(static_cast<std::size_t>(pronounCell(column, inCase) - 1)).stem =
                nouns::pronounForm(group, column, inCase);
    return forms;
}

} // namespace tables
