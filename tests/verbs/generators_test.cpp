#include "platform/random.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "tests/verbs/paradigm_pages.h"
#include "verbs/generators.h"
#include "verbs/verb_list.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <set>
#include <span>
#include <vector>

namespace {

using shell::settings;
using verbs::currentParadigm;
using verbs::verbList;
using verbs::verbTables;

using Generators = tests::FreshState;

struct Model {
    int verbClass;
    std::string present;
    std::string perfect;
    std::string supine;
    std::string infinitive;
    std::span<const tests::PageLine> page;
};

// clang-format off
const std::vector<Model> Models = {
    {1, "am",  "ama:v",  "ama:t",  "ama:re",  tests::AmoPage},
    {2, "mon", "monu",   "monit",  "mone:re", tests::MoneoPage},
    {3, "reg", "re:x",   "re:ct",  "regere",  tests::RegoPage},
    {4, "aud", "audi:v", "audi:t", "audi:re", tests::AudioPage},
    {5, "cap", "ce:p",   "capt",   "capere",  tests::CapioPage},
    {6, "",    "",       "",       "esse",    tests::EssePage},
    {7, "",    "",       "",       "velle",   tests::VellePage},
    {8, "",    "",       "",       "ferre",   tests::FerrePage},
};
// clang-format on

constexpr int LastFormNumber = 160;

std::string asWritten(std::string_view text)
{
    return std::string(text);
}

std::string withoutColons(std::string_view text)
{
    std::string plain(text);
    std::erase(plain, ':');
    return plain;
}

void buildAll()
{
    verbs::buildRegularConjugations();
    verbs::buildIrregularVerbs();
    verbs::buildThirdAndFourthConjugations();
}

void takeOnlyVerb(const Model& model)
{
    verbList.Count[model.verbClass] = 1;
    verbs::storeVerb(model.verbClass, 1, {model.present, model.perfect, model.supine, {}});
}

void takeModels()
{
    for (const Model& model : Models)
        if (model.verbClass <= verbs::LastRegularClass)
            takeOnlyVerb(model);
}

// Fifteen verbs of each regular class, told apart by their number, of which the list counts so many.
void fillLists(int count)
{
    for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass) {
        verbList.Count[verbClass] = static_cast<std::int16_t>(count);
        for (int number = 1; number <= verbs::MostVerbs; ++number) {
            const std::string n = std::to_string(number);
            verbs::storeVerb(verbClass, number,
                             {n + "p", n + "f", n + "s", {n + "base", n + "past", n + "been", n + "being"}});
            verbList.German[verbClass][number - 1] = n + "extra";
        }
    }
}

int numberOfDrawnVerb(int verbClass)
{
    return std::stoi(verbTables.WorkingStems[verbs::PresentStemIndex + verbClass]);
}

std::string imperativeOf(int verbClass, const std::string& presentStem)
{
    takeOnlyVerb({verbClass, presentStem, "x", "x", "", {}});
    verbs::buildThirdAndFourthConjugations();
    return verbTables.Forms[verbClass][62];
}

// Every cell as the pages have it, read by `expected`; every cell that they do not have is empty.
void expectPages(std::string (*expected)(std::string_view))
{
    for (const Model& model : Models) {
        const auto& column = verbTables.Forms[model.verbClass];
        int number = 0;
        for (const tests::PageLine& line : model.page)
            for (const std::string_view form : line.forms)
                EXPECT_EQ(column[++number], expected(form))
                    << model.infinitive << ", " << line.tense << ", form " << number;
        while (++number <= LastFormNumber)
            EXPECT_EQ(column[number], "") << model.infinitive << ", form " << number;
        EXPECT_EQ(verbTables.Infinitive[model.verbClass], expected(model.infinitive));
    }
}

TEST_F(Generators, WriteThePagesOfAGrammarWithMarks)
{
    settings.ShowVowelLength = platform::FlagTrue;
    takeModels();
    buildAll();
    EXPECT_EQ(settings.VowelMark, ":");
    expectPages(asWritten);
}

TEST_F(Generators, WriteTheSamePagesWithoutMarks)
{
    takeModels();
    buildAll();
    expectPages(withoutColons);
}

TEST_F(Generators, KeepStemsAndMarkAsTheyFindThem)
{
    takeModels();
    settings.VowelMark = ":";
    buildAll();
    EXPECT_EQ(settings.VowelMark, ":");
    EXPECT_EQ(verbTables.Forms[1][24], "amave:runt");
    EXPECT_EQ(verbTables.Forms[8][85], "la:tus sum");
}

TEST_F(Generators, OverwriteTheVerbBefore)
{
    fillLists(1);
    buildAll();
    takeModels();
    buildAll();
    expectPages(withoutColons);
}

TEST_F(Generators, WriteNoPassiveOfEsseAndEmptyTheImperativeOfVelle)
{
    for (const int verbClass : {verbs::Esse, verbs::Velle})
        verbTables.Forms[verbClass].fill("stale");
    buildAll();
    // One by one: the last active form, the imperative 61 to 66, and the first passive form.
    const std::vector<std::string> esse = {"fuissent", "", "es", "", "", "este", "", "stale"};
    const std::vector<std::string> velle = {"voluissent", "", "", "", "", "", "", "stale"};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(verbTables.Forms[verbs::Esse][60 + i], esse.at(static_cast<std::size_t>(i)));
        EXPECT_EQ(verbTables.Forms[verbs::Velle][60 + i], velle.at(static_cast<std::size_t>(i)));
    }
}

TEST_F(Generators, ShortenTheImperativeOfThreeStemsOnly)
{
    settings.ShowVowelLength = platform::FlagTrue;
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"dic", "dic"},  {"duc", "duc"},  {"du:c", "du:c"}, {"di:c", "di:ce"},         {"fac", "face"},
        {"fer", "fere"}, {"reg", "rege"}, {"Duc", "Duce"},  {"tra:du:c", "tra:du:ce"}, {"ed", "ede"},
    };
    for (const auto& [stem, imperative] : cases) {
        EXPECT_EQ(imperativeOf(verbs::ThirdConjugation, stem), imperative);
        EXPECT_EQ(verbTables.Forms[verbs::ThirdConjugation][65], stem + "ite");
    }
    EXPECT_EQ(imperativeOf(verbs::ThirdIoConjugation, "duc"), "duce");
}

TEST_F(Generators, KeepTheStemsOfTheVerbDrawn)
{
    settings.ShowVowelLength = platform::FlagTrue;
    takeModels();
    buildAll();
    for (const Model& model : Models) {
        EXPECT_EQ(verbTables.WorkingStems[16 + model.verbClass], model.present);
        EXPECT_EQ(verbTables.WorkingStems[32 + model.verbClass], model.supine);
    }
}

TEST_F(Generators, CountTheTensesOfAllClassesButTheIoVerbs)
{
    buildAll();
    const std::vector<int> expected = {0, 21, 21, 21, 21, 0, 11, 10, 21, 0, 0}; // meant: 0 for class 5
    EXPECT_TRUE(std::ranges::equal(verbTables.TenseCount, expected));
}

TEST_F(Generators, GoBackToTheFirstTenseUnlessASingleOneIsDrilled)
{
    for (void (*const build)() : {verbs::buildRegularConjugations, verbs::buildIrregularVerbs})
        for (const auto& [mode, tense] : std::vector<std::pair<int, int>>{{0, 1}, {1, 14}, {-1, 1}, {2, 1}}) {
            currentParadigm.SingleTenseMode = static_cast<std::int16_t>(mode);
            currentParadigm.TenseMoodCode = 14;
            build();
            EXPECT_EQ(currentParadigm.TenseMoodCode, tense) << mode;
        }
    currentParadigm.SingleTenseMode = 0;
    currentParadigm.TenseMoodCode = 14;
    verbs::buildThirdAndFourthConjugations();
    EXPECT_EQ(currentParadigm.TenseMoodCode, 14);
}

// The clock stands still here: seeding anew must still lead to new verbs.
TEST_F(Generators, DrawEveryVerbThatTheListCountsAndNoOther)
{
    for (const int count : {15, 7, 1}) {
        fillLists(count);
        std::array<std::set<int>, verbs::LastRegularClass + 1> drawn;
        for (int run = 0; run < 400; ++run) {
            buildAll();
            for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
                drawn.at(static_cast<std::size_t>(verbClass)).insert(numberOfDrawnVerb(verbClass));
        }
        for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass) {
            const auto& numbers = drawn.at(static_cast<std::size_t>(verbClass));
            EXPECT_EQ(static_cast<int>(numbers.size()), count) << verbClass;
            EXPECT_EQ(*numbers.begin(), 1) << verbClass;
            EXPECT_EQ(*numbers.rbegin(), count) << verbClass;
        }
    }
}

TEST_F(Generators, TakeTheFirstVerbWhereNoneIsCounted)
{
    buildAll();
    EXPECT_EQ(verbTables.Forms[1][1], "o"); // an ending without a stem
    fillLists(0);
    for (int run = 0; run < 20; ++run) {
        buildAll();
        for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
            EXPECT_EQ(numberOfDrawnVerb(verbClass), 1);
    }
}

TEST_F(Generators, GiveStemsAndTranslationsOfTheSameVerb)
{
    fillLists(15);
    settings.CurrentLanguage = "German";
    for (int run = 0; run < 60; ++run) {
        buildAll();
        EXPECT_EQ(verbTables.SecondConjugationVerb, numberOfDrawnVerb(2));
        for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass) {
            const int number = numberOfDrawnVerb(verbClass);
            const std::string n = std::to_string(number);
            EXPECT_EQ(verbTables.Forms[verbClass][21], n + "fit");
            EXPECT_EQ(verbTables.Forms[verbClass][88], n + "si sumus");
            EXPECT_EQ(verbTables.WorkingStems[32 + verbClass], n + "s");
            EXPECT_EQ(verbTables.BaseGloss[verbClass], n + "base");
            EXPECT_EQ(verbTables.PastGloss[verbClass], n + "past");
            EXPECT_EQ(verbTables.ParticipleGloss[verbClass], n + "been");
            EXPECT_EQ(verbTables.PresentParticipleGloss[verbClass], n + "being");
            const bool graebe = verbClass == verbs::FourthConjugation && number == 4;
            const std::string extra = graebe ? "gräbe" : n + "extra";
            EXPECT_EQ(verbTables.GermanGloss[verbClass - 1], verbClass == 1 ? "" : extra);
        }
    }
}

TEST_F(Generators, CorrectTheGermanListInEveryLanguage)
{
    fillLists(15);
    buildAll();
    EXPECT_EQ(verbList.German[verbs::FourthConjugation][3], "gräbe");
    for (int slot = 0; slot < 8; ++slot)
        EXPECT_EQ(verbTables.GermanGloss[slot], "") << "only German takes the extra translations";
}

TEST_F(Generators, TranslateTheIrregularVerbsByLanguage)
{
    struct Glosses {
        std::vector<std::string> languages;
        std::array<std::array<std::string, 5>, 3> texts; // esse, velle, ferre: four slots and the German one
    };
    // "old": the slot keeps what it held.
    // clang-format off
    const std::vector<Glosses> cases = {
        {{"English", "French", "Italian", "Spanish"},
         {{{"be", "was", "been", "being", "old"}, {"want", "wanted", "wanted", "wanting", "old"}, {"bear", "bore", "borne", "bearing", "old"}}}},
        {{"German"},
         {{{"bin", "war", "gewesen", "old", "old"}, {"woll", "wollte", "gewollt", "old", "old"}, {"trag", "trug", "getragen", "trüge", "träg"}}}},
        {{"Latin", "Kraut", "english"},
         {{{"old", "old", "old", "old", "old"}, {"old", "old", "old", "old", "old"}, {"old", "old", "old", "old", "old"}}}},
    };
    // clang-format on
    auto& tables = verbTables;
    for (const Glosses& glosses : cases)
        for (const std::string& language : glosses.languages) {
            for (auto* slot : {&tables.BaseGloss, &tables.PastGloss, &tables.ParticipleGloss,
                               &tables.PresentParticipleGloss, &tables.GermanGloss})
                slot->fill("old");
            settings.CurrentLanguage = language;
            verbs::buildIrregularVerbs();
            int verbClass = verbs::Esse;
            for (const auto& texts : glosses.texts) {
                const std::array<std::string, 5> slots = {
                    tables.BaseGloss[verbClass], tables.PastGloss[verbClass],
                    tables.ParticipleGloss[verbClass], tables.PresentParticipleGloss[verbClass],
                    tables.GermanGloss[verbClass - 1]};
                EXPECT_EQ(slots, texts) << language << ", class " << verbClass;
                ++verbClass;
            }
        }
}

} // namespace
