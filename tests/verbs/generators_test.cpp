#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "tests/verbs/paradigm_pages.h"
#include "verbs/generators.h"
#include "verbs/verb_list.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <set>
#include <vector>

namespace {

using shell::settings;
using verbs::verbList;
using verbs::verbTables;

using Generators = tests::FreshState;

struct Model {
    int verbClass;
    std::string present, perfect, supine, infinitive;
};

// clang-format off
const std::vector<Model> Models = {
    {1, "am",  "ama:v",  "ama:t",  "ama:re"},
    {2, "mon", "monu",   "monit",  "mone:re"},
    {3, "reg", "re:x",   "re:ct",  "regere"},
    {4, "aud", "audi:v", "audi:t", "audi:re"},
    {5, "cap", "ce:p",   "capt",   "capere"},
    {6, "",    "fu",     "",       "esse"},
    {7, "",    "volu",   "",       "velle"},
    {8, "",    "tul",    "la:t",   "ferre"},
};
// clang-format on

const tests::PageLine* lineOf(int verbClass, std::string_view tense)
{
    for (const tests::PageLine& line : tests::Pages)
        if (line.verbClass == verbClass && line.tense == tense)
            return &line;
    return nullptr;
}

// A form as the verb's page has it; where that leaves out the tense, it goes like ama:vi: or re:ctus sum.
std::string formOf(const Model& verb, std::string_view tense, std::size_t person)
{
    if (const auto* const line = lineOf(verb.verbClass, tense))
        return std::string(line->forms.at(person));
    const std::string_view perfect = lineOf(verbs::FirstConjugation, tense)->forms.at(person);
    if (perfect.starts_with("ama:v"))
        return verb.perfect + std::string(perfect.substr(5));
    const std::string_view compound = lineOf(verbs::ThirdConjugation, tense)->forms.at(person);
    const bool isCompound = compound.starts_with("re:ct") && !verb.supine.empty();
    return isCompound ? verb.supine + std::string(compound.substr(5)) : "";
}

// A text of the pages as the settings have it shown.
std::string shown(std::string text)
{
    if (settings.VowelMark.empty())
        std::erase(text, ':');
    return text;
}

void buildAll()
{
    verbs::buildFirstAndSecondConjugations();
    verbs::buildIrregularVerbs();
    verbs::buildThirdAndFourthConjugations();
}

// Fifteen verbs of each regular class, told apart by their number, of which the list counts so many.
void fillLists(const std::vector<std::int16_t>& counts)
{
    std::copy(counts.begin(), counts.end(), verbList.Count.begin() + 1);
    for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
        for (int number = 1; number <= verbs::MostVerbs; ++number) {
            const std::string n = std::to_string(number);
            verbs::storeVerb(verbClass, number,
                             {n + "p", n + "f", n + "s", {n, n + "t", n + "en", n + "ing"}});
            verbList.German[verbClass][number - 1] = n + "extra";
        }
}

TEST_F(Generators, WriteThePagesOfAGrammarOverTheVerbBeforeWithMarksAndWithout)
{
    fillLists({1, 1, 1, 1, 1});
    buildAll();
    for (const int verbClass : {verbs::Esse, verbs::Velle})
        std::fill_n(verbTables.Forms[verbClass].begin() + 1, 66, "stale");
    for (const platform::Flag marks : {platform::FlagFalse, platform::FlagTrue}) {
        settings.ShowVowelLength = marks;
        for (const auto& [verbClass, present, perfect, supine, infinitive] : Models)
            if (verbClass <= verbs::LastRegularClass)
                verbs::storeVerb(verbClass, 1, {present, perfect, supine, {}});
        buildAll();
        for (const Model& verb : Models) {
            const auto& column = verbTables.Forms[verb.verbClass];
            // amo has every tense, and comes first. What the pages do not have is empty.
            for (int number = 1; number < column.size(); ++number) {
                const auto form = static_cast<std::size_t>(number - 1);
                const auto tense = form < 126 ? tests::Pages.at(form / 6).tense : "";
                EXPECT_EQ(column[number], form < 126 ? shown(formOf(verb, tense, form % 6)) : "")
                    << verb.infinitive << ", " << tense;
            }
            EXPECT_EQ(verbTables.Infinitive[verb.verbClass], shown(verb.infinitive));
        }
    }
}

TEST_F(Generators, ShortenTheImperativeOfThreeStemsOnly)
{
    settings.ShowVowelLength = platform::FlagTrue;
    // clang-format off
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"dic", "dic"}, {"duc", "duc"}, {"du:c", "du:c"}, {"di:c", "di:ce"}, {"fac", "face"}, {"fer", "fere"}};
    // clang-format on
    for (const auto& [stem, imperative] : cases) {
        for (const int verbClass : {verbs::ThirdConjugation, verbs::ThirdIoConjugation})
            verbs::storeVerb(verbClass, 1, {stem, "", "", {}});
        buildAll();
        EXPECT_EQ(verbTables.Forms[verbs::ThirdConjugation][62], imperative);
        EXPECT_EQ(verbTables.Forms[verbs::ThirdConjugation][65], stem + "ite");
        EXPECT_EQ(verbTables.Forms[verbs::ThirdIoConjugation][62], stem + "e");
    }
}

// The clock stands still here: seeding anew must still lead to new verbs.
TEST_F(Generators, DrawEveryVerbThatTheListCountsWithItsStemsAndTranslations)
{
    settings.CurrentLanguage = "German";
    fillLists({15, 7, 1, 4, 0});
    std::array<std::set<std::string>, 6> drawn;
    for (int run = 0; run < 400; ++run) {
        buildAll();
        for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass) {
            const std::string n = verbTables.BaseGloss[verbClass];
            const bool graebe = verbClass == verbs::FourthConjugation && n == "4";
            const std::string extra = graebe ? "gräbe" : n + "extra";
            const auto& forms = verbTables.Forms[verbClass];
            EXPECT_EQ(forms[21] + forms[88] + verbTables.Infinitive[verbClass].substr(0, n.size() + 1),
                      n + "fit" + n + "si sumus" + n + "p");
            EXPECT_EQ(verbTables.PastGloss[verbClass] + verbTables.ParticipleGloss[verbClass],
                      n + "t" + n + "en");
            EXPECT_EQ(verbTables.PresentParticipleGloss[verbClass], n + "ing");
            EXPECT_EQ(verbTables.GermanGloss[verbClass - 1], verbClass == 1 ? "" : extra);
            drawn.at(static_cast<std::size_t>(verbClass)).insert(n);
        }
    }
    // An empty list yields its first verb.
    for (const auto& [verbClass, count] : {std::pair{1U, 15U}, {2, 7}, {3, 1}, {4, 4}, {5, 1}})
        EXPECT_EQ(drawn.at(verbClass).size(), count) << verbClass;
    EXPECT_EQ(drawn[4], (std::set<std::string>{"1", "2", "3", "4"}));
    EXPECT_EQ(drawn[5], std::set<std::string>{"1"});
}

TEST_F(Generators, TranslateTheIrregularVerbsByLanguage)
{
    // Of esse, velle, ferre the four translations and the German one; "-": the slot keeps what it held.
    const std::string english = "be was been being - want wanted wanted wanting - bear bore borne bearing - ";
    const std::string german = "bin war gewesen - - woll wollte gewollt - - trag trug getragen trüge träg ";
    const std::string none = "- - - - - - - - - - - - - - - ";
    for (const std::string language : {"English", "French", "Italian", "Spanish", "German", "Latin"}) {
        settings.CurrentLanguage = language;
        auto& tables = verbTables;
        const auto slots = {&tables.BaseGloss, &tables.PastGloss, &tables.ParticipleGloss,
                            &tables.PresentParticipleGloss};
        for (auto* const slot : slots)
            slot->fill("-");
        tables.GermanGloss.fill("-");
        verbs::buildIrregularVerbs();
        std::string glosses;
        for (int verbClass = verbs::Esse; verbClass <= verbs::Ferre; ++verbClass) {
            for (auto* const slot : slots)
                glosses += (*slot)[verbClass] + " ";
            glosses += tables.GermanGloss[verbClass - 1] + " ";
        }
        EXPECT_EQ(glosses, language == "German" ? german : language == "Latin" ? none : english) << language;
    }
}

} // namespace
