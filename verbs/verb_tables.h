#pragma once

#include "platform/table.h"
#include "verbs/paradigm.h"

#include <cstdint>
#include <string>

namespace verbs {

/// What the generators write and the drills read. There is one, `verbTables`; assigning `{}` empties it.
/// Indexes named "class" are those of `VerbClass`; column 0 and the columns past 8 stay unused.
struct VerbTables {
    template <typename Value>
    using ByClass = platform::Table<Value, 11>;

    /// Forms[class][form number]: forms 1 to 126, six to a tense block. An empty string: there is no such
    /// form.
    ByClass<platform::Table<std::string, 161>> Forms;

    /// The infinitive of the verb that was generated.
    ByClass<std::string> Infinitive;

    /// How many blocks a class has, counted from the first; 0 for the -io class. Nothing reads it.
    ByClass<std::int16_t> TenseCount;

    /// The verb's translations: base form, past, past participle, present participle.
    ByClass<std::string> BaseGloss;
    ByClass<std::string> PastGloss;
    ByClass<std::string> ParticipleGloss;
    ByClass<std::string> PresentParticipleGloss;

    /// One more German translation, at class - 1. Nothing reads it.
    ByClass<std::string> GermanGloss;

    /// The stems of the verb that was generated: present stem at 16 + class, supine stem at 32 + class.
    /// Nothing reads it.
    platform::Table<std::string, 48> WorkingStems;

    /// The number of the verb drawn for the second conjugation. Nothing reads it.
    std::int16_t SecondConjugationVerb = 0;

    /// Names of the paradigms and of the tense blocks in the language of the interface. Index 0 of the
    /// tenses, and those past 21, stay empty.
    ByClass<std::string> ClassTitles;
    platform::Table<std::string, 51> TenseTitles;

    /// "I" to "they", persons 1 to 6.
    platform::Table<std::string, 7> PersonLabels;
};

inline constexpr int PresentStemIndex = 16;
inline constexpr int SupineStemIndex = 32;

inline VerbTables verbTables;

/// The paradigm that is drilled now.
struct CurrentParadigm {
    /// 1 to 8, a `VerbClass`; 0 before the first choice.
    std::int16_t ConjugationCode = 0;

    /// 1 to 21, a `TenseBlock`; 22 past the last.
    std::int16_t TenseMoodCode = 1;

    /// 1 while one tense is drilled through the classes, 0 while a class is drilled through its tenses.
    std::int16_t SingleTenseMode = 0;

    /// What the conjugation drill's window shows of it: its title, the tense and the verb.
    std::string WindowTitle;
    std::string TenseLabel;
    std::string VerbLabel;
};

inline CurrentParadigm currentParadigm;

} // namespace verbs
