#pragma once

#include "shell/kit/window.h"

#include <vector>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QPushButton;
class QSlider;
class QTabBar;

namespace shell {

/// A tab strip over one frame a tab. It shows what is set, and its buttons say that they set nothing. How the
/// learner likes to see things, on the last frame, is set at once.
class FrmOptions : public Window {
    Q_OBJECT

public:
    FrmOptions();

    /// Shows the window with its first tab and the settings as they are.
    void open();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeControls();
    void fillDelayFrame(QFrame& frame);
    void fillOrderFrame(QFrame& frame);
    void fillDisplayFrame(QFrame& frame);
    void layOut();
    void connectControls();
    void showCaptions();
    void showSettings();
    void showLooks();
    void showDelay();

    /// Makes the window as large as its largest frame needs it.
    void fitFrames();

    /// The frame of the chosen tab stands in the window and is enabled; all others stand far off it.
    void placeFrames();

    /// Turns to a page further on or back, with the first after the last; the focus is on the tabs then.
    void turnPages(int pages);

    void chooseTextSizeInRow(int row);
    void switchMacrons(bool shown);
    void apply();
    void confirm();

    QTabBar* tabs_ = nullptr;
    std::vector<QFrame*> frames_;
    QWidget* space_;
    QLabel* delay_ = nullptr;
    QSlider* slider_ = nullptr;
    std::vector<QLabel*> orders_;
    QComboBox* textSize_ = nullptr;
    QCheckBox* macrons_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QPushButton* apply_ = nullptr;
};

} // namespace shell
