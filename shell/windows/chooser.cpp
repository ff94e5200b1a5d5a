#include "shell/windows/chooser.h"

#include "shell/windows/captions.h"
#include "shell/windows/choice_list.h"
#include "shell/windows/text.h"
#include "shell/windows/type.h"

#include <QBoxLayout>
#include <QFrame>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>

namespace shell {

Chooser::Chooser(const ChooserNames& names, std::span<const Caption> captions,
                 std::span<const LanguageTexts> rows)
    : Window(names.window, names.active), captions_(captions), rows_(rows), frame_(new QFrame(this)),
      list_(new ChoiceList), ok_(new QPushButton), cancel_(new QPushButton)
{
    makeControls(names);
    layOut();
    connectControls();
    applyDesignedCaptions(*this, captions_);
}

void Chooser::makeControls(const ChooserNames& names)
{
    frame_->setObjectName(fromUtf8(names.frame));
    list_->setObjectName(fromUtf8(names.list));
    ok_->setObjectName(fromUtf8(names.ok));
    cancel_->setObjectName(fromUtf8(names.cancel));
    ok_->setAutoDefault(true);
    cancel_->setAutoDefault(true);
    setType(*list_, 1.15);
    list_->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    list_->setSpacing(2);
}

void Chooser::layOut()
{
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(SmallSpace);
    buttons->addStretch();
    buttons->addWidget(ok_);
    buttons->addWidget(cancel_);

    auto* const rows = new QVBoxLayout(frame_);
    rows->setContentsMargins(LargeSpace, LargeSpace, LargeSpace, LargeSpace);
    rows->setSpacing(MediumSpace);
    rows->addWidget(list_);
    rows->addLayout(buttons);
}

void Chooser::connectControls()
{
    connect(list_, &ChoiceList::rowChosen, this,
            [this](int row) { ok_->setEnabled(row >= 0 || beginsAtOk()); });
    connect(list_, &ChoiceList::rowActivated, this, &Chooser::choose);
    connect(ok_, &QPushButton::clicked, this, &Chooser::choose);
    connect(cancel_, &QPushButton::clicked, this, &Chooser::cancelled);
}

void Chooser::open()
{
    fill();
    if (!isVisible())
        resize(frame_->sizeHint());
    showInMainWindowState();
    placeFrame();
    if (beginsAtOk())
        ok_->setFocus();
    else
        list_->setFocus();
}

void Chooser::becameActive()
{
    fill();
}

void Chooser::fill()
{
    applyCaptions(*this, captions_);
    fillList(*list_, rows_);
    list_->setAccessibleName(windowTitle());
    ok_->setEnabled(beginsAtOk());
    setMinimumSize(frame_->minimumSizeHint());
    placeFrame();
    beginChoice();
}

void Chooser::choose()
{
    if (isVisible() && list_->chosenRow() >= 0)
        Q_EMIT chosen(list_->chosenRow());
}

void Chooser::closeBoxPressed()
{
    Q_EMIT cancelled();
}

void Chooser::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT cancelled();
    else
        Window::keyPressEvent(event);
}

void Chooser::resizeEvent(QResizeEvent* event)
{
    Window::resizeEvent(event);
    placeFrame();
}

// On a maximised window the frame stands in the middle of the screen, a little to the left: the divisor of
// the width is meant.
void Chooser::placeFrame()
{
    if (!isMaximized()) {
        frame_->setGeometry(rect());
        return;
    }
    const QSize screenSize = screen()->geometry().size();
    const QSize frameSize = frame_->sizeHint().boundedTo(size());
    frame_->setGeometry(static_cast<int>(screenSize.width() / 2.0 - frameSize.width() / 1.9),
                        static_cast<int>(screenSize.height() / 2.0 - frameSize.height() / 2.0),
                        frameSize.width(), frameSize.height());
}

} // namespace shell
