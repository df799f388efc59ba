/// How long a program takes to show its first window and what it holds in memory then, beside others: in turns, within
/// one run, on the X server of DISPLAY. Prints a Markdown table.
/// usage: bench_startup TURNS PROGRAM OTHER_PROGRAM...
#include "FirstWindow.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <span>
#include <vector>

namespace
{

constexpr int warmUps = 2;

struct Program {
    std::string path;
    std::vector<StartCost> costs;

    double percentile(double StartCost::*figure, double share) const
    {
        std::vector<double> values;
        for (const StartCost &cost : costs)
            values.push_back(cost.*figure);
        std::ranges::sort(values);
        return values[std::size_t(share * double(values.size() - 1) + 0.5)];
    }
    double median(double StartCost::*figure) const { return percentile(figure, 0.5); }
};

/// The figures of a program, and how many times as much the first one takes.
void printRow(const Program &program, const Program &first)
{
    std::printf("| %s | %.1f | %.1f ", std::filesystem::path(program.path).filename().c_str(),
                program.median(&StartCost::milliseconds), program.percentile(&StartCost::milliseconds, 0.9));
    const auto printRatio = [&](double StartCost::*figure) {
        if (&program == &first)
            std::printf("| ");
        else
            std::printf("| %.2f ", first.median(figure) / program.median(figure));
    };
    printRatio(&StartCost::milliseconds);
    for (double StartCost::*memory : {&StartCost::residentMiB, &StartCost::shareMiB}) {
        std::printf("| %.1f ", program.median(memory));
        printRatio(memory);
    }
    std::puts("|");
}

} // namespace

int main(int argc, char **argv)
{
    const int turns = argc > 2 ? std::atoi(argv[1]) : 0;
    if (turns < 1) {
        std::fputs("usage: bench_startup TURNS PROGRAM OTHER_PROGRAM...\n", stderr);
        return 2;
    }
    std::vector<Program> programs;
    for (const char *path : std::span(argv + 2, std::size_t(argc - 2)))
        programs.push_back({path, {}});
    FirstWindow screen;
    for (int turn = -warmUps; turn < turns; ++turn) {
        for (Program &program : programs) {
            const auto cost = screen.measure(program.path);
            if (!cost) {
                std::fprintf(stderr, "%s showed no window\n", program.path.c_str());
                return 1;
            }
            if (turn >= 0)
                program.costs.push_back(*cost);
        }
    }
    std::puts("| | first window, ms: p50 | p90 | ratio | Rss, MiB | ratio | Pss, MiB | ratio |\n"
              "|---|---|---|---|---|---|---|---|");
    for (const Program &program : programs)
        printRow(program, programs.front());
    return 0;
}
