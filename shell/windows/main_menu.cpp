#include "shell/windows/main_menu.h"

#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/looks.h"
#include "shell/looks_file.h"
#include "shell/settings.h"
#include "shell/windows/main_menu_items.h"

#include <QAction>
#include <QBoxLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QWindow>

#include <array>
#include <stdexcept>
#include <string>

namespace shell {

namespace {

constexpr QSize LargestBlock{72, 34};

constexpr int ButtonCharacters = 18;
constexpr int ButtonLines = 3;
constexpr int FewestButtonLines = 1;

constexpr int ButtonColumns = 2;

// An item of the menus of which one is checked, and the setting that it stands for.
struct Choice {
    std::string_view item;
    void (*choose)(std::string_view);
    std::string Settings::*setting;
    std::string_view value;
};

// clang-format off
constexpr std::array<Choice, 10> Choices = {{
    {"RandomOrder",     &chooseQuestionOrder, &Settings::QuestionOrder,   question_order::Random},
    {"SequentialOrder", &chooseQuestionOrder, &Settings::QuestionOrder,   question_order::Sequential},
    {"NGDAABOrder",     &chooseCaseOrder,     &Settings::CaseOrder,       case_order::NGDAAb},
    {"NADGABOrder",     &chooseCaseOrder,     &Settings::CaseOrder,       case_order::NAGDAb},
    {"EnglishLang",     &chooseLanguage,      &Settings::CurrentLanguage, language::English},
    {"FrenchLang",      &chooseLanguage,      &Settings::CurrentLanguage, language::French},
    {"ItalianLang",     &chooseLanguage,      &Settings::CurrentLanguage, language::Italian},
    {"GermanLang",      &chooseLanguage,      &Settings::CurrentLanguage, language::German},
    {"SpanishLang",     &chooseLanguage,      &Settings::CurrentLanguage, language::Spanish},
    {"LatinLang",       &chooseLanguage,      &Settings::CurrentLanguage, language::Latin},
}};
// clang-format on

// Three lines of its type high; on a low screen down to one.
class BigButton : public QPushButton {
public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override { return sizeOfLines(ButtonLines); }
    QSize minimumSizeHint() const override { return sizeOfLines(FewestButtonLines); }

private:
    QSize sizeOfLines(int lines) const
    {
        const QSize large(ButtonCharacters * fontMetrics().averageCharWidth(),
                          lines * fontMetrics().lineSpacing());
        return QPushButton::sizeHint().expandedTo(large);
    }
};

// A line that is a link, and shows when it has the focus.
class LinkLine : public QLabel {
public:
    explicit LinkLine(QWidget* parent) : QLabel(parent) { setCursor(Qt::PointingHandCursor); }

protected:
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
            Q_EMIT linkActivated({});
    }

    void focusInEvent(QFocusEvent* event) override
    {
        QLabel::focusInEvent(event);
        setSelection(0, static_cast<int>(accessibleName().size()));
    }

    void focusOutEvent(QFocusEvent* event) override
    {
        QLabel::focusOutEvent(event);
        setSelection(0, 0);
    }
};

} // namespace

MainMenu::MainMenu() : Window("MainMenu", "main"), menuBar_(new QMenuBar(this))
{
    setWindowTitle(QStringLiteral("Velmorane"));
    makeMainMenuItems(*menuBar_, *this);
    for (const std::string_view unavailable : {"ItalianLang", "NorwegianLang"})
        item(unavailable).setEnabled(false);
    layOut();
    connectSettings();
}

void MainMenu::layOut()
{
    constexpr QMargins margins{WideSpace, WideSpace, WideSpace, WideSpace};
    QLabel* const title = makeHeading(this, {}, TitleType);
    title->setText(QStringLiteral("Velmorane"));
    column_ = columnOf(HairSpace, {{title, 0, Qt::AlignHCenter},
                                   {makeLabel(this, "VersionLine"), 0, Qt::AlignHCenter},
                                   Part::space(WideSpace),
                                   {buttonGrid(), 1}});
    setContent(centredBlock(LargestBlock), margins, column_);
    layout()->setMenuBar(menuBar_);
}

QGridLayout* MainMenu::buttonGrid()
{
    QGridLayout* const grid = gridOf(LargeSpace, LargeSpace);
    int place = 0;
    for (const MainMenuButton& row : mainMenuButtons()) {
        grid->addWidget(makeBigButton(row), place / ButtonColumns, place % ButtonColumns);
        ++place;
    }
    return grid;
}

QPushButton* MainMenu::makeBigButton(const MainMenuButton& row)
{
    auto* const made = makeControl<BigButton>(this, row.name);
    made->setAutoDefault(true);
    made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setType(*made, FormType);
    connect(made, &QPushButton::clicked, this, row.request);
    return made;
}

void MainMenu::connectSettings()
{
    connect(&item("SaveSettings"), &QAction::triggered, this, &switchSaving);
    connect(&item("SoundStatus"), &QAction::triggered, this, &switchSound);
    connect(&item("VowelLengthVal"), &QAction::triggered, this, [this](bool shown) {
        switchVowelLength(shown);
        Q_EMIT vowelLengthSwitched();
    });
    for (const Choice& choice : Choices)
        connect(&item(choice.item), &QAction::triggered, this, [this, &choice] {
            choice.choose(choice.value);
            applyCaptions(*this, mainMenuCaptions());
            showFirstSteps();
            writeLastDrill();
        });
}

void MainMenu::showSettings()
{
    if (settings.SaveSettingsOnExit == platform::FlagTrue)
        item("SaveSettings").setChecked(true);
    if (settings.ShowVowelLength == platform::FlagTrue || settings.ShowVowelLength == platform::FlagFalse)
        item("VowelLengthVal").setChecked(settings.ShowVowelLength == platform::FlagTrue);
    item("SoundStatus").setChecked(settings.SoundOn == platform::FlagTrue);
    for (const Choice& choice : Choices)
        if (settings.*choice.setting == choice.value)
            item(choice.item).setChecked(true);
    applyCurrentOrDesignedCaptions(*this, mainMenuCaptions());
    showFirstSteps();
}

// Whoever has opened an exercise starts without the label.
void MainMenu::showFirstSteps()
{
    if (looks.FirstStepsDone)
        return;
    if (firstSteps_ == nullptr) {
        firstSteps_ = makeLabel(this, "FirstSteps");
        firstSteps_->setContentsMargins(0, LargeSpace, 0, 0);
        firstSteps_->setWordWrap(true);
        column_->addWidget(firstSteps_);
    }
    firstSteps_->setText(fromUtf8(FirstStepsTexts));
}

void MainMenu::endFirstSteps()
{
    if (looks.FirstStepsDone)
        return;
    looks.FirstStepsDone = true;
    keepLooks();
    if (firstSteps_ != nullptr)
        firstSteps_->hide();
}

void MainMenu::showLastDrill(int right, int toRepeat)
{
    if (lastDrill_ == nullptr)
        makeLastDrill();
    lastRight_ = right;
    lastToRepeat_ = toRepeat;
    writeLastDrill();
    lastDrill_->show();
}

void MainMenu::forgetLastDrill()
{
    if (lastDrill_ != nullptr)
        lastDrill_->hide();
}

void MainMenu::makeLastDrill()
{
    lastDrill_ = makeControl<LinkLine>(this, "LastDrill");
    lastDrill_->setTextFormat(Qt::RichText);
    lastDrill_->setAlignment(Qt::AlignHCenter);
    lastDrill_->setContentsMargins(0, LargeSpace, 0, 0);
    lastDrill_->setTextInteractionFlags(Qt::LinksAccessibleByKeyboard);
    connect(lastDrill_, &QLabel::linkActivated, this, &MainMenu::reviewRequested);
    onEnter(*lastDrill_, [this] { Q_EMIT reviewRequested(); });
    column_->addWidget(lastDrill_, 0, Qt::AlignHCenter);
}

// In the colour of all text, which can be read in a dark window as well.
void MainMenu::writeLastDrill()
{
    if (lastDrill_ == nullptr)
        return;
    const QString text = fromUtf8(LastDrillTexts).arg(lastRight_).arg(lastToRepeat_);
    const QString colour = palette().color(QPalette::WindowText).name();
    lastDrill_->setText(QStringLiteral("<a href='review' style='color:%1'>%2</a>").arg(colour, text));
    lastDrill_->setAccessibleName(text);
}

// A window that hides passes its focus on from control to control.
void MainMenu::setVisible(bool visible)
{
    if (!visible && isVisible())
        focused_ = focusWidget();
    Window::setVisible(visible);
    if (visible && focused_ != nullptr)
        focused_->setFocus();
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
    if (event->type() == QEvent::WindowStateChange)
        recordWindowState();
    if (event->type() == QEvent::PaletteChange)
        writeLastDrill();
}

void MainMenu::resizeEvent(QResizeEvent* event)
{
    Window::resizeEvent(event);
    recordWindowState();
}

// The desktop takes the state from a window that hides and gives it back to one that is shown.
void MainMenu::recordWindowState()
{
    if (!isVisible() || !windowHandle()->isExposed() || isMinimized())
        return;
    settings.MainWindowState = isMaximized() ? window_state::Maximised : window_state::Normal;
}

QAction& MainMenu::item(std::string_view name) const
{
    auto* const found = findChild<QAction*>(fromUtf8(name));
    if (found == nullptr)
        throw std::logic_error("the main window has no " + std::string(name));
    return *found;
}

} // namespace shell
