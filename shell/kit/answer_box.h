#pragma once

#include <QLineEdit>

namespace shell {

/// Whether what a key would type asks for a hint where forms are typed: "/" and "?" do.
bool asksForHint(const QString& typed);

/// A box into which a form is typed. A key that asks for a hint is not entered. Its looks are the colours
/// that all drills share; a fixed colour of the text always comes with one of the background that it can be
/// read on.
class AnswerBox : public QLineEdit {
    Q_OBJECT

public:
    explicit AnswerBox(QWidget* parent = nullptr);

    /// The plain colours of an empty box; one that cannot be asked has the window's ground.
    void lookIdle();

    /// Grey: answered right in this round.
    void lookAnswered();

    /// Grey ground alone, with which a round in random order begins. It goes once something is typed there.
    void lookGrey();

    /// True for these two, which a box keeps while others are asked.
    bool keepsItsLook() const { return keepsItsLook_; }

    /// Red: the answer is shown.
    void lookRevealed();

    /// Blue or black: the answer was shown and is asked again.
    void lookBlue();
    void lookBlack();

    /// Makes this the box that is asked: it takes text, and the focus by the keyboard. Another box only sends
    /// the focus on.
    void setAsked(bool asked);

Q_SIGNALS:
    void focusReceived();
    void hintRequested();

protected:
    /// Whether a key can ask for a hint here; else it is a letter like all others.
    virtual bool takesHintKeys() const { return true; }

    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setColours(const QColor& background, const QColor& text);

    bool keepsItsLook_ = false;
};

} // namespace shell
