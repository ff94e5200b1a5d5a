#include "app/word_shown.h"

#include "nouns/declension_drill.h"
#include "nouns/noun_question.h"
#include "nouns/noun_tables.h"
#include "nouns/windows/declination.h"
#include "nouns/windows/noun_handler.h"
#include "nouns/windows/noun_quiz.h"
#include "nouns/windows/pronoun_singular.h"
#include "verbdrills/windows/conjugation.h"
#include "verbdrills/windows/probatio.h"
#include "verbs/verb_tables.h"
#include "verbs/windows/verb_manager.h"

namespace app {

using tables::Word;
using tables::WordKind;

namespace {

std::optional<Word> verbDrawnFor(int verbClass)
{
    return tables::wordShownAs(WordKind::Verb, verbClass, verbs::verbTables.Infinitive[verbClass]);
}

std::optional<Word> nounDrawnFor(int paradigm)
{
    return tables::wordShownAs(WordKind::Noun, paradigm,
                               nouns::nounTables.NounForms[paradigm][nouns::NominativeSingular]);
}

std::optional<Word> verbOf(const verbs::VerbManager& list)
{
    if (list.chosenVerb() < 1 || list.chosenVerb() > verbs::verbList.Count[list.chosenClass()])
        return {};
    return Word{WordKind::Verb, list.chosenClass(), list.chosenVerb()};
}

std::optional<Word> nounOf(const nouns::NounHandler& list)
{
    const auto noun = list.chosenNoun();
    if (!noun)
        return {};
    return Word{WordKind::Noun, noun->paradigm->paradigm, noun->number};
}

std::optional<Word> wordOfQuiz(const QWidget& window)
{
    if (const auto* const quiz = qobject_cast<const verbdrills::Probatio*>(&window))
        return quiz->formIsSolved() ? verbDrawnFor(verbdrills::verbQuiz.QuizConjugation) : std::nullopt;
    if (const auto* const quiz = qobject_cast<const nouns::NounQuiz*>(&window))
        return quiz->verdictStands() ? nounDrawnFor(nouns::nounQuestion.QuizParadigmIndex + 1) : std::nullopt;
    return {};
}

} // namespace

std::optional<Word> wordShownIn(const QWidget& window)
{
    if (qobject_cast<const verbdrills::Conjugation*>(&window) != nullptr)
        return verbDrawnFor(verbs::currentParadigm.ConjugationCode);
    if (qobject_cast<const nouns::Declination*>(&window) != nullptr)
        return nounDrawnFor(nouns::declensionDrill.DrillParadigm);
    if (qobject_cast<const nouns::PronounSingular*>(&window) != nullptr)
        return Word{WordKind::Pronoun, nouns::pronounDrill.Group, 1};
    if (const auto* const list = qobject_cast<const verbs::VerbManager*>(&window))
        return verbOf(*list);
    if (const auto* const list = qobject_cast<const nouns::NounHandler*>(&window))
        return nounOf(*list);
    return wordOfQuiz(window);
}

} // namespace app
