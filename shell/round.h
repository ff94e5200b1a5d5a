#pragma once

#include "platform/flag.h"
#include "platform/random.h"
#include "platform/table.h"

#include <cstddef>
#include <optional>

namespace shell {

/// The questions of a drill's round, numbered from `first` to `last`, each of which is asked once.
struct Round {
    bool inRandomOrder;
    int first;
    int last;

    /// The question that follows in sequence; past `last` where the round ends.
    int (*following)(int question);

    /// Whether there is anything to ask.
    bool (*canBeAsked)(int question) = [](int) { return true; };
};

/// Where a question stands among those that are asked: the `number`th of `count`.
struct Place {
    int number;
    int count;
};

/// Draws one of the questions that can be asked and are not done; none where all are.
template <std::size_t Size>
std::optional<int> drawQuestionLeft(const Round& round, const platform::Table<platform::Flag, Size>& done)
{
    const auto drawn = platform::drawFitting(round.last - round.first + 1, [&](int number) {
        const int question = round.first + number;
        return done[question] != platform::FlagTrue && round.canBeAsked(question);
    });
    return drawn ? std::optional(round.first + *drawn) : std::nullopt;
}

/// The question to be asked after `current`; none where the round ends. In random order `current` is done,
/// and one of those left is drawn.
template <std::size_t Size>
std::optional<int> questionAfter(int current, const Round& round, platform::Table<platform::Flag, Size>& done)
{
    if (round.inRandomOrder) {
        done[current] = platform::FlagTrue;
        return drawQuestionLeft(round, done);
    }
    int next = round.following(current);
    while (next <= round.last && !round.canBeAsked(next))
        next = round.following(next);
    return next <= round.last ? std::optional(next) : std::nullopt;
}

/// The place of the question `current` in a round whose questions come in sequence.
inline Place placeInSequence(int current, const Round& round)
{
    Place place{.number = 0, .count = 0};
    bool reached = false;
    for (int question = round.first; question <= round.last; question = round.following(question)) {
        if (!round.canBeAsked(question))
            continue;
        ++place.count;
        place.number += reached ? 0 : 1;
        reached = reached || question == current;
    }
    return place;
}

/// The place of the next question in a round of random order: as many are done.
template <std::size_t Size>
Place placeInRandomOrder(const Round& round, const platform::Table<platform::Flag, Size>& done)
{
    Place place{.number = 1, .count = 0};
    for (int question = round.first; question <= round.last; ++question) {
        if (!round.canBeAsked(question))
            continue;
        ++place.count;
        place.number += done[question] == platform::FlagTrue ? 1 : 0;
    }
    return place;
}

/// The place of the question `current`, which is not done.
template <std::size_t Size>
Place placeInRound(int current, const Round& round, const platform::Table<platform::Flag, Size>& done)
{
    return round.inRandomOrder ? placeInRandomOrder(round, done) : placeInSequence(current, round);
}

} // namespace shell
