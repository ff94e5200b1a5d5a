#pragma once

#include "shell/kit/window.h"

#include <QPointer>

class QAction;
class QBoxLayout;
class QGridLayout;
class QLabel;
class QMenuBar;
class QPushButton;

namespace shell {

struct MainMenuButton;

/// The start window and hub: large buttons open the drills, a menu bar opens the editors and dialogs and
/// changes the settings.
class MainMenu : public Window {
    Q_OBJECT

public:
    MainMenu();

    /// Shows the check marks and the captions for `settings` as they stand, and the first steps where `looks`
    /// says that no exercise was opened yet.
    void showSettings();

    /// An exercise was opened: the first steps go, for good.
    void endFirstSteps();

    /// Says in one line how many answers of the exercise just left were right at once, and how many forms are
    /// to be repeated now. The line is a link that requests a review.
    void showLastDrill(int right, int toRepeat);

    /// The line goes.
    void forgetLastDrill();

    /// Keeps in `MainWindowState` whether the window is normal or maximised. One that is minimised, hidden or
    /// not yet on the screen changes nothing.
    void recordWindowState();

Q_SIGNALS:
    void declensionRequested();
    void conjugationRequested();
    void pronounsRequested();
    void quizRequested();
    void vocabularyRequested();
    void nounQuizRequested();
    void nounManagerRequested();
    void verbManagerRequested();
    void vocabularyManagerRequested();
    void tablesRequested();
    void progressRequested();
    void reviewRequested();
    void delayRequested();
    void optionsRequested();
    void helpRequested();
    void aboutRequested();

    /// `ShowVowelLength` was switched: the verb list has to be read again.
    void vowelLengthSwitched();

    /// The program is to end as `ExitButton` says.
    void exitRequested();

    /// The program is to end at once, without saving.
    void quietEndRequested();

protected:
    /// The control that had the focus has it again when the window is shown again.
    void setVisible(bool visible) override;
    void closeBoxPressed() override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();
    QGridLayout* buttonGrid();
    QPushButton* makeBigButton(const MainMenuButton& row);
    void connectSettings();
    void showFirstSteps();
    void makeLastDrill();
    void writeLastDrill();
    QAction& item(std::string_view name) const;

    QMenuBar* menuBar_;
    QPointer<QWidget> focused_;
    QBoxLayout* column_ = nullptr;
    QLabel* firstSteps_ = nullptr;
    QLabel* lastDrill_ = nullptr;
    int lastRight_ = 0;
    int lastToRepeat_ = 0;
};

} // namespace shell
