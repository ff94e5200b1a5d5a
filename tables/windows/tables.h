#pragma once

#include "shell/kit/window.h"
#include "tables/readings.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QModelIndex;
class QPushButton;
class QTableView;
class QTreeView;

namespace tables {

class PageModel;
class ReadingsPanel;
class WordsFilter;
class WordsModel;

/// Shows the whole table of any listed word, and all that a form can be. It stands beside the other windows.
/// When it becomes the active one it is refreshed, and keeps what was chosen.
class Tables : public shell::Window {
    Q_OBJECT

public:
    Tables();

    /// Shows the window in front of the others, with the word that it had, or that word.
    void open();
    void openAt(const Word& word);

    /// Shows the lists and the settings as they are now.
    void refresh();

protected:
    void becameActive() override;

private:
    void makeControls();
    void prepareWords();
    void prepareView();
    void fitPage();
    void layOut();
    QBoxLayout* wordsBesidePage();
    void connectControls();
    void setCaptions();

    void listWords();
    void filterWords();
    void markChosenWord();
    void goToWords();
    void takeFirstWord();
    void takeWord(const QModelIndex& row);
    void showPage(const Word& word, int cell);

    void showReading(const Reading& reading);

    void copy();
    void save();
    void writeFile(const std::string& path);

    Word word_{WordKind::Verb, 1, 1};

    WordsModel* words_ = nullptr;
    WordsFilter* filtered_ = nullptr;
    PageModel* page_ = nullptr;

    ReadingsPanel* readings_ = nullptr;
    QLabel* filterLabel_ = nullptr;
    QLineEdit* filter_ = nullptr;
    QTreeView* tree_ = nullptr;
    QLabel* title_ = nullptr;
    QTableView* view_ = nullptr;
    QPushButton* copy_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* close_ = nullptr;
};

} // namespace tables
