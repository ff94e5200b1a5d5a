// What a million answers cost beside a thousand: to open the file and read what the window of progress shows,
// to find the next form that is due, and to keep one answer more. Prints rows of a table, and fails where a
// ratio is above the limit.

#include "platform/platform.h"
#include "progress/calendar.h"
#include "progress/sqlite/store_loader.h"
#include "progress/sums.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr double LargestRatio = 1.5;
constexpr int Few = 1'000;
constexpr int Many = 1'000'000;
constexpr std::int64_t Noon = 20'000 * 86'400LL + 43'200;

// An answer to one of the forms of eight classes, so few that a thousand answers ask nearly all; drawn at
// random; a minute after the one before, and right four times of five.
progress::Row answerNumber(int number)
{
    static std::mt19937 random(1);
    constexpr int classes = 8;
    constexpr int tenses = 8;
    constexpr int persons = 4;
    const int form = static_cast<int>(random() % (classes * tenses * persons));
    const auto part = [](const char* name, int which) { return name + std::to_string(which); };
    const bool right = random() % 5 != 0;
    return {.moment = {.secondsSinceEpoch = Noon - (Many - number) * 60LL},
            .answer = {.exercise = "Conjugation",
                       .word = part("verb", form % classes),
                       .place = shell::placeOf(part("class", form % classes),
                                               part("tense", form / classes % tenses),
                                               part("person", form / classes / tenses)),
                       .asked = "amare, Perfect Subjunctive, 3rd Person Plur",
                       .expected = "amaverint",
                       .written = right ? "amaverint" : "amaverunt",
                       .right = right},
            .drill = number / 20};
}

std::unique_ptr<progress::Store> open(const std::filesystem::path& file)
{
    progress::Opened opened = progress::openStore(file, progress::Access::Write);
    if (!opened.store || progress::bringUpToDate(*opened.store) != progress::Trouble::None)
        std::exit(EXIT_FAILURE);
    return std::move(opened.store);
}

std::filesystem::path fileOf(const std::filesystem::path& folder, int answers)
{
    const std::filesystem::path file = folder / (std::to_string(answers) + ".db");
    const auto store = open(file);
    store->begin();
    for (int number = Many - answers; number < Many; ++number)
        store->append(answerNumber(number));
    if (store->commit() != progress::Trouble::None ||
        progress::bringUpToDate(*store) != progress::Trouble::None)
        std::exit(EXIT_FAILURE);
    store->settle();
    return file;
}

void readWhatIsShown(progress::Store& store)
{
    const progress::Day today = Noon / 86'400;
    for (const progress::Grid grid : progress::Grids)
        store.cellsOf(grid);
    progress::yearOfPractice(store, today);
    store.formsOf({progress::Grid::Tenses, "class1", "tense1"});
}

// As a review finds it, on a day when every form is due.
void findNextDue(progress::Store& store)
{
    const auto due = store.dueForms(Noon / 86'400 + progress::DaysUntilDue.back(), "");
    if (due.empty() || !store.form(due.front()))
        std::exit(EXIT_FAILURE);
}

template <typename Work>
double microsecondsOf(Work work)
{
    const auto begin = Clock::now();
    work();
    return std::chrono::duration<double, std::micro>(Clock::now() - begin).count();
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values.at(values.size() / 2);
}

// The two are timed in turn, so that both meet the same machine. What is measured takes a store, many or few.
template <typename OfMany, typename OfFew>
bool row(const char* what, OfMany ofMany, OfFew ofFew)
{
    constexpr int rounds = 301;
    std::vector<double> many;
    std::vector<double> few;
    std::vector<double> ratios;
    for (int i = 0; i < rounds; ++i) {
        many.push_back(microsecondsOf(ofMany));
        few.push_back(microsecondsOf(ofFew));
        ratios.push_back(many.back() / few.back());
    }
    const double ratio = median(ratios);
    std::printf("| %s, of a million answers : of a thousand | %.2f (%.0f µs : %.0f µs) | %.1f |\n", what,
                ratio, median(many), median(few), LargestRatio);
    return ratio <= LargestRatio;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    const QTemporaryDir folder;
    const auto many = fileOf(folder.path().toStdString(), Many);
    const auto few = fileOf(folder.path().toStdString(), Few);

    bool kept = row(
        "progress opened and read", [&] { readWhatIsShown(*open(many)); },
        [&] { readWhatIsShown(*open(few)); });
    const auto manyStore = open(many);
    const auto fewStore = open(few);
    kept = row(
               "all due forms and the next of them", [&] { findNextDue(*manyStore); },
               [&] { findNextDue(*fewStore); }) &&
           kept;
    int number = Many;
    kept = row(
               "one answer kept", [&] { progress::keepRow(*manyStore, answerNumber(++number)); },
               [&] { progress::keepRow(*fewStore, answerNumber(++number)); }) &&
           kept;
    return kept ? EXIT_SUCCESS : EXIT_FAILURE;
}
