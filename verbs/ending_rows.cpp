#include "verbs/ending_rows.h"

#include "platform/random.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "verbs/verb_list.h"
#include "verbs/verb_tables.h"

namespace verbs {

namespace {

std::string_view stemFor(Stem stem, const VerbStems& stems)
{
    switch (stem) {
    case Stem::Present:
        return stems.present;
    case Stem::Perfect:
        return stems.perfect;
    case Stem::Supine:
        return stems.supine;
    case Stem::None:
        break;
    }
    return {};
}

// The form's own string is built in place: it keeps its memory from verb to verb.
void buildForm(std::string& form, std::string_view stem, std::string_view ending, std::string_view mark)
{
    form.clear();
    if (ending.empty())
        return;
    form += stem;
    shell::appendMarked(form, ending, mark);
}

} // namespace

void buildForms(VerbClass verbClass, const VerbStems& stems, std::span<const EndingRow> rows)
{
    auto& column = verbTables.Forms[verbClass];
    for (const EndingRow& row : rows) {
        const std::string_view stem = stemFor(row.stem, stems);
        int form = formNumber(row.block, FirstSingular);
        for (const std::string_view ending : row.endings)
            buildForm(column[form++], stem, ending, shell::settings.VowelMark);
    }
}

int drawVerb(VerbClass verbClass)
{
    return platform::draw(verbList.Count[verbClass]) + 1;
}

void takeVerb(VerbClass verbClass, int number, std::string_view infinitiveEnding)
{
    const std::string& present = verbList.PresentStem[verbClass][number];
    verbTables.WorkingStems[PresentStemIndex + verbClass] = present;
    verbTables.WorkingStems[SupineStemIndex + verbClass] = verbList.SupineStem[verbClass][number];

    std::string& infinitive = verbTables.Infinitive[verbClass];
    infinitive = present;
    shell::appendMarked(infinitive, infinitiveEnding, shell::settings.VowelMark);

    const int place = number - 1;
    verbTables.BaseGloss[verbClass] = verbList.BaseForm[verbClass][place];
    verbTables.PastGloss[verbClass] = verbList.Past[verbClass][place];
    verbTables.ParticipleGloss[verbClass] = verbList.PastParticiple[verbClass][place];
    verbTables.PresentParticipleGloss[verbClass] = verbList.PresentParticiple[verbClass][place];
}

void takeGermanGloss(VerbClass verbClass, int number)
{
    if (shell::settings.CurrentLanguage == shell::language::German)
        verbTables.GermanGloss[verbClass - 1] = verbList.German[verbClass][number - 1];
}

VerbStems stemsOf(VerbClass verbClass, int number)
{
    return {verbList.PresentStem[verbClass][number], verbList.PerfectStem[verbClass][number],
            verbList.SupineStem[verbClass][number]};
}

void resetTense()
{
    if (currentParadigm.SingleTenseMode != 1)
        currentParadigm.TenseMoodCode = PresentIndicative;
}

} // namespace verbs
