#pragma once

#include "shell/kit/framed_window.h"
#include "shell/language_texts.h"

#include <span>
#include <string_view>

class QLabel;
class QPushButton;

namespace shell {

class ChoiceList;

/// The object names of a chooser's controls.
struct ChooserNames {
    std::string_view window;
    std::string_view active;
    std::string_view list;
    std::string_view ok;
    std::string_view cancel;
    std::string_view frame;
};

/// A small window in which one row of a list is chosen, under a heading that says of what: the label
/// `ChooserHeading` of its captions. The OK button is available once a row is chosen; the keys that move in a
/// list move in it from there as well. A double click or Enter in the list activates a row. Enter takes the
/// first row where none is chosen yet.
class Chooser : public FramedWindow {
    Q_OBJECT

public:
    Chooser(const ChooserNames& names, std::span<const Caption> captions,
            std::span<const LanguageTexts> rows);

    /// Shows the window with its list filled anew and no row chosen, unless it begins at OK.
    void open();

Q_SIGNALS:
    void chosen(int row);

protected:
    /// Called each time the list was filled anew.
    virtual void beginChoice() {}

    /// True where the OK button has the focus at first. The first row is chosen then at once.
    virtual bool beginsAtOk() const { return false; }

    /// Fills the list anew, likewise.
    void fill();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();
    void connectControls();
    void choose(int row);

    std::span<const Caption> captions_;
    std::span<const LanguageTexts> rows_;
    ChoiceList* list_;
    QLabel* heading_;
    QPushButton* ok_;
    QPushButton* cancel_;
};

} // namespace shell
