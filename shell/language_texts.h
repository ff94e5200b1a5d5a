#pragma once

#include <optional>
#include <string_view>

namespace shell {

/// One text in the languages of the interface. An empty optional: the language leaves the text as it is.
struct LanguageTexts {
    std::optional<std::string_view> english;
    std::optional<std::string_view> french;
    std::optional<std::string_view> italian;
    std::optional<std::string_view> german;
    std::optional<std::string_view> spanish;
    std::optional<std::string_view> latin;

    /// The text of the language with exactly this name; none where the name is unknown.
    std::optional<std::string_view> in(std::string_view languageName) const;

    /// The text for `CurrentLanguage`, else the English one, with which windows are designed.
    std::string_view currentOrDesigned() const;
};

/// The texts of a window's control, or of the window itself, by its object name.
struct Caption {
    std::string_view control;
    LanguageTexts texts;
};

/// The text that French and Italian share with English.
constexpr LanguageTexts englishToo(std::string_view english, std::string_view german,
                                   std::string_view spanish, std::string_view latin)
{
    return {english, english, english, german, spanish, latin};
}

} // namespace shell
