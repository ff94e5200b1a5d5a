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

Form asShown(const Form& form)
{
    if (shell::marksAreShown())
        return form;
    Form shown{.text = shell::StripOutColons(form.stem())};
    shown.endingAt = shown.text.size();
    shown.text += shell::withoutMarks(form.ending());
    return shown;
}

} // namespace tables
