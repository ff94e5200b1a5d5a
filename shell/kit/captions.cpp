#include "shell/kit/captions.h"

#include "shell/kit/latin_text.h"
#include "shell/kit/text.h"
#include "shell/settings.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>

#include <stdexcept>
#include <string>

namespace shell {

namespace {

bool setText(QObject* control, const QString& text)
{
    if (auto* const button = qobject_cast<QAbstractButton*>(control))
        button->setText(text);
    else if (auto* const label = qobject_cast<QLabel*>(control))
        label->setText(text);
    else if (auto* const menu = qobject_cast<QMenu*>(control))
        menu->setTitle(text);
    else if (auto* const action = qobject_cast<QAction*>(control))
        action->setText(text);
    else if (auto* const frame = qobject_cast<QGroupBox*>(control))
        frame->setTitle(text);
    else
        return false;
    return true;
}

void setCaption(QWidget& window, std::string_view control, std::string_view text)
{
    const QString name = fromUtf8(control);
    if (name == window.objectName())
        window.setWindowTitle(fromUtf8(text));
    else if (!setText(window.findChild<QObject*>(name), fromUtf8(text)))
        throw std::logic_error("no control with a caption is named " + std::string(control));
}

} // namespace

void applyCaptions(QWidget& window, std::span<const Caption> captions)
{
    for (const auto& [control, texts] : captions)
        if (const auto text = texts.in(settings.CurrentLanguage))
            setCaption(window, control, *text);
}

void applyDesignedCaptions(QWidget& window, std::span<const Caption> captions)
{
    for (const auto& [control, texts] : captions)
        if (texts.english)
            setCaption(window, control, *texts.english);
}

void applyCurrentOrDesignedCaptions(QWidget& window, std::span<const Caption> captions)
{
    for (const auto& [control, texts] : captions)
        setCaption(window, control, texts.currentOrDesigned());
}

void fillList(QListWidget& list, std::span<const LanguageTexts> rows)
{
    list.clear();
    for (const LanguageTexts& row : rows)
        list.addItem(latinText(row.currentOrDesigned()));
}

} // namespace shell
