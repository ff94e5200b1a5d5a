#include "shell/windows/help.h"

#include "platform/text_file.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/text.h"
#include "shell/settings.h"
#include "shell/windows/find_field.h"
#include "shell/windows/guide_text.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include <algorithm>
#include <array>

namespace shell {

namespace {

// In characters and lines.
constexpr QSize LargestBlock{100, 100};
constexpr QSize NormalSize{92, 36};
constexpr int LeastWidthBeside = 34;
constexpr int WidthOfFind = 24;

// clang-format off
constexpr std::array HelpCaptions = {
    Caption{"Help",     {"Help",  "Assistance", "Aiuto",     "Hilfe",   "Ayuda",  "Auxilium"}},
    Caption{"HelpBack", {"&Back", "&Retour",    "&Indietro", "&Zurück", "&Atrás", "&Retro"}},
    Caption{"Command1", {"&OK",   "&Oui",       "&OK",       "&OK",     "&Si",    "&Ita"}},
};

constexpr LanguageTexts Find    {"Find = Ctrl+F",     "Chercher = Ctrl+F",       "Cerca = Ctrl+F",    "Suchen = Strg+F",    "Buscar = Ctrl+F",   "Quaere = Ctrl+F"};
constexpr LanguageTexts FindName{"Find in the guide", "Chercher dans l'aide",    "Cerca nella guida", "In der Hilfe suchen", "Buscar en la ayuda", "Quaere in auxilio"};
constexpr LanguageTexts NotFound{"Not found",         "Introuvable",             "Non trovato",       "Nicht gefunden",     "No se encuentra",   "Non invenitur"};
// clang-format on

std::string guide()
{
    if (settings.CurrentLanguage == language::German)
        if (const platform::TextFile german = platform::readTextFile(GermanHelpFileName); !german.fault)
            return german.text;
    const platform::TextFile english = platform::readTextFile(HelpFileName);
    return english.fault ? english.fault->message() : english.text;
}

QSize inLetters(const QFontMetrics& metrics, QSize charactersAndLines)
{
    return {charactersAndLines.width() * metrics.averageCharWidth(),
            charactersAndLines.height() * metrics.lineSpacing()};
}

// What stands in a window, but for its menus.
QRect contentOf(const QWidget& window)
{
    QRect content;
    for (const QWidget* const part : window.findChildren<QWidget*>())
        if (part->isVisible() && part->findChild<QWidget*>() == nullptr &&
            qobject_cast<const QMenuBar*>(part) == nullptr)
            content |= QRect(part->mapToGlobal(QPoint()), part->size());
    return content;
}

// What of a window is to stay in sight.
QRect neededOf(const QWidget& window)
{
    return window.isMaximized() ? contentOf(window) : window.frameGeometry();
}

// At the right edge of a maximised window, below its title: as wide as the room beside its content, and never
// narrower than the least.
QRect placeAtRight(const QRect& window, const QRect& content, int width, int leastWidth)
{
    const int room = window.right() - content.right() - MediumSpace;
    const int taken = std::max(leastWidth, std::min(width, room));
    return {window.right() + 1 - taken, window.top(), taken, window.height()};
}

// The question of a window stands at its left: one in the middle of the screen is rather covered at the
// right.
bool standsAtRight(int roomAtLeft, int roomAtRight, int leastWidth)
{
    return roomAtRight >= roomAtLeft || (roomAtLeft < leastWidth && roomAtLeft - roomAtRight <= MediumSpace);
}

// At the side of the window where there is more room, as wide as that allows. Where it is too narrow, at that
// edge of the screen, so that it covers least or nearly so.
QRect placeBeside(const QRect& window, const QRect& screen, QSize size, int leastWidth)
{
    const int left = window.left() - screen.left();
    const int right = screen.right() - window.right();
    const int width = std::max(leastWidth, std::min(size.width(), std::max(left, right)));
    const int height = std::min(size.height(), screen.height());
    const int x = standsAtRight(left, right, leastWidth)
                      ? std::min(window.right(), screen.right() - width) + 1
                      : std::max(window.left() - width, screen.left());
    const int y = std::clamp(window.top(), screen.top(), screen.bottom() + 1 - height);
    return {x, y, width, height};
}

QRect placeFor(const QWidget& asking, QSize size, int leastWidth)
{
    if (asking.isMaximized())
        return placeAtRight(asking.geometry(), contentOf(asking), size.width(), leastWidth);
    return placeBeside(asking.frameGeometry(), asking.screen()->availableGeometry(), size, leastWidth);
}

} // namespace

Help::Help()
    : Window("Help"), back_(makeButton(this, "HelpBack")), state_(makeLabel(this, "HelpFindState")),
      find_(makeControl<FindField>(this, "HelpFind")), text_(makeControl<GuideText>(this, "HelpText"))
{
    auto* const close = makeButton(this, "Command1");
    close->setDefault(true);
    back_->setEnabled(false);
    setLeastWidth(*find_, WidthOfFind);
    find_->setClearButtonEnabled(true);

    layOut(close);
    connectControls(close);
    applyDesignedCaptions(*this, HelpCaptions);
}

void Help::layOut(QPushButton* close)
{
    auto* const top = rowOf(SmallSpace, {back_, Part::gap(1), find_});
    centredBlock(LargestBlock)->setLayout(columnOf(MediumSpace, {top, text_, buttonRow({state_}, {close})}));
    resize(inLetters(fontMetrics(), NormalSize).boundedTo(screen()->availableSize() * ShareOfScreen));
}

void Help::connectControls(const QPushButton* close)
{
    connect(close, &QPushButton::clicked, this, &Help::left);
    connect(back_, &QPushButton::clicked, this, &Help::goBack);
    connect(text_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
    connect(find_, &QLineEdit::textChanged, this, &Help::findTyped);
    connect(find_, &FindField::nextRequested, this, &Help::findNext);
    connect(find_, &FindField::previousRequested, this, &Help::findPrevious);
    connect(find_, &FindField::escaped, text_, [this] { text_->setFocus(); });

    closeOnEscape();
    addShortcut(Qt::ALT | Qt::Key_Left, &Help::goBack);
    addShortcut(QKeySequence::Find, &Help::beginToFind);
    addShortcut(Qt::Key_F3, &Help::findNext);
    addShortcut(Qt::SHIFT | Qt::Key_F3, &Help::findPrevious);
}

void Help::addShortcut(const QKeySequence& keys, void (Help::*action)())
{
    connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
}

void Help::setCaptions()
{
    applyCaptions(*this, HelpCaptions);
    text_->setAccessibleName(windowTitle());
    find_->setPlaceholderText(fromUtf8(Find));
    find_->setAccessibleName(fromUtf8(FindName));
    tellFound(true);
}

void Help::showGuide(const QWidget& asking)
{
    text_->setGuide(fromUtf8(guide()));
    setCaptions();
    if (&asking != this)
        showBeside(asking);
    find_->clear();
    text_->goToSection(asking.objectName());
    text_->setFocus();
}

// A guide that is open already stays where the learner has put it, as long as it covers nothing.
void Help::showBeside(const QWidget& asking)
{
    const bool standsWell = isVisible() && !frameGeometry().intersects(neededOf(asking));
    if (!isVisible())
        takeOwnSize();
    asking_ = &asking;
    showInFront();
    if (!standsWell)
        standBesideAsking();
}

// Whoever gives the guide a size beside another window wants that one from then on.
void Help::forgetOwnSizeOnceResized()
{
    if (size() != sizeBeside_)
        ownSize_.reset();
}

void Help::takeOwnSize()
{
    forgetOwnSizeOnceResized();
    if (ownSize_)
        resize(*ownSize_);
    ownSize_.reset();
}

void Help::standBesideAsking()
{
    if (asking_ == nullptr || isMaximized())
        return;
    forgetOwnSizeOnceResized();
    const QSize whole = ownSize_.value_or(size());
    const QMargins frame = windowHandle()->frameMargins();
    const int leastWidth =
        std::max(minimumSizeHint().width(), LeastWidthBeside * fontMetrics().averageCharWidth());
    const QRect place = placeFor(*asking_, whole.grownBy(frame), leastWidth + frame.left() + frame.right());
    const QRect inside = place.marginsRemoved(frame);
    if (inside.size() != whole)
        ownSize_ = whole;
    sizeBeside_ = inside.size();
    setGeometry(inside);
}

// The desktop has framed the window by the time that it was put in the middle once more.
bool Help::eventFilter(QObject* watched, QEvent* event)
{
    const bool isDone = Window::eventFilter(watched, event);
    if (event->type() == QEvent::Expose && windowHandle()->isExposed())
        standBesideAsking();
    return isDone;
}

void Help::goBack()
{
    text_->backward();
    if (!text_->isBackwardAvailable())
        text_->setFocus();
}

void Help::beginToFind()
{
    find_->setFocus(Qt::ShortcutFocusReason);
    find_->selectAll();
}

void Help::findTyped(const QString& words)
{
    tellFound(words.isEmpty() || text_->findHere(words));
}

void Help::findNext()
{
    if (find_->text().isEmpty())
        beginToFind();
    else
        tellFound(text_->findNext(find_->text()));
}

void Help::findPrevious()
{
    if (find_->text().isEmpty())
        beginToFind();
    else
        tellFound(text_->findPrevious(find_->text()));
}

void Help::tellFound(bool found)
{
    find_->showFound(found);
    state_->setText(found ? QString() : fromUtf8(NotFound));
}

} // namespace shell
