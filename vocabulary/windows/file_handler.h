#pragma once

#include "shell/kit/window.h"
#include "vocabulary/vocabulary_file.h"

#include <QDir>

#include <filesystem>
#include <string_view>

class QLabel;
class QLineEdit;
class QPushButton;

namespace shell {
class ChoiceList;
}

namespace vocabulary {

/// Chooses the file that the editor's list is read from or written to: a folder, and a name in it. Before
/// changes or words in another file are lost, it asks for a question to the learner.
class FileHandler : public shell::Window {
    Q_OBJECT

public:
    FileHandler();

    /// Shows the window for one of the values of `FileMode`, in the folder of the list in memory.
    void open(std::string_view mode);

    /// Loads a file that was written into the folder since it was shown, as if it had been chosen.
    void loadNew(const std::filesystem::path& file);

    /// Loads the chosen file, whatever is pending.
    void replaceList();

    /// Saves the list, and then loads the chosen file. For a new list another file is chosen first.
    void saveBeforeLoad();

    /// Saves the list to the chosen file, whatever that holds.
    void replaceFile();

Q_SIGNALS:
    /// Another list was loaded.
    void loaded();

    /// The chosen file can be loaded, and changes are pending.
    void warningRequested();

    /// The chosen file holds too many words, but can be divided.
    void divisionRequested(const std::filesystem::path& path, const vocabulary::LoadFault& fault);

    /// The list is to be saved to a file that holds another.
    void replacementRequested(const std::filesystem::path& path);

private:
    void makeControls();
    void layOut();
    void connectControls();
    void setCaptions();

    void goToListFolder();
    void showFolder();
    void enterFolder(int row);
    void takeName(int row);
    void activateFile(int row);
    void loadOrSave();
    void load(const std::filesystem::path& file);
    void save();
    void chooseFileBeforeLoad();
    std::filesystem::path path() const;

    QDir folder_;

    /// The file to be loaded; empty where the list is only saved.
    std::filesystem::path toLoad_;

    QLabel* folderName_ = nullptr;
    shell::ChoiceList* folders_ = nullptr;
    shell::ChoiceList* files_ = nullptr;
    QLineEdit* name_ = nullptr;
    QPushButton* action_ = nullptr;
    QPushButton* cancel_ = nullptr;
};

} // namespace vocabulary
