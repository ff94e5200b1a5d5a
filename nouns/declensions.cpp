#include "nouns/declensions.h"

#include "nouns/fixed_nouns.h"
#include "nouns/noun_endings.h"
#include "nouns/noun_forms.h"
#include "nouns/noun_headings.h"
#include "nouns/noun_tables.h"
#include "platform/random.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"

#include <algorithm>
#include <optional>

namespace nouns {

using shell::settings;

namespace {

// The mixed nouns and the i-stem among the third declension's: no learner is asked them.
constexpr int FirstNeverDrawn = 6;
constexpr int LastNeverDrawn = 9;

constexpr int EnglishColumn = 1;

// The caption of a listed noun: its stem, the nominative ending with a blank, its note, and its meaning.
struct ListedCaption {
    NounParadigm paradigm;
    std::string_view ending;

    /// What stands where the meaning belongs, in place of it.
    std::optional<std::string_view> insteadOfMeaning;
};

// clang-format off
constexpr ListedCaption FirstCaption        = {FirstDeclension,        "a ",  {}};
constexpr ListedCaption SecondUsCaption     = {SecondDeclensionUs,     "us ", {}};
constexpr ListedCaption SecondErCaption     = {SecondDeclensionEr,     "er ", {}};
constexpr ListedCaption SecondNeuterCaption = {SecondDeclensionNeuter, "um ", " + EnglNTrans4(X)"}; // sic
constexpr ListedCaption ThirdCaption        = {ThirdDeclension,        "",    {}};
constexpr ListedCaption ThirdNeuterCaption  = {ThirdDeclensionNeuter,  "",    {}};
// clang-format on

const shell::LanguageTexts& namesOf(int paradigm)
{
    return DeclensionNames.at(static_cast<std::size_t>(paradigm - 1)).texts;
}

void setHeading(int paradigm, const shell::LanguageTexts& texts)
{
    if (const auto text = texts.in(settings.CurrentLanguage))
        nounTables.DeclensionHeading[paradigm] = *text;
}

// All strings are built in place: they keep their memory from noun to noun.
void setMarked(std::string& text, std::string_view tableText)
{
    text.clear();
    shell::appendMarked(text, tableText, settings.VowelMark);
}

void buildCaption(std::string& caption, const ListedCaption& row, int number)
{
    caption.assign(nounList.NounListStem[row.paradigm][number - 1])
        .append(row.ending)
        .append(" (")
        .append(nounList.NounListNote[row.paradigm][number])
        .append(") = ");
    if (row.insteadOfMeaning)
        caption.append(*row.insteadOfMeaning);
    else
        caption.append(nounList.NounListMeaning[EnglishColumn][row.paradigm][number]);
}

void buildCaptionList(const ListedCaption& row)
{
    const shell::LanguageTexts& names = namesOf(row.paradigm);
    if (names.in(settings.CurrentLanguage) != names.english)
        return;
    for (int number = 1; number <= nounList.NounCount[row.paradigm]; ++number)
        buildCaption(nounTables.NounCaptionList[row.paradigm][number], row, number);
}

int drawNumber(int count)
{
    return platform::draw(count) + 1;
}

// Numbers 1 to 5 always fit: a list that reaches past 5 has them all.
int drawThirdDeclension()
{
    const int count = nounList.NounCount[ThirdDeclension];
    int number = drawNumber(count);
    while (FirstNeverDrawn <= number && number <= LastNeverDrawn)
        number = drawNumber(count);
    return number;
}

void setEndings(int paradigm, int number)
{
    for (int inCase = NominativeSingular; inCase <= CaseCount; ++inCase)
        setMarked(nounTables.NounEndings[paradigm][inCase], endingOf(paradigm, number, inCase));
}

void setErEndings(int numberOfUs)
{
    for (int inCase = NominativeSingular; inCase <= CaseCount; ++inCase)
        setMarked(nounTables.NounEndings[SecondDeclensionEr][inCase],
                  endingOnPage(SecondDeclensionEr, inCase));
    if (numberOfUs > ErInfixCount)
        return;
    const std::string& infix = nounTables.ErInfix[numberOfUs - 1]; // sic: by the noun in -us
    for (int inCase = GenitiveSingular; inCase <= AblativePlural; ++inCase)
        nounTables.NounEndings[SecondDeclensionEr][inCase].insert(0, infix);
}

void takeListedNoun(int paradigm, int number)
{
    nounTables.NounStem[paradigm] = nounList.NounListStem[paradigm][number - 1];
    nounTables.NounCaption[paradigm] = nounTables.NounCaptionList[paradigm][number];
}

// Past the ten stems of the list there is none, as everywhere in the neuter.
void takeObliqueStem(int paradigm, int number)
{
    const auto& stems = nounList.NounListObliqueStem[paradigm];
    if (number <= stems.size())
        nounTables.NounObliqueStem[paradigm] = stems[number - 1];
    else
        nounTables.NounObliqueStem[paradigm].clear();
}

const std::string& stemOf(int paradigm, int inCase)
{
    return hasObliqueStem(paradigm, inCase) ? nounTables.NounObliqueStem[paradigm]
                                            : nounTables.NounStem[paradigm];
}

void buildForms(int paradigm)
{
    for (int inCase = NominativeSingular; inCase <= CaseCount; ++inCase)
        nounTables.NounForms[paradigm][inCase]
            .assign(stemOf(paradigm, inCase))
            .append(nounTables.NounEndings[paradigm][inCase]);
}

// The first and second declensions seed the draws anew, the others draw on.
int takeNounOf(const ListedCaption& caption)
{
    setHeading(caption.paradigm, namesOf(caption.paradigm));
    buildCaptionList(caption);
    platform::seedFromClock();
    const int number = drawNumber(nounList.NounCount[caption.paradigm]);
    takeListedNoun(caption.paradigm, number);
    return number;
}

void buildFirst()
{
    const int number = takeNounOf(FirstCaption);
    setEndings(FirstDeclension, number);
    buildForms(FirstDeclension);
}

void buildSecond()
{
    const int numberOfUs = takeNounOf(SecondUsCaption);
    setEndings(SecondDeclensionUs, numberOfUs);
    setErEndings(numberOfUs);
    buildForms(SecondDeclensionUs);
    takeNounOf(SecondErCaption);
    buildForms(SecondDeclensionEr);
    setEndings(SecondDeclensionNeuter, takeNounOf(SecondNeuterCaption));
    buildForms(SecondDeclensionNeuter);
}

void takeThird(int paradigm, int number)
{
    takeListedNoun(paradigm, number);
    takeObliqueStem(paradigm, number);
    setEndings(paradigm, number);
    buildForms(paradigm);
}

void buildThirdNeuter()
{
    setHeading(ThirdDeclensionNeuter, namesOf(ThirdDeclensionNeuter));
    buildCaptionList(ThirdNeuterCaption);
    const int number = drawNumber(nounList.NounCount[ThirdDeclensionNeuter]);
    takeThird(ThirdDeclensionNeuter, number);
    if (NeuterIStems.hold(ThirdDeclensionNeuter, number))
        nounTables.DeclensionHeading[ThirdDeclensionNeuter] = NeuterIStemDeclension;
}

void buildFixedCaptions(int paradigm, const FixedNouns& fixed)
{
    int number = 1;
    for (const FixedNoun& noun : fixed.nouns) {
        std::string& caption = nounTables.NounCaptionList[paradigm][number++];
        const auto meaning = noun.meaning.in(settings.CurrentLanguage);
        if (!meaning)
            continue;
        setMarked(caption, noun.stem);
        caption.append(fixed.captionEnding).append(genderNote(noun));
        if (!meaning->empty())
            caption.append(" = ").append(*meaning);
    }
}

void takeFixedNoun(int paradigm, const FixedNouns& fixed, int number)
{
    const auto index = static_cast<std::size_t>(number - 1);
    setMarked(nounTables.NounStem[paradigm], index < fixed.nouns.size() ? fixed.nouns[index].stem : "");
    nounTables.NounCaption[paradigm] = nounTables.NounCaptionList[paradigm][number];
    setEndings(paradigm, number);
    buildForms(paradigm);
}

void buildFixed(int paradigm)
{
    const FixedNouns fixed = fixedNounsOf(paradigm);
    setHeading(paradigm, namesOf(paradigm));
    buildFixedCaptions(paradigm, fixed);
    const int count = std::min<int>(nounList.NounCount[paradigm], fixed.slots);
    int number = drawNumber(count);
    if (paradigm == FifthDeclension)
        number = drawNumber(count); // sic: the second of two draws counts
    takeFixedNoun(paradigm, fixed, number);
}

} // namespace

void buildThirdDeclension(int number)
{
    setHeading(ThirdDeclension, namesOf(ThirdDeclension));
    if (MixedNouns.hold(ThirdDeclension, number))
        setHeading(ThirdDeclension, MixedDeclension);
    if (IStems.hold(ThirdDeclension, number))
        setHeading(ThirdDeclension, IStemDeclension);
    buildCaptionList(ThirdCaption);
    takeThird(ThirdDeclension, number);
}

void BuildNounParadigms()
{
    shell::setVowelMarkWhereShown();
    buildFirst();
    buildSecond();
    buildThirdDeclension(drawThirdDeclension());
    buildThirdNeuter();
    buildFixed(FourthDeclension);
    buildFixed(FourthDeclensionNeuter);
    buildFixed(FifthDeclension);
}

} // namespace nouns
