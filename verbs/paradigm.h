#pragma once

#include <cstdint>

namespace verbs {

/// Conjugation classes. The number is also the column of the forms table.
enum VerbClass : std::int16_t {
    FirstConjugation = 1,
    SecondConjugation = 2,
    ThirdConjugation = 3,
    FourthConjugation = 4,
    ThirdIoConjugation = 5, // sic: after the fourth
    Esse = 6,
    Velle = 7,
    Ferre = 8,
};

inline constexpr int LastRegularClass = ThirdIoConjugation;
inline constexpr int LastClass = Ferre;

/// Whether a class has a list of verbs; the others are one irregular verb each.
constexpr bool isRegular(int verbClass)
{
    return verbClass <= LastRegularClass;
}

/// Tense/mood blocks in the program's order. Without a voice in the name: active.
enum TenseBlock : std::int16_t {
    PresentIndicative = 1,
    ImperfectIndicative,
    FutureIndicative,
    PerfectIndicative,
    PluperfectIndicative,
    FuturePerfectIndicative,
    PresentSubjunctive,
    ImperfectSubjunctive,
    PerfectSubjunctive,
    PluperfectSubjunctive,
    Imperative,
    PassivePresentIndicative,
    PassiveImperfectIndicative,
    PassiveFutureIndicative,
    PassivePerfectIndicative,
    PassivePluperfectIndicative,
    PassiveFuturePerfectIndicative,
    PassivePresentSubjunctive,
    PassiveImperfectSubjunctive,
    PassivePerfectSubjunctive,
    PassivePluperfectSubjunctive,
};

inline constexpr int BlockCount = PassivePluperfectSubjunctive;

/// Persons, 1 to 6: first to third singular, first to third plural.
enum Person : std::int16_t {
    FirstSingular = 1,
    SecondSingular,
    ThirdSingular,
    FirstPlural,
    SecondPlural,
    ThirdPlural,
};

inline constexpr int PersonCount = ThirdPlural;

inline constexpr int FormCount = BlockCount * PersonCount;

/// The number, 1 to 126, of a person's form in a block: both counted from 1.
constexpr int formNumber(int block, int person)
{
    return PersonCount * (block - 1) + person;
}

} // namespace verbs
