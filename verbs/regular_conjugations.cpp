#include "platform/random.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "verbs/ending_rows.h"
#include "verbs/generators.h"
#include "verbs/verb_forms.h"
#include "verbs/verb_list.h"
#include "verbs/verb_tables.h"

#include <array>
#include <span>

namespace verbs {

namespace {

enum class Draw { Seeded, GoesOn };
enum class Gloss { German, None };

struct RegularClass {
    VerbClass verbClass;
    Draw draw;
    Gloss gloss;

    /// The class whose tenses are counted.
    VerbClass counted;

    /// What the verb with this number sets besides, once its forms are built and before its German
    /// translation is taken.
    void (*besides)(int number);
};

void setNothing(int /*number*/) {}

void noteVerb(int number)
{
    verbTables.SecondConjugationVerb = static_cast<std::int16_t>(number);
}

void shortenImperative(int number)
{
    const std::string& stem = verbList.PresentStem[ThirdConjugation][number];
    if (hasBareImperative(ThirdConjugation, stem))
        verbTables.Forms[ThirdConjugation][formNumber(Imperative, SecondSingular)] = stem;
}

// The fourth verb of the list has this German translation, whichever verb it is.
void correctGermanList(int /*number*/)
{
    constexpr int fourthVerb = 3;
    verbList.German[FourthConjugation][fourthVerb] = "gräbe"; // sic
}

// clang-format off
// In the order in which their verbs are drawn.
constexpr std::array<RegularClass, LastRegularClass> Classes = {{
    //                   draw          gloss          counted            besides
    {FirstConjugation,   Draw::Seeded, Gloss::None,   FirstConjugation,  setNothing},
    {SecondConjugation,  Draw::Seeded, Gloss::German, SecondConjugation, noteVerb},
    {ThirdConjugation,   Draw::Seeded, Gloss::German, ThirdConjugation,  shortenImperative},
    {ThirdIoConjugation, Draw::GoesOn, Gloss::German, FourthConjugation, setNothing}, // sic
    {FourthConjugation,  Draw::GoesOn, Gloss::German, FourthConjugation, correctGermanList},
}};
// clang-format on

constexpr std::size_t FirstTwo = 2;

static_assert(Classes[FirstTwo].verbClass == ThirdConjugation);
static_assert(Classes.back().verbClass == FourthConjugation);

// What a class takes over from the verb drawn: the working stems, the infinitive and the translations.
void takeVerb(const RegularClass& row, int number)
{
    const VerbClass verbClass = row.verbClass;
    const std::string& present = verbList.PresentStem[verbClass][number];
    verbTables.WorkingStems[PresentStemIndex + verbClass] = present;
    verbTables.WorkingStems[SupineStemIndex + verbClass] = verbList.SupineStem[verbClass][number];

    std::string& infinitive = verbTables.Infinitive[verbClass];
    infinitive = present;
    shell::appendMarked(infinitive, pageOf(verbClass).infinitive, shell::settings.VowelMark);

    const int place = number - 1;
    verbTables.BaseGloss[verbClass] = verbList.BaseForm[verbClass][place];
    verbTables.PastGloss[verbClass] = verbList.Past[verbClass][place];
    verbTables.ParticipleGloss[verbClass] = verbList.PastParticiple[verbClass][place];
    verbTables.PresentParticipleGloss[verbClass] = verbList.PresentParticiple[verbClass][place];
}

void buildClassForms(VerbClass verbClass, int number)
{
    buildForms(verbClass, {verbList.PresentStem[verbClass][number], verbList.PerfectStem[verbClass][number],
                           verbList.SupineStem[verbClass][number]});
}

// A class without verbs is drawn as number 1.
void buildClass(const RegularClass& row)
{
    if (row.draw == Draw::Seeded)
        platform::seedFromClock();
    const int number = platform::draw(verbList.Count[row.verbClass]) + 1;
    takeVerb(row, number);
    buildClassForms(row.verbClass, number);
    row.besides(number);
    if (row.gloss == Gloss::German && shell::settings.CurrentLanguage == shell::language::German)
        verbTables.GermanGloss[row.verbClass - 1] = verbList.German[row.verbClass][number - 1];
    verbTables.TenseCount[row.counted] = BlockCount;
}

void buildClasses(std::span<const RegularClass> classes)
{
    shell::setVowelMarkWhereShown();
    for (const RegularClass& row : classes)
        buildClass(row);
}

} // namespace

void resetTense()
{
    if (currentParadigm.SingleTenseMode != 1)
        currentParadigm.TenseMoodCode = PresentIndicative;
}

void buildFirstAndSecondConjugations()
{
    resetTense();
    buildClasses(std::span(Classes).first(FirstTwo));
}

void buildThirdAndFourthConjugations()
{
    buildClasses(std::span(Classes).subspan(FirstTwo));
}

} // namespace verbs
