#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/conjugation_choice.h"
#include "verbdrills/conjugation_drill.h"
#include "verbdrills/gloss.h"
#include "verbdrills/quiz_draw.h"
#include "verbdrills/quiz_inclusion.h"
#include "verbdrills/verb_question.h"
#include "verbs/generators.h"
#include "verbs/paradigm_titles.h"
#include "verbs/verb_list.h"
#include "verbs/verb_list_file.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <bit>
#include <set>
#include <vector>

namespace {

using namespace verbdrills;
using namespace verbs;
using shell::settings;

using Round = std::vector<int>;

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
        settings.AnsweredCount = 7;
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
            EXPECT_EQ(settings.AnsweredCount, 0);
        }
        for (int tense = 1; tense <= BlockCount; ++tense) {
            EXPECT_EQ(chooseConjugation(8), ConjugationChoice::SingleTense);
            EXPECT_TRUE(chooseTense(tense - 1));
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
        for (const std::string answer : {"ama:s", "", " ", "amas", "Ama:s", " ama:s", "ama:s ", "ama:s:"})
            EXPECT_EQ(judgeConjugation(answer), answer == right) << answer;
    }
}

// What the window shows beside the six boxes, once the paradigms are generated in a language, in the same or
// another; "-" where it keeps what it showed.
std::string glossesOf(const std::string& generated, const std::string& language, int block, int verbClass)
{
    settings.CurrentLanguage = generated;
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

TEST_F(ConjugationDrill, TranslatesEveryTenseOfFerreIntoEnglish)
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
            std::string gloss = label == "I" ? first : label == "he, she, it" ? third : others;
            if (block == Imperative && !label.ends_with("you"))
                gloss.clear();
            if (const auto star = gloss.find('*'); star != std::string::npos)
                gloss.replace(star, 1, label);
            expected += gloss + "|";
        }
        EXPECT_EQ(glossesOf("English", "English", block++, Ferre), expected);
    }
}

// sic: no language of the menu has the name of the German glosses.
TEST_F(ConjugationDrill, TranslatesIntoNoLanguageButEnglishAndGermanUnderAnotherName)
{
    // clang-format off
    const std::vector<std::tuple<std::string, std::string, int, int, std::string>> glosses = {
        {"English", "English", PresentIndicative,    Esse,  "I am|you are|he, she, it is|we are|all of you are|they are|"},
        {"English", "English", PresentIndicative,    Velle, "I want|you want|he, she, it wants|we want|all of you want|they want|"},
        {"German",  "Kraut",   PresentIndicative,    Ferre, "ich trage|du tragst|er/ sie/ es tragt|wir tragen|ihr tragt|sie tragen|"}, // sic
        {"German",  "Kraut",   Imperative,           Esse,  "|sei (glücklich)!|||seid (glücklich)!||"}};
    // clang-format on
    for (const auto& [generated, language, block, verbClass, gloss] : glosses)
        EXPECT_EQ(glossesOf(generated, language, block, verbClass), gloss);
    EXPECT_EQ(verbTables.PresentParticipleGloss[Ferre] + verbTables.GermanGloss[Ferre - 1], "trügeträg");
    // Paradigms generated in Latin keep the translations before.
    for (const char* const generated : {"French", "German", "Italian", "German", "Spanish", "Latin"})
        EXPECT_EQ(glossesOf(generated, "English", PluperfectIndicative, Ferre).ends_with("|they had borne|"),
                  generated != std::string("German"));
    for (const char* const language : {"French", "Italian", "Spanish", "Latin", "english", "German"})
        EXPECT_EQ(glossesOf("English", language, PresentIndicative, Ferre), "-|-|-|-|-|-|") << language;
}

TEST_F(ConjugationDrill, TranslatesTheThirdPersonInSOrEsByTheLastLetters)
{
    // clang-format off
    for (const auto& [base, third] : {std::pair{"teach", "she teaches"}, {"kiss", "she kisses"},
             {"waltz", "she waltzes"}, {"want", "she wantes"}, {"read", "she reades"}, {"wash", "she washs"}, // sic
             {"love", "she loves"}, {"c", "she cs"}, {"", "she s"}})
        // clang-format on
        EXPECT_EQ(englishGloss(1, 1, 3, {"she", base, "", "", ""}), third);
}

// Classes and tenses as sets of bits, the first conjugation and the present indicative first.
using Bits = unsigned;
constexpr Bits AllTenses = (1U << 21U) - 1, ActiveTenses = (1U << 11U) - 1;
constexpr Bits RegularClasses = 0b11111U, EsseBit = 1U << 5U, VelleBit = 1U << 6U;

constexpr auto bit = [](int number) { return 1U << static_cast<unsigned>(number); };

QuizTicks ticks(Bits classes, Bits tenses)
{
    QuizTicks made;
    for (int i = 0; i < made.classes.size(); ++i)
        made.classes[i] = (classes & bit(i)) != 0;
    for (int t = 0; t < made.tenses.size(); ++t)
        made.tenses[t] = (tenses & bit(t)) != 0;
    return made;
}

class VerbQuiz : public tests::FreshState {
protected:
    VerbQuiz()
    {
        tests::copySample("verbs.cfg");
        readVerbList("verbs.cfg");
        storeTicks(ticks(bit(0), AllTenses));
        askForm();
        verbQuiz = {};
    }

    // The forms drawn. Each is identified by all its parts alone: six forms to a tense, the persons of the
    // singular before those of the plural.
    static std::set<int> drawnFrom(Bits classes, Bits tenses, int draws = 6000)
    {
        storeTicks(ticks(classes, tenses));
        std::set<int> rows;
        for (int i = 0; i < draws; ++i) {
            verbQuiz.formIsAsked = drawForm();
            const int form = verbQuiz.QuizRow - 1;
            const bool singular = form % 6 < 3;
            Identification said = {verbQuiz.QuizConjugation - 1, form / 6, form % 3 + 1,
                                   singular ? "Plural" : "Sing"};
            EXPECT_TRUE(!judgeIdentification(said) && verbQuiz.formIsAsked);
            said.number = singular ? "Sing" : "Plural";
            EXPECT_TRUE(judgeIdentification(said) && !verbQuiz.formIsAsked);
            rows.insert(verbQuiz.QuizRow);
        }
        EXPECT_EQ(settings.ExerciseType, "Quiz");
        return rows;
    }
};

// Ferre alone has no row yet. A choice that is taken is filled up with the first class and tense where it is
// too small.
TEST_F(VerbQuiz, AsksAnIncludedFormOrNoneWhateverIsChosen)
{
    std::vector<Bits> tenseSets = {0, AllTenses, ActiveTenses, AllTenses & ~ActiveTenses};
    for (int first = 0; first < 21; ++first)
        for (int second = first; second < 21; ++second)
            tenseSets.push_back(bit(first) | bit(second));
    for (const Bits tenses : tenseSets)
        for (Bits classes = 0; classes < 256; ++classes) {
            takeTicks(ticks(classes, tenses));
            EXPECT_EQ(ticksOfQuiz(), ticks(std::max(classes, 1U),
                                           std::has_single_bit(tenses) ? tenses | 1U : std::max(tenses, 1U)));
            verbQuiz = {};
            storeTicks(ticks(classes, tenses));
            const bool canBeAsked = ((classes & RegularClasses) != 0 && tenses != 0) ||
                                    ((classes & EsseBit) != 0 && (tenses & ActiveTenses) != 0) ||
                                    (classes & VelleBit) != 0;
            for (int draw = 0; draw < 2; ++draw) {
                ASSERT_EQ(drawForm(), canBeAsked) << classes << " " << tenses;
                const int verbClass = canBeAsked ? verbQuiz.QuizConjugation : 0;
                EXPECT_EQ(verbTables.Forms[verbClass][verbQuiz.QuizRow].empty(), !canBeAsked);
                EXPECT_TRUE(!canBeAsked || (classes & bit(verbClass - 1)) != 0);
                EXPECT_TRUE(!canBeAsked || verbClass > Esse || (tenses & bit(verbQuiz.QuizAnswerTense)) != 0);
            }
        }
}

TEST_F(VerbQuiz, AsksEveryFormButTheLastOfARegularClassAndVelleInAnyTenseAndFerreAtTheRowBefore)
{
    for (const auto& [verbClass, last] : {std::pair{SecondConjugation, 125}, {Esse, 65}, {Velle, 60}}) {
        std::set<int> expected;
        for (int row = 1; row <= last; ++row)
            if (!verbTables.Forms[verbClass][row].empty())
                expected.insert(row);
        EXPECT_EQ(drawnFrom(bit(verbClass - 1), verbClass == Velle ? bit(15) : AllTenses), expected);
    }
    const std::set<int> before = {verbQuiz.QuizRow};
    EXPECT_EQ(drawnFrom(bit(Ferre - 1), bit(20), 30), before);
}

// esse and velle always have the form drawn, so that every draw is one question.
TEST_F(VerbQuiz, LetsClassesTakeTurnsUntilItsMemoryStartsAfresh)
{
    storeTicks(ticks(EsseBit | VelleBit, bit(0)));
    bool sameAcrossTheStart = false;
    for (int round = 0; round < 20; ++round) {
        verbQuiz = {};
        std::string drawn;
        while (drawn.size() < 44) {
            EXPECT_TRUE(drawForm());
            drawn += verbQuiz.QuizConjugation == Esse ? 'e' : 'v';
        }
        // Pairs, but the 21st draw and the 42nd are each the last before a new start.
        for (const std::size_t second : {1U, 3U, 5U, 7U, 9U, 11U, 13U, 15U, 17U, 19U, 22U, 24U, 40U, 43U})
            EXPECT_NE(drawn[second], drawn[second - 1]) << drawn;
        sameAcrossTheStart = sameAcrossTheStart || drawn[21] == drawn[20];
    }
    EXPECT_TRUE(sameAcrossTheStart);
}

TEST_F(VerbQuiz, MarksItsFormsThoughMarksAreOffAndAnnouncesThemByTwoBeeps)
{
    for (const std::string mark : {"", ":"}) {
        settings.ShowVowelLength = platform::flagOf(!mark.empty());
        settings.VowelMark = mark;
        verbTables.Forms = {};
        fake.beeps = 0;
        ASSERT_TRUE(askForm());
        EXPECT_EQ(fake.beeps, 2);
        EXPECT_EQ(verbTables.Forms[Velle][2], "vi:s");
        EXPECT_EQ(settings.VowelMark, mark);
    }
}

} // namespace
