#include "tables/form.h"

#include "shell/settings.h"
#include "shell/vowel_marks.h"

namespace tables {

Form formOf(const shell::FormParts& parts)
{
    Form form{.text = std::string(parts.stem), .endingAt = parts.stem.size()};
    form.text += parts.ending;
    return form;
}

std::string withoutMarks(std::string_view text)
{
    std::string letters(text);
    std::erase(letters, shell::LengthMark);
    return letters;
}

Form asShown(const Form& form)
{
    if (shell::settings.ShowVowelLength == platform::FlagTrue)
        return form;
    Form shown{.text = shell::StripOutColons(form.stem())};
    shown.endingAt = shown.text.size();
    shown.text += withoutMarks(form.ending());
    return shown;
}

} // namespace tables
