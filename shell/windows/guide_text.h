#pragma once

#include <QSet>
#include <QTextBrowser>

namespace shell {

/// The text of a guide, in which one can follow links, come back, and find words.
///
/// A guide that begins with a heading, "# ", is Markdown. A link to "#the-words-of-a-heading" leads to that
/// heading: its words in small letters, without signs, with hyphens between them. A heading that ends with
/// names in braces, "## The pause {DelayInterval}", opens the section of the windows so named; the braces are
/// not shown. Any other text is shown as it is.
class GuideText : public QTextBrowser {
    Q_OBJECT

public:
    explicit GuideText(QWidget* parent);

    /// Shows a guide. One that is shown already is not laid out again.
    void setGuide(const QString& guide);

    /// Goes to the section of a window, or to the beginning where it has none. One can come back from there,
    /// but for the first section that is seen of a guide.
    void goToSection(const QString& window);

    /// These mark the words where they stand next, from where the reader is, and go on at the other end of
    /// the guide. What is marked already counts for `findHere` alone. Return whether the words were found; if
    /// not, all stays as it is.
    bool findHere(const QString& words);
    bool findNext(const QString& words);
    bool findPrevious(const QString& words);

protected:
    /// Goes to the next link from what is marked, else from the top of what is shown; back from the first to
    /// the last.
    bool focusNextPrevChild(bool next) override;

    /// The keys that lead to the beginning and the end of a text do so with Ctrl as without.
    void keyPressEvent(QKeyEvent* event) override;

    /// The hyphens of endings, which are shown so that they stay with their letters, are copied as plain
    /// ones.
    QMimeData* createMimeDataFromSelection() const override;

    /// These keep the reader's place where it is.
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void offerToScrollSideways(int least, int most);
    QTextDocument* madeReady(const QString& guide);
    void openSections(const QTextBlock& heading);
    QTextCursor readersPlace() const;
    void bringBack(const QTextCursor& place, int top);
    bool findFrom(int place, const QString& words);
    bool mark(const QTextCursor& found);
    void forgetMarked();
    void moveMark(const QTextCursor& mark);

    QString guide_;
    QSet<QString> sections_;
};

} // namespace shell
