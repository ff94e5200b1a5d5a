#pragma once

#include "shell/windows/window.h"

class QTextBrowser;

namespace shell {

inline constexpr std::string_view HelpFileName = "morvanti.hlp";

/// Shows the help file where the system has no viewer for it.
class Help : public Window {
    Q_OBJECT

public:
    Help();

    /// Reads the help file of the working folder and shows its text from the beginning, or why it cannot be
    /// read.
    void showGuide();

protected:
    void closeBoxPressed() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QTextBrowser* text_;
};

} // namespace shell
