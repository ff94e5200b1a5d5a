#pragma once

#include "shell/kit/window.h"
#include "tables/readings.h"

class QBoxLayout;
class QLabel;
class QPushButton;
class QTableView;

namespace tables {

class PageModel;
class ReadingsPanel;
class WordsPanel;

/// Shows the whole table of any listed word, and all that a form can be. It stands beside the other windows.
/// When it becomes the active one it is refreshed, and keeps what was chosen.
class Tables : public shell::Window {
    Q_OBJECT

public:
    Tables();

    /// Shows the window in front of the others, as it was left.
    void open();

    /// The same with that word, its first form, and no form looked up.
    void openAt(const Word& word);

    /// Shows the lists and the settings as they are now.
    void refresh();

protected:
    void becameActive() override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeControls();
    void prepareView();
    void takeNormalSize();
    bool isSizedByLearner() const;
    void fitPage();
    void fitWords();
    void layOut();
    QBoxLayout* wordsBesidePage();
    void connectControls();
    void setCaptions();

    void showPage(const Word& word, int cell);
    void showPageFromTop(const Word& word);
    void showChosenWord(const Word& word);
    void showReading(const Reading& reading);
    void showRemark();

    void copy();
    void save();
    void writeFile(const std::string& path);

    PageModel* page_ = nullptr;

    /// The size that the window gave itself last.
    QSize normal_;

    ReadingsPanel* readings_ = nullptr;
    WordsPanel* words_ = nullptr;
    QLabel* title_ = nullptr;
    QTableView* view_ = nullptr;
    QLabel* remark_ = nullptr;
    QPushButton* copy_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* close_ = nullptr;
};

} // namespace tables
