#include "shell/windows/help.h"

#include "platform/text_file.h"
#include "shell/windows/captions.h"
#include "shell/windows/guide_text.h"
#include "shell/windows/text.h"
#include "shell/windows/type.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTextBrowser>

#include <array>

namespace shell {

namespace {

constexpr QSize LargestBlock{100, 50};
constexpr QSize NormalSize{92, 36};

// clang-format off
constexpr std::array HelpCaptions = {
    Caption{"Help",     {"Help", "Assistance", "Aiuto", "Hilfe", "Ayuda", "Auxilium"}},
    Caption{"Command1", {"&OK",  "&Oui",       "&OK",   "&OK",   "&Si",   "&Ita"}},
};
// clang-format on

} // namespace

Help::Help() : Window("Help"), text_(new QTextBrowser)
{
    text_->setObjectName(QStringLiteral("HelpText"));
    text_->setAccessibleName(QStringLiteral("Help"));
    text_->document()->setDocumentMargin(WideSpace);
    auto* const close = new QPushButton;
    close->setObjectName(QStringLiteral("Command1"));
    close->setDefault(true);
    auto* const escape = new QShortcut(Qt::Key_Escape, this);
    connect(escape, &QShortcut::activated, this, &QWidget::hide);

    auto* const layout = new QVBoxLayout(centredBlock(LargestBlock));
    layout->setSpacing(MediumSpace);
    layout->addWidget(text_);
    layout->addWidget(close, 0, Qt::AlignRight);
    const QSize letter(fontMetrics().averageCharWidth(), fontMetrics().lineSpacing());
    resize(QSize(NormalSize.width() * letter.width(), NormalSize.height() * letter.height())
               .boundedTo(screen()->availableSize() * 9 / 10));

    connect(close, &QPushButton::clicked, this, &Help::hide);
    applyDesignedCaptions(*this, HelpCaptions);
}

void Help::showGuide()
{
    const platform::TextFile guide = platform::readTextFile(HelpFileName);
    showGuideText(*text_, fromUtf8(guide.fault ? guide.fault->message() : guide.text));
    applyCaptions(*this, HelpCaptions);
    showInFront();
    text_->setFocus();
}

void Help::closeBoxPressed()
{
    hide();
}

void Help::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        hide();
    else
        Window::keyPressEvent(event);
}

} // namespace shell
