// How the windows answer: the switch of captions beside the same number of texts on a bare window, the time
// from Enter to the painted judgement, with the answers kept and without, the processor time of a pause, and
// what a look-up in the tables takes. Needs a display. Prints rows of a table, and fails where a limit is
// passed.

#include "app/application.h"
#include "app/navigation.h"
#include "app/qt_platform.h"
#include "bench/full_lists.h"
#include "platform/platform.h"
#include "shell/looks.h"
#include "shell/settings.h"
#include "verbdrills/conjugation_drill.h"

#include <QAction>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr double OneFrame = 16;
constexpr double MostOfPause = 5;
constexpr double MostOfKeeping = 1.1;

double millisecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

double processorMilliseconds()
{
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6;
}

double quantile(std::vector<double> values, double share)
{
    std::ranges::sort(values);
    return values.at(static_cast<std::size_t>(share * static_cast<double>(values.size() - 1)));
}

QWidget& window(const char* name)
{
    for (QWidget* const each : QApplication::topLevelWidgets())
        if (each->objectName() == QLatin1String(name))
            return *each;
    std::abort();
}

template <typename Control>
Control& control(const char* windowName, const QString& name)
{
    return *window(windowName).findChild<Control*>(name);
}

void settle()
{
    for (int i = 0; i < 20; ++i)
        QApplication::processEvents(QEventLoop::AllEvents, 10);
}

// The platform of the program, whose clock can be put ahead to end a pause.
class ImpatientPlatform : public app::QtPlatform {
public:
    float secondsSinceMidnight() const override { return QtPlatform::secondsSinceMidnight() + ahead; }

    float ahead = 0;
};

// Says when a judgement is on the screen: the call comes once the paint event is through. It can end the
// pause then.
class Judgement : public QObject {
public:
    explicit Judgement(ImpatientPlatform& platform) : platform_(platform) {}

    Clock::time_point painted;
    double processorAtPaint = 0;
    float putsAhead = 0;

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && waits_ &&
            receiver->objectName().endsWith(QLatin1String("Caption"))) {
            waits_ = false;
            QMetaObject::invokeMethod(
                this, [this] { note(); }, Qt::QueuedConnection);
        }
        return false;
    }

    void await() { waits_ = true; }

    void mustHaveCome() const
    {
        if (!waits_)
            return;
        std::fprintf(stderr, "windows_bench: a judgement was never painted\n");
        std::abort();
    }

private:
    void note()
    {
        painted = Clock::now();
        processorAtPaint = processorMilliseconds();
        platform_.ahead += putsAhead;
    }

    ImpatientPlatform& platform_;
    bool waits_ = false;
};

// Types a form, and returns when Enter was pressed.
Clock::time_point answer(const std::string& form)
{
    auto& box = control<QLineEdit>(
        "Conjugation", QStringLiteral("ConjText%1").arg(verbdrills::conjugationDrill.PersonIndex));
    box.setText(QString::fromStdString(form));
    settle();
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    const auto begin = Clock::now();
    QApplication::sendEvent(&box, &enter);
    return begin;
}

void openDrill()
{
    control<QPushButton>("MainMenu", QStringLiteral("ConjugationButton")).click();
    settle();
    control<QListWidget>("ConjugationChoose", QStringLiteral("ConjugationList")).setCurrentRow(0);
    control<QPushButton>("ConjugationChoose", QStringLiteral("cchok")).click();
    settle();
}

// A row of the table: what, measured, at most.
bool row(const char* what, const QString& measured, const QString& limit, bool kept)
{
    std::printf("| %s | %s | %s |\n", what, qPrintable(measured), qPrintable(limit));
    return kept;
}

double timeOfJudgement(Judgement& judgement, const std::string& form)
{
    judgement.putsAhead = static_cast<float>(shell::settings.DelaySeconds);
    judgement.await();
    const auto begin = answer(form);
    judgement.mustHaveCome();
    return std::chrono::duration<double, std::milli>(judgement.painted - begin).count();
}

bool measureJudgements(Judgement& judgement)
{
    constexpr int rounds = 120;
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        times.push_back(timeOfJudgement(judgement, "?!"));
        times.push_back(timeOfJudgement(judgement, verbdrills::conjugationDrill.CorrectForm));
    }
    const double slow = quantile(times, 0.99);
    return row("Enter to the judgement painted, 99th percentile",
               QStringLiteral("%1 ms (median %2)").arg(slow, 0, 'f', 1).arg(quantile(times, 0.5), 0, 'f', 1),
               QStringLiteral("%1 ms").arg(OneFrame), slow < OneFrame);
}

// As long as it takes at least to think of a form.
void think()
{
    constexpr int milliseconds = 150;
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

// The program is begun anew for each turn, and the first answer, with which the record is opened, left out.
bool measureKeeping(Judgement& judgement)
{
    constexpr int turns = 6;
    constexpr int rounds = 24;
    std::array<std::vector<double>, 2> times;
    for (int turn = 0; turn < 2 * turns; ++turn) {
        shell::looks.KeepAnswers = turn % 2 == 1;
        app::Navigation navigation;
        navigation.start();
        settle();
        openDrill();
        timeOfJudgement(judgement, "?!");
        for (int i = 0; i < rounds; ++i) {
            think();
            times.at(shell::looks.KeepAnswers).push_back(timeOfJudgement(judgement, "?!"));
        }
    }
    const double without = quantile(times.front(), 0.5);
    const double kept = quantile(times.back(), 0.5);
    return row("Enter to the judgement painted, kept, by that without, medians",
               QStringLiteral("%1 ms by %2: %3")
                   .arg(kept, 0, 'f', 2)
                   .arg(without, 0, 'f', 2)
                   .arg(kept / without, 0, 'f', 2),
               QString::number(MostOfKeeping), kept < MostOfKeeping * without);
}

bool measurePause(Judgement& judgement)
{
    constexpr int seconds = 2;
    shell::settings.DelaySeconds = seconds;
    judgement.putsAhead = 0;
    judgement.await();
    answer("?!");
    judgement.mustHaveCome();
    const double used = processorMilliseconds() - judgement.processorAtPaint;
    return row("processor time of a pause of two seconds", QStringLiteral("%1 ms").arg(used, 0, 'f', 1),
               QStringLiteral("%1 ms").arg(MostOfPause), used < MostOfPause);
}

// As many buttons and items as the main window has.
class BareWindow : public QWidget {
public:
    BareWindow()
    {
        auto* const grid = new QGridLayout(this);
        auto* const bar = new QMenuBar;
        grid->setMenuBar(bar);
        const QWidget& mainMenu = ::window("MainMenu");
        for (const QPushButton* const like : mainMenu.findChildren<QPushButton*>())
            grid->addWidget(buttons_.emplace_back(new QPushButton(like->text())));
        for (const QAction* const like : mainMenu.findChildren<QAction*>())
            items_.push_back(bar->addMenu(like->text())->addAction(like->text()));
    }

    void setTexts(const QString& text)
    {
        for (QPushButton* const button : buttons_)
            button->setText(text);
        for (QAction* const item : items_)
            item->setText(text);
    }

private:
    std::vector<QPushButton*> buttons_;
    std::vector<QAction*> items_;
};

template <typename Work>
double millisecondsOf(Work work)
{
    const auto begin = Clock::now();
    work();
    QApplication::sendPostedEvents();
    QApplication::processEvents();
    return millisecondsSince(begin);
}

bool measureSwitch()
{
    constexpr int rounds = 101;
    BareWindow bare;
    bare.resize(window("MainMenu").size());
    bare.show();
    settle();
    std::vector<double> times;
    std::vector<double> ratios;
    for (int i = 0; i < rounds; ++i) {
        const bool odd = i % 2 == 1;
        const double own = millisecondsOf([odd] {
            control<QAction>("MainMenu", odd ? QStringLiteral("GermanLang") : QStringLiteral("EnglishLang"))
                .trigger();
        });
        const double plain = millisecondsOf(
            [&] { bare.setTexts(odd ? QStringLiteral("&Substantive") : QStringLiteral("&Nouns")); });
        times.push_back(own);
        ratios.push_back(own / plain);
    }
    const double slow = quantile(times, 0.99);
    return row("switch of captions, painted, 99th percentile",
               QStringLiteral("%1 ms (%2 times a bare window's)")
                   .arg(slow, 0, 'f', 1)
                   .arg(quantile(ratios, 0.5), 0, 'f', 1),
               QStringLiteral("%1 ms").arg(OneFrame), slow < OneFrame);
}

// Each letter that is typed is a look-up; the lists are full.
bool measureLookUps()
{
    constexpr int rounds = 30;
    control<QAction>("MainMenu", QStringLiteral("FileTables")).trigger();
    bench::fillLists();
    settle();
    auto& form = control<QLineEdit>("Tables", QStringLiteral("TablesForm"));
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i)
        for (const auto& typed :
             {QStringLiteral("regis"), QStringLiteral("amaverit"), QStringLiteral("fru:ctu:s")}) {
            for (qsizetype letters = 1; letters <= typed.size(); ++letters)
                times.push_back(millisecondsOf([&] { form.setText(typed.first(letters)); }));
            if (control<QListWidget>("Tables", QStringLiteral("TablesReadings")).count() == 0)
                std::abort();
        }
    const double slow = quantile(times, 0.99);
    return row("look-up of a form to its readings painted, 99th percentile",
               QStringLiteral("%1 ms (median %2)").arg(slow, 0, 'f', 1).arg(quantile(times, 0.5), 0, 'f', 1),
               QStringLiteral("%1 ms").arg(OneFrame), slow < OneFrame);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    app::Application application(argumentCount, arguments);
    const QTemporaryDir folder;
    std::filesystem::copy(MORVANTI_DATA, folder.path().toStdString(),
                          std::filesystem::copy_options::recursive);
    std::filesystem::current_path(folder.path().toStdString());
    ImpatientPlatform platform;
    platform::use(platform);
    Judgement judgement(platform);
    QApplication::instance()->installEventFilter(&judgement);
    bool kept = measureKeeping(judgement);
    app::Navigation navigation;
    navigation.start();
    shell::settings.SaveSettingsOnExit = platform::FlagFalse;
    shell::looks.FirstStepsDone = true;
    settle();

    kept = measureSwitch() && kept;
    kept = measureLookUps() && kept;
    openDrill();
    kept = measureJudgements(judgement) && kept;
    kept = measurePause(judgement) && kept;
    return kept ? EXIT_SUCCESS : EXIT_FAILURE;
}
