#pragma once

#include "nouns/noun_paradigm.h"
#include "shell/kit/box_drill.h"

#include <array>

class QBoxLayout;
class QGridLayout;
class QGroupBox;

namespace nouns {

/// The declension drill: ten boxes, one for each case.
///
/// Its rows stand in the order of `CaseOrder`. In a window of the size that it opens in, the frames stand
/// 1890 twips below its top, the boxes 360, 960, 1560, 2160 and 2760 twips below that of their frame, and so
/// the names of the cases 2250, 2850, 3450, 4050 and 4650 twips below that of the window; with the accusative
/// second the third name stands at 3465. Larger type moves the rows further down, a small screen moves the
/// frames up, and a maximised or larger window keeps it all in its middle. The boxes keep their numbers in
/// either order.
class Declination : public shell::BoxDrill {
    Q_OBJECT

public:
    Declination();

    /// Draws a noun of the paradigm that was chosen and shows the window.
    void open();

    void moveOn() override;

protected:
    int askedBoxNumber() const override;
    void setQuestion() override;
    std::string answer() const override;
    std::optional<shell::LanguageTexts> answersAnother(const std::string& typed) const override;
    std::optional<bool> judge(const std::string& typed) override;
    void boxEntered(int number) override;
    void answerShown() override;
    void quit() override;

private:
    void makeControls();
    void makeBoxes();
    void layOut();
    void placeRows();
    void showNoun();

    std::array<QLabel*, CasesOfNumber> cases_{};
    QGroupBox* singular_ = nullptr;
    QGroupBox* plural_ = nullptr;
    QGridLayout* nameRows_ = nullptr;
    QGridLayout* singularRows_ = nullptr;
    QGridLayout* pluralRows_ = nullptr;
    QLabel* heading_ = nullptr;
    QBoxLayout* headingRow_ = nullptr;
    QLabel* noun_ = nullptr;
    QWidget* dummy_ = nullptr;
};

} // namespace nouns
