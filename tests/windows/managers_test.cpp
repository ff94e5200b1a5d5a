#include "nouns/declensions.h"
#include "nouns/noun_list.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbs/verb_list.h"

#include <QComboBox>

namespace {

using namespace nouns;
using namespace tests;
using verbs::FirstConjugation;
using verbs::verbList;

class VerbManager : public WindowTest {
protected:
    VerbManager()
    {
        copySample("verbs.cfg");
        openManager();
    }

    void openManager() { manager = &open("FileVerbManager", "VerbManager"); }

    void chooseVerb(int verbClass, int verb)
    {
        clickRow(list(*manager, "VMConjList"), verbClass);
        clickRow(list(*manager, "VMFormsList"), verb);
    }

    QStringList listed() { return rows(list(*manager, "VMFormsList")); }
    QString latin(int stem) { return box(*manager, "VerbManagerLatinForms", stem).text(); }
    QString meaning() { return box(*manager, "VerbManagerGermanForms", 0).text(); }
    void fillLatin(int stem, const char* text) { fill(box(*manager, "VerbManagerLatinForms", stem), text); }
    void fillMeaning(const char* text) { fill(box(*manager, "VerbManagerGermanForms", 0), text); }

    QWidget* manager = nullptr;
};

TEST_F(VerbManager, ShowsTheVerbsOfEachClassAndPreviewsItsForms)
{
    for (int row = 0; const char* const first : {"amare", "monere", "regere", "capire", "audire"}) {
        chooseVerb(row++, 4);
        EXPECT_EQ(listed().front(), first);
        EXPECT_EQ(listed().size(), 13);
    }
    chooseVerb(1, 4);
    EXPECT_EQ(box(*manager, "VerbManagerGermanForms", 3).text(), "moving");
    for (int stem = 0; const auto& [shown, preview, form] : {std::tuple{"mov", "LatInfinitive", "cantare"},
                                                             {"mov", "LatPerfect", "canti"},
                                                             {"mot", "LatPastParticiple", "cantus"}}) {
        EXPECT_EQ(latin(stem), shown);
        fillLatin(stem++, "cant");
        EXPECT_EQ(label(*manager, preview), form);
    }
}

TEST_F(VerbManager, AddsAVerbOnTheLastRowAndRefusesASixteenth)
{
    verbList.Count[FirstConjugation] = 14;
    chooseVerb(1, 0);
    chooseVerb(0, 14);
    click(*manager, "VerbManagerAdd");
    EXPECT_EQ(fake.messages, std::vector<std::string>{"A verb needs a present stem."});
    fillLatin(0, "cant");
    fillMeaning("sing");
    click(*manager, "VerbManagerAdd");
    EXPECT_EQ(verbs::verbAt(FirstConjugation, 15), (verbs::VerbRecord{"cant", "", "", {"sing", "", "", ""}}));
    EXPECT_EQ(listed().mid(14), QStringList({"cantare", "** Add New Item Here **"}));
    chooseVerb(0, 15);
    EXPECT_EQ(latin(0), "");
    fillLatin(0, "salt");
    click(*manager, "VerbManagerAdd");
    EXPECT_EQ(fake.messages.back(), "A conjugation holds fifteen verbs at the most.");
    EXPECT_EQ(latin(0), "salt");
}

TEST_F(VerbManager, KeepsTheMarksOfAnEditThatIsEditedWhileNoneAreShown)
{
    for (const char* const supine : {"lau:dat", "laudat"}) {
        manager->close();
        choose(shown("MainMenu"), "VowelLengthVal");
        openManager();
        chooseVerb(0, 3);
        fillLatin(1, "vocav");
        if (supine != QString("laudat"))
            fillLatin(2, supine);
        fillMeaning("extol");
        click(*manager, "VerbManagerAdd");
        EXPECT_EQ(verbList.SupineStem[FirstConjugation][4], supine);
    }
    manager->close();
    choose(shown("MainMenu"), "VowelLengthVal");
    EXPECT_EQ(verbs::verbAt(FirstConjugation, 4).supineStem, "lau:dat");
    EXPECT_EQ(verbs::verbAt(FirstConjugation, 4).perfectStem, "vocav");
    EXPECT_EQ(verbs::verbAt(FirstConjugation, 4).translations[0], "extol");
}

TEST_F(VerbManager, KeepsWhatWasTypedAndNotAddedYet)
{
    const QString listed = meaning();
    fillMeaning("adore");
    chooseVerb(1, 12);
    fillMeaning("sing");
    chooseVerb(0, 0);
    EXPECT_EQ(meaning(), "adore");
    chooseVerb(2, 12);
    EXPECT_EQ(meaning(), "");
    manager->close();
    openManager();
    EXPECT_EQ(meaning(), listed);
    chooseVerb(1, 12);
    EXPECT_EQ(meaning(), "sing");
}

TEST_F(VerbManager, EndsTheProgramWithItsCancelButton)
{
    click(*manager, "VerbMangerCancel");
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_FALSE(std::filesystem::exists("morvanti.ini"));
}

class NounManager : public WindowTest {
protected:
    NounManager()
    {
        copySample("verbs.cfg");
        copySample("nouns.cfg");
        manager = &open("FileNounManager", "NounHandler");
    }

    void chooseDeclension(int row) { clickRow(list(*manager, "NHDeclList"), row); }
    void chooseNoun(int row) { clickRow(list(*manager, "NHNounList"), row); }
    QStringList listed() { return rows(list(*manager, "NHNounList")); }
    void clickAdd() { click(*manager, "NHAdd"); }

    void store(const char* stem)
    {
        fill(line(*manager, "NHStem"), stem);
        clickAdd();
    }

    void add(const char* stem)
    {
        clickAdd();
        store(stem);
    }

    void addToFirstParadigm()
    {
        clickAdd();
        control<QComboBox>(*manager).setFocus();
        press(*manager, Qt::Key_Home);
    }

    // The stems, the note, and the first and last meaning.
    QStringList shownNoun()
    {
        QStringList texts;
        for (const char* const name : {"NHStem", "NHObliqueStem", "NHNote", "NHMeaning0", "NHMeaning3"})
            texts << line(*manager, name).text();
        return texts;
    }

    QWidget* manager = nullptr;
};

TEST_F(NounManager, ShowsTheNounsOfEachDeclension)
{
    using Row = std::tuple<int, int, const char*, QStringList>;
    for (int declension = 0; const auto& [count, row, noun, fields] :
                             {Row{12, 0, "puella", {"puell", "", "f. -ae", "girl", "muchacha"}},
                              {35, 20, "bellum", {"bell", "", "n. -i", "war", "guerra"}},
                              {18, 1, "miles", {"miles", "milit", "m. -itis", "soldier", "soldado"}},
                              {7, 3, "passus", {"pass", "", " (m)", "step", "paso"}},
                              {7, 1, "dies", {"di", "", " (f)", "day", "día"}}}) {
        chooseDeclension(declension++);
        EXPECT_EQ(listed().size(), count);
        EXPECT_EQ(listed().at(row), noun);
        chooseNoun(row);
        fill(line(*manager, "NHStem"), "x");
        EXPECT_EQ(shownNoun(), fields);
    }
    EXPECT_EQ(nounList.NounCount[FourthDeclension], 5);
}

TEST_F(NounManager, AddsANounThatIsDrawnAfterwards)
{
    clickAdd();
    EXPECT_EQ(shell::settings.ActiveWindowName, "NHadd");
    EXPECT_EQ(listed().back(), "** Add New Item Here **");
    EXPECT_EQ(focusIn(*manager), "NHStem");
    fill(line(*manager, "NHNote"), "f. -ae");
    fill(line(*manager, "NHMeaning0"), "star");
    store("stell");
    EXPECT_EQ(listed().size(), 13);
    EXPECT_EQ(listed().back(), "stella");
    EXPECT_EQ(nounList.NounCount[FirstDeclension], 13);
    EXPECT_EQ(nounAt(FirstDeclension, 13), (NounRecord{"f. -ae", "stell", "", {"star", "", "", ""}}));
    clickAdd();
    EXPECT_EQ(shownNoun().join(""), "");
}

TEST_F(NounManager, AddsToTheParadigmThatIsChosen)
{
    chooseDeclension(1);
    add("sax");
    EXPECT_EQ(nounList.NounListStem[SecondDeclensionNeuter][15], "sax");
    addToFirstParadigm();
    store("cam");
    EXPECT_EQ(nounList.NounListStem[SecondDeclensionUs][10], "cam");
    EXPECT_EQ(listed().at(10), "camus");
    EXPECT_EQ(list(*manager, "NHNounList").currentRow(), 10);
    nounList = {};
    chooseDeclension(2);
    EXPECT_TRUE(listed().empty());
    EXPECT_EQ(shownNoun().join(""), "");
    addToFirstParadigm();
    fill(line(*manager, "NHObliqueStem"), "pac");
    store("pax");
    EXPECT_EQ(listed(), QStringList{"pax"});
    EXPECT_EQ(nounList.NounListObliqueStem[ThirdDeclension][0], "pac");
}

TEST_F(NounManager, RefusesWhatDoesNotFit)
{
    for (int number = 13; number <= 21; ++number)
        add("nov");
    EXPECT_EQ(nounList.NounCount[FirstDeclension], 20);
    EXPECT_EQ(shownNoun().front(), "nov");
    chooseDeclension(2);
    addToFirstParadigm();
    store("");
    store("pax");
    nounList.NounCount[ThirdDeclension] = 9;
    clickAdd();
    EXPECT_EQ(nounList.NounCount[ThirdDeclension], 9);
    chooseDeclension(4);
    clickAdd();
    EXPECT_EQ(fake.messages,
              (std::vector<std::string>{"This paradigm holds 20 nouns at the most.", "A noun needs a stem.",
                                        "This paradigm holds 10 nouns at the most.",
                                        "A noun of the third declension needs an oblique stem as well.",
                                        "The nouns of the fourth and fifth declensions are fixed."}));
    for (int draws = 0; draws < 100; ++draws)
        BuildNounParadigms();
}

TEST_F(NounManager, KeepsWhatWasTypedUntilItIsStored)
{
    clickAdd();
    fill(line(*manager, "NHStem"), "stell");
    fill(line(*manager, "NHMeaning0"), "star");
    chooseNoun(0);
    EXPECT_EQ(shownNoun().front(), "puell");
    for (const auto& leave : waysToLeave("NHClose")) {
        chooseDeclension(3);
        leave(*manager);
        EXPECT_EQ(shownWindow("NounHandler"), nullptr);
        open("FileNounManager", "NounHandler");
        clickAdd();
        EXPECT_EQ(shownNoun(), QStringList({"stell", "", "", "star", ""}));
    }
}

TEST_F(NounManager, TakesTheMarksOutWhereTheyAreNotShown)
{
    for (const auto& [marks, noun] :
         {std::pair{platform::FlagFalse, "cura"}, {platform::FlagTrue, "cu:ra"}}) {
        shell::settings.ShowVowelLength = marks;
        add("cu:r");
        EXPECT_EQ(listed().back(), noun);
    }
}

} // namespace
