// One table of what Google Benchmark has measured, with the ratios to the yardsticks.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

// What is timed beside what. A yardstick that makes no sense for it is left out.
struct Timing {
    std::string what;
    std::string work; // the counts that must not move
    std::function<void()> game;
    std::function<void()> plain = {};
    std::function<void()> floor = {};
};

// Registers the timings as "what/game", "what/plain" and "what/floor", and prints their medians.
class RatioTable : public benchmark::BenchmarkReporter {
public:
    explicit RatioTable(const std::vector<Timing>& timings);

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    struct Row {
        std::string what;
        std::string work;
        std::map<std::string, double> seconds; // of processor time, by the last part of the name
    };

    std::vector<Row> rows_;
};
