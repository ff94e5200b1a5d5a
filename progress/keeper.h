#pragma once

#include "progress/store.h"
#include "shell/answer_record.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>

namespace progress {

/// Keeps judged answers in a store, with the time and the drill in which they were given. The store is opened
/// with the first answer, or when it is asked for.
///
/// What is wrong with it is told in a message box, once a run, at an answer. A damaged file is set aside and
/// a new one begun, as long as answers are kept. After any other trouble the answer is not tried again, but
/// the next one is; a newer file, and one that cannot be had, is left alone until the program ends.
class Keeper {
public:
    Keeper(std::filesystem::path file, Opener open);
    ~Keeper();
    Keeper(const Keeper&) = delete;
    Keeper& operator=(const Keeper&) = delete;

    /// Whether answers are kept; at first they are. While they are not, nothing is written and nothing
    /// counted.
    bool keeps() const { return keeps_; }
    void switchKeeping(bool on);

    /// A drill, a quiz, a test or a review begins: its count starts at nothing.
    void beginDrill();

    /// How many answers of the drill were right at once, so far or until it was left.
    int rightAtOnce() const { return right_; }

    /// An answer as it is to be kept, with this moment and whether marks are shown now. Its drill is the one
    /// that runs when it is kept.
    static Row rowOf(const shell::AnswerRecord& answer);

    /// Keeps an answer and counts it, unless none are kept.
    void keep(const Row& row);

    /// The store, brought up to date; nullptr where there is no file yet, or none that can be used. It may be
    /// closed and opened anew by the next call of any of these: ask again each time. While answers are not
    /// kept, it is only read, as it is, and no file is made or changed.
    Store* store();

    /// How many forms a review would ask now; empty where they cannot be read.
    std::optional<int> formsDue();

    /// Whether there are answers that cannot be read now, as `store` was asked last.
    bool isUnreadable() const { return unreadable_; }

    /// Deletes all answers; tells what kept them from being deleted.
    Trouble erase();

    /// Closes the store until it is needed again: everything is in the one file, which may be copied, taken
    /// away or put in another's place.
    void close();

private:
    using Work = std::function<Trouble(Store&)>;

    void count(const shell::AnswerRecord& answer);
    Trouble write(Row row);
    Trouble open(Access access);
    Trouble use(const Work& work);
    Trouble openAnew();
    Store* storeToRead();
    void tell(Trouble trouble);

    std::filesystem::path file_;
    Opener opener_;
    std::unique_ptr<Store> store_;
    bool keeps_ = true;
    bool givenUp_ = false;
    bool told_ = false;
    Trouble untold_ = Trouble::None;
    bool unreadable_ = false;

    /// The drill that runs, numbered with its first answer; 0 before that.
    std::int64_t drill_ = 0;
    int right_ = 0;
    std::set<FormName> missed_;
};

} // namespace progress
