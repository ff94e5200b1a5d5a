#include "nouns/noun_list.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbs/verb_list.h"

#include <QAction>

#include <algorithm>
#include <filesystem>

namespace {

using platform::FlagFalse;
using platform::FlagTrue;
using shell::settings;
using tests::control;
using Lines = std::vector<std::string>;

class StartAndEnd : public tests::WindowTest {
protected:
    static bool isChecked(QWidget& menu, const QString& name)
    {
        return control<QAction>(menu, name).isChecked();
    }

    static std::string settingsWith(const std::string& firstNineLines)
    {
        std::string text = firstNineLines;
        for (int i = 0; i < 27; ++i)
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
    EXPECT_EQ(settings.ActiveWindowName, "main");
    settings.SettingsChangeCount = 4;
    tests::click(menu, "ExitButton");
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_EQ(settings.SettingsChangeCount, 0);
    const std::string text = tests::bytesOf("morvanti.ini");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 36);
    EXPECT_EQ(text.substr(0, text.find("-1\r\n") + 4),
              "6\r\n 0\r\n 0\r\n 2\r\nEnglish\r\nNGDAAb\r\nSequential\r\n 2\r\n-1\r\n");
}

TEST_F(StartAndEnd, ReadsTheSettingsAfterABrokenVerbListButNoNouns)
{
    tests::writeFile("verbs.cfg", "h\nmany\n");
    tests::copySample("nouns.cfg");
    tests::writeFile("morvanti.ini",
                     settingsWith("6\r\n-1\r\n-1\r\n 5\r\nGerman\r\nNAGDAb\r\nRandom\r\n 0\r\n-1\r\n"));
    EXPECT_TRUE(isChecked(start(), "GermanLang"));
    for (const auto count : nouns::nounList.NounCount)
        EXPECT_EQ(count, 0);
}

TEST_F(StartAndEnd, TakesTheDefaultsForSettingsThatAreCutOff)
{
    std::string text = settingsWith("6\r\n-1\r\n-1\r\n 5\r\nGerman\r\nNAGDAb\r\nRandom\r\n 0\r\n-1\r\n");
    text.resize(text.size() - 60);
    tests::writeFile("morvanti.ini", text);
    QWidget& menu = start();
    EXPECT_TRUE(isChecked(menu, "EnglishLang"));
    EXPECT_FALSE(isChecked(menu, "SoundStatus"));
    tests::click(menu, "ExitButton");
    EXPECT_EQ(std::ranges::count(tests::bytesOf("morvanti.ini"), '\n'), 36);
}

TEST_F(StartAndEnd, FindsTheSettingsThatItKept)
{
    tests::writeFile("morvanti.ini",
                     settingsWith("6\r\n-1\r\n-1\r\n 5\r\nGerman\r\nNAGDAb\r\nRandom\r\n 0\r\n-1\r\n"));
    QWidget& menu = start();
    EXPECT_FALSE(menu.isMaximized());
    for (const char* const item :
         {"GermanLang", "RandomOrder", "NADGABOrder", "VowelLengthVal", "SoundStatus"})
        EXPECT_TRUE(isChecked(menu, item)) << item;
    EXPECT_EQ(settings.VowelMark, ":");
    EXPECT_EQ(fake.sounds, (Lines{"sound VELMOR2.WAV"}));
}

TEST_F(StartAndEnd, TakesOddValuesAsTheyAre)
{
    tests::writeFile("morvanti.ini",
                     settingsWith("6\r\n 1\r\n 7\r\n 5\r\nenglish\r\nNADGAB\r\nrandom\r\n 9\r\n 0\r\n"));
    QWidget& menu = start();
    for (const char* const item : {"EnglishLang", "VowelLengthVal", "SoundStatus", "SaveSettings"})
        EXPECT_FALSE(isChecked(menu, item)) << item;
    EXPECT_TRUE(isChecked(menu, "NGDAABOrder"));
    EXPECT_EQ(settings.VowelMark, "");
    EXPECT_TRUE(fake.sounds.empty());
}

TEST_F(StartAndEnd, StripsTheStemsAtStartWhateverTheSettingsSay)
{
    tests::copySample("verbs.cfg");
    tests::writeFile("morvanti.ini",
                     settingsWith("6\r\n-1\r\n 0\r\n 5\r\nEnglish\r\nNGDAAb\r\nSequential\r\n 0\r\n-1\r\n"));
    QWidget& menu = start();
    EXPECT_EQ(verbs::verbList.SupineStem[verbs::FirstConjugation][1], "amat");
    tests::choose(menu, "VowelLengthVal");
    tests::choose(menu, "VowelLengthVal");
    EXPECT_EQ(verbs::verbList.SupineStem[verbs::FirstConjugation][1], "ama:t");
}

TEST_F(StartAndEnd, SurvivesFilesOfAnyKind)
{
    for (const std::string& bytes :
         {std::string(), std::string(1000, '\0'), std::string("\xFF\xFE,,,\n\n,-1"), std::string(100000, ','),
          std::string("x\n99999\n"), std::string("x\n-5\n"), std::string(300000, '\n')}) {
        tests::writeFile("verbs.cfg", bytes);
        tests::writeFile("nouns.cfg", bytes);
        tests::writeFile("morvanti.ini", bytes);
        QWidget& menu = start();
        tests::click(menu, "ConjugationButton");
        EXPECT_NE(tests::shownWindow("ConjugationChoose"), nullptr);
    }
}

TEST_F(StartAndEnd, SavesNothingWhereItShallNot)
{
    QWidget& menu = start();
    tests::choose(menu, "SoundStatus");
    tests::choose(menu, "SaveSettings");
    tests::choose(menu, "FileExit");
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_FALSE(std::filesystem::exists("morvanti.ini"));
    EXPECT_TRUE(fake.sounds.empty());
}

TEST_F(StartAndEnd, SoundsOnTheWayOut)
{
    QWidget& menu = start();
    tests::choose(menu, "SoundStatus");
    menu.close();
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(fake.sounds, (Lines{"sound VELMOR2.WAV"}));
    EXPECT_TRUE(std::filesystem::exists("morvanti.ini"));
}

TEST_F(StartAndEnd, EndsWithStatusOneWhereTheSettingsCannotBeWritten)
{
    QWidget& menu = start();
    std::filesystem::create_directory("morvanti.ini");
    testing::internal::CaptureStderr();
    tests::click(menu, "ExitButton");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "morvanti: morvanti.ini: Is a directory\n");
    EXPECT_EQ(fake.exitStatus, 1);
}

TEST_F(StartAndEnd, EndsQuietlyOnAltF4)
{
    QWidget& menu = start();
    QTest::keyClick(&menu, Qt::Key_F4, Qt::AltModifier);
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_FALSE(std::filesystem::exists("morvanti.ini"));
}

} // namespace
