#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "tests/verbs/paradigm_pages.h"
#include "verbs/generators.h"
#include "verbs/verb_list.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <map>
#include <set>
#include <span>
#include <sstream>
#include <vector>

namespace {

using shell::settings;
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

// A text of the pages as the settings have it shown.
std::string shown(std::string_view text)
{
    std::string form(text);
    if (settings.VowelMark.empty())
        std::erase(form, ':');
    return form;
}

void buildAll()
{
    verbs::buildRegularConjugations();
    verbs::buildIrregularVerbs();
    verbs::buildThirdAndFourthConjugations();
}

void takeOnlyVerb(int verbClass, const verbs::VerbRecord& verb)
{
    verbList.Count[verbClass] = 1;
    verbs::storeVerb(verbClass, 1, verb);
}

void takeModels()
{
    for (const Model& model : Models)
        if (model.verbClass <= verbs::LastRegularClass)
            takeOnlyVerb(model.verbClass, {model.present, model.perfect, model.supine, {}});
}

using Counts = std::array<std::int16_t, verbs::LastRegularClass>;

// Fifteen verbs of each regular class, told apart by their number, of which the list counts so many.
void fillLists(const Counts& counts = {15, 15, 15, 15, 15})
{
    for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass) {
        verbList.Count[verbClass] = counts.at(static_cast<std::size_t>(verbClass - 1));
        for (int number = 1; number <= verbs::MostVerbs; ++number) {
            const std::string n = std::to_string(number);
            verbs::storeVerb(verbClass, number,
                             {n + "p", n + "f", n + "s", {n, n + "past", n + "en", n + "ing"}});
            verbList.German[verbClass][number - 1] = n + "extra";
        }
    }
}

int numberOfDrawnVerb(int verbClass)
{
    return std::stoi(verbTables.WorkingStems[16 + verbClass]);
}

// Every cell as the pages have it; every cell that they do not have is empty.
void expectPages()
{
    for (const Model& model : Models) {
        const auto& column = verbTables.Forms[model.verbClass];
        int number = 0;
        for (const tests::PageLine& line : model.page)
            for (const std::string_view form : line.forms)
                EXPECT_EQ(column[++number], shown(form)) << model.infinitive << ", " << line.tense;
        while (++number < column.size())
            EXPECT_EQ(column[number], "") << model.infinitive << ", form " << number;
        EXPECT_EQ(verbTables.Infinitive[model.verbClass], shown(model.infinitive));
        EXPECT_EQ(verbTables.WorkingStems[16 + model.verbClass], shown(model.present));
        EXPECT_EQ(verbTables.WorkingStems[32 + model.verbClass], shown(model.supine));
    }
}

TEST_F(Generators, WriteThePagesOfAGrammarWithMarks)
{
    settings.ShowVowelLength = platform::FlagTrue;
    takeModels();
    buildAll();
    EXPECT_EQ(settings.VowelMark, ":");
    expectPages();
}

TEST_F(Generators, WriteThePagesWithoutMarksOverTheVerbBefore)
{
    fillLists({1, 1, 1, 1, 1});
    buildAll();
    takeModels();
    buildAll();
    expectPages();
}

TEST_F(Generators, NeverEmptyTheMark)
{
    settings.VowelMark = ":";
    buildAll();
    EXPECT_EQ(settings.VowelMark, ":");
    EXPECT_EQ(verbTables.Forms[verbs::Ferre][85], "la:tus sum");
}

TEST_F(Generators, WriteNoPassiveOfEsseAndEmptyTheImperativeOfVelle)
{
    for (const int verbClass : {verbs::Esse, verbs::Velle})
        verbTables.Forms[verbClass].fill("stale");
    buildAll();
    // From the last active form through the imperative to the first passive form.
    const std::vector<std::string> esse = {"fuissent", "", "es", "", "", "este", "", "stale"};
    const std::vector<std::string> velle = {"voluissent", "", "", "", "", "", "", "stale"};
    const auto& forms = verbTables.Forms;
    EXPECT_TRUE(std::equal(esse.begin(), esse.end(), forms[verbs::Esse].begin() + 60));
    EXPECT_TRUE(std::equal(velle.begin(), velle.end(), forms[verbs::Velle].begin() + 60));
}

TEST_F(Generators, ShortenTheImperativeOfThreeStemsOnly)
{
    settings.ShowVowelLength = platform::FlagTrue;
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"dic", "dic"},  {"duc", "duc"},  {"du:c", "du:c"}, {"di:c", "di:ce"},
        {"fac", "face"}, {"fer", "fere"}, {"reg", "rege"},  {"tra:du:c", "tra:du:ce"},
    };
    for (const auto& [stem, imperative] : cases) {
        takeOnlyVerb(verbs::ThirdConjugation, {stem, "", "", {}});
        takeOnlyVerb(verbs::ThirdIoConjugation, {stem, "", "", {}});
        buildAll();
        EXPECT_EQ(verbTables.Forms[verbs::ThirdConjugation][62], imperative);
        EXPECT_EQ(verbTables.Forms[verbs::ThirdConjugation][65], stem + "ite");
        EXPECT_EQ(verbTables.Forms[verbs::ThirdIoConjugation][62], stem + "e");
    }
}

TEST_F(Generators, CountTheTensesOfAllClassesButTheIoVerbs)
{
    buildAll();
    const std::vector<int> expected = {0, 21, 21, 21, 21, 0, 11, 10, 21, 0, 0}; // meant: 0 for class 5
    EXPECT_TRUE(std::ranges::equal(verbTables.TenseCount, expected));
}

// By single tense mode: the tense after a run that began at tense 14.
TEST_F(Generators, SetTheMarkAndGoBackToTheFirstTenseEachInItsOwnWay)
{
    struct Case {
        void (*build)();
        std::string markWhereShown;
        std::array<int, 3> tenses;
    };
    for (const Case& each : {Case{verbs::buildRegularConjugations, ":", {1, 14, 1}},
                             Case{verbs::buildThirdAndFourthConjugations, ":", {14, 14, 14}},
                             Case{verbs::buildIrregularVerbs, "", {1, 14, 1}}})
        for (int mode = 0; mode < 3; ++mode) {
            for (const auto& [shown, mark] :
                 {std::pair<int, std::string>{1, ""}, {platform::FlagTrue, each.markWhereShown}}) {
                settings.ShowVowelLength = static_cast<std::int16_t>(shown);
                settings.VowelMark.clear();
                verbs::currentParadigm.SingleTenseMode = static_cast<std::int16_t>(mode);
                verbs::currentParadigm.TenseMoodCode = 14;
                each.build();
                EXPECT_EQ(settings.VowelMark, mark);
                EXPECT_EQ(verbs::currentParadigm.TenseMoodCode,
                          each.tenses.at(static_cast<std::size_t>(mode)));
            }
        }
}

// The clock stands still here: seeding anew must still lead to new verbs.
TEST_F(Generators, DrawEveryVerbThatTheListCountsAndNoOther)
{
    for (const Counts& counts : {Counts{15, 7, 1, 0, 3}, Counts{0, 1, 4, 15, 8}}) {
        fillLists(counts);
        std::map<int, std::set<int>> drawn;
        for (int run = 0; run < 400; ++run) {
            buildAll();
            for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
                drawn[verbClass].insert(numberOfDrawnVerb(verbClass));
        }
        for (const auto& [verbClass, numbers] : drawn) {
            std::set<int> expected = {1}; // an empty list yields its first verb
            for (int number = 2; number <= verbList.Count[verbClass]; ++number)
                expected.insert(number);
            EXPECT_EQ(numbers, expected) << "class " << verbClass;
        }
    }
}

TEST_F(Generators, TakeStemsAndTranslationsFromTheSameVerb)
{
    fillLists();
    buildAll();
    EXPECT_EQ(verbList.German[verbs::FourthConjugation][3], "gräbe");
    EXPECT_EQ(verbTables.GermanGloss, decltype(verbTables.GermanGloss){}) << "taken in German only";
    settings.CurrentLanguage = "German";
    for (int run = 0; run < 60; ++run) {
        fillLists();
        buildAll();
        EXPECT_EQ(verbTables.SecondConjugationVerb, numberOfDrawnVerb(verbs::SecondConjugation));
        for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass) {
            const std::string n = std::to_string(numberOfDrawnVerb(verbClass));
            EXPECT_EQ(verbTables.Forms[verbClass][21], n + "fit");
            EXPECT_EQ(verbTables.Forms[verbClass][88], n + "si sumus");
            EXPECT_TRUE(verbTables.Forms[verbClass][43].starts_with(n + "p"));
            EXPECT_TRUE(verbTables.Infinitive[verbClass].starts_with(n + "p"));
            EXPECT_EQ(verbTables.WorkingStems[32 + verbClass], n + "s");
            EXPECT_EQ(verbTables.BaseGloss[verbClass], n);
            EXPECT_EQ(verbTables.PastGloss[verbClass], n + "past");
            EXPECT_EQ(verbTables.ParticipleGloss[verbClass], n + "en");
            EXPECT_EQ(verbTables.PresentParticipleGloss[verbClass], n + "ing");
            const bool graebe = verbClass == verbs::FourthConjugation && n == "4";
            const std::string extra = graebe ? "gräbe" : n + "extra";
            EXPECT_EQ(verbTables.GermanGloss[verbClass - 1], verbClass == 1 ? "" : extra);
        }
    }
}

TEST_F(Generators, TranslateTheIrregularVerbsByLanguage)
{
    // The four translations and the German one, of esse, velle, ferre; "old": the slot keeps what it held.
    // clang-format off
    const std::vector<std::array<std::string, 4>> cases = {
        {"English French Italian Spanish", "be was been being old",   "want wanted wanted wanting old", "bear bore borne bearing old"},
        {"German",                         "bin war gewesen old old", "woll wollte gewollt old old",    "trag trug getragen trüge träg"},
        {"Latin Kraut english",            "old old old old old",     "old old old old old",            "old old old old old"},
    };
    // clang-format on
    auto& tables = verbTables;
    for (const auto& texts : cases) {
        std::istringstream languages(texts.front());
        while (languages >> settings.CurrentLanguage) {
            const auto slots = {&tables.BaseGloss, &tables.PastGloss, &tables.ParticipleGloss,
                                &tables.PresentParticipleGloss};
            for (auto* const slot : slots)
                slot->fill("old");
            tables.GermanGloss.fill("old");
            verbs::buildIrregularVerbs();
            for (int verbClass = verbs::Esse; verbClass <= verbs::Ferre; ++verbClass) {
                std::string glosses;
                for (auto* const slot : slots)
                    glosses += (*slot)[verbClass] + " ";
                EXPECT_EQ(glosses + tables.GermanGloss[verbClass - 1],
                          texts.at(static_cast<std::size_t>(verbClass - 5)))
                    << settings.CurrentLanguage;
            }
        }
    }
}

} // namespace
