#include "tables/page.h"

#include "nouns/case_names.h"
#include "nouns/case_order.h"
#include "shell/language_texts.h"
#include "shell/macrons.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "tables/noun_table.h"
#include "tables/pronoun_table.h"
#include "tables/word_forms.h"
#include "verbdrills/quiz_texts.h"
#include "verbs/paradigm.h"

#include <algorithm>
#include <array>

namespace tables {

using shell::LanguageTexts;
using shell::macronsWhereShown;

namespace {

// clang-format off
//                                    English           French              Italian              German             Spanish              Latin
constexpr LanguageTexts Present      {"Present",        "Présent",          "Presente",          "Präsens",         "Presente",          "Praesens"};
constexpr LanguageTexts Imperfect    {"Imperfect",      "Imparfait",        "Imperfetto",        "Imperfekt",       "Imperfecto",        "Imperfectum"};
constexpr LanguageTexts Future       {"Future",         "Futur",            "Futuro",            "Futur",           "Futuro",            "Futurum"};
constexpr LanguageTexts Perfect      {"Perfect",        "Parfait",          "Perfetto",          "Perfekt",         "Perfecto",          "Perfectum"};
constexpr LanguageTexts Pluperfect   {"Pluperfect",     "Plus-que-parfait", "Piuccheperfetto",   "Plusquamperfekt", "Pluscuamperfecto",  "Plusquamperfectum"};
constexpr LanguageTexts FuturePerfect{"Future Perfect", "Futur antérieur",  "Futuro anteriore",  "Futur Perfekt",   "Futuro perfecto",   "Futurum Perfectum"};

constexpr std::array<LanguageTexts, verbs::BlockCount> Tenses = {
    Present, Imperfect, Future, Perfect, Pluperfect, FuturePerfect, // indicative
    Present, Imperfect, Perfect, Pluperfect,                        // subjunctive
    Present,                                                        // imperative
    Present, Imperfect, Future, Perfect, Pluperfect, FuturePerfect, // passive: indicative
    Present, Imperfect, Perfect, Pluperfect,                        // subjunctive
};

// A mood in a voice, with its first and its last tense.
struct Mood {
    LanguageTexts name;
    int first;
    int last;
};

constexpr std::array Moods = {
    //    English                French                Italian                German                Spanish                Latin
    Mood{{"Indicative Active",   "Indicatif actif",    "Indicativo attivo",   "Indikativ Aktiv",    "Indicativo activo",   "Indicativus activi"},   verbs::PresentIndicative,         verbs::FuturePerfectIndicative},
    Mood{{"Subjunctive Active",  "Subjonctif actif",   "Congiuntivo attivo",  "Konjunktiv Aktiv",   "Subjuntivo activo",   "Coniunctivus activi"},  verbs::PresentSubjunctive,        verbs::PluperfectSubjunctive},
    Mood{{"Imperative Active",   "Impératif actif",    "Imperativo attivo",   "Imperativ Aktiv",    "Imperativo activo",   "Imperativus activi"},   verbs::Imperative,                verbs::Imperative},
    Mood{{"Indicative Passive",  "Indicatif passif",   "Indicativo passivo",  "Indikativ Passiv",   "Indicativo pasivo",   "Indicativus passivi"},  verbs::PassivePresentIndicative,  verbs::PassiveFuturePerfectIndicative},
    Mood{{"Subjunctive Passive", "Subjonctif passif",  "Congiuntivo passivo", "Konjunktiv Passiv",  "Subjuntivo pasivo",   "Coniunctivus passivi"}, verbs::PassivePresentSubjunctive, verbs::PassivePluperfectSubjunctive},
};

constexpr std::array<LanguageTexts, verbs::PersonCount> Persons = {{
    {"1st Sing.", "1re sing.", "1a sing.", "1. Sing.", "1a sing.", "i sing."},
    {"2nd Sing.", "2e sing.",  "2a sing.", "2. Sing.", "2a sing.", "ii sing."},
    {"3rd Sing.", "3e sing.",  "3a sing.", "3. Sing.", "3a sing.", "iii sing."},
    {"1st Plur.", "1re plur.", "1a plur.", "1. Plur.", "1a plur.", "i plur."},
    {"2nd Plur.", "2e plur.",  "2a plur.", "2. Plur.", "2a plur.", "ii plur."},
    {"3rd Plur.", "3e plur.",  "3a plur.", "3. Plur.", "3a plur.", "iii plur."},
}};

constexpr LanguageTexts Singular {"Singular", "Singulier", "Singolare", "Einzahl",  "Singular", "Singularis"};
constexpr LanguageTexts Plural   {"Plural",   "Pluriel",   "Plurale",   "Mehrzahl", "Plural",   "Pluralis"};

constexpr LanguageTexts Sic       {"sic: ",          "sic\u00A0: ",           "sic: ",              "sic: ",                "sic: ",              "sic: "};
constexpr LanguageTexts Here      {"here ",          "ici ",                  "qui ",               "hier ",              "aquí ",             "hic "};
constexpr LanguageTexts GrammarHas{"a grammar has ", "une grammaire donne ", "una grammatica ha ", "eine Grammatik hat ", "una gramática da ", "grammatica habet "};

constexpr LanguageTexts InTheDrill{"In the drill: ", "Dans l'exercice\u00A0: ", "Nell'esercizio: ",  "In der Abfrage: ",     "En el ejercicio: ",  "In exercitatione: "};

constexpr LanguageTexts Semicolon  {"; ", "\u00A0; ", "; ", "; ", "; ", "; "};
constexpr LanguageTexts QuoteOpens {"“", "«\u00A0", "«", "„", "«", "“"};
constexpr LanguageTexts QuoteCloses{"”", "\u00A0»", "»", "“", "»", "”"};
// clang-format on

std::string inLanguage(const LanguageTexts& texts)
{
    return std::string(texts.currentOrDesigned());
}

std::string quoted(std::string_view form)
{
    return inLanguage(QuoteOpens) + macronsWhereShown(form) + inLanguage(QuoteCloses);
}

// A form that differs in its marks alone looks like the grammar's where they are hidden.
std::string saysOfGrammar(const Cell& cell)
{
    const bool marksAreHidden = shell::settings.ShowVowelLength != platform::FlagTrue;
    const std::string asked =
        marksAreHidden ? inLanguage(Here) + quoted(cell.form.text) + inLanguage(Semicolon) : std::string();
    return inLanguage(Sic) + asked + inLanguage(GrammarHas) + quoted(*cell.grammarsForm) + ".";
}

std::vector<shell::FormParts> formsInDrillOf(const Word& word)
{
    if (word.kind != WordKind::Noun || !shell::marksAreShown())
        return {};
    const nouns::FormsOfNoun forms = formsInDrill(word.paradigm, word.number);
    return {forms.begin(), forms.end()};
}

class PageMaker {
public:
    explicit PageMaker(const Word& word) : word_(word), table_(tableOf(word)), inDrill_(formsInDrillOf(word))
    {
    }

    Page make() const
    {
        Page page{.title = macronsWhereShown(listedName(word_)), .columns = {}, .lines = {}};
        if (word_.kind == WordKind::Verb)
            addVerb(page);
        else
            addCases(page, word_.kind == WordKind::Noun ? 1 : nouns::ColumnsOfGroup);
        return page;
    }

private:
    void addVerb(Page& page) const
    {
        if (verbs::isRegular(word_.paradigm))
            page.title.append(", ").append(
                verbdrills::quizClassNames()[static_cast<std::size_t>(word_.paradigm - 1)]
                    .currentOrDesigned());
        for (const LanguageTexts& person : Persons)
            page.columns.push_back(inLanguage(person));
        for (const Mood& mood : Moods)
            addMood(page, mood);
    }

    void addMood(Page& page, const Mood& mood) const
    {
        std::vector<PageLine> lines{{inLanguage(mood.name), {}}};
        for (int block = mood.first; block <= mood.last; ++block) {
            PageLine line{inLanguage(Tenses.at(static_cast<std::size_t>(block - 1))), {}};
            for (int person = verbs::FirstSingular; person <= verbs::PersonCount; ++person)
                line.cells.push_back(cellAt(verbs::formNumber(block, person)));
            if (std::ranges::any_of(line.cells, [](const PageCell& cell) { return !cell.form().empty(); }))
                lines.push_back(std::move(line));
        }
        if (lines.size() > 1)
            page.lines.insert(page.lines.end(), lines.begin(), lines.end());
    }

    // The columns of the singular, and then as many of the plural.
    void addCases(Page& page, int columns) const
    {
        using namespace nouns;
        constexpr std::array numbers = {NominativeSingular, NominativePlural};
        for (const int first : numbers)
            for (int column = 0; column < columns; ++column)
                page.columns.push_back(columnName(first, column));
        for (const int inCase : casesInOrder()) {
            PageLine line{inLanguage(CaseTexts.at(static_cast<std::size_t>(inCase))), {}};
            for (const int first : numbers)
                for (int column = 0; column < columns; ++column)
                    line.cells.push_back(cellAt(pronounCell(column, first + inCase)));
            page.lines.push_back(std::move(line));
        }
    }

    std::string columnName(int firstCase, int column) const
    {
        if (word_.kind == WordKind::Noun)
            return inLanguage(firstCase == nouns::NominativeSingular ? Singular : Plural);
        return columnOfPronouns(word_.paradigm, column, firstCase);
    }

    PageCell cellAt(int number) const
    {
        const Cell& cell = table_.at(static_cast<std::size_t>(number - 1));
        const Form form = asShown(cell.form);
        return {number, macronsWhereShown(form.stem()), macronsWhereShown(form.ending()),
                cell.grammarsForm ? std::optional(saysOfGrammar(cell)) : std::nullopt,
                saysOfDrill(number, form)};
    }

    std::string saysOfDrill(int number, const Form& shown) const
    {
        if (inDrill_.empty())
            return {};
        const std::string asked = formOf(inDrill_.at(static_cast<std::size_t>(number - 1))).text;
        return asked == shown.text ? std::string() : inLanguage(InTheDrill) + quoted(asked) + ".";
    }

    const Word word_;
    const std::vector<Cell> table_;

    // Empty where the drill shows all marks that the table shows.
    const std::vector<shell::FormParts> inDrill_;
};

} // namespace

std::string PageCell::remark() const
{
    const std::string ofGrammar = saysOfGrammar.value_or("");
    return ofGrammar + (ofGrammar.empty() || saysOfDrill.empty() ? "" : " ") + saysOfDrill;
}

Page pageOf(const Word& word)
{
    return PageMaker(word).make();
}

std::string asText(const Page& page)
{
    std::string text = page.title + "\n\n";
    for (const std::string& column : page.columns)
        text += "\t" + column;
    for (const PageLine& line : page.lines) {
        text += "\n" + line.name;
        for (const PageCell& cell : line.cells) {
            text += "\t" + cell.form();
            if (cell.saysOfGrammar)
                text += " (sic)";
        }
    }
    return text + "\n";
}

} // namespace tables
