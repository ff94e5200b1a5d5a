#pragma once

#include "shell/kit/typing_drill.h"

#include <string_view>

class QCheckBox;
class QMenuBar;
class QPushButton;

namespace vocabulary {

class WordBox;
class WordLabel;

/// The vocabulary tester: shows a word of the list and its hint, and judges the meaning that is typed. Where
/// the translation is asked with, the hint would give the word away, and is shown once the answer was judged
/// or shown.
class Vcabtester : public shell::TypingDrill {
    Q_OBJECT

public:
    Vcabtester();

    /// Starts afresh with the default list.
    void open();

    /// Comes back from another window: the question stands again with what was typed, or the list is tested
    /// from its beginning where it has changed.
    void comeBack();

    void moveOn() override;
    void focusQuestion() override;
    void askAgain() override;

protected:
    shell::AnswerBox& askedBox() const override;
    std::string answer() const override;
    bool answersInLatin() const override;
    void check() override;
    void answerShown() override;
    void holdBoxes() override;

Q_SIGNALS:
    void listRequested();
    void editorRequested();

private:
    void makeControls();
    void layOut();
    void connectControls();
    void connectOrder(std::string_view item, std::string_view order);
    void connectPrompt(std::string_view item, std::string_view promptLanguage);
    void setCaptions();

    void ask();
    void showAgain();
    void reveal();
    void choosePrompt(std::string_view promptLanguage);
    void omit(bool omitted);
    void showTheWord();
    void showHint(const std::string& hint);

    QMenuBar* menuBar_;
    WordLabel* question_ = nullptr;
    WordLabel* hint_ = nullptr;
    WordBox* answer_ = nullptr;
    QCheckBox* omit_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* revealButton_ = nullptr;
    QPushButton* cancel_ = nullptr;
};

} // namespace vocabulary
