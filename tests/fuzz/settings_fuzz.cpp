#include "nouns/declension_drill.h"
#include "nouns/pronoun_drill.h"
#include "shell/settings.h"
#include "shell/settings_file.h"
#include "shell/vowel_marks.h"
#include "tests/fuzz/one_file.h"
#include "verbdrills/quiz_draw.h"
#include "verbdrills/verb_question.h"
#include "verbs/verb_tables.h"

#include <algorithm>

namespace {

using fuzz::require;
using platform::FlagFalse;
using platform::FlagTrue;
using shell::settings;

constexpr int LinesOfFile = 36;
constexpr int LastStoredClass = 7;
constexpr int LastStoredTense = 20;

// As at the program's start.
bool start(const std::filesystem::path& path)
{
    settings = {};
    const bool whole = shell::readSettings(path);
    if (!whole)
        shell::applyDefaultSettings();
    shell::mendSettings();
    shell::setVowelMarkAsShown();
    return whole;
}

template <typename Entries>
void requireSomeOfTheFirst(const Entries& entries, int last)
{
    require(std::find(entries.begin(), entries.begin() + last + 1, FlagTrue) < entries.begin() + last + 1,
            "The quiz has a class and a tense");
    require(std::all_of(entries.begin() + last + 1, entries.end(),
                        [](platform::Flag entry) { return entry == FlagFalse; }),
            "No file includes what is not stored");
}

void requireGoodSettings()
{
    require(shell::ShortestDelay <= settings.DelaySeconds && settings.DelaySeconds <= shell::LongestDelay,
            "The delay is 1 to 100 seconds");
    require(settings.CaseOrder == shell::case_order::NGDAAb ||
                settings.CaseOrder == shell::case_order::NAGDAb,
            "The case order is one of two");
    require(settings.QuestionOrder == shell::question_order::Random ||
                settings.QuestionOrder == shell::question_order::Sequential,
            "The question order is one of two");
    require(settings.VowelMark == (settings.ShowVowelLength == FlagTrue ? ":" : ""),
            "Vowels are marked where their length is shown");
    requireSomeOfTheFirst(settings.QuizConjInclude, LastStoredClass);
    requireSomeOfTheFirst(settings.QuizTenseInclude, LastStoredTense);
}

void requireDefaults()
{
    require(settings.CurrentLanguage == shell::language::English && settings.DelaySeconds == 2 &&
                settings.ShowVowelLength == FlagFalse && settings.SoundOn == FlagFalse &&
                settings.MainWindowState == shell::window_state::Maximised &&
                settings.SaveSettingsOnExit == FlagTrue && settings.QuizConjInclude[0] == FlagTrue,
            "A file that is not whole gives the defaults");
}

void requireTheSameAfterWriting(const std::filesystem::path& path)
{
    const std::string text = shell::settingsText();
    require(std::ranges::count(text, '\n') == LinesOfFile, "The settings are 36 lines");
    require(!shell::writeSettings(path), "The settings can be written");
    require(start(path), "What was written is read to its end");
    requireGoodSettings();
    require(shell::settingsText() == text, "What was written is what is read");
}

void declineEveryNoun()
{
    for (int row = 0; nouns::chooseDeclension(row); ++row) {
        nouns::beginDeclensionChoice();
        nouns::drawDeclension();
        int asked = 1;
        while (nouns::advanceDeclension() == nouns::DeclensionAdvance::NextCase)
            require(++asked <= nouns::CaseCount, "A round asks each case once");
    }
}

void declineEveryPronoun()
{
    for (int row = 0; nouns::choosePronouns(row); ++row) {
        nouns::beginPronouns();
        int asked = 1;
        do {
            nouns::setPronounQuestion();
            require(!nouns::pronounDrill.ExpectedAnswer.empty(), "A pronoun is asked that has the form");
            require(asked++ <= nouns::CellCount, "A round asks each box once");
        } while (nouns::advancePronouns() == nouns::PronounAdvance::NextCell);
    }
}

void askVerbs()
{
    verbs::verbTables = {};
    verbs::currentParadigm = {};
    verbdrills::verbQuiz = {};
    for (int question = 1; question <= 3 && verbdrills::askForm(); ++question) {
        require(!verbdrills::formAsked().empty(), "The quiz asks a form that there is");
        require(settings.QuizConjInclude[verbdrills::verbQuiz.QuizConjugation - 1] == FlagTrue,
                "The quiz asks an included class");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto path = fuzz::beginWithFile(data, size);
    const bool whole = start(path);
    requireGoodSettings();
    if (!whole)
        requireDefaults();
    requireTheSameAfterWriting(path);
    declineEveryNoun();
    declineEveryPronoun();
    askVerbs();
    return 0;
}
