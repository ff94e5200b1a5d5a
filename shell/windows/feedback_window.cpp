#include "shell/windows/feedback_window.h"

#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/measure.h"
#include "shell/kit/text.h"

#include <QBoxLayout>
#include <QLabel>
#include <QScreen>

namespace shell {

namespace {

constexpr Caption RightCaption{"RightCaption", RightTexts};
constexpr Caption WrongCaption{"WrongCaption", WrongTexts};

constexpr Qt::WindowFlags AboveAllWithoutFocus =
    Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;

} // namespace

FeedbackWindow::FeedbackWindow(std::string_view name, const Caption& caption)
    : QFrame(nullptr, AboveAllWithoutFocus), caption_(caption)
{
    setObjectName(fromUtf8(name));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(2);

    constexpr QMargins margins{WideSpace * 2, WideSpace, WideSpace * 2, WideSpace};
    QLabel* const label = makeHeading(this, caption.control, TitleType);
    setContent(this, margins, columnOf(0, {{label, 0, Qt::AlignCenter}}));
    applyDesignedCaptions(*this, {&caption_, 1});
}

void FeedbackWindow::showSurface()
{
    applyCaptions(*this, {&caption_, 1});
    takeMeasures(*this, 1);
    adjustSize();
    moveToLowerRight();
    show();
    raise();
}

void FeedbackWindow::hideSurface()
{
    hide();
}

void FeedbackWindow::moveToLowerRight()
{
    const QRect area = screen()->geometry();
    move(area.left() + area.width() - width() - width() / 10,
         area.top() + static_cast<int>(area.height() / 1.5));
}

Bravo::Bravo() : FeedbackWindow("Bravo", RightCaption)
{
    QPalette accent = palette();
    accent.setColor(QPalette::Window, accent.color(QPalette::Highlight));
    accent.setColor(QPalette::WindowText, accent.color(QPalette::HighlightedText));
    setPalette(accent);
}

void Bravo::announce()
{
    giveRightFeedback(*this);
}

Wrong::Wrong() : FeedbackWindow("Wrong", WrongCaption) {}

void Wrong::announce()
{
    giveWrongFeedback(*this);
}

} // namespace shell
