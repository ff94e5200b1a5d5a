#include "tests/support/window_test.h"
#include "verbs/verb_list.h"

#include <QLineEdit>
#include <QListWidget>

namespace {

using tests::control;
using tests::fill;
using verbs::verbList;

class VerbManager : public tests::WindowTest {
protected:
    VerbManager() { tests::copySample("verbs.cfg"); }

    QWidget& openManager() { return open("FileVerbManager", "VerbManager"); }

    static QListWidget& classes(QWidget& manager) { return control<QListWidget>(manager, "VMConjList"); }
    static QListWidget& verbs(QWidget& manager) { return control<QListWidget>(manager, "VMFormsList"); }
};

TEST_F(VerbManager, ListsTheVerbsOfEachClassWithItsEnding)
{
    QWidget& manager = openManager();
    const QStringList first = {"amare", "monere", "regere", "capire", "audire"};
    for (int row = 0; row < first.size(); ++row) {
        tests::clickRow(classes(manager), row);
        EXPECT_EQ(verbs(manager).item(0)->text(), first.at(row));
        EXPECT_EQ(verbs(manager).count(), 16);
        EXPECT_EQ(verbs(manager).item(15)->text(), "** Add New Item Here **");
    }
}

TEST_F(VerbManager, FillsTheFieldsFromTheVerbAndPreviewsItsForms)
{
    QWidget& manager = openManager();
    tests::clickRow(classes(manager), 1);
    tests::clickRow(verbs(manager), 4);
    EXPECT_EQ(control<QLineEdit>(manager, "VerbManagerLatinForms0").text(), "mov");
    EXPECT_EQ(control<QLineEdit>(manager, "VerbManagerLatinForms1").text(), "mov");
    EXPECT_EQ(control<QLineEdit>(manager, "VerbManagerLatinForms2").text(), "mot");
    EXPECT_EQ(control<QLineEdit>(manager, "VerbManagerGermanForms3").text(), "moving");
    EXPECT_EQ(tests::label(manager, "LatInfinitive"), "movare");
    EXPECT_EQ(tests::label(manager, "LatPerfect"), "movi");
    EXPECT_EQ(tests::label(manager, "LatPastParticiple"), "motus");
    fill(manager, "VerbManagerLatinForms0", "cant");
    EXPECT_EQ(tests::label(manager, "LatInfinitive"), "cantare");
}

TEST_F(VerbManager, AddsAVerbOnTheLastRowAndRefusesASixteenth)
{
    QWidget& manager = openManager();
    verbList.Count[verbs::FirstConjugation] = 14;
    tests::clickRow(classes(manager), 1);
    tests::clickRow(classes(manager), 0);
    tests::clickRow(verbs(manager), 14);
    EXPECT_EQ(control<QLineEdit>(manager, "VerbManagerLatinForms0").text(), "");
    tests::click(manager, "VerbManagerAdd");
    EXPECT_EQ(fake.messages.size(), 1U);
    fill(manager, "VerbManagerLatinForms0", "cant");
    fill(manager, "VerbManagerGermanForms0", "sing");
    tests::click(manager, "VerbManagerAdd");
    EXPECT_EQ(verbList.Count[verbs::FirstConjugation], 15);
    EXPECT_EQ(verbList.PresentStem[verbs::FirstConjugation][15], "cant");
    EXPECT_EQ(verbList.BaseForm[verbs::FirstConjugation][14], "sing");
    EXPECT_EQ(verbs(manager).item(14)->text(), "cantare");

    tests::clickRow(verbs(manager), 15);
    fill(manager, "VerbManagerLatinForms0", "salt");
    tests::click(manager, "VerbManagerAdd");
    EXPECT_EQ(fake.messages.size(), 2U);
    EXPECT_EQ(control<QLineEdit>(manager, "VerbManagerLatinForms0").text(), "salt");
}

TEST_F(VerbManager, KeepsEditsAndMarksWhenVowelLengthIsSwitched)
{
    QWidget& manager = openManager();
    tests::clickRow(verbs(manager), 3);
    fill(manager, "VerbManagerGermanForms0", "summon");
    tests::click(manager, "VerbManagerAdd");
    manager.close();
    tests::choose(tests::shown("MainMenu"), "VowelLengthVal");
    EXPECT_EQ(verbList.BaseForm[verbs::FirstConjugation][3], "summon");
    EXPECT_EQ(verbList.SupineStem[verbs::FirstConjugation][4], "voca:t");
}

TEST_F(VerbManager, KeepsTheMarksOfAnEditThatIsEditedWhileNoneAreShown)
{
    QWidget& menu = start();
    tests::choose(menu, "VowelLengthVal");
    QWidget& manager = openManager();
    tests::clickRow(verbs(manager), 3);
    fill(manager, "VerbManagerLatinForms1", "vocav");
    fill(manager, "VerbManagerLatinForms2", "lau:dat");
    tests::click(manager, "VerbManagerAdd");
    manager.close();
    tests::choose(menu, "VowelLengthVal");
    openManager();
    tests::clickRow(verbs(manager), 3);
    EXPECT_EQ(control<QLineEdit>(manager, "VerbManagerLatinForms2").text(), "laudat");
    fill(manager, "VerbManagerGermanForms0", "extol");
    tests::click(manager, "VerbManagerAdd");
    manager.close();
    EXPECT_EQ(verbList.SupineStem[verbs::FirstConjugation][4], "laudat");
    tests::choose(menu, "VowelLengthVal");
    EXPECT_EQ(verbList.PerfectStem[verbs::FirstConjugation][4], "vocav");
    EXPECT_EQ(verbList.SupineStem[verbs::FirstConjugation][4], "lau:dat");
    EXPECT_EQ(verbList.BaseForm[verbs::FirstConjugation][3], "extol");
}

TEST_F(VerbManager, KeepsWhatWasTypedAndNotAddedYet)
{
    QWidget& manager = openManager();
    const auto base = [&] { return control<QLineEdit>(manager, "VerbManagerGermanForms0").text(); };
    const auto choose = [&](int verbClass, int row) {
        tests::clickRow(classes(manager), verbClass);
        tests::clickRow(verbs(manager), row);
    };
    const QString listed = base();
    fill(manager, "VerbManagerGermanForms0", "adore");
    choose(1, 15);
    fill(manager, "VerbManagerGermanForms0", "sing");
    choose(0, 0);
    EXPECT_EQ(base(), "adore");
    choose(2, 15);
    EXPECT_EQ(base(), "");
    manager.close();
    openManager();
    EXPECT_EQ(base(), listed);
    choose(1, 15);
    EXPECT_EQ(base(), "sing");
}

TEST_F(VerbManager, EndsTheProgramWithItsCancelButton)
{
    tests::click(openManager(), "VerbMangerCancel");
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_FALSE(std::filesystem::exists("morvanti.ini"));
}

} // namespace
