#pragma once

#include "shell/kit/window.h"

class QLabel;
class QPushButton;
class QScrollBar;

namespace shell {

/// Sets `DelaySeconds`, the length of the pause after an answer, and lets the learner try a length.
class DelayInterval : public Window {
    Q_OBJECT

public:
    DelayInterval();

    /// Shows the window in the middle of the screen, with the delay as it is set.
    void open();

protected:
    void closeBoxPressed() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeControls();
    void layOut();
    void connectControls();
    void showLength(int scroll);
    void showTrial(bool runs);
    void confirm();
    void leave();
    void tryLength();

    QScrollBar* scroll_ = nullptr;
    QLabel* length_ = nullptr;
    QPushButton* test_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* cancel_ = nullptr;

    /// Counts how often the window was left: a trial that began before goes no further.
    int visit_ = 0;
    bool trying_ = false;
};

} // namespace shell
