#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/gloss.h"
#include "verbs/generators.h"
#include "verbs/paradigm.h"
#include "verbs/paradigm_titles.h"
#include "verbs/verb_tables.h"

#include <vector>

namespace {

using verbs::currentParadigm;

using Gloss = tests::FreshState;

// What the window shows beside a box, once the paradigms are generated.
std::optional<std::string> glossOf(int block, int verbClass, int person)
{
    currentParadigm.ConjugationCode = static_cast<std::int16_t>(verbClass);
    currentParadigm.TenseMoodCode = static_cast<std::int16_t>(block);
    return verbdrills::glossOfPerson(person);
}

void generate(const std::string& language)
{
    shell::settings.CurrentLanguage = language;
    verbs::setPersonLabels();
    verbs::buildIrregularVerbs();
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
    const std::vector<std::string> labels = {"I", "you", "he, she, it", "we", "all of you", "they"};
    generate("English");
    for (int block = 1; block <= verbs::BlockCount; ++block)
        for (int person = 1; person <= verbs::PersonCount; ++person) {
            const auto& [first, third, others] = page.at(static_cast<std::size_t>(block - 1));
            std::string expected = person == 1 ? first : person == 3 ? third : others;
            if (const auto star = expected.find('*'); star != std::string::npos)
                expected.replace(star, 1, labels.at(static_cast<std::size_t>(person - 1)));
            if (block == verbs::Imperative && person != 2 && person != 5)
                expected.clear();
            EXPECT_EQ(glossOf(block, verbs::Ferre, person), expected);
        }
}

TEST_F(Gloss, HasItsOwnPresentOfEsseAndVelle)
{
    generate("English");
    int person = 0;
    for (const char* const gloss :
         {"I am", "you are", "he, she, it is", "we are", "all of you are", "they are"})
        EXPECT_EQ(glossOf(1, verbs::Esse, ++person), gloss);
    EXPECT_EQ(glossOf(1, verbs::Velle, 3), "he, she, it wants");
    EXPECT_EQ(glossOf(1, verbs::Velle, 4), "we want");
}

TEST_F(Gloss, EndsInSOrEsByTheLastLetters)
{
    const auto glossOfThird = [](const std::string& base) {
        return verbdrills::englishGloss(1, 1, 3, {"she", base, "", "", ""});
    };
    for (const std::string base : {"teach", "kiss", "waltz", "want", "read"}) // sic
        EXPECT_EQ(glossOfThird(base), "she " + base + "es");
    for (const std::string base : {"love", "wash", "c", ""}) // sic
        EXPECT_EQ(glossOfThird(base), "she " + base + "s");
}

// sic: no language of the menu has that name.
TEST_F(Gloss, SpeaksGermanUnderAnotherNameAndNoOtherLanguage)
{
    for (const char* const language : {"French", "Italian", "Spanish", "Latin", "english", "German"}) {
        generate(language);
        EXPECT_EQ(glossOf(verbs::PresentIndicative, verbs::Ferre, 1), std::nullopt) << language;
    }
    shell::settings.CurrentLanguage = "Kraut";
    EXPECT_EQ(glossOf(verbs::PresentIndicative, verbs::Ferre, 1), "ich trage");
    EXPECT_EQ(glossOf(verbs::PresentIndicative, verbs::Velle, 4), "wir wollen");
    EXPECT_EQ(glossOf(verbs::PerfectIndicative, verbs::Ferre, 5), "ihr habt getragen");
    EXPECT_EQ(glossOf(verbs::PassivePluperfectIndicative, verbs::Ferre, 3),
              "er/ sie/ es war getragen worden");
    EXPECT_EQ(glossOf(verbs::ImperfectSubjunctive, verbs::Esse, 2), "(Sie glaubt,) du wärst  (glücklich)");
    EXPECT_EQ(glossOf(verbs::Imperative, verbs::Esse, 5), "seid (glücklich)!");
}

} // namespace
