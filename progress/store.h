#pragma once

#include "progress/form.h"
#include "progress/grid.h"
#include "progress/trouble.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace progress {

/// The answers of one calendar day.
struct DayOfPractice {
    Day day = 0;
    Share share;
};

/// Where answers are kept, and beside them what was summed up from them: forms, cells and days. Nothing that
/// is asked of it takes longer because it holds more answers, `rowsAfter` apart.
///
/// Once something is wrong, it does nothing and finds nothing until it is asked for the trouble, or begins to
/// write.
class Store {
public:
    Store() = default;
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;
    virtual ~Store() = default;

    /// What is written between the two is kept wholly or not at all. Nobody else writes meanwhile. `commit`
    /// tells what kept it from being written.
    virtual void begin() = 0;
    virtual Trouble commit() = 0;

    /// What went wrong since this was asked last.
    virtual Trouble takeTrouble() = 0;

    /// Keeps a row under the next number.
    virtual void append(const Row& row) = 0;

    /// The rows that follow the one with this number, in their order, `atMost` so many.
    virtual std::vector<Row> rowsAfter(std::int64_t number, std::size_t atMost) = 0;

    /// The number of the last row; 0 where there is none.
    virtual std::int64_t lastRow() = 0;

    /// The greatest number of a drill in which a form was asked last; 0 where there is none.
    virtual std::int64_t lastDrill() = 0;

    /// The last row that is summed up; 0 where none is, or where forms, cells or days are gone.
    virtual std::int64_t lastSummed() = 0;
    virtual void setLastSummed(std::int64_t row) = 0;
    virtual void forgetSums() = 0;

    virtual std::optional<Form> form(const FormName& name) = 0;
    virtual std::optional<Form> form(std::int64_t number) = 0;
    /// Writes a form, which stands in this cell.
    virtual void put(const Form& form, const CellName& cell) = 0;
    virtual void addToCell(const CellName& cell, const Share& more) = 0;
    virtual void addToDay(Day day, const Share& more) = 0;

    /// The cells of a grid in which something was answered, in the order in which they first were.
    virtual std::vector<Cell> cellsOf(Grid grid) = 0;

    /// The forms of a cell.
    virtual std::vector<Form> formsOf(const CellName& cell) = 0;

    /// The days of practice from one to another, both included.
    virtual std::vector<DayOfPractice> daysOfPractice(Day from, Day to) = 0;

    /// The numbers of the forms that are due on a day, of one exercise, or of all where its name is empty:
    /// those that have waited longest first, of these those in the lowest box, and of these one of each
    /// exercise in turn.
    virtual std::vector<std::int64_t> dueForms(Day day, std::string_view exercise) = 0;

    /// Empties all tables.
    virtual Trouble clear() = 0;

    /// Brings everything into the one file, so that it can be copied.
    virtual void settle() = 0;
};

/// What came of opening a store: the store, or what is wrong.
struct Opened {
    std::unique_ptr<Store> store;
    Trouble trouble = Trouble::None;
};

enum class Access {
    Write, ///< a missing file is made, and what is missing in it
    Read,  ///< no file is made or changed
};

/// Opens the store in a file. A damaged file or a newer one stays as it is.
using Opener = std::function<Opened(const std::filesystem::path& file, Access access)>;

} // namespace progress
