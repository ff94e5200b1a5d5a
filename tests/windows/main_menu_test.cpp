#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QMenu>

namespace {

using shell::settings;
using tests::choose;
using tests::press;
using tests::shownWindow;

using MainMenu = tests::WindowTest;

QAction& item(const QWidget& menu, const QString& name)
{
    return tests::control<QAction>(menu, name);
}

TEST_F(MainMenu, SpeaksTheLanguageItIsSwitchedToAndKeepsTwoUnavailable)
{
    QWidget& menu = start();
    // By language: a button, a menu and an item.
    const std::array<const char*, 5> languages[] = {{"GermanLang", "German", "&Verben", "&Datei", "Be&enden"},
                                                    {"EnglishLang", "English", "&Verbs", "&File", "E&xit"}};
    for (const auto& [chosen, name, verbs, file, exit] : languages) {
        choose(menu, chosen);
        EXPECT_EQ(settings.CurrentLanguage, name);
        EXPECT_EQ(tests::button(menu, "ConjugationButton").text(), verbs);
        EXPECT_EQ(tests::control<QMenu>(menu, "FileMenu").title(), file);
        EXPECT_EQ(item(menu, "FileExit").text(), exit);
        for (const QAction* const language : tests::control<QMenu>(menu, "LanguageMenu").actions()) {
            EXPECT_EQ(language->isChecked(), language->objectName() == chosen);
            EXPECT_EQ(language->isEnabled(),
                      language->objectName() != "ItalianLang" && language->objectName() != "NorwegianLang");
        }
    }
    EXPECT_EQ(settings.SettingsChangeCount, 2);
}

TEST_F(MainMenu, ChangesTheSettings)
{
    QWidget& menu = start();
    for (const char* const chosen : {"RandomOrder", "NADGABOrder", "SoundStatus"})
        choose(menu, chosen);
    EXPECT_EQ(settings.QuestionOrder, "Random");
    EXPECT_EQ(settings.CaseOrder, "NAGDAb");
    EXPECT_EQ(settings.SoundOn, platform::FlagTrue);
    EXPECT_EQ(settings.SettingsChangeCount, 3);
    for (const char* const chosen : {"SaveSettings", "VowelLengthVal", "SoundStatus"})
        choose(menu, chosen);
    EXPECT_EQ(settings.SaveSettingsOnExit, platform::FlagFalse);
    EXPECT_EQ(settings.ShowVowelLength, platform::FlagTrue);
    EXPECT_EQ(settings.SoundOn, platform::FlagFalse);
    EXPECT_EQ(settings.SettingsChangeCount, 4);
    choose(menu, "SequentialOrder");
    choose(menu, "NGDAABOrder");
    EXPECT_EQ(settings.QuestionOrder, "Sequential");
    EXPECT_EQ(settings.CaseOrder, "NGDAAb");
}

TEST_F(MainMenu, OpensEachExerciseByButtonAndItemWithHelpAtHand)
{
    struct Opener {
        QStringList controls;
        const char* window;
        const char* exercise = "";
        std::array<const char*, 2> marks = {"x", "x"}; // where `ShowVowelLength` is -1 and 1
    };
    const Opener openers[] = {
        {{"ConjugationButton", "FileConj"}, "ConjugationChoose", "Conjugation", {"", ":"}},
        {{"DeclensionButton", "FileDecl"}, "DeclinationChoose", "Declination", {"", ":"}},
        {{"PronounButton", "FilePron"}, "PronounChooser", "Pronouns"},
        {{"VocabularyButton", "MainVocabulary"}, "Vcabtester", "Vcabtester"},
        {{"FileNounQuiz"}, "NounQuiz", "", {":", "x"}},
        {{"FileNounManager"}, "NounHandler"},
        {{"FileVerbManager"}, "VerbManager"},
        {{"FileVcabManager"}, "VcabManager"},
        {{"SetDelay"}, "DelayInterval"},
        {{"OptionsOptions", "OptionsOptionsForm"}, "frmOptions"},
        {{"MainABout"}, "About"},
    };
    for (const auto& [controls, window, exercise, marks] : openers)
        for (const QString& control : controls)
            for (const int flag : {-1, 1}) {
                start();
                settings.ExerciseType.clear();
                settings.ShowVowelLength = static_cast<platform::Flag>(flag);
                settings.VowelMark = "x";
                press(open(control, window), Qt::Key_F1);
                EXPECT_EQ(settings.VowelMark, flag < 0 ? marks.front() : marks.back()) << window;
                EXPECT_EQ(settings.ExerciseType, exercise) << window;
                EXPECT_NE(shownWindow("Help"), nullptr) << window;
            }
}

TEST_F(MainMenu, OpensTheGuideWhereNoViewerCanBeStarted)
{
    QWidget& menu = start();
    press(menu, Qt::Key_F1);
    EXPECT_EQ(fake.programs, std::vector<std::string>{"winhelp.exe morvanti.hlp"});
    tests::click(tests::shown("Help"), "Command1");
    EXPECT_EQ(shownWindow("Help"), nullptr);
    fake.programsStart = true;
    choose(menu, "HELPME");
    EXPECT_EQ(shownWindow("Help"), nullptr);
}

TEST_F(MainMenu, KeepsInTheSettingsWhetherItIsMaximised)
{
    QWidget& menu = start();
    EXPECT_EQ(settings.MainWindowState, 2);
    menu.showNormal();
    QApplication::processEvents();
    EXPECT_EQ(settings.MainWindowState, 0);
    menu.showMinimized();
    QApplication::processEvents();
    EXPECT_EQ(settings.MainWindowState, 0);
}

} // namespace
