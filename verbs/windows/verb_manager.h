#pragma once

#include "shell/kit/list_manager.h"
#include "verbs/verb_list.h"

#include <array>
#include <map>
#include <utility>

class QLabel;

namespace verbs {

/// The verb manager: lets the learner change the verbs that are listed as well. What was typed and not added
/// stays on its row.
class VerbManager : public shell::ListManager {
    Q_OBJECT

public:
    VerbManager();

    /// The class that is chosen, and the number of the verb in it; the number after the last is a new one's.
    int chosenClass() const;
    int chosenVerb() const;

Q_SIGNALS:
    /// The cancel button, which ends the whole program at once.
    void endRequested();

protected:
    void listWords() override;
    void showWord(int row) override;
    void add() override;
    std::string lineOf(int row) const override;

private:
    void makeForm();
    void makePreviews();
    void addEndOfProgram();
    void showPreviews();
    VerbRecord typedVerb() const;
    VerbRecord verbToShow() const;

    std::array<QLabel*, 3> previews_{};

    /// What was typed and not added, by class and number.
    std::map<std::pair<int, int>, VerbRecord> drafts_;
};

} // namespace verbs
