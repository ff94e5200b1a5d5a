#include "shell/windows/guide_text.h"

#include "shell/kit/type.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextTable>

#include <algorithm>

namespace shell {

namespace {

constexpr double LineHeightPercent = 125;
constexpr QChar FirmHyphen(0x2011);

// The hyphen of an ending, -a, stays with its letters at the end of a line.
QString withFirmHyphens(QString text)
{
    static const QRegularExpression ofEnding(QStringLiteral(R"((?<![\pL\d-])-(?=\pL))"),
                                             QRegularExpression::UseUnicodePropertiesOption);
    return text.replace(ofEnding, FirmHyphen);
}

QString withPlainHyphens(QString text)
{
    return text.replace(FirmHyphen, u'-');
}

// Finds a hyphen of either kind.
QRegularExpression patternOf(const QString& words)
{
    return QRegularExpression(QRegularExpression::escape(withPlainHyphens(words))
                                  .replace(QStringLiteral("\\-"), QStringLiteral("[-%1]").arg(FirmHyphen)));
}

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

// Takes the names in braces from the end of a heading.
QStringList takeWindows(const QTextBlock& heading)
{
    static const QRegularExpression namesInBraces(QStringLiteral(R"(\s*\{([^}]*)\}$)"));
    const auto match = namesInBraces.match(heading.text());
    if (!match.hasMatch())
        return {};
    QTextCursor cursor(heading);
    cursor.setPosition(heading.position() + static_cast<int>(match.capturedStart()));
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    return match.captured(1).split(u' ', Qt::SkipEmptyParts);
}

// Markdown gives its headings no anchors.
void setAnchors(const QTextBlock& heading, const QStringList& anchors)
{
    QTextCharFormat format;
    format.setAnchor(true);
    format.setAnchorNames(anchors);
    QTextCursor cursor(heading);
    cursor.select(QTextCursor::BlockUnderCursor);
    cursor.mergeCharFormat(format);
}

// Lines of a file may be longer than the guide is wide: they break as all others do.
void setSpace(const QTextBlock& block)
{
    QTextBlockFormat format;
    format.setLineHeight(LineHeightPercent, QTextBlockFormat::ProportionalHeight);
    format.setNonBreakableLines(false);
    if (block.blockFormat().headingLevel() > 1)
        format.setTopMargin(WideSpace);
    QTextCursor(block).mergeBlockFormat(format);
}

// Type of a fixed size would not grow with the text.
void growWithText(QTextDocument& text)
{
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
        for (const auto& range : block.textFormats()) {
            QTextCharFormat format = range.format;
            format.clearProperty(QTextFormat::FontPointSize);
            QTextCursor cursor(block);
            cursor.setPosition(block.position() + range.start);
            cursor.setPosition(block.position() + range.start + range.length, QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
        }
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

} // namespace

// What was found is marked as plainly while the field for it has the focus.
GuideText::GuideText(QWidget* parent) : QTextBrowser(parent)
{
    document()->setDocumentMargin(WideSpace);
    QPalette colours = palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
        colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
    setPalette(colours);
    setWordWrapMode(QTextOption::WordWrap);
    connect(this, &QTextBrowser::sourceChanged, this, &GuideText::forgetMarked);
    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, &GuideText::offerToScrollSideways);
}

// A table may be rounded up by a pixel. Nothing is hidden as long as that is the margin alone.
void GuideText::offerToScrollSideways(int /*least*/, int most)
{
    setHorizontalScrollBarPolicy(most > document()->documentMargin() ? Qt::ScrollBarAsNeeded
                                                                     : Qt::ScrollBarAlwaysOff);
}

void GuideText::setGuide(const QString& guide)
{
    if (guide == guide_)
        return;
    guide_ = guide;
    sections_.clear();
    setSource(QUrl());
    if (guide.startsWith(QStringLiteral("# ")))
        setDocument(madeReady(guide));
    else
        setPlainText(guide);
}

// Returns it ready to be shown: one that is shown already would be laid out anew after each step.
QTextDocument* GuideText::madeReady(const QString& guide)
{
    auto* const ready = new QTextDocument(document()->parent());
    ready->setUndoRedoEnabled(false);
    ready->setDefaultFont(font());
    ready->setDocumentMargin(WideSpace);
    ready->setMarkdown(withFirmHyphens(guide));
    for (QTextBlock block = ready->begin(); block.isValid(); block = block.next()) {
        setSpace(block);
        if (block.blockFormat().headingLevel() > 0)
            openSections(block);
    }
    growWithText(*ready);
    for (QTextFrame* const frame : ready->rootFrame()->childFrames())
        if (auto* const table = qobject_cast<QTextTable*>(frame))
            setTable(*table, palette().mid());
    return ready;
}

void GuideText::openSections(const QTextBlock& heading)
{
    const QStringList windows = takeWindows(heading);
    sections_.unite({windows.begin(), windows.end()});
    setAnchors(heading, QStringList{anchorOf(heading.text())} + windows);
}

void GuideText::goToSection(const QString& window)
{
    const bool isFirst = source().isEmpty();
    if (sections_.contains(window)) {
        setSource(QUrl(u'#' + window));
    } else {
        // A place for the history to come back to: no heading has this anchor.
        setSource(QUrl(QStringLiteral("#-")));
        moveCursor(QTextCursor::Start);
    }
    if (isFirst)
        clearHistory();
}

bool GuideText::findHere(const QString& words)
{
    return findFrom(readersPlace().selectionStart(), words);
}

bool GuideText::findNext(const QString& words)
{
    return findFrom(readersPlace().selectionEnd(), words);
}

bool GuideText::findFrom(int place, const QString& words)
{
    const QRegularExpression pattern = patternOf(words);
    const QTextCursor found = document()->find(pattern, place);
    return mark(found.isNull() ? document()->find(pattern) : found);
}

bool GuideText::findPrevious(const QString& words)
{
    constexpr auto Backward = QTextDocument::FindBackward;
    const QRegularExpression pattern = patternOf(words);
    const QTextCursor found = document()->find(pattern, readersPlace().selectionStart(), Backward);
    return mark(found.isNull() ? document()->find(pattern, document()->characterCount() - 1, Backward)
                               : found);
}

// What is marked, as long as it is in sight, else the first letter that is.
QTextCursor GuideText::readersPlace() const
{
    const QTextCursor marked = textCursor();
    return marked.hasSelection() && viewport()->rect().intersects(cursorRect(marked))
               ? marked
               : cursorForPosition(QPoint(0, 0));
}

// A place that is out of sight comes to the middle, with what stands around it.
bool GuideText::mark(const QTextCursor& found)
{
    if (found.isNull())
        return false;
    const QRect place = cursorRect(found);
    if (!viewport()->rect().contains(place))
        verticalScrollBar()->setValue(verticalScrollBar()->value() + place.top() - viewport()->height() / 2);
    setTextCursor(found);
    return true;
}

// What was marked where the reader comes from is nothing to go on from, and neither is its right margin.
void GuideText::forgetMarked()
{
    moveMark(cursorForPosition(QPoint(0, 0)));
    horizontalScrollBar()->setValue(0);
}

// Keeps the text from scrolling to a line that is not wholly in sight.
void GuideText::moveMark(const QTextCursor& mark)
{
    const int shown = verticalScrollBar()->value();
    setTextCursor(mark);
    verticalScrollBar()->setValue(shown);
}

// The links are stepped through from what is marked: from the end of the letter before what is shown.
bool GuideText::focusNextPrevChild(bool next)
{
    QTextCursor place = readersPlace();
    if (!place.hasSelection()) {
        while (cursorRect(place).top() < 0 && place.movePosition(QTextCursor::NextCharacter)) {
        }
        const int top = place.position();
        place.setPosition(std::max(0, top - 1));
        place.setPosition(top, QTextCursor::KeepAnchor);
        moveMark(place);
    }
    return QTextBrowser::focusNextPrevChild(next);
}

void GuideText::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::MoveToStartOfDocument))
        verticalScrollBar()->triggerAction(QScrollBar::SliderToMinimum);
    else if (event->matches(QKeySequence::MoveToEndOfDocument))
        verticalScrollBar()->triggerAction(QScrollBar::SliderToMaximum);
    else
        QTextBrowser::keyPressEvent(event);
}

QMimeData* GuideText::createMimeDataFromSelection() const
{
    const QTextDocumentFragment marked = textCursor().selection();
    auto* const copied = new QMimeData;
    copied->setText(withPlainHyphens(marked.toPlainText()));
    copied->setHtml(withPlainHyphens(marked.toHtml()));
    return copied;
}

void GuideText::resizeEvent(QResizeEvent* event)
{
    const QTextCursor place = readersPlace();
    const int top = cursorRect(place).top();
    QTextBrowser::resizeEvent(event);
    bringBack(place, top);
}

// A text in type of another size is laid out anew.
void GuideText::changeEvent(QEvent* event)
{
    if (event->type() != QEvent::FontChange && event->type() != QEvent::ApplicationFontChange) {
        QTextBrowser::changeEvent(event);
        return;
    }
    const QTextCursor place = readersPlace();
    const int top = cursorRect(place).top();
    QTextBrowser::changeEvent(event);
    bringBack(place, top);
}

// The scroll bar hears of the new height of the text only later.
void GuideText::bringBack(const QTextCursor& place, int top)
{
    QScrollBar& bar = *verticalScrollBar();
    bar.setMaximum(std::max(0, qRound(document()->size().height()) - viewport()->height()));
    const QRect now = cursorRect(place);
    const int lowest = viewport()->height() - now.height();
    bar.setValue(bar.value() + now.top() - std::min(top, lowest));
}

} // namespace shell
