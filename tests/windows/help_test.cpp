#include "tests/support/window_test.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>

#include <set>

namespace {

class Help : public tests::WindowTest {
protected:
    QTextBrowser& openGuide() { return tests::control<QTextBrowser>(open("HELPME", "Help"), "HelpText"); }
};

TEST_F(Help, HasATargetForEveryLinkAndALinkToEveryChapter)
{
    tests::copySample("morvanti.hlp");
    const QTextBrowser& text = openGuide();
    std::set<QString> chapters;
    std::set<QString> links;
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            for (const QString& name : format.anchorNames())
                chapters.insert('#' + name);
            if (!format.anchorHref().isEmpty())
                links.insert(format.anchorHref());
        }
    EXPECT_GT(chapters.size(), 20U);
    EXPECT_TRUE(std::ranges::includes(chapters, links));
    EXPECT_EQ(links.size() + 1, chapters.size());
}

TEST_F(Help, GoesToTheChapterOfALinkAndBack)
{
    tests::copySample("morvanti.hlp");
    QTextBrowser& text = openGuide();
    QTextCursor cursor = text.document()->find("morvanti.ini");
    cursor.setPosition(cursor.selectionStart() + 2);
    QTest::mouseClick(text.viewport(), Qt::LeftButton, Qt::NoModifier, text.cursorRect(cursor).center());
    QApplication::processEvents();
    const QTextCursor top = text.cursorForPosition(QPoint(text.viewport()->width() / 2, 40));
    EXPECT_GT(text.verticalScrollBar()->value(), 0);
    EXPECT_GE(top.position(), text.document()->find("Your settings: 36 lines").position() - 60);
    QTest::keyClick(&text, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(text.verticalScrollBar()->value(), 0);
}

TEST_F(Help, ShowsAPlainTextAsItStandsAndSaysWhyThereIsNone)
{
    EXPECT_TRUE(openGuide().toPlainText().contains("morvanti.hlp"));
    tests::press(tests::shown("Help"), Qt::Key_Escape);
    EXPECT_EQ(tests::shownWindow("Help"), nullptr);
    const std::string plain = "MY GUIDE\n\n* a *star* and   blanks\n  # no heading\n<b>x</b>";
    tests::writeFile("morvanti.hlp", plain);
    EXPECT_EQ(openGuide().toPlainText().toStdString(), plain);
}

} // namespace
