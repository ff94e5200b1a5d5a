#include "nouns/noun_list.h"

#include "shell/vowel_marks.h"

namespace nouns {

int mostNounsOf(int paradigm)
{
    return paradigm == ThirdDeclension ? MostObliqueStems : MostNouns;
}

NounRecord nounAt(int paradigm, int number)
{
    NounRecord noun;
    noun.note = nounList.NounListNote[paradigm][number];
    noun.stem = nounList.NounListStem[paradigm][number - 1];
    if (paradigm == ThirdDeclension)
        noun.obliqueStem = nounList.NounListObliqueStem[paradigm][number - 1];
    for (int column = 1; column <= MeaningCount; ++column)
        noun.meanings.at(static_cast<std::size_t>(column - 1)) =
            nounList.NounListMeaning[column][paradigm][number];
    return noun;
}

NounRecord nounAsWritten(int paradigm, int number)
{
    NounRecord noun = nounAt(paradigm, number);
    noun.stem = nounList.StemAsWritten[paradigm][number - 1];
    if (paradigm == ThirdDeclension)
        noun.obliqueStem = nounList.ObliqueStemAsWritten[paradigm][number - 1];
    return noun;
}

void storeNoun(int paradigm, int number, const NounRecord& noun)
{
    nounList.NounListNote[paradigm][number] = noun.note;
    nounList.NounListStem[paradigm][number - 1] = shell::stemAsShown(noun.stem);
    nounList.StemAsWritten[paradigm][number - 1] = noun.stem;
    if (paradigm == ThirdDeclension) {
        nounList.NounListObliqueStem[paradigm][number - 1] = shell::stemAsShown(noun.obliqueStem);
        nounList.ObliqueStemAsWritten[paradigm][number - 1] = noun.obliqueStem;
    }
    for (int column = 1; column <= MeaningCount; ++column)
        nounList.NounListMeaning[column][paradigm][number] =
            noun.meanings.at(static_cast<std::size_t>(column - 1));
}

} // namespace nouns
