#include "shell/answer_fault.h"

#include <algorithm>
#include <array>
#include <string>

namespace shell {

namespace {

constexpr char Mark = ':';
constexpr char Blank = ' ';
constexpr std::array<std::string_view, 2> OtherGenders = {" -a -um", " -ae -a"};

bool goesOn(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// The letters that European languages write with two bytes have their small ones 32 behind the capitals.
char small(char before, char letter)
{
    const auto byte = static_cast<unsigned char>(letter);
    const bool isCapital = (byte >= 'A' && byte <= 'Z') ||
                           (static_cast<unsigned char>(before) == 0xC3U && byte >= 0x80U && byte <= 0x9EU);
    return isCapital ? static_cast<char>(byte + 32) : letter;
}

std::string inSmallLetters(std::string_view text)
{
    std::string letters;
    char before = 0;
    for (const char letter : text) {
        letters += small(before, letter);
        before = letter;
    }
    return letters;
}

std::string without(std::string_view text, char left)
{
    std::string rest(text);
    std::erase(rest, left);
    return rest;
}

bool isWithoutGenders(std::string_view text, std::string_view whole)
{
    return std::ranges::any_of(OtherGenders, [&](std::string_view genders) {
        const auto place = whole.find(genders);
        return place != std::string_view::npos && text == std::string(whole).erase(place, genders.size());
    });
}

FaultKind kindOfMarks(std::string_view answer, std::string_view right)
{
    const auto given = std::ranges::count(answer, Mark);
    const auto wanted = std::ranges::count(right, Mark);
    if (given == wanted)
        return FaultKind::MarkMoved;
    return given < wanted ? FaultKind::MarkMissing : FaultKind::MarkTooMany;
}

} // namespace

FaultKind faultOf(std::string_view answer, std::string_view right)
{
    if (inSmallLetters(answer) == inSmallLetters(right))
        return FaultKind::Capital;
    if (answer.size() > right.size() && without(answer, Blank) == without(right, Blank))
        return FaultKind::BlankTooMany;
    if (isWithoutGenders(answer, right))
        return FaultKind::GendersMissing;
    if (isWithoutGenders(right, answer))
        return FaultKind::GendersTooMany;
    if (without(answer, Mark) == without(right, Mark))
        return kindOfMarks(answer, right);
    return FaultKind::Other;
}

Letter letterThatDiffers(std::string_view answer, std::string_view right)
{
    const auto differing = std::ranges::mismatch(answer, right).in1;
    auto start = static_cast<std::size_t>(differing - answer.begin());
    while (start > 0 && start < answer.size() && goesOn(answer[start]))
        --start;
    std::size_t end = std::min(start + 1, answer.size());
    while (end < answer.size() && goesOn(answer[end]))
        ++end;
    return {start, end - start};
}

} // namespace shell
