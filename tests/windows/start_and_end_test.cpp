#include "nouns/noun_list.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbs/verb_list.h"

namespace {

using tests::choose;
using tests::click;

// Of a learner who saw marks, heard sounds, and went by the rarer orders, in German.
const std::string Kept = "6\r\n-1\r\n-1\r\n 5\r\nGerman\r\nNAGDAb\r\nRandom\r\n 0\r\n-1\r\n";
const std::string Defaults = "6\r\n 0\r\n 0\r\n 2\r\nEnglish\r\nNGDAAb\r\nSequential\r\n 2\r\n-1\r\n";

// A file that includes so many of the seven classes and twenty tenses in the quiz.
std::string fileOf(std::string text, int included)
{
    for (int entry = 0; entry < 7 + 20; ++entry)
        text += entry < included ? "-1\r\n" : " 0\r\n";
    return text;
}

using StartAndEnd = tests::WindowTest;

// What is checked in the menus.
std::string checked(const QWidget& menu)
{
    QStringList names;
    for (const QAction* const item : menu.findChildren<QAction*>())
        if (item->isChecked())
            names << item->objectName();
    return names.join(' ').toStdString();
}

TEST_F(StartAndEnd, StartsWithoutSettingsAndWritesThirtySixLines)
{
    QWidget& menu = start();
    EXPECT_EQ(checked(menu), "SaveSettings SequentialOrder NGDAABOrder EnglishLang");
    EXPECT_TRUE(menu.isMaximized());
    EXPECT_EQ(shell::settings.ActiveWindowName, "main");
    click(menu, "ExitButton");
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_EQ(tests::bytesOf("morvanti.ini"), fileOf(Defaults, 0));
}

TEST_F(StartAndEnd, FindsTheSettingsThatItKeptAndSoundsOnTheWayOut)
{
    tests::writeFile("morvanti.ini", fileOf(Kept, 27));
    EXPECT_EQ(checked(start()), "SaveSettings VowelLengthVal SoundStatus RandomOrder NADGABOrder GermanLang");
    QWidget& menu = tests::shown("MainMenu");
    EXPECT_FALSE(menu.isMaximized());
    EXPECT_EQ(shell::settings.VowelMark, ":");
    const std::string& loved = verbs::verbList.SupineStem[verbs::FirstConjugation][1];
    EXPECT_EQ(loved, "amat"); // sic: read before the settings
    choose(menu, "VowelLengthVal");
    choose(menu, "VowelLengthVal");
    EXPECT_EQ(loved, "ama:t");
    EXPECT_EQ(fake.sounds, (std::vector<std::string>{"sound VELMOR2.WAV"}));
    std::filesystem::remove("morvanti.ini");
    choose(menu, "GermanLang");
    menu.close();
    EXPECT_EQ(tests::bytesOf("morvanti.ini"), fileOf(Kept, 27));
    EXPECT_EQ(shell::settings.SettingsChangeCount, 0);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(fake.sounds.size(), 2U);
    EXPECT_EQ(fake.exitStatus, 0);
}

TEST_F(StartAndEnd, KeepsTheEntriesOfTheQuizForWhichTheSettingsFileHasNoLineBesideIt)
{
    tests::writeFile("morvanti.ini", fileOf(Kept, 27));
    for (const auto& [present, looks] :
         {std::pair{false, ""}, {true, "QuizFirstConjugation=1\r\nQuizPresent=1\r\n"}}) {
        tests::writeFile("looks.ini", looks);
        QWidget& menu = start();
        EXPECT_EQ(shell::settings.QuizTenseInclude[0] == platform::FlagTrue, present);
        shell::settings.QuizConjInclude[0] = platform::FlagTrue;
        click(menu, "ExitButton");
        EXPECT_TRUE(tests::bytesOf("looks.ini")
                        .ends_with(present ? "QuizFirstConjugation=1\r\nQuizPresent=1\r\n"
                                           : "QuizFirstConjugation=1\r\nQuizPresent=0\r\n"));
        EXPECT_EQ(tests::bytesOf("morvanti.ini"), fileOf(Kept, 27));
    }
    tests::writeFile("looks.ini", "QuizFirstConjugation=0\nQuizPresent=0");
    tests::writeFile("morvanti.ini", fileOf(Kept, 0));
    start();
    EXPECT_EQ(shell::settings.QuizTenseInclude[0], platform::FlagTrue) << "one must be asked";
}

TEST_F(StartAndEnd, MendsOrGivesUpTheSettingsFromABadLineOnAndReadsNoNounsAfterABrokenVerbList)
{
    tests::writeFile("verbs.cfg", "h\nmany\n");
    tests::writeFile("morvanti.ini", fileOf("6\n0\n0\n0\nGerman\nNAGDAb\nat will\n0\n0\n", 9));
    EXPECT_EQ(checked(start()), "SequentialOrder NADGABOrder GermanLang");
    EXPECT_EQ(nouns::nounList.NounCount, nouns::NounList().NounCount);
    tests::writeFile("morvanti.ini", fileOf(Kept, 27).substr(0, Kept.size() + 13 * 4));
    EXPECT_EQ(checked(start()), "SaveSettings SequentialOrder NGDAABOrder EnglishLang");
    click(tests::shown("MainMenu"), "ExitButton");
    EXPECT_EQ(tests::bytesOf("morvanti.ini"), fileOf(Defaults, 13));
}

TEST_F(StartAndEnd, EndsWithoutSavingByAltF4OrWhereItIsToldNotToAndWithStatusOneWhereItCannot)
{
    QTest::keyClick(&start(), Qt::Key_F4, Qt::AltModifier);
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_FALSE(std::filesystem::exists("morvanti.ini"));
    QWidget& menu = start();
    std::filesystem::create_directory("morvanti.ini");
    testing::internal::CaptureStderr();
    click(menu, "ExitButton");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "morvanti: morvanti.ini: Is a directory\n");
    EXPECT_EQ(fake.exitStatus, 1);
    std::filesystem::remove("morvanti.ini");
    QWidget& silent = start();
    for (const char* const item : {"SoundStatus", "SaveSettings", "FileExit"})
        choose(silent, item);
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_FALSE(std::filesystem::exists("morvanti.ini"));
    EXPECT_TRUE(fake.sounds.empty());
}

} // namespace
