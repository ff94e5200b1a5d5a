#include "tables/verb_table.h"

#include "verbs/verb_list.h"

namespace tables {

namespace {

using shell::FormParts;

verbs::VerbStems stemsOf(int verbClass, int number)
{
    if (!verbs::isRegular(verbClass))
        return verbs::pageOf(verbClass).stems;
    const auto& [present, perfect, supine] = verbs::verbList.StemsAsWritten[verbClass][number];
    return {present, perfect, supine};
}

// The stem as it is drilled decides: without its mark di:c has the bare imperative, with it not.
bool hasBareImperative(int verbClass, int number)
{
    return verbs::isRegular(verbClass) &&
           verbs::hasBareImperative(verbClass, verbs::verbList.PresentStem[verbClass][number]);
}

void shortenImperative(verbs::FormsOfVerb& forms, int verbClass, int number)
{
    if (!hasBareImperative(verbClass, number))
        return;
    constexpr int imperative = verbs::formNumber(verbs::Imperative, verbs::SecondSingular);
    forms.at(imperative - 1) = {.stem = stemsOf(verbClass, number).present, .ending = {}};
}

void standWhole(FormParts& form)
{
    if (form.stem.empty())
        form = {.stem = form.ending, .ending = {}};
}

} // namespace

verbs::FormsOfVerb formsOfVerb(int verbClass, int number)
{
    verbs::FormsOfVerb forms = verbs::conjugate(verbClass, stemsOf(verbClass, number));
    shortenImperative(forms, verbClass, number);
    if (!verbs::isRegular(verbClass))
        for (FormParts& form : forms)
            standWhole(form);
    return forms;
}

void appendStemsOfVerb(std::string& text, int verbClass, int number)
{
    const auto& [present, perfect, supine] = stemsOf(verbClass, number);
    for (const std::string_view stem : {present, perfect, supine})
        text.append(stem).append(",");
    if (hasBareImperative(verbClass, number))
        text.append("bare imperative");
}

FormParts infinitiveOf(int verbClass, int number)
{
    FormParts infinitive = {stemsOf(verbClass, number).present, verbs::pageOf(verbClass).infinitive};
    if (!verbs::isRegular(verbClass))
        standWhole(infinitive);
    return infinitive;
}

} // namespace tables
