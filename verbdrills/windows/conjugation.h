#pragma once

#include "shell/kit/box_drill.h"
#include "verbdrills/conjugation_drill.h"

#include <array>

class QGridLayout;

namespace verbdrills {

/// The conjugation drill: six boxes, one for each person.
class Conjugation : public shell::BoxDrill {
    Q_OBJECT

public:
    Conjugation();

    /// Shows the window for the paradigm and the person that were chosen.
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
    void answerHidden() override;
    void quit() override;
    void becameActive() override;

private:
    void makeControls();
    void layOut();
    QGridLayout* answerGrid();
    void clearGlossPassedBy();
    void showGloss(int number);
    void nameForTheEar(int number);
    void emptyRound();

    std::array<QLabel*, BoxCount> glosses_{};
    QLabel* title_ = nullptr;
    QLabel* tense_ = nullptr;
    QLabel* verb_ = nullptr;
};

} // namespace verbdrills
