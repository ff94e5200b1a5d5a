#include "nouns/noun_forms.h"

#include "nouns/noun_endings.h"

namespace nouns {

std::string_view endingOnPage(int paradigm, int inCase)
{
    const Endings& endings = EndingTable.at(static_cast<std::size_t>(paradigm - FirstDeclension)).endings;
    return endings.at(static_cast<std::size_t>(inCase - NominativeSingular));
}

std::string_view endingOf(int paradigm, int number, int inCase)
{
    for (const ExceptionalNouns& nouns : ExceptionTable)
        if (nouns.hold(paradigm, number))
            for (const EndingException& exception : nouns.exceptions)
                if (exception.inCase == inCase)
                    return exception.ending;
    return endingOnPage(paradigm, inCase);
}

bool hasObliqueStem(int paradigm, int inCase)
{
    if (paradigm == ThirdDeclensionNeuter)
        return inCase != NominativeSingular && inCase != AccusativeSingular;
    return paradigm == ThirdDeclension && inCase != NominativeSingular;
}

FormsOfNoun decline(int paradigm, int number, std::string_view stem, std::string_view obliqueStem)
{
    FormsOfNoun forms;
    int inCase = NominativeSingular;
    for (shell::FormParts& form : forms) {
        form = {hasObliqueStem(paradigm, inCase) ? obliqueStem : stem, endingOf(paradigm, number, inCase)};
        ++inCase;
    }
    return forms;
}

bool hasStemBeforeEnding(std::string_view answer, std::string_view nominative, std::string_view ending)
{
    // As far as the stems of a neuter are alike: caput, capitis; iter, itineris.
    constexpr std::size_t alike = 2;
    const std::string_view beginning = nominative.substr(0, alike);
    return answer.starts_with(beginning) && answer.ends_with(ending) && !ending.starts_with(beginning);
}

} // namespace nouns
