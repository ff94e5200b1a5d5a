#pragma once

#include "shell/kit/window.h"

#include <string>
#include <string_view>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace shell {

class ChoiceList;
class RecordForm;

/// What a list manager says of its words, and the object names of its controls.
struct ListManagerNames {
    std::string_view window;
    std::string_view active;
    std::string_view title;

    /// A word as it is spoken of, and the file that lists the words.
    std::string_view word;
    std::string_view file;

    /// What the two lists hold.
    std::string_view classes;
    std::string_view words;

    std::string_view classList;
    std::string_view wordList;
    std::string_view add;
    std::string_view room;
    std::string_view copy;
    std::string_view kept;
    std::string_view leave;
    std::string_view leaveText;
};

/// A window that shows the words of a list file by their class, with one of them in a form, and lets the
/// learner add words. They are kept in memory: the list file is never written; a word's line for it can be
/// copied. The window's texts are English in all languages.
///
/// The controls are made in the order in which Tab goes through them: the lists, the form's boxes by the
/// derived window, then the foot.
class ListManager : public Window {
    Q_OBJECT

public:
    /// Starts afresh with the first class.
    void open();

protected:
    explicit ListManager(const ListManagerNames& names);

    /// The last row of the words, where a new one is filled in.
    static constexpr std::string_view NewItem = "** Add New Item Here **";

    /// Makes the controls below the form, and lays the window out. Returns the row of the button that leaves
    /// the window, for others beside it.
    QBoxLayout* addFoot();

    /// Called with the class that was chosen: fills the words anew.
    virtual void listWords() = 0;

    /// Called with the row that was chosen, -1 where the list is empty.
    virtual void showWord(int row) = 0;

    /// The Add button.
    virtual void add() = 0;

    /// The line of the list file for a row; empty where there is none.
    virtual std::string lineOf(int row) const = 0;

    /// Fills the words, and shows the first of them.
    void fillWords(const QStringList& words);

    /// How many words are listed of those that there is room for.
    void showRoom(int listed, int most);
    void showNoRoom();

    /// The line below the form, at first how a change is kept.
    void showNote(const QString& note);
    QString howToKeep() const;

    ChoiceList* classes() const { return classes_; }
    ChoiceList* words() const { return words_; }
    RecordForm* form() const { return form_; }

private:
    QBoxLayout* layOut();
    void connectControls();
    void showChosen(int row);
    void copyLine();

    ListManagerNames names_;
    ChoiceList* classes_;
    ChoiceList* words_;
    RecordForm* form_;
    QPushButton* add_ = nullptr;
    QLabel* room_ = nullptr;
    QPushButton* copy_ = nullptr;
    QLabel* kept_ = nullptr;
    QPushButton* leave_ = nullptr;
};

} // namespace shell
