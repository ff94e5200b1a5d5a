#include "app/navigation.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include <array>

namespace {

using platform::FlagFalse;
using platform::FlagTrue;
using shell::settings;
using tests::control;

class MainMenu : public tests::WindowTest {
protected:
    QWidget& start()
    {
        navigation_ = std::make_unique<app::Navigation>();
        navigation_->start();
        QApplication::processEvents();
        return *tests::shownWindow("MainMenu");
    }

    static QAction& item(QWidget& menu, const QString& name) { return control<QAction>(menu, name); }

private:
    std::unique_ptr<app::Navigation> navigation_;
};

TEST_F(MainMenu, SpeaksEachLanguageItCanBeSwitchedTo)
{
    QWidget& menu = start();
    struct Language {
        const char* item;
        const char* name;
        const char* verbs;
        const char* quiz;
        const char* exit;
        const char* fileMenu;
        const char* fileExit;
        const char* pronouns;
        const char* save;
        const char* vocabulary;
    };
    constexpr Language languages[] = {
        {"GermanLang", "German", "&Verben", "Ü&bung", "Be&enden", "&Datei", "Be&enden", "&Pronomen",
         "&Optionen speichern", "&Wortschatz"},
        {"FrenchLang", "French", "&Verbes", "Un &Exercice", "S&ortie", "&Actions", "&Sortie", "&Pronoms",
         "Presérver les &options ", "&Vocabulaire"},
        {"SpanishLang", "Spanish", "&Verbos", "P&rueba", "&Salir", "&Archivo", "&Salir", "&Pronombres",
         "Grabar &configuraciòn actual", "Vo&cabulario"},
        {"LatinLang", "Latin", "&Conjugationes", "Pro&batio", "&Egressus", "&Actiones", "&Egressus",
         "&Pronomia", "&Optiones conserve!", "&Verba nostra"},
        {"EnglishLang", "English", "&Verbs", "&Quiz", "E&xit", "&File", "E&xit", "&Pronouns",
         "Save &Current Settings", "&Vocabulary"},
    };
    for (const Language& language : languages) {
        item(menu, language.item).trigger();
        SCOPED_TRACE(language.name);
        EXPECT_EQ(settings.CurrentLanguage, language.name);
        EXPECT_EQ(control<QPushButton>(menu, "ConjugationButton").text(), language.verbs);
        EXPECT_EQ(item(menu, "FileConj").text(), language.verbs);
        EXPECT_EQ(control<QPushButton>(menu, "QuizButton").text(), language.quiz);
        EXPECT_EQ(control<QPushButton>(menu, "ExitButton").text(), language.exit);
        EXPECT_EQ(control<QMenu>(menu, "FileMenu").title(), language.fileMenu);
        EXPECT_EQ(control<QMenu>(menu, "VocabularyMenu").title(), language.vocabulary);
        EXPECT_EQ(item(menu, "FileExit").text(), language.fileExit);
        EXPECT_EQ(item(menu, "FilePron").text(), language.pronouns);
        EXPECT_EQ(item(menu, "SaveSettings").text(), language.save);
    }
    EXPECT_EQ(settings.SettingsChangeCount, 5);
}

TEST_F(MainMenu, LeavesTheNorwegianItemAsItIsInLatin)
{
    QWidget& menu = start();
    item(menu, "GermanLang").trigger();
    item(menu, "LatinLang").trigger();
    EXPECT_EQ(item(menu, "NorwegianLang").text(), "&Norwegisch");
    EXPECT_EQ(control<QLabel>(menu, "VersionLine").text(), "Versio VI");
}

TEST_F(MainMenu, KeepsOneLanguageCheckedAndTwoUnavailable)
{
    QWidget& menu = start();
    item(menu, "LatinLang").trigger();
    item(menu, "LatinLang").trigger();
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
    item(menu, "RandomOrder").trigger();
    item(menu, "NADGABOrder").trigger();
    item(menu, "SoundStatus").trigger();
    EXPECT_EQ(settings.QuestionOrder, "Random");
    EXPECT_EQ(settings.CaseOrder, "NAGDAb");
    EXPECT_EQ(settings.SoundOn, FlagTrue);
    EXPECT_EQ(settings.SettingsChangeCount, 3);
    EXPECT_FALSE(item(menu, "SequentialOrder").isChecked());
    EXPECT_FALSE(item(menu, "NGDAABOrder").isChecked());

    item(menu, "SaveSettings").trigger();
    item(menu, "VowelLengthVal").trigger();
    EXPECT_EQ(settings.SaveSettingsOnExit, FlagFalse);
    EXPECT_EQ(settings.ShowVowelLength, FlagTrue);
    EXPECT_EQ(settings.SettingsChangeCount, 3);
    item(menu, "SoundStatus").trigger();
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
            QWidget& menu = start();
            settings.ShowVowelLength = static_cast<platform::Flag>(shown);
            settings.VowelMark = "x";
            if (auto* const action = menu.findChild<QAction*>(opener.control))
                action->trigger();
            else
                tests::click(menu, opener.control);
            QWidget* const window = tests::shownWindow(opener.window);
            ASSERT_NE(window, nullptr);
            EXPECT_EQ(settings.VowelMark, opener.marks.at(static_cast<std::size_t>(shown + 1)));
            if (*opener.exercise != '\0') {
                EXPECT_EQ(settings.ExerciseType, opener.exercise);
            }
            tests::press(*window, Qt::Key_F1);
            EXPECT_NE(tests::shownWindow("Help"), nullptr);
        }
}

TEST_F(MainMenu, OpensTheGuideWhereNoViewerCanBeStarted)
{
    tests::writeFile("morvanti.hlp", "How to drill");
    QWidget& menu = start();
    tests::press(menu, Qt::Key_F1);
    EXPECT_EQ(fake.programs, std::vector<std::string>{"winhelp.exe morvanti.hlp"});
    QWidget* const help = tests::shownWindow("Help");
    ASSERT_NE(help, nullptr);
    tests::click(*help, "Command1");
    EXPECT_EQ(tests::shownWindow("Help"), nullptr);

    fake.programsStart = true;
    item(menu, "HELPME").trigger();
    EXPECT_EQ(tests::shownWindow("Help"), nullptr);
}

TEST_F(MainMenu, ShowsAndClosesTheAboutWindow)
{
    QWidget& menu = start();
    item(menu, "GermanLang").trigger();
    item(menu, "MainABout").trigger();
    QWidget* const about = tests::shownWindow("About");
    ASSERT_NE(about, nullptr);
    tests::click(*about, "Command1");
    EXPECT_EQ(tests::shownWindow("About"), nullptr);
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
