#pragma once

#include "shell/kit/window.h"
#include "tables/form_index.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QModelIndex;
class QPushButton;
class QTableView;
class QTreeView;

namespace shell {
class ListOfItsRows;
}

namespace tables {

class PageModel;
class WordsFilter;
class WordsModel;

/// Shows the whole table of any listed word, and all that a form can be. It stands beside the other windows.
/// When it becomes the active one it shows the lists and the settings as they are then, and keeps what was
/// chosen.
class Tables : public shell::Window {
    Q_OBJECT

public:
    Tables();

    /// Shows the window in front of the others, with the word that it had, or that word.
    void open();
    void openAt(const Word& word);

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
    void connectDown(QWidget* field, void (Tables::*action)());
    void setCaptions();

    void refresh();
    void listWords();
    void filterWords();
    void markChosenWord();
    void goToWords();
    void takeFirstWord();
    void takeWord(const QModelIndex& row);
    void showPage(const Word& word, int cell);

    void findReadings();
    void goToReadings();
    void takeFirstReading();
    void takeReading(int row);

    void copy();
    void save();
    void writeFile(const std::string& path);

    Word word_{WordKind::Verb, 1, 1};
    ListedForms listed_;
    std::vector<Reading> found_;

    WordsModel* words_ = nullptr;
    WordsFilter* filtered_ = nullptr;
    PageModel* page_ = nullptr;

    QLabel* formLabel_ = nullptr;
    QLineEdit* form_ = nullptr;
    QLabel* state_ = nullptr;
    shell::ListOfItsRows* readings_ = nullptr;
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
