#pragma once

#include "shell/kit/answer_box.h"

#include <QLabel>

#include <algorithm>

namespace vocabulary {

/// The box for a meaning. "/" and "?" are part of an answer here.
class WordBox : public shell::AnswerBox {
    Q_OBJECT

public:
    using AnswerBox::AnswerBox;

protected:
    bool takesHintKeys() const override { return false; }
};

/// A label for a text of a list, shown letter by letter as it stands, in as many lines as it takes; a word
/// that is too long for a line is broken. It asks for room for its longest word and for all its lines, within
/// reason.
class WordLabel : public QLabel {
    Q_OBJECT

public:
    explicit WordLabel(QWidget* parent) : QLabel(parent)
    {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
    }

    void showText(const QString& text)
    {
        constexpr QChar mayBreak(0x200B);
        QString broken;
        qsizetype lengthOfWord = 0;
        for (const QChar letter : text) {
            lengthOfWord = letter.isSpace() ? 0 : lengthOfWord + 1;
            if (lengthOfWord > FirmLetters)
                broken += mayBreak;
            broken += letter;
        }
        setText(broken);
    }

    QSize minimumSizeHint() const override
    {
        constexpr int mostLines = 5;
        const int room =
            std::min(QLabel::minimumSizeHint().width(), LongestWord * fontMetrics().averageCharWidth());
        const int height = heightForWidth(std::max(room, width()));
        return {room, std::min(height, mostLines * fontMetrics().lineSpacing())};
    }

Q_SIGNALS:
    void doubleClicked();

protected:
    /// Its lines depend on its width, and the window has to make room for them.
    void resizeEvent(QResizeEvent* event) override
    {
        QLabel::resizeEvent(event);
        updateGeometry();
    }

    void mouseDoubleClickEvent(QMouseEvent* /*event*/) override { Q_EMIT doubleClicked(); }

private:
    static constexpr int FirmLetters = 14;
    static constexpr int LongestWord = 24;
};

} // namespace vocabulary
