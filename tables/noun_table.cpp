#include "tables/noun_table.h"

#include "nouns/fixed_nouns.h"
#include "nouns/noun_list.h"

namespace tables {

namespace {

std::string_view obliqueStem(int paradigm, int number)
{
    if (paradigm != nouns::ThirdDeclension)
        return {};
    return nouns::nounList.ObliqueStemAsWritten[paradigm][number - 1];
}

} // namespace

std::string_view writtenStem(int paradigm, int number)
{
    const auto fixed = nouns::fixedNounsOf(paradigm).nouns;
    if (!fixed.empty())
        return fixed[static_cast<std::size_t>(number - 1)].stem;
    return nouns::nounList.StemAsWritten[paradigm][number - 1];
}

void appendStemsOfNoun(std::string& text, int paradigm, int number)
{
    text.append(writtenStem(paradigm, number)).append(",").append(obliqueStem(paradigm, number));
}

nouns::FormsOfNoun formsOfNoun(int paradigm, int number)
{
    return nouns::decline(paradigm, number, writtenStem(paradigm, number), obliqueStem(paradigm, number));
}

nouns::FormsOfNoun formsInDrill(int paradigm, int number)
{
    if (!nouns::fixedNounsOf(paradigm).nouns.empty())
        return formsOfNoun(paradigm, number);
    const std::string_view oblique = paradigm == nouns::ThirdDeclension
                                         ? nouns::nounList.NounListObliqueStem[paradigm][number - 1]
                                         : std::string_view();
    return nouns::decline(paradigm, number, nouns::nounList.NounListStem[paradigm][number - 1], oblique);
}

} // namespace tables
