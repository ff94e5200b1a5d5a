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

// What the window shows beside the six boxes, once the paradigms are generated; "-" where it keeps what it
// showed. German glosses belong to a name that no language of the menu has, sic.
std::string glossesOf(const std::string& language, int block, int verbClass)
{
    shell::settings.CurrentLanguage = language == "Kraut" ? "German" : language;
    setPersonLabels();
    buildIrregularVerbs();
    shell::settings.CurrentLanguage = language;
    currentParadigm.ConjugationCode = static_cast<std::int16_t>(verbClass);
    currentParadigm.TenseMoodCode = static_cast<std::int16_t>(block);
    std::string glosses;
    for (int person = FirstSingular; person <= PersonCount; ++person)
        glosses += verbdrills::glossOfPerson(person).value_or("-") + "|";
    return glosses;
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
    int block = PresentIndicative;
    for (const auto& [first, third, others] : page) {
        std::string expected;
        for (const std::string label : {"I", "you", "he, she, it", "we", "all of you", "they"}) {
            const bool imperative = block == Imperative && label != "you" && label != "all of you";
            std::string gloss = imperative               ? ""
                                : label == "I"           ? first
                                : label == "he, she, it" ? third
                                                         : others;
            if (const auto star = gloss.find('*'); star != std::string::npos)
                gloss.replace(star, 1, label);
            expected += gloss + "|";
        }
        EXPECT_EQ(glossesOf("English", block++, Ferre), expected);
    }
}

TEST_F(Gloss, HasItsOwnPresentOfEsseAndVelleAndSpeaksNoLanguageButEnglishAndGermanUnderAnotherName)
{
    // clang-format off
    const std::vector<std::tuple<std::string, int, int, std::string>> glosses = {
        {"English", PresentIndicative,    Esse,  "I am|you are|he, she, it is|we are|all of you are|they are|"},
        {"English", PresentIndicative,    Velle, "I want|you want|he, she, it wants|we want|all of you want|they want|"},
        {"Kraut",   PresentIndicative,    Ferre, "ich trage|du tragst|er/ sie/ es tragt|wir tragen|ihr tragt|sie tragen|"}, // sic
        {"Kraut",   PresentIndicative,    Velle, "ich will|du willst|er/ sie/ es will|wir wollen|ihr wollt|sie wollen|"},
        {"Kraut",   ImperfectIndicative,  Velle, "ich wollte|du wolltest|er/ sie/ es wollte|wir wollten|ihr wolltet|sie wollten|"},
        {"Kraut",   PerfectIndicative,    Ferre, "ich habe getragen|du hast getragen|er/ sie/ es hat getragen|"
                                                 "wir haben getragen|ihr habt getragen|sie haben getragen|"},
        {"Kraut",   PluperfectIndicative, Esse,  "ich war (glücklich) gewesen|du warst (glücklich) gewesen|"
                                                 "er/ sie/ es war (glücklich) gewesen|wir waren (glücklich) gewesen|"
                                                 "ihr wart (glücklich) gewesen|sie waren (glücklich) gewesen|"},
        {"Kraut",   Imperative,           Esse,  "|sei (glücklich)!|||seid (glücklich)!||"},
        {"Kraut",   Imperative,           Ferre, "|trag!|||tragt!||"}};
    // clang-format on
    for (const auto& [language, block, verbClass, gloss] : glosses)
        EXPECT_EQ(glossesOf(language, block, verbClass), gloss);
    for (const char* const language : {"French", "Italian", "Spanish", "Latin", "english", "German"})
        EXPECT_EQ(glossesOf(language, PresentIndicative, Ferre), "-|-|-|-|-|-|") << language;
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
