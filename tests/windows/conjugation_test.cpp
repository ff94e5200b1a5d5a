#include "app/navigation.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbdrills/conjugation_drill.h"
#include "verbs/verb_list.h"
#include "verbs/verb_tables.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>

#include <set>
#include <tuple>

namespace {

using shell::settings;
using tests::control;
using tests::press;
using tests::shownWindow;

const QStringList PresentOfAmo = {"amo", "amas", "amat", "amamus", "amatis", "amant"};

// One verb of each class, without marks.
class ConjugationWindows : public tests::WindowTest {
protected:
    void SetUp() override
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
        navigation_.start();
    }

    QWidget& openChooser()
    {
        tests::click(*shownWindow("MainMenu"), "ConjugationButton");
        return *shownWindow("ConjugationChoose");
    }

    QWidget& openDrill(int row)
    {
        QWidget& chooser = openChooser();
        tests::clickRow(control<QListWidget>(chooser, "ConjugationList"), row);
        tests::click(chooser, "cchok");
        return *shownWindow("Conjugation");
    }

    QWidget& openTense(int row)
    {
        QWidget& chooser = openChooser();
        tests::doubleClickRow(control<QListWidget>(chooser, "ConjugationList"), 8);
        QWidget& tenses = *shownWindow("TenseMoodChooser");
        tests::clickRow(control<QListWidget>(tenses, "TenseMood"), row);
        press(tenses, Qt::Key_Return);
        return *shownWindow("Conjugation");
    }

    static QLineEdit& box(QWidget& drill, int person)
    {
        return control<QLineEdit>(drill, QStringLiteral("ConjText%1").arg(person));
    }

    static QString label(QWidget& drill, const QString& name) { return control<QLabel>(drill, name).text(); }

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

    static QColor ground(const QLineEdit& field) { return field.palette().color(QPalette::Base); }

    app::Navigation navigation_;
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
    QWidget& drill = openTense(3);
    tests::click(drill, "Cquit");
    QWidget* const tenses = shownWindow("TenseMoodChooser");
    ASSERT_NE(tenses, nullptr);
    tests::click(*tenses, "TenseMoodCancel");
    QWidget* const chooser = shownWindow("ConjugationChoose");
    ASSERT_NE(chooser, nullptr);
    chooser->close();
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
        if (person < 5) {
            EXPECT_EQ(box(drill, person).text(), PresentOfAmo.at(person));
            EXPECT_EQ(ground(box(drill, person)), QColor(0x80, 0x80, 0x80));
        }
    }
    EXPECT_EQ(label(drill, "TenseLabel"), "Imperfect Indicative");
    EXPECT_EQ(label(drill, "Ctransl0"), "I was loving");
    EXPECT_EQ(label(drill, "Ctransl5"), "");
    for (int person = 0; person < 6; ++person) {
        EXPECT_EQ(box(drill, person).text(), "");
        EXPECT_NE(ground(box(drill, person)), QColor(0x80, 0x80, 0x80));
    }
}

TEST_F(ConjugationWindows, AskTheSamePersonAgainAfterAWrongAnswer)
{
    QWidget& drill = openDrill(0);
    answer(drill, "Amo");
    EXPECT_EQ(label(drill, "ScoreLabel"), " 0% ");
    EXPECT_EQ(box(drill, 0).text(), "");
    EXPECT_EQ(tests::focusIn(drill), "ConjText0");
    answer(drill, "amo");
    EXPECT_EQ(label(drill, "ScoreLabel"), " 50% ");
}

TEST_F(ConjugationWindows, ShowTheAnswerInRedForAPauseWithoutCounting)
{
    QWidget& drill = openDrill(0);
    tests::type(drill, "am");
    bool shown = false;
    fake.whileWaiting = [&] {
        QApplication::processEvents();
        shown = true;
        EXPECT_EQ(box(drill, 0).text(), "amo");
        EXPECT_EQ(box(drill, 0).palette().color(QPalette::Text), QColor(0xFF, 0, 0));
        press(drill, Qt::Key_Return);
        tests::type(drill, "/x?");
        tests::click(drill, "Ccontinue");
        tests::click(drill, "ConjQuestion");
    };
    tests::type(drill, "?");
    EXPECT_TRUE(shown);
    EXPECT_EQ(fake.waits, 1);
    EXPECT_EQ(box(drill, 0).text(), "");
    EXPECT_EQ(box(drill, 0).palette().color(QPalette::Text), QColor(0, 0, 0xFF));
    EXPECT_EQ(settings.AnsweredCount, 0);
    EXPECT_EQ(verbdrills::conjugationDrill.PersonIndex, 0);
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

TEST_F(ConjugationWindows, ScoreOnceHoweverOftenEnterIsPressed)
{
    QWidget& drill = openDrill(0);
    fake.whileWaiting = [&] {
        QApplication::processEvents();
        EXPECT_NE(shownWindow("Bravo"), nullptr);
        press(drill, Qt::Key_Return);
        tests::type(drill, "zzz");
        tests::click(drill, "Ccontinue");
        tests::type(drill, "?");
    };
    answer(drill, "amo");
    EXPECT_EQ(settings.AnsweredCount, 1);
    EXPECT_EQ(box(drill, 0).text(), "amo");
    EXPECT_EQ(box(drill, 1).text(), "");
    EXPECT_EQ(shownWindow("Bravo"), nullptr);
}

TEST_F(ConjugationWindows, TakeAHeldEnterForOne)
{
    QWidget& drill = openDrill(0);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    answer(drill, "amo");
    for (int i = 0; i < 3; ++i)
        QApplication::sendEvent(drill.focusWidget(), &held);
    EXPECT_EQ(settings.AnsweredCount, 1);
}

TEST_F(ConjugationWindows, LeaveAtOnceInAPauseAndDoNotMoveOn)
{
    for (const bool right : {true, false}) {
        QWidget& drill = openDrill(0);
        fake.whileWaiting = [&] {
            fake.whileWaiting = [] { QApplication::processEvents(); };
            tests::click(drill, "Cquit");
            EXPECT_EQ(shownWindow(right ? "Bravo" : "Wrong"), nullptr);
            EXPECT_NE(shownWindow("ConjugationChoose"), nullptr);
        };
        answer(drill, right ? "amo" : "x");
        EXPECT_EQ(verbdrills::conjugationDrill.PersonIndex, 0);
        EXPECT_EQ(shownWindow("Conjugation"), nullptr);
        shownWindow("ConjugationChoose")->close();
    }
}

TEST_F(ConjugationWindows, SendTheFocusBackToThePersonAsked)
{
    QWidget& drill = openDrill(0);
    QTest::mouseClick(&box(drill, 4), Qt::LeftButton);
    EXPECT_EQ(verbdrills::conjugationDrill.FocusedBox, 4);
    QApplication::processEvents();
    EXPECT_EQ(tests::focusIn(drill), "ConjText0");
    EXPECT_EQ(verbdrills::conjugationDrill.FocusedBox, 0);
}

TEST_F(ConjugationWindows, ReachTheButtonsWithTheTabKey)
{
    QWidget& drill = openDrill(0);
    QStringList order;
    for (int i = 0; i < 4; ++i) {
        order << tests::focusIn(drill);
        press(drill, Qt::Key_Tab);
    }
    EXPECT_EQ(order, (QStringList{"ConjText0", "Ccontinue", "ConjQuestion", "Cquit"}));
}

TEST_F(ConjugationWindows, DrillASingleTenseThroughTheRegularClasses)
{
    QWidget& drill = openTense(3);
    EXPECT_EQ(label(drill, "TenseLabel"), "Perfect Indicative");
    EXPECT_EQ(label(drill, "Ctransl0"), "I loved,  have loved");
    const QStringList verbs = {"amare", "monere", "regere", "audire", "capere"};
    for (const QString& verb : verbs) {
        EXPECT_EQ(label(drill, "VerbLabel"), verb);
        answerRightly(drill, 6);
    }
    EXPECT_NE(shownWindow("TenseMoodChooser"), nullptr);
    EXPECT_EQ(shownWindow("Conjugation"), nullptr);
    EXPECT_EQ(settings.RightCount, 30);
}

TEST_F(ConjugationWindows, LeaveTheDrillWhereAnIrregularVerbEnds)
{
    for (const auto& [row, verb, blocks] :
         {std::tuple{5, "Esse", 11}, std::tuple{6, "Velle", 10}, std::tuple{7, "ferre", 21}}) {
        QWidget& drill = openDrill(row);
        EXPECT_EQ(label(drill, "VerbLabel"), verb);
        answerRightly(drill, blocks * 6 - 1);
        EXPECT_TRUE(drill.isVisible()) << verb;
        answerRightly(drill, 1);
        EXPECT_FALSE(drill.isVisible()) << verb;
        shownWindow("ConjugationChoose")->close();
    }
}

TEST_F(ConjugationWindows, AskEveryPersonOnceInRandomOrder)
{
    settings.QuestionOrder = "Random";
    QWidget& drill = openDrill(0);
    std::set<int> asked;
    for (int i = 0; i < 6; ++i) {
        asked.insert(verbdrills::conjugationDrill.PersonIndex);
        EXPECT_NE(label(drill, QStringLiteral("Ctransl%1").arg(verbdrills::conjugationDrill.PersonIndex)),
                  "");
        answerRightly(drill, 1);
    }
    EXPECT_EQ(asked.size(), 6U);
    EXPECT_EQ(label(drill, "TenseLabel"), "Imperfect Indicative");
}

TEST_F(ConjugationWindows, SpeakTheLanguageOfTheInterface)
{
    struct Language {
        const char* name;
        const char* chooser;
        const char* tense;
        const char* tenseOk;
        const char* quit;
        const char* plural;
        const char* help;
        const char* gloss;
    };
    constexpr Language languages[] = {
        {"German", "Eine Konjugation Auswählen", "Futur Perfekt Indikativ", "&OK", "&Abbruch", "Merhzahl",
         "Hilfe=F1", ""},
        {"French", "Choisez Vous une conjugation!", "Future Perfect Indicative", "&OK", "&Non",
         "Numerus Pluralis", "Assistance=F1", ""},
        {"Spanish", "Elegir una conjugatión", "Futuro perfecto de indicativo", "&Si", "&Salir", "Plural",
         "Ayuda=F1", ""},
        {"Latin", "Conjugationem elige!", "Futurum Perfectum Indicativum", "&Sic", "&Reverte!",
         "Numerus Pluralis", "Auxilium=F1", ""},
        {"English", "Choose a Conjugation", "Future Perfect Indicative", "&OK", "&Quit", "Plural", "Help=F1",
         "I will have loved"},
    };
    for (const Language& language : languages) {
        SCOPED_TRACE(language.name);
        settings.CurrentLanguage = language.name;
        QWidget& drill = openTense(5);
        EXPECT_EQ(label(drill, "TenseLabel"), language.tense);
        EXPECT_EQ(control<QPushButton>(drill, "Cquit").text(), language.quit);
        EXPECT_EQ(label(drill, "Plural"), language.plural);
        EXPECT_EQ(label(drill, "HelpLabel"), language.help);
        EXPECT_EQ(label(drill, "Ctransl0"), language.gloss);
        drill.close();
        QWidget& chooser = *shownWindow("TenseMoodChooser");
        EXPECT_EQ(control<QPushButton>(chooser, "TenseMoodOK").text(), language.tenseOk);
        EXPECT_EQ(control<QListWidget>(chooser, "TenseMood").item(5)->text(), language.tense);
        chooser.close();
        EXPECT_EQ(shownWindow("ConjugationChoose")->windowTitle(), language.chooser);
        shownWindow("ConjugationChoose")->close();
    }
}

TEST_F(ConjugationWindows, GoBackToTheDesignedTextsInItalian)
{
    settings.CurrentLanguage = "German";
    openDrill(0).close();
    shownWindow("ConjugationChoose")->close();
    settings.CurrentLanguage = "Italian";
    QWidget& drill = openTense(5);
    EXPECT_EQ(label(drill, "Plural"), "Plural");
    drill.close();
    const auto& tenses = control<QListWidget>(*shownWindow("TenseMoodChooser"), "TenseMood");
    EXPECT_EQ(tenses.item(5)->text(), "Future Perfect Indicative");
    shownWindow("TenseMoodChooser")->close();
    QWidget& chooser = *shownWindow("ConjugationChoose");
    EXPECT_EQ(chooser.windowTitle(), "Choose a Conjugation");
    EXPECT_EQ(control<QListWidget>(chooser, "ConjugationList").count(), 9);
}

TEST_F(ConjugationWindows, ForgetTheirChoiceOrKeepItOnActivation)
{
    QWidget& chooser = openChooser();
    tests::clickRow(control<QListWidget>(chooser, "ConjugationList"), 8);
    tests::press(chooser, Qt::Key_F1);
    press(*shownWindow("Help"), Qt::Key_Escape);
    QApplication::setActiveWindow(&chooser);
    EXPECT_FALSE(control<QPushButton>(chooser, "cchok").isEnabled());
    EXPECT_EQ(settings.ActiveWindowName, "conjchoose");

    tests::doubleClickRow(control<QListWidget>(chooser, "ConjugationList"), 8);
    QWidget& tenses = *shownWindow("TenseMoodChooser");
    tests::clickRow(control<QListWidget>(tenses, "TenseMood"), 3);
    tests::press(tenses, Qt::Key_F1);
    press(*shownWindow("Help"), Qt::Key_Escape);
    QApplication::setActiveWindow(&tenses);
    EXPECT_TRUE(control<QPushButton>(tenses, "TenseMoodOK").isEnabled());
    EXPECT_EQ(settings.ActiveWindowName, "tensemood");
}

TEST_F(ConjugationWindows, BeginAfreshAfterARoundThatWasLeftOrATenseThatEnded)
{
    settings.QuestionOrder = "Random";
    answerRightly(openDrill(0), 4);
    shownWindow("Conjugation")->close();
    shownWindow("ConjugationChoose")->close();
    answerRightly(openDrill(0), 6);
    EXPECT_EQ(label(*shownWindow("Conjugation"), "TenseLabel"), "Imperfect Indicative");
    shownWindow("Conjugation")->close();
    shownWindow("ConjugationChoose")->close();

    settings.QuestionOrder = "Sequential";
    answerRightly(openTense(3), 30);
    shownWindow("TenseMoodChooser")->close();
    shownWindow("ConjugationChoose")->close();
    QWidget& drill = openDrill(0);
    EXPECT_EQ(label(drill, "TenseLabel"), "Present Indicative");
    EXPECT_EQ(label(drill, "ScoreLabel"), "");
    EXPECT_EQ(tests::focusIn(drill), "ConjText0");
    for (int person = 0; person < 6; ++person)
        EXPECT_EQ(box(drill, person).text(), "");
}

// The title of esse's class is meant to name velle.
TEST_F(ConjugationWindows, TitleEsseAsTheTablesHaveIt)
{
    QWidget& drill = openDrill(5);
    EXPECT_EQ(drill.windowTitle(), "");
    EXPECT_EQ(label(drill, "TitleLabel"), "Velle");
    EXPECT_EQ(label(drill, "VerbLabel"), "Esse");
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
    constexpr const char* languages[][3] = {
        {"English", "Right!", "Wrong!"},   {"Italian", "Right!", "Wrong!"}, {"French", "Bon!", "Wrong!"},
        {"German", "Richtig!", "Falsch!"}, {"Spanish", "¡Bien!", "¡Mal!"},  {"Latin", "Verum", "Falsum"}};
    for (const auto& [language, right, wrong] : languages) {
        settings.CurrentLanguage = language;
        QWidget& drill = openDrill(0);
        for (const auto& [typed, window, caption] :
             {std::tuple{"x", "Wrong", wrong}, std::tuple{"amo", "Bravo", right}}) {
            QString shown;
            fake.whileWaiting = [&] {
                QApplication::processEvents();
                shown = shownWindow(window)->findChild<QLabel*>()->text();
                const QRect place = shownWindow(window)->geometry();
                const QSize screen = drill.screen()->geometry().size();
                EXPECT_EQ(place.x(), screen.width() - place.width() - place.width() / 10);
                EXPECT_EQ(place.y(), static_cast<int>(screen.height() / 1.5));
            };
            answer(drill, typed);
            EXPECT_EQ(shown, caption) << language;
        }
        drill.close();
        shownWindow("ConjugationChoose")->close();
    }
}

} // namespace
