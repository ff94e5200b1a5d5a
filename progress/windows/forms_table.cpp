#include "progress/windows/forms_table.h"

#include "progress/grammar_names.h"
#include "progress/windows/scroll_bar_room.h"
#include "progress/windows/shown_answer.h"
#include "progress/windows/wrapping_header.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/measure.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/language_texts.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"

#include <QApplication>
#include <QHeaderView>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace progress {

using shell::fromUtf8;
using shell::LanguageTexts;

namespace {

// Where the window has no room for so many in a column, the table is scrolled.
constexpr int LeastCharacters = 16;

constexpr int CharactersWished = 110;

// With the headings.
constexpr int LeastLinesWished = 6;
constexpr int MostLinesWished = 22;
constexpr int LeastLines = 4;

// Up to so many a row is seen whole, even on a low screen.
constexpr int MostLinesOfRow = 12;

// Between what stands in a column and the next one.
constexpr int CharactersBetween = 2;

// clang-format off
constexpr std::array Headings = {
    //            English            French               Italian German                    Spanish               Latin
    LanguageTexts{"Form",            "Forme",             {},     "Form",                   "Forma",              "Forma"},
    LanguageTexts{"Right",           "Juste",             {},     "Richtig",                "Bien",               "Recte"},
    LanguageTexts{"Right answer",    "Réponse juste",     {},     "Richtige Antwort",       "Respuesta correcta", "Responsum rectum"},
    LanguageTexts{"Written instead", "Écrit à la place",  {},     "Stattdessen geschrieben", "Escrito en su lugar", "Pro eo scriptum"},
};
// clang-format on

// As it was asked; marks go where they are hidden now, and are never looked for in a text kept without them.
std::string withMarksAsShown(const Form& form, const std::string& text)
{
    const bool hidden = form.marksShown && !shell::marksAreShown() && marksCanBeHidden(form.name.exercise);
    return hidden ? shell::withoutMarks(text) : text;
}

bool isTranslation(const Form& form, std::string_view promptOfTranslation)
{
    return shell::partsOfPlace(form.name.place)[1] == promptOfTranslation;
}

// The translation of a word may hold a colon of its own: it is what is expected, or what is asked.
QString ofList(const Form& form, std::string_view promptOfTranslation, const std::string& text)
{
    return isTranslation(form, promptOfTranslation) ? fromUtf8(text) : shell::latinText(text);
}

QString asked(const Form& form, const std::string& text)
{
    if (form.name.exercise == shell::exercise::Vcabtester)
        return ofList(form, shell::AskedWithTranslation, text);
    return withLastPartWhole(shell::latinText(questionInLanguageShown(form.name.exercise, text)));
}

// The quizzes are answered in words.
QString answered(const Form& form, const std::string& text)
{
    const std::string& exercise = form.name.exercise;
    if (exercise == shell::exercise::Vcabtester)
        return ofList(form, shell::AskedWithWord, text);
    if (exercise == shell::exercise::Quiz || exercise == shell::exercise::NounQuiz)
        return fromUtf8(inLanguageShown(text));
    return shell::latinText(text);
}

QString asWritten(const Form& /*form*/, const std::string& text)
{
    return fromUtf8(text);
}

// How the answers to a form are shown: a macron and a ":" that were written for each other not alike.
auto showingOf(const Form& form)
{
    const bool lookAlike = std::ranges::any_of(form.wrongAnswers, [&](const std::string& written) {
        return written != form.expected && answered(form, written) == answered(form, form.expected);
    });
    return lookAlike ? &asWritten : &answered;
}

// Nothing that was written is a dash.
QString writtenInstead(const Form& form)
{
    const auto showing = showingOf(form);
    QStringList texts;
    for (const std::string& written : form.wrongAnswers)
        texts << (written.empty() ? QStringLiteral("–") : withBlanksSeen(showing(form, written)));
    return texts.join(QStringLiteral("; "));
}

// The width that none may pass so that all of them fit into the room.
int widestIn(std::span<const int> widths, int room)
{
    std::vector<int> ordered(widths.begin(), widths.end());
    std::ranges::sort(ordered);
    int columns = static_cast<int>(ordered.size());
    for (const int width : ordered) {
        if (width * columns > room)
            return room / columns;
        room -= width;
        --columns;
    }
    return ordered.back();
}

} // namespace

FormsTable::FormsTable(QWidget* parent) : QTableWidget(0, static_cast<int>(Headings.size()), parent)
{
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setHorizontalHeader(new WrappingHeader(this));
    setVerticalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    shell::setType(*horizontalHeader(), 1);
    shell::keepMeasure(*this, "rows", [this](shell::Growth) { fitColumns(); });
}

void FormsTable::showForms(std::vector<Form> forms)
{
    // Before it was ever seen the rows break as in the width that it will ask for.
    if (!testAttribute(Qt::WA_WState_Created))
        resize(widthWished(), height());
    QStringList headings;
    for (const LanguageTexts& heading : Headings)
        headings << fromUtf8(heading);
    setHorizontalHeaderLabels(headings);
    sortWorstFirst(forms);
    setRowCount(static_cast<int>(forms.size()));
    for (std::size_t row = 0; row < forms.size(); ++row)
        showForm(static_cast<int>(row), forms[row]);
    fitColumns();
    setCurrentCell(0, 0, QItemSelectionModel::NoUpdate);
}

QSize FormsTable::sizeHint() const
{
    const int line = fontMetrics().lineSpacing();
    const int height = heightAroundRows() + verticalHeader()->length();
    return {widthWished(), std::clamp(height, LeastLinesWished * line, MostLinesWished * line)};
}

QSize FormsTable::minimumSizeHint() const
{
    const int line = fontMetrics().lineSpacing();
    int highest = 0;
    for (int row = 0; row < rowCount(); ++row)
        highest = std::max(highest, rowHeight(row));
    highest = std::min(highest, MostLinesOfRow * line);
    const int bar = horizontalHeader()->stretchLastSection() ? 0 : horizontalScrollBar()->sizeHint().height();
    return {QTableWidget::minimumSizeHint().width(),
            std::max(LeastLines * line, heightAroundRows() + highest + bar)};
}

int FormsTable::widthWished() const
{
    return CharactersWished * fontMetrics().averageCharWidth();
}

int FormsTable::heightAroundRows() const
{
    return 2 * frameWidth() + horizontalHeader()->sizeHint().height();
}

void FormsTable::resizeEvent(QResizeEvent* event)
{
    QTableWidget::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        fitColumns();
    if (hasFocus())
        scrollTo(currentIndex());
}

// Room for the scroll bar is kept even where there is none, so that the rows never break otherwise for it.
int FormsTable::roomForColumns() const
{
    return width() - 2 * frameWidth() - roomForScrollBar(*this);
}

void FormsTable::fitColumns()
{
    const int character = fontMetrics().averageCharWidth();
    std::array<int, Headings.size()> widths{};
    for (std::size_t column = 0; column < widths.size(); ++column)
        widths.at(column) = std::max(sizeHintForColumn(static_cast<int>(column)),
                                     horizontalHeader()->sectionSizeHint(static_cast<int>(column))) +
                            CharactersBetween * character;
    const int widest = std::max(widestIn(widths, roomForColumns()), LeastCharacters * character);
    int all = 0;
    for (int& width : widths)
        all += width = std::min(width, widest);
    horizontalHeader()->setStretchLastSection(all <= roomForColumns());
    for (std::size_t column = 0; column < widths.size(); ++column)
        setColumnWidth(static_cast<int>(column), widths.at(column));
    resizeRowsToContents();
    // The header forgets the height that it had for other widths.
    horizontalHeader()->headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    updateGeometries();
    // A window that moved under a pressed button of the mouse would choose another cell.
    if (QApplication::mouseButtons() == Qt::NoButton)
        updateGeometry();
}

void FormsTable::showForm(int row, const Form& form)
{
    const std::array texts = {
        asked(form, withMarksAsShown(form, form.asked)), fromUtf8(textOf(shareOf(form))),
        showingOf(form)(form, withMarksAsShown(form, form.expected)), writtenInstead(form)};
    int column = 0;
    for (const QString& text : texts) {
        auto* const item = new QTableWidgetItem(text);
        item->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
        item->setToolTip(QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped()));
        setItem(row, column++, item);
    }
}

} // namespace progress
