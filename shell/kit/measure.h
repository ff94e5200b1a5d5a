#pragma once

#include <functional>

class QObject;
class QWidget;

namespace shell {

/// How much larger than designed a window's content is: 1 in a normal window, up to 2 in a maximised one.
using Growth = double;

/// Takes a measure of a widget or a layout, `owner`, and takes it again whenever the window grows or the size
/// of type changes. Another measure of the same name takes its place; one without a name stands for itself.
/// They are taken in the order in which they were kept: what depends on a widget's type comes after that. A
/// layout that stands in no window yet is not grown.
void keepMeasure(QObject& owner, const char* name, std::function<void(Growth)> measure);

/// Takes all measures of what stands in a window, and of itself.
void takeMeasures(QWidget& window, Growth growth);

} // namespace shell
