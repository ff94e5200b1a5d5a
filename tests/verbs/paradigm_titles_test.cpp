#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbs/paradigm.h"
#include "verbs/paradigm_titles.h"
#include "verbs/verb_tables.h"

namespace {

using ParadigmTitles = tests::FreshState;
using verbs::currentParadigm;

TEST_F(ParadigmTitles, StayWhereTheLanguageIsUnknownAndTakeEsseForVelle)
{
    currentParadigm.TenseMoodCode = verbs::BlockCount;
    for (const std::string language : {"German", "Deutsch"})
        for (const auto& [verbClass, title, label] : {std::tuple{5, "3. Konjugation (-io)", ""},
                                                      {6, "Velle (wollen)", "Esse"},  // sic
                                                      {7, "Esse (sein)", "Velle"}}) { // sic
            shell::settings.CurrentLanguage = language;
            currentParadigm.ConjugationCode = static_cast<std::int16_t>(verbClass);
            currentParadigm.VerbLabel.clear();
            verbs::setParadigmTitles();
            EXPECT_EQ(verbs::verbTables.ClassTitles[verbClass], title);
            EXPECT_EQ(currentParadigm.WindowTitle, verbClass == 5 ? title : "");
            EXPECT_EQ(currentParadigm.VerbLabel, label);
            EXPECT_EQ(currentParadigm.TenseLabel, "Passiv Plusquamperfekt Konjunktiv");
        }
}

} // namespace
