#pragma once

#include "nouns/noun_list.h"

namespace nouns {

inline constexpr int ErInfixCount = 10;

/// What the generator writes and the drills read, by paradigm 1 to 9. There is one, `nounTables`; assigning
/// `{}` empties it.
struct NounTables {
    template <typename Value>
    using ByParadigm = NounList::ByParadigm<Value>;
    using ByCase = platform::Table<std::string, CaseCount + 1>;

    /// What stands before the -r- of the second declension in -er, by the number of the noun drawn for the
    /// second in -us, minus one. Nothing writes it.
    platform::Table<std::string, ErInfixCount> ErInfix;

    /// Paradigm, case 1 to 10.
    ByParadigm<ByCase> NounEndings;

    /// The stems of the noun that was drawn.
    ByParadigm<std::string> NounStem;
    ByParadigm<std::string> NounObliqueStem;

    /// The noun that was drawn, with its gender and meaning; and so every noun, by number 1 to 20.
    ByParadigm<std::string> NounCaption;
    ByParadigm<platform::Table<std::string, MostNouns + 1>> NounCaptionList;

    /// The name of the paradigm in the language of the interface.
    ByParadigm<std::string> DeclensionHeading;

    /// The forms of the noun that was drawn: paradigm, case 1 to 10.
    ByParadigm<ByCase> NounForms;
};

inline NounTables nounTables;

} // namespace nouns
