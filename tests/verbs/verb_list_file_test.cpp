#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbs/verb_edits.h"
#include "verbs/verb_list.h"
#include "verbs/verb_list_file.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <vector>

namespace {

using shell::settings;
using verbs::verbList;

using Fields = std::vector<std::string>;

// The classes in the order of the file's sections: the -io verbs before the fourth conjugation.
constexpr std::array<int, 5> ClassOfSection = {1, 2, 3, 5, 4};

// A list with so many verbs in each section. The fields of a verb name its class and number.
Fields listOf(const std::array<int, 5>& counts)
{
    Fields fields;
    for (std::size_t section = 0; section < counts.size(); ++section) {
        fields.insert(fields.end(), section == 0 ? 1 : 2, "heading");
        fields.push_back(std::to_string(counts.at(section)));
        for (int number = 1; number <= counts.at(section); ++number)
            for (const char* const field : {"pre:s", "su:p", "pe:rf", "be", "was", "been", "being"})
                fields.push_back(std::to_string(ClassOfSection.at(section)) + std::to_string(number) + field);
    }
    return fields;
}

std::string joined(const Fields& fields, std::size_t count, const std::string& separator)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += fields.at(i) + separator;
    return text;
}

std::array<int, 5> countsByClass()
{
    std::array<int, 5> counts{};
    std::copy(verbList.Count.begin() + 1, verbList.Count.end(), counts.begin());
    return counts;
}

void expectVerb(int verbClass, int number)
{
    const std::string n = std::to_string(verbClass) + std::to_string(number);
    const verbs::VerbRecord expected = {
        n + "pres", n + "perf", n + "sup", {n + "be", n + "was", n + "been", n + "being"}};
    EXPECT_EQ(verbs::verbAt(verbClass, number), expected) << n;
}

// Every verb that is counted stands in the list whole. Returns how many there are.
int expectEveryVerb()
{
    int counted = 0;
    for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
        for (int number = 1; number <= verbList.Count[verbClass]; ++number, ++counted)
            expectVerb(verbClass, number);
    return counted;
}

class VerbListFile : public tests::FreshState {
protected:
    bool read(std::string_view bytes)
    {
        tests::writeFile("verbs.cfg", bytes);
        return verbs::readVerbList("verbs.cfg");
    }
};

TEST_F(VerbListFile, HoldsFifteenVerbsOfEachClassInTheSamples)
{
    tests::copySample("verbs.cfg");
    EXPECT_TRUE(verbs::readVerbList("verbs.cfg"));
    EXPECT_EQ(countsByClass(), (std::array<int, 5>{15, 15, 15, 15, 15}));
    EXPECT_EQ(verbList.SupineStem[verbs::FirstConjugation][1], "amat");
}

TEST_F(VerbListFile, IsReadSectionBySectionWhateverEndsTheFields)
{
    const Fields list = listOf({2, 1, 3, 2, 15});
    for (const std::string separator : {"\n", "\r\n", "\r", ",", " , ", "\t\n  "}) {
        verbList = {};
        EXPECT_TRUE(read("\xEF\xBB\xBF" + joined(list, list.size(), separator) + "never read"));
        EXPECT_EQ(countsByClass(), (std::array<int, 5>{2, 1, 3, 15, 2}));
        expectEveryVerb();
    }
}

TEST_F(VerbListFile, KeepsWhatWasReadBeforeAFault)
{
    const Fields list = listOf({2, 1, 2, 1, 2});
    for (std::size_t count = 0; count < list.size(); ++count) {
        verbList = {};
        EXPECT_FALSE(read(joined(list, count, "\n"))) << count;
        // A verb is whole once its last field is there.
        const auto whole = std::count_if(list.begin(), list.begin() + static_cast<std::ptrdiff_t>(count),
                                         [](const std::string& field) { return field.ends_with("being"); });
        EXPECT_EQ(expectEveryVerb(), whole) << count;
    }
}

TEST_F(VerbListFile, LosesNothingByAFaultWhenReadAgain)
{
    const Fields list = listOf({2, 1, 2, 2, 2});
    read(joined(list, list.size(), "\n"));
    for (std::size_t count = 0; count < list.size(); ++count) {
        tests::writeFile("verbs.cfg", joined(list, count, "\n"));
        EXPECT_FALSE(verbs::readVerbListAgain("verbs.cfg")) << count;
        EXPECT_EQ(countsByClass(), (std::array<int, 5>{2, 1, 2, 2, 2})) << count;
        expectEveryVerb();
    }
}

TEST_F(VerbListFile, MayHoldAnythingOrBeMissing)
{
    const std::string verb = "am,amat,amav,love,loved,loved,loving\n";
    std::string sixteen = "h\n16\n";
    for (int i = 0; i < 16; ++i)
        sixteen += verb;
    const std::string endless(5 << 20, 'x');
    const std::string marks(3 << 20, ':');
    // clang-format off
    const std::vector<std::pair<std::string, int>> cases = {
        {"", 0},                 {"\n\n\n", 0},             {"h,0\n", 0},         {"h,x\n" + verb, 0},
        {"h,-1\n" + verb, 0},    {"h,32768\n" + verb, 0},   {"h,1.5\n" + verb, 0}, {"h,32767\n" + verb, 1},
        {"h,2\n" + verb, 1},     {sixteen, 15},             {endless, 0},         {"h,1\n" + verb + endless, 1},
        {"h,1\n" + marks + verb, 1},
    };
    // clang-format on
    for (auto* const reader : {verbs::readVerbList, verbs::readVerbListAgain}) {
        for (const char* const path : {"none.cfg", ".", "no/such/folder/verbs.cfg", ""})
            EXPECT_FALSE(reader(path)) << path;
        for (const auto& [bytes, count] : cases) {
            verbList = {};
            tests::writeFile("verbs.cfg", bytes);
            EXPECT_FALSE(reader("verbs.cfg")) << bytes.substr(0, 20);
            EXPECT_EQ(countsByClass(), (std::array<int, 5>{count, 0, 0, 0, 0})) << bytes.substr(0, 20);
        }
        for (unsigned seed = 1; seed <= 50; ++seed) {
            std::mt19937 noise(seed);
            std::string bytes = "h,9\n";
            std::generate_n(std::back_inserter(bytes), 5000, [&] { return static_cast<char>(noise()); });
            tests::writeFile("verbs.cfg", bytes);
            reader("verbs.cfg");
            for (const int count : countsByClass())
                EXPECT_TRUE(count >= 0 && count <= verbs::MostVerbs) << seed;
        }
    }
}

TEST_F(VerbListFile, HoldsQuotedFieldsAndOldCodePages)
{
    read("\"First, a:ma:re\",1\n\"am\",ama:t , \"ama:v\",\" love, like\",gr\xE4"
         "be,\x93liked\x94,\"\"\n");
    const verbs::VerbRecord expected = {"am", "amav", "amat", {" love, like", "gräbe", "“liked”", ""}};
    EXPECT_EQ(verbs::verbAt(1, 1), expected);
    read("h,1\nam,amat,amav,grübe,ü,ß,\n");
    EXPECT_EQ(verbList.BaseForm[1][0], "grübe");
}

TEST_F(VerbListFile, SwapsTwoCountsWhenReadAgain)
{
    const Fields list = listOf({1, 1, 1, 2, 3});
    EXPECT_TRUE(read(joined(list, list.size(), "\n")));
    EXPECT_EQ(countsByClass(), (std::array<int, 5>{1, 1, 1, 3, 2}));
    EXPECT_TRUE(verbs::readVerbListAgain("verbs.cfg"));
    EXPECT_EQ(countsByClass(), (std::array<int, 5>{1, 1, 1, 2, 3}));
    expectVerb(verbs::ThirdIoConjugation, 2);
    expectVerb(verbs::FourthConjugation, 3);
    EXPECT_EQ(verbList.PresentStem[verbs::ThirdIoConjugation][3], "");
}

TEST_F(VerbListFile, LosesTheMarksOfItsStemsUnlessTheyAreShown)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"du:c", "duc"}, {"a::b", "a:b"},         {"a:::b", "a:b"}, {"::", ":"},
        {":", ""},       {"ama:ve:r:", "amaver"}, {"", ""}};
    for (const auto& [stem, stripped] : cases) {
        const std::string bytes = "h,1\n" + stem + "," + stem + "," + stem + ",a:b,a:b,a:b,a:b\n";
        for (const auto& [shown, kept] : {std::pair{0, stripped}, {1, stripped}, {-1, stem}}) {
            settings.ShowVowelLength = static_cast<platform::Flag>(shown);
            read(bytes);
            EXPECT_EQ(verbs::verbAt(1, 1),
                      (verbs::VerbRecord{kept, kept, kept, {"a:b", "a:b", "a:b", "a:b"}}));
        }
    }
}

TEST_F(VerbListFile, IsFollowedByTheEditsOfTheLearner)
{
    using verbs::VerbEdit;
    const Fields list = listOf({2, 14, 0, 0, 0});
    read(joined(list, list.size(), "\n"));
    const verbs::VerbRecord leads = {"du:c", "du:x", "duct", {"lead", "led", "led", "leading"}};
    EXPECT_EQ(verbs::editVerb(1, 2, leads), VerbEdit::Stored); // in place of the second verb
    EXPECT_EQ(verbs::editVerb(2, 15, leads), VerbEdit::Stored);
    EXPECT_EQ(verbs::editVerb(2, 16, leads), VerbEdit::ListFull);
    EXPECT_EQ(verbs::editVerb(3, 1, {"", "x", "x", {}}), VerbEdit::NoPresentStem);
    EXPECT_EQ(countsByClass(), (std::array<int, 5>{2, 15, 0, 0, 0}));
    EXPECT_EQ(verbs::listedInfinitive(2, 15), "ducere");

    settings.ShowVowelLength = platform::FlagTrue;
    EXPECT_TRUE(verbs::readVerbListAgain("verbs.cfg"));
    EXPECT_EQ(countsByClass(), (std::array<int, 5>{2, 14, 0, 0, 0}));
    verbs::repeatVerbEdits();
    EXPECT_EQ(countsByClass(), (std::array<int, 5>{2, 15, 0, 0, 0}));
    EXPECT_EQ(verbs::verbAt(1, 2), leads);
    EXPECT_EQ(verbs::verbAt(2, 15), leads);
}

TEST_F(VerbListFile, GivesItsMarksBackOnlyToStemsEditedWithoutThem)
{
    const Fields list = {"h", "1", "a:m", "ama:t", "ama:v", "", "", "", ""};
    read(joined(list, list.size(), "\n"));
    for (const auto& [shown, perfect] : {std::pair<platform::Flag, std::string>{platform::FlagFalse, "ama:v"},
                                         {platform::FlagTrue, "amav"}}) {
        settings.ShowVowelLength = shown;
        verbs::editVerb(1, 1, {"am", "amav", "amat", {"like", "", "", ""}});
        settings.ShowVowelLength = platform::FlagTrue;
        EXPECT_FALSE(verbs::readVerbListAgain("verbs.cfg"));
        verbs::repeatVerbEdits();
        EXPECT_EQ(verbs::verbAt(1, 1).perfectStem, perfect);
        EXPECT_EQ(verbs::verbAt(1, 1).translations.front(), "like");
    }
}

TEST_F(VerbListFile, LeavesItsCountsToEditsOfVerbsThatItHas)
{
    const Fields list = listOf({1, 1, 1, 3, 2});
    read(joined(list, list.size(), "\n"));
    verbs::editVerb(verbs::FourthConjugation, 3, {"x", "", "", {}});
    EXPECT_TRUE(verbs::readVerbListAgain("verbs.cfg"));
    const auto counts = countsByClass();
    verbs::repeatVerbEdits();
    EXPECT_EQ(countsByClass(), counts);
}

} // namespace
