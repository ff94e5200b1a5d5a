#include "nouns/declension_drill.h"
#include "nouns/noun_tables.h"
#include "nouns/pronoun_drill.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QGroupBox>
#include <QWindow>

#include <set>

namespace {

using namespace nouns;
using namespace tests;
using shell::settings;

class CaseDrills : public WindowTest {
protected:
    CaseDrills()
    {
        copySample("verbs.cfg");
        copySample("nouns.cfg");
        start();
    }

    QWidget& openNoun(int row)
    {
        return openRow("DeclensionButton", "DeclinationChoose", row, "Declination");
    }
    QWidget& openPronoun(int row)
    {
        return openRow("PronounButton", "PronounChooser", row, "PronounSingular");
    }

    static void answerRightly(QWidget& drill)
    {
        const bool isNoun = drill.objectName() == "Declination";
        answer(drill,
               QString::fromStdString(isNoun ? declensionDrill.ExpectedAnswer : pronounDrill.ExpectedAnswer));
    }
};

TEST_F(CaseDrills, OpenTheParadigmOfEachRow)
{
    for (int row = 0; const int paradigm : {1, 2, 3, 4, 8, 9, 5, 6, 7}) {
        QWidget& drill = openNoun(row++);
        EXPECT_EQ(declensionDrill.DrillParadigm, paradigm);
        EXPECT_EQ(label(drill, "HeadingLabel").toStdString(), nounTables.DeclensionHeading[paradigm]);
        EXPECT_EQ(label(drill, "NounLabel").toStdString(), nounTables.NounCaption[paradigm]);
        click(drill, "DeclQuitButton");
        EXPECT_EQ(declensionDrill.DrillParadigm, 0);
    }
}

TEST_F(CaseDrills, AreNotOpenedWithoutAChosenRow)
{
    QWidget& chooser = open("DeclensionButton", "DeclinationChoose");
    EXPECT_EQ(focusIn(chooser), "SdeclOK");
    press(chooser, Qt::Key_Return);
    EXPECT_EQ(settings.ActiveWindowName, "declchoose");
    click(chooser, "SdeclOK");
    EXPECT_EQ(shownWindow("Declination"), nullptr);
    clickRow(list(chooser, "DeclinationList"), 4);
    click(chooser, "SdeclOK");
    EXPECT_EQ(declensionDrill.DrillParadigm, ThirdDeclension);
}

TEST_F(CaseDrills, DrawAnotherNounAfterTenCases)
{
    QWidget& drill = openNoun(0);
    std::set<QString> nouns;
    for (int answers = 0; answers < 8 * CaseCount; ++answers) {
        EXPECT_EQ(box(drill, "DeclText", answers % CaseCount).text(), "");
        nouns.insert(label(drill, "NounLabel"));
        answerRightly(drill);
    }
    EXPECT_EQ(settings.RightCount, 80);
    EXPECT_GT(nouns.size(), 1U);
    EXPECT_LE(nouns.size(), 8U);
}

TEST_F(CaseDrills, PlaceTheRowsOfNounsInTheCaseOrder)
{
    constexpr std::pair<int, const char*> Rows[] = {
        {0, "DeclNom"}, {3, "DeclAcc"}, {1, "DeclGen"}, {2, "DeclDat"}, {4, "DeclAbl"}};
    settings.CaseOrder = shell::case_order::NAGDAb;
    QWidget& drill = openNoun(0);
    drill.showNormal();
    drill.adjustSize();
    QApplication::processEvents();
    EXPECT_GE(control<QGroupBox>(drill, "Frame1").mapTo(&drill, QPoint()).y(), 126);
    for (int y = 24; const auto& [inCase, name] : Rows) {
        EXPECT_EQ(box(drill, "DeclText", inCase).y(), y) << name;
        EXPECT_EQ(box(drill, "DeclText", inCase + CasesOfNumber).y(), y) << name;
        EXPECT_EQ(control<QLabel>(drill, name).y(), y) << name;
        y += 40;
    }
}

TEST_F(CaseDrills, HoldTheFocusAsideWhileAnAnswerIsShown)
{
    QWidget& drill = openNoun(2);
    duringPause([&] { EXPECT_EQ(focusIn(drill), "DDummy"); });
    type(drill, "?");
    EXPECT_EQ(focusIn(drill), "DeclText0");
    declensionDrill.AnswerGiven = platform::FlagTrue;
    QTest::mouseClick(&box(drill, "DeclText", 7), Qt::LeftButton);
    EXPECT_EQ(declensionDrill.AnswerGiven, platform::FlagFalse);
}

TEST_F(CaseDrills, LetTheHelpBeReadAndClosedBesideThem)
{
    QWidget& drill = openNoun(0);
    EXPECT_EQ(drill.windowModality(), Qt::ApplicationModal);
    press(drill, Qt::Key_F1);
    QWidget& help = shown("Help");
    const QAbstractButton& close = button(help, "Command1");
    const QPoint middle = close.mapTo(&help, close.rect().center());
    QTest::mouseClick(help.windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
    EXPECT_FALSE(help.isVisible());
    answerRightly(drill);
    EXPECT_EQ(declensionDrill.CurrentCaseIndex, 1);
}

struct Pronouns {
    const char* heading;
    const char* thirdColumn;
    const char* singular;
    const char* plural;
};

// clang-format off
// Column by column: nominative, genitive, dative, accusative, ablative. The reflexive has no nominative.
constexpr std::array<Pronouns, 5> Grammar = {{
    {"Personal Pronouns: ego, tu, ***", "3 Pers.",
     "ego mei: mihi me: me: tu: tui: tibi te: te: sui: sibi se: se:",
     "no:s nostri: no:bi:s no:s no:bi:s vo:s vestri: vo:bi:s vo:s vo:bi:s sui: sibi se: se:"},
    {"Demonstratives: is-ea-id (this/that)", "Neut.",
     "is eius ei: eum eo: ea eius ei: eam ea: id eius ei: id eo:",
     "ii: eo:rum ii:s eo:s ii:s eae ea:rum ii:s ea:s ii:s ea eo:rum ii:s ea ii:s"},
    {"Demonstratives: hic-haec-hoc (this)", "Neut.",
     "hic huius huic hunc ho:c haec huius huic hanc ha:c hoc huius huic hoc ho:c",
     "hi: ho:rum hi:s ho:s hi:s hae ha:rum hi:s ha:s hi:s haec ho:rum hi:s haec hi:s"},
    {"Demonstratives: ille-illa-illud (that)", "Neut.",
     "ille illi:us illi: illum illo: illa illi:us illi: illam illa: illud illi:us illi: illud illo:",
     "illi: illo:rum illi:s illo:s illi:s illae illa:rum illi:s illa:s illi:s illa illo:rum illi:s illa illi:s"},
    {"Relatives: qui-quae-quod (who/which)", "Neut.",
     "qui: cuius cui quem quo: quae cuius cui quam qua: quod cuius cui quod quo:",
     "qui: quo:rum quibus quo:s quibus quae qua:rum quibus qua:s quibus quae quo:rum quibus quae quibus"},
}};
// clang-format on

TEST_F(CaseDrills, AskTheGrammarsPronounsNumberByNumberWithMarksAndWithout)
{
    for (const char* const mark : {":", ""}) {
        settings.VowelMark = mark;
        for (int row = 0; const auto& [heading, column, singular, plural] : Grammar) {
            QWidget& drill = openPronoun(row++);
            EXPECT_EQ(label(drill, "HeadingLabel"), heading);
            for (const auto& [number, forms] :
                 {std::pair{" Sing.", singular}, {" Plur.", plural}, {" Sing.", singular}}) {
                EXPECT_EQ(label(drill, "ColumnLabel3"), column + QString(number));
                EXPECT_EQ(box(drill, "Pronoun", 11).isEnabled(), row > 1);
                for (const QString& form : QString(forms).replace(':', mark).split(' ')) {
                    answer(drill, form);
                    ASSERT_EQ(label(drill, "ScoreLabel"), " 100% ") << form.toStdString();
                }
            }
        }
    }
}

TEST_F(CaseDrills, DrawTheBoxesOfPronounsOnlyWhereTheOrderIsWrittenSmall)
{
    for (const auto& [order, drawn] : {std::pair{"Random", false}, {"random", true}}) {
        settings.QuestionOrder = order;
        QWidget& drill = openPronoun(0);
        for (int round = 0; round < 3; ++round) {
            std::vector<int> asked;
            for (int i = 0; i < 14; ++i) {
                asked.push_back(pronounDrill.CurrentCell);
                answerRightly(drill);
            }
            EXPECT_EQ(std::ranges::is_sorted(asked), !drawn);
            std::ranges::sort(asked);
            EXPECT_EQ(asked, (std::vector{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 13, 14, 15}));
        }
    }
}

TEST_F(CaseDrills, PlaceTheRowsOfPronounsInTheCaseOrder)
{
    settings.CaseOrder = shell::case_order::NAGDAb;
    QWidget& drill = openPronoun(2);
    QApplication::processEvents();
    constexpr std::pair<int, const char*> Rows[] = {{1, "NominativeLabel"},
                                                    {4, "AccusativeLabel"},
                                                    {2, "GenitiveLabel"},
                                                    {3, "DativeLabel"},
                                                    {5, "AblativeLabel"}};
    for (int above = 0; const auto& [cell, name] : Rows) {
        const int middle = control<QLabel>(drill, name).geometry().center().y();
        EXPECT_LT(std::exchange(above, middle), middle);
        for (const int column : {0, 5, 10})
            EXPECT_NEAR(box(drill, "Pronoun", cell + column).geometry().center().y(), middle, 1);
    }
    EXPECT_LT(box(drill, "Pronoun", 1).x(), box(drill, "Pronoun", 6).x());
    EXPECT_LT(box(drill, "Pronoun", 6).x(), box(drill, "Pronoun", 11).x());
}

} // namespace
