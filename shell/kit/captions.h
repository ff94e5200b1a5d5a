#pragma once

#include "shell/language_texts.h"

#include <span>

class QListWidget;
class QWidget;

namespace shell {

/// Gives a window, and its controls, menus and actions, the captions for `CurrentLanguage`, each found by its
/// object name. A language without a text leaves a caption as it is. Throws std::logic_error where a table
/// names a control that the window does not have.
void applyCaptions(QWidget& window, std::span<const Caption> captions);

/// Gives the controls the captions that they are designed with: the English ones.
void applyDesignedCaptions(QWidget& window, std::span<const Caption> captions);

/// Gives each control the caption for `CurrentLanguage`, or where it has none the designed one.
void applyCurrentOrDesignedCaptions(QWidget& window, std::span<const Caption> captions);

/// Fills a list anew with the rows for `CurrentLanguage`,the English ones where it has none, with
/// their Latin as `latinText` has it. No row is chosen.
void fillList(QListWidget& list, std::span<const LanguageTexts> rows);

} // namespace shell
