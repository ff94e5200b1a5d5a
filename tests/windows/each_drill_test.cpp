// How each drill is chosen, where its controls stand, and what it asks and shows.

#include "tests/nouns/pronoun_pages.h"
#include "tests/windows/every_drill.h"
#include "verbs/verb_list.h"

namespace {

using namespace tests;

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

TEST_F(EveryDrill, OfNounsKeepsEachNameBesideItsBoxInEverySizeOfTypeUpAndDown)
{
    const QFont before = QApplication::font();
    for (const int state : {0, 2}) {
        settings.MainWindowState = static_cast<std::int16_t>(state);
        QWidget& drill = open(Declension);
        for (const char key : QByteArray("++++0----0+++++++--------0+-0")) {
            QTest::keyClick(&drill, key, Qt::ControlModifier);
            QApplication::processEvents();
            for (const char* const name : {"DeclNom", "DeclGen", "DeclDat", "DeclAcc", "DeclAbl"}) {
                const auto& label = control<QLabel>(drill, name);
                const int top = label.mapTo(&drill, QPoint()).y();
                EXPECT_NEAR(top, label.buddy()->mapTo(&drill, QPoint()).y(), 2) << name << key;
            }
        }
        EXPECT_EQ(QApplication::font(), before);
    }
}

TEST_F(EveryDrill, HasRoomForItsHeadingAndForARemarkOfTwoLinesAtOnce)
{
    settings.CurrentLanguage = shell::language::German;
    settings.MainWindowState = 0;
    for (const auto& [drill, row, wrong] : {std::tuple{Conjugation, 4, "longissima:verba"},
                                            {Declension, 0, "aqua:rumlongissima:"},
                                            {Pronoun, 0, "egolongissimusverborum"},
                                            {Pronoun, 2, "hicc"},
                                            {Drills[3], 0, "rosarum-longissima-verba"}}) {
        QWidget& window = open(drill, row);
        QApplication::processEvents();
        const auto& why = control<QLabel>(window, "WhyLabel");
        const auto& bar = *control<QScrollArea>(window).verticalScrollBar();
        const QSize size = window.size();
        for (const char* const name : {"HeadingLabel", "NounLabel"}) {
            const auto* const heading = window.findChild<QLabel*>(name);
            const bool breaks = heading && heading->height() >= 2 * heading->fontMetrics().lineSpacing();
            EXPECT_TRUE(!breaks || size.width() > window.screen()->size().width() * 0.96) << name << row;
        }
        answer(window, wrong);
        QApplication::processEvents();
        const int line = why.fontMetrics().lineSpacing();
        EXPECT_GE(why.height(), 2 * line) << drill.window.toStdString();
        EXPECT_EQ(window.size(), size);
        EXPECT_FALSE(bar.isVisible()) << drill.window.toStdString() << row;
    }
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
    const auto ground = [&] { return box(drawn, "ConjText", 0).palette().color(QPalette::Base); };
    for (int asked = 0; asked < 6 && focusIn(drawn) != "ConjText0"; ++asked)
        answer(drawn, QString::fromStdString(conjugationDrill.CorrectForm));
    EXPECT_EQ(ground(), QColor(0x80, 0x80, 0x80));
    type(drawn, "a");
    EXPECT_EQ(ground(), drawn.palette().color(QPalette::Base));
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
