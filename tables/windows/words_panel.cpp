#include "tables/windows/words_panel.h"

#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/measure.h"
#include "tables/windows/search_field.h"
#include "tables/windows/words_model.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTreeView>

#include <algorithm>

namespace tables {

namespace {

constexpr int LeastCharacters = 28;

} // namespace

WordsPanel::WordsPanel(QWidget* parent)
    : QWidget(parent), words_(new WordsModel(this)), filtered_(new WordsFilter(this))
{
    makeControls();
    layOut();
    connectControls();
}

void WordsPanel::makeControls()
{
    filter_ = shell::makeControl<QLineEdit>(this, "TablesFilter");
    label_ = shell::makeLabelOf(filter_, "TablesFilterLabel");
    state_ = shell::makeLabel(this, "TablesFilterState");
    tree_ = shell::makeControl<QTreeView>(this, "TablesWords");

    filter_->setClearButtonEnabled(true);
    filter_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    state_->hide();
    filtered_->setSourceModel(words_);
    tree_->setModel(filtered_);
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    tree_->setTextElideMode(Qt::ElideMiddle); // titles differ at their end
    tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    shell::keepMeasure(*tree_, "width", [this](shell::Growth growth) {
        widthOfNames_.reset();
        // The table grows, and needs the room.
        leastWidth_ = qRound(LeastCharacters * tree_->fontMetrics().averageCharWidth() / growth);
    });
}

void WordsPanel::layOut()
{
    shell::setContent(
        this, {},
        shell::columnOf(shell::SmallSpace,
                        {shell::rowOf(shell::SmallSpace, {label_, {filter_, 1}}), state_, {tree_, 1}}));
}

void WordsPanel::connectControls()
{
    connect(filter_, &QLineEdit::textChanged, this, &WordsPanel::filterWords);
    connect(filter_, &QLineEdit::returnPressed, this, &WordsPanel::takeFirstWord);
    connectDown(*filter_, [this] { goToWords(); });
    connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this, &WordsPanel::takeWord);
}

void WordsPanel::refresh()
{
    tree_->setAccessibleName(label_->text().remove(QLatin1Char('&')));
    if (!words_->isOutOfDate())
        return;
    tree_->setCurrentIndex({});
    words_->list();
    widthOfNames_.reset();
    if (!words_->indexOf(word_).isValid())
        word_ = words_->wordAt(words_->index(0, 0, words_->index(0, 0))).value_or(word_);
    filterWords();
}

void WordsPanel::choose(const Word& word)
{
    word_ = word;
    if (!filtered_->mapFromSource(words_->indexOf(word)).isValid())
        filter_->clear();
    markChosenWord();
}

void WordsPanel::chooseAmongAll(const Word& word)
{
    filter_->clear();
    choose(word);
}

// Without a current word none is taken in place of one that goes.
void WordsPanel::filterWords()
{
    tree_->setCurrentIndex({});
    filtered_->setTyped(filter_->text());
    if (filter_->text().isEmpty())
        tree_->collapseAll();
    else
        tree_->expandAll();
    tellThatNoneIsListed(*state_, filtered_->rowCount() == 0);
    markChosenWord();
}

// A word that is current already may stand in a branch that was closed, or be scrolled out of view.
void WordsPanel::markChosenWord()
{
    const QModelIndex row = filtered_->mapFromSource(words_->indexOf(word_));
    tree_->setCurrentIndex(row);
    if (!row.isValid())
        return;
    tree_->scrollTo(row.parent());
    tree_->scrollTo(row);
}

void WordsPanel::goToWords()
{
    if (!tree_->currentIndex().isValid())
        takeFirstWord();
    tree_->setFocus();
}

void WordsPanel::takeFirstWord()
{
    tree_->setCurrentIndex(filtered_->index(0, 0, filtered_->index(0, 0)));
}

void WordsPanel::takeWord(const QModelIndex& row)
{
    const auto word = words_->wordAt(filtered_->mapToSource(row));
    if (!word || *word == word_)
        return;
    word_ = *word;
    Q_EMIT wordChosen(word_);
}

void WordsPanel::fitWidth(int room)
{
    if (!widthOfNames_)
        widthOfNames_ = widthOfNames();
    setFixedWidth(std::clamp(room, leastWidth_, std::max(leastWidth_, *widthOfNames_)));
}

// The scroll bar has its room also while all rows are seen.
int WordsPanel::widthOfNames() const
{
    QStyleOptionViewItem option;
    option.initFrom(tree_);
    option.font = tree_->font();
    const auto widthOf = [&](const QModelIndex& row) {
        return tree_->itemDelegate()->sizeHint(option, row).width();
    };
    int width = 0;
    for (int group = 0; group < words_->rowCount(); ++group) {
        const QModelIndex title = words_->index(group, 0);
        width = std::max(width, tree_->indentation() + widthOf(title));
        for (int word = 0; word < words_->rowCount(title); ++word)
            width = std::max(width, 2 * tree_->indentation() + widthOf(words_->index(word, 0, title)));
    }
    return width + tree_->verticalScrollBar()->sizeHint().width() + 2 * tree_->frameWidth();
}

} // namespace tables
