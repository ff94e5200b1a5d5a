#pragma once

#include "nouns/noun_paradigm.h"
#include "shell/kit/box_drill.h"

#include <array>

class QGridLayout;
class QGroupBox;

namespace nouns {

/// The declension drill: ten boxes, one for each case.
///
/// Its rows stand in the order of `CaseOrder`, 600 twips apart and 360 twips below the top of their frame,
/// the frames 1890 twips below that of the window; larger type moves the rows further down, and a small
/// screen moves the frames up. The boxes keep their numbers in either order.
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
    const std::string& answer() const override;
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
    QGridLayout* singularRows_ = nullptr;
    QGridLayout* pluralRows_ = nullptr;
    QLabel* heading_ = nullptr;
    QLabel* noun_ = nullptr;
    QWidget* dummy_ = nullptr;
};

} // namespace nouns
