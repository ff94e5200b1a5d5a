#include "nouns/pronoun_drill.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <set>

namespace {

using namespace nouns;
using namespace tests;
using shell::settings;

class PronounDrillWindow : public WindowTest {
protected:
    PronounDrillWindow() { start(); }

    QWidget& openDrill(int row) { return openRow("PronounButton", "PronounChooser", row, "PronounSingular"); }

    // Types answers into the boxes as they are asked; each must be right.
    static void answerAll(QWidget& drill, const QStringList& forms)
    {
        for (const QString& form : forms) {
            const int before = settings.RightCount;
            answer(drill, form);
            ASSERT_EQ(settings.RightCount, before + 1) << form.toStdString();
        }
    }

    // The boxes of a round that is answered rightly, as they were asked.
    static std::vector<int> cellsAsked(QWidget& drill, int count)
    {
        std::vector<int> asked;
        for (int i = 0; i < count; ++i) {
            asked.push_back(pronounDrill.CurrentCell);
            EXPECT_EQ(focusIn(drill), QStringLiteral("Pronoun%1").arg(asked.back()));
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
        for (int row = 0; const auto& [singular, plural] : Grammar) {
            QWidget& drill = openDrill(row++);
            for (const char* const number : {singular, plural, singular})
                answerAll(drill, QString::fromUtf8(number).replace(':', mark).split(' '));
            EXPECT_EQ(label(drill, "ScoreLabel"), " 100% ");
        }
    }
}

TEST_F(PronounDrillWindow, PassesOverTheReflexiveNominative)
{
    QWidget& drill = openDrill(0);
    for (int number = 0; number < 2; ++number) {
        EXPECT_FALSE(box(drill, "Pronoun", 11).isEnabled());
        EXPECT_EQ(cellsAsked(drill, 14), (std::vector{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 13, 14, 15}));
    }
    EXPECT_TRUE(box(openDrill(1), "Pronoun", 11).isEnabled());
}

TEST_F(PronounDrillWindow, DrawsTheBoxesOnlyWhereTheOrderIsWrittenSmall)
{
    for (const char* const order : {"Random", "random"}) {
        settings.QuestionOrder = order;
        QWidget& drill = openDrill(0);
        for (int round = 0; round < 3; ++round) {
            const std::vector<int> asked = cellsAsked(drill, 14);
            EXPECT_EQ(std::set<int>(asked.begin(), asked.end()).size(), 14U);
            EXPECT_EQ(std::ranges::count(asked, 11), 0);
            EXPECT_EQ(std::ranges::is_sorted(asked), order == std::string_view("Random"));
        }
    }
}

TEST_F(PronounDrillWindow, TurnsFromTheSingularToThePluralAndBack)
{
    for (const auto& [row, heading, singular, plural] :
         {std::tuple{0, "Personal Pronouns: ego, tu, ***", "3 Pers. Sing.", "3 Pers. Plur."},
          {4, "Relatives: qui-quae-quod (who/which)", "Neut. Sing.", "Neut. Plur."}}) {
        QWidget& drill = openDrill(row);
        EXPECT_EQ(settings.ExerciseType, "Pronouns");
        EXPECT_EQ(label(drill, "HeadingLabel"), heading);
        for (const char* const column : {singular, plural, singular}) {
            EXPECT_EQ(label(drill, "ColumnLabel3"), column);
            for (int cell = 1; cell <= CellCount; ++cell)
                EXPECT_EQ(box(drill, "Pronoun", cell).text(), "");
            cellsAsked(drill, row == 0 ? 14 : 15);
        }
    }
}

TEST_F(PronounDrillWindow, PlacesItsRowsInTheCaseOrder)
{
    settings.CaseOrder = shell::case_order::NAGDAb;
    QWidget& drill = openDrill(2);
    QApplication::processEvents();
    const std::vector<std::pair<int, const char*>> down = {{1, "NominativeLabel"},
                                                           {4, "AccusativeLabel"},
                                                           {2, "GenitiveLabel"},
                                                           {3, "DativeLabel"},
                                                           {5, "AblativeLabel"}};
    for (int above = 0; const auto& [cell, inCase] : down) {
        const int middle = control<QLabel>(drill, inCase).geometry().center().y();
        EXPECT_GT(middle, std::exchange(above, middle));
        for (const int column : {0, 5, 10})
            EXPECT_NEAR(box(drill, "Pronoun", cell + column).geometry().center().y(), middle, 1);
    }
    EXPECT_LT(box(drill, "Pronoun", 1).x(), box(drill, "Pronoun", 6).x());
    EXPECT_LT(box(drill, "Pronoun", 6).x(), box(drill, "Pronoun", 11).x());
}

} // namespace
