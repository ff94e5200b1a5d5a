#pragma once

#include <QObject>
#include <QString>

class QKeyEvent;
class QWidget;

namespace shell {

/// Keeps what is typed into a drill's window while an answer is announced, as long as it lives: letters, be
/// they put together by an input method, with Enter as a line end behind them. Backspace takes the last
/// letter back; Enter alone, and a key that asks for a hint, are dropped. The keys that move the focus or
/// leave the drill do as they always do, and so do those of a menu bar, and Enter and the space bar on a
/// button before anything was typed.
class TypedAhead : public QObject {
    Q_OBJECT

public:
    /// `keys` holds what was kept before and receives what is kept.
    TypedAhead(const QWidget& window, QString& keys);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool somethingIsTyped() const;

    /// True where the key is kept or dropped, false where it does what it always does.
    bool keeps(const QKeyEvent& key);
    void keep(const QString& typed);

    const QWidget& window_;
    QString& keys_;
};

} // namespace shell
