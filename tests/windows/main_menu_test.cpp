#include "shell/settings.h"
#include "shell/settings_file.h"
#include "tests/support/window_test.h"

namespace {

using shell::settings;
using tests::choose;
using tests::press;
using tests::shownWindow;

using MainMenu = tests::WindowTest;

TEST_F(MainMenu, SpeaksTheLanguageItIsSwitchedToWithTwoUnavailableAndChangesTheSettings)
{
    QWidget& menu = start();
    for (const auto& [chosen, verbs, exit] :
         {std::array{"GermanLang", "&Verben", "Be&enden"}, std::array{"EnglishLang", "&Verbs", "E&xit"}}) {
        choose(menu, chosen);
        EXPECT_EQ(settings.CurrentLanguage + "Lang", chosen);
        EXPECT_EQ(button(menu, "ConjugationButton").text(), verbs);
        EXPECT_EQ(tests::control<QAction>(menu, "FileExit").text(), exit);
        for (const QAction* const item : tests::control<QMenu>(menu, "LanguageMenu").actions()) {
            const QString language = item->objectName();
            EXPECT_EQ(item->isChecked(), language == chosen);
            EXPECT_EQ(item->isEnabled(), language != "ItalianLang" && language != "NorwegianLang");
        }
    }
    const auto linesAfter = [&menu](const QStringList& items) {
        for (const QString& item : items)
            choose(menu, item);
        return QString::fromStdString(shell::settingsText()).split("\r\n").first(9).join('|');
    };
    EXPECT_EQ(linesAfter({"RandomOrder", "NADGABOrder", "SoundStatus", "SaveSettings", "VowelLengthVal"}),
              "6|-1|-1| 2|English|NAGDAb|Random| 2| 0");
    EXPECT_EQ(settings.SettingsChangeCount, 5);
    EXPECT_EQ(linesAfter({"SoundStatus", "SequentialOrder", "NGDAABOrder"}),
              "6|-1| 0| 2|English|NGDAAb|Sequential| 2| 0");
}

TEST_F(MainMenu, OpensEachExerciseByButtonAndItemWithTheGuideAtHandWhereNoViewerCanBeStarted)
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
    fake.programs.clear();
    fake.programsStart = true;
    press(start(), Qt::Key_F1);
    choose(tests::shown("MainMenu"), "HELPME");
    EXPECT_EQ(fake.programs, std::vector<std::string>(2, "winhelp.exe morvanti.hlp"));
    EXPECT_EQ(shownWindow("Help"), nullptr);
}

// A desktop takes the state from a window that is hidden, and gives it back late.
// The next key of a fast typist goes to the window that has been opened.
TEST_F(MainMenu, OpensAnExerciseAtOnceByItsLetter)
{
    QWidget& menu = start();
    QTest::keyClick(&menu, Qt::Key_N, Qt::AltModifier);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_NE(shownWindow("DeclinationChoose"), nullptr);
}

TEST_F(MainMenu, KeepsInTheSettingsWhetherItIsMaximisedAsLongAsItIsOnTheScreen)
{
    QWidget& menu = start();
    menu.hide();
    menu.setWindowState(Qt::WindowNoState);
    QResizeEvent resized(menu.size(), menu.size());
    QApplication::sendEvent(&menu, &resized);
    EXPECT_EQ(settings.MainWindowState, 2);
    menu.showNormal();
    menu.showMaximized();
    menu.showNormal();
    QApplication::processEvents();
    EXPECT_EQ(settings.MainWindowState, 0);
    menu.setWindowState(Qt::WindowMinimized | Qt::WindowMaximized);
    QApplication::processEvents();
    EXPECT_EQ(settings.MainWindowState, 0);
}

} // namespace
