#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "tests/verbs/paradigm_pages.h"
#include "verbdrills/conjugation_choice.h"
#include "verbs/generators.h"
#include "verbs/verb_edits.h"
#include "verbs/verb_list_file.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <vector>

namespace {

using namespace verbs;
using shell::settings;
using tests::formOf;
using tests::Model;
using tests::Models;

using Verbs = tests::FreshState;

TEST_F(Verbs, AreConjugatedAsOnThePagesOfAGrammarOverTheVerbBeforeWithMarksAndWithout)
{
    for (const Model& verb : Models)
        std::fill_n(verbTables.Forms[verb.verbClass].begin() + 1, verb.supine.empty() ? 66 : 126, "stale");
    for (const platform::Flag marks : {platform::FlagFalse, platform::FlagTrue}) {
        settings.ShowVowelLength = marks;
        const auto shown = [=](std::string text) {
            if (marks == platform::FlagFalse)
                std::erase(text, ':');
            return text;
        };
        for (const auto& [verbClass, present, perfect, supine, infinitive, imperfect, singular, plural] :
             Models)
            if (verbClass <= LastRegularClass)
                storeVerb(verbClass, 1, {present, perfect, supine, {}});
        verbdrills::generateParadigms();
        for (const Model& verb : Models) {
            for (int form = 0; form < FormCount; ++form)
                EXPECT_EQ(verbTables.Forms[verb.verbClass][form + 1],
                          shown(formOf(verb, form / 6 + 1, form % 6 + 1)));
            EXPECT_EQ(verbTables.Infinitive[verb.verbClass], shown(verb.infinitive));
        }
    }
}

TEST_F(Verbs, HaveAShortImperativeOfThreeStemsOnly)
{
    settings.ShowVowelLength = platform::FlagTrue;
    for (const std::string imperative : {"dic", "duc", "du:c", "di:c-e", "fac-e", "fer-e"}) {
        const std::string stem = imperative.substr(0, imperative.find('-'));
        for (const int verbClass : {ThirdConjugation, ThirdIoConjugation})
            storeVerb(verbClass, 1, {stem, "", "", {}});
        verbdrills::generateParadigms();
        EXPECT_EQ(verbTables.Forms[ThirdConjugation][62], imperative == stem ? stem : stem + "e");
        EXPECT_EQ(verbTables.Forms[ThirdIoConjugation][62], stem + "e");
    }
}

using Counts = std::vector<int>; // by class

// A list with so many verbs of each class, the -io verbs before the fourth conjugation. The fields of a verb
// name its class and number.
std::string listOf(const Counts& counts, const std::string& separator = "\n")
{
    std::string text;
    for (const std::size_t verbClass : {1U, 2U, 3U, 5U, 4U}) {
        text += "heading" + separator + std::to_string(counts.at(verbClass - 1)) + separator;
        for (int number = 1; number <= counts.at(verbClass - 1); ++number)
            for (const char* const field : {"pre:s", "su:p", "pe:rf", "be", "was", "been", "being"})
                text += std::to_string(verbClass) + std::to_string(number) + field + separator;
        text += "heading" + separator;
    }
    return text;
}

bool read(const std::string& text)
{
    tests::writeFile("verbs.cfg", text);
    return readVerbList("verbs.cfg");
}

// Every verb that is counted stands in the list whole. Returns the counts by class.
Counts expectEveryVerb()
{
    for (int verbClass = 1; verbClass <= LastRegularClass; ++verbClass)
        for (int number = 1; number <= verbList.Count[verbClass]; ++number) {
            const std::string n = std::to_string(verbClass) + std::to_string(number);
            const VerbRecord expected = {
                n + "pres", n + "perf", n + "sup", {n + "be", n + "was", n + "been", n + "being"}};
            EXPECT_EQ(verbAt(verbClass, number), expected) << n;
        }
    return {verbList.Count.begin() + 1, verbList.Count.end()};
}

// The list holds fifteen verbs of each class, and counts fewer. The clock stands still: seeding anew must
// still lead to new verbs. An empty list yields its first verb.
TEST_F(Verbs, AreAllDrawnWithTheirStemsAndTranslations)
{
    settings.CurrentLanguage = "German";
    read(listOf({15, 15, 15, 15, 15}));
    std::ranges::copy(std::array<std::int16_t, 6>{0, 15, 7, 1, 4, 0}, verbList.Count.begin());
    for (auto& german : verbList.German)
        for (int place = 0; place < MostVerbs; ++place)
            german[place] = std::to_string(place + 1);
    std::set<std::string> drawn;
    for (int run = 0; run < 400; ++run) {
        verbdrills::generateParadigms();
        for (int verbClass = 1; verbClass <= LastRegularClass; ++verbClass) {
            const std::string base = verbTables.BaseGloss[verbClass];
            const std::string n = base.substr(0, base.find('b'));
            const auto& forms = verbTables.Forms[verbClass];
            EXPECT_EQ(forms[21] + forms[88] + verbTables.Infinitive[verbClass].substr(0, n.size() + 4) +
                          verbTables.PastGloss[verbClass] + verbTables.ParticipleGloss[verbClass] +
                          verbTables.PresentParticipleGloss[verbClass],
                      n + "perfit" + n + "supi sumus" + n + "pres" + n + "was" + n + "been" + n + "being");
            EXPECT_EQ(verbTables.GermanGloss[verbClass - 1], verbClass == 1 ? ""
                                                             : n == "44"    ? "gräbe"
                                                                            : n.substr(1));
            drawn.insert(n);
        }
    }
    EXPECT_EQ(drawn.size(), 15U + 7 + 1 + 4 + 1);
    EXPECT_TRUE(drawn.contains("115") && drawn.contains("27") && drawn.contains("44"));
}

TEST_F(Verbs, AreReadBySectionsWhateverEndsTheFieldsAndAgainWithTwoCountsSwapped)
{
    for (const char* const separator : {"\n", "\r\n", "\r", ",", " , ", "\t\n  "}) {
        verbList = {};
        EXPECT_TRUE(read("\xEF\xBB\xBF" + listOf({2, 1, 3, 15, 2}, separator)));
        EXPECT_EQ(expectEveryVerb(), (Counts{2, 1, 3, 15, 2}));
        EXPECT_TRUE(readVerbListAgain("verbs.cfg"));
        EXPECT_EQ(verbList.Count[FourthConjugation], 2);
        EXPECT_EQ(verbList.Count[ThirdIoConjugation], 15);
        EXPECT_EQ(verbAt(ThirdIoConjugation, 3).presentStem, "");
    }
}

TEST_F(Verbs, AreReadUpToAFaultOrACountThatCannotBeAndKeptFromBefore)
{
    const Counts all = {2, 1, 2, 2, 2};
    const std::string list = listOf(all);
    long whole = 0;
    for (std::size_t end = 0; end < list.rfind("being"); end = list.find('\n', end + 1)) {
        const std::string text = list.substr(0, end);
        whole += text.ends_with("being") ? 1 : 0;
        verbList = {};
        EXPECT_FALSE(read(text)) << text;
        const Counts counts = expectEveryVerb();
        EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), 0), whole) << text;
        read(list);
        EXPECT_FALSE(read(text) || readVerbListAgain("verbs.cfg")) << text;
        EXPECT_EQ(expectEveryVerb(), all) << text;
    }
    EXPECT_FALSE(readVerbList("none.cfg"));
    for (const auto& [count, counted] : {std::pair{"16", 15}, {"32767", 15}, {"-1", 0}, {"x", 0}}) {
        verbList = {};
        EXPECT_FALSE(read(listOf({16, 0, 0, 0, 0}).replace(8, 2, count))) << count;
        EXPECT_EQ(expectEveryVerb(), (Counts{counted, 0, 0, 0, 0})) << count;
    }
}

TEST_F(Verbs, AreFollowedByTheEditsOfTheLearner)
{
    read(listOf({2, 14, 0, 0, 0}));
    settings.ShowVowelLength = platform::FlagTrue;
    const VerbRecord leads = {"du:c", "du:x", "duct", {"lead", "led", "led", "leading"}};
    EXPECT_EQ(editVerb(1, 2, leads), VerbEdit::Stored); // in place of the second verb
    for (const auto& added : {VerbRecord{"du:", "", "", {}}, leads})
        EXPECT_EQ(editVerb(2, 15, added), VerbEdit::Stored);
    EXPECT_EQ(editVerb(2, 16, leads), VerbEdit::ListFull);
    EXPECT_EQ(editVerb(3, 1, {"", "x", "x", {}}), VerbEdit::NoPresentStem);
    EXPECT_EQ(listedInfinitive(2, 15), "du:cere");

    // Marks come back only to stems that were edited without them.
    for (const auto& [shown, perfect] :
         {std::pair{platform::FlagFalse, "11pe:rflike"}, {platform::FlagTrue, "11perflike"}}) {
        settings.ShowVowelLength = shown;
        editVerb(1, 1, {"11pres", "11perf", "11sup", {"like", "", "", ""}});
        settings.ShowVowelLength = platform::FlagTrue;
        EXPECT_TRUE(readVerbListAgain("verbs.cfg"));
        EXPECT_EQ(verbList.Count[2], 14);
        repeatVerbEdits();
        EXPECT_EQ(verbAt(1, 1).perfectStem + verbAt(1, 1).translations.front(), perfect);
        EXPECT_EQ(verbList.Count[1], 2);
        EXPECT_EQ(verbList.Count[2], 15);
        EXPECT_EQ(verbAt(1, 2), leads);
        EXPECT_EQ(verbAt(2, 15), leads);
    }
}

} // namespace
