#include "tables/form_index.h"

#include "shell/macrons.h"
#include "shell/vowel_marks.h"
#include "tables/word_forms.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <limits>
#include <optional>
#include <utility>

namespace tables {

namespace {

constexpr std::uint32_t NoEntry = std::numeric_limits<std::uint32_t>::max();

// Of Fowler, Noll and Vo.
constexpr std::uint32_t EmptyHash = 2166136261U;
constexpr std::uint32_t HashPrime = 16777619U;

// What the lists hold, about.
constexpr std::size_t UsualFormCount = 12'000;

constexpr std::size_t UsualLength = 16;

constexpr char inSmall(char letter)
{
    return 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string inSmall(std::string text)
{
    std::ranges::transform(text, text.begin(), [](char letter) { return inSmall(letter); });
    return text;
}

constexpr bool isMark(char letter)
{
    return letter == shell::LengthMark;
}

// Carries the hash of the letters before on over these: marks and capitals do not count.
std::uint32_t hashOn(std::uint32_t hash, std::string_view text)
{
    for (const char letter : text)
        if (!isMark(letter))
            hash = (hash ^ static_cast<unsigned char>(inSmall(letter))) * HashPrime;
    return hash;
}

int takeMarks(std::string_view& text)
{
    const std::size_t marks = std::min(text.find_first_not_of(shell::LengthMark), text.size());
    text.remove_prefix(marks);
    return static_cast<int>(marks);
}

// How many marks differ between two forms of the same letters; nothing where a letter differs.
std::optional<int> differingMarks(std::string_view one, std::string_view other)
{
    int differing = 0;
    while (true) {
        differing += std::abs(takeMarks(one) - takeMarks(other));
        if (one.empty() && other.empty())
            return differing;
        if (one.empty() || other.empty() || inSmall(one.front()) != inSmall(other.front()))
            return {};
        one.remove_prefix(1);
        other.remove_prefix(1);
    }
}

std::string_view withoutOuterBlanks(std::string_view text)
{
    const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
    text.remove_prefix(first);
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// A compound form stands in the lists with its three genders, "amatus -a -um sum", or in the plural with the
// masculine alone, "amati: sumus". In one gender it is any of these.
struct Participle {
    std::string_view ending;
    std::string_view listed;
};

// clang-format off
constexpr std::array Participles = {
    Participle{"us", "us -a -um"},
    Participle{"a",  "us -a -um"}, Participle{"a",  "us"}, Participle{"a", "i:"},
    Participle{"um", "us -a -um"}, Participle{"um", "us"},
    Participle{"ae", "i:"},
};
// clang-format on

// What was typed, and the listed forms that it may be one gender of.
std::vector<std::string> formsMeantBy(std::string typed)
{
    const std::size_t blank = typed.find(' ');
    std::vector<std::string> forms{std::move(typed)};
    if (blank == std::string::npos)
        return forms;
    const std::string participle = forms.front().substr(0, blank);
    const std::string auxiliary = forms.front().substr(blank);
    for (const auto& [ending, listed] : Participles)
        if (participle.size() > ending.size() && inSmall(participle).ends_with(ending))
            forms.push_back(participle.substr(0, participle.size() - ending.size()).append(listed) +
                            auxiliary);
    return forms;
}

// Every stem of every word: as long as it is the same, so are the forms.
std::string stemsOf(std::span<const WordGroup> groups)
{
    std::string stems;
    for (const WordGroup& group : groups)
        for (const Word& word : group.words)
            appendStems(stems, word);
    return stems;
}

} // namespace

void FormIndex::reserve(std::size_t forms)
{
    if (forms <= chains_.size())
        return;
    chains_.assign(std::bit_ceil(forms) * 2, NoEntry);
    entries_.reserve(forms);
    texts_.reserve(forms * UsualLength);
    std::uint32_t number = 0;
    for (Entry& entry : entries_)
        entry.next = std::exchange(chains_[entry.hash % chains_.size()], number++);
}

void FormIndex::addForm(const shell::FormParts& form, std::uint32_t hash, int cell)
{
    const auto begin = static_cast<std::uint32_t>(texts_.size());
    texts_.append(form.stem);
    const auto endingAt = static_cast<std::uint32_t>(texts_.size());
    texts_.append(form.ending);
    const auto end = static_cast<std::uint32_t>(texts_.size());
    const auto number = static_cast<std::uint32_t>(entries_.size());
    const std::uint32_t next = std::exchange(chains_[hash % chains_.size()], number);
    const auto word = static_cast<std::uint32_t>(words_.size() - 1);
    entries_.push_back({hash, next, begin, endingAt, end, word, cell});
}

void FormIndex::add(const Word& word, std::span<const shell::FormParts> forms)
{
    reserve(entries_.size() + forms.size());
    words_.push_back(word);
    // Forms that follow each other mostly have the same stem.
    std::string_view stem;
    std::uint32_t hashOfStem = EmptyHash;
    int cell = 1;
    for (const shell::FormParts& form : forms) {
        if (form.stem.data() != stem.data() || form.stem.size() != stem.size()) {
            stem = form.stem;
            hashOfStem = hashOn(EmptyHash, stem);
        }
        if (form.exist())
            addForm(form, hashOn(hashOfStem, form.ending), cell);
        ++cell;
    }
}

std::string_view FormIndex::textOf(const Entry& entry) const
{
    return std::string_view(texts_).substr(entry.begin, entry.end - entry.begin);
}

Reading FormIndex::readingOf(const Entry& entry) const
{
    return {words_[entry.word], entry.cell, {std::string(textOf(entry)), entry.endingAt - entry.begin}};
}

std::vector<Reading> FormIndex::find(std::string_view typed) const
{
    if (chains_.empty())
        return {};
    struct Found {
        int differing;
        std::uint32_t number;
        auto operator<=>(const Found&) const = default;
    };
    std::vector<Found> found;
    for (const std::string& form : formsMeantBy(shell::marksForMacrons(withoutOuterBlanks(typed)))) {
        std::uint32_t number = chains_[hashOn(EmptyHash, form) % chains_.size()];
        for (; number != NoEntry; number = entries_[number].next)
            if (const auto differing = differingMarks(form, textOf(entries_[number])))
                found.push_back({*differing, number});
    }
    std::ranges::sort(found);
    std::vector<Reading> readings;
    for (const Found& one : found)
        readings.push_back(readingOf(entries_[one.number]));
    return readings;
}

const FormIndex& ListedForms::index()
{
    const std::vector<WordGroup> groups = listedWords();
    std::string stems = stemsOf(groups);
    if (stems == builtFrom_)
        return index_;
    index_ = {};
    index_.reserve(UsualFormCount);
    for (const WordGroup& group : groups)
        for (const Word& word : group.words)
            index_.add(word, formsOf(word));
    builtFrom_ = std::move(stems);
    return index_;
}

} // namespace tables
