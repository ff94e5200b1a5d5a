#include "shell/windows/guide_text.h"

#include "shell/kit/type.h"

#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextTable>

namespace shell {

namespace {

constexpr double LineHeightPercent = 125;

QString anchorOf(const QString& heading)
{
    QString anchor;
    for (const QChar letter : heading.toLower())
        if (letter.isLetterOrNumber() || letter == u'-')
            anchor += letter;
        else if (letter.isSpace())
            anchor += u'-';
    return anchor;
}

// Markdown gives its headings no anchors.
void makeAnchor(const QTextBlock& heading)
{
    QTextCharFormat format;
    format.setAnchor(true);
    format.setAnchorNames({anchorOf(heading.text())});
    QTextCursor cursor(heading);
    cursor.select(QTextCursor::BlockUnderCursor);
    cursor.mergeCharFormat(format);
}

void setSpace(const QTextBlock& block)
{
    QTextBlockFormat format;
    format.setLineHeight(LineHeightPercent, QTextBlockFormat::ProportionalHeight);
    if (block.blockFormat().headingLevel() > 1)
        format.setTopMargin(WideSpace);
    QTextCursor(block).mergeBlockFormat(format);
}

void setTable(QTextTable& table, const QBrush& border)
{
    QTextTableFormat format = table.format();
    format.setBorder(1);
    format.setBorderBrush(border);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderCollapse(true);
    format.setCellPadding(HairSpace);
    table.setFormat(format);
}

void setUp(QTextDocument& guide, const QBrush& border)
{
    for (QTextBlock block = guide.begin(); block.isValid(); block = block.next()) {
        setSpace(block);
        if (block.blockFormat().headingLevel() > 0)
            makeAnchor(block);
    }
    for (QTextFrame* const frame : guide.rootFrame()->childFrames())
        if (auto* const table = qobject_cast<QTextTable*>(frame))
            setTable(*table, border);
}

} // namespace

void showGuideText(QTextBrowser& browser, const QString& text)
{
    browser.setSource(QUrl());
    if (text.startsWith(QStringLiteral("# "))) {
        browser.setMarkdown(text);
        setUp(*browser.document(), browser.palette().mid());
    } else {
        browser.setPlainText(text);
    }
    showBeginning(browser);
}

void showBeginning(QTextBrowser& browser)
{
    browser.moveCursor(QTextCursor::Start);
    // A place for the history to come back to: no heading has this anchor.
    browser.setSource(QUrl(QStringLiteral("#-")));
    browser.clearHistory();
}

} // namespace shell
