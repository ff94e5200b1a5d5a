#include "tests/support/window_test.h"

#include <QRegularExpression>
#include <QScrollBar>
#include <QSet>
#include <QTextBlock>
#include <QTextBrowser>

namespace {

using tests::control;

class Help : public tests::WindowTest {
protected:
    QTextBrowser& openGuide()
    {
        tests::press(start(), Qt::Key_F1);
        return control<QTextBrowser>(tests::shown("Help"), "HelpText");
    }

    QTextBrowser& openSample()
    {
        tests::copySample("morvanti.hlp");
        return openGuide();
    }

    // What each part of the text is the target of, and where it leads.
    static std::pair<QSet<QString>, QSet<QString>> anchorsAndLinksOf(const QTextBrowser& text)
    {
        std::pair<QSet<QString>, QSet<QString>> found;
        for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                for (const QString& name : format.anchorNames())
                    found.first.insert(name);
                if (!format.anchorHref().isEmpty())
                    found.second.insert(format.anchorHref());
            }
        return found;
    }

    static QStringList headingsOf(const QTextBrowser& text)
    {
        QStringList headings;
        for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next())
            if (block.blockFormat().headingLevel() > 0)
                headings.append(block.text());
        return headings;
    }
};

TEST_F(Help, ShowsEveryHeadingOfTheGuideOnce)
{
    const QTextBrowser& text = openSample();
    const QString guide = QString::fromStdString(tests::bytesOf("morvanti.hlp"));
    QStringList written;
    auto heading = QRegularExpression("^#+ (.+)$", QRegularExpression::MultilineOption).globalMatch(guide);
    while (heading.hasNext())
        written.append(heading.next().captured(1));
    const QStringList shown = headingsOf(text);
    EXPECT_GT(shown.size(), 20);
    EXPECT_EQ(shown, written);
    EXPECT_EQ(anchorsAndLinksOf(text).first.size(), shown.size());
}

TEST_F(Help, HasATargetForEveryLinkAndALinkToEveryChapter)
{
    const QTextBrowser& text = openSample();
    const auto [anchors, links] = anchorsAndLinksOf(text);
    for (const QString& link : links) {
        EXPECT_TRUE(link.startsWith(u'#')) << link.toStdString();
        EXPECT_TRUE(anchors.contains(link.mid(1))) << link.toStdString();
    }
    EXPECT_EQ(links.size() + 1, anchors.size());
}

TEST_F(Help, GoesToTheChapterOfALinkAndBack)
{
    QTextBrowser& text = openSample();
    EXPECT_EQ(text.verticalScrollBar()->value(), 0);
    QTextCursor cursor = text.document()->find("morvanti.ini");
    cursor.setPosition(cursor.selectionStart() + 2);
    const QPoint place = text.cursorRect(cursor).center();
    QTest::mouseClick(text.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QApplication::processEvents();
    const QTextCursor top = text.cursorForPosition(QPoint(text.viewport()->width() / 2, 40));
    EXPECT_GT(text.verticalScrollBar()->value(), 0);
    EXPECT_GE(top.position(), text.document()->find("Your settings: 36 lines").position() - 60);
    QTest::keyClick(&text, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(text.verticalScrollBar()->value(), 0);
}

TEST_F(Help, ShowsAPlainTextAsItStands)
{
    const std::string plain = "MY GUIDE\n\n* a *star* and   blanks\n  # no heading\n<b>x</b>";
    tests::writeFile("morvanti.hlp", plain);
    const QTextBrowser& text = openGuide();
    EXPECT_EQ(text.toPlainText().toStdString(), plain);
    EXPECT_TRUE(headingsOf(text).isEmpty());
}

TEST_F(Help, SaysWhyThereIsNoGuideAndClosesWithEscape)
{
    const QTextBrowser& text = openGuide();
    EXPECT_TRUE(text.toPlainText().contains("morvanti.hlp"));
    tests::press(*tests::shownWindow("Help"), Qt::Key_Escape);
    EXPECT_EQ(tests::shownWindow("Help"), nullptr);
}

} // namespace
