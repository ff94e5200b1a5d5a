#include "shell/macrons.h"

#include "shell/looks.h"
#include "shell/vowel_marks.h"

#include <algorithm>
#include <array>

namespace shell {

namespace {

struct Vowel {
    char letter;
    std::string_view withMacron;
};

// clang-format off
constexpr std::array<Vowel, 12> Vowels = {{
    {'a', "ā"}, {'e', "ē"}, {'i', "ī"}, {'o', "ō"}, {'u', "ū"}, {'y', "ȳ"},
    {'A', "Ā"}, {'E', "Ē"}, {'I', "Ī"}, {'O', "Ō"}, {'U', "Ū"}, {'Y', "Ȳ"},
}};
// clang-format on

constexpr std::string_view CombiningMacron = "\u0304";

// The vowel at the end of a text; nullptr where another letter or nothing stands there.
const Vowel* vowelEnding(std::string_view text)
{
    const auto* const found = std::ranges::find_if(
        Vowels, [&](const Vowel& vowel) { return !text.empty() && vowel.letter == text.back(); });
    return found == Vowels.end() ? nullptr : found;
}

// Appends the first letter of what is left of a text, or what stands for it, and takes it from there.
void takeLetter(std::string& marked, std::string_view& left)
{
    const auto* const vowel =
        std::ranges::find_if(Vowels, [&](const Vowel& one) { return left.starts_with(one.withMacron); });
    if (vowel != Vowels.end()) {
        marked += {vowel->letter, LengthMark};
        left.remove_prefix(vowel->withMacron.size());
    } else if (left.starts_with(CombiningMacron) && vowelEnding(marked) != nullptr) {
        marked += LengthMark;
        left.remove_prefix(CombiningMacron.size());
    } else {
        marked += left.front();
        left.remove_prefix(1);
    }
}

} // namespace

std::string marksForMacrons(std::string_view text)
{
    std::string marked;
    while (!text.empty())
        takeLetter(marked, text);
    return marked;
}

std::string macronsForMarks(std::string_view text)
{
    std::string shown;
    for (const char letter : text) {
        const Vowel* const vowel = letter == LengthMark ? vowelEnding(shown) : nullptr;
        if (vowel == nullptr)
            shown += letter;
        else
            shown.replace(shown.size() - 1, 1, vowel->withMacron);
    }
    return shown;
}

std::string macronsWhereShown(std::string_view text)
{
    return looks.ShowMacrons ? macronsForMarks(text) : std::string(text);
}

} // namespace shell
