#include "app/qt_texts.h"

#include "shell/kit/text.h"
#include "shell/settings.h"

#include <QApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <string_view>

namespace app {

namespace {

namespace language = shell::language;

struct Translation {
    std::string_view language;
    std::string_view file;
};

constexpr std::array<Translation, 4> Translations = {{
    {language::French, "qtbase_fr"},
    {language::Italian, "qtbase_it"},
    {language::German, "qtbase_de"},
    {language::Spanish, "qtbase_es"},
}};

QString fileOfCurrentLanguage()
{
    const auto row = std::ranges::find(Translations, shell::settings.CurrentLanguage, &Translation::language);
    return row == Translations.end() ? QString() : shell::fromUtf8(row->file);
}

} // namespace

void translateQtTexts()
{
    const QString file = fileOfCurrentLanguage();
    auto* const installed = qApp->findChild<QTranslator*>(QString(), Qt::FindDirectChildrenOnly);
    if (file == (installed == nullptr ? QString() : installed->objectName()))
        return;
    delete installed;
    if (file.isEmpty())
        return;
    auto* const translator = new QTranslator(qApp);
    translator->setObjectName(file);
    if (translator->load(file, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
}

ContextMenuTexts::ContextMenuTexts()
{
    qApp->installEventFilter(this);
}

bool ContextMenuTexts::eventFilter(QObject* /*receiver*/, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu)
        translateQtTexts();
    return false;
}

} // namespace app
