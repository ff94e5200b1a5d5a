#pragma once

#include "nouns/pronoun_forms.h"
#include "platform/flag.h"
#include "platform/table.h"
#include "shell/round.h"

#include <cstdint>
#include <string>

namespace nouns {

inline constexpr int PronounGroupCount = static_cast<int>(PronounPages.size());
inline constexpr int PronounColumnCount = PronounGroupCount * ColumnsOfGroup;

/// Boxes of the pronoun drill, 1 to 15: 1 to 5 are the cases of the group's first column, 6 to 10 those of
/// the second, 11 to 15 those of the third. They ask the singular first and then the plural.
inline constexpr int CellCount = ColumnsOfGroup * CasesOfNumber;

/// Where the pronoun drill stands. There is one, `pronounDrill`; assigning `{}` resets it.
struct PronounDrill {
    /// Column 1 to 15, case 1 to 10.
    platform::Table<platform::Table<std::string, CaseCount + 1>, PronounColumnCount + 1> PronounForms;

    /// The group that is drilled, 0 to 4.
    std::int16_t Group = 0;

    /// The case with which the number that is asked begins: 1 in the singular, 6 in the plural.
    std::int16_t FirstCase = NominativeSingular;

    /// The box asked, 1 to 15.
    std::int16_t CurrentCell = 1;

    /// The form that the box asked must receive.
    std::string ExpectedAnswer;

    /// Boxes answered right in this number, in random order.
    platform::Table<platform::Flag, CellCount + 1> CellDone;
};

inline PronounDrill pronounDrill;

/// Fills `PronounForms` with all pronouns, with the `VowelMark` as it stands.
void BuildPronounForms();

/// Takes a row of the chooser, 0 to 4. Returns false for another row, which chooses nothing.
bool choosePronouns(int row);

/// Begins with the singular of the group that was chosen.
void beginPronouns();

/// The form of a box, 1 to 15, in the number that is asked; empty where there is none. Such a box is never
/// asked.
const std::string& pronounFormAt(int cell);

/// Sets `ExpectedAnswer` for the box asked.
void setPronounQuestion();

/// Checks an answer against `ExpectedAnswer`, letter by letter.
bool isRightPronoun(const std::string& answer);

/// Whether a wrong answer is the form that another box has of the same word.
bool answersAnotherCell(const std::string& answer);

/// The how-many-th form of this number is asked.
shell::Place placeOfCell();

/// Where the drill goes after a right answer.
enum class PronounAdvance {
    NextCell,   ///< the same number goes on
    NextNumber, ///< all boxes were asked: the plural follows the singular, and the singular the plural
};

/// Moves on after a right answer, in the order of `CaseOrder`, column by column. At random only where
/// `QuestionOrder` is "random" in small letters: no menu sets it, only a settings file edited by hand.
PronounAdvance advancePronouns();

} // namespace nouns
