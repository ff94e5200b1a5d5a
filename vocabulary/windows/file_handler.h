#pragma once

#include "shell/kit/window.h"

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

/// Chooses the file that the editor's list is read from or written to: a folder, and a name in it.
class FileHandler : public shell::Window {
    Q_OBJECT

public:
    FileHandler();

    /// Shows the window for one of the values of `FileMode`, in the folder of the list in memory.
    void open(std::string_view mode);

Q_SIGNALS:
    /// Another list was loaded.
    void loaded();

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
    void load();
    void save();
    std::filesystem::path path() const;

    QDir folder_;
    QLabel* folderName_;
    shell::ChoiceList* folders_;
    shell::ChoiceList* files_;
    QLineEdit* name_;
    QPushButton* action_;
    QPushButton* cancel_;
};

} // namespace vocabulary
