#include "vocabulary/test_record.h"

#include "shell/settings.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"

namespace vocabulary {

namespace {

std::string askedText()
{
    const std::string hint = hintText();
    return hintGivesAnswerAway() || hint.empty() ? questionText() : questionText() + ", " + hint;
}

} // namespace

shell::AnswerRecord recordOfWord(const std::string& written, bool right)
{
    const std::string_view side = hintGivesAnswerAway() ? shell::AskedWithTranslation : shell::AskedWithWord;
    return {.exercise = std::string(shell::exercise::Vcabtester),
            .word = vocabularyList.Loaded[vocabularyList.CurrentWord].word,
            .place = shell::placeOf(vocabularyList.File.filename().string(), side),
            .asked = askedText(),
            .expected = expectedAnswer(),
            .written = written,
            .right = right};
}

} // namespace vocabulary
