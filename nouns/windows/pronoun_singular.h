#pragma once

#include "nouns/pronoun_drill.h"
#include "shell/kit/box_drill.h"

#include <array>

class QBoxLayout;
class QGridLayout;

namespace nouns {

/// The pronoun drill: three columns of five boxes. Its rows stand in the order of `CaseOrder`; a box without
/// a form is disabled.
class PronounSingular : public shell::BoxDrill {
    Q_OBJECT

public:
    PronounSingular();

    /// Shows the window for the group that was chosen, beginning with the singular.
    void open();

    void moveOn() override;

protected:
    int askedBoxNumber() const override;
    void setQuestion() override;
    std::string answer() const override;
    std::optional<shell::LanguageTexts> answersAnother(const std::string& typed) const override;
    std::optional<bool> judge(const std::string& typed) override;
    void quit() override;

private:
    void makeControls();
    void makeBoxes();
    void layOut();
    void placeRows();
    void showNumber();

    std::array<QLabel*, CasesOfNumber> cases_{};
    std::array<QLabel*, ColumnsOfGroup> columns_{};
    QGridLayout* rows_ = nullptr;
    QLabel* heading_ = nullptr;
    QBoxLayout* headingRow_ = nullptr;
};

} // namespace nouns
