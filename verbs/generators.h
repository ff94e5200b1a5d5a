#pragma once

namespace verbs {

/// The generators fill `verbTables` from `verbList` and the settings: the forms, the infinitive, the
/// translations, the working stems and the tense count of their classes. They draw each verb anew. Where
/// `ShowVowelLength` is true, all but the irregular one first set `VowelMark` to ":"; none ever empties it.

/// First and second conjugation. Resets the tense.
void buildFirstAndSecondConjugations();

/// Third conjugation, its -io verbs, and fourth conjugation, drawn in this order. Stores no tense count of
/// the -io verbs, and the German translation "gräbe" with the fourth verb of the fourth conjugation.
void buildThirdAndFourthConjugations();

/// esse (blocks 1 to 11), velle (blocks 1 to 11, the last one empty) and ferre, which are not drawn. Uses
/// `VowelMark` as it stands, and resets the tense.
void buildIrregularVerbs();

/// Goes back to the present indicative, unless a single tense is drilled.
void resetTense();

} // namespace verbs
