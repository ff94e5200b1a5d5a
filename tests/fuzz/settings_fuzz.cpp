#include "nouns/declension_drill.h"
#include "shell/settings.h"
#include "shell/settings_file.h"
#include "tests/fuzz/one_file.h"
#include "verbdrills/quiz_draw.h"
#include "verbdrills/verb_question.h"

void fuzz::readFile(const std::filesystem::path& path)
{
    using shell::settings;
    const auto start = [&path] {
        settings = {};
        if (!shell::readSettings(path))
            shell::applyDefaultSettings();
        shell::mendSettings();
    };
    start();
    require(shell::ShortestDelay <= settings.DelaySeconds && settings.DelaySeconds <= shell::LongestDelay,
            "The delay is 1 to 100 seconds");
    const std::string text = shell::settingsText();
    require(!shell::writeSettings(path), "The settings can be written");
    start();
    require(shell::settingsText() == text, "What was written is what is read");
    nouns::chooseDeclension(0);
    nouns::beginDeclensionChoice();
    nouns::drawDeclension();
    for (int asked = 1; asked < nouns::CaseCount; ++asked)
        require(nouns::advanceDeclension() == nouns::DeclensionAdvance::NextCase, "A round asks all cases");
    verbdrills::verbQuiz = {};
    require(!verbdrills::askForm() || !verbdrills::formAsked().empty(), "The quiz asks a form that there is");
}
