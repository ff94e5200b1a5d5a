#pragma once

#include "nouns/declension_drill.h"
#include "nouns/noun_question.h"
#include "nouns/noun_tables.h"
#include "nouns/pronoun_drill.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbdrills/conjugation_drill.h"
#include "verbdrills/verb_question.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"

namespace tests {

using namespace nouns;
using shell::settings;
using std::to_string;
using verbdrills::conjugationDrill;
using verbdrills::verbQuiz;

struct Drill {
    QString window, opener, back;   // the last is where one comes to on leaving
    QString check, quit;            // buttons, as are
    QStringList others;             // those that do nothing in a pause
    QString box;                    // with the number that is asked
    QColor colour;                  // of what is typed after a hint
    std::string (*asked)();         // tells one question from another
    std::string (*right)(QWidget&); // what is to be typed, once all that is right is clicked
};

inline std::string chooseFirstForm(QWidget& quiz)
{
    verbQuiz.QuizRow = 1;
    verbdrills::identifyForm();
    clickRow(control<QListWidget>(quiz, "QuizConjList"), 0);
    clickRow(control<QListWidget>(quiz, "QuizTenseList"), 0);
    return {};
}

inline std::string tickRightCases(QWidget& quiz)
{
    for (int inCase = 0; QCheckBox* const box : quiz.findChildren<QCheckBox*>())
        if (nounQuestion.QuizRightCases[inCase++] == platform::FlagTrue)
            box->click();
    return {};
}

// clang-format off
// First the drills with a box for each form, then the one with a single line, then the quizzes.
inline const std::vector<Drill> Drills = {
    {"Conjugation", "ConjugationButton", "ConjugationChoose", "Ccontinue", "Cquit", {"ConjQuestion"}, "ConjText", Qt::blue,
        [] { return to_string(conjugationDrill.PersonIndex); }, [](QWidget&) { return conjugationDrill.CorrectForm; }},
    {"Declination", "DeclensionButton", "DeclinationChoose", "Continue", "DeclQuitButton", {"DeclQuestion"}, "DeclText", Qt::black,
        [] { return to_string(declensionDrill.CurrentCaseIndex); }, [](QWidget&) { return declensionDrill.ExpectedAnswer; }},
    {"PronounSingular", "PronounButton", "PronounChooser", "PronounOK", "PronounCancel", {"PronounQuestion"}, "Pronoun", Qt::black,
        [] { return to_string(pronounDrill.CurrentCell); }, [](QWidget&) { return pronounDrill.ExpectedAnswer; }},
    {"Vcabtester", "VocabularyButton", "MainMenu", "VcabtesterOK", "VcabtesterCancel", {"VcabtesterQuestion"}, "", {},
        [] { return to_string(vocabulary::vocabularyList.CurrentWord); }, [](QWidget&) { return vocabulary::expectedAnswer(); }},
    {"Probatio", "QuizButton", "MainMenu", "QuizOK", "QuizCancel", {"QuizQuestion", "QuizSkip"}, "", {},
        [] { return to_string(verbQuiz.QuizRow); }, chooseFirstForm},
    {"NounQuiz", "FileNounQuiz", "MainMenu", "NQOK", "NQCancel", {}, "", {}, drawnIndexes, tickRightCases},
};

inline const Drill &Conjugation = Drills[0], &Declension = Drills[1], &Pronoun = Drills[2];
// clang-format on

class EveryDrill : public WindowTest {
protected:
    EveryDrill()
    {
        writeFile("vr-vcab.lst", "rosa,rose,f.\r\nre:x,king,m.\r\n");
        start();
        settings.QuizTenseInclude.fill(platform::FlagTrue);
    }

    QWidget& openChooser(const Drill& drill) { return WindowTest::open(drill.opener, drill.back); }

    QWidget& open(const Drill& drill, int row = 0)
    {
        if (drill.back == "MainMenu")
            return WindowTest::open(drill.opener, drill.window);
        doubleClickRow(control<QListWidget>(openChooser(drill)), row);
        return shown(drill.window);
    }

    static QLineEdit& askedBox(QWidget& window, const Drill& drill)
    {
        return box(window, drill.box, std::stoi(drill.asked()));
    }

    static void fillIn(const Drill& drill, QWidget& window, bool right)
    {
        type(window, right ? QString::fromStdString(drill.right(window)) : "x");
    }

    // Everything that a learner may press while an answer is judged or shown, but for letters.
    static void pressEverything(const Drill& drill, QWidget& window)
    {
        press(window, Qt::Key_Return);
        type(window, "?/");
        click(window, drill.check);
        for (const QString& button : drill.others)
            click(window, button);
    }

    // With a blank between them.
    static void answerForms(QWidget& drill, const QString& forms)
    {
        for (const QString& form : forms.split(' '))
            answer(drill, form);
        EXPECT_EQ(label(drill, "ScoreLabel"), " 100% ") << forms.toStdString();
    }

    static void expectNewRound(QWidget& drill, const QString& tenseAndGloss)
    {
        EXPECT_EQ(label(drill, "TenseLabel") + ": " + label(drill, "Ctransl0"), tenseAndGloss);
        EXPECT_EQ(label(drill, "Ctransl5"), "");
        EXPECT_EQ(focusIn(drill), "ConjText0");
        for (const QLineEdit* const line : drill.findChildren<QLineEdit*>())
            EXPECT_TRUE(line->text().isEmpty() && !isGrey(*line));
    }

    static bool isGrey(const QLineEdit& box)
    {
        return box.palette().color(QPalette::Base) == QColor(0x80, 0x80, 0x80) &&
               box.palette().color(QPalette::Text) == QColor(0xC0, 0xC0, 0xC0);
    }

    static int middleOf(const QWidget& widget)
    {
        return widget.mapTo(widget.window(), widget.rect().center()).y();
    }

    static bool judgementIsShown() { return shownWindow("Bravo") || shownWindow("Wrong"); }
};

} // namespace tests
