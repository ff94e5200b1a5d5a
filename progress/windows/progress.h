#pragma once

#include "progress/grid.h"
#include "shell/kit/window.h"

#include <string>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace progress {

class CellModel;
class CellTable;
class FormsTable;
class Keeper;
class PracticeDays;
class Store;

/// What is known and what is not: a grid of cells, the forms of the one that is chosen, and the days of
/// practice. The answers can be exported, deleted, and kept or not.
class Progress : public shell::Window {
    Q_OBJECT

public:
    Progress();

    /// Shows what was kept. The keeper must live as long as the window is used.
    void open(Keeper& keeper);

    /// Shows it anew.
    void refresh();

Q_SIGNALS:
    /// The learner wants answers kept from now on, or not.
    void keepingSwitched(bool on);

    void erasureRequested();
    void reviewRequested();

private:
    void makeControls();
    void layOut();
    void connectControls();
    void setCaptions();

    Grid chosenGrid() const;
    void chooseGridWithAnswers();
    void showGrid();
    void showForms();
    void showDays();
    void chooseFile();
    void exportTo(const std::string& file);

    Keeper* keeper_ = nullptr;
    CellModel* cells_ = nullptr;
    QLabel* kindLabel_ = nullptr;
    QComboBox* kind_ = nullptr;
    QLabel* nothing_ = nullptr;
    CellTable* grid_ = nullptr;
    QLabel* cellName_ = nullptr;
    FormsTable* forms_ = nullptr;
    QLabel* daysInWords_ = nullptr;
    PracticeDays* days_ = nullptr;
    QLabel* day_ = nullptr;
    QCheckBox* keep_ = nullptr;
    QPushButton* export_ = nullptr;
    QPushButton* delete_ = nullptr;
    QPushButton* review_ = nullptr;
    QPushButton* close_ = nullptr;
};

} // namespace progress
