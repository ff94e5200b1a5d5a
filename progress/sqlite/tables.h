#pragma once

#include <array>
#include <string_view>

namespace progress {

/// The layout of these tables, which stands in the file as its `user_version`.
inline constexpr int StoreVersion = 1;

/// The answers: what is kept. Another program may add rows; what it leaves out is unknown.
inline constexpr std::string_view AnswersTable = R"(
    CREATE TABLE IF NOT EXISTS answers (
        number      INTEGER PRIMARY KEY AUTOINCREMENT,
        time        INTEGER NOT NULL,            -- seconds since 1970, UTC
        utc_offset  INTEGER NOT NULL DEFAULT 0,  -- seconds, east positive
        exercise    TEXT    NOT NULL,
        word        TEXT    NOT NULL,
        place       TEXT    NOT NULL,            -- its parts with " / " between them
        asked       TEXT    NOT NULL,
        expected    TEXT    NOT NULL,
        written     TEXT    NOT NULL,
        right       INTEGER NOT NULL,            -- 1 or 0
        drill       INTEGER NOT NULL DEFAULT 0,
        marks_shown INTEGER NOT NULL DEFAULT 0
    ))";

/// What is summed up from the answers; it can be made again at any time.
inline constexpr std::array<std::string_view, 7> SumsTables = {
    R"(
    CREATE TABLE forms (
        number         INTEGER PRIMARY KEY,
        exercise       TEXT    NOT NULL,
        name_of_word   TEXT    NOT NULL,         -- without the marks of long vowels
        name_of_place  TEXT    NOT NULL,
        word           TEXT    NOT NULL,
        place          TEXT    NOT NULL,
        asked          TEXT    NOT NULL,
        expected       TEXT    NOT NULL,
        marks_shown    INTEGER NOT NULL,
        box            INTEGER NOT NULL,
        due            INTEGER,                  -- days since 1970
        last_answers   TEXT    NOT NULL,
        wrong_answers  TEXT    NOT NULL,         -- one a line
        drill          INTEGER NOT NULL,
        grid           INTEGER NOT NULL,
        grid_column    TEXT    NOT NULL,
        grid_row       TEXT    NOT NULL,
        UNIQUE (exercise, name_of_word, name_of_place)
    ))",
    "CREATE INDEX forms_by_due ON forms (due, box) WHERE due IS NOT NULL",
    "CREATE INDEX forms_by_exercise_and_due ON forms (exercise, due, box) WHERE due IS NOT NULL",
    "CREATE INDEX forms_by_cell ON forms (grid, grid_column, grid_row)",
    R"(
    CREATE TABLE cells (
        grid         INTEGER NOT NULL,
        grid_column  TEXT    NOT NULL,
        grid_row     TEXT    NOT NULL,
        answered     INTEGER NOT NULL,
        right        INTEGER NOT NULL,
        UNIQUE (grid, grid_column, grid_row)
    ))",
    R"(
    CREATE TABLE days (
        day       INTEGER PRIMARY KEY,           -- days since 1970, local time
        answered  INTEGER NOT NULL,
        right     INTEGER NOT NULL
    ))",
    "CREATE TABLE sums (last_answer INTEGER NOT NULL)",
};

inline constexpr std::array<std::string_view, 4> DropSumsTables = {
    "DROP TABLE IF EXISTS forms",
    "DROP TABLE IF EXISTS cells",
    "DROP TABLE IF EXISTS days",
    "DROP TABLE IF EXISTS sums",
};

/// How many of the tables above are there, and how many there should be.
inline constexpr std::string_view CountTables = "SELECT count(*) FROM sqlite_master WHERE type = 'table'"
                                                " AND name IN ('answers', 'forms', 'cells', 'days', 'sums')";
inline constexpr int TableCount = 5;

} // namespace progress
