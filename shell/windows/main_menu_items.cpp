#include "shell/windows/main_menu_items.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include <initializer_list>

namespace shell {

namespace {

QMenu& addMenu(QMenu& parent, const char* name)
{
    QMenu* const menu = parent.addMenu(QString());
    menu->setObjectName(QLatin1String(name));
    return *menu;
}

QMenu& addMenu(QMenuBar& bar, const char* name)
{
    QMenu* const menu = bar.addMenu(QString());
    menu->setObjectName(QLatin1String(name));
    return *menu;
}

void addItems(QMenu& menu, std::initializer_list<const char*> names)
{
    for (const char* const name : names)
        menu.addAction(QString())->setObjectName(QLatin1String(name));
}

void addSwitches(QMenu& menu, std::initializer_list<const char*> names)
{
    for (const char* const name : names) {
        QAction* const action = menu.addAction(QString());
        action->setObjectName(QLatin1String(name));
        action->setCheckable(true);
    }
}

// Items of which one at the most is checked.
void addChoices(QMenu& menu, std::initializer_list<const char*> names)
{
    auto* const group = new QActionGroup(&menu);
    for (const char* const name : names) {
        QAction* const action = group->addAction(menu.addAction(QString()));
        action->setObjectName(QLatin1String(name));
        action->setCheckable(true);
    }
}

} // namespace

void makeMainMenuItems(QMenuBar& menuBar)
{
    QMenu& file = addMenu(menuBar, "FileMenu");
    addItems(file, {"FileDecl", "FileConj", "FilePron", "FileNounQuiz"});
    file.addSeparator();
    addItems(file, {"FileNounManager", "FileVerbManager", "FileVcabManager"});
    file.addSeparator();
    addItems(file, {"FileExit"});

    QMenu& options = addMenu(menuBar, "OptionsMenu");
    addSwitches(options, {"SaveSettings", "VowelLengthVal", "SoundStatus"});
    addItems(options, {"SetDelay"});
    options.addSeparator();
    addChoices(addMenu(options, "OrderMenu"), {"RandomOrder", "SequentialOrder"});
    addChoices(addMenu(options, "CaseOrderMenu"), {"NGDAABOrder", "NADGABOrder"});
    addChoices(addMenu(options, "LanguageMenu"), {"EnglishLang", "FrenchLang", "ItalianLang", "GermanLang",
                                                  "SpanishLang", "LatinLang", "NorwegianLang"});
    options.addSeparator();
    addItems(options, {"OptionsOptions", "OptionsOptionsForm"});

    addItems(addMenu(menuBar, "VocabularyMenu"), {"MainVocabulary"});
    addItems(addMenu(menuBar, "HelpMenu"), {"HELPME", "MainABout"});
}

} // namespace shell
