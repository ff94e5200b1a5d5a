#include "shell/windows/delay_interval.h"

#include "shell/delay.h"
#include "shell/kit/captions.h"
#include "shell/kit/enter_key.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/pause.h"

#include <QBoxLayout>
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

DelayInterval::DelayInterval()
    : Window("DelayInterval", "delay"), scroll_(new QScrollBar(Qt::Horizontal)), length_(new QLabel),
      ok_(new QPushButton), cancel_(new QPushButton), test_(new QPushButton)
{
    setWindowModality(Qt::ApplicationModal);
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
}

void DelayInterval::makeControls()
{
    scroll_->setObjectName(QStringLiteral("DelayScroll"));
    scroll_->setRange(0, LongestScroll);
    scroll_->setSingleStep(ScrollStep);
    scroll_->setPageStep(ScrollPage);
    // A scroll bar's arrow keys go the other way by default: the right one must make the pause longer.
    scroll_->setInvertedControls(false);
    scroll_->setFocusPolicy(Qt::StrongFocus);
    scroll_->setMinimumWidth(ScrollCharacters * fontMetrics().averageCharWidth());

    length_->setObjectName(QStringLiteral("DelayLabel"));
    length_->setAlignment(Qt::AlignCenter);
    length_->setMargin(SmallSpace);
    length_->setBuddy(scroll_);
    setType(*length_, HeadingType);

    ok_->setObjectName(QStringLiteral("DelayOK"));
    cancel_->setObjectName(QStringLiteral("DelayCancel"));
    test_->setObjectName(QStringLiteral("DelayTest"));
    for (QPushButton* const button : {ok_, cancel_, test_})
        button->setAutoDefault(true);
}

void DelayInterval::layOut()
{
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(SmallSpace);
    buttons->addWidget(test_);
    buttons->addStretch();
    buttons->addWidget(ok_);
    buttons->addWidget(cancel_);

    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(WideSpace, WideSpace, WideSpace, WideSpace);
    rows->setSpacing(LargeSpace);
    rows->addWidget(length_);
    rows->addWidget(scroll_);
    rows->addStretch();
    rows->addLayout(buttons);
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
    scroll_->setFocus();
    adjustSize();
    showInFront();
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
