#include "progress/windows/practice_days.h"

#include "progress/windows/shade.h"
#include "shell/kit/text.h"
#include "shell/language_texts.h"

#include <QDate>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace progress {

namespace {

constexpr int Weeks = 53;
constexpr int DaysOfWeek = 7;
constexpr int SmallestStep = 6;
constexpr double StepInLines = 0.8;
constexpr int Gap = 2;

// The first of January 1970 was a Thursday.
constexpr int WeekdayOfDayNought = 3;

constexpr std::array Months = {"I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X", "XI", "XII"};

// clang-format off
//                                   English                     French                           Italian German                       Spanish                         Latin
constexpr shell::LanguageTexts OfDay{"%1: %2 answers, %3 right", "%1 : %2 réponses, %3 justes",   {},     "%1: %2 Antworten, %3 richtig", "%1: %2 respuestas, %3 bien", "%1: %2 responsa, %3 recta"};
// clang-format on

Day weekdayOf(Day day)
{
    return (day + WeekdayOfDayNought) % DaysOfWeek;
}

QDate dateOf(Day day)
{
    return QDate(1970, 1, 1).addDays(day);
}

} // namespace

PracticeDays::PracticeDays(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void PracticeDays::showYear(std::vector<DayOfPractice> year)
{
    year_ = std::move(year);
    mostAnswers_ = 0;
    for (const DayOfPractice& day : year_)
        mostAnswers_ = std::max(mostAnswers_, day.share.answered);
    update();
}

QSize PracticeDays::sizeHint() const
{
    return {Weeks * designedStep(), monthsHeight() + DaysOfWeek * designedStep()};
}

QSize PracticeDays::minimumSizeHint() const
{
    return {Weeks * SmallestStep, sizeHint().height()};
}

int PracticeDays::designedStep() const
{
    return std::max(SmallestStep, qRound(StepInLines * fontMetrics().lineSpacing()));
}

int PracticeDays::step() const
{
    return std::clamp(width() / Weeks, SmallestStep, designedStep());
}

QRect PracticeDays::placeOf(const DayOfPractice& day) const
{
    const Day fromMonday = day.day - year_.front().day + weekdayOf(year_.front().day);
    const int week = static_cast<int>(fromMonday / DaysOfWeek);
    const int weekday = static_cast<int>(fromMonday % DaysOfWeek);
    return {week * step(), monthsHeight() + weekday * step(), step() - Gap, step() - Gap};
}

void PracticeDays::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QColor none = palette().color(QPalette::AlternateBase);
    const QColor edge = palette().color(QPalette::Mid);
    for (const DayOfPractice& day : year_) {
        const QRect place = placeOf(day);
        const bool practised = day.share.answered > 0;
        painter.fillRect(place,
                         practised ? shadeOf(std::sqrt(double(day.share.answered) / mostAnswers_)) : none);
        painter.setPen(day.day == year_.back().day ? palette().color(QPalette::WindowText) : edge);
        painter.drawRect(place.adjusted(0, 0, -1, -1));
        const QDate date = dateOf(day.day);
        painter.setPen(palette().color(QPalette::WindowText));
        if (date.day() == 1)
            painter.drawText(QPoint(place.left(), fontMetrics().ascent()),
                             QLatin1String(Months.at(static_cast<std::size_t>(date.month() - 1))));
    }
}

void PracticeDays::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometry();
}

bool PracticeDays::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto& help = *static_cast<QHelpEvent*>(event);
    QString text;
    for (const DayOfPractice& day : year_)
        if (placeOf(day).contains(help.pos()))
            text = shell::fromUtf8(OfDay)
                       .arg(dateOf(day.day).toString(Qt::ISODate))
                       .arg(day.share.answered)
                       .arg(day.share.right);
    QToolTip::showText(help.globalPos(), text, this);
    return true;
}

} // namespace progress
