// How long one run of the generators takes, of verbs and of nouns, beside a copy of what they write. The main
// procedure prints the ratios as rows of a table and fails where one is above the limit. The single times of
// Google Benchmark come with --benchmark_filter=.

#include "nouns/declensions.h"
#include "nouns/noun_list_file.h"
#include "nouns/noun_tables.h"
#include "platform/platform.h"
#include "shell/settings.h"
#include "verbs/generators.h"
#include "verbs/paradigm.h"
#include "verbs/paradigm_titles.h"
#include "verbs/verb_list_file.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <vector>

namespace {

constexpr double LargestRatio = 4;

class StillPlatform : public platform::Platform {
public:
    float secondsSinceMidnight() const override { return 43200; }
    platform::Moment now() const override { return {}; }
    void waitForEvents(std::chrono::milliseconds) override {}
    void beep() override {}
    void playSound(const std::string&) override {}
    bool soundIsPlaying() const override { return false; }
    bool startProgram(const std::string&) override { return false; }
    void showMessage(const std::string&, std::function<void()>) override {}
    void chooseFileToSave(const std::string&, const std::vector<std::string>&,
                          std::function<void(const std::string&)>) override
    {
    }
    void endProgram(int) override {}
    bool ending() const override { return false; }
};

void generate()
{
    verbs::setPersonLabels();
    verbs::buildFirstAndSecondConjugations();
    verbs::buildIrregularVerbs();
    verbs::buildThirdAndFourthConjugations();
}

using Forms = decltype(verbs::VerbTables::Forms);

void copyCellByCell(const Forms& from, Forms& to)
{
    for (int column = 0; column < from.size(); ++column)
        for (int row = 0; row < from[column].size(); ++row)
            to[column][row] = from[column][row];
}

void Generators(benchmark::State& state)
{
    for (auto _ : state)
        generate();
}
BENCHMARK(Generators);

void CopyOfForms(benchmark::State& state)
{
    generate();
    static Forms copy;
    for (auto _ : state) {
        copyCellByCell(verbs::verbTables.Forms, copy);
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(CopyOfForms);

template <typename Work>
double microsecondsOf(Work work)
{
    constexpr int runs = 200;
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < runs; ++i)
        work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begin).count() / runs;
}

void NounGenerator(benchmark::State& state)
{
    for (auto _ : state)
        nouns::BuildNounParadigms();
}
BENCHMARK(NounGenerator);

void copyForms()
{
    static Forms copy;
    copyCellByCell(verbs::verbTables.Forms, copy);
    benchmark::DoNotOptimize(copy);
}

void copyNounTables()
{
    static nouns::NounTables copy;
    copy = nouns::nounTables;
    benchmark::DoNotOptimize(copy);
}

// The two are timed in turn, so that both meet the same machine; the median of the ratios counts.
template <typename Generating, typename Copying>
double medianRatio(Generating generating, Copying copying)
{
    std::vector<double> ratios;
    for (int i = 0; i < 51; ++i)
        ratios.push_back(microsecondsOf(generating) / microsecondsOf(copying));
    std::ranges::sort(ratios);
    return ratios.at(ratios.size() / 2);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    StillPlatform still;
    platform::use(still);
    shell::settings.ShowVowelLength = platform::FlagTrue;
    verbs::currentParadigm.ConjugationCode = verbs::FirstConjugation;
    if (!verbs::readVerbList(std::filesystem::path(MORVANTI_DATA) / verbs::VerbListFileName))
        return EXIT_FAILURE;
    if (!nouns::readNounList(std::filesystem::path(MORVANTI_DATA) / nouns::NounListFileName))
        return EXIT_FAILURE;

    benchmark::Initialize(&argumentCount, arguments);
    if (!benchmark::GetBenchmarkFilter().empty())
        benchmark::RunSpecifiedBenchmarks();
    const double ofVerbs = medianRatio(generate, copyForms);
    const double ofNouns = medianRatio(nouns::BuildNounParadigms, copyNounTables);
    std::cout << std::setprecision(2) << "| verb generators : copy of the forms | " << ofVerbs << " | "
              << LargestRatio << " |\n| noun generator : copy of its tables | " << ofNouns << " | "
              << LargestRatio << " |\n";
    return std::max(ofVerbs, ofNouns) <= LargestRatio ? EXIT_SUCCESS : EXIT_FAILURE;
}
