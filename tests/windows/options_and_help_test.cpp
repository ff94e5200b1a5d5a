#include "shell/settings.h"
#include "tests/support/window_test.h"

namespace {

using shell::settings;
using tests::click;
using tests::label;
using tests::press;

using DelayInterval = tests::WindowTest;
using FrmOptions = tests::WindowTest;
using Help = tests::WindowTest;

TEST_F(DelayInterval, IsSetWithTheKeysAloneAndDividesTheDelayByTenWhereItIsLeftUnmoved)
{
    for (const auto& leave : tests::waysToLeave("DelayCancel")) {
        QWidget& left = open("SetDelay", "DelayInterval");
        EXPECT_EQ(label(left, "DelayLabel"), " 0.2 seconds");
        press(left, Qt::Key_End);
        leave(left);
        EXPECT_FALSE(left.isVisible());
    }
    EXPECT_EQ(settings.DelaySeconds, 2);
    QWidget& window = open("SetDelay", "DelayInterval");
    press(window, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(settings.DelaySeconds, 0);
    // Halves go to the even second.
    for (const auto& [pages, length] : {std::pair{1, " 1.5 seconds"}, {2, " 2.5 seconds"}}) {
        settings.DelaySeconds = 0;
        press(open("SetDelay", "DelayInterval"), Qt::Key_PageUp, pages);
        press(window, Qt::Key_Right, 5);
        EXPECT_EQ(label(window, "DelayLabel"), length);
        click(window, "DelayOK");
        EXPECT_FALSE(window.isVisible());
        EXPECT_EQ(settings.DelaySeconds, 2);
    }
    EXPECT_EQ(settings.SettingsChangeCount, 3);
}

TEST_F(DelayInterval, TriesTheLengthItShowsOnceAndAbandonsItWhenItClosesOrTheProgramEnds)
{
    QWidget& window = open("SetDelay", "DelayInterval");
    auto& scroll = tests::control<QScrollBar>(window);
    const auto& lamp = tests::control<QLabel>(window, "DelayLabel");
    scroll.setValue(125);
    const double before = fake.clock;
    duringPause([&] {
        EXPECT_TRUE(lamp.autoFillBackground());
        click(window, "DelayTest");
        scroll.setValue(1000);
    });
    click(window, "DelayTest");
    EXPECT_NEAR(fake.clock - before, 12.5, 0.02);
    EXPECT_EQ(lamp.text(), " 100 seconds");
    EXPECT_FALSE(lamp.autoFillBackground());

    for (const auto& end : {std::function<void()>([&] { window.close(); }), {[&] { fake.endProgram(0); }}}) {
        fake.waits = 0;
        duringPause([&] {
            fake.clock -= 1;
            end();
        });
        click(open("SetDelay", "DelayInterval"), "DelayTest");
        EXPECT_EQ(fake.waits, 1);
        EXPECT_FALSE(lamp.autoFillBackground() && window.isHidden());
    }
}

TEST_F(DelayInterval, StandsAboveTheMainWindowAndTheGuideThatStoodAboveIt)
{
    QWidget& window = open("SetDelay", "DelayInterval");
    EXPECT_EQ(QApplication::activeModalWidget(), &window);
    press(window, Qt::Key_F1);
    QWidget& help = tests::shown("Help");
    EXPECT_TRUE(window.windowHandle()->isAncestorOf(help.windowHandle()));
    window.close();
    QApplication::setActiveWindow(&help);
    tests::choose(tests::shown("MainMenu"), "SetDelay");
    EXPECT_TRUE(help.windowHandle()->isAncestorOf(window.windowHandle()));
    EXPECT_FALSE(window.windowHandle()->isAncestorOf(help.windowHandle()));
    click(help, "Command1");
    EXPECT_FALSE(help.isVisible());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(FrmOptions, TurnsItsPagesFromAnywhereAndBackToTheFirst)
{
    QWidget& window = open("OptionsOptions", "frmOptions");
    const auto& tabs = tests::control<QTabBar>(window);
    EXPECT_TRUE(tabs.hasFocus());
    for (const int page : {1, 2, 0}) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs.currentIndex(), page);
    }
    QTest::keyClick(window.focusWidget(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(tabs.currentIndex(), 2);
}

TEST_F(FrmOptions, BringsTheFrameOfTheChosenTabInAndSaysWhatIsMissing)
{
    tests::choose(start(), "RandomOrder");
    QWidget& window = open("OptionsOptions", "frmOptions");
    EXPECT_EQ(tests::control<QSlider>(window).value(), 2);
    QStringList orders;
    for (const QLabel* const text : tests::control<QFrame>(window, "picOptions1").findChildren<QLabel*>())
        orders << text->text();
    EXPECT_EQ(orders.join(", "), "Order, Random Order, Case Order, Nom. Gen. Dat. Acc. Abl., "
                                 "They are set in the options menu.");
    auto& tabs = tests::control<QTabBar>(window);
    for (const int chosen : {0, 1, 0, 1}) {
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(chosen).center());
        window.resize(window.size() + QSize(9, 9));
        for (const int tab : {0, 1}) {
            const auto& frame = tests::control<QFrame>(window, QStringLiteral("picOptions%1").arg(tab));
            EXPECT_EQ(frame.isEnabled(), tab == chosen);
            EXPECT_EQ(frame.x(), tab == chosen ? 14 : -1333);
        }
    }
    click(window, "cmdApply");
    click(window, "cmdOK");
    EXPECT_EQ(fake.messages, (std::vector<std::string>{"Place code here to set options w/o closing dialog!",
                                                       "Place code here to set options and close dialog!"}));
    EXPECT_TRUE(window.isVisible());
    fake.dismissMessage();
    for (const auto& leave : tests::waysToLeave("cmdCancel")) {
        EXPECT_FALSE(window.isVisible());
        leave(open("OptionsOptions", "frmOptions"));
        EXPECT_EQ(tabs.currentIndex(), 0);
    }
    EXPECT_FALSE(window.isVisible());
}

// The desktop's frame and title count: at the first showing, and after the learner moved the window.
TEST_F(DelayInterval, StandsInTheMiddleOfTheScreenWithItsFrameAsAboutDoes)
{
    for (const auto& [item, name] : {std::pair{"MainABout", "About"}, {"SetDelay", "DelayInterval"}})
        for (int opening = 1; opening <= 3; ++opening) {
            QWidget& window = open(item, name);
            const QPoint off = window.frameGeometry().center() - window.screen()->geometry().center();
            EXPECT_NE(window.frameGeometry(), window.geometry());
            EXPECT_LE(off.manhattanLength(), 2) << name << opening;
            window.move(3, 3);
            window.close();
        }
}

QString headingAtTheTop(const QTextBrowser& text)
{
    return text.cursorForPosition(QPoint(text.viewport()->width() / 2, 2)).block().text();
}

TEST_F(Help, OpensAtTheSectionOfTheWindowThatAsksInGermanWhereThatGuideIsThere)
{
    tests::copySample("morvanti.hlp");
    const std::vector<std::array<const char*, 4>> cases = {
        {"SetDelay", "DelayInterval", "The pause", "Die Pause"},
        {"FileConj", "ConjugationChoose", "Conjugating verbs", "Verben konjugieren"},
        {"QuizButton", "Probatio", "Verb quiz", "Verbenprüfung"}};
    for (const bool hasGerman : {false, true})
        for (const std::string language : {"English", "German", "Latin"})
            for (const auto& [item, name, english, german] : cases) {
                if (hasGerman)
                    tests::copySample("morvanti.de.hlp");
                settings.CurrentLanguage = language;
                press(open(item, name), Qt::Key_F1);
                const auto& text = tests::control<QTextBrowser>(tests::shown("Help"));
                EXPECT_EQ(headingAtTheTop(text).toStdString(),
                          hasGerman && language == "German" ? german : english);
            }
}

TEST_F(Help, StandsBesideTheWindowThatAsksWhereThereIsRoomAndElseCoversLeastOfIt)
{
    for (const auto& [x, width, coveredLeft, coveredRight] : {std::array{5, 200, 0, 0},
                                                              {500, 200, 0, 0},
                                                              {380, 400, 0, 0},
                                                              {60, 600, 0, 300},
                                                              {103, 600, 0, 300},
                                                              {140, 600, 300, 0}}) {
        QWidget& window = open("MainABout", "About");
        window.setGeometry(x, 40, width, 200);
        press(window, Qt::Key_F1);
        QWidget& help = tests::shown("Help");
        const QRect inSight = window.frameGeometry().adjusted(coveredLeft, 0, -coveredRight, 0);
        EXPECT_FALSE(help.frameGeometry().intersects(inSight)) << x;
        EXPECT_TRUE(help.screen()->availableGeometry().contains(help.frameGeometry())) << x;
        help.close();
    }
}

// Where a hyphen or another sign stands within a word, its line may end.
TEST_F(Help, BreaksNoWordAndNoEndingWhenNarrowAndFindsAndCopiesEndingsWithAPlainHyphen)
{
    for (const char* const guide : {"morvanti.hlp", "morvanti.de.hlp"})
        tests::copySample(guide);
    for (const std::string language : {"English", "German"}) {
        settings.CurrentLanguage = language;
        QWidget& help = open("HELPME", "Help");
        auto& text = tests::control<QTextBrowser>(help);
        for (const int width : {600, help.minimumSizeHint().width()}) {
            help.resize(width, help.height());
            EXPECT_EQ(text.horizontalScrollBar()->isVisible(), width < 600);
        }
        const QRegularExpression end(R"((\s|\S[^\s\w])$)");
        for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next())
            for (int line = 1; line < block.layout()->lineCount(); ++line) {
                const QString before = block.text().left(block.layout()->lineAt(line).textStart());
                EXPECT_TRUE(before.contains(end)) << before.toStdString();
            }
        QTest::keyClick(&text, Qt::Key_F, Qt::ControlModifier);
        tests::type(help, "US -a -um s");
        QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "us -a -um s");
    }
}

TEST_F(Help, StandsAtTheRightEdgeOfAMaximisedWindowAndCoversNothingWhereThereIsRoom)
{
    QWidget& menu = start();
    QTest::keyClick(&menu, Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(&menu, Qt::Key_Minus, Qt::ControlModifier);
    for (const auto& [item, name, last, hasRoom] :
         {std::tuple{"FileConj", "ConjugationChoose", "Command2", true},
          {"FileNounManager", "NounHandler", "NHClose", false}}) {
        QWidget& window = open(item, name);
        press(window, Qt::Key_F1);
        const QRect help = tests::shown("Help").frameGeometry();
        EXPECT_EQ(help.bottomRight(), window.geometry().bottomRight());
        EXPECT_EQ(help.top(), window.geometry().top());
        const QWidget& rightmost = button(window, last);
        EXPECT_EQ(help.left() > rightmost.mapToGlobal(rightmost.rect().bottomRight()).x(), hasRoom);
        tests::shown("Help").close();
    }
}

TEST_F(Help, KeepsTheHeadingAtTheTopAndGrowsInFixedTypeTooWhenTheTypeGrows)
{
    tests::copySample("morvanti.hlp");
    press(open("SetDelay", "DelayInterval"), Qt::Key_F1);
    const auto& text = tests::control<QTextBrowser>(tests::shown("Help"));
    const QTextBlock example = text.document()->find("ae, puell, girl").block();
    const double before = example.layout()->boundingRect().height();
    for (const auto key : {Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Plus, Qt::Key_0, Qt::Key_Minus}) {
        QTest::keyClick(text.window(), key, Qt::ControlModifier);
        QApplication::processEvents();
        EXPECT_EQ(headingAtTheTop(text), "The pause") << key;
        EXPECT_EQ(example.layout()->boundingRect().height() > before, key == Qt::Key_Plus);
    }
}

TEST_F(Help, FindsWordsAsOneTypesAndBeginsAnewAtTheEnd)
{
    tests::writeFile("morvanti.hlp", "# Sol\n\nluna sol Luna");
    QWidget& help = open("HELPME", "Help");
    const auto& text = tests::control<QTextBrowser>(help);
    EXPECT_EQ(text.verticalScrollBar()->value(), 0);
    const auto found = [&] { return text.textCursor().selectionStart(); };
    QTest::keyClick(help.focusWidget(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(tests::focusIn(help), "HelpFind");
    tests::type(help, "lun");
    EXPECT_EQ(found(), 4);
    const int least = help.minimumSizeHint().width();
    for (const int next : {13, 4, 13}) {
        press(help, Qt::Key_Return);
        EXPECT_EQ(found(), next);
    }
    for (const int before : {4, 13}) {
        QTest::keyClick(help.focusWidget(), Qt::Key_Return, Qt::ShiftModifier);
        EXPECT_EQ(found(), before);
    }
    tests::type(help, "o");
    EXPECT_EQ(label(help, "HelpFindState"), "Not found");
    QApplication::processEvents();
    EXPECT_EQ(help.minimumSizeHint().width(), least) << "it would grow, past the edge of the screen";
    EXPECT_EQ(found(), 13);
    press(help, Qt::Key_Escape);
    EXPECT_EQ(tests::focusIn(help), "HelpText");
    press(help, Qt::Key_Escape);
    EXPECT_FALSE(help.isVisible());
    press(open("MainABout", "About"), Qt::Key_F1);
    EXPECT_EQ(tests::control<QLineEdit>(help, "HelpFind").text() + label(help, "HelpFindState"), "");
}

TEST_F(Help, HasTheSameChaptersInBothLanguagesATargetForEveryLinkAndALinkToEach)
{
    for (const char* const guide : {"morvanti.hlp", "morvanti.de.hlp"})
        tests::copySample(guide);
    for (const std::string language : {"English", "German"}) {
        settings.CurrentLanguage = language;
        auto& text = tests::control<QTextBrowser>(open("HELPME", "Help"));
        QSet<QString> chapters;
        QSet<QString> links;
        const QRegularExpression anchor(R"(<a (?:name|href)="(#?)([^"A-Z]+)\")");
        for (const auto& match : anchor.globalMatch(text.toHtml()))
            (match.captured(1).isEmpty() ? chapters : links).insert(match.captured(2));
        EXPECT_GT(chapters.size(), 20);
        EXPECT_TRUE(chapters.contains(links));
        EXPECT_EQ(links.size() + 1, chapters.size());
    }
    // Both guides have the same chapters, and open them from the same windows.
    const auto outline = [](const char* guide) {
        QStringList lines;
        const QRegularExpression heading(R"(\n(#+)[^{\n]*(\{.*\})?)");
        for (const auto& match : heading.globalMatch(QString::fromStdString(tests::bytesOf(guide))))
            lines << match.captured(1) + match.captured(2);
        return lines;
    };
    EXPECT_EQ(outline("morvanti.hlp"), outline("morvanti.de.hlp"));
}

TEST_F(Help, GoesWithTabToTheFirstLinkBelowWhatIsShownBackFromLinksAndOpenings)
{
    tests::copySample("morvanti.hlp");
    auto& help = open("HELPME", "Help");
    auto& text = tests::control<QTextBrowser>(help);
    EXPECT_FALSE(button(help, "HelpBack").isEnabled());
    QTextCursor link = text.document()->find("Verb quiz", text.cursorForPosition(QPoint(2, 2)));
    link.setPosition(link.selectionStart() + 2);
    const auto expectTabTo = [&](const char* words) {
        press(help, Qt::Key_Tab);
        EXPECT_EQ(text.textCursor().selectedText(), words);
    };
    expectTabTo("Conjugating verbs");
    QTest::mouseClick(text.viewport(), Qt::LeftButton, {}, text.cursorRect(link).center());
    expectTabTo("what the verb quiz asks");
    press(open("SetDelay", "DelayInterval"), Qt::Key_F1);
    EXPECT_EQ(headingAtTheTop(text), "The pause");
    click(help, "HelpBack");
    EXPECT_EQ(headingAtTheTop(text), "Verb quiz");
    QTest::keyClick(&text, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(headingAtTheTop(text), "Main window");
    expectTabTo("Vocabulary test");
    EXPECT_FALSE(button(help, "HelpBack").isEnabled());
}

TEST_F(Help, ShowsAPlainTextAsItStandsAndSaysWhyThereIsNone)
{
    const std::string plain = "MY GUIDE\n\n* a *star* and   blanks\n  # no heading\n<b>x</b>";
    for (const std::string& shown : {std::string("morvanti.hlp: No such file or directory"), plain}) {
        QWidget& window = open("HELPME", "Help");
        EXPECT_EQ(tests::control<QTextBrowser>(window).toPlainText().toStdString(), shown);
        press(window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
        tests::writeFile("morvanti.hlp", plain);
    }
}

} // namespace
