#pragma once

#include "shell/drill.h"
#include "shell/kit/window.h"

#include <string>
#include <string_view>

namespace shell {

/// The window of a drill, registered under `exerciseType` as long as it lives. It shows no score and greys no
/// box where the drill does not say so.
class DrillWindow : public Window, public Drill {
    Q_OBJECT

public:
    DrillWindow(std::string_view name, std::string_view activeName, std::string_view exerciseType);
    ~DrillWindow() override;

    void showScore(const std::string& /*text*/) override {}
    void greyAnsweredBox() override {}

Q_SIGNALS:
    /// An answer was checked.
    void answerJudged(bool right);

protected:
    /// Whether an answer can be checked or shown: not while one is, nor once the window is hidden.
    bool canAnswer() const;

private:
    std::string_view exerciseType_;
};

} // namespace shell
