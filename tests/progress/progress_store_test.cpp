#include "progress/calendar.h"
#include "progress/csv.h"
#include "progress/keeper.h"
#include "progress/review.h"
#include "progress/sqlite/store_loader.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "tests/support/full_disk.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <deque>
#include <map>
#include <random>
#include <set>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// The write, counted from 1, in which this process is killed: before it, or with half of it on the disk. At 0
// it is not.
int deadlyWrite = 0;

} // namespace

// All that SQLite writes goes through here.
extern "C" ssize_t pwrite64(int file, const void* bytes, std::size_t count, off64_t offset)
{
    if (deadlyWrite > 0 && --deadlyWrite == 0) {
        if (offset / 8 % 2 == 0)
            ::syscall(SYS_pwrite64, file, bytes, count / 2, offset);
        ::raise(SIGKILL);
    }
    return ::syscall(SYS_pwrite64, file, bytes, count, offset);
}

namespace {

namespace fs = std::filesystem;
using progress::Keeper;

constexpr std::size_t All = 1'000'000;

// Another program at work on the same file.
class OtherProgram {
public:
    OtherProgram()
    {
        database_.setDatabaseName("progress.db");
        database_.open();
    }
    ~OtherProgram()
    {
        database_ = {};
        QSqlDatabase::removeDatabase("other");
    }

    QSqlQuery run(const QString& statement) { return QSqlQuery(statement, database_); }

    std::pair<int, int> twoNumbers(const QString& statement)
    {
        QSqlQuery query = run(statement);
        EXPECT_TRUE(query.next()) << statement.toStdString();
        return {query.value(0).toInt(), query.value(1).toInt()};
    }

private:
    QSqlDatabase database_ = QSqlDatabase::addDatabase("QSQLITE", "other");
};

shell::AnswerRecord answerNumber(int number, bool right = true)
{
    const std::string word = "word" + std::to_string(number % 7);
    return {.exercise = "Vcabtester",
            .word = word,
            .place = "a.lst / word",
            .asked = word,
            .expected = "meaning",
            .written = std::to_string(number),
            .right = right};
}

class ProgressStore : public tests::FreshState {
protected:
    std::unique_ptr<Keeper> keeper = opened();

    static std::unique_ptr<Keeper> opened()
    {
        return std::make_unique<Keeper>("progress.db", progress::openStore);
    }

    void openAnew()
    {
        keeper.reset();
        keeper = opened();
    }

    std::vector<progress::Row> rows() const
    {
        return keeper->store() == nullptr ? std::vector<progress::Row>{} : keeper->store()->rowsAfter(0, All);
    }

    // Keeps answers with these numbers.
    void keepAnswers(int from, int to) const
    {
        for (int number = from; number <= to; ++number)
            keeper->keep(Keeper::rowOf(answerNumber(number)));
    }
};

// Keeps answers until it is killed in one of its writes, and says of each through a pipe that it is kept.
[[noreturn]] void keepUntilKilled(int write, int from, int pipe)
{
    deadlyWrite = write;
    Keeper keeper("progress.db", progress::openStore);
    for (int number = from;; ++number) {
        keeper.keep(Keeper::rowOf(answerNumber(number)));
        if (::write(pipe, "k", 1) != 1)
            ::_exit(1);
    }
}

TEST_F(ProgressStore, KilledInAnyStepOfAWriteLosesAtMostTheAnswerUnderWay)
{
    int kept = 0;
    progress::openStore("loaded.db", progress::Access::Write);
    for (int write = 1; write <= 100; ++write) {
        std::array<int, 2> pipe{};
        ASSERT_EQ(::pipe(pipe.data()), 0);
        const pid_t child = ::fork();
        if (child == 0)
            keepUntilKilled(write, kept + 1, pipe[1]);
        ::close(pipe[1]);
        for (char each = 0; ::read(pipe[0], &each, 1) == 1;)
            ++kept;
        ::close(pipe[0]);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);

        const auto found = rows();
        ASSERT_TRUE(found.size() == static_cast<std::size_t>(kept) ||
                    found.size() == static_cast<std::size_t>(kept) + 1)
            << found.size() << " of " << kept << " after write " << write;
        kept = static_cast<int>(found.size());
        for (int number = 1; number <= kept; ++number)
            ASSERT_EQ(found.at(static_cast<std::size_t>(number - 1)).answer.written, std::to_string(number));
        if (kept > 0) {
            const auto days = keeper->store()->daysOfPractice(0, 30000);
            ASSERT_EQ(days.at(0).share, (progress::Share{kept, kept}));
        }
        openAnew();
    }
    EXPECT_GT(kept, 100);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ProgressStore, DamagedIsSetAsideWithItsCompanionsAndANewOneBegun)
{
    keepAnswers(1, 500);
    keeper.reset();
    const std::string whole = tests::bytesOf("progress.db");
    std::string middle = whole;
    std::fill(middle.begin() + 4096, middle.end(), 'x');
    for (const std::string& bytes : {std::string(5000, 'x'), middle, whole.substr(0, whole.size() / 2)}) {
        fake.messages.clear();
        tests::writeFile("progress.db", bytes);
        tests::writeFile("progress.db-wal", "no log");
        keeper = opened();
        keepAnswers(1, 2);
        ASSERT_EQ(fake.messages.size(), 1U);
        EXPECT_EQ(fake.messages.at(0),
                  "progress.db was damaged: it has another name now, and a new one was begun.");
        EXPECT_EQ(rows().size(), 2U);
        keeper.reset();
        const std::string aside = "progress.db.damaged-20241004T120000";
        EXPECT_TRUE(tests::bytesOf(aside) == bytes);
        // Where it was no database at all, its log may hold the last answers.
        EXPECT_TRUE(fs::exists(aside + "-wal") || bytes.front() != 'x');
        for (const char* const suffix : {"", "-wal", "-shm"})
            fs::remove(aside + suffix);
    }
}

TEST_F(ProgressStore, OfANewerVersionStaysUntouched)
{
    keepAnswers(1, 3);
    keeper.reset();
    OtherProgram().run("PRAGMA user_version = 2");
    const std::string before = tests::bytesOf("progress.db");
    int openings = 0;
    keeper = std::make_unique<Keeper>("progress.db", [&](const fs::path& file, progress::Access access) {
        ++openings;
        return progress::openStore(file, access);
    });
    keepAnswers(4, 5);
    EXPECT_EQ(keeper->store(), nullptr);
    EXPECT_EQ(openings, 1);
    EXPECT_EQ(fake.messages,
              std::vector<std::string>{"progress.db comes from a newer version of this program: "
                                       "answers are not kept."});
    EXPECT_TRUE(tests::bytesOf("progress.db") == before);
}

TEST_F(ProgressStore, LockedLosesOnlyWhatIsAnsweredMeanwhile)
{
    for (const bool open : {true, false}) {
        fake.messages.clear();
        openAnew();
        if (open)
            keepAnswers(1, 1);
        {
            OtherProgram other;
            other.run("CREATE TABLE IF NOT EXISTS theirs (n)");
            other.run("BEGIN EXCLUSIVE");
            keepAnswers(2, 3);
        }
        keepAnswers(4, 4);
        EXPECT_EQ(fake.messages, std::vector<std::string>{"Another program holds progress.db: until it lets "
                                                          "go, answers are not kept."});
    }
    EXPECT_EQ(rows().size(), 3U);
}

TEST_F(ProgressStore, OnAFullDiskKeepsItsRowsAndGoesOnOnceThereIsRoom)
{
    for (const rlim_t bytes : {0U, 4000U, 40000U, 70000U}) {
        fake.messages.clear();
        openAnew();
        keepAnswers(1, 1);
        const auto before = rows().size();
        {
            const tests::FullDisk disk(bytes);
            keepAnswers(2, 14);
        }
        ASSERT_EQ(fake.messages.size(), 1U) << bytes;
        EXPECT_TRUE(fake.messages.at(0).starts_with("progress.db cannot be written")) << fake.messages.at(0);
        keepAnswers(15, 15);
        EXPECT_EQ(rows().back().answer.written, "15") << bytes;
        EXPECT_TRUE(rows().size() > before && rows().size() < before + 14) << rows().size() << " " << before;
    }
}

TEST_F(ProgressStore, ThatCannotBeWrittenKeepsNothingAndSaysNothing)
{
    const bool root = ::geteuid() == 0;
    constexpr uid_t nobody = 65534;
    keepAnswers(1, 1);
    for (const bool there : {true, false}) {
        keeper.reset();
        if (!there)
            fs::remove("progress.db");
        fs::permissions(".", fs::perms{0555});
        ASSERT_EQ(root ? ::seteuid(nobody) : 0, 0);
        keeper = opened();
        keepAnswers(2, 3);
        EXPECT_EQ(fs::exists("progress.db"), there);
        ASSERT_EQ(root ? ::seteuid(0) : 0, 0);
        fs::permissions(".", fs::perms{0755});
    }
    fs::create_directory("progress.db");
    openAnew();
    keepAnswers(1, 1);
    EXPECT_EQ(keeper->store(), nullptr);
    EXPECT_EQ(fake.messages, std::vector<std::string>{});
}

TEST_F(ProgressStore, WithoutItsSumsOrWithAnotherFileInItsPlaceGoesOnInTheOrderOfFirstAsking)
{
    const auto ask = [this](const std::string& word, bool right) {
        auto record = answerNumber(0, right);
        record.word = word;
        keeper->keep(Keeper::rowOf(record));
    };
    for (const char* const word : {"Zeta", "Alpha", "Mu"})
        ask(word, false);
    for (const char* const harm :
         {"DELETE FROM forms", "DELETE FROM cells", "DELETE FROM days", "DROP TABLE forms",
          "DROP TABLE cells", "DROP TABLE days", "DROP TABLE sums"}) {
        OtherProgram().run(harm);
        ask("Zeta", false);
        OtherProgram().run(harm);
        std::string words;
        for (const auto& cell : keeper->store()->cellsOf(progress::Grid::Words))
            words += cell.name.row + " ";
        EXPECT_EQ(words, "Zeta Alpha Mu ") << harm;
    }
    EXPECT_EQ(rows().size(), 10U);
    fake.clock -= 100;
    openAnew(); // another drill, though by the clock an earlier one
    ask("Zeta", true);
    EXPECT_EQ(keeper->store()->form(1)->box, 2);
    keeper->close();
    EXPECT_FALSE(fs::exists("progress.db-wal"));
    fs::rename("progress.db", "elsewhere.db");
    ask("Mu", true);
    EXPECT_EQ(rows().size(), 1U);
    keeper->close();
    fs::rename("elsewhere.db", "progress.db");
    OtherProgram().run("UPDATE answers SET number = -number");
    EXPECT_EQ(rows().size(), 0U);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ProgressStore, IsOnlyReadWhileNothingIsKept)
{
    keepAnswers(1, 3);
    keeper->switchKeeping(false);
    const auto files = [] { return std::distance(fs::directory_iterator("."), {}); };
    const auto before = files();
    const std::string bytes = tests::bytesOf("progress.db");
    EXPECT_EQ(rows().size(), 3U);
    EXPECT_EQ(files(), before);
    keeper->close();
    EXPECT_TRUE(tests::bytesOf("progress.db") == bytes);
    tests::writeFile("progress.db", std::string(5000, 'x'));
    EXPECT_EQ(keeper->store(), nullptr);
    EXPECT_TRUE(keeper->isUnreadable());
    EXPECT_NE(keeper->erase(), progress::Trouble::None);
    EXPECT_EQ(files(), before);
}

TEST_F(ProgressStore, IsNotMadeWhileNothingIsKeptAndIsEmptyOnceItWasDeleted)
{
    keeper->switchKeeping(false);
    keepAnswers(1, 1);
    EXPECT_EQ(keeper->store(), nullptr);
    EXPECT_FALSE(fs::exists("progress.db"));
    keeper->switchKeeping(true);
    keepAnswers(1, 300);
    keeper->close();
    const std::string before = tests::bytesOf("progress.db");
    EXPECT_NE(before.find("word3"), std::string::npos);
    EXPECT_EQ(std::ranges::count(progress::csvOf(*keeper->store()), '\n'), 301);
    EXPECT_EQ(keeper->erase(), progress::Trouble::None);
    EXPECT_TRUE(rows().empty());
    EXPECT_TRUE(keeper->store()->cellsOf(progress::Grid::Words).empty());
    const std::string after = tests::bytesOf("progress.db");
    EXPECT_EQ(after.find("word3"), std::string::npos);
    EXPECT_LT(after.size(), before.size());
}

TEST_F(ProgressStore, ReviewsAFormWithoutMarksAsLongAsItWasNeverAskedWithThem)
{
    auto record = answerNumber(1);
    record.exercise = "Conjugation";
    record.expected = "amo";
    keeper->keep(Keeper::rowOf(record));
    shell::settings.ShowVowelLength = platform::FlagTrue;
    for (const char* const expected : {"amo", "amo", "amo:"}) {
        const auto question = progress::questionFor(keeper->store()->form(1).value());
        EXPECT_EQ(question.expected, expected);
        keeper->keep(Keeper::rowOf(progress::judged(question, "amo:")));
        EXPECT_TRUE(rows().back().answer.right);
        record.expected = "amo:";
        if (rows().size() == 3)
            keeper->keep(Keeper::rowOf(record)); // in the drill
    }
}

TEST_F(ProgressStore, CountsWhatADrillCameToAndWhatIsDueThen)
{
    keeper->beginDrill();
    // Whether each was right: 1 is missed and corrected, 2 missed, corrected and known later.
    const std::multimap<int, bool> answers{{1, false}, {1, true}, {2, false}, {2, false}, {2, true},
                                           {2, true},  {3, true}, {4, true},  {5, false}};
    for (const auto& [word, right] : answers)
        keeper->keep(Keeper::rowOf(answerNumber(word, right)));
    auto ofQuiz = answerNumber(6, false);
    ofQuiz.exercise = "NounQuiz";
    keeper->keep(Keeper::rowOf(ofQuiz));
    EXPECT_EQ(keeper->rightAtOnce(), 3);
    keeper->beginDrill();
    EXPECT_EQ(keeper->rightAtOnce(), 0);
    EXPECT_EQ(keeper->formsDue(), 2);
}

// Sixty forms, and where each lies in a card index of the learner's own.
class CardIndex {
public:
    explicit CardIndex(const tests::FakePlatform& clock) : clock_(clock) {}

    static shell::AnswerRecord form(std::size_t number)
    {
        const std::array exercises{"Conjugation", "Declination", "Pronouns",
                                   "Quiz",        "NounQuiz",    "Vcabtester"};
        return {.exercise = exercises.at(number % 6),
                .word = number % 2 == 0 ? "hic" : "ille",
                .place =
                    shell::placeOf("Group" + std::to_string(number % 2), "Line" + std::to_string(number / 3),
                                   number % 3 == 0 ? "" : std::to_string(number % 3)),
                .asked = std::to_string(number),
                .expected = ""};
    }

    void answered(std::size_t form, bool right, int drill)
    {
        Card& card = cards_[form];
        if (!right || card.missedIn != drill)
            card.box = right ? std::min(card.box + 1, 6UL) : 1;
        card.due = clock_.day + std::array{0, 1, 3, 7, 14, 30}.at(card.box - 1);
        card.missedIn = right ? 0 : drill;
    }

    std::set<std::string> due() const
    {
        std::set<std::string> due;
        for (const auto& [number, card] : cards_)
            if (card.due <= clock_.day && number % 6 != 3 && number % 6 != 4)
                due.insert(std::to_string(number));
        return due;
    }

private:
    struct Card {
        std::size_t box = 1;
        std::int64_t due = 0;
        int missedIn = 0;
    };

    const tests::FakePlatform& clock_;
    std::map<std::size_t, Card> cards_;
};

// The forms that are due, as they are asked.
std::deque<std::string> dueIn(progress::Store& store, std::int64_t day)
{
    std::deque<std::string> asked;
    for (const std::int64_t number : store.dueForms(day, ""))
        asked.push_back(store.form(number)->asked);
    return asked;
}

TEST_F(ProgressStore, BringsEveryFormBackOnItsDayForAYearAndItsGridsAgreeWithThePlainRows)
{
    std::mt19937 random(7);
    const auto likely = [&random](unsigned percent) { return random() % 100 < percent; };
    CardIndex cards(fake);
    int drill = 0;
    const auto answer = [&](std::size_t form, bool right) {
        auto record = CardIndex::form(form);
        record.right = right;
        keeper->keep(Keeper::rowOf(record));
        cards.answered(form, right, drill);
        return right;
    };
    OtherProgram other;
    const std::int64_t lastDay = fake.day + 365;
    for (; fake.day < lastDay; ++fake.day) {
        fake.clock = likely(50) ? 600 : 86000; // soon after midnight, shortly before it
        fake.secondsEastOfUtc = fake.day % 365 < 180 ? 3600 : -7200;
        if (likely(30))
            continue;
        keeper->beginDrill();
        ++drill;
        for (int question = 0; question < 4; ++question)
            for (const std::size_t form = random() % 60; !answer(form, likely(60));)
                continue;
        keeper->beginDrill();
        ++drill;
        auto round = dueIn(*keeper->store(), fake.day);
        ASSERT_EQ(std::set<std::string>(round.begin(), round.end()), cards.due()) << fake.day;
        for (; !round.empty(); round.pop_front())
            if (!answer(std::stoul(round.front()), likely(80)))
                round.push_back(round.front());
    }

    // Without its sums the file comes to the same.
    other.run("DELETE FROM days");
    other.run("DELETE FROM forms");
    const auto due = dueIn(*keeper->store(), fake.day);
    EXPECT_EQ(std::set<std::string>(due.begin(), due.end()), cards.due());
    int answered = 0;
    for (const auto& day : progress::yearOfPractice(*keeper->store(), lastDay - 1))
        answered += day.share.answered;
    EXPECT_EQ(other.twoNumbers("SELECT count(*), 0 FROM answers").first, answered);
    EXPECT_GT(answered, 1500);

    other.run(
        "INSERT INTO answers (time, exercise, word, place, asked, expected, written, right) SELECT time,"
        " exercise, word, place, asked, expected, written, 1 - right FROM answers LIMIT 50");
    std::pair<int, int> all{};
    for (const auto& [grid, exercises] : {std::pair{progress::Grid::Tenses, "('Conjugation', 'Quiz')"},
                                          {progress::Grid::Cases, "('Declination', 'Pronouns', 'NounQuiz')"},
                                          {progress::Grid::Words, "('Vcabtester')"}})
        for (const progress::Cell& cell : keeper->store()->cellsOf(grid)) {
            const bool ofList = grid == progress::Grid::Words;
            const auto plain = other.twoNumbers(
                QString(
                    "SELECT count(*), sum(right) FROM (SELECT *, row_number() OVER (PARTITION BY exercise,"
                    " word, place ORDER BY number DESC) AS age FROM answers WHERE exercise IN %1)"
                    " WHERE age <= 10 AND (place || ' / ') LIKE '%2 / %' AND %3")
                    .arg(exercises, cell.name.column.c_str(),
                         QString(ofList ? "word = '%1'" : "(place || ' / ') LIKE '% / %1 / %'")
                             .arg(cell.name.row.c_str())));
            EXPECT_EQ(plain, std::pair(cell.share.answered, cell.share.right)) << cell.name.row;
            all.first += plain.first;
            for (const progress::Form& form : keeper->store()->formsOf(cell.name))
                all.second += progress::shareOf(form).answered;
        }
    EXPECT_EQ(all.first, all.second);
    EXPECT_EQ(all.first, other.twoNumbers("SELECT sum(answered), 0 FROM cells").first);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    const QCoreApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
