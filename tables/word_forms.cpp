#include "tables/word_forms.h"

#include "tables/noun_table.h"
#include "tables/pronoun_table.h"
#include "tables/sic.h"
#include "tables/verb_table.h"

namespace tables {

namespace {

template <typename Forms>
std::vector<shell::FormParts> inOrder(const Forms& forms)
{
    return {forms.begin(), forms.end()};
}

} // namespace

std::vector<shell::FormParts> formsOf(const Word& word)
{
    switch (word.kind) {
    case WordKind::Verb:
        return inOrder(formsOfVerb(word.paradigm, word.number));
    case WordKind::Noun:
        return inOrder(formsOfNoun(word.paradigm, word.number));
    case WordKind::Pronoun:
        break;
    }
    return inOrder(formsOfPronouns(word.paradigm));
}

void appendStems(std::string& text, const Word& word)
{
    text.append(std::to_string(static_cast<int>(word.kind))).append(".");
    text.append(std::to_string(word.paradigm)).append(":");
    if (word.kind == WordKind::Verb)
        appendStemsOfVerb(text, word.paradigm, word.number);
    if (word.kind == WordKind::Noun)
        appendStemsOfNoun(text, word.paradigm, word.number);
    text += '\n';
}

std::vector<Cell> tableOf(const Word& word)
{
    std::vector<Cell> cells;
    for (const shell::FormParts& parts : formsOf(word)) {
        const int cell = static_cast<int>(cells.size()) + 1;
        cells.push_back({formOf(parts), grammarsForm(word, cell, parts)});
    }
    return cells;
}

} // namespace tables
