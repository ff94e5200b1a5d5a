#include "nouns/declensions.h"
#include "nouns/noun_edits.h"
#include "nouns/noun_list_file.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "tables/form_index.h"
#include "tables/word_forms.h"
#include "tests/nouns/declension_pages.h"
#include "tests/nouns/pronoun_pages.h"
#include "tests/support/fresh_state.h"
#include "tests/verbs/paradigm_pages.h"
#include "verbdrills/conjugation_choice.h"
#include "verbs/verb_edits.h"
#include "verbs/verb_list_file.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <set>
#include <sstream>

namespace {

using namespace tables;
using namespace nouns;
using namespace verbs;
using shell::settings;
using enum WordKind;

class Tables : public tests::FreshState {
protected:
    Tables()
    {
        for (const char* const list : {"verbs.cfg", "nouns.cfg"})
            tests::copySample(list);
        readSamples(platform::FlagFalse);
    }

    static void readSamples(platform::Flag marks)
    {
        settings.ShowVowelLength = marks;
        settings.VowelMark.clear();
        EXPECT_TRUE(readVerbList("verbs.cfg") && readNounList("nouns.cfg"));
        nounList.NounCount[FourthDeclension] = 5;
    }
};

std::vector<Word> allWords()
{
    std::vector<Word> words;
    for (const WordGroup& group : listedWords())
        words.insert(words.end(), group.words.begin(), group.words.end());
    return words;
}

// All forms with a blank between them, as a page has them.
std::string formsIn(const Word& word)
{
    std::string forms;
    for (const Cell& cell : tableOf(word))
        if (!cell.form.text.empty())
            forms += cell.form.text + " ";
    return forms;
}

TEST_F(Tables, ShowThePagesOfAGrammarWithAllMarksWhateverIsShown)
{
    for (const tests::Model& verb : tests::Models) {
        std::string page;
        for (int form = 0; form < FormCount; ++form)
            if (const auto text = tests::formOf(verb, form / 6 + 1, form % 6 + 1); !text.empty())
                page += text + " ";
        EXPECT_EQ(formsIn(*wordShownAs(Verb, verb.verbClass, verb.infinitive)), page);
    }
    for (const auto& [paradigm, forms, number] : tests::DeclensionPages) {
        std::string page;
        std::istringstream words(forms);
        for (std::string form; words >> form;)
            page += form + " ";
        EXPECT_EQ(formsIn(*wordShownAs(Noun, paradigm, page.substr(0, page.find(' ')))), page);
    }
    for (int group = 0; const auto& [heading, singular, plural] : tests::PronounPages) {
        std::string page;
        std::istringstream inSingular(singular), inPlural(plural);
        for (const int column : {0, 1, 2})
            for (auto* const number : {&inSingular, &inPlural})
                for (int inCase = group == 0 && column == 2 ? 1 : 0; inCase < CasesOfNumber; ++inCase)
                    page += *std::istream_iterator<std::string>(*number) + " ";
        EXPECT_EQ(formsIn({Pronoun, group++, 1}), page);
    }
}

TEST_F(Tables, TellTheEndingFromTheStem)
{
    // clang-format off
    for (const auto& [word, cell, stem, ending] : {
             std::tuple{Word{Verb, 1, 1}, 1, "am", "o:"}, {Word{Verb, 1, 1}, 85, "ama:t", "us -a -um sum"},
             {Word{Verb, 3, 2}, 62, "du:c", ""}, {Word{Verb, Esse, 1}, 8, "era:s", ""}, {Word{Verb, Ferre, 1}, 19, "tul", "i:"},
             {Word{Noun, 8, 1}, 1, "re:x", ""}, {Word{Noun, 8, 1}, 2, "re:g", "is"}, {Word{Noun, 9, 2}, 2, "", "is"},
             {Word{Noun, 5, 1}, 3, "fru:ct", "ui:"}, {Word{Pronoun, 3, 1}, 2, "illi:us", ""}}) {
        // clang-format on
        const Form form = tableOf(word).at(static_cast<std::size_t>(cell - 1)).form;
        EXPECT_EQ(std::string(form.stem()) + "|" + std::string(form.ending()),
                  stem + std::string("|") + ending);
    }
}

TEST_F(Tables, ListEveryWordByItsName)
{
    std::string names;
    for (const WordGroup& group : listedWords())
        names += group.title + ": " + listedName(group.words.back()) + " " +
                 std::to_string(group.words.size()) + "\n";
    EXPECT_EQ(
        names,
        "First Conjugation: iuvare 12\nSecond Conjugation: ridere 12\nThird Conjugation: defendere 12\n"
        "Third Conjugation (-io): conficere 12\nFourth Conjugation: vincire 12\nIrregular Verbs: ferre 3\n"
        "1st Declension (fem., puella -ae): agricola (m. -ae) 12\n"
        "2nd Declension (masc., hortus -i): ventus (m. -i) 10\n"
        "2nd Declension (masc., puer -i): arbiter (m. -ri) 10\n"
        "2nd Declension (neut. donum -i): ovum (n. -i) 15\n"
        "3rd Declension (fem./masc., sermo -onis): virtus (f. -utis) 10\n"
        "3rd Declension (neut., corpus-corporis): opus (n. -eris) 8\n"
        "4th Declension (fem./masc., fructus -us): versus (m) 5\n"
        "4th Declension (neut., cornu -us): genu (n) 2\n5th Declension (fem., res-rei): requies (f) 7\n"
        "Pronouns: qui-quae-quod (who/which) 5\n");
}

TEST_F(Tables, ShowWhatTheGeneratorsDraw)
{
    for (const platform::Flag marks : {platform::FlagFalse, platform::FlagTrue}) {
        readSamples(marks);
        for (const char* const stem : {"di:c", "indu:c", "a::b"})
            editVerb(ThirdConjugation, verbList.Count[ThirdConjugation] + 1, {stem, "x", "y", {}});
        const auto before = allWords();
        std::set<std::string> drawn;
        for (int draws = 0; draws < 300; ++draws) {
            verbdrills::generateParadigms();
            BuildNounParadigms();
            for (const Word& word : before) {
                const std::string name = asShown(nameOf(word)).text;
                const auto& drilled = word.kind == Verb ? verbTables.Forms[word.paradigm].begin() + 1
                                                        : nounTables.NounForms[word.paradigm].begin() + 1;
                if (word.kind == Pronoun ||
                    name != (word.kind == Verb ? verbTables.Infinitive[word.paradigm] : *drilled) ||
                    !drawn.insert(listedName(word) + name).second)
                    continue;
                for (int cell = 0; const auto& [form, grammars] : tableOf(word))
                    EXPECT_EQ(asShown(form).text, drilled[cell++]) << name;
            }
        }
        // The mixed nouns and the i-stem are never drawn.
        EXPECT_EQ(drawn.size(), before.size() - 5 - 4);
        forgetVerbEdits();
    }
}

// clang-format off
// Each word's forms that a grammar has otherwise.
const std::vector<std::tuple<WordKind, int, std::string, std::string>> Sic = {
    {Verb, 1, "ama:re",   "ama:ntur>amantur ame:ntur>amentur"},
    {Verb, 2, "mone:re",  ""},
    {Verb, 3, "regere",   "regi:mus>regimus regi:tis>regitis"},
    {Verb, 5, "capere",   "capia:ntur>capiantur"},
    {Verb, 4, "audi:re",  "audie:bat:is>audie:ba:tis audite>audi:te audi:mini>audi:mini: audia:ntur>audiantur"},
    {Verb, 4, "sci:re",   "scie:bat:is>scie:ba:tis sci:>sci:to: scite>sci:to:te sci:mini>sci:mini: scia:ntur>sciantur"},
    {Verb, 6, "esse",     ""},
    {Verb, 7, "velle",    ""},
    {Verb, 8, "ferre",    "ferebar>fere:bar fereba:ris>fere:ba:ris fereba:tur>fere:ba:tur fereba:mur>fere:ba:mur "
                          "fereba:mini:>fere:ba:mini: ferebantur>fere:bantur"},
    {Verb, 3, "addu:cere", "addu:ci:mus>addu:cimus addu:ci:tis>addu:citis addu:ce>addu:c"},
    {Noun, 1, "dea",      ""},
    {Noun, 3, "puer",     "puri:>pueri: puro:>puero: purum>puerum puro:>puero: puri:>pueri: puro:rum>puero:rum puri:s>pueri:s "
                          "puro:s>puero:s puri:s>pueri:s"},
    {Noun, 7, "re:s",     "re:i:>rei: re:i:>rei:"},
    {Noun, 7, "die:s",    ""},
    {Noun, 7, "requie:s", "requie:i:>requie:tis requie:i:>requie:ti:"},
    {Noun, 8, "turris",   ""},
    {Noun, 9, "no:men",   "is>no:minis i:>no:mini: e>no:mine a>no:mina um>no:minum ibus>no:minibus a>no:mina ibus>no:minibus"},
    {Noun, 9, "animal",   "is>anima:lis i:>anima:li: i:>anima:li: ia>anima:lia ium>anima:lium ibus>anima:libus ia>anima:lia "
                          "ibus>anima:libus"},
    {Pronoun, 1, "is-ea-id", ""},
};
// clang-format on

TEST_F(Tables, KnowWhereAGrammarHasAnotherForm)
{
    editVerb(ThirdConjugation, 13, {"addu:c", "addu:x", "adduct", {}});
    addNoun(SecondDeclensionEr, {.note = "m. -i", .stem = "pu", .obliqueStem = {}, .meanings = {}});
    for (const auto& [kind, paradigm, name, expected] : Sic) {
        std::string sics;
        for (const auto& [form, grammars] : tableOf(*wordShownAs(kind, paradigm, name)))
            if (grammars)
                sics += (sics.empty() ? "" : " ") + form.text + ">" + *grammars;
        EXPECT_EQ(sics, expected) << name;
    }
}

std::string found(const FormIndex& index, std::string_view typed)
{
    std::string readings;
    for (const Reading& reading : index.find(typed))
        readings += inWords(textsOf(reading)) + "\n";
    return readings;
}

TEST_F(Tables, FindWhatAFormCanBeInTheWordsOfTheQuizzes)
{
    ListedForms listed;
    const std::string amet = "amet: amare, 3rd Person Sing, First Conjugation, Present Subjunctive\n";
    EXPECT_EQ(found(listed.index(), " AMET"), amet);
    const std::string bare = "puella: puella, singular Nominative\n",
                      ablative = "puella: puella, singular Ablative\n";
    EXPECT_EQ(found(listed.index(), "puella"), bare + ablative);
    for (const char* const marked : {"puella:", "puellā", "PUELLĀ", "puella\u0304"})
        EXPECT_EQ(found(listed.index(), marked), ablative + bare);
    EXPECT_EQ(found(listed.index(), "aquae"), "aquae: aqua, singular Genitive\naquae: aqua, singular Dative\n"
                                              "aquae: aqua, Plural Nominative\n");
    for (const char* const none : {"", ":", "pue", "puellax"})
        EXPECT_EQ(found(listed.index(), none), "");
    for (const auto& [typed, form] : {std::pair{"amata EST", "amatus -a -um est"},
                                      {"amatus est", "amatus -a -um est"},
                                      {"monitum eras", "monitus eras"},
                                      {"amatae sunt", "amati sunt"},
                                      {"amata sunt", "amati sunt"}})
        EXPECT_EQ(found(listed.index(), typed).find(form + std::string(": ")), 0U) << typed;
    EXPECT_EQ(found(listed.index(), "amat sum"), "");
    EXPECT_EQ(found(listed.index(), "quos"), "quos: qui-quae-quod, Masc. Plur. Accusative\n");
    EXPECT_EQ(found(listed.index(), "vobis"),
              "vobis: ego-tu-*, 2 Pers. Plur. Dative\nvobis: ego-tu-*, 2 Pers. Plur. Ablative\n");

    // An edit is found at once.
    settings.ShowVowelLength = platform::FlagTrue;
    settings.CurrentLanguage = "German";
    EXPECT_EQ(found(listed.index(), "clāmā"), "");
    editVerb(FirstConjugation, 13, {"cla:m", "cla:ma:v", "cla:ma:t", {}});
    EXPECT_EQ(found(listed.index(), "clāmā"),
              "cla:ma:: cla:ma:re, 2. Person Sing., 1. Konjugation, Imperativ\n");
    EXPECT_EQ(listed.index().find("amet").size(), 1U);
}

// The letters behind which a mark stands.
std::set<long> marksOf(const std::string& text)
{
    std::set<long> marks;
    for (std::size_t at = text.find(':'); at != std::string::npos; at = text.find(':', at + 1))
        marks.insert(static_cast<long>(at - marks.size()));
    return marks;
}

TEST_F(Tables, FindTheReadingsThatALookAtEveryFormFinds)
{
    std::vector<Reading> forms;
    std::vector<std::string> letters;
    for (const Word& word : allWords())
        for (int cell = 1; const auto& [form, grammars] : tableOf(word)) {
            if (!form.text.empty()) {
                forms.push_back({word, cell, form});
                letters.push_back(shell::withoutMarks(form.text));
            }
            ++cell;
        }
    ListedForms listed;
    EXPECT_EQ(listed.index().size(), forms.size());
    std::mt19937 random(1);
    for (int draws = 0; draws < 1000; ++draws) {
        std::string typed = forms.at(random() % forms.size()).form.text;
        if (draws % 3 > 0)
            if (const std::size_t mark = typed.find(':', random() % typed.size()); mark != std::string::npos)
                typed.erase(mark, 1);
        const auto differing = [&](const Reading& reading) {
            std::vector<long> marks;
            std::ranges::set_symmetric_difference(marksOf(typed), marksOf(reading.form.text),
                                                  std::back_inserter(marks));
            return marks.size();
        };
        std::vector<Reading> slowly;
        const std::string plain = shell::withoutMarks(typed);
        for (std::size_t i = 0; i < forms.size(); ++i)
            if (letters[i] == plain)
                slowly.push_back(forms[i]);
        std::ranges::stable_sort(slowly, {}, differing);
        EXPECT_EQ(listed.index().find(typed), slowly) << typed;
    }
}

} // namespace
