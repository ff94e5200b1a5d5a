#pragma once

#include "progress/store.h"

#include <QWidget>

#include <vector>

namespace progress {

/// The days of practice of a year as a calendar: a column a week, Monday at its top, under the numbers of the
/// months. The more answers a day saw, the fuller is its colour; its tooltip has their number.
class PracticeDays : public QWidget {
    Q_OBJECT

public:
    explicit PracticeDays(QWidget* parent);

    /// Shows days that follow each other, the last of them today.
    void showYear(std::vector<DayOfPractice> year);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    int step() const;
    int designedStep() const;
    int monthsHeight() const { return fontMetrics().lineSpacing(); }
    QRect placeOf(const DayOfPractice& day) const;

    std::vector<DayOfPractice> year_;
    int mostAnswers_ = 0;
};

} // namespace progress
