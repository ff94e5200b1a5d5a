#include "nouns/noun_list.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbs/verb_list.h"

namespace {

using tests::choose;
using tests::click;

class StartAndEnd : public tests::WindowTest {
protected:
    static bool isChecked(QWidget& menu, const char* name)
    {
        return tests::control<QAction>(menu, name).isChecked();
    }

    // Of a learner who saw marks, heard sounds, and went by the rarer orders, in German.
    static std::string keptSettings(const std::string& order = "Random")
    {
        std::string text = "6\r\n-1\r\n-1\r\n 5\r\nGerman\r\nNAGDAb\r\n" + order + "\r\n 0\r\n-1\r\n";
        for (int entry = 0; entry < 7 + 20; ++entry)
            text += "-1\r\n";
        return text;
    }
};

TEST_F(StartAndEnd, StartsInAnEmptyFolderAndWritesThirtySixLines)
{
    QWidget& menu = start();
    EXPECT_TRUE(menu.isMaximized());
    for (const char* const item : {"SaveSettings", "EnglishLang", "SequentialOrder", "NGDAABOrder"})
        EXPECT_TRUE(isChecked(menu, item)) << item;
    EXPECT_EQ(shell::settings.ActiveWindowName, "main");
    click(menu, "ExitButton");
    EXPECT_EQ(fake.exitStatus, 0);
    const std::string text = tests::bytesOf("morvanti.ini");
    EXPECT_EQ(std::ranges::count(text, '\n'), 36);
    EXPECT_EQ(text.substr(0, text.find("-1\r\n") + 4),
              "6\r\n 0\r\n 0\r\n 2\r\nEnglish\r\nNGDAAb\r\nSequential\r\n 2\r\n-1\r\n");
}

TEST_F(StartAndEnd, FindsTheSettingsThatItKeptAndSoundsOnTheWayOut)
{
    tests::writeFile("morvanti.ini", keptSettings());
    QWidget& menu = start();
    EXPECT_FALSE(menu.isMaximized());
    for (const char* const item :
         {"GermanLang", "RandomOrder", "NADGABOrder", "VowelLengthVal", "SoundStatus"})
        EXPECT_TRUE(isChecked(menu, item)) << item;
    EXPECT_EQ(shell::settings.VowelMark, ":");
    EXPECT_EQ(fake.sounds, (std::vector<std::string>{"sound VELMOR2.WAV"}));
    std::filesystem::remove("morvanti.ini");
    choose(menu, "EnglishLang");
    choose(menu, "GermanLang");
    menu.close();
    EXPECT_EQ(tests::bytesOf("morvanti.ini"), keptSettings());
    EXPECT_EQ(shell::settings.SettingsChangeCount, 0);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(fake.sounds.size(), 2U);
    EXPECT_EQ(fake.exitStatus, 0);
}

TEST_F(StartAndEnd, TakesTheDefaultsForSettingsThatAreCutOff)
{
    tests::writeFile("morvanti.ini", keptSettings().substr(0, 100));
    QWidget& menu = start();
    EXPECT_TRUE(isChecked(menu, "EnglishLang"));
    EXPECT_FALSE(isChecked(menu, "SoundStatus"));
}

TEST_F(StartAndEnd, ReadsAndMendsTheSettingsAfterABrokenVerbListButReadsNoNouns)
{
    tests::writeFile("verbs.cfg", "h\nmany\n");
    tests::copySample("nouns.cfg");
    tests::writeFile("morvanti.ini", keptSettings("at will"));
    EXPECT_TRUE(isChecked(start(), "GermanLang"));
    EXPECT_EQ(shell::settings.QuestionOrder, "Sequential");
    EXPECT_EQ(nouns::nounList.NounCount, nouns::NounList().NounCount);
}

TEST_F(StartAndEnd, StripsTheStemsAtStartWhateverTheSettingsSay)
{
    tests::copySample("verbs.cfg");
    tests::writeFile("morvanti.ini", keptSettings());
    QWidget& menu = start();
    EXPECT_EQ(verbs::verbList.SupineStem[verbs::FirstConjugation][1], "amat");
    choose(menu, "VowelLengthVal");
    choose(menu, "VowelLengthVal");
    EXPECT_EQ(verbs::verbList.SupineStem[verbs::FirstConjugation][1], "ama:t");
}

TEST_F(StartAndEnd, EndsWithoutSavingByAltF4AndWhereItIsToldNotToSave)
{
    QTest::keyClick(&start(), Qt::Key_F4, Qt::AltModifier);
    EXPECT_EQ(fake.exitStatus, 0);
    fake.exitStatus.reset();
    QWidget& menu = start();
    for (const char* const item : {"SoundStatus", "SaveSettings", "FileExit"})
        choose(menu, item);
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_FALSE(std::filesystem::exists("morvanti.ini"));
    EXPECT_TRUE(fake.sounds.empty());
}

TEST_F(StartAndEnd, EndsWithStatusOneWhereTheSettingsCannotBeWritten)
{
    QWidget& menu = start();
    std::filesystem::create_directory("morvanti.ini");
    testing::internal::CaptureStderr();
    click(menu, "ExitButton");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "morvanti: morvanti.ini: Is a directory\n");
    EXPECT_EQ(fake.exitStatus, 1);
}

} // namespace
