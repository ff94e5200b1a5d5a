#pragma once

#include "shell/kit/drill_window.h"
#include "verbdrills/verb_question.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QPushButton;

namespace verbdrills {

class PersonAndNumber;
class QuizList;

/// The verb quiz: shows a form, whose class, tense, person and number the learner names.
class Probatio : public shell::DrillWindow {
    Q_OBJECT

public:
    Probatio();

    /// Prepares the window for a new quiz, asks the first form and shows the window. Where no form can be
    /// asked it only emits `nothingToAsk`.
    void open();

    /// Shows the window again with the form that is asked. Where none is, asks one as `open` does.
    void resume();

    /// Shows the window again likewise, but without a form where none can be asked.
    void comeBack();

    /// Whether what is right is known of the form shown: by "?", or as it was identified rightly.
    bool formIsSolved() const;

    void moveOn() override;
    void focusQuestion() override;
    void askAgain() override;

Q_SIGNALS:
    /// No form can be asked of the classes and tenses that are included.
    void nothingToAsk();

    void optionsRequested();

private:
    void makeControls();
    void layOut();
    QBoxLayout* answerColumns();
    QGridLayout* answersInWords();
    void connectControls();

    void appear();
    bool askAnotherForm();
    void showForm();
    void resetAnswer();
    Identification chosenAnswer() const;
    void showChosenAnswer();
    void check();
    void skip();
    void showRightAnswer();

    QLabel* item_ = nullptr;
    QLabel* baseForm_ = nullptr;
    QuizList* classes_ = nullptr;
    QuizList* tenses_ = nullptr;
    PersonAndNumber* personAndNumber_ = nullptr;
    QLabel* yourAnswer_ = nullptr;
    QLabel* correctHeading_ = nullptr;
    QLabel* correct_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* question_ = nullptr;
    QPushButton* skip_ = nullptr;
    QPushButton* options_ = nullptr;
    QPushButton* cancel_ = nullptr;
};

} // namespace verbdrills
