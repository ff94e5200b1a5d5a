#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbdrills/conjugation_drill.h"
#include "verbs/verb_list.h"
#include "verbs/verb_tables.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>

#include <tuple>

namespace {

using shell::settings;
using tests::control;
using tests::label;
using tests::press;
using tests::shown;
using tests::shownWindow;

const QStringList PresentOfAmo = {"amo", "amas", "amat", "amamus", "amatis", "amant"};

// One verb of each class, without marks.
class ConjugationWindows : public tests::WindowTest {
protected:
    ConjugationWindows()
    {
        const char* const stems[][3] = {{"am", "amav", "amat"},
                                        {"mon", "monu", "monit"},
                                        {"reg", "rex", "rect"},
                                        {"aud", "audiv", "audit"},
                                        {"cap", "cep", "capt"}};
        for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass) {
            const auto& [present, perfect, supine] = stems[verbClass - 1];
            verbs::storeVerb(verbClass, 1, {present, perfect, supine, {"love", "loved", "loved", "loving"}});
            verbs::verbList.Count[verbClass] = 1;
        }
        start();
    }

    // A drill may have been left for the tenses or for the classes.
    QWidget& openChooser()
    {
        for (const char* const left : {"TenseMoodChooser", "ConjugationChoose"})
            if (QWidget* const window = shownWindow(left))
                window->close();
        return open("ConjugationButton", "ConjugationChoose");
    }

    QWidget& openDrill(int row)
    {
        QWidget& chooser = openChooser();
        tests::clickRow(control<QListWidget>(chooser, "ConjugationList"), row);
        tests::click(chooser, "cchok");
        return shown("Conjugation");
    }

    QWidget& openTense(int row)
    {
        tests::doubleClickRow(control<QListWidget>(openChooser(), "ConjugationList"), 8);
        QWidget& tenses = shown("TenseMoodChooser");
        tests::clickRow(control<QListWidget>(tenses, "TenseMood"), row);
        press(tenses, Qt::Key_Return);
        return shown("Conjugation");
    }

    static QLineEdit& box(QWidget& drill, int person)
    {
        return control<QLineEdit>(drill, QStringLiteral("ConjText%1").arg(person));
    }

    static void answer(QWidget& drill, const QString& form)
    {
        tests::type(drill, form);
        press(drill, Qt::Key_Return);
    }

    // Answers what is asked, right, until the window is left or so many answers were given.
    static void answerRightly(QWidget& drill, int times)
    {
        for (int i = 0; i < times && drill.isVisible(); ++i)
            answer(drill, QString::fromStdString(verbdrills::conjugationDrill.CorrectForm));
    }

    static void expectEmptyBoxes(QWidget& drill)
    {
        for (int person = 0; person < 6; ++person) {
            EXPECT_EQ(box(drill, person).text(), "");
            EXPECT_NE(box(drill, person).palette().color(QPalette::Base), QColor(0x80, 0x80, 0x80));
        }
    }
};

TEST_F(ConjugationWindows, EnableOkOnceARowIsChosenAndIgnoreEnterBefore)
{
    QWidget& chooser = openChooser();
    EXPECT_FALSE(control<QPushButton>(chooser, "cchok").isEnabled());
    press(chooser, Qt::Key_Return);
    EXPECT_TRUE(chooser.isVisible());
    press(chooser, Qt::Key_Down);
    EXPECT_TRUE(control<QPushButton>(chooser, "cchok").isEnabled());
    press(chooser, Qt::Key_Return);
    EXPECT_NE(shownWindow("Conjugation"), nullptr);
    EXPECT_EQ(verbs::currentParadigm.ConjugationCode, 1);
    EXPECT_EQ(settings.ActiveWindowName, "conjugation");
}

TEST_F(ConjugationWindows, GoBackStepByStep)
{
    tests::click(openTense(3), "Cquit");
    tests::click(shown("TenseMoodChooser"), "TenseMoodCancel");
    shown("ConjugationChoose").close();
    EXPECT_NE(shownWindow("MainMenu"), nullptr);
    openDrill(1).close();
    EXPECT_NE(shownWindow("ConjugationChoose"), nullptr);
}

TEST_F(ConjugationWindows, DrillAWholeTenseAndGoOnToTheNext)
{
    QWidget& drill = openDrill(0);
    EXPECT_EQ(label(drill, "TitleLabel"), "First Conjugation");
    EXPECT_EQ(label(drill, "VerbLabel"), "amare");
    EXPECT_EQ(label(drill, "TenseLabel"), "Present Indicative");
    EXPECT_EQ(label(drill, "Ctransl0"), "I love");
    for (int person = 0; person < 6; ++person) {
        EXPECT_EQ(tests::focusIn(drill), QStringLiteral("ConjText%1").arg(person));
        answer(drill, PresentOfAmo.at(person));
        EXPECT_EQ(label(drill, "ScoreLabel"), " 100% ");
    }
    EXPECT_EQ(label(drill, "TenseLabel"), "Imperfect Indicative");
    EXPECT_EQ(label(drill, "Ctransl0"), "I was loving");
    EXPECT_EQ(label(drill, "Ctransl5"), "");
    expectEmptyBoxes(drill);
}

TEST_F(ConjugationWindows, BeepWhereThereIsNoFormToShow)
{
    QWidget& drill = openTense(10);
    tests::type(drill, "/");
    EXPECT_EQ(fake.beeps, 1);
    press(drill, Qt::Key_Return);
    EXPECT_EQ(label(drill, "ScoreLabel"), " 100% ");
    EXPECT_EQ(label(drill, "Ctransl1"), "love!");
}

TEST_F(ConjugationWindows, ReachTheButtonsWithTheTabKey)
{
    QWidget& drill = openDrill(0);
    for (const char* const name : {"ConjText0", "Ccontinue", "ConjQuestion", "Cquit"}) {
        EXPECT_EQ(tests::focusIn(drill), name);
        press(drill, Qt::Key_Tab);
    }
}

TEST_F(ConjugationWindows, DrillASingleTenseThroughTheRegularClasses)
{
    QWidget& drill = openTense(3);
    EXPECT_EQ(label(drill, "TenseLabel"), "Perfect Indicative");
    EXPECT_EQ(label(drill, "Ctransl0"), "I loved,  have loved");
    for (const char* const verb : {"amare", "monere", "regere", "audire", "capere"}) {
        EXPECT_EQ(label(drill, "VerbLabel"), verb);
        answerRightly(drill, 6);
    }
    EXPECT_NE(shownWindow("TenseMoodChooser"), nullptr);
    EXPECT_EQ(shownWindow("Conjugation"), nullptr);
    EXPECT_EQ(settings.RightCount, 30);
}

// The title of esse's class is meant to name velle.
TEST_F(ConjugationWindows, LeaveTheDrillWhereAnIrregularVerbEnds)
{
    for (const auto& [row, title, verb, tenses] :
         {std::tuple{5, "Velle", "Esse", 11}, {6, "Esse", "Velle", 10}, {7, "", "ferre", 21}}) {
        QWidget& drill = openDrill(row);
        EXPECT_EQ(drill.windowTitle(), "");
        EXPECT_EQ(label(drill, "TitleLabel"), title);
        EXPECT_EQ(label(drill, "VerbLabel"), verb);
        answerRightly(drill, tenses * 6 - 1);
        EXPECT_TRUE(drill.isVisible()) << verb;
        answerRightly(drill, 1);
        EXPECT_FALSE(drill.isVisible()) << verb;
    }
}

// French has no tenses of its own; Italian goes back to the designed texts.
TEST_F(ConjugationWindows, SpeakTheLanguageOfTheInterface)
{
    const std::array<const char*, 7> languages[] = {
        {"German", "Eine Konjugation Auswählen", "Futur Perfekt Indikativ", "&OK", "&Abbruch", "Merhzahl",
         ""},
        {"Italian", "Choose a Conjugation", "Future Perfect Indicative", "&OK", "&Quit", "Plural", ""},
        {"French", "Choisez Vous une conjugation!", "Future Perfect Indicative", "&OK", "&Non",
         "Numerus Pluralis", ""},
        {"Latin", "Conjugationem elige!", "Futurum Perfectum Indicativum", "&Sic", "&Reverte!",
         "Numerus Pluralis", ""},
        {"English", "Choose a Conjugation", "Future Perfect Indicative", "&OK", "&Quit", "Plural",
         "I will have loved"}};
    for (const auto& [language, title, tense, ok, quit, plural, gloss] : languages) {
        SCOPED_TRACE(language);
        settings.CurrentLanguage = language;
        QWidget& drill = openTense(5);
        EXPECT_EQ(label(drill, "TenseLabel"), tense);
        EXPECT_EQ(control<QPushButton>(drill, "Cquit").text(), quit);
        EXPECT_EQ(label(drill, "Plural"), plural);
        EXPECT_EQ(label(drill, "Ctransl0"), gloss);
        drill.close();
        QWidget& tenses = shown("TenseMoodChooser");
        EXPECT_EQ(control<QPushButton>(tenses, "TenseMoodOK").text(), ok);
        EXPECT_EQ(control<QListWidget>(tenses, "TenseMood").item(5)->text(), tense);
        tenses.close();
        EXPECT_EQ(shown("ConjugationChoose").windowTitle(), title);
        EXPECT_EQ(control<QListWidget>(shown("ConjugationChoose"), "ConjugationList").count(), 9);
    }
}

TEST_F(ConjugationWindows, ForgetTheirChoiceOrKeepItOnActivation)
{
    const auto leaveForHelp = [](QWidget& window) {
        press(window, Qt::Key_F1);
        press(shown("Help"), Qt::Key_Escape);
        QApplication::setActiveWindow(&window);
    };
    QWidget& chooser = openChooser();
    tests::clickRow(control<QListWidget>(chooser, "ConjugationList"), 8);
    leaveForHelp(chooser);
    EXPECT_FALSE(control<QPushButton>(chooser, "cchok").isEnabled());
    EXPECT_EQ(settings.ActiveWindowName, "conjchoose");
    tests::doubleClickRow(control<QListWidget>(chooser, "ConjugationList"), 8);
    QWidget& tenses = shown("TenseMoodChooser");
    tests::clickRow(control<QListWidget>(tenses, "TenseMood"), 3);
    leaveForHelp(tenses);
    EXPECT_TRUE(control<QPushButton>(tenses, "TenseMoodOK").isEnabled());
    EXPECT_EQ(settings.ActiveWindowName, "tensemood");
}

TEST_F(ConjugationWindows, BeginAfreshAfterARoundThatWasLeftOrATenseThatEnded)
{
    settings.QuestionOrder = "Random";
    answerRightly(openDrill(0), 4);
    shown("Conjugation").close();
    answerRightly(openDrill(0), 6);
    EXPECT_EQ(label(shown("Conjugation"), "TenseLabel"), "Imperfect Indicative");
    shown("Conjugation").close();

    settings.QuestionOrder = "Sequential";
    answerRightly(openTense(3), 30);
    QWidget& drill = openDrill(0);
    EXPECT_EQ(label(drill, "TenseLabel"), "Present Indicative");
    EXPECT_EQ(label(drill, "ScoreLabel"), "");
    EXPECT_EQ(tests::focusIn(drill), "ConjText0");
    expectEmptyBoxes(drill);
}

TEST_F(ConjugationWindows, KeepTheFrameOfAMaximisedChooserALittleToTheLeft)
{
    settings.MainWindowState = 2;
    QWidget& chooser = openChooser();
    const auto& frame = control<QFrame>(chooser, "CCBigFrame");
    const QSize screen = chooser.screen()->geometry().size();
    EXPECT_EQ(frame.x(), static_cast<int>(screen.width() / 2.0 - frame.width() / 1.9));
    EXPECT_EQ(frame.y(), static_cast<int>(screen.height() / 2.0 - frame.height() / 2.0));
}

TEST_F(ConjugationWindows, SeeTheirJudgementInTheLanguageOfTheInterface)
{
    for (const auto& [language, right, wrong] : {std::tuple{"Italian", "Right!", "Wrong!"},
                                                 {"French", "Bon!", "Wrong!"},
                                                 {"Latin", "Verum", "Falsum"}}) {
        settings.CurrentLanguage = language;
        QWidget& drill = openDrill(0);
        for (const auto& [typed, window, caption] :
             {std::tuple{"x", "Wrong", wrong}, std::tuple{"amo", "Bravo", right}}) {
            duringPause([&, name = window, text = caption] {
                const QWidget& feedback = shown(name);
                EXPECT_EQ(feedback.findChild<QLabel*>()->text(), text);
                const QSize screen = drill.screen()->geometry().size();
                EXPECT_EQ(feedback.x(), screen.width() - feedback.width() - feedback.width() / 10);
                EXPECT_EQ(feedback.y(), static_cast<int>(screen.height() / 1.5));
            });
            answer(drill, typed);
        }
        drill.close();
    }
    EXPECT_EQ(fake.waits, 6);
}

} // namespace
