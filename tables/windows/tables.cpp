#include "tables/windows/tables.h"

#include "platform/file_replacement.h"
#include "platform/platform.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/text.h"
#include "shell/vowel_marks.h"
#include "tables/page.h"
#include "tables/windows/form_delegate.h"
#include "tables/windows/page_document.h"
#include "tables/windows/page_model.h"
#include "tables/windows/readings_panel.h"
#include "tables/windows/words_model.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QTextDocument>
#include <QTreeView>

#include <array>
#include <filesystem>

namespace tables {

using shell::Caption;
using shell::makeButton;
using shell::Part;

namespace {

// In characters and lines.
constexpr QSize LargestBlock{220, 60};
constexpr QSize NormalSize{210, 50};
constexpr double ShareOfScreen = 0.95;
constexpr int WordCharacters = 28;
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
// clang-format on

QString withoutAccessKey(const QLabel& label)
{
    return label.text().remove(QLatin1Char('&'));
}

bool isForHtml(const std::filesystem::path& path)
{
    const QString ending = shell::fromUtf8(path.extension().string()).toLower();
    return ending == QLatin1String(".html") || ending == QLatin1String(".htm");
}

} // namespace

Tables::Tables()
    : Window("Tables"), words_(new WordsModel(this)), filtered_(new WordsFilter(this)),
      page_(new PageModel(this))
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
    filter_ = shell::makeControl<QLineEdit>(this, "TablesFilter");
    filterLabel_ = shell::makeLabelOf(filter_, "TablesFilterLabel");
    tree_ = shell::makeControl<QTreeView>(this, "TablesWords");
    title_ = shell::makeHeading(this, "TablesTitle", shell::SentenceType);
    view_ = shell::makeControl<QTableView>(this, "TablesView");
    copy_ = makeButton(this, "TablesCopy");
    save_ = makeButton(this, "TablesSave");
    close_ = makeButton(this, "TablesClose");

    prepareWords();
    prepareView();
}

void Tables::prepareWords()
{
    filter_->setClearButtonEnabled(true);
    filter_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    filtered_->setSourceModel(words_);
    tree_->setModel(filtered_);
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    shell::keepMeasure(*tree_, "width", [this](shell::Growth growth) {
        // The table grows, and needs the room.
        tree_->setFixedWidth(qRound(WordCharacters * tree_->fontMetrics().averageCharWidth() / growth));
    });
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
}

void Tables::layOut()
{
    shell::setContent(
        centredBlock(LargestBlock), {},
        shell::columnOf(shell::MediumSpace,
                        {readings_, {wordsBesidePage(), 1}, shell::buttonRow({copy_, save_}, {close_})}));
    const QSize normal(NormalSize.width() * fontMetrics().averageCharWidth(),
                       NormalSize.height() * fontMetrics().lineSpacing());
    resize(normal.boundedTo(screen()->availableSize() * ShareOfScreen));
}

QBoxLayout* Tables::wordsBesidePage()
{
    auto* const words = shell::columnOf(
        shell::SmallSpace, {shell::rowOf(shell::SmallSpace, {filterLabel_, {filter_, 1}}), {tree_, 1}});
    auto* const page = shell::columnOf(shell::SmallSpace, {title_, {view_, 1}});
    return shell::rowOf(shell::LargeSpace, {words, {page, 1}});
}

void Tables::connectControls()
{
    connect(readings_, &ReadingsPanel::readingChosen, this, &Tables::showReading);
    connect(filter_, &QLineEdit::textChanged, this, &Tables::filterWords);
    connect(filter_, &QLineEdit::returnPressed, this, &Tables::takeFirstWord);
    connectDown(*filter_, [this] { goToWords(); });
    connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this, &Tables::takeWord);

    connect(page_, &QAbstractItemModel::modelReset, this, &Tables::fitPage);
    connect(copy_, &QPushButton::clicked, this, &Tables::copy);
    connect(save_, &QPushButton::clicked, this, &Tables::save);
    connect(close_, &QPushButton::clicked, this, &Tables::left);
}

void Tables::setCaptions()
{
    shell::applyCaptions(*this, Captions);
    tree_->setAccessibleName(withoutAccessKey(*filterLabel_));
}

void Tables::open()
{
    refresh();
    if (!isVisible())
        readings_->form().setFocus();
    showInFront();
}

void Tables::openAt(const Word& word)
{
    word_ = word;
    listWords();
    filter_->clear();
    open();
    view_->setFocus();
}

void Tables::becameActive()
{
    refresh();
}

void Tables::refresh()
{
    setCaptions();
    listWords();
    readings_->refresh();
    showPage(word_, page_->cellAt(view_->currentIndex()));
}

// Where the chosen word is listed no more, the first one is chosen.
void Tables::listWords()
{
    if (!words_->isOutOfDate())
        return;
    tree_->setCurrentIndex({});
    words_->list();
    if (!words_->indexOf(word_).isValid())
        word_ = words_->wordAt(words_->index(0, 0, words_->index(0, 0))).value_or(word_);
    filterWords();
}

// Without a current word none is taken in place of one that goes.
void Tables::filterWords()
{
    tree_->setCurrentIndex({});
    filtered_->setTyped(filter_->text());
    if (filter_->text().isEmpty())
        tree_->collapseAll();
    else
        tree_->expandAll();
    markChosenWord();
}

void Tables::markChosenWord()
{
    const QModelIndex row = filtered_->mapFromSource(words_->indexOf(word_));
    if (row == tree_->currentIndex())
        return;
    tree_->setCurrentIndex(row);
    if (!row.isValid())
        return;
    tree_->scrollTo(row.parent());
    tree_->scrollTo(row);
}

void Tables::goToWords()
{
    if (!tree_->currentIndex().isValid())
        takeFirstWord();
    tree_->setFocus();
}

void Tables::takeFirstWord()
{
    tree_->setCurrentIndex(filtered_->index(0, 0, filtered_->index(0, 0)));
}

void Tables::takeWord(const QModelIndex& row)
{
    const auto word = words_->wordAt(filtered_->mapToSource(row));
    if (!word || *word == word_)
        return;
    word_ = *word;
    showPage(word_, 0);
}

void Tables::showPage(const Word& word, int cell)
{
    page_->show(word);
    title_->setText(shell::fromUtf8(page_->page().title));
    view_->setAccessibleName(title_->text());
    view_->setCurrentIndex(page_->indexOf(cell));
}

void Tables::showReading(const Reading& reading)
{
    word_ = reading.word;
    markChosenWord();
    showPage(reading.word, reading.cell);
}

void Tables::copy()
{
    auto* const table = new QMimeData;
    table->setText(shell::fromUtf8(asText(page_->page())));
    table->setHtml(documentOf(page_->page())->toHtml());
    QGuiApplication::clipboard()->setMimeData(table);
}

void Tables::save()
{
    // A star in the name of a group would stand for any letters.
    std::string name = shell::withoutMarks(nameOf(word_).text);
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
