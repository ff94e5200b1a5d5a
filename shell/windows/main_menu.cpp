#include "shell/windows/main_menu.h"

#include "shell/kit/captions.h"
#include "shell/kit/type.h"
#include "shell/settings.h"
#include "shell/windows/main_menu_captions.h"
#include "shell/windows/main_menu_items.h"

#include <QAction>
#include <QBoxLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

#include <array>
#include <stdexcept>
#include <string>

namespace shell {

namespace {

constexpr QSize LargestBlock{72, 34};

constexpr int ButtonCharacters = 18;
constexpr int ButtonLines = 3;

// The buttons as they stand on the window: two columns, read line by line.
constexpr std::array Buttons = {"ConjugationButton", "DeclensionButton", "PronounButton",
                                "QuizButton",        "VocabularyButton", "ExitButton"};

template <typename Control>
Control* named(const QWidget& window, const char* name)
{
    auto* const found = window.findChild<Control*>(QLatin1String(name));
    if (found == nullptr)
        throw std::logic_error("the main window has no " + std::string(name));
    return found;
}

struct LanguageItem {
    const char* item;
    std::string_view language;
};

constexpr std::array<LanguageItem, 6> LanguageItems = {{{"EnglishLang", language::English},
                                                        {"LatinLang", language::Latin},
                                                        {"FrenchLang", language::French},
                                                        {"ItalianLang", language::Italian},
                                                        {"GermanLang", language::German},
                                                        {"SpanishLang", language::Spanish}}};

} // namespace

MainMenu::MainMenu() : Window("MainMenu", "main"), menuBar_(new QMenuBar(this))
{
    setWindowTitle(QStringLiteral("Velmorane"));
    makeControls();
    layOut();
    connectControls();
    connectSettings();
}

void MainMenu::makeControls()
{
    makeMainMenuItems(*menuBar_);
    for (const char* const name : Buttons) {
        auto* const made = new QPushButton(this);
        made->setObjectName(QLatin1String(name));
        made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        made->setAutoDefault(true);
        setType(*made, FormType);
        made->setMinimumSize(ButtonCharacters * made->fontMetrics().averageCharWidth(),
                             ButtonLines * made->fontMetrics().lineSpacing());
    }
}

void MainMenu::layOut()
{
    auto* const title = new QLabel(QStringLiteral("Velmorane"));
    setBoldType(*title, TitleType);
    auto* const version = new QLabel;
    version->setObjectName(QStringLiteral("VersionLine"));

    auto* const block = centredBlock(LargestBlock);
    auto* const rows = new QVBoxLayout(block);
    rows->setContentsMargins(WideSpace, WideSpace, WideSpace, WideSpace);
    rows->setSpacing(HairSpace);
    rows->addWidget(title, 0, Qt::AlignHCenter);
    rows->addWidget(version, 0, Qt::AlignHCenter);
    rows->addSpacing(WideSpace);

    auto* const grid = new QGridLayout;
    grid->setSpacing(LargeSpace);
    constexpr int columns = 2;
    for (std::size_t i = 0; i < Buttons.size(); ++i)
        grid->addWidget(button(Buttons.at(i)), static_cast<int>(i) / columns, static_cast<int>(i) % columns);
    rows->addLayout(grid, 1);
    layout()->setMenuBar(menuBar_);
}

void MainMenu::connectControls()
{
    using Request = void (MainMenu::*)();
    struct Opener {
        const char* control;
        Request request;
    };
    constexpr std::array<Opener, 6> buttons = {{{"DeclensionButton", &MainMenu::declensionRequested},
                                                {"ConjugationButton", &MainMenu::conjugationRequested},
                                                {"PronounButton", &MainMenu::pronounsRequested},
                                                {"QuizButton", &MainMenu::quizRequested},
                                                {"VocabularyButton", &MainMenu::vocabularyRequested},
                                                {"ExitButton", &MainMenu::exitRequested}}};
    for (const auto& [control, request] : buttons)
        connect(button(control), &QPushButton::clicked, this, request);

    constexpr std::array<Opener, 14> items = {{{"FileDecl", &MainMenu::declensionRequested},
                                               {"FileConj", &MainMenu::conjugationRequested},
                                               {"FilePron", &MainMenu::pronounsRequested},
                                               {"FileNounQuiz", &MainMenu::nounQuizRequested},
                                               {"FileNounManager", &MainMenu::nounManagerRequested},
                                               {"FileVerbManager", &MainMenu::verbManagerRequested},
                                               {"FileVcabManager", &MainMenu::vocabularyManagerRequested},
                                               {"FileExit", &MainMenu::exitRequested},
                                               {"SetDelay", &MainMenu::delayRequested},
                                               {"OptionsOptions", &MainMenu::optionsRequested},
                                               {"OptionsOptionsForm", &MainMenu::optionsRequested},
                                               {"MainVocabulary", &MainMenu::vocabularyRequested},
                                               {"HELPME", &MainMenu::helpRequested},
                                               {"MainABout", &MainMenu::aboutRequested}}};
    for (const auto& [control, request] : items)
        connect(item(control), &QAction::triggered, this, request);
}

void MainMenu::connectSettings()
{
    connect(item("SaveSettings"), &QAction::triggered, this, &switchSaving);
    connect(item("SoundStatus"), &QAction::triggered, this, &switchSound);
    connect(item("VowelLengthVal"), &QAction::triggered, this, [this](bool shown) {
        switchVowelLength(shown);
        Q_EMIT vowelLengthSwitched();
    });
    connectChoice("NGDAABOrder", &chooseCaseOrder, case_order::NGDAAb);
    connectChoice("NADGABOrder", &chooseCaseOrder, case_order::NAGDAb);
    connectChoice("SequentialOrder", &chooseQuestionOrder, question_order::Sequential);
    connectChoice("RandomOrder", &chooseQuestionOrder, question_order::Random);
    for (const auto& [languageItem, languageName] : LanguageItems)
        connectChoice(languageItem, &chooseLanguage, languageName);
}

void MainMenu::connectChoice(const char* name, void (*choose)(std::string_view), std::string_view value)
{
    connect(item(name), &QAction::triggered, this, [this, choose, value] {
        choose(value);
        applyCaptions(*this, mainMenuCaptions());
    });
}

void MainMenu::showSettings()
{
    if (settings.SaveSettingsOnExit == platform::FlagTrue)
        check("SaveSettings", true);
    if (settings.ShowVowelLength == platform::FlagTrue || settings.ShowVowelLength == platform::FlagFalse)
        check("VowelLengthVal", settings.ShowVowelLength == platform::FlagTrue);
    check("SoundStatus", settings.SoundOn == platform::FlagTrue);
    for (const auto& [languageItem, languageName] : LanguageItems)
        if (settings.CurrentLanguage == languageName)
            check(languageItem, true);
    check(settings.CaseOrder == case_order::NAGDAb ? "NADGABOrder" : "NGDAABOrder", true);
    check(settings.QuestionOrder == question_order::Random ? "RandomOrder" : "SequentialOrder", true);
    applyCurrentOrDesignedCaptions(*this, mainMenuCaptions());
    for (const char* const available : {"SpanishLang", "FrenchLang"})
        item(available)->setEnabled(true);
    for (const char* const unavailable : {"ItalianLang", "NorwegianLang"})
        item(unavailable)->setEnabled(false);
}

void MainMenu::check(const char* name, bool checked)
{
    item(name)->setChecked(checked);
}

// A window manager may turn Alt+F4 into a request to close: the Alt key held at that moment tells it from the
// close box.
void MainMenu::closeBoxPressed()
{
    if (QGuiApplication::queryKeyboardModifiers().testFlag(Qt::AltModifier))
        Q_EMIT quietEndRequested();
    else
        Q_EMIT exitRequested();
}

void MainMenu::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F4 && event->modifiers() == Qt::AltModifier)
        Q_EMIT quietEndRequested();
    else
        Window::keyPressEvent(event);
}

void MainMenu::changeEvent(QEvent* event)
{
    Window::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isVisible())
        recordWindowState();
}

void MainMenu::resizeEvent(QResizeEvent* event)
{
    Window::resizeEvent(event);
    recordWindowState();
}

void MainMenu::recordWindowState()
{
    if (isMinimized())
        return;
    settings.MainWindowState = isMaximized() ? window_state::Maximised : window_state::Normal;
}

QAction* MainMenu::item(const char* name) const
{
    return named<QAction>(*this, name);
}

QPushButton* MainMenu::button(const char* name) const
{
    return named<QPushButton>(*this, name);
}

} // namespace shell
