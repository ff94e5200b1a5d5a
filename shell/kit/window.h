#pragma once

#include "shell/kit/layout.h"
#include "shell/kit/measure.h"

#include <QSize>
#include <QWidget>

#include <string_view>

namespace shell {

/// The height, in lines, of a block that is as high as what stands in it.
inline constexpr int AsItsLines = 0;

/// What all windows of the program share: the object name, `ActiveWindowName` on activation, the close box
/// and Escape, the state that `MainWindowState` asks for, and a block that keeps a large window's content
/// together.
///
/// A maximised window grows: type, spaces and all measures that were kept, in quarters of their size up to
/// twice, as far as it has room beyond 960 x 600 pixels.
class Window : public QWidget {
    Q_OBJECT

public:
    /// `name` becomes the object name; `activeName` is what `ActiveWindowName` becomes on activation, empty
    /// where the window leaves it alone.
    explicit Window(std::string_view name, std::string_view activeName = {});

    /// Shows the window, brings it to the front, and gives it the state that `MainWindowState` asks for.
    void showInMainWindowState();

    /// Shows the window, with its frame, in the middle of the screen and brings it to the front; one that was
    /// minimised comes back where it was. It stays above a window that is modal, and can be used then; a
    /// modal window stays above the one that was active.
    void showInFront();

    /// Lets a window that is shown be used beside the one that is modal now, without going to it.
    void standAboveModal();

Q_SIGNALS:
    /// The window was left by its cancel, back or quit button, its close box or Escape, or has come to its
    /// end. It is still shown.
    void left();

protected:
    /// A widget for the window's content. It fills the window up to so many characters and lines of the
    /// window's font; a larger window keeps it in its middle, and a screen that is too small scrolls it. One
    /// that is as high as its lines stays at the top unless the window is maximised.
    QWidget* centredBlock(QSize charactersAndLines);

    /// Makes such a block of parts from top to bottom, with these margins.
    void layOutLines(QSize charactersAndLines, const QMargins& margins, std::initializer_list<Part> lines);

    /// Gives the window the size that its content asks for, now or when it is shown next. It keeps pace with
    /// the type then, until the learner gives the window another size.
    void fitContent();
    void forgetSize();

    /// Lets a window that grew for its content take the size that it asks for now when it is shown next,
    /// unless the learner gave it another.
    void fitAnew(QWidget& content);

    /// Lets the window grow to the size that its content asks for now, when it is normal or becomes so,
    /// unless the learner gave it another.
    void growFor(QWidget& content);

    /// The same for a row of a block, which may become wider than the block was laid out for, in a maximised
    /// window as well.
    void widenFor(QLayout& row);

    /// Makes Escape do what the close box does, wherever the focus is.
    void closeOnEscape();

    /// Called after the window became the active one. A window that is hidden, or being hidden, never does.
    virtual void becameActive() {}

    /// What the close box does, the same as the window's cancel or quit button: it leaves the window.
    virtual void closeBoxPressed() { Q_EMIT left(); }

    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fitContentSoon();
    QSize onScreen(QSize asked) const;
    void growTo(QSize asked);
    void growInHeight(int pixels);
    void stayOnScreen();
    bool isAsFitted() const;
    void centreAsShown();
    void centreOnScreen();

    void showAsDesigned();
    void showGrown();
    void grow();
    void takeSize(Growth growth);

    std::string_view activeName_;
    Growth growth_ = 1;

    /// The size that the content asked for last; not valid where it was never asked.
    QSize fitted_;

    /// Whether the window is to take such a size when it is normal next.
    bool sizeForgotten_ = false;

    /// Whether the window was ever about to be shown: no font is loaded before.
    bool measured_ = false;

    /// Whether the window is maximised, or about to be shown so.
    bool maximised_ = false;
};

} // namespace shell
