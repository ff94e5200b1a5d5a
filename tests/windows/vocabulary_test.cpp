#include "shell/settings.h"
#include "tests/support/full_disk.h"
#include "tests/support/window_test.h"

namespace {

using namespace tests;
using shell::settings;

// Records stand as "word/meaning/hint".
constexpr auto Rose = "rosa/rose/f.";
constexpr auto Rome = "Ro:ma/Rome, Italy/Romae, f.";
constexpr auto RomeInAFile = "Ro:ma,Rome> Italy,Romae> f.\r\n";

class VcabManagerWindow : public WindowTest {
protected:
    void openManager() { manager = &open("FileVcabManager", "VcabManager"); }
    void clickIn(const char* name) { click(*manager, name); }
    void chooseWord(int row) { clickRow(list(*manager, "VcabManMainForm"), row); }
    QStringList words() { return rows(list(*manager, "VcabManMainForm")); }

    QString record()
    {
        QStringList texts;
        for (const char* const name : {"VcabManWord", "VcabManTrans", "VcabManHint"})
            texts << line(*manager, name).text();
        return texts.join('/');
    }

    void fillIn(const QString& record)
    {
        for (int part = 0; const char* const name : {"VcabManWord", "VcabManTrans", "VcabManHint"})
            fill(line(*manager, name), record.split('/').at(part++));
    }

    void add(const QString& record)
    {
        fillIn(record);
        clickIn("VcabManAdd");
    }

    static QWidget& files() { return shown("FileHandler"); }
    static QListWidget& fileList() { return list(files(), "FHFileBox"); }

    void saveAs(const QString& name)
    {
        clickIn("VcabManSave");
        fill(line(files(), "FHFileName"), name);
        click(files(), "LoadSaveFH");
    }

    // Goes on without saving the changes.
    void discardWith(const char* name)
    {
        clickIn(name);
        click(shown("VcabWarning"), "VcabWarningDiscard");
    }

    QWidget* manager = nullptr;
};

TEST_F(VcabManagerWindow, LeadsAListThroughItsWholeLife)
{
    openManager();
    EXPECT_EQ(focusIn(*manager), "VcabManWord");
    press(*manager, Qt::Key_Return);
    fillIn(Rose);
    press(*manager, Qt::Key_Return);
    EXPECT_EQ(focusIn(*manager), "VcabManWord");
    add(Rome);
    add("re:x/king/m.");
    EXPECT_EQ(focusIn(*manager), "VcabManWord");
    chooseWord(2);
    EXPECT_EQ(record(), "re:x/king/m.");
    clickIn("VcabManDelete");
    chooseWord(0);
    press(*manager, Qt::Key_Return);
    EXPECT_EQ(focusIn(*manager), "VcabManWord");
    fill(line(*manager, "VcabManTrans"), "a rose");
    press(*manager, Qt::Key_Return);
    EXPECT_EQ(words(), QStringList({"rosa", "Ro:ma"}));
    saveAs("mine.lst");
    EXPECT_EQ(bytesOf("mine.lst"), std::string("rosa,a rose,f.\r\n") + RomeInAFile);
    EXPECT_TRUE(manager->isVisible());
    chooseWord(1);
    EXPECT_EQ(record(), "Ro:ma/Rome> Italy/Romae> f.");
    clickIn("VcabManExit");

    QWidget& tester = shown("Vcabtester");
    choose(tester, "VcabTesterFileOpen");
    doubleClickRow(list(shown("VcabLoader"), "VcabFile"), 0);
    answer(tester, "a rose");
    EXPECT_EQ(label(tester, "VQuestion"), "Ro:ma");

    choose(tester, "VcabTesterEdit");
    clickIn("VcabManLoad");
    EXPECT_EQ(line(files(), "FHFileName").text(), "");
    clickRow(fileList(), 0);
    EXPECT_EQ(line(files(), "FHFileName").text(), "mine.lst");
    click(files(), "LoadSaveFH");
    chooseWord(1);
    EXPECT_EQ(record(), Rome);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(VcabManagerWindow, TakesOverWhatWasTypedBeforeAnythingElseComes)
{
    openManager();
    add(Rose);
    fillIn(Rome);
    chooseWord(0);
    EXPECT_EQ(words(), QStringList({"rosa", "Ro:ma"}));
    fill(line(*manager, "VcabManHint"), "rosae, f.");
    chooseWord(1);
    EXPECT_EQ(record(), Rome);
    press(*manager, Qt::Key_Up);
    EXPECT_EQ(record(), "rosa/rose/rosae, f.");
    fill(line(*manager, "VcabManWord"), "rosula");
    clickIn("VcabManAccept");
    EXPECT_EQ(words(), QStringList({"rosula", "Ro:ma"}));
    clickIn("VcabManDelete");
    clickIn("VcabManDelete");
    EXPECT_TRUE(words().empty());
    fillIn(Rome);
    saveAs("rome");
    EXPECT_EQ(bytesOf("rome.lst"), RomeInAFile);
    fillIn(Rose);
    press(*manager, Qt::Key_Escape);
    press(shown("VcabWarning"), Qt::Key_Escape);
    clickIn("VcabManExit");
    EXPECT_NE(shownWindow("VcabWarning"), nullptr);
    EXPECT_EQ(words(), QStringList({"Ro:ma", "rosa"}));
}

TEST_F(VcabManagerWindow, KeepsWhatWasTypedWhenTheRecordIsDeleted)
{
    openManager();
    for (const char* const next : {"VcabManAdd", "VcabManSave"}) {
        add(Rose);
        chooseWord(static_cast<int>(words().size()) - 1);
        fill(line(*manager, "VcabManWord"), "rosula");
        clickIn("VcabManDelete");
        EXPECT_EQ(record(), "rosula/rose/f.");
        EXPECT_FALSE(button(*manager, "VcabManDelete").isEnabled());
        clickIn(next);
        EXPECT_EQ(words(), QStringList{"rosula"});
    }
}

TEST_F(VcabManagerWindow, RefusesTheThreeHundredAndFirstWordAndKeepsItsText)
{
    writeFile("full.lst", QByteArray("rosa,rose,f.\r\n").repeated(300).toStdString());
    openManager();
    clickIn("VcabManLoad");
    doubleClickRow(fileList(), 0);
    fillIn(Rome);
    for (const char* const way : {"VcabManAdd", "VcabManSave", "VcabManLoad", "VcabManExit"}) {
        clickIn(way);
        EXPECT_TRUE(manager->isVisible()) << way;
    }
    chooseWord(0);
    EXPECT_EQ(fake.messages, std::vector<std::string>(5, "A word list holds 300 words at the most."));
    EXPECT_EQ(record(), Rome);
    EXPECT_EQ(words().size(), 300);
}

TEST_F(VcabManagerWindow, WarnsBeforeChangesAreLeftUnsaved)
{
    openManager();
    add(Rose);
    clickIn("VcabManExit");
    press(shown("VcabWarning"), Qt::Key_Escape);
    EXPECT_EQ(shownWindow("VcabWarning"), nullptr);
    clickIn("VcabManExit");
    click(shown("VcabWarning"), "VcabWarningSave");
    EXPECT_EQ(button(files(), "LoadSaveFH").text(), "&Save");
    press(files(), Qt::Key_Escape);
    discardWith("VcabManLoad");
    EXPECT_EQ(button(files(), "LoadSaveFH").text(), "&Load");
    click(files(), "CancelFH");
    EXPECT_EQ(words(), QStringList{"rosa"});
    manager->close();
    EXPECT_TRUE(manager->isVisible());
    click(shown("VcabWarning"), "VcabWarningDiscard");
    EXPECT_FALSE(manager->isVisible());
    EXPECT_NE(shownWindow("Vcabtester"), nullptr);
}

TEST_F(VcabManagerWindow, ReturnsWithEverythingWhereASaveFails)
{
    writeFile("old.lst", "old,bytes,here\r\n");
    std::filesystem::create_directory("folder.lst");
    openManager();
    add(Rome);
    const auto expectFailure = [&](const std::string& folder, const std::string& name) {
        chooseWord(0);
        saveAs(QString::fromStdString(folder + name));
        EXPECT_TRUE(fake.messages.back().starts_with("The list was not saved. ")) << fake.messages.back();
        EXPECT_NE(fake.messages.back().find(name), std::string::npos) << fake.messages.back();
        EXPECT_EQ(record(), Rome);
        clickIn("VcabManExit");
        press(shown("VcabWarning"), Qt::Key_Escape);
    };
    expectFailure("no/such/", "list.lst");
    expectFailure("", "folder.lst");
    {
        const FullDisk full;
        expectFailure("", "old.lst");
    }
    EXPECT_EQ(bytesOf("old.lst"), "old,bytes,here\r\n");
    saveAs("old.lst");
    EXPECT_EQ(bytesOf("old.lst"), RomeInAFile);
    EXPECT_EQ(fake.messages.size(), 3U);
}

TEST_F(VcabManagerWindow, KeepsTheListWhereAnotherCannotBeLoaded)
{
    writeFile("cut.lst", "rosa,rose,f.\r\nre:x,king");
    openManager();
    add(Rome);
    discardWith("VcabManLoad");
    for (const auto& [name, isName] :
         {std::pair{"", false}, {"  ", false}, {"folder/", false}, {"missing", true}}) {
        fill(line(files(), "FHFileName"), name);
        EXPECT_EQ(button(files(), "LoadSaveFH").isEnabled(), isName) << name;
        press(files(), Qt::Key_Return);
    }
    EXPECT_EQ(fake.messages, std::vector<std::string>{"missing.lst: No such file or directory"});
    EXPECT_EQ(words(), QStringList{"Ro:ma"});
    doubleClickRow(fileList(), 0);
    EXPECT_EQ(fake.messages.back(), "cut.lst, line 2: the last word is cut off and was left out");
    EXPECT_EQ(words(), QStringList{"rosa"});
}

TEST_F(VcabManagerWindow, GivesANameItsEndingUnlessItHasOne)
{
    writeFile("old.dat", "");
    openManager();
    add(Rome);
    for (const auto& [typed, name] : {std::pair{"mine.TXT", "mine.TXT"},
                                      {"1. Deklination", "1. Deklination.lst"},
                                      {"Kap.II", "Kap.II.lst"},
                                      {"old.dat", "old.dat"}}) {
        saveAs(typed);
        EXPECT_EQ(bytesOf(name), RomeInAFile) << typed;
    }
}

TEST_F(VcabManagerWindow, FindsListsInOtherFolders)
{
    std::filesystem::create_directory("year one");
    for (const char* const name : {"b.TXT", "a.lst", "c.voc", "d.doc"})
        writeFile("year one/" + std::string(name), "rosa,rose,f.\r\n");
    openManager();
    clickIn("VcabManLoad");
    QListWidget& folders = list(files(), "FHDirBox");
    doubleClickRow(folders, 1);
    EXPECT_EQ(rows(fileList()), QStringList({"a.lst", "b.TXT", "c.voc"}));
    doubleClickRow(folders, 0);
    EXPECT_EQ(rows(folders), QStringList({"..", "year one"}));
    folders.setFocus();
    press(files(), Qt::Key_Down, 2);
    press(files(), Qt::Key_Return);
    doubleClickRow(fileList(), 0);
    EXPECT_EQ(words(), QStringList{"rosa"});
    add(Rome);
    clickIn("VcabManSave");
    EXPECT_EQ(line(files(), "FHFileName").text(), "a.lst");
    doubleClickRow(fileList(), 2);
    EXPECT_EQ(bytesOf("year one/c.voc"), "rosa,rose,f.\r\n");
    click(files(), "LoadSaveFH");
    EXPECT_EQ(bytesOf("year one/c.voc"), std::string("rosa,rose,f.\r\n") + RomeInAFile);
}

TEST_F(VcabManagerWindow, ChangesTheListThatIsTestedAndHasItTestedAnew)
{
    writeFile("vr-vcab.lst", "rosa,rose,f.\r\nre:x,king,m.\r\n");
    open("VocabularyButton", "Vcabtester");
    openManager();
    EXPECT_TRUE(words().empty());
    clickIn("VcabManExit");
    QWidget& tester = shown("Vcabtester");
    answer(tester, "rose");
    choose(tester, "VcabTesterEdit");
    clickIn("VcabManExit");
    EXPECT_EQ(label(tester, "VQuestion"), "re:x");
    choose(tester, "VcabTesterEdit");
    chooseWord(0);
    clickIn("VcabManDelete");
    discardWith("VcabManExit");
    answer(tester, "king");
    EXPECT_EQ(label(tester, "VQuestion"), "re:x");
    EXPECT_EQ(bytesOf("vr-vcab.lst"), "rosa,rose,f.\r\nre:x,king,m.\r\n");
    press(tester, Qt::Key_Escape);
    openManager();
    EXPECT_EQ(words(), QStringList{"re:x"});
}

class VcabtesterWindow : public WindowTest {
protected:
    QWidget& openTester(const char* words = "rosa,rose,f.\r\nRo:ma,Rome> Italy,Romae> f.\r\nre:x,king,m.\r\n")
    {
        writeFile("vr-vcab.lst", words);
        return open("VocabularyButton", "Vcabtester");
    }

    static QString question(QWidget& tester) { return label(tester, "VQuestion"); }
    static bool isChecked(QWidget& tester, const char* item)
    {
        return control<QAction>(tester, item).isChecked();
    }
};

TEST_F(VcabtesterWindow, AsksTheOtherSideOnceItIsChosenAndStartsAfreshEachTime)
{
    for (int time = 0; time < 2; ++time) {
        QWidget& tester = openTester();
        EXPECT_EQ(settings.ExerciseType, "Vcabtester");
        EXPECT_TRUE(isChecked(tester, "VcabtesterOptionsOrderSequential"));
        EXPECT_TRUE(isChecked(tester, "VcabtesterOptionsPromptEnglish"));
        EXPECT_EQ(question(tester), "rosa");
        EXPECT_EQ(label(tester, "VHint"), "f.");
        answer(tester, "rose");
        EXPECT_EQ(question(tester), "Ro:ma");
        EXPECT_EQ(label(tester, "VHint"), "Romae, f.");
        choose(tester, "VcabtesterOptionsPromptLatin");
        EXPECT_EQ(question(tester), "Rome, Italy");
        answer(tester, "Ro:ma");
        EXPECT_EQ(question(tester), "king");
        choose(tester, "VcabtesterOptionsOrderRandom");
        EXPECT_EQ(settings.RightCount, 2);
    }
}

TEST_F(VcabtesterWindow, ShowsTheAnswerInRedForOnePause)
{
    QWidget& tester = openTester();
    const auto& line = control<QLineEdit>(tester, "VcabAnswer");
    const auto hint = [&](const std::function<void()>& ask) {
        duringPause([&] {
            EXPECT_EQ(line.text(), "rose");
            EXPECT_EQ(line.palette().color(QPalette::Text), QColor(Qt::red));
            choose(tester, "VcabtesterOptionsPromptLatin");
            EXPECT_EQ(question(tester), "rosa");
            choose(tester, "VcabtesterOptionsPromptEnglish");
            answer(tester, "rose");
        });
        ask();
        EXPECT_EQ(line.text(), "");
        EXPECT_EQ(line.palette().color(QPalette::Text), QColor(Qt::black));
        EXPECT_EQ(question(tester), "rosa");
    };
    hint([&] { answer(tester, "?"); });
    hint([&] { QTest::mouseDClick(&control<QLabel>(tester, "VQuestion"), Qt::LeftButton); });
    EXPECT_EQ(fake.waits, 2);
    EXPECT_EQ(settings.AnsweredCount, 0);
}

TEST_F(VcabtesterWindow, TakesSlashesAndQuestionMarksAsPartOfAnAnswer)
{
    answer(openTester("quis,who?/what?,pron."), "who?/what?");
    EXPECT_EQ(settings.RightCount, 1);
}

TEST_F(VcabtesterWindow, PassesOverOmittedWordsAndWaitsWhenNoneIsLeft)
{
    QWidget& tester = openTester();
    const QAbstractButton& omit = button(tester, "VcabTestOmit");
    for (const char* const meaning : {"rose", "Rome, Italy", "king"}) {
        EXPECT_FALSE(omit.isChecked());
        click(tester, "VcabTestOmit");
        answer(tester, meaning);
    }
    EXPECT_EQ(question(tester), "There is no word to ask.");
    EXPECT_EQ(label(tester, "VHint"), "");
    EXPECT_TRUE(omit.isChecked());
    answer(tester, "?");
    answer(tester, "anything");
    EXPECT_EQ(settings.AnsweredCount, 3);
    click(tester, "VcabTestOmit");
    EXPECT_EQ(question(tester), "re:x");
    answer(tester, "king");
    EXPECT_EQ(question(tester), "re:x");
}

TEST_F(VcabtesterWindow, SaysWhyTheDefaultListCannotBeRead)
{
    std::filesystem::create_symlink("vr-vcab.lst", "vr-vcab.lst");
    QWidget& tester = openTester();
    EXPECT_EQ(fake.messages, std::vector<std::string>{"vr-vcab.lst: Too many levels of symbolic links"});
    EXPECT_EQ(question(tester), "There is no word to ask.");
    answer(tester, "");
    QTest::mouseDClick(&control<QLabel>(tester, "VQuestion"), Qt::LeftButton);
    EXPECT_EQ(settings.AnsweredCount, 0);
}

TEST_F(VcabtesterWindow, EndsTheProgramWithoutSavingOnALearnedWordAtRandom)
{
    QWidget& tester = openTester("rosa,rose,f.");
    choose(tester, "VcabtesterOptionsOrderRandom");
    for (int right = 1; right <= 6; ++right) {
        EXPECT_FALSE(fake.exitStatus) << right;
        answer(tester, "rose");
    }
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_FALSE(std::filesystem::exists("morvanti.ini"));
}

TEST_F(VcabtesterWindow, OpensAnotherListWithoutCountsAndKeepsItsOwnWhereItIsRefused)
{
    writeFile("b.voc", "mu:s,mouse,m.\r\n");
    writeFile("notes.doc", "no list");
    writeFile("c.txt", QByteArray("a,b,c\n").repeated(301).toStdString());
    QWidget& tester = openTester();
    answer(tester, "rose");
    choose(tester, "VcabTesterFileOpen");
    QWidget& loader = shown("VcabLoader");
    EXPECT_FALSE(tester.isVisible());
    EXPECT_EQ(rows(list(loader, "VcabFile")), QStringList({"b.voc", "c.txt", "vr-vcab.lst"}));
    EXPECT_FALSE(button(loader, "VcabLoaderOpen").isEnabled());
    doubleClickRow(list(loader, "VcabFile"), 1);
    EXPECT_EQ(fake.messages, std::vector<std::string>{"c.txt: the file holds more than 300 words"});
    press(loader, Qt::Key_Escape);
    EXPECT_EQ(question(tester), "Ro:ma");
    answer(tester, "wrong");
    EXPECT_EQ(question(tester), "Ro:ma");
    choose(tester, "VcabTesterFileOpen");
    clickRow(list(loader, "VcabFile"), 0);
    click(loader, "VcabLoaderOpen");
    EXPECT_FALSE(loader.isVisible());
    EXPECT_EQ(question(tester), "mu:s");
    answer(tester, "mouse");
    EXPECT_EQ(settings.RightCount, 2);
}

} // namespace
