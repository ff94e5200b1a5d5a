#include "shell/vowel_marks.h"

#include "shell/settings.h"

namespace shell {

std::string StripOutColons(std::string stem)
{
    for (std::size_t i = 0; i < stem.size(); ++i)
        if (stem[i] == LengthMark)
            stem.erase(i, 1);
    return stem;
}

std::string stemAsShown(std::string_view stem)
{
    std::string text(stem);
    return settings.ShowVowelLength == platform::FlagTrue ? text : StripOutColons(std::move(text));
}

void appendMarked(std::string& form, std::string_view text, std::string_view mark)
{
    for (const char character : text) {
        if (character == LengthMark)
            form += mark;
        else
            form += character;
    }
}

} // namespace shell
