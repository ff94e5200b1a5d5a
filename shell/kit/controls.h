#pragma once

#include <QAnyStringView>

#include <functional>
#include <string_view>

class QKeyEvent;
class QLabel;
class QPushButton;
class QWidget;

namespace shell {

class ChoiceList;

/// A control with this object name.
template <typename Control>
Control* makeControl(QWidget* parent, QAnyStringView name)
{
    auto* const control = new Control(parent);
    control->setObjectName(name);
    return control;
}

/// A label with this object name. Its text is shown as it stands.
QLabel* makeLabel(QWidget* parent, QAnyStringView name);

/// The same in a multiple of the desktop's size of type, and such a one in bold type.
QLabel* makeLabel(QWidget* parent, QAnyStringView name, double type);
QLabel* makeHeading(QWidget* parent, QAnyStringView name, double type);

/// The label of a percentage, whose text has a blank at either end. Its last sign ends where the label does:
/// the blank hangs over.
QLabel* makeScore(QWidget* parent, QAnyStringView name);

/// Such a heading of any length. It asks for room for one line, and breaks where the screen has none.
QLabel* makeLongHeading(QWidget* parent, QAnyStringView name, double type);

/// The label of a control, to which its access key leads.
QLabel* makeLabelOf(QWidget* control, QAnyStringView name);

/// Breaks a label's text into lines, where it would widen the window, and keeps room for so many lines. The
/// label no longer asks for any width of its own.
void wrapText(QLabel& label, int lines);

/// A list of the words or files that a window is about.
ChoiceList* makeChoiceList(QWidget* parent, QAnyStringView name);

/// A button with this object name, which Enter presses as the space bar does.
QPushButton* makeButton(QWidget* parent, QAnyStringView name, std::string_view text = {});

/// The "?" button of a drill, which shows the answer.
QPushButton* makeQuestionButton(QWidget* parent, QAnyStringView name);

/// Gives a control of a window that is shown the focus, and lets it be seen there: in a check box styles show
/// it only once Tab was pressed, and showing a window forgets that.
void setFocusInSight(QWidget& control);

/// Does something when Enter is pressed in a control, or in what stands in it: once, however long it is held.
void onEnter(QWidget& control, const std::function<void()>& step);

/// Whether a key is one of the two Enter keys.
bool isEnter(const QKeyEvent& key);

/// Whether a key carries a letter or another sign that can be seen.
bool hasSign(const QKeyEvent& key);

/// Whether it writes that sign. None does with Ctrl, Alt or Meta, but for Ctrl and Alt together, the third
/// level of some keyboards.
bool writes(const QKeyEvent& key);

} // namespace shell
