#include "shell/settings.h"
#include "tests/support/full_disk.h"
#include "tests/support/window_test.h"

namespace {

using namespace tests;

// Records stand as "word/meaning/hint".
constexpr auto Rose = "rosa/rose/f.";
constexpr auto Rome = "Ro:ma/Rome, Italy/Romae, f.";
constexpr auto RoseInAFile = "rosa,rose,f.\r\n";
constexpr auto RomeInAFile = "Ro:ma,Rome> Italy,Romae> f.\r\n";
constexpr auto ThreeWords = "rosa,rose,f.\r\nRo:ma,Rome> Italy,Romae> f.\r\nre:x,king,m.\r\n";

class VcabWindows : public WindowTest {
protected:
    void openManager() { manager = &open("FileVcabManager", "VcabManager"); }
    void clickIn(const char* name) { click(*manager, name); }
    void chooseWord(int row) { clickRow(list(*manager, "VcabManMainForm"), row); }
    QString shownIn(const char* box) { return line(*manager, box).text(); }

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
    static void confirm(const QString& name)
    {
        fill(line(files(), "FHFileName"), name);
        click(files(), "LoadSaveFH");
    }

    void saveAs(const QString& name)
    {
        clickIn("VcabManSave");
        confirm(name);
    }

    void expectWords(const QStringList& expected, const char* title)
    {
        EXPECT_TRUE(manager->isVisible());
        EXPECT_EQ(rows(list(*manager, "VcabManMainForm")), expected);
        EXPECT_EQ(manager->windowTitle(), QStringLiteral("Vocabulary Editor - ") + title);
    }

    void editFrom(QWidget& tester)
    {
        choose(tester, "VcabTesterEdit");
        manager = &shown("VcabManager");
    }

    QWidget& openTester(std::string_view words = ThreeWords)
    {
        writeFile("vr-vcab.lst", words);
        return open("VocabularyButton", "Vcabtester");
    }

    static QString question(QWidget& tester) { return label(tester, "VQuestion"); }

    QWidget* manager = nullptr;
};

TEST_F(VcabWindows, LeadAListThroughItsWholeLife)
{
    std::filesystem::create_directory("year one");
    for (const std::string name : {"a.TXT", "b.doc"})
        writeFile("year one/" + name, RoseInAFile);
    openManager();
    fillIn(Rose);
    press(*manager, Qt::Key_Return);
    add(Rome);
    add("re:x/king/m.");
    EXPECT_EQ(focusIn(*manager), "VcabManWord");
    chooseWord(2);
    clickIn("VcabManDelete");
    chooseWord(0);
    press(*manager, Qt::Key_Return);
    fill(line(*manager, "VcabManTrans"), "a rose");
    press(*manager, Qt::Key_Return);
    expectWords({"rosa", "Ro:ma"}, "new list");
    clickIn("VcabManSave");
    doubleClickRow(list(files(), "FHDirBox"), 1);
    confirm("mine");
    EXPECT_EQ(bytesOf("year one/mine.lst"), std::string("rosa,a rose,f.\r\n") + RomeInAFile);
    expectWords({"rosa", "Ro:ma"}, "mine.lst");
    chooseWord(1);
    EXPECT_EQ(shownIn("VcabManHint"), "Romae> f.");
    clickIn("VcabManExit");
    editFrom(shown("Vcabtester"));
    clickIn("VcabManLoad");
    EXPECT_EQ(rows(list(files(), "FHFileBox")), QStringList({"a.TXT", "mine.lst"}));
    doubleClickRow(list(files(), "FHFileBox"), 1);
    chooseWord(1);
    EXPECT_EQ(shownIn("VcabManTrans"), "Rome, Italy");
    clickIn("VcabManExit");
    answer(shown("Vcabtester"), "a rose");
    EXPECT_EQ(question(shown("Vcabtester")), "Ro:ma");
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(VcabWindows, TakeOverWhatWasTypedBeforeAnythingElseComes)
{
    openManager();
    add(Rose);
    fillIn(Rome);
    chooseWord(0);
    fill(line(*manager, "VcabManHint"), "rosae, f.");
    QTest::keyClick(&line(*manager, "VcabManHint"), Qt::Key_Y, Qt::AltModifier);
    chooseWord(1);
    EXPECT_EQ(shownIn("VcabManTrans"), "Rome, Italy");
    press(*manager, Qt::Key_Up);
    EXPECT_EQ(shownIn("VcabManHint"), "rosae, f.");
    for (const char* const next : {"VcabManAdd", "VcabManSave"}) {
        chooseWord(0);
        fill(line(*manager, "VcabManWord"), "rosula");
        clickIn("VcabManDelete");
        EXPECT_EQ(shownIn("VcabManWord"), "rosula") << "typed, and so not deleted";
        clickIn(next);
    }
    confirm("rose");
    EXPECT_EQ(bytesOf("rose.lst"), "rosula,rose,rosae> f.\r\n");
    fillIn(Rome);
    press(*manager, Qt::Key_Escape);
    press(shown("VcabWarning"), Qt::Key_Escape);
    expectWords({"rosula", "Ro:ma"}, "rose.lst");
    clickIn("VcabManExit");
    press(shown("VcabWarning"), Qt::Key_Return);
    press(files(), Qt::Key_Return);
    EXPECT_EQ(bytesOf("rose.lst"), std::string("rosula,rose,rosae> f.\r\n") + RomeInAFile);
}

TEST_F(VcabWindows, GiveTheTestBackAsItWasUnlessTheListIsSaved)
{
    QWidget& tester = openTester();
    click(tester, "VcabTestOmit");
    answer(tester, "rose");
    answer(tester, "x");
    type(tester, "Ro");
    editFrom(tester);
    chooseWord(0);
    clickIn("VcabManDelete");
    fillIn("slip/slip/slip");
    manager->close();
    click(shown("VcabWarning"), "VcabWarningDiscard");
    EXPECT_EQ(question(tester) + line(tester, "VcabAnswer").text(), "Ro:maRo");
    editFrom(tester);
    expectWords({"rosa", "Ro:ma", "re:x"}, "vr-vcab.lst");
    chooseWord(1);
    clickIn("VcabManDelete");
    manager->close();
    click(shown("VcabWarning"), "VcabWarningSave");
    confirm("vr-vcab.lst");
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(question(tester), "re:x") << "the first word is still left out";
        answer(tester, "king");
    }
}

TEST_F(VcabWindows, WarnOnlyWhereALoadWouldReplaceChangesAndGoOnAsIsWished)
{
    writeFile("rose.lst", RoseInAFile);
    openManager();
    add(Rome);
    const auto load = [&](const QString& name) -> QWidget* {
        if (manager->isVisible())
            clickIn("VcabManLoad");
        confirm(name);
        return shownWindow("VcabWarning");
    };
    for (const char* const name : {"", "  ", "folder/", "missing"})
        EXPECT_EQ(load(name), nullptr);
    EXPECT_EQ(fake.messages, std::vector<std::string>{"missing.lst: No such file or directory"});
    press(*load("rose"), Qt::Key_Escape);
    click(files(), "CancelFH");
    expectWords({"Ro:ma"}, "new list");
    click(*load("rose"), "VcabWarningSave");
    confirm("rome");
    EXPECT_EQ(bytesOf("rome.lst"), RomeInAFile);
    expectWords({"rosa"}, "rose.lst");
    EXPECT_EQ(load("rome"), nullptr);
    add(Rose);
    click(*load("rose"), "VcabWarningSave");
    EXPECT_EQ(bytesOf("rome.lst"), std::string(RomeInAFile) + RoseInAFile);
    expectWords({"rosa"}, "rose.lst");
    add(Rose);
    click(*load("rome"), "VcabWarningDiscard");
    saveAs("both");
    expectWords({"Ro:ma", "rosa"}, "both.lst");
    EXPECT_EQ(bytesOf("rose.lst"), RoseInAFile);
}

TEST_F(VcabWindows, LoadListsOfOtherProgramsAndWriteThemOverOnlyWhereThatIsAllowed)
{
    const std::string bold = QByteArray("<b>").repeated(100'000).toStdString();
    const std::string flashCards = R"(<?xml version="1.0" encoding="ISO-8859-1"?><!DOCTYPE kvtml>
<kvtml version="2.0"><lessons><container><entry id="0"/></container></lessons><entries>
<entry id="0"><translation id="2"><text>mouse</text><comment>small</comment></translation>
<translation id="1"><text> mu:s &lt;<i>é</i>&gt;
2</text><comment>mu:ris, m.</comment><article/></translation></entry>
<entry id="1"><translation id="1"><text>rosa</text><comment>rose</comment></translation>
<translation id="10"><text>Rose</text></translation><translation id="2"><text></text></translation></entry>
<entry id="2"><translation id="1"><text>Ro:ma</text><comment>Rome</comment></translation>
<translation id="2"><text>Rome</text></translation><translation id="10"><text>Rom</text></translation></entry>)";
    writeFile("a.kvtml", flashCards + "</entries></kvtml>");
    writeFile("b.kvtml", "<kvtml><entry><translation id='0'><text>rosa" + bold);
    writeFile("c.csv", "rosa;rose;f.\n#Rome\nRo:ma;Rome, Italy;\n");
    writeFile("d.kvtml", flashCards + "<entry id='3'><translation id='0'>");
    openManager();
    clickIn("VcabManLoad");
    EXPECT_EQ(rows(list(files(), "FHFileBox")), QStringList({"a.kvtml", "b.kvtml", "c.csv", "d.kvtml"}));
    doubleClickRow(list(files(), "FHFileBox"), 0);
    expectWords({"mu:s <é> 2", "Ro:ma"}, "a.kvtml");
    clickIn("VcabManSave");
    EXPECT_EQ(line(files(), "FHFileName").selectedText(), "a.lst");
    press(files(), Qt::Key_Return);
    EXPECT_EQ(bytesOf("a.lst"), "mu:s <é> 2,mouse,mu:ris> m.\r\nRo:ma,Rome,Rom\r\n");
    for (const char* const name : {"b.kvtml", "d.kvtml", "c.csv"}) {
        if (manager->isVisible())
            clickIn("VcabManLoad");
        confirm(name);
    }
    EXPECT_EQ(fake.messages, std::vector<std::string>(
                                 {"b.kvtml: no word in the file has a translation",
                                  "d.kvtml, line 9: the file breaks off here; the words above were read"}));
    expectWords({"rosa", "Ro:ma"}, "c.csv");
    saveAs("c.csv");
    press(shown("VcabReplace"), Qt::Key_Escape);
    EXPECT_EQ(rows(list(files(), "FHFileBox")), QStringList({"a.lst", "c.csv"}));
    confirm("a.kvtml");
    EXPECT_EQ(bytesOf("a.kvtml.lst"), "rosa,rose,f.\r\nRo:ma,Rome> Italy,\r\n");
    saveAs("c.tsv");
    EXPECT_EQ(bytesOf("c.tsv"), "rosa\trose\tf.\r\nRo:ma\tRome, Italy\t\r\n");
    clickIn("VcabManLoad");
    confirm("c.tsv");
    saveAs("c.tsv");
    expectWords({"rosa", "Ro:ma"}, "c.tsv");
    writeFile("c.tsv", "#cities\nRo:ma\tRome\n");
    clickIn("VcabManLoad");
    confirm("c.tsv");
    clickIn("VcabManSave");
    EXPECT_EQ(line(files(), "FHFileName").selectedText(), "c.tsv");
    press(files(), Qt::Key_Return);
    EXPECT_TRUE(shown("VcabReplace").isVisible());
}

TEST_F(VcabWindows, OfferToDivideAListThatIsTooLongAndOpenItsFirst)
{
    std::string words;
    for (int word = 1; word <= 301; ++word)
        words += std::to_string(word) + ",x,\n";
    writeFile("long.txt", words + "rex");
    openManager();
    add(Rome);
    clickIn("VcabManLoad");
    confirm("long.txt");
    EXPECT_TRUE(label(shown("VcabDivide"), "VcabDivideText").startsWith("The file long.txt holds 301 words"));
    press(shown("VcabDivide"), Qt::Key_Escape);
    EXPECT_FALSE(std::filesystem::exists("long-1.lst"));
    click(files(), "LoadSaveFH");
    press(shown("VcabDivide"), Qt::Key_Return);
    EXPECT_EQ(fake.messages.back(), "long.txt, line 302: the last word is cut off and was left out");
    press(shown("VcabWarning"), Qt::Key_Escape);
    EXPECT_EQ(rows(list(files(), "FHFileBox")).mid(0, 2), QStringList({"long-1.lst", "long-2.lst"}));
    press(files(), Qt::Key_Return);
    click(shown("VcabWarning"), "VcabWarningDiscard");
    EXPECT_EQ(manager->windowTitle(), "Vocabulary Editor - long-1.lst");
    EXPECT_EQ(list(*manager, "VcabManMainForm").count(), 150);
    QWidget& tester = openTester();
    choose(tester, "VcabTesterFileOpen");
    doubleClickRow(list(shown("VcabLoader"), "VcabFile"), 3);
    {
        const FullDisk roomForTheFirst{1150};
        click(shown("VcabDivide"), "VcabDivideOK");
    }
    EXPECT_TRUE(fake.messages.back().starts_with("The file was not divided. long-5.lst: "));
    EXPECT_FALSE(std::filesystem::exists("long-4.lst"));
    doubleClickRow(list(shown("VcabLoader"), "VcabFile"), 3);
    click(shown("VcabDivide"), "VcabDivideOK");
    EXPECT_TRUE(question(tester) == "1" && tester.windowTitle().endsWith("long-4.lst"));
}

TEST_F(VcabWindows, RefuseTheThreeHundredAndFirstWordAndKeepItsText)
{
    editFrom(openTester(QByteArray(RoseInAFile).repeated(300).toStdString()));
    fillIn(Rome);
    for (const char* const way : {"VcabManAdd", "VcabManSave", "VcabManLoad", "VcabManExit"})
        clickIn(way);
    chooseWord(0);
    EXPECT_EQ(fake.messages, std::vector<std::string>(5, "A word list holds 300 words at the most."));
    EXPECT_EQ(shownIn("VcabManTrans"), "Rome, Italy");
}

TEST_F(VcabWindows, RefuseAHintWithoutAWordAndShowAWordThatASaveAdds)
{
    editFrom(openTester(QByteArray(RoseInAFile).repeated(150).toStdString()));
    const auto& words = list(*manager, "VcabManMainForm");
    const auto endIsSeen = [&] {
        return words.viewport()->rect().contains(words.visualItemRect(words.item(words.count() - 1)));
    };
    add("//f.");
    EXPECT_TRUE(words.count() == 150 && !endIsSeen() && focusIn(*manager) == "VcabManWord");
    fillIn(Rome);
    saveAs("more");
    EXPECT_TRUE(words.count() == 151 && endIsSeen() && focusIn(*manager) == "VcabManWord");
    add("/way/");
    EXPECT_EQ(words.item(151)->text(), "(way)");
}

TEST_F(VcabWindows, AskBeforeAFileOfAnotherNameIsWrittenOverAndKeepAllWhereASaveFails)
{
    writeFile("old.dat", ThreeWords);
    openManager();
    add(Rome);
    for (const std::string name : {"1. Deklination", "mine.TXT", "mine.TXT", "Kap.II"})
        saveAs(QString::fromStdString(name));
    for (const char* const name : {"1. Deklination.lst", "mine.TXT", "Kap.II.lst"})
        EXPECT_EQ(bytesOf(name), RomeInAFile) << name;
    saveAs("old.dat");
    QWidget& question = shown("VcabReplace");
    EXPECT_EQ(label(question, "VcabReplaceText"), "The file old.dat exists already.\nWords in it: 3");
    press(question, Qt::Key_Return);
    click(files(), "LoadSaveFH");
    {
        const FullDisk full;
        click(question, "VcabReplaceOK");
    }
    EXPECT_TRUE(fake.messages.back().starts_with("The list was not saved. old.dat: "));
    expectWords({"Ro:ma"}, "Kap.II.lst");
    EXPECT_EQ(bytesOf("old.dat"), ThreeWords);
    saveAs("old.dat");
    click(question, "VcabReplaceOK");
    EXPECT_EQ(bytesOf("old.dat"), RomeInAFile);
}

TEST_F(VcabWindows, ShowTheAnswerInRedForOnePause)
{
    QWidget& tester = openTester("quis,who?/what?,pron.");
    const auto& box = line(tester, "VcabAnswer");
    const std::vector<std::function<void()>> hints = {
        [&] { answer(tester, "?"); },
        [&] { QTest::mouseDClick(&control<QLabel>(tester, "VQuestion"), Qt::LeftButton); }};
    for (const auto& askForHint : hints) {
        duringPause([&] {
            choose(tester, "VcabtesterOptionsPromptLatin");
            EXPECT_EQ(question(tester) + box.text(), "quiswho?/what?");
            EXPECT_EQ(box.palette().color(QPalette::Text), QColor(Qt::red));
            answer(tester, "who?/what?");
        });
        askForHint();
        EXPECT_EQ(box.palette().color(QPalette::Text), QColor(Qt::black));
        choose(tester, "VcabtesterOptionsPromptEnglish");
    }
    EXPECT_EQ(fake.waits + shell::settings.AnsweredCount, 2);
    answer(tester, "who?/what?");
    EXPECT_EQ(shell::settings.RightCount, 1);
}

TEST_F(VcabWindows, ShowAQuestionOfSeveralLinesWholeAndWithoutAHintInTheWholeWidth)
{
    start();
    shell::settings.MainWindowState = 0;
    QWidget& tester = openTester("pater,father,patris m.\nurbs antiqua et magna,city,urbis f.\n"
                                 "honorificabilitudinitatibus,honour,pl.\nurbs antiqua et,city,");
    const auto& shownWord = control<QLabel>(tester, "VQuestion");
    const int height = tester.height();
    for (const char* const meaning : {"father", "city", "honour"}) {
        answer(tester, "x");
        QApplication::processEvents();
        EXPECT_GE(shownWord.height(), shownWord.heightForWidth(shownWord.width())) << meaning;
        EXPECT_EQ(shownWord.height() > shownWord.fontMetrics().lineSpacing(), meaning[0] != 'f') << meaning;
        EXPECT_LT(shownWord.width(), line(tester, "VcabAnswer").width());
        answer(tester, meaning);
    }
    EXPECT_EQ(shownWord.width(), line(tester, "VcabAnswer").width());
    EXPECT_GT(tester.height(), height);
    writeFile("a.lst", "pater,father,patris m.");
    choose(tester, "VcabTesterFileOpen");
    doubleClickRow(list(shown("VcabLoader"), "VcabFile"), 0);
    QApplication::processEvents();
    EXPECT_EQ(tester.height(), height);
    choose(tester, "VcabtesterOptionsPromptLatin");
    EXPECT_EQ(question(tester) + label(tester, "VHint"), "father");
    answer(tester, "puer");
    EXPECT_EQ(label(tester, "VHint"), "patris m.");
}

TEST_F(VcabWindows, WaitWhereNoWordIsLeftAndStartAfreshEachTime)
{
    QWidget& tester = openTester(",,\nrosa,rose,f.\nre:x");
    EXPECT_EQ(fake.messages.back(), "vr-vcab.lst, line 3: the last word is cut off and was left out");
    choose(tester, "VcabtesterOptionsPromptLatin");
    click(tester, "VcabTestOmit");
    answer(tester, "rosa");
    for (const char* const attempt : {"?", "anything"}) {
        EXPECT_EQ(question(tester) + label(tester, "VHint"), "There is no word to ask.");
        answer(tester, attempt);
    }
    EXPECT_EQ(shell::settings.AnsweredCount, 1);
    click(tester, "VcabTestOmit");
    EXPECT_EQ(question(tester), "rose");
    openTester();
    answer(tester, "rose");
    EXPECT_EQ(question(tester), "Ro:ma");
}

TEST_F(VcabWindows, OpenAnotherListWithoutCountsOrGoOnWithTheirOwn)
{
    writeFile("b.voc", "mu:s,mouse,m.\r\n");
    writeFile("c.txt", QByteArray("a,b,c\n").repeated(301).toStdString());
    writeFile("d.lst", QByteArray("a,b,c\n").repeated(151).toStdString());
    writeFile("e.lst", std::string(std::size_t{5} << 20U, 'a'));
    QWidget& tester = openTester();
    click(tester, "VcabTestOmit");
    choose(tester, "VcabTesterFileOpen");
    QWidget& loader = shown("VcabLoader");
    QListWidget& lists = list(loader, "VcabFile");
    EXPECT_EQ(rows(lists), QStringList({"b.voc", "c.txt", "d.lst", "e.lst", "vr-vcab.lst"}));
    for (const char* const count :
         {"Words: 1", "Words: 301", "Words: 151. The test counts the first 150; any other ends the program.",
          "", "Words: 3"}) {
        press(loader, Qt::Key_Down);
        EXPECT_EQ(label(loader, "VcabLoaderCount"), count);
    }
    doubleClickRow(lists, 3);
    EXPECT_EQ(fake.messages, std::vector<std::string>{"e.lst: the file is too long for a word list"});
    press(loader, Qt::Key_Escape);
    EXPECT_TRUE(question(tester) == "rosa" && button(tester, "VcabTestOmit").isChecked());
    choose(tester, "VcabTesterFileOpen");
    clickRow(lists, 0);
    click(loader, "VcabLoaderOpen");
    EXPECT_TRUE(question(tester) == "mu:s" && !button(tester, "VcabTestOmit").isChecked());
}

} // namespace
