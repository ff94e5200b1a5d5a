#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verbdrills {

/// What a gloss is made of: the person as the gloss's language names it, and the verb's translations.
struct GlossParts {
    std::string_view label;
    std::string_view base;
    std::string_view past;
    std::string_view participle;
    std::string_view presentParticiple;
};

/// The English gloss of a form: its tense block 1 to 21, its class 1 to 8 and its person 1 to 6. In the
/// imperative only the second persons have one.
std::string englishGloss(int block, int verbClass, int person, const GlossParts& parts);

/// The German gloss, likewise.
std::string germanGloss(int block, int verbClass, int person, const GlossParts& parts);

/// The gloss of a person, 1 to 6, of the current paradigm in the language of the interface; none where the
/// language leaves the gloss as it is. German learners see none: the German glosses belong to a language of
/// another name, which only a settings file edited by hand sets.
std::optional<std::string> glossOfPerson(int person);

} // namespace verbdrills
