#include "shell/settings.h"
#include "tests/support/window_test.h"

namespace {

using tests::bytesOf;
using tests::label;

class Looks : public tests::WindowTest {
protected:
    // How large the type is after a key, in percent of what it was before the program started.
    int percentAfter(QWidget& window, Qt::Key key, Qt::KeyboardModifiers with = Qt::ControlModifier,
                     int times = 1)
    {
        QApplication::setActiveWindow(&window);
        for (int i = 0; i < times; ++i)
            QTest::keyClick(&window, key, with);
        QApplication::processEvents();
        return qRound(100 * QApplication::font().pointSizeF() / desktop.pointSizeF());
    }

    const QFont desktop = QApplication::font();
};

TEST_F(Looks, GrowAndShrinkByKeysInEachWindowButAMessageUpToBothEndsAndAreKeptAtOnce)
{
    QWidget& menu = start();
    EXPECT_EQ(percentAfter(menu, Qt::Key_Equal), 115);
    EXPECT_EQ(percentAfter(menu, Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier), 130);
    EXPECT_EQ(percentAfter(menu, Qt::Key_Plus, Qt::ControlModifier | Qt::AltModifier), 130);
    EXPECT_EQ(bytesOf("looks.ini").substr(0, 12), "TextSize=130");
    QWidget& options = open("OptionsOptions", "frmOptions");
    auto& size = tests::control<QComboBox>(options, "TextSize");
    EXPECT_EQ(size.currentText(), "130 %");
    const int before = options.height();
    EXPECT_EQ(percentAfter(options, Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier, 9), 200);
    EXPECT_EQ(size.currentText(), "200 %");
    tests::control<QTabBar>(options).setCurrentIndex(2);
    QTest::keyClick(&size, Qt::Key_Up);
    EXPECT_EQ(bytesOf("looks.ini").substr(0, 12), "TextSize=175");
    QTest::keyClick(&size, Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([&] { return options.height() > before; }));
    EXPECT_EQ(QApplication::font("QMenu").pointSizeF(), 2 * desktop.pointSizeF());
    QMessageBox message;
    message.show();
    EXPECT_EQ(percentAfter(message, Qt::Key_Minus), 200);
    message.close();
    EXPECT_EQ(percentAfter(start(), Qt::Key_F5), 200);
    std::filesystem::remove("looks.ini");
    std::filesystem::create_directory("looks.ini");
    QWidget& delay = open("SetDelay", "DelayInterval");
    EXPECT_EQ(percentAfter(delay, Qt::Key_Minus, Qt::ControlModifier, 9), 80);
    EXPECT_EQ(percentAfter(delay, Qt::Key_0), 100);
    EXPECT_EQ(QApplication::font(), desktop);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(Looks, LeaveANormalWindowAsLargeAsItsContentAfterLargeTypeAndAfterItWasMaximised)
{
    QWidget& menu = start();
    const auto sizeIn = [&](std::int16_t state) {
        QWidget& list = open("FileVerbManager", "VerbManager");
        shell::settings.MainWindowState = state;
        tests::click(list, "VerbManagerBack");
        QApplication::processEvents();
        return menu.size();
    };
    const QSize designed = sizeIn(shell::window_state::Normal);
    percentAfter(menu, Qt::Key_Plus, Qt::ControlModifier, 9);
    EXPECT_TRUE(QTest::qWaitFor([&] { return menu.height() > designed.height(); }));
    percentAfter(menu, Qt::Key_0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return menu.size() == designed; }));
    menu.move(menu.screen()->availableGeometry().bottomRight() - QPoint(designed.width(), designed.height()));
    percentAfter(open("FileVerbManager", "VerbManager"), Qt::Key_Plus, Qt::ControlModifier, 4);
    sizeIn(shell::window_state::Normal);
    EXPECT_TRUE(menu.screen()->availableGeometry().contains(menu.frameGeometry()));
    percentAfter(menu, Qt::Key_0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return menu.size() == designed; }));
    sizeIn(shell::window_state::Maximised);
    menu.resize(menu.screen()->size());
    menu.overrideWindowState(Qt::WindowMaximized);
    EXPECT_EQ(sizeIn(shell::window_state::Normal), designed);
    menu.resize(designed + QSize(40, 40));
    percentAfter(menu, Qt::Key_Minus);
    EXPECT_EQ(menu.size(), designed + QSize(40, 40));
}

TEST_F(Looks, LetAMaximisedChooserBecomeAsSmallAsItWas)
{
    start();
    shell::settings.MainWindowState = shell::window_state::Normal;
    QWidget& chooser = open("FileConj", "ConjugationChoose");
    const QSize least = chooser.minimumSize();
    const QSize screen(1920, 1080);
    chooser.resize(screen);
    chooser.overrideWindowState(Qt::WindowMaximized);
    QResizeEvent resized(screen, screen);
    QApplication::sendEvent(&chooser, &resized);
    QApplication::processEvents();
    chooser.showNormal();
    chooser.resize(least);
    EXPECT_EQ(chooser.size(), least);
    QApplication::processEvents();
    EXPECT_EQ(chooser.minimumSize(), least);
}

TEST_F(Looks, TakeMacronsAsMarksWhereTheyAreTypedOrPastedWithTheCursorBehindThem)
{
    QWidget& manager = open("FileVerbManager", "VerbManager");
    auto& stem = line(manager, "VerbManagerLatinForms0");
    tests::fill(stem, "mns");
    stem.setCursorPosition(1);
    QGuiApplication::clipboard()->setText("ōu\u0304");
    QTest::keyClick(&stem, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(stem.text(), "mo:u:ns");
    EXPECT_EQ(stem.cursorPosition(), 5);
    QTest::keyClick(&stem, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(stem.text(), "mo:u:ns");
    stem.setMaxLength(8);
    tests::type(manager, "ē");
    EXPECT_EQ(stem.text(), "mo:u:ns") << "no room for the mark, and no letter lost";
    tests::doubleClickRow(tests::control<QListWidget>(open("FileDecl", "DeclinationChoose")), 0);
    QWidget& drill = tests::shown("Declination");
    tests::type(drill, "puella\u0304");
    EXPECT_EQ(box(drill, "DeclText", 0).text(), "puella:");
}

TEST_F(Looks, ShowMacronsWhereNothingIsTypedAndLeaveWhatIsComparedAndHeadingsAsTheyAre)
{
    tests::writeFile("vr-vcab.lst", "mi:les,note: a soldier,mi:litis> m.\n");
    tests::choose(start(), "LatinLang");
    QWidget& options = open("OptionsOptions", "frmOptions");
    tests::control<QTabBar>(options).setCurrentIndex(2);
    tests::click(options, "ShowMacrons");
    EXPECT_EQ(bytesOf("looks.ini"), "TextSize=100\r\nShowMacrons=1\r\nFirstStepsDone=0\r\nKeepAnswers=1\r\n");
    QWidget& test = open("MainVocabulary", "Vcabtester");
    EXPECT_EQ(label(test, "VQuestion") + ' ' + label(test, "VHint"), "mīles mīlitis, m.");
    tests::choose(test, "VcabtesterOptionsPromptLatin");
    EXPECT_EQ(label(test, "VQuestion"), "note: a soldier");
    tests::answer(test, "mīles");
    EXPECT_EQ(label(test, "WhyLabel"), "m<u>ī</u>les") << "what looks alike is shown as it was written";
    tests::answer(test, "mi:les");
    EXPECT_EQ(shell::settings.RightCount, 1);
    tests::choose(test, "VcabTesterEdit");
    QWidget& editor = tests::shown("VcabManager");
    tests::clickRow(tests::control<QListWidget>(editor), 0);
    EXPECT_EQ(tests::rows(tests::control<QListWidget>(editor)), QStringList{"mīles"});
    EXPECT_EQ(line(editor, "VcabManWord").text(), "mi:les");
    tests::doubleClickRow(tests::control<QListWidget>(open("FileDecl", "DeclinationChoose")), 0);
    QWidget& drill = tests::shown("Declination");
    EXPECT_EQ(label(drill, "HeadingLabel"), "Prima Declinatio:");
    tests::answer(drill, "xā");
    EXPECT_EQ(label(drill, "WhyLabel"), "<u>x</u>ā");
}

TEST_F(Looks, KeepTheBeginningOfARemarkInViewWhereTheTypeIsTooWideForTheScreen)
{
    QWidget& menu = start();
    percentAfter(menu, Qt::Key_Plus, Qt::ControlModifier, 9);
    tests::doubleClickRow(tests::control<QListWidget>(open("FileConj", "ConjugationChoose")), 0);
    QWidget& drill = tests::shown("Conjugation");
    tests::answer(drill, "x");
    const auto& why = tests::control<QLabel>(drill, "WhyLabel");
    EXPECT_GT(why.width(), drill.width());
    EXPECT_GE(why.mapTo(&drill, QPoint()).x(), 0);
}

TEST_F(Looks, SpeakTheLanguageOfTheInterfaceInContextMenusAndMessages)
{
    for (const auto& [language, copy] :
         {std::pair{"German", "&Kopieren"}, {"French", "Cop&ier"}, {"Latin", "&Copy"}}) {
        tests::choose(start(), QStringLiteral("%1Lang").arg(language));
        auto& stem = line(open("FileVerbManager", "VerbManager"), "VerbManagerLatinForms0");
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, {1, 1}, {1, 1});
        QApplication::sendEvent(&stem, &asked);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        QStringList texts;
        for (const QAction* const item : menu->actions())
            texts << item->text().section('\t', 0, 0);
        EXPECT_TRUE(texts.contains(copy)) << texts.join(' ').toStdString();
        menu->close();
    }
}

TEST_F(Looks, SayTheFirstStepsUntilAnExerciseIsOpenedAndNeverAgain)
{
    for (const auto& [exercise, window] :
         {std::pair{"MainVocabulary", "Vcabtester"}, {"FileNounQuiz", "NounQuiz"}}) {
        std::filesystem::remove("looks.ini");
        tests::choose(start(), "GermanLang");
        open("FileNounManager", "NounHandler");
        open("FileConj", "ConjugationChoose").close();
        const auto& steps = tests::control<QLabel>(tests::shown("MainMenu"), "FirstSteps");
        EXPECT_TRUE(steps.isVisible());
        EXPECT_TRUE(steps.text().contains("Übung"));
        open(exercise, window).close();
        EXPECT_TRUE(tests::shown("MainMenu").isVisible() && steps.isHidden());
        EXPECT_EQ(start().findChild<QLabel*>("FirstSteps"), nullptr);
    }
}

} // namespace
