#include "verbdrills/quiz_texts.h"

#include "verbdrills/tense_names.h"
#include "verbs/paradigm.h"

#include <array>

namespace verbdrills {

using shell::englishToo;
using shell::LanguageTexts;

namespace {

// clang-format off
constexpr std::array ClassNames = {
    //         English, French, Italian   German                  Spanish                            Latin
    englishToo("First Conjugation",       "1. Konjugation",       "Primera conjugatión",             "Conjugation I"), // sic: English
    englishToo("Second Conjugation",      "2. Konjugation",       "Segunda conjugatión",             "Conjugatio II"),
    englishToo("Third Conjugation",       "3. Konjugation",       "Tercera conjugatión",             "Conjugatio III"),
    englishToo("Fourth Conjugation",      "4. Konjugation",       "Cuarta conjugatión",              "Conjugatio IV"),
    englishToo("Third Conjugation (-io)", "3. Konjugation (-io)", "Tercera conjugatión mixta (-io)", "Conjugatio III (-io)"),
    englishToo("Esse",                    "Esse (sein)",          "Esse",                            "Esse"),
    englishToo("Velle",                   "Velle (wollen)",       "Velle",                           "Velle"),
    englishToo("Ferre",                   "Ferre (tragen)",       "Ferre",                           "Ferre"),
};
// clang-format on

static_assert(ClassNames.size() == verbs::LastClass);

constexpr std::string_view Separator = ", ";

std::string_view chosenName(std::span<const LanguageTexts> names, int row)
{
    return row < 0 ? std::string_view() : names[static_cast<std::size_t>(row)].currentOrDesigned();
}

} // namespace

std::span<const LanguageTexts> quizClassNames()
{
    return ClassNames;
}

std::span<const LanguageTexts> quizTenseNames()
{
    return NamesOfTenses;
}

std::string describe(const Identification& identification)
{
    const int first =
        identification.number == quiz_number::Plural ? verbs::FirstPlural : verbs::FirstSingular;
    std::string text(chosenName(NamesOfPersons, first + identification.person - 2));
    text += Separator;
    text += chosenName(ClassNames, identification.classRow);
    if (identification.classRow >= 0 && identification.tenseRow >= 0)
        text += Separator;
    text += chosenName(NamesOfTenses, identification.tenseRow);
    return text;
}

} // namespace verbdrills
