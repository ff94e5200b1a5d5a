#pragma once

#include "app/common_windows.h"
#include "progress/keeper.h"

#include <QObject>
#include <QTimer>

#include <optional>

namespace app {

/// Joins the record of answers with the drills that give them.
///
/// An answer is told as soon as it is judged. It is kept in the pause that follows, once the judgement is on
/// the screen; at the latest when the next one is told, when the drill is left, or when the program ends. So
/// no judgement waits for the file, and a kill loses no answer but the last.
///
/// A drill begins with its first answer and ends when it is left: a test or a quiz that is put aside for
/// another window goes on. Then the main window says what it has come to.
class ProgressNavigation : public QObject {
public:
    /// Keeps answers where `looks` says so.
    explicit ProgressNavigation(CommonWindows& common);
    ~ProgressNavigation() override;

    /// Keeps answers from now on, or no longer, and remembers that in the file of `looks`.
    void switchKeeping(bool on);

private:
    void hear(const shell::AnswerRecord& answer);
    void keepWaiting();
    void endDrill();

    CommonWindows& common_;
    progress::Keeper keeper_;
    QTimer pause_;
    std::optional<shell::AnswerRecord> waiting_;
    bool drillRuns_ = false;
};

} // namespace app
