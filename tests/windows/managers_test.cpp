#include "nouns/noun_list.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbs/verb_list.h"
#include "verbs/verb_list_file.h"

namespace {

using namespace nouns;
using namespace tests;
using namespace verbs;

using Messages = std::vector<std::string>;

class Managers : public WindowTest {
protected:
    void openVerbs() { manager = &open("FileVerbManager", "VerbManager"); }
    void openNouns() { manager = &open("FileNounManager", "NounHandler"); }
    bool showsVerbs() { return manager->objectName() == "VerbManager"; }

    QListWidget& classes() { return list(*manager, showsVerbs() ? "VMConjList" : "NHDeclList"); }
    QListWidget& words() { return list(*manager, showsVerbs() ? "VMFormsList" : "NHNounList"); }
    QStringList listed() { return rows(words()); }

    void chooseWord(int wordClass, int word)
    {
        clickRow(classes(), wordClass);
        clickRow(words(), word);
    }
    void clickAdd() { click(*manager, showsVerbs() ? "VerbManagerAdd" : "NHAdd"); }
    void fillBox(const QString& name, const char* text) { fill(line(*manager, name), text); }
    void storeWord(const char* stem)
    {
        fillBox(showsVerbs() ? "VerbManagerLatinForms0" : "NHStem", stem);
        clickAdd();
    }
    void beginNounOfFirstParadigm(int declension)
    {
        clickRow(classes(), declension);
        clickAdd();
        control<QComboBox>(*manager).setFocus();
        press(*manager, Qt::Key_Home);
    }

    std::string copied()
    {
        click(*manager, showsVerbs() ? "VMCopy" : "NHCopy");
        return QApplication::clipboard()->text().toStdString();
    }

    // The texts of all boxes, from top to bottom.
    QString shownRecord()
    {
        QStringList texts;
        for (const QLineEdit* const box : manager->findChildren<QLineEdit*>())
            texts << box->text();
        return texts.join('|');
    }

    QWidget* manager = nullptr;
};

// What was typed and not added stays on its row.
TEST_F(Managers, FillTheBoxesFromTheListOfVerbsAlonePreviewFormsStoreAVerbOnItsRowAndRefuseASixteenth)
{
    openVerbs();
    const QString first = shownRecord();
    chooseWord(1, 4);
    EXPECT_EQ(shownRecord(), "mov|mov|mot|move|moved|moved|moving");
    for (int row = 0; const char* const infinitive : {"amare", "monere", "regere", "capire", "audire"}) {
        chooseWord(row++, 12);
        EXPECT_EQ(listed().front(), infinitive);
        EXPECT_EQ(listed().size(), 13);
        EXPECT_EQ(shownRecord(), "||||||");
        for (int stem = 0;
             const auto& [preview, ending] :
             {std::pair{"LatInfinitive", "are"}, {"LatPerfect", "i"}, {"LatPastParticiple", "us"}}) {
            EXPECT_EQ(label(*manager, preview), ending);
            fillBox("VerbManagerLatinForms" + QString::number(stem++), "cant");
            EXPECT_EQ(label(*manager, preview), QString("cant") + ending);
        }
        fillBox("VerbManagerGermanForms0", "sing");
    }
    for (const auto& leave : waysToLeave("VerbManagerBack")) {
        leave(*manager);
        EXPECT_NE(shownWindow("MainMenu"), nullptr);
        openVerbs();
        EXPECT_EQ(shownRecord(), first);
    }
    chooseWord(4, 12);
    EXPECT_EQ(shownRecord(), "cant|cant|cant|sing|||");

    chooseWord(0, 3);
    fillBox("VerbManagerGermanForms0", "extol");
    clickAdd();
    EXPECT_EQ(shownRecord(), "voc|vocav|vocat|extol|called|called|calling");
    verbList.Count[FirstConjugation] = 14;
    chooseWord(1, 0);
    chooseWord(0, 14);
    clickAdd();
    fillBox("VerbManagerGermanForms0", "sing");
    storeWord("cant");
    EXPECT_EQ(verbAt(FirstConjugation, 15), (VerbRecord{"cant", "", "", {"sing", "", "", ""}}));
    EXPECT_EQ(listed().mid(14), QStringList({"cantare", "** Add New Item Here **"}));
    EXPECT_EQ(shownRecord(), "cant|||sing|||");
    EXPECT_EQ(label(*manager, "VMRoom"), "15 of 15");
    chooseWord(0, 15);
    storeWord("salt");
    EXPECT_EQ(fake.messages,
              (Messages{"A verb needs a present stem.", "A conjugation holds fifteen verbs at the most."}));
    EXPECT_EQ(shownRecord(), "salt||||||");
    click(*manager, "VerbMangerCancel");
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_FALSE(std::filesystem::exists("morvanti.ini"));
}

TEST_F(Managers, ShowTheNounsAndLetThemBeAndAddOneToTheParadigmThatIsChosenWithItsMarksAsTheyAreShown)
{
    openNouns();
    for (int declension = 0;
         const auto& [count, row, room, noun, record] :
         {std::tuple{12, 0, "12 of 20", "puella", "puell||f. -ae|girl|Mädchen|jeune fille|muchacha"},
          {35, 20, "15 of 20", "bellum", "bell||n. -i|war|Krieg|guerre|guerra"},
          {18, 1, "10 of 10", "miles", "miles|milit|m. -itis|soldier|Soldat|soldat|soldado"},
          {7, 3, "", "passus", "pass|| (m)|step|Treppe||paso"},
          {7, 1, "", "dies", "di|| (f)|day|Tag||día"}}) {
        chooseWord(declension++, row);
        EXPECT_EQ(listed().size(), count);
        EXPECT_EQ(listed().at(row), noun);
        fillBox("NHStem", "x");
        EXPECT_EQ(shownRecord(), record);
        EXPECT_EQ(label(*manager, "NHRoom"), room);
        EXPECT_EQ(button(*manager, "NHCopy").isEnabled(), *room != '\0');
    }
    EXPECT_EQ(nounList.NounCount[FourthDeclension], 5);

    clickRow(classes(), 0);
    clickAdd();
    EXPECT_EQ(shell::settings.ActiveWindowName, "NHadd");
    EXPECT_EQ(listed().back(), "** Add New Item Here **");
    EXPECT_EQ(focusIn(*manager), "NHStem");
    fillBox("NHMeaning0", "star");
    storeWord("ste:ll");
    EXPECT_EQ(listed().mid(12), QStringList{"stella"});
    EXPECT_EQ(nounAt(FirstDeclension, 13), (NounRecord{"", "stell", "", {"star", "", "", ""}}));
    clickAdd();
    EXPECT_EQ(shownRecord(), "||||||");
    clickRow(classes(), 1);
    clickAdd();
    storeWord("sax");
    EXPECT_EQ(nounList.NounListStem[SecondDeclensionNeuter][15], "sax");
    beginNounOfFirstParadigm(1);
    shell::settings.ShowVowelLength = platform::FlagTrue;
    storeWord("ca:m");
    EXPECT_EQ(nounList.NounListStem[SecondDeclensionUs][10], "ca:m");
    EXPECT_EQ(listed().at(words().currentRow()), "ca:mus");
    nounList = {};
    clickRow(classes(), 2);
    EXPECT_EQ(listed().join('|') + shownRecord(), "||||||");
    beginNounOfFirstParadigm(2);
    fillBox("NHObliqueStem", "pac");
    storeWord("pax");
    EXPECT_EQ(listed(), QStringList{"pax"});
    EXPECT_EQ(nounList.NounListObliqueStem[ThirdDeclension][0], "pac");
}

TEST_F(Managers, CopyAWordAsALineOfItsFileWithMarksThatAreNotShown)
{
    openVerbs();
    chooseWord(1, 4);
    EXPECT_EQ(copied(), "mov, mo:t, mo:v, move, moved, moved, moving");
    EXPECT_EQ(QToolTip::text(), "Copied");
    fillBox("VerbManagerLatinForms2", "mo:ss");
    fillBox("VerbManagerGermanForms0", "move, stir");
    clickAdd();
    writeFile("mine.cfg", "heading\n1\n" + copied());
    words().setFocus();
    press(*manager, Qt::Key_End);
    EXPECT_FALSE(button(*manager, "VMCopy").isEnabled());

    openNouns();
    chooseWord(2, 1);
    EXPECT_EQ(copied(), "m. -itis, mi:les, mi:lit, soldier, Soldat, soldat, soldado");
    clickAdd();
    EXPECT_FALSE(button(*manager, "NHCopy").isEnabled());
    storeWord("fi:ni");
    EXPECT_EQ(fake.messages, Messages{"Choose the paradigm first: masculine/feminine or neuter."});
    EXPECT_EQ(focusIn(*manager), "NHParadigm");
    EXPECT_TRUE(line(*manager, "NHObliqueStem").isEnabled());
    chooseWord(0, 0);
    chooseWord(2, 0);
    clickAdd();
    EXPECT_EQ(control<QComboBox>(*manager).currentIndex(), -1);
    auto& paradigms = control<QComboBox>(*manager);
    EXPECT_TRUE(paradigms.hasFocus());
    paradigms.showPopup();
    QTest::keyClick(paradigms.view(), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_TRUE(manager->isVisible() && !paradigms.view()->isVisible());
    paradigms.showPopup();
    QTest::keyClick(paradigms.view(), Qt::Key_Down);
    QTest::keyClick(paradigms.view(), Qt::Key_Return);
    EXPECT_EQ(paradigms.currentIndex(), 0);
    press(*manager, Qt::Key_End);
    clickAdd();
    EXPECT_EQ(copied(), ", fi:ni, , , , ");
    EXPECT_EQ(listed().back(), "fini");

    shell::settings.ShowVowelLength = platform::FlagTrue;
    readVerbList("mine.cfg");
    EXPECT_EQ(verbAt(FirstConjugation, 1),
              (VerbRecord{"mov", "mo:v", "mo:ss", {"move, stir", "moved", "moved", "moving"}}));
}

TEST_F(Managers, SayHowAChangeIsKeptRightAboveTheButtonThatLeavesHoweverLargeTheWindowIs)
{
    for (const auto& [item, window, kept, leave, word] :
         {std::tuple{"FileVerbManager", "VerbManager", "VMKept", "VerbManagerBack", "verb"},
          {"FileNounManager", "NounHandler", "NHKept", "NHClose", "noun"}}) {
        manager = &open(item, window);
        EXPECT_EQ(label(*manager, kept),
                  QString("Changes last until the program ends. To keep one, copy the %1's line into "
                          "\"%1s.cfg\". For each new %1, raise the number at the head of its section by one.")
                      .arg(word));
        const auto& words = *manager->findChildren<QListWidget*>().back();
        for (const int height : {333, 340}) {
            manager->resize(manager->width(), height);
            EXPECT_EQ(words.viewport()->height() % words.sizeHintForRow(0), 0)
                << "a row is cut at " << height;
        }
        manager->resize(1920, 1080);
        QCoreApplication::processEvents();
        const int below = control<QLabel>(*manager, kept).geometry().bottom();
        EXPECT_LT(button(*manager, leave).geometry().top() - below, 40);
    }
    clickRow(classes(), 4);
    EXPECT_EQ(label(*manager, "NHKept"), "The nouns of the fourth and fifth declensions are fixed.");
}

// What was typed for a declension stays there until it is stored.
TEST_F(Managers, RefuseANounThatDoesNotFitOnlyWhenItIsStoredAndKeepIt)
{
    openNouns();
    nounList.NounCount[FirstDeclension] = 20;
    nounList.NounCount[ThirdDeclension] = 9;
    nounList.NounCount[FourthDeclension] = 5;
    for (const auto& leave : waysToLeave("NHClose")) {
        const auto counts = nounList.NounCount;
        for (int declension = 0; const auto& [stem, message] :
                                 {std::pair{"nov", "This paradigm holds 20 nouns at the most."},
                                  {"", "A noun needs a stem."},
                                  {"pax", "A noun of the third declension needs an oblique stem as well."},
                                  {"man", "The nouns of the fourth and fifth declensions are fixed."},
                                  {"spe", "The nouns of the fourth and fifth declensions are fixed."}}) {
            clickRow(words(), 0);
            beginNounOfFirstParadigm(declension++);
            EXPECT_EQ(listed().back(), "** Add New Item Here **");
            EXPECT_TRUE(fake.messages.empty());
            storeWord(stem);
            EXPECT_EQ(std::exchange(fake.messages, {}), Messages{message});
            EXPECT_EQ(nounList.NounCount, counts);
        }
        leave(*manager);
        EXPECT_EQ(shownWindow("NounHandler"), nullptr);
        openNouns();
        clickAdd();
        type(*manager, "a");
        EXPECT_EQ(shownRecord(), "nova||||||") << "one goes on behind what is kept";
    }
}

} // namespace
