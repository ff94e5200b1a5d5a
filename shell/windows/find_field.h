#pragma once

#include <QLineEdit>

namespace shell {

/// A field for words that are to be found. Enter goes on to the next place, and with Shift back to the one
/// before; Escape leaves the field and not its window.
class FindField : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    /// Shows in quiet letters that the words are nowhere.
    void showFound(bool found);

Q_SIGNALS:
    void nextRequested();
    void previousRequested();
    void escaped();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace shell
