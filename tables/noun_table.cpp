#include "tables/noun_table.h"

#include "nouns/fixed_nouns.h"
#include "nouns/noun_list.h"
#include "tables/form.h"

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

std::string formInDrill(int paradigm, int number, int inCase)
{
    if (!nouns::fixedNounsOf(paradigm).nouns.empty())
        return formOf(formsOfNoun(paradigm, number).at(static_cast<std::size_t>(inCase - 1))).text;
    const nouns::NounRecord noun = nouns::nounAt(paradigm, number);
    const auto forms = nouns::decline(paradigm, number, noun.stem, noun.obliqueStem);
    return formOf(forms.at(static_cast<std::size_t>(inCase - 1))).text;
}

void appendStemsOfNoun(std::string& text, int paradigm, int number)
{
    text.append(writtenStem(paradigm, number)).append(",").append(obliqueStem(paradigm, number));
}

nouns::FormsOfNoun formsOfNoun(int paradigm, int number)
{
    return nouns::decline(paradigm, number, writtenStem(paradigm, number), obliqueStem(paradigm, number));
}

} // namespace tables
