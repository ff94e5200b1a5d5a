#include "shell/language_texts.h"

#include "shell/settings.h"

namespace shell {

std::optional<std::string_view> LanguageTexts::in(std::string_view languageName) const
{
    if (languageName == language::English)
        return english;
    if (languageName == language::French)
        return french;
    if (languageName == language::Italian)
        return italian;
    if (languageName == language::German)
        return german;
    if (languageName == language::Spanish)
        return spanish;
    if (languageName == language::Latin)
        return latin;
    return {};
}

std::string_view LanguageTexts::currentOrDesigned() const
{
    return in(settings.CurrentLanguage).value_or(english.value_or(""));
}

} // namespace shell
