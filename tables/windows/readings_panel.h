#pragma once

#include "tables/form_index.h"

#include <QStringList>
#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;

namespace shell {
class ListOfItsRows;
}

namespace tables {

/// A field for a form, and below it all that the form can be. A row that the arrow keys come to is chosen at
/// once; Enter in the field chooses the first.
class ReadingsPanel : public QWidget {
    Q_OBJECT

public:
    explicit ReadingsPanel(QWidget* parent);

    /// Finds the readings anew where the lists, their marks or the language have changed. What was chosen
    /// stays so without being told again.
    void refresh();

    /// Forgets the form that was looked up.
    void clear();

    /// Takes the mark from the reading that was chosen; the readings stay.
    void unmark();

    /// Goes to the field for the form. What is typed then takes the place of the form that was looked up.
    void beginLookUp();

    /// Gives the readings the height of their rows, up to five; in a low window, whose height has changed, at
    /// most a quarter of it.
    void fitHeight();

Q_SIGNALS:
    void readingChosen(const tables::Reading& reading);

private:
    void makeControls();
    void layOut();
    void connectControls();

    void findReadings();
    void showReadings();
    void goToReadings();
    void takeFirstReading();
    void choose(int row);
    void take(int row);

    ListedForms listed_;
    std::vector<Reading> found_;
    QStringList rows_;

    /// Of a list with one reading, as it was shown last.
    int heightOfOne_ = 0;

    QLabel* label_ = nullptr;
    QLineEdit* form_ = nullptr;
    QLabel* state_ = nullptr;
    shell::ListOfItsRows* readings_ = nullptr;
};

} // namespace tables
