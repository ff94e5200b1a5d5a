#pragma once

#include <string>

namespace shell {

/// The scroll bar on which the pause is chosen runs from 0 to this value.
inline constexpr int LongestScroll = 1000;
inline constexpr int ScrollStep = 1;
inline constexpr int ScrollPage = 10;

/// Where the scroll bar stands at first: at `DelaySeconds` as it is. The bar counts in tenths of a second all
/// the same, so that confirming it unmoved divides the delay by ten.
int scrollAtFirst();

/// A scroll value as seconds in print form: " 0.2 seconds" for 2.
std::string delayText(int scroll);

/// The seconds that a scroll value stands for.
double secondsOfScroll(int scroll);

/// Sets `DelaySeconds` to the seconds of a scroll value, rounded to the nearest whole number, halves to the
/// even one, and raises `SettingsChangeCount` by one.
void setDelay(int scroll);

} // namespace shell
