#pragma once

#include <QLabel>

namespace vocabulary {

/// A label for a text of a list, shown letter by letter as it stands, in as many lines as it takes.
class WordLabel : public QLabel {
    Q_OBJECT

public:
    explicit WordLabel(QWidget* parent) : QLabel(parent)
    {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setMinimumWidth(1);
    }

Q_SIGNALS:
    void doubleClicked();

protected:
    void mouseDoubleClickEvent(QMouseEvent* /*event*/) override { Q_EMIT doubleClicked(); }
};

} // namespace vocabulary
