#include "shell/windows/delay_interval.h"

#include "shell/delay.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/pause.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include <array>

namespace shell {

namespace {

constexpr int ScrollCharacters = 60;

// clang-format off
constexpr std::array Captions = {
    //                        English              French Italian German                   Spanish Latin
    Caption{"DelayInterval", {"Set Delay Factor",  {},    {},     "Verzögerungsintervall", {},     "Moram electronicam ordina!"}},
    Caption{"DelayOK",       {"&OK",               {},    {},     "&OK",                   {},     "&Ita"}},
    Caption{"DelayCancel",   {"&Cancel",           {},    {},     "&Abbruch",              {},     "&Reverte!"}},
    Caption{"DelayTest",     {"&Test",             {},    {},     "&Probe",                {},     "&Probatio"}},
};
// clang-format on

} // namespace

DelayInterval::DelayInterval() : Window("DelayInterval", "delay")
{
    setWindowModality(Qt::ApplicationModal);
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
}

void DelayInterval::makeControls()
{
    scroll_ = makeControl<QScrollBar>(this, "DelayScroll");
    scroll_->setOrientation(Qt::Horizontal);
    scroll_->setRange(0, LongestScroll);
    scroll_->setSingleStep(ScrollStep);
    scroll_->setPageStep(ScrollPage);
    // A scroll bar's arrow keys go the other way by default: the right one must make the pause longer.
    scroll_->setInvertedControls(false);
    scroll_->setFocusPolicy(Qt::StrongFocus);
    setLeastWidth(*scroll_, ScrollCharacters);

    length_ = makeLabelOf(scroll_, "DelayLabel");
    length_->setAlignment(Qt::AlignCenter);
    length_->setMargin(SmallSpace);
    setType(*length_, HeadingType);

    test_ = makeButton(this, "DelayTest");
    ok_ = makeButton(this, "DelayOK");
    cancel_ = makeButton(this, "DelayCancel");
}

void DelayInterval::layOut()
{
    constexpr QMargins margins{WideSpace, WideSpace, WideSpace, WideSpace};
    setContent(this, margins,
               columnOf(LargeSpace, {length_, scroll_, Part::gap(), buttonRow({test_}, {ok_, cancel_})}));
}

void DelayInterval::connectControls()
{
    connect(scroll_, &QScrollBar::valueChanged, this, &DelayInterval::showLength);
    connect(ok_, &QPushButton::clicked, this, &DelayInterval::confirm);
    connect(cancel_, &QPushButton::clicked, this, &DelayInterval::leave);
    connect(test_, &QPushButton::clicked, this, &DelayInterval::tryLength);
}

void DelayInterval::open()
{
    applyCurrentOrDesignedCaptions(*this, Captions);
    scroll_->setAccessibleName(windowTitle());
    scroll_->setValue(scrollAtFirst());
    showLength(scroll_->value());
    fitContent();
    showInFront();
    setFocusInSight(*scroll_);
}

void DelayInterval::showLength(int scroll)
{
    length_->setText(fromUtf8(delayText(scroll)));
}

// The length is held against the desktop's accent colour for as long as it lasts.
void DelayInterval::showTrial(bool runs)
{
    length_->setBackgroundRole(runs ? QPalette::Highlight : QPalette::NoRole);
    length_->setForegroundRole(runs ? QPalette::HighlightedText : QPalette::NoRole);
    length_->setAutoFillBackground(runs);
}

void DelayInterval::confirm()
{
    setDelay(scroll_->value());
    leave();
}

void DelayInterval::leave()
{
    trial_.end();
    showTrial(false);
    Q_EMIT left();
}

void DelayInterval::tryLength()
{
    if (trial_.lasts())
        return;
    const Stay trial = Stay::begun();
    trial_ = trial;
    showTrial(true);
    const double seconds = secondsOfScroll(scroll_->value());
    waitSeconds([seconds] { return seconds; }, [&trial] { return !trial.lasts(); });
    if (!trial.lasts())
        return;
    trial_.end();
    showTrial(false);
}

void DelayInterval::closeBoxPressed()
{
    leave();
}

void DelayInterval::keyPressEvent(QKeyEvent* event)
{
    if (isEnter(*event))
        confirm();
    else
        Window::keyPressEvent(event);
}

} // namespace shell
