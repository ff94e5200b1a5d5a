#pragma once

#include "shell/kit/window.h"
#include "vocabulary/vocabulary_file.h"

#include <filesystem>

class QLabel;
class QPushButton;

namespace shell {
class ChoiceList;
}

namespace vocabulary {

/// Chooses the list to be tested among those of the working folder, and says how many words it holds.
class VcabLoader : public shell::Window {
    Q_OBJECT

public:
    VcabLoader();

    /// Shows the lists that there are now; none is chosen.
    void open();

    /// Loads a file as if it had been chosen.
    void load(const std::filesystem::path& file);

Q_SIGNALS:
    /// The chosen file holds too many words, but can be divided.
    void divisionRequested(const std::filesystem::path& path, const vocabulary::LoadFault& fault);

private:
    void makeControls();
    void layOut();
    void connectControls();
    void showCount(int row);
    void loadChosen();
    std::filesystem::path fileIn(int row) const;

    shell::ChoiceList* files_ = nullptr;
    QLabel* count_ = nullptr;
    QPushButton* open_ = nullptr;
    QPushButton* cancel_ = nullptr;
};

} // namespace vocabulary
