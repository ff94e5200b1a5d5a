#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbs/verb_edits.h"
#include "verbs/verb_list_file.h"

#include <algorithm>
#include <vector>

namespace {

using shell::settings;
using verbs::verbList;

using VerbListFile = tests::FreshState;
using Fields = std::vector<std::string>;
using Counts = std::array<int, 5>;

// The classes in the order of the file's sections: the -io verbs before the fourth conjugation.
constexpr Counts ClassOfSection = {1, 2, 3, 5, 4};

// A list with so many verbs in each section. The fields of a verb name its class and number.
Fields listOf(const Counts& counts)
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

// Writes and reads the first fields of a list.
bool read(const Fields& fields, std::size_t count, const std::string& separator = "\n")
{
    std::string text = "\xEF\xBB\xBF";
    for (std::size_t i = 0; i < count; ++i)
        text += fields.at(i) + separator;
    tests::writeFile("verbs.cfg", text + (count == fields.size() ? "never read" : ""));
    return verbs::readVerbList("verbs.cfg");
}

bool read(const Fields& fields)
{
    return read(fields, fields.size());
}

Counts countsByClass()
{
    Counts counts{};
    std::copy(verbList.Count.begin() + 1, verbList.Count.end(), counts.begin());
    return counts;
}

// Every verb that is counted stands in the list whole. Returns how many there are.
int expectEveryVerb()
{
    int counted = 0;
    for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
        for (int number = 1; number <= verbList.Count[verbClass]; ++number, ++counted) {
            const std::string n = std::to_string(verbClass) + std::to_string(number);
            const verbs::VerbRecord expected = {
                n + "pres", n + "perf", n + "sup", {n + "be", n + "was", n + "been", n + "being"}};
            EXPECT_EQ(verbs::verbAt(verbClass, number), expected) << n;
        }
    return counted;
}

TEST_F(VerbListFile, IsReadSectionBySectionWhateverEndsTheFields)
{
    const Fields list = listOf({2, 1, 3, 2, 15});
    for (const char* const separator : {"\n", "\r\n", "\r", ",", " , ", "\t\n  "}) {
        verbList = {};
        EXPECT_TRUE(read(list, list.size(), separator));
        EXPECT_EQ(countsByClass(), (Counts{2, 1, 3, 15, 2}));
        expectEveryVerb();
    }
}

TEST_F(VerbListFile, KeepsWhatWasReadBeforeAFaultAndWhatItHadBefore)
{
    const Fields list = listOf({2, 1, 2, 2, 2});
    int whole = 0;
    for (std::size_t count = 0; count < list.size(); ++count) {
        // A verb is whole once its last field is there.
        if (count > 0 && list[count - 1].ends_with("being"))
            ++whole;
        verbList = {};
        EXPECT_FALSE(read(list, count)) << count;
        EXPECT_EQ(expectEveryVerb(), whole) << count;
        read(list);
        EXPECT_FALSE(read(list, count) || verbs::readVerbListAgain("verbs.cfg")) << count;
        EXPECT_EQ(countsByClass(), (Counts{2, 1, 2, 2, 2})) << count;
        expectEveryVerb();
    }
    EXPECT_FALSE(verbs::readVerbList("none.cfg"));
}

TEST_F(VerbListFile, StopsAtACountThatCannotBe)
{
    Fields list = listOf({16, 0, 0, 0, 0});
    for (const auto& [count, counted] : {std::pair{"16", 15}, {"32767", 15}, {"-1", 0}, {"x", 0}}) {
        verbList = {};
        list.at(1) = count;
        EXPECT_FALSE(read(list)) << count;
        EXPECT_EQ(expectEveryVerb(), counted) << count;
    }
}

TEST_F(VerbListFile, SwapsTwoCountsWhenReadAgain)
{
    EXPECT_TRUE(read(listOf({1, 1, 1, 2, 3})));
    EXPECT_EQ(countsByClass(), (Counts{1, 1, 1, 3, 2}));
    EXPECT_TRUE(verbs::readVerbListAgain("verbs.cfg"));
    EXPECT_EQ(countsByClass(), (Counts{1, 1, 1, 2, 3}));
    EXPECT_EQ(verbs::verbAt(verbs::FourthConjugation, 3).presentStem, "43pres");
    EXPECT_EQ(verbs::verbAt(verbs::ThirdIoConjugation, 3).presentStem, "");
}

TEST_F(VerbListFile, IsFollowedByTheEditsOfTheLearner)
{
    using verbs::VerbEdit;
    read(listOf({2, 14, 0, 0, 0}));
    settings.ShowVowelLength = platform::FlagTrue;
    const verbs::VerbRecord leads = {"du:c", "du:x", "duct", {"lead", "led", "led", "leading"}};
    EXPECT_EQ(verbs::editVerb(1, 2, leads), VerbEdit::Stored); // in place of the second verb
    EXPECT_EQ(verbs::editVerb(2, 15, leads), VerbEdit::Stored);
    EXPECT_EQ(verbs::editVerb(2, 16, leads), VerbEdit::ListFull);
    EXPECT_EQ(verbs::editVerb(3, 1, {"", "x", "x", {}}), VerbEdit::NoPresentStem);
    EXPECT_EQ(verbs::listedInfinitive(2, 15), "du:cere");

    EXPECT_TRUE(verbs::readVerbListAgain("verbs.cfg"));
    EXPECT_EQ(countsByClass(), (Counts{2, 14, 0, 0, 0}));
    verbs::repeatVerbEdits();
    EXPECT_EQ(countsByClass(), (Counts{2, 15, 0, 0, 0}));
    EXPECT_EQ(verbs::verbAt(1, 2), leads);
    EXPECT_EQ(verbs::verbAt(2, 15), leads);
}

TEST_F(VerbListFile, GivesItsMarksBackOnlyToStemsEditedWithoutThem)
{
    read({"h", "1", "a:m", "ama:t", "ama:v", "", "", "", ""});
    for (const auto& [shown, perfect] :
         {std::pair{platform::FlagFalse, "ama:v"}, {platform::FlagTrue, "amav"}}) {
        settings.ShowVowelLength = shown;
        verbs::editVerb(1, 1, {"am", "amav", "amat", {"like", "", "", ""}});
        settings.ShowVowelLength = platform::FlagTrue;
        EXPECT_FALSE(verbs::readVerbListAgain("verbs.cfg"));
        verbs::repeatVerbEdits();
        EXPECT_EQ(verbs::verbAt(1, 1).perfectStem, perfect);
        EXPECT_EQ(verbs::verbAt(1, 1).translations.front(), "like");
    }
}

} // namespace
