#pragma once

#include "shell/kit/window.h"

class QTextBrowser;

namespace shell {

inline constexpr std::string_view HelpFileName = "morvanti.hlp";

/// Shows the help file where the system has no viewer for it.
class Help : public Window {
    Q_OBJECT

public:
    Help();

    /// Reads the help file of the working folder and shows its text from the beginning, or why it cannot be
    /// read. A text that is shown already is not laid out again.
    void showGuide();

private:
    QTextBrowser* text_;
    QString shownText_;
};

} // namespace shell
