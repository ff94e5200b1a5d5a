#include "shell/answer_record.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

namespace {

// Each window, and its way from the main window: a button, an item, or a list and its row.
// clang-format off
const std::vector<std::pair<const char*, QStringList>> Windows = {
    {"MainMenu", {}}, {"About", {"MainABout"}}, {"Help", {"HELPME"}}, {"Tables", {"FileTables"}},
    {"DelayInterval", {"SetDelay"}}, {"frmOptions", {"OptionsOptions"}},
    {"VerbManager", {"FileVerbManager"}}, {"NounHandler", {"FileNounManager"}}, {"VcabManager", {"FileVcabManager"}},
    {"ConjugationChoose", {"FileConj"}}, {"Conjugation", {"FileConj", "ConjugationList 0"}},
    {"TenseMoodChooser", {"FileConj", "ConjugationList 8"}},
    {"Probatio", {"QuizButton"}}, {"QuizInclude", {"QuizButton", "QuizOptions"}}, {"NounQuiz", {"FileNounQuiz"}},
    {"DeclinationChoose", {"FileDecl"}}, {"Declination", {"FileDecl", "DeclinationList 0"}},
    {"PronounChooser", {"FilePron"}}, {"PronounSingular", {"FilePron", "PronounList 0"}},
    {"Vcabtester", {"MainVocabulary"}}, {"VcabLoader", {"MainVocabulary", "VcabTesterFileOpen"}},
    {"FileHandler", {"FileVcabManager", "VcabManLoad"}}, {"FileHandler", {"FileVcabManager", "VcabManSave"}},
    {"VcabReplace", {"FileVcabManager", "VcabManSave", "FHFileBox 0", "LoadSaveFH"}},
    {"VcabDivide", {"MainVocabulary", "VcabTesterFileOpen", "VcabFile 0"}},
    {"VcabWarning", {"MainVocabulary", "VcabTesterEdit", "VcabManMainForm 0", "VcabManDelete", "VcabManExit"}},
    {"Progress", {"FileProgress"}}, {"ProgressErase", {"FileProgress", "ProgressDelete"}},
    {"Review", {"FileProgress", "ProgressReview"}},
};

// The interface's texts stay as they are, and so do these: no others may come to them.
constexpr auto GivenClashes = R"(MainMenu, English: &Vocabulary, &Verbs
OptionsMenu, English: Save &Current Settings, &Case Order...
Probatio, English: &Plural, O&ptions; &Second Person, &Skip
MainMenu, French: &Options, S&ortie; &Vocabulaire, &Verbes
FileMenu, French: &Substantifs, &Sortie
OptionsMenu, French: Montrer la &longeur des voyelles, &Langues...; Presérver les &options , &Ordre des cases...
LanguageMenu, French: &anglais, &allemand
Probatio, French: &Plural, O&ptions; &Second Person, &Skip
MainMenu, German: &Wortschatz, &Wortschatz
Probatio, German: &Zweite Person, Ein&zahl
Conjugation, Spanish: &Si, &Salir
Probatio, Spanish: &Segunda persona, &Si
Probatio, Latin: Persona &prima, &Pluralis, O&ptiones; Persona &tertia, &Transgredire!)";
// clang-format on

// The eye goes on to the right, or down: never back up to the left.
bool followsTheEye(const QWidget& from, const QWidget& to)
{
    const QRect place(from.mapTo(from.window(), QPoint(0, 0)), from.size());
    const QRect next(to.mapTo(to.window(), QPoint(0, 0)), to.size());
    return next.left() >= place.center().x() || next.center().y() > place.center().y();
}

bool hasName(const QWidget& widget)
{
    const auto labels = widget.window()->findChildren<QLabel*>();
    const bool bearsText = widget.inherits("QAbstractButton") && widget.property("text") != "";
    return bearsText || !widget.accessibleName().isEmpty() ||
           std::ranges::any_of(labels, [&](const QLabel* label) { return label->buddy() == &widget; });
}

QStringList textsOf(const QWidget& menuOrBar)
{
    QStringList texts;
    for (const QAction* const item : menuOrBar.actions())
        texts << item->text();
    return texts;
}

// The texts that one press of Alt may mean: what a window shows at once.
QStringList textsOnAltKeys(const QWidget& window)
{
    QStringList texts;
    for (const QMenuBar* const menuBar : window.findChildren<QMenuBar*>())
        texts << textsOf(*menuBar);
    for (const QWidget* const widget : window.findChildren<QWidget*>())
        texts << widget->property("text").toString();
    return texts;
}

// Adds a line such as "MainMenu, English: &Verbs, &Vocabulary" where there are any.
void appendClashes(QStringList& clashes, const QString& place, const QStringList& texts)
{
    QMap<QString, QStringList> onKey;
    for (const QString& text : texts)
        onKey[QKeySequence::mnemonic(text).toString()] << text;
    onKey.remove("");
    QStringList found;
    for (const QStringList& rivals : onKey)
        if (rivals.size() > 1)
            found << rivals.join(", ");
    if (!found.isEmpty())
        clashes << place + ", " + QString::fromStdString(shell::settings.CurrentLanguage) + ": " +
                       found.join("; ");
}

class EveryWindow : public tests::WindowTest {
protected:
    static void goOn(const QString& step)
    {
        const QString name = step.section(' ', 0, 0);
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            QWidget* const control = window->findChild<QWidget*>(name);
            if (control != nullptr && control->isVisible())
                return name == step
                           ? tests::click(*window, name)
                           : tests::doubleClickRow(list(*window, name), step.section(' ', 1).toInt());
            if (window->isVisible() && window->findChild<QAction*>(step) != nullptr)
                return tests::choose(*window, step);
        }
    }

    // Opens each window in each language, and tells of a fault where it was found.
    void inEveryLanguage(const std::function<void(QWidget&)>& look)
    {
        for (const char* const sample : {"morvanti.hlp", "morvanti.de.hlp", "vr-vcab.lst"})
            tests::copySample(sample);
        tests::writeFile("301 words.lst", QByteArray("a,b,c\n").repeated(301).toStdString());
        start();
        shell::tellAnswer({"Conjugation", "amare", "First Conjugation / Imperative / 2nd Person Sing",
                           "amare, Imperative, 2nd Person Sing", "ama", "ame"});
        for (const std::string language : {"English", "French", "German", "Spanish", "Latin"})
            for (const auto& [name, way] : Windows) {
                SCOPED_TRACE(language + ' ' + name);
                tests::choose(start(), QString::fromStdString(language + "Lang"));
                for (const QString& step : way)
                    goOn(step);
                QWidget& window = tests::shown(name);
                window.showNormal();
                window.resize(window.sizeHint());
                QApplication::processEvents();
                look(window);
            }
    }
};

TEST_F(EveryWindow, IsTabbedThroughAsTheEyeGoesAndNamesAllAndHasNoTwoTextsOnOneAltKey)
{
    QStringList clashes;
    inEveryLanguage([&](QWidget& window) {
        const QWidget* before = nullptr;
        for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
            if (!next->isVisible() || !next->isEnabled() || !(next->focusPolicy() & Qt::TabFocus) ||
                qobject_cast<QMenuBar*>(next))
                continue;
            const std::string name = next->objectName().toStdString();
            EXPECT_FALSE(name.empty());
            EXPECT_TRUE(hasName(*next)) << name;
            EXPECT_TRUE(before == nullptr || followsTheEye(*before, *next)) << name;
            before = next;
        }
        for (const QPushButton* const button : window.findChildren<QPushButton*>())
            EXPECT_TRUE(button->autoDefault() || button->isDefault()) << button->objectName().toStdString();
        for (const char* const guide : {"morvanti.hlp", "morvanti.de.hlp"})
            EXPECT_TRUE(
                QString::fromStdString(tests::bytesOf(guide))
                    .contains(QRegularExpression("#[^\n]+\\{[^}]*\\b" + window.objectName() + "\\b")));
        appendClashes(clashes, window.objectName(), textsOnAltKeys(window));
        for (const QMenu* const menu : window.findChildren<QMenu*>())
            appendClashes(clashes, menu->objectName(), textsOf(*menu));
    });
    EXPECT_EQ(clashes.join('\n').toStdString(), GivenClashes);
}

// On a small screen: a button whole, a line in its whole height, a list or a text as far as there is room.
void expectFocusInView(QWidget& window)
{
    window.resize(window.sizeHint().boundedTo({700, 500}));
    for (int tabs = 0; tabs < 30; ++tabs) {
        tests::press(window, Qt::Key_Tab);
        const QWidget& focused = *window.focusWidget();
        const QRect seen = focused.visibleRegion().boundingRect();
        EXPECT_FALSE(seen.isEmpty() || (focused.inherits("QAbstractButton") && seen != focused.rect()) ||
                     (focused.inherits("QLineEdit") && seen.height() != focused.height()))
            << focused.objectName().toStdString();
    }
}

TEST_F(EveryWindow, CutsNothingOffAndPutsNothingOutOfReachInATypeTwiceAsLarge)
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(2 * before.pointSizeF());
    QApplication::setFont(large);
    // Labels that break their lines, and controls without a text of their own, take the room that there is.
    inEveryLanguage([](QWidget& window) {
        for (const QWidget* const widget : window.findChildren<QWidget*>()) {
            const auto* const label = qobject_cast<const QLabel*>(widget);
            const bool bearsOneLine = label ? !label->wordWrap() : widget->inherits("QAbstractButton");
            const QSize room = widget->size(), least = label ? label->sizeHint() : widget->minimumSizeHint();
            EXPECT_TRUE(!widget->isVisible() || !bearsOneLine || room == room.expandedTo(least))
                << widget->objectName().toStdString();
        }
        expectFocusInView(window);
    });
    QApplication::setFont(before);
}

} // namespace
