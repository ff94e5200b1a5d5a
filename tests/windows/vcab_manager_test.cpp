#include "tests/support/full_disk.h"
#include "tests/support/window_test.h"
#include "vocabulary/vocabulary_edits.h"
#include "vocabulary/vocabulary_list.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace {

using tests::choose;
using tests::click;
using tests::clickRow;
using tests::control;
using tests::fill;
using tests::label;
using tests::press;
using tests::rows;
using tests::shown;
using tests::shownWindow;
using tests::type;
using vocabulary::vocabularyList;
using vocabulary::WordRecord;

class VcabManagerWindow : public tests::WindowTest {
protected:
    QWidget& openManager() { return open("FileVcabManager", "VcabManager"); }

    static QListWidget& words(QWidget& manager) { return control<QListWidget>(manager, "VcabManMainForm"); }

    static QString box(QWidget& manager, const QString& name)
    {
        return control<QLineEdit>(manager, name).text();
    }

    static void fillIn(QWidget& manager, const WordRecord& record)
    {
        fill(manager, "VcabManWord", QString::fromStdString(record.word));
        fill(manager, "VcabManTrans", QString::fromStdString(record.translation));
        fill(manager, "VcabManHint", QString::fromStdString(record.hint));
    }

    static void add(QWidget& manager, const WordRecord& record)
    {
        fillIn(manager, record);
        click(manager, "VcabManAdd");
    }

    static void saveAs(QWidget& manager, const QString& name)
    {
        click(manager, "VcabManSave");
        QWidget& files = shown("FileHandler");
        fill(files, "FHFileName", name);
        click(files, "LoadSaveFH");
    }
};

const WordRecord Rose{"rosa", "rose", "f."};
const WordRecord Rome{"Ro:ma", "Rome, Italy", "Romae, f."};

TEST_F(VcabManagerWindow, LeadsAListThroughItsWholeLife)
{
    QWidget& manager = openManager();
    EXPECT_EQ(tests::focusIn(manager), "VcabManWord");
    add(manager, Rose);
    EXPECT_EQ(tests::focusIn(manager), "VcabManWord");
    add(manager, Rome);
    add(manager, {"re:x", "king", "m."});
    clickRow(words(manager), 2);
    EXPECT_EQ(box(manager, "VcabManTrans"), "king");
    click(manager, "VcabManDelete");
    clickRow(words(manager), 0);
    fill(manager, "VcabManTrans", "a rose");
    click(manager, "VcabManAccept");
    EXPECT_EQ(rows(words(manager)), QStringList({"rosa", "Ro:ma"}));

    saveAs(manager, "mine");
    EXPECT_EQ(tests::bytesOf("mine.lst"), "rosa,a rose,f.\r\nRo:ma,Rome> Italy,Romae> f.\r\n");
    EXPECT_TRUE(manager.isVisible());
    clickRow(words(manager), 1);
    EXPECT_EQ(box(manager, "VcabManTrans"), "Rome> Italy");
    click(manager, "VcabManExit");
    EXPECT_EQ(shownWindow("VcabWarning"), nullptr);

    QWidget& tester = shown("Vcabtester");
    choose(tester, "VcabTesterFileOpen");
    QWidget& loader = shown("VcabLoader");
    tests::doubleClickRow(control<QListWidget>(loader, "VcabFile"), 0);
    type(tester, "a rose");
    press(tester, Qt::Key_Return);
    EXPECT_EQ(label(tester, "VQuestion"), "Ro:ma");

    choose(tester, "VcabTesterEdit");
    click(manager, "VcabManLoad");
    QWidget& files = shown("FileHandler");
    clickRow(control<QListWidget>(files, "FHFileBox"), 0);
    EXPECT_EQ(box(files, "FHFileName"), "mine.lst");
    click(files, "LoadSaveFH");
    clickRow(words(manager), 1);
    EXPECT_EQ(box(manager, "VcabManTrans"), "Rome, Italy");
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(VcabManagerWindow, TakesOverWhatWasTypedBeforeAnotherWordIsChosen)
{
    QWidget& manager = openManager();
    add(manager, Rose);
    add(manager, Rome);
    clickRow(words(manager), 0);
    fill(manager, "VcabManHint", "rosae, f.");
    clickRow(words(manager), 1);
    EXPECT_EQ(box(manager, "VcabManWord"), "Ro:ma");
    EXPECT_EQ(vocabularyList.Loaded[1], (WordRecord{"rosa", "rose", "rosae, f."}));
    press(manager, Qt::Key_Up);
    EXPECT_EQ(box(manager, "VcabManHint"), "rosae, f.");
}

TEST_F(VcabManagerWindow, TakesOverANewRecordBeforeAnythingElseComes)
{
    QWidget& manager = openManager();
    add(manager, Rose);
    fillIn(manager, Rome);
    clickRow(words(manager), 0);
    EXPECT_EQ(rows(words(manager)), QStringList({"rosa", "Ro:ma"}));
    EXPECT_EQ(box(manager, "VcabManWord"), "rosa");
    click(manager, "VcabManDelete");
    click(manager, "VcabManDelete");
    EXPECT_EQ(vocabularyList.WordCount, 0);
    fillIn(manager, Rome);
    saveAs(manager, "rome.lst");
    EXPECT_EQ(tests::bytesOf("rome.lst"), "Ro:ma,Rome> Italy,Romae> f.\r\n");
    fillIn(manager, Rose);
    press(manager, Qt::Key_Escape);
    EXPECT_NE(shownWindow("VcabWarning"), nullptr);
    EXPECT_EQ(vocabularyList.Loaded[2], Rose);
}

TEST_F(VcabManagerWindow, KeepsWhatWasTypedWhenTheRecordIsDeleted)
{
    QWidget& manager = openManager();
    add(manager, Rose);
    clickRow(words(manager), 0);
    fill(manager, "VcabManWord", "rosula");
    click(manager, "VcabManDelete");
    EXPECT_EQ(box(manager, "VcabManWord"), "rosula");
    EXPECT_FALSE(control<QAbstractButton>(manager, "VcabManDelete").isEnabled());
    click(manager, "VcabManAdd");
    EXPECT_EQ(vocabularyList.Loaded[1], (WordRecord{"rosula", "rose", "f."}));

    clickRow(words(manager), 0);
    fill(manager, "VcabManWord", "violet");
    click(manager, "VcabManDelete");
    click(manager, "VcabManSave");
    EXPECT_EQ(vocabularyList.WordCount, 0);
}

TEST_F(VcabManagerWindow, AddsOrAcceptsWithTheEnterKey)
{
    QWidget& manager = openManager();
    press(manager, Qt::Key_Return);
    EXPECT_EQ(vocabularyList.WordCount, 0);
    fillIn(manager, Rose);
    press(manager, Qt::Key_Return);
    EXPECT_EQ(vocabularyList.Loaded[1], Rose);
    clickRow(words(manager), 0);
    press(manager, Qt::Key_Return);
    EXPECT_EQ(tests::focusIn(manager), "VcabManWord");
    fill(manager, "VcabManTrans", "a rose");
    press(manager, Qt::Key_Return);
    EXPECT_EQ(vocabularyList.Loaded[1].translation, "a rose");
    EXPECT_EQ(vocabularyList.WordCount, 1);
}

TEST_F(VcabManagerWindow, RefusesTheThreeHundredAndFirstWordAndKeepsItsText)
{
    QWidget& manager = openManager();
    add(manager, Rose);
    while (vocabularyList.WordCount < 300)
        vocabulary::addWord(Rose);
    fillIn(manager, Rome);
    for (const auto* const way : {"VcabManAdd", "VcabManSave", "VcabManLoad", "VcabManExit"}) {
        fake.messages.clear();
        click(manager, way);
        EXPECT_EQ(fake.messages.size(), 1U) << way;
        EXPECT_EQ(box(manager, "VcabManTrans"), "Rome, Italy") << way;
        EXPECT_TRUE(manager.isVisible()) << way;
    }
    clickRow(words(manager), 0);
    EXPECT_EQ(box(manager, "VcabManWord"), "Ro:ma");
    EXPECT_EQ(vocabularyList.WordCount, 300);
}

TEST_F(VcabManagerWindow, WarnsBeforeChangesAreLeftUnsaved)
{
    QWidget& manager = openManager();
    add(manager, Rose);
    click(manager, "VcabManExit");
    press(shown("VcabWarning"), Qt::Key_F1);
    press(shown("Help"), Qt::Key_Escape);
    press(shown("VcabWarning"), Qt::Key_Escape);
    EXPECT_EQ(shownWindow("VcabWarning"), nullptr);
    EXPECT_TRUE(manager.isVisible());

    click(manager, "VcabManExit");
    click(shown("VcabWarning"), "VcabWarningSave");
    EXPECT_EQ(shownWindow("VcabWarning"), nullptr);
    EXPECT_EQ(control<QAbstractButton>(shown("FileHandler"), "LoadSaveFH").text(), "&Save");
    press(shown("FileHandler"), Qt::Key_Escape);
    EXPECT_TRUE(manager.isVisible());

    click(manager, "VcabManLoad");
    click(shown("VcabWarning"), "VcabWarningDiscard");
    EXPECT_EQ(control<QAbstractButton>(shown("FileHandler"), "LoadSaveFH").text(), "&Load");
    click(shown("FileHandler"), "CancelFH");
    EXPECT_EQ(rows(words(manager)), QStringList({"rosa"}));

    manager.close();
    click(shown("VcabWarning"), "VcabWarningDiscard");
    EXPECT_FALSE(manager.isVisible());
    EXPECT_NE(shownWindow("Vcabtester"), nullptr);
}

TEST_F(VcabManagerWindow, ReturnsWithEverythingWhereASaveFails)
{
    tests::writeFile("old.lst", "old,bytes,here\r\n");
    std::filesystem::create_directory("folder.lst");
    QWidget& manager = openManager();
    add(manager, Rome);
    add(manager, Rose);
    clickRow(words(manager), 0);
    const auto expectFailure = [&](const QString& name) {
        fake.messages.clear();
        saveAs(manager, name);
        ASSERT_EQ(fake.messages.size(), 1U);
        EXPECT_NE(fake.messages[0].find(name.section('/', -1).toStdString()), std::string::npos);
        EXPECT_TRUE(manager.isVisible());
        EXPECT_EQ(shownWindow("FileHandler"), nullptr);
        EXPECT_EQ(rows(words(manager)), QStringList({"Ro:ma", "rosa"}));
        EXPECT_EQ(box(manager, "VcabManTrans"), "Rome, Italy");
        EXPECT_TRUE(vocabulary::changesArePending());
    };
    expectFailure("no/such/list.lst");
    expectFailure("folder.lst");
    {
        const tests::FullDisk full;
        expectFailure("old.lst");
    }
    EXPECT_EQ(tests::bytesOf("old.lst"), "old,bytes,here\r\n");
    saveAs(manager, "old.lst");
    EXPECT_EQ(tests::bytesOf("old.lst"), "Ro:ma,Rome> Italy,Romae> f.\r\nrosa,rose,f.\r\n");
}

TEST_F(VcabManagerWindow, KeepsTheListWhereAnotherCannotBeLoaded)
{
    tests::writeFile("cut.lst", "rosa,rose,f.\r\nre:x,king");
    QWidget& manager = openManager();
    add(manager, Rome);
    saveAs(manager, "mine");
    click(manager, "VcabManLoad");
    QWidget& files = shown("FileHandler");
    fill(files, "FHFileName", "missing");
    press(files, Qt::Key_Return);
    EXPECT_EQ(fake.messages, std::vector<std::string>{"missing.lst: No such file or directory"});
    EXPECT_EQ(vocabularyList.Loaded[1], Rome);
    EXPECT_TRUE(files.isVisible());
    tests::doubleClickRow(control<QListWidget>(files, "FHFileBox"), 0);
    EXPECT_EQ(fake.messages.back(), "cut.lst, line 2: the last word is cut off and was left out");
    EXPECT_EQ(rows(words(manager)), QStringList({"rosa"}));
}

TEST_F(VcabManagerWindow, NeedsANameForAFile)
{
    QWidget& manager = openManager();
    click(manager, "VcabManSave");
    QWidget& files = shown("FileHandler");
    for (const auto* const name : {"", "  ", "folder/"}) {
        fill(files, "FHFileName", "x");
        control<QLineEdit>(files, "FHFileName").clear();
        type(files, name);
        EXPECT_FALSE(control<QAbstractButton>(files, "LoadSaveFH").isEnabled()) << name;
        press(files, Qt::Key_Return);
        EXPECT_TRUE(files.isVisible()) << name;
    }
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_TRUE(std::filesystem::is_empty("."));
}

TEST_F(VcabManagerWindow, GivesANameItsEndingUnlessItHasOne)
{
    tests::writeFile("old.dat", "");
    QWidget& manager = openManager();
    add(manager, Rose);
    for (const auto& [typed, name] : {std::pair{"mine", "mine.lst"},
                                      {"mine.TXT", "mine.TXT"},
                                      {"1. Deklination", "1. Deklination.lst"},
                                      {"Lektion 1.2", "Lektion 1.2.lst"},
                                      {"Kap.II", "Kap.II.lst"},
                                      {"old.dat", "old.dat"}}) {
        saveAs(manager, typed);
        EXPECT_EQ(tests::bytesOf(name), "rosa,rose,f.\r\n") << typed;
    }
}

TEST_F(VcabManagerWindow, FindsListsInOtherFolders)
{
    std::filesystem::create_directory("year one");
    for (const auto* const name : {"b.TXT", "a.lst", "c.voc", "d.doc"})
        tests::writeFile("year one/" + std::string(name), "rosa,rose,f.\r\n");
    QWidget& manager = openManager();
    click(manager, "VcabManLoad");
    QWidget& files = shown("FileHandler");
    auto& folders = control<QListWidget>(files, "FHDirBox");
    EXPECT_EQ(rows(folders), QStringList({"..", "year one"}));
    tests::doubleClickRow(folders, 1);
    EXPECT_EQ(rows(control<QListWidget>(files, "FHFileBox")), QStringList({"a.lst", "b.TXT", "c.voc"}));
    tests::doubleClickRow(folders, 0);
    EXPECT_EQ(rows(folders), QStringList({"..", "year one"}));
    folders.setFocus();
    press(files, Qt::Key_Down);
    press(files, Qt::Key_Down);
    press(files, Qt::Key_Return);
    tests::doubleClickRow(control<QListWidget>(files, "FHFileBox"), 0);
    EXPECT_EQ(rows(words(manager)), QStringList({"rosa"}));

    add(manager, Rome);
    click(manager, "VcabManSave");
    EXPECT_EQ(box(files, "FHFileName"), "a.lst");
    tests::doubleClickRow(control<QListWidget>(files, "FHFileBox"), 2);
    EXPECT_EQ(tests::bytesOf("year one/c.voc"), "rosa,rose,f.\r\n");
    click(files, "LoadSaveFH");
    EXPECT_EQ(tests::bytesOf("year one/c.voc"), "rosa,rose,f.\r\nRo:ma,Rome> Italy,Romae> f.\r\n");
}

TEST_F(VcabManagerWindow, ChangesTheListThatIsTestedAndHasItTestedAnew)
{
    tests::writeFile("vr-vcab.lst", "rosa,rose,f.\r\nre:x,king,m.\r\n");
    QWidget& tester = open("VocabularyButton", "Vcabtester");
    type(tester, "rose");
    press(tester, Qt::Key_Return);
    choose(tester, "VcabTesterEdit");
    QWidget& manager = shown("VcabManager");
    click(manager, "VcabManExit");
    EXPECT_EQ(label(tester, "VQuestion"), "re:x");
    choose(tester, "VcabTesterEdit");
    clickRow(words(manager), 0);
    click(manager, "VcabManDelete");
    click(manager, "VcabManExit");
    click(shown("VcabWarning"), "VcabWarningDiscard");
    EXPECT_EQ(label(tester, "VQuestion"), "re:x");
    EXPECT_EQ(vocabularyList.CurrentWord, 1);
    EXPECT_EQ(tests::bytesOf("vr-vcab.lst"), "rosa,rose,f.\r\nre:x,king,m.\r\n");
}

TEST_F(VcabManagerWindow, BeginsANewListFromTheMainWindowUnlessTheLastHasUnsavedChanges)
{
    tests::writeFile("vr-vcab.lst", "rosa,rose,f.\r\n");
    QWidget& tester = open("VocabularyButton", "Vcabtester");
    press(tester, Qt::Key_Escape);
    QWidget& manager = openManager();
    EXPECT_EQ(rows(words(manager)), QStringList());
    click(manager, "VcabManExit");
    choose(tester, "VcabTesterEdit");
    EXPECT_EQ(rows(words(manager)), QStringList({"rosa"}));
    add(manager, Rome);
    click(manager, "VcabManExit");
    click(shown("VcabWarning"), "VcabWarningDiscard");
    press(tester, Qt::Key_Escape);
    openManager();
    EXPECT_EQ(rows(words(manager)), QStringList({"rosa", "Ro:ma"}));
}

} // namespace
