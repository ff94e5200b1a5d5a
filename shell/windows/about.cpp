#include "shell/windows/about.h"

#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace shell {

namespace {

constexpr QSize LargestBlock{48, 24};

// clang-format off
constexpr std::array AboutCaptions = {
    Caption{"About", {"About", "À propos", "Informazioni", "Programminformationen", "Acerca de", "De hoc programmate"}},
    Caption{"Command1", {"&OK", "&Oui", "&OK", "&OK", "&Si", "&Ita"}},
    Caption{"AboutText", {
        "Learn the forms of Latin verbs, nouns and pronouns, and the words of your own lists.",
        "Apprenez les formes des verbes, des substantifs et des pronoms latins, et les mots de vos propres listes.",
        "Impara le forme dei verbi, dei sostantivi e dei pronomi latini e le parole delle tue liste.",
        "Lernen Sie die Formen lateinischer Verben, Substantive und Pronomen und die Wörter Ihrer eigenen Listen.",
        "Aprenda las formas de los verbos, los nombres y los pronombres latinos y las palabras de sus propias listas.",
        "Disce formas verborum, nominum et pronominum Latinorum et verba indicum tuorum."}},
};
// clang-format on

} // namespace

About::About() : Window("About", "About")
{
    auto* const title = makeHeading(this, {}, TitleType);
    title->setText(QStringLiteral("Velmorane"));
    auto* const text = makeLabel(this, "AboutText");
    text->setWordWrap(true);
    auto* const version = makeLabel(this, "AboutVersion");
    version->setText(QStringLiteral("Morvanti %1  ·  MIT").arg(QCoreApplication::applicationVersion()));
    auto* const close = makeButton(this, "Command1");
    close->setDefault(true);
    closeOnEscape();

    centredBlock(LargestBlock)
        ->setLayout(columnOf(LargeSpace, {title, text, version, Part::gap(), buttonRow({}, {close})}));

    connect(close, &QPushButton::clicked, this, &About::left);
    applyDesignedCaptions(*this, AboutCaptions);
}

void About::open()
{
    applyCaptions(*this, AboutCaptions);
    fitContent();
    showInFront();
}

} // namespace shell
