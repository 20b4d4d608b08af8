#include "bench/ratio_table.h"

#include <algorithm>
#include <cstdio>

namespace {

std::string Time(double seconds)
{
    if (seconds == 0)
        return "";
    const bool milliseconds = seconds >= 1e-3;
    const double number = seconds * (milliseconds ? 1e3 : 1e6);
    char text[40];
    std::snprintf(text, sizeof text, "%.*f %s",
        number < 10        ? 2
            : number < 100 ? 1
                           : 0,
        number, milliseconds ? "ms" : "µs");
    return text;
}

std::string Ratio(double more, double less)
{
    if (more == 0 || less == 0)
        return "";
    char text[40];
    std::snprintf(text, sizeof text, "%.1f", more / less);
    return text;
}

void Register(const std::string& name, const std::function<void()>& work)
{
    if (!work)
        return;
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State& state) {
        for ([[maybe_unused]] auto iteration : state)
            work();
    });
}

} // namespace

RatioTable::RatioTable(const std::vector<Timing>& timings)
{
    for (const Timing& timing : timings) {
        rows_.push_back({.what = timing.what, .work = timing.work, .seconds = {}});
        Register(timing.what + "/game", timing.game);
        Register(timing.what + "/plain", timing.plain);
        Register(timing.what + "/floor", timing.floor);
    }
}

bool RatioTable::ReportContext(const Context& /*context*/)
{
    return true;
}

void RatioTable::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.aggregate_name != "median")
            continue;
        const std::string& name = run.run_name.function_name;
        const std::size_t mark = name.rfind('/');
        const auto row = std::ranges::find(rows_, name.substr(0, mark), &Row::what);
        row->seconds[name.substr(mark + 1)]
            = run.GetAdjustedCPUTime() / GetTimeUnitMultiplier(run.time_unit);
    }
}

void RatioTable::Finalize()
{
    std::puts("| What | Work | Time | Floor | Times the floor | Plain form | Times faster |");
    std::puts("|:--|:--|--:|--:|--:|--:|--:|");
    for (Row& row : rows_) {
        const double game = row.seconds["game"];
        const double plain = row.seconds["plain"];
        const double floor = row.seconds["floor"];
        if (game == 0)
            continue; // left out by a filter
        std::printf("| %s | %s | %s | %s | %s | %s | %s |\n", row.what.c_str(), row.work.c_str(),
            Time(game).c_str(), Time(floor).c_str(), Ratio(game, floor).c_str(),
            Time(plain).c_str(), Ratio(plain, game).c_str());
    }
}
