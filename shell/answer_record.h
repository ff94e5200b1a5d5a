#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

namespace shell {

namespace exercise {
/// The noun quiz, as it is kept; nothing runs under this name.
inline constexpr std::string_view NounQuiz = "NounQuiz";
} // namespace exercise

/// Stands between the parts of a place. No name of a file holds it.
inline constexpr std::string_view PlaceSeparator = " / ";

/// The prompts of the vocabulary test, the last part of a place in a list.
inline constexpr std::string_view AskedWithWord = "word";
inline constexpr std::string_view AskedWithTranslation = "translation";

/// A judged answer, as the exercise that asked it tells it. Hints are none.
///
/// `exercise`, `word` and `place` together name the form that was asked, which comes back under this name;
/// marks of long vowels make no difference in them, but for the vocabulary test. So they are the same in
/// every language of the interface: names of the grammar stand in English.
///
///     exercise     word      place
///     Conjugation  amare     First Conjugation / Perfect Subjunctive / 3rd Person Plur
///     Declination  insula    First Declension / Genitive Singular
///     Pronouns     hic       the group / Genitive Singular / the column
///     Quiz         amare     as in Conjugation
///     NounQuiz     insula    as in Declination, with the case that was drawn
///     Vcabtester   insula    vr-vcab.lst / word
struct AnswerRecord {
    /// One of the names in `shell::exercise`. What is asked again bears the name of the exercise from which
    /// it comes.
    std::string exercise;
    std::string word;
    std::string place;

    /// What was asked, in words, enough to be asked by it again: "amare, Perfect Subjunctive, 3rd Person
    /// Plur". In a quiz the form, and what was expected and written are the two answers in words.
    std::string asked;
    std::string expected;
    std::string written = {};
    bool right = false;

    /// True where a review left the marks of long vowels out, because the row that it asks again has none.
    bool marksLeftOut = false;
};

/// The parts of a place, at most three; what is not there is empty.
std::string placeOf(std::string_view first, std::string_view second, std::string_view third = {});
std::array<std::string, 3> partsOfPlace(std::string_view place);

using AnswerListener = std::function<void(const AnswerRecord&)>;

/// Sets who is told of judged answers. At first nobody is, nor with an empty listener.
void listenToAnswers(AnswerListener listener);

/// Tells the listener of an answer that was just judged. Each exercise calls it once for each of them.
void tellAnswer(const AnswerRecord& record);

} // namespace shell
