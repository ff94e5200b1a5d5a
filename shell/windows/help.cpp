#include "shell/windows/help.h"

#include "platform/text_file.h"
#include "shell/windows/captions.h"
#include "shell/windows/text.h"
#include "shell/windows/type.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QTextBrowser>

#include <array>

namespace shell {

namespace {

constexpr QSize LargestBlock{100, 50};
constexpr QSize NormalSize{720, 560};

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
    auto* const close = new QPushButton;
    close->setObjectName(QStringLiteral("Command1"));
    close->setDefault(true);

    auto* const layout = new QVBoxLayout(centredBlock(LargestBlock));
    layout->setSpacing(MediumSpace);
    layout->addWidget(text_);
    layout->addWidget(close, 0, Qt::AlignRight);
    resize(NormalSize);

    connect(close, &QPushButton::clicked, this, &Help::hide);
    applyDesignedCaptions(*this, HelpCaptions);
}

void Help::showGuide()
{
    const platform::TextFile guide = platform::readTextFile(HelpFileName);
    text_->setPlainText(fromUtf8(guide.fault ? guide.fault->message() : guide.text));
    applyCaptions(*this, HelpCaptions);
    showInFront();
}

void Help::closeBoxPressed()
{
    hide();
}

} // namespace shell
