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

// What some rows change: each form is read and written once, however many of them are its answers.
class Sums {
public:
    explicit Sums(Store& store) : store_(store) {}

    void add(const Row& row)
    {
        Form& form = formAsked(row);
        const Share before = shareOf(form);
        form = after(std::move(form), row);
        Share& cell = cells_[cellOf(form)];
        cell = cell + (shareOf(form) - before);
        Share& day = days_[platform::localDay(row.moment)];
        day = day + Share{.answered = 1, .right = row.answer.right ? 1 : 0};
    }

    void write()
    {
        for (const auto& [name, form] : forms_)
            store_.put(form, cellOf(form));
        for (const auto& [cell, more] : cells_)
            store_.addToCell(cell, more);
        for (const auto& [day, more] : days_)
            store_.addToDay(day, more);
    }

private:
    Form& formAsked(const Row& row)
    {
        FormName name = nameOf(row.answer);
        const auto known = forms_.find(name);
        if (known != forms_.end())
            return known->second;
        Form kept = store_.form(name).value_or(Form{});
        return forms_.emplace(std::move(name), std::move(kept)).first->second;
    }

    Store& store_;
    std::map<FormName, Form> forms_;
    std::map<CellName, Share> cells_;
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
    while (store.lastSummed() != store.lastRow()) {
        store.begin();
        sumUpSome(store);
        if (const Trouble trouble = store.commit(); trouble != Trouble::None)
            return trouble;
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
