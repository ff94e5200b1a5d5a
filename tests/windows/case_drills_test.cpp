#include "nouns/declension_drill.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QGroupBox>
#include <QWindow>

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
};

// German has no caption for most nouns: the nominative names them.
TEST_F(CaseDrills, OpenTheParadigmOfEachRow)
{
    settings.CurrentLanguage = shell::language::German;
    EXPECT_EQ(label(openNoun(0), "NounLabel").toStdString(), nounTables.NounForms[1][1]);
    settings.CurrentLanguage = shell::language::English;
    for (int row = 0; const int paradigm : {1, 2, 3, 4, 8, 9, 5, 6, 7}) {
        QWidget& drill = openNoun(row++);
        EXPECT_EQ(declensionDrill.DrillParadigm, paradigm);
        EXPECT_EQ(label(drill, "HeadingLabel").toStdString(), nounTables.DeclensionHeading[paradigm]);
        EXPECT_EQ(label(drill, "NounLabel").toStdString(), nounTables.NounCaption[paradigm]);
        click(drill, "DeclQuitButton");
        EXPECT_EQ(declensionDrill.DrillParadigm, 0);
    }
}

// OK has the focus at first, and takes a row once it is chosen: by a click at its very edge, and not
// forgotten by one below all rows. Enter in the list takes the first.
TEST_F(CaseDrills, AreOpenedByOkOrByEnterInTheList)
{
    QWidget& chooser = open("DeclensionButton", "DeclinationChoose");
    EXPECT_EQ(focusIn(chooser), "SdeclOK");
    press(chooser, Qt::Key_Return);
    click(chooser, "SdeclOK");
    EXPECT_EQ(settings.ActiveWindowName, "declchoose");
    QListWidget& rows = list(chooser, "DeclinationList");
    clickRow(rows, 4);
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualItemRect(rows.item(5)).topLeft());
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.viewport()->rect().bottomLeft());
    click(chooser, "SdeclOK");
    EXPECT_EQ(declensionDrill.DrillParadigm, ThirdDeclensionNeuter);
    for (const auto& [button, window, drill] :
         {std::tuple{"PronounButton", "PronounChooser", "PronounSingular"},
          {"DeclensionButton", "DeclinationChoose", "Declination"}}) {
        QWidget& opened = open(button, window);
        control<QListWidget>(opened).setFocus();
        press(opened, Qt::Key_Return);
        EXPECT_NE(shownWindow(drill), nullptr);
    }
    EXPECT_EQ(declensionDrill.DrillParadigm, FirstDeclension);
}

// In pixels: the boxes below the top of their frame, the names of the cases below that of the window.
TEST_F(CaseDrills, PlaceTheRowsOfNounsInTheCaseOrder)
{
    using Rows = std::array<int, CasesOfNumber>;
    constexpr std::array Names = {"DeclNom", "DeclGen", "DeclDat", "DeclAcc", "DeclAbl"};
    settings.MainWindowState = 0;
    for (const auto& [order, cases, tops] :
         {std::tuple{"NGDAAb", Rows{0, 1, 2, 3, 4}, Rows{150, 190, 230, 270, 310}},
          {"NAGDAb", Rows{0, 3, 1, 2, 4}, Rows{150, 190, 231, 270, 310}}}) {
        settings.CaseOrder = order;
        QWidget& drill = openNoun(0);
        for (const char* const frame : {"Frame1", "Frame2"})
            EXPECT_EQ(control<QGroupBox>(drill, frame).mapTo(&drill, QPoint()).y(), 126);
        for (std::size_t row = 0; row < cases.size(); ++row) {
            const int inCase = cases.at(row);
            const auto& name = control<QLabel>(drill, Names.at(static_cast<std::size_t>(inCase)));
            EXPECT_EQ(name.mapTo(&drill, QPoint()).y(), tops.at(row));
            for (const int number : {0, CasesOfNumber})
                EXPECT_EQ(box(drill, "DeclText", inCase + number).y(), 24 + 40 * static_cast<int>(row));
        }
    }
}

TEST_F(CaseDrills, PlaceTheRowsOfPronounsInTheCaseOrder)
{
    settings.CaseOrder = shell::case_order::NAGDAb;
    QWidget& drill = openPronoun(2);
    int above = 0;
    for (const auto& [cell, name] : {std::pair{1, "NominativeLabel"},
                                     {4, "AccusativeLabel"},
                                     {2, "GenitiveLabel"},
                                     {3, "DativeLabel"},
                                     {5, "AblativeLabel"}}) {
        const int middle = control<QLabel>(drill, name).geometry().center().y();
        EXPECT_LT(std::exchange(above, middle), middle);
        for (int column = 0, left = 0; column < 3; ++column) {
            const QRect place = box(drill, "Pronoun", cell + column * 5).geometry();
            EXPECT_NEAR(place.center().y(), middle, 1);
            EXPECT_EQ(control<QLabel>(drill, QStringLiteral("ColumnLabel%1").arg(column + 1)).x(), place.x());
            EXPECT_LT(std::exchange(left, place.x()), place.x());
        }
    }
}

TEST_F(CaseDrills, HoldTheFocusAsideWhileAnAnswerIsShownAndLetTheHelpBeReadBesideThem)
{
    QWidget& drill = openNoun(2);
    duringPause([&] { EXPECT_EQ(focusIn(drill), "DDummy"); });
    type(drill, "?");
    EXPECT_EQ(focusIn(drill), "DeclText0");
    declensionDrill.AnswerGiven = platform::FlagTrue;
    QTest::mouseClick(&box(drill, "DeclText", 7), Qt::LeftButton);
    EXPECT_EQ(declensionDrill.AnswerGiven, platform::FlagFalse);
    EXPECT_EQ(drill.windowModality(), Qt::ApplicationModal);
    press(drill, Qt::Key_F1);
    QWidget& help = shown("Help");
    const QAbstractButton& close = button(help, "Command1");
    const QPoint middle = close.mapTo(&help, close.rect().center());
    QTest::mouseClick(help.windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
    EXPECT_FALSE(help.isVisible());
    answer(drill, QString::fromStdString(declensionDrill.ExpectedAnswer));
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

} // namespace
