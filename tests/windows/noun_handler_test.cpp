#include "nouns/declensions.h"
#include "nouns/noun_list.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

namespace {

using namespace nouns;
using tests::click;
using tests::clickRow;
using tests::control;
using tests::press;
using tests::type;

class NounManager : public tests::WindowTest {
protected:
    NounManager()
    {
        tests::copySample("verbs.cfg");
        tests::copySample("nouns.cfg");
        manager = &open("FileNounManager", "NounHandler");
        QApplication::setActiveWindow(manager);
        QApplication::processEvents();
    }

    QListWidget& list(const char* name) { return control<QListWidget>(*manager, name); }
    void chooseDeclension(int row) { clickRow(list("NHDeclList"), row); }

    void chooseNoun(int row)
    {
        list("NHNounList").scrollToItem(list("NHNounList").item(row));
        clickRow(list("NHNounList"), row);
    }

    QStringList listed() { return tests::rows(list("NHNounList")); }
    QString field(const char* name) { return control<QLineEdit>(*manager, name).text(); }

    void fill(const char* line, const QString& text) { tests::fill(*manager, line, text); }

    void chooseParadigm(int row)
    {
        auto& paradigms = control<QComboBox>(*manager, "NHParadigm");
        paradigms.setFocus();
        press(*manager, Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            press(*manager, Qt::Key_Down);
        ASSERT_EQ(paradigms.currentIndex(), row);
    }

    QWidget* manager = nullptr;
};

TEST_F(NounManager, ListsTheNounsOfEachDeclension)
{
    EXPECT_EQ(listed().size(), 12);
    EXPECT_EQ(listed().front(), "puella");
    chooseDeclension(1);
    EXPECT_EQ(listed().size(), 10 + 10 + 15);
    EXPECT_EQ(listed().at(20), "bellum");
    chooseDeclension(2);
    EXPECT_EQ(listed().size(), 10 + 8);
    EXPECT_EQ(listed().at(10), "corpus");
    EXPECT_EQ(nounList.NounCount[FourthDeclension], 0);
    chooseDeclension(3);
    EXPECT_EQ(nounList.NounCount[FourthDeclension], 5);
    EXPECT_EQ(listed(), (QStringList{"fructus", "manus", "metus", "passus", "versus", "cornu", "genu"}));
    chooseDeclension(4);
    EXPECT_EQ(listed(), (QStringList{"res", "dies", "spes", "fides", "species", "quies", "requies"}));
}

TEST_F(NounManager, ShowsTheFieldsOfANoun)
{
    chooseDeclension(2);
    chooseNoun(1);
    EXPECT_EQ(field("NHStem"), "miles");
    EXPECT_EQ(field("NHObliqueStem"), "milit");
    EXPECT_EQ(field("NHNote"), "m. -itis");
    EXPECT_EQ(field("NHMeaning0"), "soldier");
    EXPECT_EQ(field("NHMeaning3"), "soldado");
    chooseDeclension(3);
    chooseNoun(3);
    EXPECT_EQ(field("NHStem"), "pass");
    EXPECT_EQ(field("NHMeaning1"), "Treppe");
    type(*manager, "x");
    fill("NHStem", "x");
    EXPECT_EQ(field("NHStem"), "pass");
}

TEST_F(NounManager, AddsANounThatIsDrawnAfterwards)
{
    click(*manager, "NHAdd");
    EXPECT_EQ(shell::settings.ActiveWindowName, "NHadd");
    EXPECT_EQ(listed().back(), "** Add New Item Here **");
    EXPECT_EQ(tests::focusIn(*manager), "NHStem");
    type(*manager, "stell");
    fill("NHNote", "f. -ae");
    fill("NHMeaning0", "star");
    click(*manager, "NHAdd");
    EXPECT_EQ(listed().size(), 13);
    EXPECT_EQ(listed().back(), "stella");
    EXPECT_EQ(nounList.NounCount[FirstDeclension], 13);
    EXPECT_EQ(nounAt(FirstDeclension, 13), (NounRecord{"f. -ae", "stell", "", {"star", "", "", ""}}));
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(NounManager, AddsToTheParadigmThatIsChosen)
{
    chooseDeclension(1);
    click(*manager, "NHAdd");
    EXPECT_EQ(control<QComboBox>(*manager, "NHParadigm").currentIndex(), 2);
    type(*manager, "sax");
    click(*manager, "NHAdd");
    EXPECT_EQ(nounList.NounListStem[SecondDeclensionNeuter][15], "sax");
    click(*manager, "NHAdd");
    type(*manager, "cam");
    chooseParadigm(0);
    click(*manager, "NHAdd");
    EXPECT_EQ(nounList.NounListStem[SecondDeclensionUs][10], "cam");
    EXPECT_EQ(listed().at(10), "camus");
    EXPECT_EQ(list("NHNounList").currentRow(), 10);
}

TEST_F(NounManager, RefusesWhatDoesNotFit)
{
    click(*manager, "NHAdd");
    click(*manager, "NHAdd");
    EXPECT_EQ(fake.messages.size(), 1U);
    for (int number = 13; number <= 20; ++number) {
        fill("NHStem", QStringLiteral("noun%1").arg(number));
        click(*manager, "NHAdd");
        click(*manager, "NHAdd");
    }
    EXPECT_EQ(nounList.NounCount[FirstDeclension], 20);
    fill("NHStem", "late");
    click(*manager, "NHAdd");
    EXPECT_EQ(nounList.NounCount[FirstDeclension], 20);
    EXPECT_EQ(field("NHStem"), "late");
    chooseDeclension(2);
    click(*manager, "NHAdd");
    chooseParadigm(0);
    fill("NHStem", "pax");
    click(*manager, "NHAdd");
    EXPECT_EQ(nounList.NounCount[ThirdDeclension], 10);
    nounList.NounCount[ThirdDeclension] = 9;
    click(*manager, "NHAdd");
    EXPECT_EQ(nounList.NounCount[ThirdDeclension], 9);
    chooseDeclension(4);
    click(*manager, "NHAdd");
    EXPECT_EQ(fake.messages,
              (std::vector<std::string>{"A noun needs a stem.", "This paradigm holds 20 nouns at the most.",
                                        "This paradigm holds 10 nouns at the most.",
                                        "A noun of the third declension needs an oblique stem as well.",
                                        "The nouns of the fourth and fifth declensions are fixed."}));
    for (int draws = 0; draws < 100; ++draws)
        BuildNounParadigms();
}

TEST_F(NounManager, KeepsWhatWasTypedUntilItIsStored)
{
    click(*manager, "NHAdd");
    type(*manager, "stell");
    fill("NHMeaning0", "star");
    chooseNoun(0);
    EXPECT_EQ(field("NHStem"), "puell");
    chooseDeclension(3);
    chooseDeclension(0);
    click(*manager, "NHAdd");
    EXPECT_EQ(field("NHStem"), "stell");
    EXPECT_EQ(field("NHMeaning0"), "star");
}

TEST_F(NounManager, TakesTheMarksOutWhereTheyAreNotShown)
{
    click(*manager, "NHAdd");
    type(*manager, "cu:r");
    click(*manager, "NHAdd");
    EXPECT_EQ(listed().back(), "cura");
    shell::settings.ShowVowelLength = platform::FlagTrue;
    click(*manager, "NHAdd");
    type(*manager, "cu:r");
    click(*manager, "NHAdd");
    EXPECT_EQ(listed().back(), "cu:ra");
}

TEST_F(NounManager, IsClosedForTheMainWindow)
{
    QApplication::setActiveWindow(manager);
    EXPECT_EQ(shell::settings.ActiveWindowName, "nounmanager");
    for (const auto leave : {+[](QWidget& window) { click(window, "NHClose"); },
                             +[](QWidget& window) { press(window, Qt::Key_Escape); },
                             +[](QWidget& window) { window.close(); }}) {
        leave(*manager);
        EXPECT_EQ(tests::shownWindow("NounHandler"), nullptr);
        open("FileNounManager", "NounHandler");
        EXPECT_EQ(list("NHDeclList").currentRow(), 0);
    }
}

TEST_F(NounManager, ShowsEmptyLists)
{
    nounList = {};
    chooseDeclension(2);
    EXPECT_TRUE(listed().empty());
    EXPECT_EQ(field("NHStem"), "");
    click(*manager, "NHAdd");
    type(*manager, "pax");
    chooseParadigm(0);
    fill("NHObliqueStem", "pac");
    click(*manager, "NHAdd");
    EXPECT_EQ(listed(), QStringList{"pax"});
    EXPECT_EQ(nounList.NounListObliqueStem[ThirdDeclension][0], "pac");
}

} // namespace
