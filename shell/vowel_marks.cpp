#include "shell/vowel_marks.h"

#include "shell/settings.h"

namespace shell {

namespace {

constexpr platform::Flag MarkingFlagOfDrills = 1; // sic: the menu stores -1

} // namespace

std::string StripOutColons(std::string_view stem)
{
    std::string stripped;
    bool afterMark = false;
    for (const char letter : stem) {
        const bool mark = letter == LengthMark && !afterMark; // sic: of two marks one stays
        if (!mark)
            stripped += letter;
        afterMark = mark;
    }
    return stripped;
}

bool marksAreShown()
{
    return settings.ShowVowelLength == platform::FlagTrue;
}

std::string withoutMarks(std::string_view text)
{
    std::string letters(text);
    std::erase(letters, LengthMark);
    return letters;
}

std::string stemAsShown(std::string_view stem)
{
    return marksAreShown() ? std::string(stem) : StripOutColons(stem);
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

void setVowelMarkForDrill()
{
    settings.VowelMark.clear();
    if (settings.ShowVowelLength == MarkingFlagOfDrills)
        settings.VowelMark = LengthMark;
}

void setVowelMarkWhereShown()
{
    if (marksAreShown())
        settings.VowelMark = LengthMark;
}

void setVowelMarkAsShown()
{
    setVowelMarkWhereShown();
    if (settings.ShowVowelLength == platform::FlagFalse)
        settings.VowelMark.clear();
}

} // namespace shell
