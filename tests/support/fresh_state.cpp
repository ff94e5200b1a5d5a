#include "tests/support/fresh_state.h"

#include "nouns/declension_drill.h"
#include "nouns/noun_list.h"
#include "nouns/noun_question.h"
#include "nouns/noun_tables.h"
#include "nouns/pronoun_drill.h"
#include "platform/random.h"
#include "shell/answer_record.h"
#include "shell/drill.h"
#include "shell/looks.h"
#include "shell/settings.h"
#include "verbdrills/conjugation_drill.h"
#include "verbdrills/quiz_inclusion.h"
#include "verbdrills/verb_question.h"
#include "verbs/verb_edits.h"
#include "verbs/verb_tables.h"
#include "vocabulary/vocabulary_edits.h"
#include "vocabulary/vocabulary_tester.h"

#include <fstream>
#include <iterator>
#include <unistd.h>

namespace tests {

namespace fs = std::filesystem;

FreshState::FreshState() : before_(fs::current_path())
{
    std::string folder = (fs::temp_directory_path() / "morvanti-XXXXXX").string();
    folder_ = ::mkdtemp(folder.data());
    fs::current_path(folder_);
    platform::use(fake);
    platform::seedWith(1);
    shell::leaveDrill();
    shell::listenToAnswers({});
    shell::settings = {};
    shell::looks = {};
    nouns::nounList = {};
    nouns::nounTables = {};
    nouns::declensionDrill = {};
    nouns::nounQuestion = {};
    nouns::pronounDrill = {};
    verbs::verbTables = {};
    verbs::verbList = {};
    verbs::currentParadigm = {};
    verbs::forgetVerbEdits();
    verbdrills::conjugationDrill = {};
    verbdrills::verbQuiz = {};
    verbdrills::QuizIncludeSet = platform::FlagFalse;
    vocabulary::vocabularyList = {};
    vocabulary::vocabularyTester = {};
    vocabulary::vocabularyEditor = {};
}

FreshState::~FreshState()
{
    fs::current_path(before_);
    fs::remove_all(folder_);
}

void writeFile(const std::string& name, std::string_view bytes)
{
    std::ofstream(name, std::ios::binary) << bytes;
}

std::string bytesOf(const fs::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void copySample(const std::string& name)
{
    fs::copy_file(fs::path(MORVANTI_DATA) / name, name, fs::copy_options::overwrite_existing);
}

} // namespace tests
