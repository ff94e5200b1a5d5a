#include "nouns/pronoun_drill.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QLineEdit>
#include <QListWidget>

#include <set>

namespace {

using namespace nouns;
using shell::settings;
using tests::click;
using tests::control;
using tests::label;
using tests::press;
using tests::shown;
using tests::type;

class PronounDrillWindow : public tests::WindowTest {
protected:
    PronounDrillWindow() { start(); }

    QWidget& openChooser()
    {
        if (QWidget* const before = tests::shownWindow("PronounChooser"))
            before->close();
        return open("PronounButton", "PronounChooser");
    }

    QWidget& openRow(int row)
    {
        tests::doubleClickRow(control<QListWidget>(openChooser(), "PronounList"), row);
        return shown("PronounSingular");
    }

    static QLineEdit& box(QWidget& drill, int cell)
    {
        return control<QLineEdit>(drill, QStringLiteral("Pronoun%1").arg(cell));
    }

    // Types a row of answers into the boxes as they are asked; each must be right.
    static void answerAll(QWidget& drill, const QStringList& forms)
    {
        for (const QString& form : forms) {
            const int before = settings.RightCount;
            type(drill, form);
            press(drill, Qt::Key_Return);
            ASSERT_EQ(settings.RightCount, before + 1) << form.toStdString();
        }
    }

    static std::vector<int> cellsAsked(QWidget& drill, int count)
    {
        std::vector<int> asked;
        for (int i = 0; i < count; ++i) {
            asked.push_back(pronounDrill.CurrentCell);
            EXPECT_EQ(tests::focusIn(drill), QStringLiteral("Pronoun%1").arg(asked.back()));
            answerAll(drill, {QString::fromStdString(pronounDrill.ExpectedAnswer)});
        }
        return asked;
    }
};

struct Group {
    const char* singular;
    const char* plural;
};

// clang-format off
// Column by column: nominative, genitive, dative, accusative, ablative.
constexpr std::array<Group, 5> Grammar = {{
    {"ego mei: mihi me: me: tu: tui: tibi te: te: sui: sibi se: se:",
     "no:s nostri: no:bi:s no:s no:bi:s vo:s vestri: vo:bi:s vo:s vo:bi:s sui: sibi se: se:"},
    {"is eius ei: eum eo: ea eius ei: eam ea: id eius ei: id eo:",
     "ii: eo:rum ii:s eo:s ii:s eae ea:rum ii:s ea:s ii:s ea eo:rum ii:s ea ii:s"},
    {"hic huius huic hunc ho:c haec huius huic hanc ha:c hoc huius huic hoc ho:c",
     "hi: ho:rum hi:s ho:s hi:s hae ha:rum hi:s ha:s hi:s haec ho:rum hi:s haec hi:s"},
    {"ille illi:us illi: illum illo: illa illi:us illi: illam illa: illud illi:us illi: illud illo:",
     "illi: illo:rum illi:s illo:s illi:s illae illa:rum illi:s illa:s illi:s illa illo:rum illi:s illa illi:s"},
    {"qui: cuius cui quem quo: quae cuius cui quam qua: quod cuius cui quod quo:",
     "qui: quo:rum quibus quo:s quibus quae qua:rum quibus qua:s quibus quae quo:rum quibus quae quibus"},
}};
// clang-format on

TEST_F(PronounDrillWindow, AsksTheGrammarsFormsWithMarksAndWithout)
{
    for (const char* const mark : {":", ""}) {
        settings.VowelMark = mark;
        int row = 0;
        for (const auto& [singular, plural] : Grammar) {
            QWidget& drill = openRow(row++);
            for (const char* const number : {singular, plural, singular})
                answerAll(drill, QString::fromUtf8(number).replace(':', mark).split(' '));
            EXPECT_EQ(label(drill, "ScoreLabel"), " 100% ");
            click(drill, "PronounCancel");
        }
    }
}

TEST_F(PronounDrillWindow, AsksTheAccusativeSecondInTheOtherOrder)
{
    settings.CaseOrder = shell::case_order::NAGDAb;
    EXPECT_EQ(cellsAsked(openRow(3), 15), (std::vector{1, 4, 2, 3, 5, 6, 9, 7, 8, 10, 11, 14, 12, 13, 15}));
}

TEST_F(PronounDrillWindow, PassesOverTheReflexiveNominative)
{
    settings.CaseOrder = shell::case_order::NAGDAb;
    QWidget& drill = openRow(0);
    EXPECT_FALSE(box(drill, 11).isEnabled());
    EXPECT_EQ(cellsAsked(drill, 14), (std::vector{1, 4, 2, 3, 5, 6, 9, 7, 8, 10, 14, 12, 13, 15}));
    EXPECT_FALSE(box(drill, 11).isEnabled());
    EXPECT_EQ(cellsAsked(drill, 1), std::vector{1});
    click(drill, "PronounCancel");
    EXPECT_TRUE(box(openRow(1), 11).isEnabled());
}

TEST_F(PronounDrillWindow, GoesInCaseOrderThoughRandomIsChosen)
{
    settings.QuestionOrder = shell::question_order::Random;
    EXPECT_EQ(cellsAsked(openRow(1), 15), (std::vector{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}));
}

TEST_F(PronounDrillWindow, DrawsTheBoxesWhereTheOrderIsWrittenSmall)
{
    settings.QuestionOrder = "random";
    QWidget& drill = openRow(0);
    for (int round = 0; round < 3; ++round) {
        const std::vector<int> asked = cellsAsked(drill, 14);
        EXPECT_EQ(std::set<int>(asked.begin(), asked.end()).size(), 14U);
        EXPECT_EQ(std::ranges::count(asked, 11), 0);
        EXPECT_FALSE(std::ranges::is_sorted(asked));
    }
}

TEST_F(PronounDrillWindow, TurnsFromTheSingularToThePluralAndBack)
{
    QWidget& drill = openRow(0);
    EXPECT_EQ(label(drill, "HeadingLabel"), "Personal Pronouns: ego, tu, ***");
    EXPECT_EQ(label(drill, "ColumnLabel3"), "3 Pers. Sing.");
    cellsAsked(drill, 14);
    EXPECT_EQ(label(drill, "ColumnLabel3"), "3 Pers. Plur.");
    for (int cell = 1; cell <= CellCount; ++cell)
        EXPECT_EQ(box(drill, cell).text(), "");
    cellsAsked(drill, 14);
    EXPECT_EQ(label(drill, "ColumnLabel3"), "3 Pers. Sing.");
}

TEST_F(PronounDrillWindow, PlacesItsRowsInTheCaseOrder)
{
    settings.CaseOrder = shell::case_order::NAGDAb;
    QWidget& drill = openRow(2);
    QApplication::processEvents();
    const std::vector<int> down = {1, 4, 2, 3, 5};
    for (std::size_t i = 1; i < down.size(); ++i)
        for (const int column : {0, 5, 10})
            EXPECT_GT(box(drill, down[i] + column).y(), box(drill, down[i - 1] + column).y());
    EXPECT_LT(box(drill, 1).x(), box(drill, 6).x());
    EXPECT_LT(box(drill, 6).x(), box(drill, 11).x());
    EXPECT_EQ(label(drill, "ColumnLabel2"), "Fem. Sing.");
}

TEST_F(PronounDrillWindow, SpeaksGermanAndEnglishWhereFrenchIsMissing)
{
    settings.CurrentLanguage = shell::language::German;
    QWidget& german = openRow(4);
    EXPECT_EQ(german.windowTitle(), "Pronomen");
    EXPECT_EQ(label(german, "HeadingLabel"), "Relative Pronomen: qui-quae-quod (derjeniger)");
    EXPECT_EQ(settings.ExerciseType, "Pronouns");
    press(german, Qt::Key_Escape);
    settings.CurrentLanguage = shell::language::French;
    EXPECT_EQ(tests::rows(control<QListWidget>(openChooser(), "PronounList")).front(),
              "ego-tu-* (he, she, [it])");
}

} // namespace
