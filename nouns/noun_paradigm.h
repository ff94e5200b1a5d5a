#pragma once

namespace nouns {

/// The nine paradigms of the nouns, by the number that every table of the nouns is indexed with.
enum NounParadigm : int {
    FirstDeclension = 1,
    SecondDeclensionUs = 2,
    SecondDeclensionEr = 3,
    SecondDeclensionNeuter = 4,
    FourthDeclension = 5,
    FourthDeclensionNeuter = 6,
    FifthDeclension = 7,
    ThirdDeclension = 8,
    ThirdDeclensionNeuter = 9,
};

inline constexpr int ParadigmCount = 9;

/// Whether a table has one row for each paradigm, in their order.
template <typename Rows>
constexpr bool standInOrder(const Rows& rows)
{
    int paradigm = FirstDeclension;
    for (const auto& row : rows)
        if (row.paradigm != paradigm++)
            return false;
    return paradigm > ParadigmCount;
}

/// The cases, by the number that forms and endings are indexed with.
enum Case : int {
    NominativeSingular = 1,
    GenitiveSingular = 2,
    DativeSingular = 3,
    AccusativeSingular = 4,
    AblativeSingular = 5,
    NominativePlural = 6,
    GenitivePlural = 7,
    DativePlural = 8,
    AccusativePlural = 9,
    AblativePlural = 10,
};

/// Cases of one number, and of both.
inline constexpr int CasesOfNumber = 5;
inline constexpr int CaseCount = 2 * CasesOfNumber;

} // namespace nouns
