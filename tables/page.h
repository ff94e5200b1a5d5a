#pragma once

#include "tables/words.h"

#include <optional>
#include <string>
#include <vector>

namespace tables {

/// A cell of a word's table as it is shown: its stem, its ending, and where a grammar has another form what
/// is said of that: "sic: a grammar has “amantur”.", or where marks are hidden "sic: here “ama:ntur”; a
/// grammar has “amantur”.". Stem and ending empty: there is no such form.
struct PageCell {
    int cell = 0;
    std::string stem;
    std::string ending;
    std::optional<std::string> saysOfGrammar;

    /// Where marks are shown, how a drill asks a form of a noun whose stem it shows without them: "In the
    /// drill: “regis”."; else empty.
    std::string saysOfDrill;

    std::string form() const { return stem + ending; }

    /// All that is said of the form; may be empty.
    std::string remark() const;

    bool operator==(const PageCell&) const = default;
};

/// A line of a page: a name with a cell for each column, or without cells a heading over the lines below.
struct PageLine {
    std::string name;
    std::vector<PageCell> cells;

    bool isHeading() const { return cells.empty(); }

    bool operator==(const PageLine&) const = default;
};

/// The table of a word laid out as a grammar prints it, in the language of the interface, with marks or
/// macrons as they are shown: of a verb the tenses by mood and voice, without those that have no form, and
/// the persons beside each other; of others the cases in the order of `CaseOrder`, and the numbers, of
/// pronouns with their genders or persons.
struct Page {
    std::string title;
    std::vector<std::string> columns;
    std::vector<PageLine> lines;

    bool operator==(const Page&) const = default;
};

Page pageOf(const Word& word);

/// The page as text: the title, then line by line with tabs between the columns.
std::string asText(const Page& page);

} // namespace tables
