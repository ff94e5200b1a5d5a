#include "shell/answer_record.h"

#include <utility>

namespace shell {

namespace {
AnswerListener listening;
}

std::string placeOf(std::string_view first, std::string_view second, std::string_view third)
{
    std::string place(first);
    for (const std::string_view part : {second, third})
        if (!part.empty())
            place.append(PlaceSeparator).append(part);
    return place;
}

std::array<std::string, 3> partsOfPlace(std::string_view place)
{
    std::array<std::string, 3> parts;
    for (std::size_t i = 0; i + 1 < parts.size(); ++i) {
        const std::size_t end = place.find(PlaceSeparator);
        parts.at(i) = place.substr(0, end);
        if (end == std::string_view::npos)
            return parts;
        place.remove_prefix(end + PlaceSeparator.size());
    }
    parts.back() = place;
    return parts;
}

void listenToAnswers(AnswerListener listener)
{
    listening = std::move(listener);
}

void tellAnswer(const AnswerRecord& record)
{
    if (listening)
        listening(record);
}

} // namespace shell
