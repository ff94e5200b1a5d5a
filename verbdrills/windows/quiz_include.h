#pragma once

#include "shell/kit/framed_window.h"
#include "verbdrills/quiz_inclusion.h"

#include <array>

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;

namespace shell {
class ContentArea;
}

namespace verbdrills {

/// Chooses the classes and the tenses that the verb quiz asks.
class QuizInclude : public shell::FramedWindow {
    Q_OBJECT

public:
    QuizInclude();

    /// Shows the window with the boxes ticked that are included.
    void open();

    /// Shows it likewise, with a note that of these no form can be asked.
    void openAsNothingCanBeAsked();

Q_SIGNALS:
    /// The ticked boxes were taken.
    void chosen();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeControls();
    void layOut();
    void layOutTenses();
    void connectControls();
    void appear();
    QuizTicks ticks() const;
    void showTicks(const QuizTicks& ticks);
    void storeAtOnce();
    void take();

    std::array<QCheckBox*, verbs::LastClass> classes_{};
    std::array<QCheckBox*, verbs::BlockCount> tenses_{};
    QLabel* note_;
    QWidget* ticks_;
    shell::ContentArea* scrolled_;
    QGroupBox* classFrame_;
    QGroupBox* tenseFrame_;
    QPushButton* ok_ = nullptr;
    QPushButton* all_ = nullptr;
    QPushButton* none_ = nullptr;
    QPushButton* cancel_ = nullptr;
};

} // namespace verbdrills
