// How long it takes to decline and conjugate every listed word and to index all forms, beside a copy of these
// forms; and how long to find the readings of a form once a thousand verbs were added. The main procedure
// prints both as rows of a table and fails where one is above its limit.

#include "bench/full_lists.h"
#include "nouns/noun_list_file.h"
#include "shell/settings.h"
#include "tables/form_index.h"
#include "tables/word_forms.h"
#include "verbs/verb_forms.h"
#include "verbs/verb_list_file.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace tables;

constexpr double LargestRatio = 4;
constexpr double LongestLookUp = 16;
constexpr int AddedVerbs = 1000;

std::vector<std::string> allForms()
{
    std::vector<std::string> forms;
    for (const WordGroup& group : listedWords())
        for (const Word& word : group.words)
            for (const shell::FormParts& form : formsOf(word))
                if (form.exist())
                    forms.push_back(formOf(form).text);
    return forms;
}

template <typename Work>
double millisecondsOf(Work work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

// The two are timed in turn, so that both meet the same machine; the median of the ratios counts.
double ratioToCopy(const std::vector<std::string>& forms)
{
    std::vector<double> ratios;
    for (int i = 0; i < 201; ++i) {
        const double building = millisecondsOf([] {
            ListedForms listed;
            benchmark::DoNotOptimize(listed.index().size());
        });
        const double copying = millisecondsOf([&] {
            const std::vector<std::string> copy = forms;
            benchmark::DoNotOptimize(copy.data());
        });
        ratios.push_back(building / copying);
    }
    std::ranges::sort(ratios);
    return ratios.at(ratios.size() / 2);
}

// The added verbs bear the number of a listed one, but stems of their own.
FormIndex withAddedVerbs(const FormIndex& listed, std::vector<std::string>& added)
{
    FormIndex index = listed;
    for (int number = 0; number < AddedVerbs; ++number) {
        const std::string stem = "verb" + std::to_string(number);
        const auto forms = verbs::conjugate(verbs::FirstConjugation, {stem, stem + "a:v", stem + "a:t"});
        index.add({WordKind::Verb, verbs::FirstConjugation, 1}, forms);
        for (const shell::FormParts& form : forms)
            if (form.exist())
                added.push_back(formOf(form).text);
    }
    return index;
}

// The 99th of a hundred look-ups, with their readings in words.
double lookUp(const FormIndex& index, const std::vector<std::string>& forms)
{
    std::vector<double> times;
    for (const std::string& form : forms)
        times.push_back(millisecondsOf([&] {
            for (const Reading& reading : index.find(form))
                benchmark::DoNotOptimize(inWords(textsOf(reading)));
        }));
    std::ranges::sort(times);
    return times.at(times.size() * 99 / 100);
}

} // namespace

int main()
{
    shell::settings.ShowVowelLength = platform::FlagTrue;
    if (!verbs::readVerbList(std::filesystem::path(MORVANTI_DATA) / verbs::VerbListFileName) ||
        !nouns::readNounList(std::filesystem::path(MORVANTI_DATA) / nouns::NounListFileName))
        return EXIT_FAILURE;
    bench::fillLists();

    std::vector<std::string> forms = allForms();
    const double ratio = ratioToCopy(forms);
    ListedForms listed;
    const FormIndex index = withAddedVerbs(listed.index(), forms);
    const double slowest = lookUp(index, forms);
    std::cout << std::setprecision(2) << "| index of " << listed.index().size() << " forms : copy of them | "
              << ratio << " | " << LargestRatio
              << " |\n| readings of a form, with 1,000 added verbs, 99th of 100, ms | " << slowest << " | "
              << LongestLookUp << " |\n";
    return ratio <= LargestRatio && slowest <= LongestLookUp ? EXIT_SUCCESS : EXIT_FAILURE;
}
