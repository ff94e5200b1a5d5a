#pragma once

#include "shell/kit/window.h"

#include <vector>

class QFrame;
class QLabel;
class QPushButton;
class QSlider;
class QTabBar;

namespace shell {

/// A tab strip over one frame a tab. It shows what is set, and sets nothing: its buttons say so.
class FrmOptions : public Window {
    Q_OBJECT

public:
    FrmOptions();

    /// Shows the window with its first tab and the settings as they are.
    void open();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeControls();
    void fillDelayFrame(QFrame& frame);
    void fillOrderFrame(QFrame& frame);
    void layOut();
    void connectControls();
    void showCaptions();
    void showSettings();
    void showDelay(int seconds);

    /// The frame of the chosen tab stands in the window and is enabled; all others stand far off it.
    void placeFrames();

    void apply();
    void confirm();

    QTabBar* tabs_ = nullptr;
    std::vector<QFrame*> frames_;
    QWidget* space_;
    QLabel* delay_ = nullptr;
    QSlider* slider_ = nullptr;
    std::vector<QLabel*> orders_;
    QPushButton* ok_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QPushButton* apply_ = nullptr;
};

} // namespace shell
