#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/conjugation_choice.h"
#include "verbdrills/conjugation_drill.h"
#include "verbdrills/gloss.h"
#include "verbs/generators.h"
#include "verbs/paradigm_titles.h"
#include "verbs/verb_list.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <set>
#include <vector>

namespace {

using namespace verbdrills;
using namespace verbs;
using shell::settings;

using Round = std::vector<int>;
using Gloss = tests::FreshState;

class ConjugationDrill : public tests::FreshState {
protected:
    ConjugationDrill()
    {
        for (int verbClass = 1; verbClass <= LastRegularClass; ++verbClass)
            storeVerb(verbClass, 1, {"am", "amav", "amat", {}});
        settings.SoundOn = platform::FlagTrue;
    }

    static void beginParadigm(int row)
    {
        beginConjugationChoice();
        chooseConjugation(row);
        generateParadigms();
        beginRound();
    }

    // Answers right to the end of the round. Each person comes once, one after the other unless the order is
    // random, and a beep ends the round.
    Advance playRound(int verbClass, int tense)
    {
        EXPECT_EQ(currentParadigm.ConjugationCode, verbClass);
        EXPECT_EQ(currentParadigm.TenseMoodCode, tense);
        fake.beeps = 0;
        persons.clear();
        auto advance = Advance::NextPerson;
        while (advance == Advance::NextPerson && persons.size() < 10) {
            EXPECT_EQ(fake.beeps, 0);
            persons.push_back(conjugationDrill.PersonIndex);
            EXPECT_EQ(conjugationDrill.FormRow, 6 * (tense - 1) + persons.back());
            setConjugationQuestion();
            advance = advanceAfterRightAnswer();
        }
        Round sorted = persons;
        std::ranges::sort(sorted);
        EXPECT_EQ(settings.QuestionOrder == "Random" ? sorted : persons, (Round{0, 1, 2, 3, 4, 5}));
        EXPECT_EQ(fake.beeps, 1);
        orders.insert(persons);
        return advance;
    }

    Round persons;
    std::set<Round> orders;
};

// Class, tenses, the title of the class, and the verb that is named, by row of the chooser: the -io verbs
// stand before the fourth conjugation; esse ends before the passive, velle before the imperative.
const std::vector<std::tuple<int, int, std::string, std::string>> Rows = {
    {1, 21, "1. Konjugation", "amare"}, {2, 21, "2. Konjugation", "amere"},
    {3, 21, "3. Konjugation", "amere"}, {5, 21, "3. Konjugation (-io)", "amere"},
    {4, 21, "4. Konjugation", "amire"}, {6, 11, "Velle (wollen)", "Esse"}, // sic
    {7, 10, "Esse (sein)", "Velle"},    {8, 21, "", "ferre"}};             // sic

TEST_F(ConjugationDrill, GoesThroughEveryTenseOfAClassOrWithATenseThroughTheRegularClasses)
{
    settings.CurrentLanguage = "German";
    for (const char* const order : {"Sequential", "Random"}) {
        settings.QuestionOrder = order;
        int row = 0;
        for (const auto& [verbClass, tenses, title, verb] : Rows) {
            beginParadigm(row++);
            EXPECT_EQ(conjugationDrill.RoundStartPerson, conjugationDrill.PersonIndex);
            for (int tense = 1; tense <= tenses; ++tense)
                EXPECT_EQ(playRound(verbClass, tense),
                          tense < tenses ? Advance::NextRound : Advance::ClassFinished);
            buildDrillHeading();
            EXPECT_TRUE(conjugationDrill.DrillHeading.starts_with(title + ": "));
            EXPECT_EQ(currentParadigm.WindowTitle, verbClass == 6 || verbClass == 7 ? "" : title);
            EXPECT_EQ(currentParadigm.VerbLabel, verb);
            resetAfterLeaving();
        }
        for (int tense = 1; tense <= BlockCount; ++tense) {
            settings.AnsweredCount = 7;
            EXPECT_EQ(chooseConjugation(8), ConjugationChoice::SingleTense);
            chooseTense(tense - 1);
            generateParadigms();
            EXPECT_EQ(settings.AnsweredCount, 0);
            for (int verbClass = 1; verbClass <= 5; ++verbClass)
                EXPECT_EQ(playRound(verbClass, tense),
                          verbClass < 5 ? Advance::NextRound : Advance::TenseFinished);
        }
    }
    EXPECT_GT(orders.size(), 180U);
    EXPECT_EQ(orders.rbegin()->front(), 5);
}

TEST_F(ConjugationDrill, JudgesLetterByLetter)
{
    settings.ShowVowelLength = platform::FlagTrue;
    beginParadigm(0);
    for (const auto& [row, right] : {std::pair{1, "ama:s"}, {60, ""}}) { // the imperative has no first person
        conjugationDrill.FormRow = static_cast<std::int16_t>(row);
        setConjugationQuestion();
        for (const std::string answer :
             {"ama:s", "", " ", "amas", "Ama:s", " ama:s", "ama:s ", "ama:s:", "ama\u0304s"})
            EXPECT_EQ(judgeConjugation(answer), answer == right) << answer;
    }
}

// What the window shows beside the six boxes, once the paradigms are generated; "-" where it keeps what it
// showed. German glosses belong to a name that no language of the menu has, sic.
std::string glossesOf(const std::string& language, int block, int verbClass)
{
    settings.CurrentLanguage = language == "Kraut" ? "German" : language;
    setPersonLabels();
    buildIrregularVerbs();
    settings.CurrentLanguage = language;
    currentParadigm.ConjugationCode = static_cast<std::int16_t>(verbClass);
    currentParadigm.TenseMoodCode = static_cast<std::int16_t>(block);
    std::string glosses;
    for (int person = FirstSingular; person <= PersonCount; ++person)
        glosses += glossOfPerson(person).value_or("-") + "|";
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
        EXPECT_EQ(englishGloss(1, 1, 3, {"she", gloss.substr(0, dash), "", "", ""}),
                  "she " + gloss.substr(0, dash) + gloss.substr(dash + 1));
    }
}

} // namespace
