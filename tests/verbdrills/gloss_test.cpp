#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/gloss.h"
#include "verbs/generators.h"
#include "verbs/paradigm.h"
#include "verbs/person_labels.h"
#include "verbs/verb_tables.h"

#include <vector>

namespace {

using verbdrills::GlossParts;
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
        // I                                he, she, it                                 all of you
        {"I bear",                          "he, she, it bears",                        "all of you bear"},
        {"I was bearing",                   "he, she, it was bearing",                  "all of you were bearing"},
        {"I will bear",                     "he, she, it will bear",                    "all of you will bear"},
        {"I bore,  have borne",             "he, she, it bore,  has borne",             "all of you bore,  have borne"},
        {"I had borne",                     "he, she, it had borne",                    "all of you had borne"},
        {"I will have borne",               "he, she, it will have borne",              "all of you will have borne"},
        {"If I bear",                       "If he, she, it bear",                      "If all of you bear"},
        {"If I was bearing",                "If he, she, it was bearing",               "If all of you was bearing"},
        {"If I would have borne",           "If he, she, it would have borne",          "If all of you would have borne"},
        {"If I had borne",                  "If he, she, it had borne",                 "If all of you had borne"},
        {"",                                "",                                         "bear!"},
        {"I am borne",                      "he, she, it is borne",                     "all of you are borne"},
        {"I was being borne",               "he, she, it was being borne",              "all of you were being borne"},
        {"I will be borne",                 "he, she, it will be borne",                "all of you will be borne"},
        {"I was borne,  have been borne",   "he, she, it was borne,  has been  borne",  "all of you were borne,  have been borne"},
        {"I had been borne",                "he, she, it had been borne",               "all of you had been borne"},
        {"I will have been borne",          "he, she, it will have been borne",         "all of you will have been borne"},
        {"if I be borne",                   "if he, she, it be borne",                  "if all of you were borne"},
        {"if I were borne",                 "if he, she, it were borne",                "if all of you were borne"},
        {"if I would have been borne",      "if he, she, it would have been borne",     "if all of you would have been borne"},
        {"if I had been borne",             "if he, she, it had been borne",            "if all of you had been borne"},
    };
    // clang-format on
    generate("English");
    int block = 1;
    for (const auto& [first, third, others] : page) {
        EXPECT_EQ(glossOf(block, verbs::Ferre, 1), first);
        EXPECT_EQ(glossOf(block, verbs::Ferre, 3), third);
        EXPECT_EQ(glossOf(block, verbs::Ferre, 5), others);
        // The other three persons follow the second plural.
        for (const auto& [person, label] : {std::pair{2, "you"}, {4, "we"}, {6, "they"}}) {
            std::string expected = others;
            if (const auto at = expected.find("all of you"); at != std::string::npos)
                expected.replace(at, 10, label);
            else if (person != verbs::SecondSingular)
                expected.clear();
            EXPECT_EQ(glossOf(block, verbs::Ferre, person), expected);
        }
        ++block;
    }
}

TEST_F(Gloss, HasItsOwnPresentOfEsseAndVelle)
{
    generate("English");
    const std::vector<std::pair<std::string, std::string>> page = {
        {"I am", "I want"},
        {"you are", "you want"},
        {"he, she, it is", "he, she, it wants"},
        {"we are", "we want"},
        {"all of you are", "all of you want"},
        {"they are", "they want"},
    };
    int person = 0;
    for (const auto& [esse, velle] : page) {
        EXPECT_EQ(glossOf(verbs::PresentIndicative, verbs::Esse, ++person), esse);
        EXPECT_EQ(glossOf(verbs::PresentIndicative, verbs::Velle, person), velle);
    }
    EXPECT_EQ(glossOf(verbs::ImperfectIndicative, verbs::Esse, 2), "you were being");
    EXPECT_EQ(glossOf(verbs::Imperative, verbs::Esse, 2), "be!");
}

TEST_F(Gloss, EndsInSOrEsByTheLastLetters)
{
    // "wantes" and "washs" are meant: t and d take "es", sh does not.
    for (const auto& [base, expected] :
         std::vector<std::pair<std::string, std::string>>{{"love", "loves"},
                                                          {"teach", "teaches"},
                                                          {"kiss", "kisses"},
                                                          {"waltz", "waltzes"},
                                                          {"want", "wantes"},
                                                          {"read", "reades"},
                                                          {"wash", "washs"},
                                                          {"take back", "take backs"},
                                                          {"c", "cs"},
                                                          {"", "s"}})
        EXPECT_EQ(verbdrills::englishGloss(1, 1, 3, {"she", base, "", "", ""}), "she " + expected);
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
