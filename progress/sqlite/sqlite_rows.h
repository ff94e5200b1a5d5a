#pragma once

#include "progress/form.h"
#include "progress/row.h"

#include <QVariant>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class QSqlQuery;

namespace progress {

/// Values as SQLite takes them.
QVariant text(std::string_view utf8);
QVariant number(std::int64_t value);

/// A text of the row at which a query stands.
std::string textAt(const QSqlQuery& row, int column);

/// Texts, each ended by a line end.
std::string lines(const std::vector<std::string>& texts);

/// How rows and forms are asked for, up to the condition, and what a query finds then.
inline constexpr std::string_view RowColumns =
    "SELECT number, time, utc_offset, exercise, word, place, asked, expected, written, right, drill,"
    " marks_shown FROM answers ";
Row rowOf(const QSqlQuery& row);

inline constexpr std::string_view FormColumns = "SELECT number, exercise, name_of_word, name_of_place, word, "
                                                "place, asked, expected, marks_shown, box, due,"
                                                " last_answers, wrong_answers, drill FROM forms ";
Form formOf(const QSqlQuery& row);

} // namespace progress
