#include "progress/csv.h"

#include "progress/calendar.h"
#include "progress/grammar_names.h"
#include "shell/settings.h"

#include <string_view>

namespace progress {

namespace {

constexpr std::string_view Headings = "time,exercise,word,place,asked,expected,written,right\r\n";
constexpr std::size_t RowsAtOnce = 1000;

void appendField(std::string& line, std::string_view field)
{
    if (field.find_first_of(",\"\r\n") == std::string_view::npos) {
        line.append(field).append(",");
        return;
    }
    line += '"';
    for (const char character : field) {
        if (character == '"')
            line += '"';
        line += character;
    }
    line += "\",";
}

// The drills ask by names of the grammar, and the verb quiz is answered with them; all else is Latin, a word
// of a list, or English as it is.
shell::AnswerRecord withEnglishNames(shell::AnswerRecord answer)
{
    if (answer.exercise == shell::exercise::Conjugation || answer.exercise == shell::exercise::Declination)
        answer.asked = inEnglish(answer.asked);
    if (answer.exercise == shell::exercise::Quiz)
        for (std::string* const text : {&answer.expected, &answer.written})
            *text = inEnglish(*text);
    return answer;
}

} // namespace

std::string csvLine(const Row& row)
{
    const shell::AnswerRecord answer = withEnglishNames(row.answer);
    std::string line = isoTime(row.moment) + ",";
    for (const auto& field :
         {answer.exercise, answer.word, answer.place, answer.asked, answer.expected, answer.written})
        appendField(line, field);
    return line + (answer.right ? "1\r\n" : "0\r\n");
}

std::string csvOf(Store& store)
{
    std::string lines(Headings);
    std::int64_t last = 0;
    for (auto rows = store.rowsAfter(last, RowsAtOnce); !rows.empty();
         rows = store.rowsAfter(last, RowsAtOnce)) {
        for (const Row& row : rows)
            lines += csvLine(row);
        last = rows.back().number;
    }
    return lines;
}

} // namespace progress
