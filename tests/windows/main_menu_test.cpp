#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>

#include <array>

namespace {

using platform::FlagFalse;
using platform::FlagTrue;
using shell::settings;
using tests::choose;
using tests::control;
using tests::shown;
using tests::shownWindow;

class MainMenu : public tests::WindowTest {
protected:
    static QAction& item(QWidget& menu, const QString& name) { return control<QAction>(menu, name); }
};

TEST_F(MainMenu, SpeaksEachLanguageItCanBeSwitchedTo)
{
    QWidget& menu = start();
    // By language: a button, a menu and two items.
    const std::array<const char*, 6> languages[] = {
        {"GermanLang", "German", "&Verben", "&Datei", "Be&enden", "&Optionen speichern"},
        {"FrenchLang", "French", "&Verbes", "&Actions", "&Sortie", "Presérver les &options "},
        {"SpanishLang", "Spanish", "&Verbos", "&Archivo", "&Salir", "Grabar &configuraciòn actual"},
        {"LatinLang", "Latin", "&Conjugationes", "&Actiones", "&Egressus", "&Optiones conserve!"},
        {"EnglishLang", "English", "&Verbs", "&File", "E&xit", "Save &Current Settings"}};
    for (const auto& [chosen, name, verbs, file, exit, save] : languages) {
        choose(menu, chosen);
        EXPECT_EQ(settings.CurrentLanguage, name);
        EXPECT_EQ(control<QPushButton>(menu, "ConjugationButton").text(), verbs);
        EXPECT_EQ(item(menu, "FileConj").text(), verbs);
        EXPECT_EQ(control<QMenu>(menu, "FileMenu").title(), file);
        EXPECT_EQ(item(menu, "FileExit").text(), exit);
        EXPECT_EQ(item(menu, "SaveSettings").text(), save);
    }
    EXPECT_EQ(settings.SettingsChangeCount, 5);
}

TEST_F(MainMenu, LeavesTheNorwegianItemAsItIsInLatin)
{
    QWidget& menu = start();
    choose(menu, "GermanLang");
    choose(menu, "LatinLang");
    EXPECT_EQ(item(menu, "NorwegianLang").text(), "&Norwegisch");
    EXPECT_EQ(tests::label(menu, "VersionLine"), "Versio VI");
}

TEST_F(MainMenu, KeepsOneLanguageCheckedAndTwoUnavailable)
{
    QWidget& menu = start();
    choose(menu, "LatinLang");
    choose(menu, "LatinLang");
    EXPECT_EQ(settings.SettingsChangeCount, 2);
    for (const char* const name : {"EnglishLang", "FrenchLang", "ItalianLang", "GermanLang", "SpanishLang",
                                   "LatinLang", "NorwegianLang"})
        EXPECT_EQ(item(menu, name).isChecked(), name == std::string("LatinLang")) << name;
    EXPECT_FALSE(item(menu, "ItalianLang").isEnabled());
    EXPECT_FALSE(item(menu, "NorwegianLang").isEnabled());
    EXPECT_TRUE(item(menu, "FrenchLang").isEnabled());
}

TEST_F(MainMenu, ChangesTheSettings)
{
    QWidget& menu = start();
    choose(menu, "RandomOrder");
    choose(menu, "NADGABOrder");
    choose(menu, "SoundStatus");
    EXPECT_EQ(settings.QuestionOrder, "Random");
    EXPECT_EQ(settings.CaseOrder, "NAGDAb");
    EXPECT_EQ(settings.SoundOn, FlagTrue);
    EXPECT_EQ(settings.SettingsChangeCount, 3);
    EXPECT_FALSE(item(menu, "SequentialOrder").isChecked());
    EXPECT_FALSE(item(menu, "NGDAABOrder").isChecked());

    choose(menu, "SaveSettings");
    choose(menu, "VowelLengthVal");
    EXPECT_EQ(settings.SaveSettingsOnExit, FlagFalse);
    EXPECT_EQ(settings.ShowVowelLength, FlagTrue);
    EXPECT_EQ(settings.SettingsChangeCount, 3);
    choose(menu, "SoundStatus");
    EXPECT_EQ(settings.SoundOn, FlagFalse);
}

// By control: the window, the exercise, and the mark where `ShowVowelLength` is -1, 0 and 1.
TEST_F(MainMenu, OpensEachExerciseByButtonAndItemWithHelpAtHand)
{
    struct Opener {
        const char* control;
        const char* window;
        const char* exercise;
        std::array<const char*, 3> marks;
    };
    constexpr std::array<const char*, 3> setForDrill = {"", "", ":"};
    constexpr std::array<const char*, 3> leftAlone = {"x", "x", "x"};
    constexpr Opener openers[] = {
        {"ConjugationButton", "ConjugationChoose", "Conjugation", setForDrill},
        {"FileConj", "ConjugationChoose", "Conjugation", setForDrill},
        {"DeclensionButton", "DeclinationChoose", "Declination", setForDrill},
        {"FileDecl", "DeclinationChoose", "Declination", setForDrill},
        {"PronounButton", "PronounChooser", "Pronouns", leftAlone},
        {"FilePron", "PronounChooser", "Pronouns", leftAlone},
        {"VocabularyButton", "Vcabtester", "Vcabtester", leftAlone},
        {"MainVocabulary", "Vcabtester", "Vcabtester", leftAlone},
        {"FileNounQuiz", "NounQuiz", "", {":", "x", "x"}},
        {"FileNounManager", "NounHandler", "", leftAlone},
        {"FileVerbManager", "VerbManager", "", leftAlone},
        {"FileVcabManager", "VcabManager", "", leftAlone},
        {"SetDelay", "DelayInterval", "", leftAlone},
        {"OptionsOptions", "frmOptions", "", leftAlone},
        {"MainABout", "About", "", leftAlone},
    };
    for (const Opener& opener : openers)
        for (int shown = -1; shown <= 1; ++shown) {
            SCOPED_TRACE(opener.control);
            start();
            settings.ShowVowelLength = static_cast<platform::Flag>(shown);
            settings.VowelMark = "x";
            QWidget& window = open(opener.control, opener.window);
            EXPECT_EQ(settings.VowelMark, opener.marks.at(static_cast<std::size_t>(shown + 1)));
            if (*opener.exercise != '\0') {
                EXPECT_EQ(settings.ExerciseType, opener.exercise);
            }
            tests::press(window, Qt::Key_F1);
            EXPECT_NE(shownWindow("Help"), nullptr);
        }
}

TEST_F(MainMenu, OpensTheGuideWhereNoViewerCanBeStarted)
{
    tests::writeFile("morvanti.hlp", "How to drill");
    QWidget& menu = start();
    tests::press(menu, Qt::Key_F1);
    EXPECT_EQ(fake.programs, std::vector<std::string>{"winhelp.exe morvanti.hlp"});
    tests::click(shown("Help"), "Command1");
    EXPECT_EQ(shownWindow("Help"), nullptr);

    fake.programsStart = true;
    choose(menu, "HELPME");
    EXPECT_EQ(shownWindow("Help"), nullptr);
}

TEST_F(MainMenu, ShowsAndClosesTheAboutWindow)
{
    QWidget& menu = start();
    choose(menu, "GermanLang");
    QCoreApplication::setApplicationVersion("1.2.3");
    choose(menu, "MainABout");
    EXPECT_EQ(tests::label(shown("About"), "AboutVersion"), "Morvanti 1.2.3  ·  MIT");
    tests::click(shown("About"), "Command1");
    EXPECT_EQ(shownWindow("About"), nullptr);
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
