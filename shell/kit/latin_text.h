#pragma once

#include <QString>

#include <string_view>

class QLineEdit;

namespace shell {

/// A Latin text, UTF-8, as a window shows it where it cannot be typed: with macrons in place of ":" where the
/// learner wishes them. Never for a text that is compared or stored, nor one with a colon of its own.
QString latinText(std::string_view text);

/// Makes a box take a macron, typed or pasted, as the vowel with ":" behind it. The cursor stays behind what
/// was typed. Where the box has no room for the ":" the letter is refused. It cannot be undone.
/// A box that is read-only shows what it is given.
void takeMacrons(QLineEdit& box);

} // namespace shell
