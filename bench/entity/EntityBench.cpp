// How fast entities are read and written, each beside two other ways in the same run:
//   library  the library alone: parsing the same text, and styled writing of a value that is already built
//   by hand  plain jsoncpp statements that fill or write the same fields

#include "ByHand.h"
#include "EntityCatalogue.h"
#include "support/PairedRun.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace {

/// One operation on one body, done in each way.
struct Operation {
    std::string name;
    std::function<void()> entity;
    std::function<void()> library;
    std::function<void()> byHand;
};

/// Reading and writing the body \p received.
template <class Entity>
void AddBody(std::vector<Operation>& operations, const std::string& name, const std::string& received) {
    Entity entity;
    entity.ReadFromString(received);
    const std::string written = entity.WriteToString();
    Entity readByHand;
    ReadByHand(received, readByHand);
    if (readByHand.WriteToString() != written || WriteByHand(entity) != written) {
        std::fprintf(stderr, "%s by hand is not the same body\n", name.c_str());
        std::exit(1);
    }
    operations.push_back({name + " read",
                          [received] {
                              Entity read;
                              read.ReadFromString(received);
                              benchmark::DoNotOptimize(read);
                          },
                          [received] { benchmark::DoNotOptimize(ParseBare(received)); },
                          [received] {
                              Entity read;
                              ReadByHand(received, read);
                              benchmark::DoNotOptimize(read);
                          }});
    operations.push_back({name + " write", [entity] { benchmark::DoNotOptimize(entity.WriteToString()); },
                          [value = ParseBare(written)] { benchmark::DoNotOptimize(value.toStyledString()); },
                          [entity] { benchmark::DoNotOptimize(WriteByHand(entity)); }});
}

std::string Sample(const std::string& entity) {
    return FindSample(entity).toStyledString();
}

/// The entity's sample with \p count times the one item of its list, every text in it numbered.
std::string LongSample(const std::string& entity, const std::string& list, int count) {
    Json::Value body = FindSample(entity);
    const Json::Value sample = body[list][0];
    for (int i = 0; i < count; ++i) {
        Json::Value& item = body[list][i] = sample;
        for (Json::Value& value : item) {
            if (value.isString())
                value = value.asString() + " " + std::to_string(i);
        }
    }
    return body.toStyledString();
}

/// Bodies of the size and the texture that a device sees, the smallest and the largest of its day.
std::vector<Operation> Operations() {
    std::vector<Operation> operations;
    AddBody<IotStatusEntity>(operations, "status", Sample("IotStatusEntity"));
    AddBody<SyncPopupsParams>(operations, "1,000 popup rules",
                              LongSample("SyncPopupsParams", "popupsDetails", 1000));
    AddBody<CertificateProperty>(operations, "50 certificates",
                                 LongSample("CertificateProperty", "certInstallParamsList", 50));
    AddBody<DevicePropertyInfo>(operations, "inventory", Sample("DevicePropertyInfo"));
    return operations;
}

/// Nanoseconds that one call takes, as the mean of \p times.
double Nanoseconds(const std::function<void()>& work, int times) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < times; ++i)
        work();
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count() / times;
}

void PrintPaired(const Operation& operation, const char* other, const std::function<void()>& work) {
    constexpr int turns = 101;
    constexpr double nanosecondsPerTurn = 3e6;
    const int times = std::max(1, static_cast<int>(nanosecondsPerTurn / Nanoseconds(operation.entity, 3)));

    Comparison what;
    what.name = operation.name + " / " + other;
    what.unit = "ns";
    what.aim = 1.10;
    PrintRow(Compare(
        what, turns, [&] { return Nanoseconds(operation.entity, times); },
        [&] { return Nanoseconds(work, times); }));
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<Operation> operations = Operations();
    for (const Operation& operation : operations) {
        const auto add = [&operation](const char* way, const std::function<void()>& work) {
            benchmark::RegisterBenchmark((operation.name + "/" + way).c_str(),
                                         [&work](benchmark::State& state) {
                                             for (auto _ : state)
                                                 work();
                                         });
        };
        add("entity", operation.entity);
        add("library", operation.library);
        add("by hand", operation.byHand);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();

    std::puts("");
    PrintHeading();
    for (const Operation& operation : operations) {
        PrintPaired(operation, "library", operation.library);
        PrintPaired(operation, "by hand", operation.byHand);
    }
    benchmark::Shutdown();
}
