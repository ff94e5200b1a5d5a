#include "nouns/windows/choosers.h"
#include "nouns/windows/declination.h"
#include "nouns/windows/noun_handler.h"
#include "nouns/windows/noun_quiz.h"
#include "nouns/windows/pronoun_singular.h"
#include "shell/settings.h"
#include "shell/windows/about.h"
#include "shell/windows/delay_interval.h"
#include "shell/windows/frm_options.h"
#include "shell/windows/help.h"
#include "shell/windows/main_menu.h"
#include "tests/support/window_test.h"
#include "verbdrills/windows/choosers.h"
#include "verbdrills/windows/conjugation.h"
#include "verbdrills/windows/probatio.h"
#include "verbdrills/windows/quiz_include.h"
#include "verbs/windows/verb_manager.h"
#include "vocabulary/windows/file_handler.h"
#include "vocabulary/windows/vcab_loader.h"
#include "vocabulary/windows/vcab_manager.h"
#include "vocabulary/windows/vcab_warning.h"
#include "vocabulary/windows/vcabtester.h"

#include <QAbstractButton>
#include <QAction>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QMenuBar>
#include <QPushButton>

#include <array>
#include <functional>
#include <memory>

namespace {

using MakeWindow = std::function<std::unique_ptr<QWidget>()>;

template <typename Window>
std::unique_ptr<QWidget> make()
{
    auto window = std::make_unique<Window>();
    if constexpr (requires { window->open(); })
        window->open();
    else if constexpr (requires { window->open("Save"); })
        window->open("Save");
    else if constexpr (requires { window->showGuide(); })
        window->showGuide();
    else if constexpr (requires { window->showSettings(); })
        window->showSettings();
    return window;
}

// clang-format off
const std::vector<MakeWindow> AllWindows = {
    make<shell::MainMenu>, make<shell::About>, make<shell::Help>, make<shell::DelayInterval>, make<verbs::VerbManager>,
    make<verbdrills::ConjugationChoose>, make<verbdrills::Conjugation>, make<verbdrills::TenseMoodChooser>, make<verbdrills::Probatio>, make<verbdrills::QuizInclude>,
    make<nouns::DeclinationChoose>, make<nouns::PronounChooser>, make<nouns::Declination>, make<nouns::PronounSingular>, make<nouns::NounQuiz>, make<nouns::NounHandler>,
    make<vocabulary::Vcabtester>, make<vocabulary::VcabManager>, make<vocabulary::VcabLoader>, make<vocabulary::FileHandler>, make<vocabulary::VcabWarning>, make<shell::FrmOptions>};
// clang-format on

bool takesTabs(const QWidget& widget)
{
    return widget.isVisible() && (widget.focusPolicy() & Qt::TabFocus) != 0 &&
           !qobject_cast<const QMenuBar*>(&widget);
}

QRect placeOf(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

// The eye goes on to the right, or down: never back up to the left.
bool followsTheEye(const QRect& from, const QRect& to)
{
    return to.left() >= from.center().x() || to.center().y() > from.center().y();
}

bool hasName(const QWidget& widget)
{
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
        button && !button->text().isEmpty())
        return true;
    if (!widget.accessibleName().isEmpty())
        return true;
    for (const QLabel* const label : widget.window()->findChildren<QLabel*>())
        if (label->buddy() == &widget)
            return true;
    return false;
}

constexpr std::array Languages = {"English", "French", "German", "Spanish", "Latin"};

// The texts that one press of Alt may mean: what a window shows at once, or one of its menus.
QStringList textsOnAltKeys(const QWidget& window)
{
    QStringList texts;
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        if (const auto* const button = qobject_cast<const QAbstractButton*>(widget))
            texts << button->text();
        if (const auto* const label = qobject_cast<const QLabel*>(widget); label && label->buddy())
            texts << label->text();
        if (const auto* const menuBar = qobject_cast<const QMenuBar*>(widget))
            for (const QAction* const menu : menuBar->actions())
                texts << menu->text();
    }
    return texts;
}

// Lines such as "MainMenu, English: &Verbs, &Vocabulary".
void appendClashes(QStringList& clashes, const QString& place, const QStringList& texts)
{
    QMap<QString, QStringList> onKey;
    for (const QString& text : texts)
        if (const QString key = QKeySequence::mnemonic(text).toString(); !key.isEmpty())
            onKey[key] << text;
    for (const QStringList& rivals : onKey)
        if (rivals.size() > 1)
            clashes << place + QStringLiteral(", ") +
                           QString::fromStdString(shell::settings.CurrentLanguage) + QStringLiteral(": ") +
                           rivals.join(QStringLiteral(", "));
}

// The interface's texts stay as they are, and so do these: no others may come to them.
constexpr auto GivenClashes = R"(MainMenu, English: &Vocabulary, &Verbs
OptionsMenu, English: Save &Current Settings, &Case Order...
Probatio, English: &Plural, O&ptions
Probatio, English: &Second Person, &Skip
MainMenu, French: &Options, S&ortie
MainMenu, French: &Vocabulaire, &Verbes
FileMenu, French: &Substantifs, &Sortie
OptionsMenu, French: Montrer la &longeur des voyelles, &Langues...
OptionsMenu, French: Presérver les &options , &Ordre des cases...
LanguageMenu, French: &anglais, &allemand
Probatio, French: &Plural, O&ptions
Probatio, French: &Second Person, &Skip
MainMenu, German: &Wortschatz, &Wortschatz
Probatio, German: &Zweite Person, Ein&zahl
Conjugation, Spanish: &Si, &Salir
Probatio, Spanish: &Segunda persona, &Si
Probatio, Latin: Persona &prima, &Pluralis, O&ptiones
Probatio, Latin: Persona &tertia, &Transgredire!)";

using EveryWindow = tests::WindowTest;

TEST_F(EveryWindow, IsTabbedThroughAsTheEyeGoes)
{
    for (const MakeWindow& makeWindow : AllWindows) {
        const auto window = makeWindow();
        window->show();
        QApplication::processEvents();
        QWidgetList order;
        QWidget* next = window.get();
        do {
            next = next->nextInFocusChain();
            if (takesTabs(*next))
                order << next;
        } while (next != window.get());
        for (qsizetype i = 1; i < order.size(); ++i)
            EXPECT_TRUE(followsTheEye(placeOf(*order.at(i - 1)), placeOf(*order.at(i))))
                << window->objectName().toStdString() << ": " << order.at(i - 1)->objectName().toStdString()
                << " to " << order.at(i)->objectName().toStdString();
    }
}

TEST_F(EveryWindow, NamesEachControlForProgramsAndForTheEar)
{
    for (const MakeWindow& makeWindow : AllWindows) {
        const auto window = makeWindow();
        window->show();
        for (const QWidget* const widget : window->findChildren<QWidget*>()) {
            if (!takesTabs(*widget))
                continue;
            EXPECT_FALSE(widget->objectName().isEmpty()) << window->objectName().toStdString();
            EXPECT_TRUE(hasName(*widget))
                << window->objectName().toStdString() << ": " << widget->objectName().toStdString();
        }
    }
}

TEST_F(EveryWindow, LetsEnterPressTheButtonThatHasTheFocus)
{
    for (const MakeWindow& makeWindow : AllWindows) {
        const auto window = makeWindow();
        for (const QPushButton* const button : window->findChildren<QPushButton*>())
            EXPECT_TRUE(button->autoDefault() || button->isDefault())
                << window->objectName().toStdString() << ": " << button->objectName().toStdString();
    }
}

TEST_F(EveryWindow, HasNoTwoTextsOnOneAltKey)
{
    QStringList clashes;
    for (const char* const language : Languages) {
        shell::settings.CurrentLanguage = language;
        for (const MakeWindow& makeWindow : AllWindows) {
            const auto window = makeWindow();
            appendClashes(clashes, window->objectName(), textsOnAltKeys(*window));
            for (const QMenu* const menu : window->findChildren<QMenu*>()) {
                QStringList items;
                for (const QAction* const item : menu->actions())
                    items << item->text();
                appendClashes(clashes, menu->objectName(), items);
            }
        }
    }
    EXPECT_EQ(clashes.join(u'\n').toStdString(), GivenClashes);
}

// Labels that break their lines, and controls without a text of their own, take the room that there is.
bool bearsOneLine(const QWidget& widget)
{
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    return label != nullptr ? !label->wordWrap() : qobject_cast<const QAbstractButton*>(&widget) != nullptr;
}

TEST_F(EveryWindow, CutsNothingOffInATypeTwiceAsLarge)
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(2 * before.pointSizeF());
    QApplication::setFont(large);
    for (const char* const language : Languages) {
        shell::settings.CurrentLanguage = language;
        for (const MakeWindow& makeWindow : AllWindows) {
            const auto window = makeWindow();
            window->showNormal();
            QApplication::processEvents();
            for (const QWidget* const widget : window->findChildren<QWidget*>()) {
                if (!widget->isVisible() || !bearsOneLine(*widget))
                    continue;
                EXPECT_EQ(widget->size().expandedTo(widget->sizeHint()), widget->size())
                    << language << ' ' << window->objectName().toStdString() << ": "
                    << widget->objectName().toStdString();
            }
        }
    }
    QApplication::setFont(before);
}

} // namespace
