#include "progress/windows/practice_days.h"

#include "progress/windows/shade.h"
#include "shell/kit/text.h"
#include "shell/language_texts.h"

#include <QDate>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

namespace progress {

namespace {

constexpr int Weeks = 53;
constexpr int DaysOfWeek = 7;
constexpr int SmallestStep = 6;
constexpr double StepInLines = 0.8;
constexpr double LeastStepInLines = 0.6;
constexpr int Gap = 2;
constexpr int FrameWidth = 2;

// The first of January 1970 was a Thursday.
constexpr int WeekdayOfDayNought = 3;

constexpr std::array Months = {"I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X", "XI", "XII"};

// clang-format off
//                                      English                     French                         Italian German                         Spanish                         Latin
constexpr shell::LanguageTexts OneOfDay{"%1: %2 answer, %3 right",  "%1 : %2 réponse, %3 juste",   {},     "%1: %2 Antwort, %3 richtig",   "%1: %2 respuesta, %3 bien",    "%1: %2 responsum, %3 rectum"};
constexpr shell::LanguageTexts OfDay   {"%1: %2 answers, %3 right", "%1 : %2 réponses, %3 justes", {},     "%1: %2 Antworten, %3 richtig", "%1: %2 respuestas, %3 bien",   "%1: %2 responsa, %3 recta"};

// The names of months are English ones.
//                                        English        French        Italian German        Spanish       Latin
constexpr shell::LanguageTexts DateFormat{"d MMMM yyyy", "dd/MM/yyyy", {},     "dd.MM.yyyy", "dd/MM/yyyy", "yyyy-MM-dd"};
// clang-format on

Day weekdayOf(Day day)
{
    return (day + WeekdayOfDayNought) % DaysOfWeek;
}

QDate dateOf(Day day)
{
    return QDate(1970, 1, 1).addDays(day);
}

// How far an arrow goes: the weeks stand beside each other.
std::optional<int> daysTo(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return -1;
    case Qt::Key_Down:
        return 1;
    case Qt::Key_Left:
        return -DaysOfWeek;
    case Qt::Key_Right:
        return DaysOfWeek;
    default:
        return {};
    }
}

} // namespace

PracticeDays::PracticeDays(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setFocusPolicy(Qt::StrongFocus);
}

void PracticeDays::showYear(std::vector<DayOfPractice> year)
{
    year_ = std::move(year);
    mostAnswers_ = 0;
    for (const DayOfPractice& day : year_)
        mostAnswers_ = std::max(mostAnswers_, day.share.answered);
    if (!year_.empty())
        choose(year_.size() - 1);
    update();
}

void PracticeDays::choose(std::size_t day)
{
    chosen_ = day;
    const QString text = inWords(year_.at(day));
    setAccessibleDescription(text);
    update();
    Q_EMIT dayChosen(text);
}

QString PracticeDays::inWords(const DayOfPractice& day) const
{
    return shell::fromUtf8(day.share.answered == 1 ? OneOfDay : OfDay)
        .arg(QLocale::c().toString(dateOf(day.day), shell::fromUtf8(DateFormat)))
        .arg(day.share.answered)
        .arg(day.share.right);
}

void PracticeDays::keyPressEvent(QKeyEvent* event)
{
    const auto step = daysTo(event->key());
    if (!step || year_.empty()) {
        QWidget::keyPressEvent(event);
        return;
    }
    const auto day = static_cast<std::int64_t>(chosen_) + *step;
    const auto last = static_cast<std::int64_t>(year_.size()) - 1;
    choose(static_cast<std::size_t>(std::clamp<std::int64_t>(day, 0, last)));
}

void PracticeDays::mousePressEvent(QMouseEvent* event)
{
    for (std::size_t day = 0; day < year_.size(); ++day)
        if (placeOf(year_[day]).contains(event->pos()))
            choose(day);
}

void PracticeDays::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void PracticeDays::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

QSize PracticeDays::sizeHint() const
{
    return {Weeks * designedStep(), monthsHeight() + DaysOfWeek * designedStep()};
}

QSize PracticeDays::minimumSizeHint() const
{
    const int least = std::max(SmallestStep, qRound(LeastStepInLines * fontMetrics().lineSpacing()));
    return {Weeks * SmallestStep, monthsHeight() + DaysOfWeek * least};
}

int PracticeDays::designedStep() const
{
    return std::max(SmallestStep, qRound(StepInLines * fontMetrics().lineSpacing()));
}

int PracticeDays::step() const
{
    const int room = std::min(width() / Weeks, (height() - monthsHeight()) / DaysOfWeek);
    return std::clamp(room, SmallestStep, designedStep());
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
    const QColor edge = outlineColour();
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
    if (year_.empty() || !hasFocus())
        return;
    painter.setPen(QPen(palette().color(QPalette::WindowText), FrameWidth));
    painter.drawRect(placeOf(year_.at(chosen_)));
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
            text = inWords(day);
    QToolTip::showText(help.globalPos(), text, this);
    return true;
}

} // namespace progress
