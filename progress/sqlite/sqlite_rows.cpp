#include "progress/sqlite/sqlite_rows.h"

#include <QSqlQuery>

namespace progress {

namespace {

std::vector<std::string> splitIntoLines(std::string_view joined)
{
    std::vector<std::string> texts;
    while (!joined.empty()) {
        const std::size_t end = joined.find('\n');
        texts.emplace_back(joined.substr(0, end));
        joined.remove_prefix(end == std::string_view::npos ? joined.size() : end + 1);
    }
    return texts;
}

} // namespace

QVariant text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string textAt(const QSqlQuery& row, int column)
{
    return row.value(column).toString().toStdString();
}

QVariant number(std::int64_t value)
{
    return QVariant::fromValue<qlonglong>(value);
}

std::string lines(const std::vector<std::string>& texts)
{
    std::string joined;
    for (const std::string& each : texts)
        joined += each + '\n';
    return joined;
}

Row rowOf(const QSqlQuery& row)
{
    return {
        .number = row.value(0).toLongLong(),
        .moment = {.secondsSinceEpoch = row.value(1).toLongLong(), .secondsEastOfUtc = row.value(2).toInt()},
        .answer = {.exercise = textAt(row, 3),
                   .word = textAt(row, 4),
                   .place = textAt(row, 5),
                   .asked = textAt(row, 6),
                   .expected = textAt(row, 7),
                   .written = textAt(row, 8),
                   .right = row.value(9).toBool()},
        .drill = row.value(10).toLongLong(),
        .marksShown = row.value(11).toBool()};
}

Form formOf(const QSqlQuery& row)
{
    const QVariant due = row.value(10);
    return {.number = row.value(0).toLongLong(),
            .name = {.exercise = textAt(row, 1), .word = textAt(row, 2), .place = textAt(row, 3)},
            .word = textAt(row, 4),
            .place = textAt(row, 5),
            .asked = textAt(row, 6),
            .expected = textAt(row, 7),
            .marksShown = row.value(8).toBool(),
            .box = row.value(9).toInt(),
            .due = due.isNull() ? std::nullopt : std::optional<Day>(due.toLongLong()),
            .lastAnswers = textAt(row, 11),
            .wrongAnswers = splitIntoLines(textAt(row, 12)),
            .drill = row.value(13).toLongLong()};
}

} // namespace progress
