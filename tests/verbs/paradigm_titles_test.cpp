#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbs/paradigm.h"
#include "verbs/paradigm_titles.h"
#include "verbs/verb_tables.h"

#include <tuple>
#include <vector>

namespace {

using verbs::currentParadigm;
using verbs::verbTables;

class ParadigmTitles : public tests::FreshState {
protected:
    static void setTitles(const std::string& language, int verbClass, int tense)
    {
        shell::settings.CurrentLanguage = language;
        currentParadigm.ConjugationCode = static_cast<std::int16_t>(verbClass);
        currentParadigm.TenseMoodCode = static_cast<std::int16_t>(tense);
        verbs::setParadigmTitles();
    }
};

TEST_F(ParadigmTitles, NameClassAndTenseInTheLanguageOfTheInterface)
{
    // clang-format off
    const std::vector<std::tuple<std::string, int, std::string, int, std::string>> cases = {
        {"English", 1, "First Conjugation",              12, "Passive Present"},
        {"Italian", 5, "Third Conjugation (-io)",        21, "Passive Pluperfect Subjunctive"},
        {"German",  6, "Velle (wollen)",                  1, "Präsens Indikativ"}, // meant: velle's title for esse
        {"German",  7, "Esse (sein)",                     6, "Futur Perfekt Indikativ"},
        {"Spanish", 5, "Cuarta Conjugatión mixta (-io)",  8, "Imperfecto de subjuntivo"},
        {"Latin",   4, "Conjugatio IV",                  10, "Plusquam Perfectum Subjunctivum"},
        {"Latin",   5, "Conjugatio III (-io)",           21, "Passivum Plusquamperfectum Subjunctivum"},
        {"Latin",   8, "",                               11, "Imperativus Modus"},
        {"latin",   1, "",                                1, ""},
    };
    // clang-format on
    for (const auto& [language, verbClass, classTitle, tense, tenseTitle] : cases) {
        verbTables = {};
        setTitles(language, verbClass, tense);
        EXPECT_EQ(verbTables.ClassTitles[verbClass], classTitle) << language;
        EXPECT_EQ(currentParadigm.TenseLabel, tenseTitle) << language;
        const bool irregular = verbClass == verbs::Esse || verbClass == verbs::Velle;
        EXPECT_EQ(currentParadigm.WindowTitle, irregular ? "" : classTitle);
        if (irregular) {
            EXPECT_EQ(currentParadigm.VerbLabel, verbClass == verbs::Esse ? "Esse" : "Velle");
        }
    }
}

TEST_F(ParadigmTitles, StayWhereTheLanguageIsUnknownOrTheClassHasNone)
{
    setTitles("German", 3, 4);
    setTitles("Deutsch", 3, 4);
    EXPECT_EQ(currentParadigm.WindowTitle, "3. Konjugation");
    EXPECT_EQ(currentParadigm.TenseLabel, "Perfekt Indikativ");
    for (const int none : {0, 8, 10}) {
        setTitles("Spanish", none, 22); // past the last tense
        EXPECT_EQ(currentParadigm.TenseLabel, "");
        EXPECT_EQ(verbTables.ClassTitles[none], "");
    }
    EXPECT_EQ(verbTables.ClassTitles[3], "3. Konjugation")
        << "only the title of the current class is written";
    EXPECT_THROW(setTitles("English", 11, 1), std::out_of_range);
    EXPECT_THROW(setTitles("English", 1, 51), std::out_of_range);
}

TEST_F(ParadigmTitles, JoinWithThePersonLabels)
{
    const std::vector<std::string> english = {"", "I", "you", "he, she, it", "we", "all of you", "they"};
    const std::vector<std::string> german = {"", "ich", "du", "er/ sie/ es", "wir", "ihr", "sie"};
    for (const std::string language :
         {"English", "French", "Italian", "German", "Spanish", "Latin", "german"}) {
        shell::settings.CurrentLanguage = language;
        verbs::setPersonLabels();
        const auto& expected = language == "German" ? german : english;
        EXPECT_TRUE(std::equal(expected.begin(), expected.end(), verbTables.PersonLabels.begin()))
            << language;
    }
    verbTables.Infinitive[verbs::Esse] = "esse";
    setTitles("English", verbs::Esse, 1);
    verbs::setPersonLabels();
    EXPECT_EQ(currentParadigm.TenseLabel, "VellePresent Indicative"); // meant: no blank, and velle's title
    EXPECT_EQ(currentParadigm.VerbLabel, "esse");
}

} // namespace
