#pragma once

namespace verbdrills {

/// True where some class that `QuizConjInclude` names has a form that can be drawn: the regular classes and
/// esse one of a tense that `QuizTenseInclude` names, velle any, ferre the one at the `QuizRow` that is kept.
bool someFormCanBeAsked();

/// Draws a form of the generated paradigms, and sets all of `verbQuiz`. Where none can be asked it draws
/// nothing, leaves the form that was asked before, and returns false.
///
/// A class is not drawn again before the other included ones; after 21 draws all are free again. The last
/// form of a regular class is never asked, and neither velle nor ferre is bound to the included tenses.
bool drawForm();

/// Generates the paradigms anew, with length marks even where `ShowVowelLength` is off, draws a form, and
/// announces it by two beeps. Returns false where no form can be asked; no form is asked then.
bool askForm();

} // namespace verbdrills
