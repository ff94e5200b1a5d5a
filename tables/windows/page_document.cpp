#include "tables/windows/page_document.h"

#include "shell/kit/text.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

namespace tables {

namespace {

constexpr int SizeOfType = 8;
constexpr int SizeOfTitle = 14;
constexpr int Padding = 2;
constexpr int DotsOfInch = 300;

QTextCharFormat typeOf(QFont::Weight weight)
{
    QTextCharFormat format;
    format.setFontWeight(weight);
    return format;
}

QTextCharFormat raised()
{
    QTextCharFormat format;
    format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    format.setFontItalic(true);
    return format;
}

void writeTitle(QTextCursor& cursor, const std::string& title)
{
    QTextCharFormat format = typeOf(QFont::Bold);
    format.setFontPointSize(SizeOfTitle);
    cursor.insertText(shell::fromUtf8(title), format);
}

void writeForm(QTextCursor cursor, const PageCell& cell)
{
    cursor.insertText(shell::fromUtf8(cell.stem), typeOf(QFont::Normal));
    cursor.insertText(shell::fromUtf8(cell.ending), typeOf(QFont::Bold));
    if (cell.saysOfGrammar)
        cursor.insertText(QStringLiteral(" sic"), raised());
}

void writeLine(QTextTable& table, int row, const PageLine& line)
{
    const QFont::Weight weight = line.isHeading() ? QFont::Bold : QFont::Normal;
    table.cellAt(row, 0).firstCursorPosition().insertText(shell::fromUtf8(line.name), typeOf(weight));
    if (line.isHeading())
        table.mergeCells(row, 0, 1, table.columns());
    int column = 1;
    for (const PageCell& cell : line.cells)
        writeForm(table.cellAt(row, column++).firstCursorPosition(), cell);
}

void writeTable(QTextCursor& cursor, const Page& page)
{
    QTextTableFormat format;
    format.setBorderCollapse(true);
    format.setCellPadding(Padding);
    format.setHeaderRowCount(1);
    QTextTable& table = *cursor.insertTable(static_cast<int>(page.lines.size()) + 1,
                                            static_cast<int>(page.columns.size()) + 1, format);
    int column = 1;
    for (const std::string& name : page.columns)
        table.cellAt(0, column++)
            .firstCursorPosition()
            .insertText(shell::fromUtf8(name), typeOf(QFont::Bold));
    int row = 1;
    for (const PageLine& line : page.lines)
        writeLine(table, row++, line);
    cursor.movePosition(QTextCursor::End);
}

// Below the table, as paper has no tips.
void writeNotes(QTextCursor& cursor, const Page& page)
{
    for (const PageLine& line : page.lines)
        for (const PageCell& cell : line.cells)
            if (cell.saysOfGrammar) {
                const std::string note = cell.form() + " " + *cell.saysOfGrammar;
                cursor.insertText(shell::fromUtf8(note), typeOf(QFont::Normal));
                cursor.insertBlock();
            }
}

} // namespace

std::unique_ptr<QTextDocument> documentOf(const Page& page)
{
    auto document = std::make_unique<QTextDocument>();
    QFont font = document->defaultFont();
    font.setPointSize(SizeOfType);
    document->setDefaultFont(font);
    document->setMetaInformation(QTextDocument::DocumentTitle, shell::fromUtf8(page.title));
    QTextCursor cursor(document.get());
    writeTitle(cursor, page.title);
    writeTable(cursor, page);
    writeNotes(cursor, page);
    return document;
}

QByteArray htmlOf(const QTextDocument& document)
{
    return document.toHtml().toUtf8();
}

QByteArray pdfOf(const QTextDocument& document)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(document.metaInformation(QTextDocument::DocumentTitle));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setPageMargins({});
    writer.setResolution(DotsOfInch);
    document.print(&writer);
    return bytes;
}

} // namespace tables
