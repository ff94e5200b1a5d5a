#include "progress/keeper.h"

#include "platform/platform.h"
#include "progress/damaged_file.h"
#include "progress/sums.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"

#include <algorithm>
#include <string>
#include <utility>

namespace progress {

Keeper::Keeper(std::filesystem::path file, Opener open) : file_(std::move(file)), opener_(std::move(open)) {}

Keeper::~Keeper() = default;

void Keeper::switchKeeping(bool on)
{
    close();
    keeps_ = on;
    right_ = 0;
    missed_.clear();
}

void Keeper::beginDrill()
{
    drill_ = 0;
    right_ = 0;
    missed_.clear();
}

std::optional<int> Keeper::formsDue()
{
    Store* const kept = store();
    const Day today = platform::localDay(platform::current().now());
    if (kept != nullptr)
        return static_cast<int>(kept->dueForms(today, {}).size());
    return isUnreadable() ? std::nullopt : std::optional(0);
}

Row Keeper::rowOf(const shell::AnswerRecord& answer)
{
    const bool shown = shell::marksAreShown();
    return {
        .moment = platform::current().now(), .answer = answer, .marksShown = shown && !answer.marksLeftOut};
}

void Keeper::keep(const Row& row)
{
    if (!keeps_)
        return;
    count(row.answer);
    const Trouble trouble = write(row);
    tell(untold_ != Trouble::None ? untold_ : trouble);
}

// Damage and a newer version stay and are still to be told; all else may have passed by the next answer.
Store* Keeper::store()
{
    unreadable_ = false;
    std::error_code unknown;
    if (!store_ && !std::filesystem::exists(file_, unknown))
        return nullptr;
    if (!keeps_)
        return storeToRead();
    Trouble trouble = use(bringUpToDate);
    if (trouble == Trouble::Damaged)
        trouble = openAnew();
    if (trouble == Trouble::Damaged || trouble == Trouble::Newer)
        untold_ = trouble;
    const bool usable = trouble == Trouble::None || (trouble == Trouble::Damaged && store_);
    unreadable_ = !usable;
    return usable ? store_.get() : nullptr;
}

Trouble Keeper::erase()
{
    close();
    const Trouble trouble = use([](Store& store) { return store.clear(); });
    close();
    return trouble;
}

void Keeper::close()
{
    store_.reset();
}

// A right answer that corrects a miss does not count.
void Keeper::count(const shell::AnswerRecord& answer)
{
    if (!answer.right)
        missed_.insert(nameOf(answer));
    else if (missed_.erase(nameOf(answer)) == 0)
        ++right_;
}

Trouble Keeper::write(Row row)
{
    const auto keepIt = [this, &row](Store& store) {
        if (drill_ == 0)
            drill_ = std::max(store.lastDrill() + 1, row.moment.secondsSinceEpoch);
        row.drill = drill_;
        return keepRow(store, row);
    };
    Trouble trouble = use(keepIt);
    if (trouble == Trouble::Damaged) {
        trouble = openAnew();
        if (store_)
            keepIt(*store_);
    } else if (trouble != Trouble::None) {
        close();
    }
    return trouble;
}

Trouble Keeper::open(Access access)
{
    if (store_)
        return Trouble::None;
    if (givenUp_)
        return Trouble::Unavailable;
    Opened opened = opener_(file_, access);
    store_ = std::move(opened.store);
    givenUp_ = opened.trouble == Trouble::Newer || opened.trouble == Trouble::Unavailable;
    return opened.trouble;
}

// Sums that another program took away are made anew as the store is opened; what does not fit even then is no
// file of ours.
Trouble Keeper::use(const Work& work)
{
    const auto tried = [&] {
        const Trouble trouble = open(Access::Write);
        return trouble == Trouble::None ? work(*store_) : trouble;
    };
    Trouble trouble = tried();
    if (trouble == Trouble::OtherTables) {
        close();
        trouble = tried();
    }
    return trouble == Trouble::OtherTables ? Trouble::Damaged : trouble;
}

// The file is renamed before it is closed, which would empty its log. Tells whether it was set aside.
Trouble Keeper::openAnew()
{
    const bool aside = setAside(file_, platform::current().now());
    close();
    givenUp_ = !aside;
    if (!aside)
        return Trouble::Unavailable;
    open(Access::Write);
    return Trouble::Damaged;
}

Store* Keeper::storeToRead()
{
    if (const Trouble trouble = store_ ? store_->takeTrouble() : Trouble::None; trouble != Trouble::None)
        close();
    unreadable_ = open(Access::Read) != Trouble::None;
    return store_.get();
}

void Keeper::tell(Trouble trouble)
{
    const std::string_view sentence = sentenceFor(trouble);
    if (told_ || sentence.empty())
        return;
    told_ = true;
    untold_ = Trouble::None;
    platform::current().showMessage(std::string(sentence));
}

} // namespace progress
