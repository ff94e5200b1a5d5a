#pragma once

#include "shell/kit/window.h"
#include "shell/stay.h"

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

    Stay trial_;
};

} // namespace shell
