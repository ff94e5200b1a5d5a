#pragma once

#include <functional>

class QLabel;
class QLineEdit;

namespace tables {

/// Does something at the down arrow in a field.
void connectDown(QLineEdit& field, const std::function<void()>& step);

/// Says in the label of a field that nothing in the lists is what was typed, or says nothing.
void tellThatNoneIsListed(QLabel& state, bool noneIsListed);

} // namespace tables
