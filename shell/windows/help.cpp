#include "shell/windows/help.h"

#include "platform/text_file.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/text.h"
#include "shell/windows/guide_text.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QScreen>
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

Help::Help() : Window("Help"), text_(makeControl<QTextBrowser>(this, "HelpText"))
{
    text_->document()->setDocumentMargin(WideSpace);
    auto* const close = makeButton(this, "Command1");
    close->setDefault(true);
    closeOnEscape();

    centredBlock(LargestBlock)->setLayout(columnOf(MediumSpace, {text_, buttonRow({}, {close})}));
    const QSize letter(fontMetrics().averageCharWidth(), fontMetrics().lineSpacing());
    resize(QSize(NormalSize.width() * letter.width(), NormalSize.height() * letter.height())
               .boundedTo(screen()->availableSize() * 9 / 10));

    connect(close, &QPushButton::clicked, this, &Help::left);
    applyDesignedCaptions(*this, HelpCaptions);
}

void Help::showGuide()
{
    const platform::TextFile guide = platform::readTextFile(HelpFileName);
    const QString text = fromUtf8(guide.fault ? guide.fault->message() : guide.text);
    if (text == shownText_)
        showBeginning(*text_);
    else
        showGuideText(*text_, text);
    shownText_ = text;
    applyCaptions(*this, HelpCaptions);
    text_->setAccessibleName(windowTitle());
    showInFront();
    text_->setFocus();
}

} // namespace shell
