#pragma once

#include "shell/feedback.h"
#include "shell/language_texts.h"

#include <QFrame>

namespace shell {

/// A small window above all others that tells whether an answer was right. It never takes the focus from the
/// drill, and stands in the lower right part of the screen.
class FeedbackWindow : public QFrame, public FeedbackSurface {
    Q_OBJECT

public:
    /// Announces the answer just judged: scores it, pauses and moves the running drill on. Nothing happens
    /// while any feedback or hint is up.
    virtual void announce() = 0;

    void showSurface() override;
    void hideSurface() override;

protected:
    FeedbackWindow(std::string_view name, const Caption& caption);

private:
    void moveToLowerRight();

    const Caption& caption_;
};

/// The window for a right answer.
class Bravo : public FeedbackWindow {
    Q_OBJECT

public:
    Bravo();
    void announce() override;
};

/// The window for a wrong answer.
class Wrong : public FeedbackWindow {
    Q_OBJECT

public:
    Wrong();
    void announce() override;
};

} // namespace shell
