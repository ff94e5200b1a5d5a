#include "verbdrills/other_ending.h"

#include <algorithm>

namespace verbdrills {

namespace {

// clang-format off
//                                            English                                       French                                         Italian                                  German                                      Spanish                                Latin
constexpr shell::LanguageTexts OtherPerson{"This is the ending of another person.",   "C'est la terminaison d'une autre personne.",  "È la desinenza di un'altra persona.",  "Das ist die Endung einer anderen Person.",  "Es la terminación de otra persona.",  "Haec est desinentia alterius personae."};
constexpr shell::LanguageTexts OtherNumber{"This is the ending of the other number.", "C'est la terminaison de l'autre nombre.",     "È la desinenza dell'altro numero.",    "Das ist die Endung des anderen Numerus.",   "Es la terminación del otro número.",  "Haec est desinentia alterius numeri."};
// clang-format on

constexpr int PersonsOfNumber = verbs::PersonCount / 2;

} // namespace

std::optional<shell::LanguageTexts> otherEndingOf(int asked, const Persons& answered)
{
    const auto isAnswered = [&](int person) { return answered.at(static_cast<std::size_t>(person - 1)); };
    if (isAnswered(asked) || std::ranges::count(answered, true) == 0)
        return {};
    const int inOtherNumber = asked < verbs::FirstPlural ? asked + PersonsOfNumber : asked - PersonsOfNumber;
    return isAnswered(inOtherNumber) ? OtherNumber : OtherPerson;
}

} // namespace verbdrills
