#pragma once

class QFont;
class QWidget;

namespace shell {

/// The space scale of every layout, in pixels.
inline constexpr int HairSpace = 4;
inline constexpr int SmallSpace = 8;
inline constexpr int MediumSpace = 12;
inline constexpr int LargeSpace = 16;
inline constexpr int WideSpace = 24;

/// Sizes of type, as multiples of the desktop's own.
inline constexpr double TitleType = 2.4;
inline constexpr double QuestionType = 1.9;
inline constexpr double HeadingType = 1.6;
inline constexpr double FormType = 1.5;
inline constexpr double SentenceType = 1.2;
inline constexpr double ListType = 1.15;
inline constexpr double NoteType = 0.95;

/// A font in a multiple of its size.
QFont timesAsLarge(QFont font, double factor);

/// Sets a widget's font to a multiple of the application's, and such a one in bold type. It grows with the
/// window.
void setType(QWidget& widget, double factor);
void setBoldType(QWidget& widget, double factor);

/// Makes a widget at least so many characters of its own font wide.
void setLeastWidth(QWidget& widget, int characters);

} // namespace shell
