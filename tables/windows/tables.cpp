#include "tables/windows/tables.h"

#include "platform/file_replacement.h"
#include "platform/platform.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/passing_note.h"
#include "shell/kit/text.h"
#include "shell/vowel_marks.h"
#include "tables/page.h"
#include "tables/windows/form_delegate.h"
#include "tables/windows/page_document.h"
#include "tables/windows/page_model.h"
#include "tables/windows/readings_panel.h"
#include "tables/windows/words_panel.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QTextDocument>

#include <algorithm>
#include <array>
#include <filesystem>

namespace tables {

using shell::Caption;
using shell::makeButton;

namespace {

// In characters and lines.
constexpr QSize LargestBlock{220, 60};
constexpr QSize NormalSize{210, 50};
constexpr double ShareOfScreen = 0.95;
constexpr int LeastCharactersOfPage = 50;
constexpr int LeastLinesOfPage = 6;

// clang-format off
constexpr std::array Captions = {
    //                            English     French             Italian      German           Spanish        Latin
    Caption{"Tables",            {"Tables",   "Tableaux",        "Tavole",    "Tabellen",      "Tablas",      "Tabulae"}},
    Caption{"TablesFormLabel",   {"&Form",    "&Forme",          "&Forma",    "&Form",         "&Forma",      "&Forma"}},
    Caption{"TablesFilterLabel", {"&Words",   "&Mots",           "&Parole",   "&Wörter",       "&Palabras",   "&Verba"}},
    Caption{"TablesCopy",        {"&Copy",    "&Copier",         "&Copia",    "&Kopieren",     "&Copiar",     "&Transcribe"}},
    Caption{"TablesSave",        {"&Save...", "&Enregistrer...", "&Salva...", "&Speichern...", "&Guardar...", "&Serva..."}},
    Caption{"TablesClose",       {"C&lose",   "Ferme&r",         "C&hiudi",   "S&chließen",    "C&errar",     "&Claude"}},
};

//                                      English   French   Italian    German     Spanish    Latin
constexpr shell::LanguageTexts Copied {"Copied", "Copié", "Copiato", "Kopiert", "Copiado", "Transcriptum est"};
// clang-format on

bool isForHtml(const std::filesystem::path& path)
{
    const QString ending = shell::fromUtf8(path.extension().string()).toLower();
    return ending == QLatin1String(".html") || ending == QLatin1String(".htm");
}

} // namespace

Tables::Tables() : Window("Tables"), page_(new PageModel(this))
{
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
}

// In the order in which Tab goes through them.
void Tables::makeControls()
{
    readings_ = new ReadingsPanel(this);
    words_ = new WordsPanel(this);
    title_ = shell::makeHeading(this, "TablesTitle", shell::SentenceType);
    view_ = shell::makeControl<QTableView>(this, "TablesView");
    copy_ = makeButton(this, "TablesCopy");
    save_ = makeButton(this, "TablesSave");
    remark_ = shell::makeLabel(this, "TablesRemark");
    close_ = makeButton(this, "TablesClose");

    shell::wrapText(*title_, 1);
    shell::wrapText(*remark_, 1);
    prepareView();
}

// A little smaller than other type: on a maximised window too the six persons of a verb are to be seen.
void Tables::prepareView()
{
    shell::setType(*view_, shell::NoteType);
    view_->setModel(page_);
    view_->setItemDelegate(new FormDelegate(view_));
    view_->setTabKeyNavigation(false);
    view_->setCornerButtonEnabled(false);
    view_->setSelectionMode(QAbstractItemView::SingleSelection);
    view_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    for (QHeaderView* const header : {view_->horizontalHeader(), view_->verticalHeader()}) {
        header->setResizeContentsPrecision(-1);
        header->setHighlightSections(false);
    }
    view_->installEventFilter(this);
    shell::keepMeasure(*view_, "lines", [this](shell::Growth) {
        view_->setMinimumHeight(LeastLinesOfPage * view_->fontMetrics().lineSpacing());
        fitPage();
    });
}

void Tables::fitPage()
{
    view_->clearSpans();
    for (int row = 0; row < page_->rowCount(); ++row)
        if (page_->cellAt(page_->index(row, 0)) == 0)
            view_->setSpan(row, 0, 1, page_->columnCount());
    view_->resizeColumnsToContents();
    view_->resizeRowsToContents();
    view_->doItemsLayout(); // so that it can be scrolled to the end of its new columns
    fitWords();
}

// The names of the words have the same room beside every table; a wide one is scrolled.
void Tables::fitWords()
{
    const int page = LeastCharactersOfPage * fontMetrics().averageCharWidth();
    words_->fitWidth(words_->width() + view_->width() - page);
}

void Tables::layOut()
{
    shell::setContent(
        centredBlock(LargestBlock), {},
        shell::columnOf(shell::MediumSpace,
                        {readings_,
                         {wordsBesidePage(), 1},
                         shell::rowOf(shell::SmallSpace, {copy_, save_, {remark_, 1}, close_})}));
    takeNormalSize();
}

void Tables::takeNormalSize()
{
    const QSize normal(NormalSize.width() * fontMetrics().averageCharWidth(),
                       NormalSize.height() * fontMetrics().lineSpacing());
    resize(normal.boundedTo(screen()->availableSize() * ShareOfScreen));
    normal_ = size();
}

// Content that asks for more room since then has made the window larger.
bool Tables::isSizedByLearner() const
{
    return isMaximized() || size() != normal_.expandedTo(minimumSize());
}

QBoxLayout* Tables::wordsBesidePage()
{
    auto* const page = shell::columnOf(shell::SmallSpace, {title_, {view_, 1}});
    return shell::rowOf(shell::LargeSpace, {words_, {page, 1}});
}

void Tables::connectControls()
{
    connect(readings_, &ReadingsPanel::readingChosen, this, &Tables::showReading);
    connect(words_, &WordsPanel::wordChosen, this, &Tables::showChosenWord);
    connect(page_, &QAbstractItemModel::modelReset, this, &Tables::fitPage);
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this, &Tables::showRemark);
    // The headings stay where they are.
    connect(view_->horizontalScrollBar(), &QScrollBar::valueChanged, view_->viewport(),
            qOverload<>(&QWidget::update));
    connect(copy_, &QPushButton::clicked, this, &Tables::copy);
    connect(save_, &QPushButton::clicked, this, &Tables::save);
    connect(close_, &QPushButton::clicked, this, &Tables::left);
}

void Tables::setCaptions()
{
    shell::applyCaptions(*this, Captions);
}

void Tables::open()
{
    refresh();
    if (!isVisible()) {
        readings_->beginLookUp();
        if (!isSizedByLearner())
            takeNormalSize();
    }
    showInFront();
}

void Tables::openAt(const Word& word)
{
    readings_->clear();
    words_->chooseAmongAll(word);
    open();
    showPageFromTop(words_->word());
    view_->setFocus();
}

void Tables::becameActive()
{
    refresh();
}

void Tables::resizeEvent(QResizeEvent* event)
{
    Window::resizeEvent(event);
    readings_->fitHeight();
}

bool Tables::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == view_ && event->type() == QEvent::Resize)
        fitWords();
    return Window::eventFilter(watched, event);
}

void Tables::refresh()
{
    setCaptions();
    words_->refresh();
    readings_->refresh();
    showPage(words_->word(), page_->cellAt(view_->currentIndex()));
}

void Tables::showPage(const Word& word, int cell)
{
    page_->show(word);
    title_->setText(shell::fromUtf8(page_->page().title));
    view_->setAccessibleName(title_->text());
    view_->setCurrentIndex(page_->indexOf(cell));
}

// The first form stands below the heading of its mood, which comes into view with it.
void Tables::showPageFromTop(const Word& word)
{
    showPage(word, 0);
    view_->scrollToTop();
}

// The readings are those of another word then.
void Tables::showChosenWord(const Word& word)
{
    readings_->unmark();
    showPageFromTop(word);
}

void Tables::showReading(const Reading& reading)
{
    words_->choose(reading.word);
    showPage(reading.word, reading.cell);
}

// What the tip of a "sic" says, for the cell that the arrow keys came to.
void Tables::showRemark()
{
    remark_->setText(view_->currentIndex().data(Qt::ToolTipRole).toString());
}

void Tables::copy()
{
    auto* const table = new QMimeData;
    table->setText(shell::fromUtf8(asText(page_->page())));
    table->setHtml(documentOf(page_->page())->toHtml());
    QGuiApplication::clipboard()->setMimeData(table);
    shell::showPassingNote(*copy_, shell::fromUtf8(Copied));
}

void Tables::save()
{
    // A star in the name of a group would stand for any letters.
    std::string name = shell::withoutMarks(nameOf(words_->word()).text);
    std::erase_if(name, [](char letter) { return letter == '*'; });
    if (name.ends_with('-'))
        name.pop_back();
    platform::current().chooseFileToSave(name + ".pdf", {"PDF (*.pdf)", "HTML (*.html *.htm)"},
                                         [this](const std::string& path) { writeFile(path); });
}

void Tables::writeFile(const std::string& chosen)
{
    std::filesystem::path path(chosen);
    if (!path.has_extension())
        path += ".pdf";
    const auto document = documentOf(page_->page());
    const QByteArray bytes = isForHtml(path) ? htmlOf(*document) : pdfOf(*document);
    if (const auto fault = platform::replaceFile(path, bytes.toStdString()))
        platform::current().showMessage(fault->message());
}

} // namespace tables
