#pragma once

#include <QScrollArea>

namespace shell {

/// Content of a window, or of a part of it. It is shown whole where the screen has room for it, and can be
/// scrolled where the screen has not; what receives the focus, or has it when the content takes another
/// size, comes into view.
class ContentArea : public QScrollArea {
    Q_OBJECT

public:
    ContentArea(QWidget* content, QWidget* parent);
    ~ContentArea() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Scrolls, if need be, so that a widget of the content is seen.
    void bringIntoView(QWidget& shown);

Q_SIGNALS:
    /// The content, which has changed or is about to be seen, asks for so many pixels more than its room is
    /// high.
    void roomMissing(int pixels);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QSize withScrollBar(QSize content) const;
    QSize leastSize(int width) const;
    void askForRoom();
    void fitContent();
    void showFocus(QWidget* focused);
};

/// Scrolls the content that a widget stands in, if need be, so that it is seen.
void bringIntoView(QWidget& shown);

} // namespace shell
