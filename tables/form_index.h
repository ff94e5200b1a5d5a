#pragma once

#include "shell/form_parts.h"
#include "tables/readings.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tables {

/// Finds all that a form can be among the words that were added. A look-up takes the same time however many
/// they are.
class FormIndex {
public:
    /// Makes room for so many forms at once. More find theirs as well.
    void reserve(std::size_t forms);

    /// Adds a word with its forms by their cell, from 1. They are copied; those that do not exist are left
    /// out.
    void add(const Word& word, std::span<const shell::FormParts> forms);

    /// The readings of a whole form, whatever its capitals and its marks, which may be ":" or macrons; blanks
    /// around it do not count. A compound form is found in any gender: "amata est". Those whose marks agree
    /// come first, then by the number of marks that differ; among the same, in the order in which the words
    /// were added.
    std::vector<Reading> find(std::string_view typed) const;

    /// How many forms there are.
    std::size_t size() const { return entries_.size(); }

private:
    struct Entry {
        std::uint32_t hash;
        std::uint32_t next;
        std::uint32_t begin;
        std::uint32_t endingAt;
        std::uint32_t end;
        std::uint32_t word;
        std::int32_t cell;
    };

    void addForm(const shell::FormParts& form, std::uint32_t hash, int cell);
    std::string_view textOf(const Entry& entry) const;
    Reading readingOf(const Entry& entry) const;

    // The forms one behind the other, and the entries in chains, by the hash of their letters.
    std::string texts_;
    std::vector<Word> words_;
    std::vector<Entry> entries_;
    std::vector<std::uint32_t> chains_;
};

/// The index of the listed words. Nothing is built before it is first asked for.
class ListedForms {
public:
    /// Built anew where a list has changed since.
    const FormIndex& index();

private:
    FormIndex index_;
    std::string builtFrom_;
};

} // namespace tables
