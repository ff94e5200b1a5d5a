#pragma once

#include "shell/answer_fault.h"
#include "shell/kit/drill_window.h"
#include "shell/language_texts.h"
#include "shell/round.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>

class QLabel;

namespace shell {

class AnswerBox;

/// A drill whose answers are typed. What is typed while an answer is announced is kept, and goes into the box
/// that is asked next, or again; when the drill is left it is lost, and so is what was meant for later boxes
/// once an answer is wrong. Under the boxes a label says why an answer was wrong, until the learner types on;
/// another says which question of how many is asked.
class TypingDrill : public DrillWindow {
    Q_OBJECT

public:
    TypingDrill(std::string_view name, std::string_view activeName, std::string_view exerciseType);

protected:
    /// The box of the question that is asked.
    virtual AnswerBox& askedBox() const = 0;

    /// What that box must receive.
    virtual std::string answer() const = 0;

    /// Checks what stands in that box.
    virtual void check() = 0;

    /// What a wrong answer is, where it is the right one to another question of the paradigm.
    virtual std::optional<LanguageTexts> answersAnother(const std::string& /*typed*/) const { return {}; }

    /// Announces a judged answer, which stands in the box asked.
    void announce(bool right);

    /// Forgets what was typed while an answer is announced: the question that it was meant for does not come.
    void dropKeysKept() { keys_.clear(); }

    /// Whether the answer is Latin, where a colon marks a long vowel.
    virtual bool answersInLatin() const { return true; }

    /// An answer as a label shows it beside another one: a Latin answer with macrons where the learner wishes
    /// them, but as it was written where both would look alike.
    std::string shownBeside(std::string_view text, std::string_view other) const;

    /// Shows the answer in the box asked for a pause, in which nothing can be typed, and asks again; it
    /// counts for nothing. Does nothing while no answer can be shown.
    void revealAnswer();

    /// Called when the answer stands in the box, and when it is about to go again.
    virtual void answerShown() {}
    virtual void answerHidden();

    /// Lets nothing be typed until the question is asked again.
    virtual void holdBoxes() = 0;

    /// Makes a box one of those into which answers are typed.
    void joinBox(const AnswerBox& box);

    /// Says that the question is the `number`th of `count`, in a text with "%1" for the one and "%2" for the
    /// other.
    void showPlace(const LanguageTexts& text, Place place);

    /// Says no longer why an answer was wrong.
    void clearWhy();

    /// The labels that say why, with room for two lines, and which question.
    QLabel* whyLabel() const { return why_; }
    QLabel* whereLabel() const { return where_; }

private:
    void explain(const std::string& typed);
    std::optional<LanguageTexts> reasonOf(FaultKind kind, const std::string& typed) const;
    void typeKeysKept();

    QLabel* why_;
    QLabel* where_;
    QString keys_;
};

} // namespace shell
