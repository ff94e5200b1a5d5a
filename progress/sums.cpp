#include "progress/sums.h"

#include <map>

namespace progress {

namespace {

constexpr std::size_t RowsAtOnce = 10'000;

Share operator+(const Share& left, const Share& right)
{
    return {left.answered + right.answered, left.right + right.right};
}

Share operator-(const Share& left, const Share& right)
{
    return {left.answered - right.answered, left.right - right.right};
}

// What some rows change: each form is read and written once, however many of them are its answers. The forms
// stand in the order in which they were first asked; so the cells that they open do too.
class Sums {
public:
    explicit Sums(Store& store) : store_(store) {}

    void add(const Row& row)
    {
        Form& form = formAsked(row);
        form = after(std::move(form), row);
        Share& day = days_[platform::localDay(row.moment)];
        day = day + Share{.answered = 1, .right = row.answer.right ? 1 : 0};
    }

    void write()
    {
        for (const auto& [form, before] : changes_) {
            const CellName cell = cellOf(form);
            store_.put(form, cell);
            store_.addToCell(cell, shareOf(form) - before);
        }
        for (const auto& [day, more] : days_)
            store_.addToDay(day, more);
    }

private:
    struct Change {
        Form form;
        Share before;
    };

    Form& formAsked(const Row& row)
    {
        const FormName name = nameOf(row.answer);
        const auto [known, isNew] = places_.try_emplace(name, changes_.size());
        if (isNew) {
            const Form kept = store_.form(name).value_or(Form{});
            changes_.push_back({kept, shareOf(kept)});
        }
        return changes_[known->second].form;
    }

    Store& store_;
    std::map<FormName, std::size_t> places_;
    std::vector<Change> changes_;
    std::map<Day, Share> days_;
};

// Sums up some rows; false where there were none left. What there is without a last row, or with one that is
// no more, is of no use.
bool sumUpSome(Store& store)
{
    if (store.lastSummed() == 0 || store.lastSummed() > store.lastRow())
        store.forgetSums();
    const auto rows = store.rowsAfter(store.lastSummed(), RowsAtOnce);
    if (rows.empty())
        return false;
    Sums sums(store);
    for (const Row& row : rows)
        sums.add(row);
    sums.write();
    store.setLastSummed(rows.back().number);
    return true;
}

} // namespace

Trouble bringUpToDate(Store& store)
{
    if (store.takeTrouble() == Trouble::Damaged)
        return Trouble::Damaged;
    while (store.lastSummed() != store.lastRow()) {
        store.begin();
        const bool some = sumUpSome(store);
        if (const Trouble trouble = store.commit(); trouble != Trouble::None)
            return trouble;
        if (!some)
            break;
    }
    return store.takeTrouble();
}

Trouble keepRow(Store& store, const Row& row)
{
    store.begin();
    store.append(row);
    while (sumUpSome(store))
        continue;
    return store.commit();
}

} // namespace progress
