#include "platform/random.h"
#include "progress/sqlite/store_loader.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

namespace {

using namespace tests;

struct Exercise {
    const char* language;
    QStringList way; // from the main window, with the row of a chooser
    QString window;
    QString keys; // to the last answer, in whose pause the exercise is left
    QStringList rows;
    QString lastDrill;
};

// clang-format off
const Exercise Exercises[] = {
    {"English", {"ConjugationButton", "ConjugationChoose", "0"}, "Conjugation", "x⏎?laudo⏎lauda s⏎", {
        "laudare|First Conjugation / Present Indicative / 1st Person Sing|laudare, Present Indicative, 1st Person Sing|laudo|x|wrong",
        "laudare|First Conjugation / Present Indicative / 1st Person Sing|laudare, Present Indicative, 1st Person Sing|laudo|laudo|right",
        "laudare|First Conjugation / Present Indicative / 2nd Person Sing|laudare, Present Indicative, 2nd Person Sing|laudas|lauda s|wrong"},
        "0 right, 2 to repeat"},
    {"German", {"DeclensionButton", "DeclinationChoose", "0"}, "Declination", "⏎?terra⏎terrae⏎", {
        "terra|First Declension / Nominative Singular|terra, Nominative Einzahl|terra||wrong",
        "terra|First Declension / Nominative Singular|terra, Nominative Einzahl|terra|terra|right",
        "terra|First Declension / Genitive Singular|terra, Genitive Einzahl|terrae|terrae|right"},
        "1 richtig, 1 zu wiederholen"},
    {"Latin", {"PronounButton", "PronounChooser", "0"}, "PronounSingular", "x⏎?ego⏎mei⏎mihi⏎", {
        "ego|ego-tu-* / Nominative Singular / 1 Pers. Sing.|ego-tu-*, 1 Pers. Sing. Nominative|ego|x|wrong",
        "ego|ego-tu-* / Nominative Singular / 1 Pers. Sing.|ego-tu-*, 1 Pers. Sing. Nominative|ego|ego|right",
        "ego|ego-tu-* / Genitive Singular / 1 Pers. Sing.|ego-tu-*, 1 Pers. Sing. Genitive|mei|mei|right",
        "ego|ego-tu-* / Dative Singular / 1 Pers. Sing.|ego-tu-*, 1 Pers. Sing. Dative|mihi|mihi|right"},
        "Recta: 2, repetenda: 1"},
    {"German", {"QuizButton"}, "Probatio", "⏎↓⇥⇥⇥↓⏎", {
        "lauda:re|First Conjugation / Present Indicative / 1st Person Sing|laudo:|1. Person Sing., 1. Konjugation, Präsens Indikativ|1. Person Sing., |wrong",
        "lauda:re|First Conjugation / Present Indicative / 1st Person Sing|laudo:|1. Person Sing., 1. Konjugation, Präsens Indikativ|1. Person Sing., 1. Konjugation, Präsens Indikativ|right"},
        "0 richtig, 0 zu wiederholen"},
    {"English", {"FileNounQuiz"}, "NounQuiz", "␣⏎␣⇥␣⇥⇥⇥⇥␣⇥⇥⇥␣⏎", {
        "insula|First Declension / Accusative Singular|insulam|singular Accusative|singular Nominative|wrong",
        "fructus|Fourth Declension / Accusative Plural|fructus|singular Nominative Genitive Plural Nominative Accusative|singular Nominative Genitive Plural Nominative Accusative|right"},
        "1 right, 0 to repeat"},
    {"Spanish", {"VocabularyButton"}, "Vcabtester", "x⏎?⏎rose⏎key⏎", {
        "rosa|vr-vcab.lst / word|rosa, f.|rose|x|wrong", "rosa|vr-vcab.lst / word|rosa, f.|rose|rose|right",
        "cla:vis|vr-vcab.lst / word|cla:vis|key|key|right"},
        "Correctas: 1, por repetir: 1"},
};
// clang-format on

class KeptAnswers : public WindowTest {
protected:
    KeptAnswers() { writeFile("vr-vcab.lst", "rosa,rose,f.\r\ncla:vis,key,\r\n"); }

    QWidget& openExercise(const Exercise& exercise)
    {
        open(exercise.way.front(), exercise.way.size() > 1 ? exercise.way.at(1) : exercise.window);
        if (exercise.way.size() > 1)
            doubleClickRow(control<QListWidget>(shown(exercise.way.at(1))), exercise.way.at(2).toInt());
        return shown(exercise.window);
    }

    static void pressKeys(QWidget& window, const QString& keys)
    {
        const QMap<QChar, Qt::Key> named = {
            {u'⏎', Qt::Key_Return}, {u'⇥', Qt::Key_Tab}, {u'↓', Qt::Key_Down}, {u'␣', Qt::Key_Space}};
        for (const QChar key : keys)
            named.contains(key) ? press(window, named[key]) : type(window, key);
    }

    static QStringList rowsKept()
    {
        QStringList lines;
        const auto store = progress::openStore("progress.db", progress::Access::Read).store;
        if (store == nullptr)
            return lines;
        for (const auto& [number, moment, told, drill, marksShown] : store->rowsAfter(0, 100))
            lines << QString::fromStdString(told.word + "|" + told.place + "|" + told.asked + "|" +
                                            told.expected + "|" + told.written +
                                            (told.right ? "|right" : "|wrong"));
        return lines;
    }
};

TEST_F(KeptAnswers, OfEachExerciseAreItsRowsWithoutHintsFromThePauseOnInWhichItMayBeLeft)
{
    for (const Exercise& exercise : Exercises) {
        std::filesystem::remove("progress.db");
        platform::seedWith(1);
        fake.clock = 43200;
        QWidget& menu = start();
        choose(menu, exercise.language + QStringLiteral("Lang"));
        QWidget& window = openExercise(exercise);
        duringPause([] { EXPECT_TRUE(QTest::qWaitFor([] { return rowsKept().size() == 1; })); });
        pressKeys(window, exercise.keys.chopped(1));
        duringPause([&] { press(window, Qt::Key_Escape); });
        pressKeys(window, exercise.keys.last(1));
        EXPECT_EQ(rowsKept().join('\n').toStdString(), exercise.rows.join('\n').toStdString());
        const QString told = control<QLabel>(menu, "LastDrill").accessibleName();
        EXPECT_EQ(told.toStdString(), exercise.lastDrill.toStdString());
    }
}

// The link is the next after the last button.
TEST_F(KeptAnswers, AreCountedThroughATestPutAsideAndLeadToTheReviewAlsoWhenNothingMoreWasAnswered)
{
    auto& menu = static_cast<shell::MainMenu&>(start());
    const QSignalSpy reviews(&menu, &shell::MainMenu::reviewRequested);
    const auto answerAndLeave = [&](const QStringList& answers) {
        QWidget& tester = open("VocabularyButton", "Vcabtester");
        choose(tester, "VcabtesterOptionsPromptLatin");
        for (const QString& given : answers) {
            answer(tester, given);
            choose(tester, "VcabTesterFileOpen");
            press(shown("VcabLoader"), Qt::Key_Escape);
        }
        press(tester, Qt::Key_Escape);
        auto* const line = menu.findChild<QLabel*>("LastDrill");
        return line != nullptr && line->isVisible() ? line->accessibleName().toStdString() : "";
    };
    EXPECT_EQ(answerAndLeave({}), "");
    EXPECT_EQ(answerAndLeave({"rosa", "clavis"}), "1 right, 1 to repeat");
    EXPECT_EQ(rowsKept().last(), "cla:vis|vr-vcab.lst / translation|key|cla:vis|clavis|wrong");
    choose(menu, "GermanLang");
    EXPECT_EQ(answerAndLeave({}), "1 richtig, 1 zu wiederholen");
    button(menu, "ExitButton").setFocus();
    press(menu, Qt::Key_Tab);
    press(menu, Qt::Key_Return);
    EXPECT_EQ(reviews.count(), 1);
    QTest::mouseClick(&control<QLabel>(menu, "LastDrill"), Qt::LeftButton);
    EXPECT_EQ(reviews.count(), 2);
    writeFile("looks.ini", "KeepAnswers=0");
    start();
    std::filesystem::remove("progress.db");
    open("FileNounQuiz", "NounQuiz");
    press(shown("NounQuiz"), Qt::Key_Return);
    shown("NounQuiz").close();
    EXPECT_FALSE(shown("MainMenu").findChild<QLabel*>("LastDrill") || std::filesystem::exists("progress.db"));
}

} // namespace
