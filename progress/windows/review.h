#pragma once

#include "progress/review.h"
#include "shell/kit/typing_drill.h"

#include <optional>
#include <string>

class QKeyEvent;
class QLabel;
class QPushButton;

namespace progress {

class Keeper;
class KindBox;
class ReviewBox;

/// Asks the forms and words that are due, of all kinds of exercise or of one. One that was missed comes again
/// as the last, and beside the next question a line says what was right. Words are typed as they stand in
/// their list: there "/", "?" and macrons are letters like all others, and a "?" alone asks for the answer.
class Review : public shell::TypingDrill {
    Q_OBJECT

public:
    Review();

    /// Begins with what is due today, of all kinds. The keeper must live as long as the window is used.
    void open(Keeper& keeper);

    void showScore(const std::string& text) override;
    void moveOn() override;
    void focusQuestion() override;
    void askAgain() override;

protected:
    shell::AnswerBox& askedBox() const override;
    std::string answer() const override;
    bool answersInLatin() const override;
    std::optional<shell::LanguageTexts> answersAnother(const std::string& typed) const override;
    void check() override;
    void holdBoxes() override;

private:
    void makeControls();
    void layOut();
    void connectControls();
    void setCaptions();

    bool asksWord() const;
    QString shownQuestion() const;
    void showBefore();
    void beginRound();
    void typeIntoAnswer(QKeyEvent* key);
    void ask();
    void showQuestion();
    QString end() const;
    QString ofKind(const QString& sentence) const;
    void hint();

    Keeper* keeper_ = nullptr;
    ReviewRound round_;
    std::optional<shell::AnswerRecord> asked_;
    std::string written_;
    QLabel* title_ = nullptr;
    QLabel* left_ = nullptr;
    QLabel* score_ = nullptr;
    QLabel* question_ = nullptr;
    QLabel* before_ = nullptr;
    ReviewBox* answer_ = nullptr;
    QLabel* kindLabel_ = nullptr;
    KindBox* kind_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* hint_ = nullptr;
    QPushButton* quit_ = nullptr;
};

} // namespace progress
