#pragma once

#include "shell/kit/window.h"

#include <QPointer>

#include <optional>

class QLabel;
class QPushButton;

namespace shell {

class FindField;
class GuideText;

inline constexpr std::string_view HelpFileName = "morvanti.hlp";
inline constexpr std::string_view GermanHelpFileName = "morvanti.de.hlp";

/// Shows the help file where the system has no viewer for it.
class Help : public Window {
    Q_OBJECT

public:
    Help();

    /// Shows the section of the window that asks, with nothing to find, and stands beside that window where
    /// the screen has room, at the right edge of a maximised one, else at the edge of the screen where it
    /// covers least. Reads the help file of the working folder, the German one for a German interface where
    /// there is one; shows why it cannot be read.
    void showGuide(const QWidget& asking);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut(QPushButton* close);
    void connectControls(const QPushButton* close);
    void setCaptions();
    void addShortcut(const QKeySequence& keys, void (Help::*action)());
    void showBeside(const QWidget& asking);
    void forgetOwnSizeOnceResized();
    void takeOwnSize();
    void standBesideAsking();

    void goBack();
    void beginToFind();
    void findTyped(const QString& words);
    void findNext();
    void findPrevious();
    void tellFound(bool found);

    QPushButton* back_;
    QLabel* state_;
    FindField* find_;
    GuideText* text_;
    QPointer<const QWidget> asking_;
    /// The size of the window before it was fitted beside another, and the one that it was given there.
    std::optional<QSize> ownSize_;
    QSize sizeBeside_;
};

} // namespace shell
