#pragma once

#include "platform/moment.h"
#include "shell/answer_record.h"

#include <cstdint>

namespace progress {

/// One answer as it is kept. Everything else about progress follows from these rows.
struct Row {
    /// Its number in the store, from 1 on, greater than that of any row before; 0 before it is kept.
    std::int64_t number = 0;

    platform::Moment moment;
    shell::AnswerRecord answer;

    /// The drill in which it was given; no two have one number. 0 where it is not known.
    std::int64_t drill = 0;

    /// Whether the marks of long vowels were shown.
    bool marksShown = false;
};

} // namespace progress
