// How fast entities are read and written, each beside two other ways in the same run:
//   bare     the library alone: parsing the same text, and styled writing of a value that is already built
//   by hand  plain jsoncpp statements that fill or write the same fields

#include "BenchBodies.h"
#include "ByHand.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr std::array<const char*, 3> wayNames = {"entity", "bare", "by hand"};

/// One operation on one body, done in each way.
struct Comparison {
    std::string name;
    std::array<std::function<void()>, wayNames.size()> ways;
};

/// Reading \p received and writing \p entity, which holds the same.
template <class Entity>
void AddBody(std::vector<Comparison>& comparisons, const std::string& name, const Entity& entity,
             const std::string& received) {
    const std::string written = entity.WriteToString();
    Entity readByHand;
    ReadByHand(received, readByHand);
    if (readByHand.WriteToString() != written || WriteByHand(entity) != written) {
        std::fprintf(stderr, "%s by hand is not the same body\n", name.c_str());
        std::exit(1);
    }
    comparisons.push_back({name + "/read",
                           {[received] {
                                Entity read;
                                read.ReadFromString(received);
                                benchmark::DoNotOptimize(read);
                            },
                            [received] { benchmark::DoNotOptimize(ParseBare(received)); },
                            [received] {
                                Entity read;
                                ReadByHand(received, read);
                                benchmark::DoNotOptimize(read);
                            }}});
    comparisons.push_back(
        {name + "/write",
         {[entity] { benchmark::DoNotOptimize(entity.WriteToString()); },
          [value = ParseBare(written)] { benchmark::DoNotOptimize(value.toStyledString()); },
          [entity] { benchmark::DoNotOptimize(WriteByHand(entity)); }}});
}

std::vector<Comparison> Comparisons() {
    std::vector<Comparison> comparisons;
    AddBody(comparisons, "status", BrokerStatus(), BrokerStatus().WriteToString());
    AddBody(comparisons, "popup rules", PopupRules(), PopupRules().WriteToString());
    AddBody(comparisons, "certificates", Certificates(), ReceivedCertificates());
    AddBody(comparisons, "inventory", Inventory(), Inventory().WriteToString());
    return comparisons;
}

double Microseconds(const std::function<void()>& work, int times) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < times; ++i)
        work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count() /
           times;
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

/// Measures the ways in turns, so that whatever else the machine does falls on all alike, and prints the
/// median of the ratios within a turn.
void PrintPairedRow(const Comparison& comparison) {
    constexpr std::size_t turns = 99;
    constexpr double microsecondsPerStep = 5000;
    const double once = std::max(0.1, Microseconds(comparison.ways[0], 3));
    const int times = std::max(1, static_cast<int>(microsecondsPerStep / once));

    std::array<std::vector<double>, wayNames.size()> took;
    std::vector<double> toBare, toHand;
    for (std::size_t turn = 0; turn < turns; ++turn) {
        for (std::size_t step = 0; step < took.size(); ++step) {
            const std::size_t way = (turn + step) % took.size();
            took[way].push_back(Microseconds(comparison.ways[way], times));
        }
        toBare.push_back(took[0].back() / took[1].back());
        toHand.push_back(took[0].back() / took[2].back());
    }
    std::printf("%-20s %12.2f %12.2f %12.2f %12.2f %14.2f\n", comparison.name.c_str(), Median(took[0]),
                Median(took[1]), Median(took[2]), Median(toBare), Median(toHand));
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<Comparison> comparisons = Comparisons();
    for (const Comparison& comparison : comparisons) {
        for (std::size_t way = 0; way < wayNames.size(); ++way) {
            benchmark::RegisterBenchmark((comparison.name + "/" + wayNames[way]).c_str(),
                                         [&work = comparison.ways[way]](benchmark::State& state) {
                                             for (auto _ : state)
                                                 work();
                                         });
        }
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();

    std::printf("\n%-20s %12s %12s %12s %12s %14s\n", "us, medians", "entity", "bare", "by hand",
                "entity/bare", "entity/by hand");
    for (const Comparison& comparison : comparisons)
        PrintPairedRow(comparison);
}
