#include "progress/keeper.h"

#include "platform/platform.h"
#include "progress/damaged_file.h"
#include "progress/sums.h"
#include "shell/settings.h"

#include <algorithm>
#include <string>
#include <utility>

namespace progress {

Keeper::Keeper(std::filesystem::path file, Opener open) : file_(std::move(file)), opener_(std::move(open)) {}

Keeper::~Keeper() = default;

void Keeper::switchKeeping(bool on)
{
    keeps_ = on;
    right_ = 0;
    misses_.clear();
}

// Two drills of one second, or a clock that was put back, must not make one drill of them.
void Keeper::beginDrill()
{
    drill_ = std::max(drill_ + 1, platform::current().now().secondsSinceEpoch);
    right_ = 0;
    misses_.clear();
}

DrillCount Keeper::drillCount() const
{
    return {.right = right_, .toRepeat = static_cast<int>(misses_.size())};
}

void Keeper::endDrill()
{
    if (store_)
        store_->settle();
}

void Keeper::keep(const shell::AnswerRecord& answer)
{
    if (!keeps_)
        return;
    count(answer);
    const bool shown = shell::settings.ShowVowelLength == platform::FlagTrue;
    const Row row{.moment = platform::current().now(),
                  .answer = answer,
                  .drill = drill_,
                  .marksShown = shown && !answer.marksLeftOut};
    const Trouble trouble = write(row);
    tell(untold_ != Trouble::None ? untold_ : trouble);
}

Store* Keeper::store()
{
    std::error_code unreadable;
    if (!store_ && !std::filesystem::exists(file_, unreadable))
        return nullptr;
    Trouble trouble = open();
    if (trouble == Trouble::None)
        trouble = bringUpToDate(*store_);
    if (trouble == Trouble::Damaged)
        openAnew();
    if (trouble != Trouble::None)
        untold_ = trouble;
    return store_.get();
}

// A right answer that corrects a miss counts for neither, one that comes later takes the miss away.
void Keeper::count(const shell::AnswerRecord& answer)
{
    const FormName name = nameOf(answer);
    const auto miss = misses_.find(name);
    if (!answer.right) {
        misses_[name] = Miss::Just;
    } else if (miss != misses_.end() && miss->second == Miss::Just) {
        miss->second = Miss::Corrected;
    } else {
        misses_.erase(name);
        ++right_;
    }
}

Trouble Keeper::write(const Row& row)
{
    Trouble trouble = open();
    if (trouble == Trouble::None)
        trouble = keepRow(*store_, row);
    if (trouble != Trouble::Damaged) {
        if (trouble != Trouble::None)
            store_.reset();
        return trouble;
    }
    openAnew();
    if (store_)
        keepRow(*store_, row);
    return Trouble::Damaged;
}

Trouble Keeper::open()
{
    if (store_)
        return Trouble::None;
    if (givenUp_)
        return Trouble::Unavailable;
    Opened opened = opener_(file_);
    store_ = std::move(opened.store);
    givenUp_ = opened.trouble == Trouble::Newer || opened.trouble == Trouble::Unavailable;
    return opened.trouble;
}

void Keeper::openAnew()
{
    store_.reset();
    if (setAside(file_, platform::current().now()))
        open();
    else
        givenUp_ = true;
}

void Keeper::tell(Trouble trouble)
{
    const std::string_view sentence = sentenceFor(trouble);
    if (told_ || sentence.empty())
        return;
    told_ = true;
    platform::current().showMessage(std::string(sentence));
}

} // namespace progress
