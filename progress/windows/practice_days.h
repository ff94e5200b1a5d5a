#pragma once

#include "progress/store.h"

#include <QWidget>

#include <vector>

namespace progress {

/// The days of practice of a year as a calendar: a column a week, Monday at its top, under the numbers of the
/// months. The more answers a day saw, the fuller is its colour; its tooltip has their number. One day is
/// chosen, at first the last: the up and down arrows go from day to day, left and right from week to week.
class PracticeDays : public QWidget {
    Q_OBJECT

public:
    explicit PracticeDays(QWidget* parent);

    /// Shows days that follow each other, the last of them today.
    void showYear(std::vector<DayOfPractice> year);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// What was answered on the day that is chosen now.
    void dayChosen(const QString& inWords);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    int step() const;
    int designedStep() const;
    int monthsHeight() const { return fontMetrics().lineSpacing(); }
    void choose(std::size_t day);
    QString inWords(const DayOfPractice& day) const;
    QRect placeOf(const DayOfPractice& day) const;

    std::vector<DayOfPractice> year_;
    std::size_t chosen_ = 0;
    int mostAnswers_ = 0;
};

} // namespace progress
