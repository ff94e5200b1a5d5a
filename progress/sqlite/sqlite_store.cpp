#include "progress/sqlite/sqlite_store.h"

#include "progress/sqlite/database.h"
#include "progress/sqlite/sqlite_rows.h"
#include "progress/sqlite/tables.h"

#include <QVariant>

namespace progress {

namespace {

class SqliteStore : public Store {
public:
    explicit SqliteStore(Database database) : database_(std::move(database)) {}

    void begin() override { database_.begin(); }
    Trouble commit() override { return database_.commit(); }
    Trouble takeTrouble() override { return database_.takeTrouble(); }

    void append(const Row& row) override;
    std::vector<Row> rowsAfter(std::int64_t number, std::size_t atMost) override;
    std::int64_t lastRow() override;
    std::int64_t lastDrill() override;

    std::int64_t lastSummed() override;
    void setLastSummed(std::int64_t row) override;
    void forgetSums() override;

    std::optional<Form> form(const FormName& name) override;
    std::optional<Form> form(std::int64_t number) override;
    void put(const Form& form, const CellName& cell) override;
    void addToCell(const CellName& cell, const Share& more) override;
    void addToDay(Day day, const Share& more) override;

    std::vector<Cell> cellsOf(Grid grid) override;
    std::vector<Form> formsOf(const CellName& cell) override;
    std::vector<DayOfPractice> daysOfPractice(Day from, Day to) override;
    std::vector<std::int64_t> dueForms(Day day, std::string_view exercise) override;

    Trouble clear() override;
    void settle() override;

private:
    std::vector<Form> forms(std::string_view which, std::initializer_list<QVariant> values);
    std::optional<Form> firstForm(std::string_view which, std::initializer_list<QVariant> values);
    void insert(const Form& form, const CellName& cell);
    void update(const Form& form);

    Database database_;
};

void SqliteStore::append(const Row& row)
{
    database_.run("INSERT INTO answers (time, utc_offset, exercise, word, place, asked, expected, written,"
                  " right, drill, marks_shown) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                  {number(row.moment.secondsSinceEpoch), row.moment.secondsEastOfUtc,
                   text(row.answer.exercise), text(row.answer.word), text(row.answer.place),
                   text(row.answer.asked), text(row.answer.expected), text(row.answer.written),
                   int{row.answer.right}, number(row.drill), int{row.marksShown}});
}

std::vector<Row> SqliteStore::rowsAfter(std::int64_t after, std::size_t atMost)
{
    std::vector<Row> rows;
    database_.run(std::string(RowColumns) + "WHERE number > ? ORDER BY number LIMIT ?",
                  {number(after), QVariant::fromValue<qulonglong>(atMost)},
                  [&rows](const QSqlQuery& row) { rows.push_back(rowOf(row)); });
    return rows;
}

std::int64_t SqliteStore::lastRow()
{
    return database_.number("SELECT max(number) FROM answers");
}

// The forms are few, however many the answers are.
std::int64_t SqliteStore::lastDrill()
{
    return database_.number("SELECT max(drill) FROM (SELECT drill FROM forms UNION ALL"
                            " SELECT drill FROM answers WHERE number = (SELECT max(number) FROM answers))");
}

std::int64_t SqliteStore::lastSummed()
{
    return database_.number("SELECT last_answer FROM sums WHERE EXISTS (SELECT 1 FROM forms)"
                            " AND EXISTS (SELECT 1 FROM cells) AND EXISTS (SELECT 1 FROM days)");
}

void SqliteStore::setLastSummed(std::int64_t row)
{
    database_.run("DELETE FROM sums");
    database_.run("INSERT INTO sums VALUES (?)", {number(row)});
}

void SqliteStore::forgetSums()
{
    for (const std::string_view statement :
         {"DELETE FROM forms", "DELETE FROM cells", "DELETE FROM days", "DELETE FROM sums"})
        database_.run(statement);
}

std::optional<Form> SqliteStore::form(const FormName& name)
{
    return firstForm("WHERE exercise = ? AND name_of_word = ? AND name_of_place = ?",
                     {text(name.exercise), text(name.word), text(name.place)});
}

std::optional<Form> SqliteStore::form(std::int64_t formNumber)
{
    return firstForm("WHERE number = ?", {number(formNumber)});
}

void SqliteStore::put(const Form& form, const CellName& cell)
{
    if (form.number == 0)
        insert(form, cell);
    else
        update(form);
}

void SqliteStore::insert(const Form& form, const CellName& cell)
{
    database_.run("INSERT INTO forms (exercise, name_of_word, name_of_place, word, place, asked, expected,"
                  " marks_shown, box, due, last_answers, wrong_answers, drill, grid, grid_column, grid_row)"
                  " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                  {text(form.name.exercise), text(form.name.word), text(form.name.place), text(form.word),
                   text(form.place), text(form.asked), text(form.expected), int{form.marksShown}, form.box,
                   form.due ? number(*form.due) : QVariant(), text(form.lastAnswers),
                   text(lines(form.wrongAnswers)), number(form.drill), static_cast<int>(cell.grid),
                   text(cell.column), text(cell.row)});
}

void SqliteStore::update(const Form& form)
{
    database_.run("UPDATE forms SET word = ?, place = ?, asked = ?, expected = ?, marks_shown = ?, box = ?,"
                  " due = ?, last_answers = ?, wrong_answers = ?, drill = ? WHERE number = ?",
                  {text(form.word), text(form.place), text(form.asked), text(form.expected),
                   int{form.marksShown}, form.box, form.due ? number(*form.due) : QVariant(),
                   text(form.lastAnswers), text(lines(form.wrongAnswers)), number(form.drill),
                   number(form.number)});
}

void SqliteStore::addToCell(const CellName& cell, const Share& more)
{
    database_.run(
        "INSERT INTO cells VALUES (?, ?, ?, ?, ?) ON CONFLICT DO UPDATE SET"
        " answered = answered + excluded.answered, right = right + excluded.right",
        {static_cast<int>(cell.grid), text(cell.column), text(cell.row), more.answered, more.right});
}

void SqliteStore::addToDay(Day day, const Share& more)
{
    database_.run("INSERT INTO days VALUES (?, ?, ?) ON CONFLICT DO UPDATE SET"
                  " answered = answered + excluded.answered, right = right + excluded.right",
                  {number(day), more.answered, more.right});
}

std::vector<Cell> SqliteStore::cellsOf(Grid grid)
{
    std::vector<Cell> cells;
    database_.run("SELECT grid_column, grid_row, answered, right FROM cells WHERE grid = ? ORDER BY rowid",
                  {static_cast<int>(grid)}, [&](const QSqlQuery& row) {
                      cells.push_back({.name = {grid, textAt(row, 0), textAt(row, 1)},
                                       .share = {row.value(2).toInt(), row.value(3).toInt()}});
                  });
    return cells;
}

std::vector<Form> SqliteStore::formsOf(const CellName& cell)
{
    return forms("WHERE grid = ? AND grid_column = ? AND grid_row = ? ORDER BY number",
                 {static_cast<int>(cell.grid), text(cell.column), text(cell.row)});
}

std::vector<DayOfPractice> SqliteStore::daysOfPractice(Day from, Day to)
{
    std::vector<DayOfPractice> days;
    database_.run("SELECT day, answered, right FROM days WHERE day BETWEEN ? AND ? ORDER BY day",
                  {number(from), number(to)}, [&days](const QSqlQuery& row) {
                      days.push_back({.day = row.value(0).toLongLong(),
                                      .share = {row.value(1).toInt(), row.value(2).toInt()}});
                  });
    return days;
}

std::vector<std::int64_t> SqliteStore::dueForms(Day day, std::string_view exercise)
{
    std::vector<std::int64_t> numbers;
    const auto take = [&numbers](const QSqlQuery& row) { numbers.push_back(row.value(0).toLongLong()); };
    if (exercise.empty())
        database_.run("SELECT number FROM forms WHERE due <= ? ORDER BY due, box,"
                      " row_number() OVER (PARTITION BY due, box, exercise ORDER BY number), number",
                      {number(day)}, take);
    else
        database_.run("SELECT number FROM forms WHERE exercise = ? AND due <= ? ORDER BY due, box, number",
                      {text(exercise), number(day)}, take);
    return numbers;
}

Trouble SqliteStore::clear()
{
    begin();
    database_.run("DELETE FROM answers");
    forgetSums();
    if (const Trouble trouble = commit(); trouble != Trouble::None)
        return trouble;
    // What was deleted shall neither be found in the file nor take room; where this cannot be, it is no harm.
    database_.run("VACUUM");
    settle();
    return Trouble::None;
}

void SqliteStore::settle()
{
    database_.takeTrouble();
    database_.run("PRAGMA wal_checkpoint(TRUNCATE)");
    database_.takeTrouble();
}

std::vector<Form> SqliteStore::forms(std::string_view which, std::initializer_list<QVariant> values)
{
    std::vector<Form> found;
    database_.run(std::string(FormColumns).append(which), values,
                  [&found](const QSqlQuery& row) { found.push_back(formOf(row)); });
    return found;
}

std::optional<Form> SqliteStore::firstForm(std::string_view which, std::initializer_list<QVariant> values)
{
    std::vector<Form> found = forms(which, values);
    return found.empty() ? std::nullopt : std::optional(std::move(found.front()));
}

// A missing table of sums makes all of them anew, from the first answer on.
Trouble makeTables(Database& database)
{
    if (database.number(CountTables) == TableCount)
        return database.takeTrouble();
    database.begin();
    database.run(AnswersTable);
    for (const std::string_view statement : DropSumsTables)
        database.run(statement);
    for (const std::string_view statement : SumsTables)
        database.run(statement);
    database.run("PRAGMA user_version = " + std::to_string(StoreVersion));
    return database.commit();
}

Trouble troubleWithVersion(const std::filesystem::path& file)
{
    std::error_code none;
    if (!std::filesystem::exists(file, none))
        return Trouble::None;
    if (!std::filesystem::is_regular_file(file, none))
        return Trouble::Unavailable;
    Database database = Database::readingOnly(file);
    const qint64 version = database.number("PRAGMA user_version");
    const Trouble trouble = database.takeTrouble();
    if (trouble != Trouble::None)
        return trouble;
    return version > StoreVersion ? Trouble::Newer : Trouble::None;
}

Opened openToRead(const std::filesystem::path& file)
{
    Database database = Database::readingOnly(file);
    const bool complete = database.number(CountTables) == TableCount;
    if (const Trouble trouble = database.takeTrouble(); trouble != Trouble::None)
        return {.store = nullptr, .trouble = trouble};
    if (!complete)
        return {.store = nullptr, .trouble = Trouble::OtherTables};
    return {.store = std::make_unique<SqliteStore>(std::move(database)), .trouble = Trouble::None};
}

Opened openToWrite(const std::filesystem::path& file)
{
    Database database = Database::writing(file);
    database.run("PRAGMA journal_mode = WAL");
    // A kill loses nothing; that a power cut may take the last answers is the price of never waiting for the
    // disk.
    database.run("PRAGMA synchronous = NORMAL");
    if (const Trouble trouble = makeTables(database); trouble != Trouble::None)
        return {.store = nullptr, .trouble = trouble};
    return {.store = std::make_unique<SqliteStore>(std::move(database)), .trouble = Trouble::None};
}

} // namespace

Opened openSqliteStore(const std::filesystem::path& file, Access access)
{
    if (const Trouble trouble = troubleWithVersion(file); trouble != Trouble::None)
        return {.store = nullptr, .trouble = trouble};
    return access == Access::Read ? openToRead(file) : openToWrite(file);
}

} // namespace progress
