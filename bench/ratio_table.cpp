#include "bench/ratio_table.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>

namespace {

// Keeps the median of each, in seconds of processor time.
class Medians : public benchmark::BenchmarkReporter {
public:
    std::map<std::string, double> seconds;

    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.aggregate_name == "median")
                seconds[run.run_name.function_name]
                    = run.GetAdjustedCPUTime() / GetTimeUnitMultiplier(run.time_unit);
        }
    }
};

std::string Number(const char* form, double number)
{
    char text[40];
    std::snprintf(text, sizeof text, form, number);
    return text;
}

std::string Time(double seconds)
{
    if (seconds == 0)
        return "";
    return seconds < 1e-3 ? Number("%.1f µs", seconds * 1e6) : Number("%.2f ms", seconds * 1e3);
}

std::string Ratio(double more, double less)
{
    return more == 0 || less == 0 ? "" : Number("%.1f", more / less);
}

void Register(const std::string& name, const std::function<void()>& work)
{
    if (!work)
        return;
    const char* const asText = name.c_str(); // Debian 12's library takes no string
    benchmark::RegisterBenchmark(asText, [work](benchmark::State& state) {
        for ([[maybe_unused]] auto iteration : state)
            work();
    });
}

} // namespace

int PrintRatios(const std::vector<Timing>& timings, int argc, char** argv)
{
    // Repeated in a random order, so that what else the machine does falls on all alike.
    std::string more[] = {"--benchmark_repetitions=9", "--benchmark_min_time=0.05",
        "--benchmark_enable_random_interleaving=true"};
    std::vector<char*> arguments(argv, argv + argc);
    for (std::string& argument : more)
        arguments.insert(arguments.begin() + 1, argument.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    for (const Timing& timing : timings) {
        Register(timing.what + "/game", timing.game);
        Register(timing.what + "/plain", timing.plain);
        Register(timing.what + "/floor", timing.floor);
    }
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    benchmark::Shutdown();

    std::puts("| What | Work | Time | Floor | Times the floor | Plain form | Times faster |");
    std::puts("|:--|:--|--:|--:|--:|--:|--:|");
    for (const Timing& timing : timings) {
        const double game = medians.seconds[timing.what + "/game"];
        const double plain = medians.seconds[timing.what + "/plain"];
        const double floor = medians.seconds[timing.what + "/floor"];
        if (game != 0) // not left out by a filter
            std::printf("| %s | %s | %s | %s | %s | %s | %s |\n", timing.what.c_str(),
                timing.work.c_str(), Time(game).c_str(), Time(floor).c_str(),
                Ratio(game, floor).c_str(), Time(plain).c_str(), Ratio(plain, game).c_str());
    }
    return 0;
}
