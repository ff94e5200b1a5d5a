#pragma once

#include "tables/words.h"

#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;
class QModelIndex;
class QTreeView;

namespace tables {

class WordsFilter;
class WordsModel;

/// A field that narrows the listed words, and below it these words under their groups. A word that the arrow
/// keys come to is chosen at once; Enter in the field chooses the first.
class WordsPanel : public QWidget {
    Q_OBJECT

public:
    explicit WordsPanel(QWidget* parent);

    /// The chosen word, which the filter need not leave.
    const Word& word() const { return word_; }

    /// Lists the words anew where they, their marks or the language have changed. In place of a chosen word
    /// that is listed no more the first one is chosen. It is not told.
    void refresh();

    /// Chooses a word, and brings it into view; a filter that hides it is cleared. It is not told.
    void choose(const Word& word);

    /// The same, with the filter cleared in any case.
    void chooseAmongAll(const Word& word);

    /// Makes the panel as wide as its longest name, but no wider than `room`. Where that is very little, long
    /// names are cut off.
    void fitWidth(int room);

Q_SIGNALS:
    void wordChosen(const tables::Word& word);

private:
    void makeControls();
    void layOut();
    void connectControls();

    void filterWords();
    void markChosenWord();
    void goToWords();
    void takeFirstWord();
    void takeWord(const QModelIndex& row);
    int widthOfNames() const;

    Word word_{WordKind::Verb, 1, 1};
    int leastWidth_ = 0;

    /// Empty until it is asked for with these words in this type.
    std::optional<int> widthOfNames_;

    WordsModel* words_ = nullptr;
    WordsFilter* filtered_ = nullptr;

    QLabel* label_ = nullptr;
    QLineEdit* filter_ = nullptr;
    QLabel* state_ = nullptr;
    QTreeView* tree_ = nullptr;
};

} // namespace tables
