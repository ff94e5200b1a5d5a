#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/gloss.h"
#include "verbs/generators.h"
#include "verbs/paradigm_titles.h"
#include "verbs/verb_tables.h"

#include <vector>

namespace {

using namespace verbs;

using Gloss = tests::FreshState;

// What the window shows beside a box, once the paradigms are generated. German glosses belong to a name that
// no language of the menu has, sic.
std::optional<std::string> glossOf(const std::string& language, int block, int verbClass, int person)
{
    shell::settings.CurrentLanguage = language == "Kraut" ? "German" : language;
    setPersonLabels();
    buildIrregularVerbs();
    shell::settings.CurrentLanguage = language;
    currentParadigm.ConjugationCode = static_cast<std::int16_t>(verbClass);
    currentParadigm.TenseMoodCode = static_cast<std::int16_t>(block);
    return verbdrills::glossOfPerson(person);
}

TEST_F(Gloss, TranslatesEveryTenseOfFerreIntoEnglish)
{
    // sic: "If" and "if", the blanks of the perfects.
    // clang-format off
    const std::vector<std::array<std::string, 3>> page = {
        // 1sg                             3sg                              the others; * is the person
        {"* bear",                        "* bears",                       "* bear"},
        {"* was bearing",                 "* was bearing",                 "* were bearing"},
        {"* will bear",                   "* will bear",                   "* will bear"},
        {"* bore,  have borne",           "* bore,  has borne",            "* bore,  have borne"},
        {"* had borne",                   "* had borne",                   "* had borne"},
        {"* will have borne",             "* will have borne",             "* will have borne"},
        {"If * bear",                     "If * bear",                     "If * bear"},
        {"If * was bearing",              "If * was bearing",              "If * was bearing"},
        {"If * would have borne",         "If * would have borne",         "If * would have borne"},
        {"If * had borne",                "If * had borne",                "If * had borne"},
        {"",                              "",                              "bear!"},
        {"* am borne",                    "* is borne",                    "* are borne"},
        {"* was being borne",             "* was being borne",             "* were being borne"},
        {"* will be borne",               "* will be borne",               "* will be borne"},
        {"* was borne,  have been borne", "* was borne,  has been  borne", "* were borne,  have been borne"},
        {"* had been borne",              "* had been borne",              "* had been borne"},
        {"* will have been borne",        "* will have been borne",        "* will have been borne"},
        {"if * be borne",                 "if * be borne",                 "if * were borne"},
        {"if * were borne",               "if * were borne",               "if * were borne"},
        {"if * would have been borne",    "if * would have been borne",    "if * would have been borne"},
        {"if * had been borne",           "if * had been borne",           "if * had been borne"},
    };
    // clang-format on
    const std::array<std::string, 6> labels = {"I", "you", "he, she, it", "we", "all of you", "they"};
    for (int form = 0; form < FormCount; ++form) {
        const auto& [first, third, others] = page.at(static_cast<std::size_t>(form / 6));
        const int block = form / 6 + 1;
        const int person = form % 6 + 1;
        std::string expected = person == 1 ? first : person == 3 ? third : others;
        if (const auto star = expected.find('*'); star != std::string::npos)
            expected.replace(star, 1, labels.at(static_cast<std::size_t>(person - 1)));
        if (block == Imperative && person != 2 && person != 5)
            expected.clear();
        EXPECT_EQ(glossOf("English", block, Ferre, person), expected);
    }
}

TEST_F(Gloss, HasItsOwnPresentOfEsseAndVelleAndSpeaksNoLanguageButEnglishAndGermanUnderAnotherName)
{
    // clang-format off
    const std::vector<std::tuple<std::string, int, int, int, std::string>> glosses = {
        {"English", PresentIndicative,           Esse,  1, "I am"},
        {"English", PresentIndicative,           Esse,  2, "you are"},
        {"English", PresentIndicative,           Esse,  3, "he, she, it is"},
        {"English", PresentIndicative,           Esse,  4, "we are"},
        {"English", PresentIndicative,           Esse,  5, "all of you are"},
        {"English", PresentIndicative,           Esse,  6, "they are"},
        {"English", PresentIndicative,           Velle, 3, "he, she, it wants"},
        {"English", PresentIndicative,           Velle, 4, "we want"},
        {"Kraut",   PresentIndicative,           Ferre, 1, "ich trage"},
        {"Kraut",   PresentIndicative,           Velle, 4, "wir wollen"},
        {"Kraut",   ImperfectIndicative,         Velle, 2, "du wolltest"},
        {"Kraut",   PerfectIndicative,           Ferre, 5, "ihr habt getragen"},
        {"Kraut",   PassivePluperfectIndicative, Ferre, 3, "er/ sie/ es war getragen worden"},
        {"Kraut",   ImperfectSubjunctive,        Esse,  2, "(Sie glaubt,) du wärst  (glücklich)"},
        {"Kraut",   Imperative,                  Esse,  5, "seid (glücklich)!"},
        {"Kraut",   Imperative,                  Ferre, 2, "trag!"}};
    // clang-format on
    for (const auto& [language, block, verbClass, person, gloss] : glosses)
        EXPECT_EQ(glossOf(language, block, verbClass, person), gloss);
    for (const char* const language : {"French", "Italian", "Spanish", "Latin", "english", "German"})
        EXPECT_EQ(glossOf(language, PresentIndicative, Ferre, 1), std::nullopt) << language;
}

TEST_F(Gloss, EndsInSOrEsByTheLastLetters)
{
    for (const std::string gloss : {"teach-es", "kiss-es", "waltz-es", "want-es", "read-es", // sic
                                    "love-s", "wash-s", "c-s", "-s"}) {                      // sic
        const auto dash = gloss.find('-');
        EXPECT_EQ(verbdrills::englishGloss(1, 1, 3, {"she", gloss.substr(0, dash), "", "", ""}),
                  "she " + gloss.substr(0, dash) + gloss.substr(dash + 1));
    }
}

} // namespace
