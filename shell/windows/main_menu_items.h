#pragma once

#include "shell/language_texts.h"

#include <span>

class QMenuBar;

namespace shell {

class MainMenu;

/// A large button of the main window, and what it requests.
struct MainMenuButton {
    std::string_view name;
    void (MainMenu::*request)();
    LanguageTexts texts;
};

/// The buttons as they stand on the window: two columns, read line by line.
std::span<const MainMenuButton> mainMenuButtons();

/// Fills the main window's menu bar, still without captions, and joins each item to what it requests.
void makeMainMenuItems(QMenuBar& menuBar, MainMenu& window);

/// What the main window says until the first exercise was opened: three lines.
extern const LanguageTexts FirstStepsTexts;

/// What it says of the exercise just left: "%1" were right, "%2" are to be repeated.
extern const LanguageTexts LastDrillTexts;

/// The captions of the main window's buttons, menus and items.
std::span<const Caption> mainMenuCaptions();

} // namespace shell
