#include "tables/pronoun_table.h"

#include "nouns/case_names.h"
#include "nouns/pronoun_columns.h"

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

// A gender stands before its number; persons are written alike in all languages.
std::string columnOfPronouns(int group, int column, int inCase)
{
    const auto index = static_cast<std::size_t>(column);
    std::string name(nouns::columnTexts(group, inCase).at(index));
    const shell::LanguageTexts& gender = nouns::GenderTexts.at(index);
    if (nouns::columnsAreOneWord(group))
        name.replace(0, gender.english->size(), gender.currentOrDesigned());
    return name;
}

} // namespace tables
