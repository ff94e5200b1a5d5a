#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbdrills/conjugation_drill.h"
#include "verbs/verb_list.h"

#include <QFrame>
#include <QScreen>

namespace {

using namespace tests;
using shell::settings;

// One verb of each class, without marks.
class ConjugationWindows : public WindowTest {
protected:
    ConjugationWindows()
    {
        constexpr std::pair<const char*, const char*> Stems[] = {
            {"am", "amav"}, {"mon", "monu"}, {"reg", "rex"}, {"aud", "audiv"}, {"cap", "cep"}};
        for (int verbClass = 0; const auto& [present, perfect] : Stems) {
            verbs::storeVerb(++verbClass, 1, {present, perfect, "", {"love", "loved", "loved", "loving"}});
            verbs::verbList.Count[verbClass] = 1;
        }
        start();
    }

    QWidget& openDrill(int row)
    {
        return openRow("ConjugationButton", "ConjugationChoose", row, "Conjugation");
    }

    static void answerRightly(QWidget& drill, int times)
    {
        for (int i = 0; i < times && drill.isVisible(); ++i)
            answer(drill, QString::fromStdString(verbdrills::conjugationDrill.CorrectForm));
    }

    static void expectNewRound(QWidget& drill, const char* tense, const char* gloss)
    {
        EXPECT_EQ(label(drill, "TenseLabel"), tense);
        EXPECT_EQ(label(drill, "Ctransl0"), gloss);
        EXPECT_EQ(label(drill, "Ctransl5"), "");
        EXPECT_EQ(focusIn(drill), "ConjText0");
        for (const QLineEdit* const line : drill.findChildren<QLineEdit*>()) {
            EXPECT_EQ(line->text(), "");
            EXPECT_NE(line->palette().color(QPalette::Base), QColor(0x80, 0x80, 0x80));
        }
    }
};

// Enter takes the first row though none is chosen; a look at the help forgets the row that was.
TEST_F(ConjugationWindows, DrillAWholeTenseFromTheKeyboard)
{
    QWidget& chooser = open("ConjugationButton", "ConjugationChoose");
    press(chooser, Qt::Key_Down, 2);
    EXPECT_TRUE(button(chooser, "cchok").isEnabled());
    press(chooser, Qt::Key_F1);
    press(shown("Help"), Qt::Key_Escape);
    QApplication::setActiveWindow(&chooser);
    EXPECT_FALSE(button(chooser, "cchok").isEnabled());
    EXPECT_EQ(settings.ActiveWindowName, "conjchoose");
    press(chooser, Qt::Key_Return);
    QWidget& drill = shown("Conjugation");
    expectNewRound(drill, "Present Indicative", "I love");
    for (const char* const form : {"amo", "amas", "amat", "amamus", "amatis", "amant"})
        answer(drill, form);
    EXPECT_EQ(label(drill, "ScoreLabel"), " 100% ");
    expectNewRound(drill, "Imperfect Indicative", "I was loving");
}

// The chooser of classes is hidden: that it is activated late begins no choice anew.
TEST_F(ConjugationWindows, DrillASingleTenseThroughTheRegularClassesAndBeginAfresh)
{
    QWidget& chooser = open("ConjugationButton", "ConjugationChoose");
    doubleClickRow(control<QListWidget>(chooser), 8);
    QApplication::setActiveWindow(&chooser);
    QWidget& tenses = shown("TenseMoodChooser");
    clickRow(list(tenses, "TenseMood"), 3);
    press(tenses, Qt::Key_Return);
    QWidget& drill = shown("Conjugation");
    expectNewRound(drill, "Perfect Indicative", "I loved,  have loved");
    for (const char* const stem : {"amav", "monu", "rex", "audiv", "cep"})
        for (const char* const ending : {"i", "isti", "it", "imus", "istis", "erunt"})
            answer(drill, QString(stem) + ending);
    EXPECT_EQ(settings.RightCount, 30);
    click(shown("TenseMoodChooser"), "TenseMoodCancel");
    EXPECT_NE(shownWindow("ConjugationChoose"), nullptr);
    EXPECT_EQ(label(openDrill(0), "ScoreLabel"), "");
    expectNewRound(drill, "Present Indicative", "I love");
}

// Esse bears the title of velle, and velle that of esse: sic. The ear is told the verb, and the glosses of a
// language that no menu has are German.
TEST_F(ConjugationWindows, DrillTheVerbOfEachRowToItsLastTense)
{
    for (int row = 0; const char* const verb :
                      {"amare", "monere", "regere", "capere", "audire", "Esse", "Velle", "ferre"}) {
        QWidget& drill = openDrill(row++);
        EXPECT_EQ(label(drill, "VerbLabel"), verb);
        const QString heading = row < 6 ? label(drill, "TitleLabel") : QString(verb).toLower();
        EXPECT_EQ(box(drill, "ConjText", 0).accessibleName(), heading + ": Present Indicative, I");
    }
    settings.CurrentLanguage = "Kraut";
    for (const auto& [row, title, tenses, gloss] :
         {std::tuple{5, "Velle", 11, "ich bin"}, {6, "Esse", 10, "ich will"}}) {
        QWidget& drill = openDrill(row);
        EXPECT_EQ(label(drill, "TitleLabel"), title);
        EXPECT_EQ(label(drill, "Ctransl0"), gloss);
        answerRightly(drill, tenses * 6 - 1);
        EXPECT_TRUE(drill.isVisible()) << title;
        answerRightly(drill, 1);
        EXPECT_NE(shownWindow("ConjugationChoose"), nullptr) << title;
    }
}

TEST_F(ConjugationWindows, StandInTheirPlacesWithTheJudgementBesideThem)
{
    settings.CurrentLanguage = shell::language::Latin;
    settings.MainWindowState = 2;
    QWidget& chooser = open("ConjugationButton", "ConjugationChoose");
    const auto& frame = control<QFrame>(chooser, "CCBigFrame");
    const QSize screen = chooser.screen()->geometry().size();
    EXPECT_EQ(frame.x(), static_cast<int>(screen.width() / 2.0 - frame.width() / 1.9));
    EXPECT_EQ(frame.y(), static_cast<int>(screen.height() / 2.0 - frame.height() / 2.0));
    QWidget& drill = openDrill(0);
    duringPause([&] {
        const QWidget& feedback = shown("Wrong");
        EXPECT_EQ(control<QLabel>(feedback).text(), "Falsum");
        EXPECT_EQ(feedback.pos(), QPoint(screen.width() - feedback.width() - feedback.width() / 10,
                                         static_cast<int>(screen.height() / 1.5)));
    });
    answer(drill, "x");
    for (int person = 0; person < 6; ++person) {
        const auto& gloss = control<QLabel>(drill, QStringLiteral("Ctransl%1").arg(person));
        EXPECT_EQ(gloss.x(), box(drill, "ConjText", person).x());
        EXPECT_GT(gloss.y(), box(drill, "ConjText", person).y());
    }
}

} // namespace
