// What all drills have in common: an answer counts once, a hint does not count, a pause can be left, and
// boxes are asked in the order that is set. Then what each asks and shows.

#include "nouns/declension_drill.h"
#include "nouns/noun_question.h"
#include "nouns/noun_tables.h"
#include "nouns/pronoun_drill.h"
#include "shell/settings.h"
#include "tests/nouns/pronoun_pages.h"
#include "tests/support/window_test.h"
#include "verbdrills/conjugation_drill.h"
#include "verbdrills/verb_question.h"
#include "verbs/verb_list.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"

#include <set>

namespace {

using namespace nouns;
using namespace tests;
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

std::string chooseFirstForm(QWidget& quiz)
{
    verbQuiz.QuizRow = 1;
    verbdrills::identifyForm();
    clickRow(control<QListWidget>(quiz, "QuizConjList"), 0);
    clickRow(control<QListWidget>(quiz, "QuizTenseList"), 0);
    return {};
}

std::string tickRightCases(QWidget& quiz)
{
    for (int inCase = 0; QCheckBox* const box : quiz.findChildren<QCheckBox*>())
        if (nounQuestion.QuizRightCases[inCase++] == platform::FlagTrue)
            box->click();
    return {};
}

// clang-format off
// First the drills with a box for each form, then the one with a single line, then the quizzes.
const std::vector<Drill> Drills = {
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

const Drill &Conjugation = Drills[0], &Declension = Drills[1], &Pronoun = Drills[2];

// The drill, the row of its chooser, the order of the cases and of the questions, whether boxes are drawn, and these.
using Order = std::tuple<const Drill&, int, const char*, const char*, bool, std::vector<int>>;
const Order Orders[] = {
    {Conjugation, 0, "NGDAAb", "Sequential", false, {0, 1, 2, 3, 4, 5}},
    {Conjugation, 1, "NGDAAb", "Random",     true,  {0, 1, 2, 3, 4, 5}},
    // Cases of both numbers.
    {Declension,  0, "NGDAAb", "Sequential", false, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
    {Declension,  3, "NAGDAb", "Sequential", false, {0, 3, 1, 2, 4, 5, 8, 6, 7, 9}},
    {Declension,  1, "NGDAAb", "Random",     true,  {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
    // Cases of three persons or genders: the reflexive has no nominative, and the order of the menu draws nothing.
    {Pronoun,     3, "NAGDAb", "Sequential", false, {1, 4, 2, 3, 5, 6, 9, 7, 8, 10, 11, 14, 12, 13, 15}},
    {Pronoun,     0, "NAGDAb", "Sequential", false, {1, 4, 2, 3, 5, 6, 9, 7, 8, 10, 14, 12, 13, 15}},
    {Pronoun,     1, "NGDAAb", "Random",     false, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}},
    {Pronoun,     0, "NGDAAb", "random",     true,  {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 13, 14, 15}},
};
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

// The eye goes down, or on to the next column: beside each row stands its name.
TEST_F(EveryDrill, AskEachBoxOnceInTheOrderThatIsSetAndThenOtherForms)
{
    for (const auto& [drill, row, cases, questions, drawn, boxes] : Orders) {
        SCOPED_TRACE(drill.window.toStdString() + ' ' + cases + ' ' + questions);
        settings.CaseOrder = cases;
        settings.QuestionOrder = questions;
        QWidget& window = open(drill, row);
        std::set<QString> rounds;
        for (int round = 0; round < 4; ++round) {
            std::vector<int> asked;
            QString forms;
            QPoint place;
            for (std::size_t i = 0; i < boxes.size(); ++i) {
                asked.push_back(std::stoi(drill.asked()));
                QLineEdit& box = askedBox(window, drill);
                EXPECT_TRUE(box.text().isEmpty() && box.isEnabled());
                const QPoint before = std::exchange(place, box.mapTo(&window, QPoint()));
                EXPECT_TRUE(drawn || i == 0 || before.x() < place.x() || before.y() < place.y());
                fillIn(drill, window, true);
                forms += box.text() + ' ';
                press(window, Qt::Key_Return);
            }
            EXPECT_EQ(std::ranges::is_sorted(asked), !drawn && std::ranges::is_sorted(boxes));
            if (drawn)
                std::ranges::sort(asked);
            EXPECT_EQ(asked, boxes);
            rounds.insert(forms);
        }
        for (const QLabel* const name : window.findChildren<QLabel*>())
            EXPECT_TRUE(!name->buddy() || std::abs(middleOf(*name) - middleOf(*name->buddy())) < 2);
        EXPECT_GT(rounds.size(), 1U);
        EXPECT_EQ(settings.RightCount, 4 * static_cast<int>(boxes.size()));
    }
}

TEST_F(EveryDrill, IsLeftAtOnceInAPauseAndDoesNotMoveOn)
{
    for (const Drill& drill : Drills)
        for (const bool right : {true, false})
            for (const auto& leave : waysToLeave(drill.quit)) {
                SCOPED_TRACE(drill.window.toStdString());
                QWidget& window = open(drill);
                fillIn(drill, window, right);
                const std::string asked = drill.asked();
                duringPause([&] {
                    leave(window);
                    EXPECT_FALSE(judgementIsShown());
                    EXPECT_NE(shownWindow(drill.back), nullptr);
                });
                click(window, drill.check);
                EXPECT_FALSE(judgementIsShown() || window.isVisible());
                EXPECT_EQ(drill.asked(), asked);
            }
}

// A box that was answered right turns grey. What is typed after a click on another comes into the one asked.
TEST_F(EveryDrill, JudgesOnceWhateverIsPressedInThePauseAndMovesOnAfterARightAnswer)
{
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    for (const Drill& drill : Drills) {
        SCOPED_TRACE(drill.window.toStdString());
        const bool keepsScore = drill.window != "NounQuiz";
        const bool hasBoxes = !drill.box.isEmpty();
        QWidget& window = open(drill);
        fake.waits = settings.AnsweredCount = settings.RightCount = 0;
        int judged = 0;
        for (const bool right : keepsScore ? std::vector{false, false, true} : std::vector{true}) {
            QLineEdit* const asksIn = hasBoxes ? &askedBox(window, drill) : nullptr;
            if (hasBoxes)
                QTest::mouseClick(&box(window, drill.box, 4), Qt::LeftButton);
            QApplication::processEvents();
            fillIn(drill, window, right);
            const std::string asked = drill.asked();
            duringPause([&] {
                EXPECT_EQ(shownWindow(right ? "Bravo" : "Wrong") != nullptr, keepsScore);
                pressEverything(drill, window);
                EXPECT_EQ(drill.asked(), asked);
            });
            click(window, drill.check);
            QApplication::sendEvent(window.focusWidget(), &held);
            EXPECT_EQ(fake.waits, ++judged);
            EXPECT_EQ(settings.AnsweredCount, keepsScore ? judged : 0);
            EXPECT_EQ(settings.RightCount, keepsScore && right);
            EXPECT_EQ(drill.asked() != asked, right);
            EXPECT_FALSE(judgementIsShown());
            for (const QLineEdit* const box : window.findChildren<QLineEdit*>()) {
                EXPECT_EQ(isGrey(*box), right && box == asksIn);
                EXPECT_EQ(box->text().isEmpty(), !isGrey(*box));
            }
            EXPECT_TRUE(!hasBoxes || window.focusWidget() == &askedBox(window, drill));
            EXPECT_TRUE(!hasBoxes || !right || label(window, "ScoreLabel") == " 33% ");
        }
    }
}

// What was typed before Enter is judged once it stands in its box; the rest goes on from there, unless it is
// wrong.
TEST_F(EveryDrill, KeepsWhatIsTypedInAPauseForTheBoxThatIsAskedNextUnlessItIsLeft)
{
    for (const Drill& drill : Drills) {
        if (drill.window == "Probatio" || drill.window == "NounQuiz")
            continue;
        QWidget& window = open(drill);
        const auto text = [&] { return static_cast<QLineEdit*>(window.focusWidget())->text(); };
        for (const bool right : {false, true}) {
            fillIn(drill, window, right);
            duringPause([&] {
                press(window, Qt::Key_Return);
                type(window, "ab?");
                press(window, Qt::Key_Backspace);
                EXPECT_EQ(label(window, "WhyLabel"), right ? "" : "<u>x</u>");
                for (const QScrollBar* const bar : window.findChildren<QScrollBar*>())
                    EXPECT_FALSE(bar->isVisible());
            });
            press(window, Qt::Key_Return);
            EXPECT_EQ(text(), "a");
            EXPECT_EQ(settings.AnsweredCount, right ? 4 : 1);
            EXPECT_EQ(label(window, "WhyLabel"), "");
            duringPause([&] {
                answer(window, right ? "c" : QString::fromStdString(drill.right(window)));
                type(window, "d");
            });
            fake.waits = 0;
            press(window, Qt::Key_Return);
            QApplication::processEvents();
            EXPECT_EQ(text(), right ? "" : "d");
            EXPECT_EQ(fake.waits, 2);
            fill(*static_cast<QLineEdit*>(window.focusWidget()), "");
        }
        duringPause([&] {
            type(window, "e");
            click(window, drill.quit);
        });
        fillIn(drill, window, false);
        press(window, Qt::Key_Return);
        EXPECT_EQ(static_cast<QLineEdit*>(open(drill).focusWidget())->text(), "");
        EXPECT_EQ(label(window, "WhyLabel"), "");
    }
}

TEST_F(EveryDrill, SaysWhyAnAnswerWasWrongUntilTheNextKeyAndHowFarOneIs)
{
    settings.CurrentLanguage = shell::language::German;
    QWidget& verbs = open(Conjugation, 5);
    EXPECT_EQ(label(verbs, "WhereLabel"), "Zeitform 1 von 11");
    answer(verbs, "es");
    EXPECT_EQ(label(verbs, "WhyLabel"), "<u>e</u>s &nbsp; Das ist die Endung einer anderen Person.");
    press(verbs, Qt::Key_Right);
    EXPECT_NE(label(verbs, "WhyLabel"), "");
    type(verbs, "s");
    EXPECT_EQ(label(verbs, "WhyLabel"), "");
    settings.QuestionOrder = shell::question_order::Random;
    for (const Drill& drill : {Declension, Pronoun})
        for (int number = 1; number < 4; ++number) {
            QWidget& window = number == 1 ? open(drill, 1) : shown(drill.window);
            EXPECT_EQ(label(window, "WhereLabel"),
                      QString("Form %1 von %2").arg(number).arg(drill.window == "Declination" ? 10 : 15));
            answer(window, QString::fromStdString(drill.right(window)));
        }
}

// Left while the answer is shown, it begins anew without it.
TEST_F(EveryDrill, ShowsTheAnswerInRedForOnePauseWithoutCounting)
{
    for (const Drill& drill : {Conjugation, Declension, Pronoun}) {
        QWidget& window = open(drill);
        QLineEdit& box = askedBox(window, drill);
        for (const QString& way : QStringList{"/", "?"} + drill.others) {
            box.setText("b");
            fake.waits = 0;
            duringPause([&] {
                EXPECT_EQ(box.palette().color(QPalette::Text), QColor(Qt::red));
                EXPECT_EQ(focusIn(window) == "DDummy", drill.window == "Declination");
                pressEverything(drill, window);
                EXPECT_EQ(box.text().toStdString(), drill.right(window));
            });
            way.size() == 1 ? type(window, way) : click(window, way);
            EXPECT_EQ(fake.waits, 1);
            EXPECT_EQ(box.text(), "");
            EXPECT_EQ(box.palette().color(QPalette::Text), drill.colour);
            EXPECT_EQ(window.focusWidget(), &box);
        }
        EXPECT_EQ(settings.AnsweredCount, 0);
        EXPECT_EQ(&askedBox(window, drill), &box);
        duringPause([&] {
            click(window, drill.quit);
            EXPECT_EQ(askedBox(open(drill), drill).text(), "");
            type(window, "a");
        });
        type(window, "?");
        EXPECT_EQ(askedBox(window, drill).text(), "a");
    }
}

// Enter takes the first row though none is chosen; a look at the help forgets the row that was. Where OK has
// the focus, the keys move in the list from there. A row is chosen by a click at its very edge.
TEST_F(EveryDrill, IsChosenByEnterInTheListOrByOk)
{
    QWidget& classes = openChooser(Conjugation);
    press(classes, Qt::Key_Down, 2);
    EXPECT_TRUE(button(classes, "cchok").isEnabled());
    press(classes, Qt::Key_F1);
    press(shown("Help"), Qt::Key_Escape);
    QApplication::setActiveWindow(&classes);
    EXPECT_FALSE(button(classes, "cchok").isEnabled());
    EXPECT_EQ(settings.ActiveWindowName, "conjchoose");
    for (const Drill& drill : {Conjugation, Pronoun, Declension}) {
        press(openChooser(drill), Qt::Key_Return);
        EXPECT_NE(shownWindow(drill.window), nullptr);
    }
    EXPECT_EQ(declensionDrill.DrillParadigm, FirstDeclension);
    QWidget& chooser = openChooser(Declension);
    EXPECT_EQ(focusIn(chooser), "SdeclOK");
    QListWidget& rows = list(chooser, "DeclinationList");
    clickRow(rows, 4);
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualItemRect(rows.item(5)).topLeft());
    click(chooser, "SdeclOK");
    EXPECT_EQ(declensionDrill.DrillParadigm, ThirdDeclensionNeuter);
    press(openChooser(Declension), Qt::Key_End);
    press(chooser, Qt::Key_Up);
    EXPECT_EQ(focusIn(chooser), "SdeclOK");
    press(chooser, Qt::Key_Return);
    EXPECT_EQ(declensionDrill.DrillParadigm, FourthDeclensionNeuter);
}

TEST_F(EveryDrill, IsChosenUnderAHeadingFromAListThatJustHoldsItsRows)
{
    for (const char* const language : {"German", "English"})
        for (const Drill& drill : {Conjugation, Pronoun, Declension}) {
            settings.CurrentLanguage = language;
            QWidget& chooser = openChooser(drill);
            const auto& rows = control<QListWidget>(chooser);
            const auto& heading = control<QLabel>(chooser, "ChooserHeading");
            EXPECT_TRUE(heading.buddy() == &rows && heading.text() == rows.accessibleName());
            EXPECT_TRUE(heading.text().startsWith("Choose a ") || heading.text().endsWith(" auswählen"));
            EXPECT_EQ(rows.viewport()->height(), rows.count() * rows.visualItemRect(rows.item(0)).height());
        }
}

// German has no caption for most nouns: the nominative names them.
TEST_F(EveryDrill, OfNounsOpensTheParadigmOfEachRow)
{
    settings.CurrentLanguage = shell::language::German;
    EXPECT_EQ(label(open(Declension), "NounLabel").toStdString(), nounTables.NounForms[1][1]);
    settings.CurrentLanguage = shell::language::English;
    for (int row = 0; const int paradigm : {1, 2, 3, 4, 8, 9, 5, 6, 7}) {
        QWidget& drill = open(Declension, row++);
        EXPECT_EQ(declensionDrill.DrillParadigm, paradigm);
        EXPECT_EQ(label(drill, "HeadingLabel").toStdString(), nounTables.DeclensionHeading[paradigm]);
        EXPECT_EQ(label(drill, "NounLabel").toStdString(), nounTables.NounCaption[paradigm]);
    }
}

// In pixels: the boxes below the top of their frame, the names of the cases below that of the window.
TEST_F(EveryDrill, OfNounsPlacesItsRowsInTheCaseOrder)
{
    settings.MainWindowState = 0;
    for (const auto& [order, names, thirdTop] :
         {std::tuple{"NGDAAb", "DeclNom DeclGen DeclDat DeclAcc DeclAbl", 230},
          {"NAGDAb", "DeclNom DeclAcc DeclGen DeclDat DeclAbl", 231}}) {
        settings.CaseOrder = order;
        QWidget& drill = open(Declension);
        for (const char* const frame : {"Frame1", "Frame2"})
            EXPECT_EQ(control<QGroupBox>(drill, frame).mapTo(&drill, QPoint()).y(), 126);
        for (int row = 0; const QString& name : QString(names).split(' ')) {
            const auto& label = control<QLabel>(drill, name);
            EXPECT_EQ(label.mapTo(&drill, QPoint()).y(), row == 2 ? thirdTop : 150 + 40 * row);
            EXPECT_EQ(label.buddy()->y(), 24 + 40 * row++);
        }
    }
}

// By the smaller of width / 960 and height / 600, in quarters.
TEST_F(EveryDrill, GrowsWithItsMaximisedWindowUpToTwice)
{
    settings.MainWindowState = 2;
    QWidget& drill = open(Declension);
    const auto& frame = control<QGroupBox>(drill, "Frame1");
    const auto& asked = box(drill, "DeclText", 0);
    const double type = QApplication::font().pointSizeF() * 1.5;
    for (const auto& [size, growth] :
         {std::pair{QSize(959, 599), 1.0}, {{1920, 899}, 1.25}, {{1440, 2000}, 1.5}, {{4000, 3000}, 2.0}}) {
        drill.resize(size);
        drill.overrideWindowState(Qt::WindowMaximized);
        QResizeEvent resized(size, size);
        QApplication::sendEvent(&drill, &resized);
        QApplication::processEvents();
        EXPECT_EQ(asked.font().pointSizeF(), type * growth);
        EXPECT_EQ(asked.y(), 24 * growth);
        EXPECT_EQ(box(drill, "DeclText", 1).y(), 64 * growth);
        EXPECT_EQ(control<QLabel>(drill, "DeclNom").mapTo(&drill, QPoint()).y() -
                      frame.mapTo(&drill, QPoint()).y(),
                  24 * growth);
    }
    drill.showNormal();
    QApplication::processEvents();
    drill.resize(drill.sizeHint());
    QApplication::processEvents();
    EXPECT_EQ(asked.font().pointSizeF(), type);
    EXPECT_EQ(frame.mapTo(&drill, QPoint()).y(), 126);
}

TEST_F(EveryDrill, StandsInItsPlaceWithTheJudgementAndTheHelpBesideIt)
{
    settings.CurrentLanguage = shell::language::Latin;
    settings.MainWindowState = 2;
    QWidget& chooser = openChooser(Conjugation);
    const auto& frame = control<QFrame>(chooser, "CCBigFrame");
    const QSize screen = chooser.screen()->geometry().size();
    EXPECT_EQ(frame.x(), static_cast<int>(screen.width() / 2.0 - frame.width() / 1.9));
    EXPECT_EQ(frame.y(), static_cast<int>(screen.height() / 2.0 - frame.height() / 2.0));
    QWidget& drill = open(Declension, 2);
    declensionDrill.AnswerGiven = platform::FlagTrue;
    QTest::mouseClick(&box(drill, "DeclText", 7), Qt::LeftButton);
    EXPECT_EQ(declensionDrill.AnswerGiven, platform::FlagFalse);
    EXPECT_EQ(drill.windowModality(), Qt::ApplicationModal);
    press(drill, Qt::Key_F1);
    QWidget& help = shown("Help");
    const QAbstractButton& close = button(help, "Command1");
    QTest::mouseClick(help.windowHandle(), Qt::LeftButton, {}, close.mapTo(&help, close.rect().center()));
    EXPECT_FALSE(help.isVisible());
    answer(drill, QString::fromStdString(declensionDrill.ExpectedAnswer));
    EXPECT_EQ(declensionDrill.CurrentCaseIndex, 1);
    duringPause([&] {
        const QWidget& feedback = shown("Wrong");
        EXPECT_EQ(control<QLabel>(feedback).text(), "Falsum");
        EXPECT_EQ(feedback.pos(), QPoint(screen.width() - feedback.width() - feedback.width() / 10,
                                         static_cast<int>(screen.height() / 1.5)));
    });
    answer(drill, "x");
}

TEST_F(EveryDrill, OfPronounsAsksTheGrammarsNumberByNumberWithMarksAndWithout)
{
    for (const char* const mark : {":", ""}) {
        settings.VowelMark = mark;
        for (int row = 0; const auto& [heading, singular, plural] : tests::PronounPages) {
            QWidget& drill = open(Pronoun, row);
            EXPECT_EQ(label(drill, "HeadingLabel"), heading);
            for (const auto& [number, forms] :
                 {std::pair{" Sing.", singular}, {" Plur.", plural}, {" Sing.", singular}}) {
                EXPECT_EQ(label(drill, "ColumnLabel3"), QString(row == 0 ? "3 Pers." : "Neut.") + number);
                EXPECT_EQ(box(drill, "Pronoun", 11).isEnabled(), row > 0);
                EXPECT_EQ(box(drill, "Pronoun", 11).x(), control<QLabel>(drill, "ColumnLabel3").x());
                answerForms(drill, QString(forms).replace(':', mark));
            }
            ++row;
        }
    }
}

// The chooser of classes is hidden: that it is activated late begins no choice anew.
TEST_F(EveryDrill, OfVerbsGoesTenseByTenseOrWithATenseThroughTheRegularClasses)
{
    verbs::verbList.Count.fill(1);
    QWidget& whole = open(Conjugation);
    expectNewRound(whole, "Present Indicative: I love");
    for (const int person : {0, 4, 5}) {
        const auto& gloss = control<QLabel>(whole, QStringLiteral("Ctransl%1").arg(person));
        EXPECT_EQ(gloss.x(), box(whole, "ConjText", person).x());
        EXPECT_GT(gloss.y(), box(whole, "ConjText", person).y());
    }
    answerForms(whole, "amo amas amat amamus amatis amant");
    expectNewRound(whole, "Imperfect Indicative: I was loving");
    QWidget& chooser = openChooser(Conjugation);
    doubleClickRow(control<QListWidget>(chooser), 8);
    QApplication::setActiveWindow(&chooser);
    QWidget& tenses = shown("TenseMoodChooser");
    clickRow(list(tenses, "TenseMood"), 3);
    press(tenses, Qt::Key_Return);
    QWidget& drill = shown("Conjugation");
    expectNewRound(drill, "Perfect Indicative: I loved,  have loved");
    for (const char* const stem : {"amav", "monu", "rex", "audiv", "cep"})
        answerForms(drill, QString("%1i %1isti %1it %1imus %1istis %1erunt").arg(stem));
    EXPECT_EQ(settings.RightCount, 30);
    click(shown("TenseMoodChooser"), "TenseMoodCancel");
    EXPECT_NE(shownWindow("ConjugationChoose"), nullptr);
    EXPECT_EQ(label(open(Conjugation), "ScoreLabel"), "");
    expectNewRound(drill, "Present Indicative: I love");
    settings.QuestionOrder = shell::question_order::Random;
    QWidget& drawn = open(Conjugation);
    EXPECT_NE(focusIn(drawn), "ConjText0");
    EXPECT_EQ(box(drawn, "ConjText", 0).palette().color(QPalette::Base), QColor(0x80, 0x80, 0x80));
}

// Esse bears the title of velle, and velle that of esse: sic. The ear is told the verb.
TEST_F(EveryDrill, OfVerbsHasTheVerbOfEachRowToItsLastTense)
{
    verbs::verbList.Count.fill(1);
    for (int row = 0; const char* const verb :
                      {"amare", "monere", "regere", "capere", "audire", "Esse", "Velle", "ferre"}) {
        QWidget& drill = open(Conjugation, row++);
        EXPECT_EQ(label(drill, "VerbLabel"), verb);
        const QString heading = row < 6 ? label(drill, "TitleLabel") : QString(verb).toLower();
        EXPECT_EQ(box(drill, "ConjText", 0).accessibleName(), heading + ": Present Indicative, I");
    }
    for (const auto& [row, title, tenses] : {std::tuple{5, "Velle", 11}, {6, "Esse", 10}}) {
        QWidget& drill = open(Conjugation, row);
        EXPECT_TRUE(label(drill, "TitleLabel").startsWith(title));
        for (int form = 0; form < tenses * 6; ++form) {
            EXPECT_TRUE(drill.isVisible()) << title;
            answer(drill, QString::fromStdString(conjugationDrill.CorrectForm));
        }
        EXPECT_NE(shownWindow("ConjugationChoose"), nullptr) << title;
    }
}

} // namespace
