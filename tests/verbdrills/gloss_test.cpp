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
    // Subjunctives open with "If" in the active and "if" in the passive, perfects have no second label and
    // two blanks, their third person passive two more: all of this is meant.
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
    generate("English");
    int block = 0;
    for (const auto& [first, third, others] : page) {
        ++block;
        for (int person = 1; person <= verbs::PersonCount; ++person) {
            std::string expected = person == 1 ? first : person == 3 ? third : others;
            if (const auto star = expected.find('*'); star != std::string::npos)
                expected.replace(star, 1, labels.at(static_cast<std::size_t>(person - 1)));
            if (block == verbs::Imperative && (person == 4 || person == 6))
                expected.clear();
            EXPECT_EQ(glossOf(block, verbs::Ferre, person), expected);
        }
    }
}

TEST_F(Gloss, HasItsOwnPresentOfEsseAndVelle)
{
    generate("English");
    const std::array<std::string, 6> esse = {"I am",   "you are",        "he, she, it is",
                                             "we are", "all of you are", "they are"};
    const std::array<std::string, 6> velle = {"I want",  "you want",        "he, she, it wants",
                                              "we want", "all of you want", "they want"};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(glossOf(verbs::PresentIndicative, verbs::Esse, static_cast<int>(i) + 1), esse.at(i));
        EXPECT_EQ(glossOf(verbs::PresentIndicative, verbs::Velle, static_cast<int>(i) + 1), velle.at(i));
    }
    EXPECT_EQ(glossOf(verbs::Imperative, verbs::Esse, 2), "be!");
}

TEST_F(Gloss, EndsInSOrEsByTheLastLetters)
{
    // "wantes" and "washs" are meant: t and d take "es", sh does not.
    const std::vector<std::string> ends = {"love s",  "teach es", "kiss es", "waltz es", "want es",
                                           "read es", "wash s",   "c s",     " s"};
    for (const std::string& end : ends) {
        const std::string base = end.substr(0, end.find(' '));
        const std::string expected = "she " + base + end.substr(base.size() + 1);
        EXPECT_EQ(verbdrills::englishGloss(1, 1, 3, {"she", base, "", "", ""}), expected);
    }
}

TEST_F(Gloss, IsShownInNoOtherLanguage)
{
    for (const char* const language : {"German", "French", "Italian", "Spanish", "Latin", "english"}) {
        generate(language);
        for (int block = 1; block <= verbs::BlockCount; ++block)
            EXPECT_EQ(glossOf(block, verbs::Ferre, 2), std::nullopt) << language;
    }
}

TEST_F(Gloss, SpeaksGermanUnderAnotherName)
{
    generate("German");
    shell::settings.CurrentLanguage = "Kraut";
    EXPECT_EQ(glossOf(verbs::PresentIndicative, verbs::Ferre, 1), "ich trage");
    EXPECT_EQ(glossOf(verbs::PresentIndicative, verbs::Velle, 4), "wir wollen");
    EXPECT_EQ(glossOf(verbs::PerfectIndicative, verbs::Ferre, 5), "ihr habt getragen");
    EXPECT_EQ(glossOf(verbs::PassivePluperfectIndicative, verbs::Ferre, 2), "du warst getragen worden");
    EXPECT_EQ(glossOf(verbs::ImperfectSubjunctive, verbs::Esse, 2), "(Sie glaubt,) du wärst  (glücklich)");
    EXPECT_EQ(glossOf(verbs::Imperative, verbs::Esse, 5), "seid (glücklich)!");
    EXPECT_EQ(glossOf(verbs::Imperative, verbs::Ferre, 1), "");
}

} // namespace
