/// How long a program takes to show its first window and what it holds in memory then, beside a window with nothing in
/// it: in turns, within one run, on the X server of DISPLAY. Prints a Markdown table. usage: bench_startup PROGRAM
/// BARE_WINDOW [TURNS]
#include "FirstWindow.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace
{

constexpr int usualTurns = 20;
constexpr int warmUps = 2;

double percentile(const std::vector<StartCost> &costs, double StartCost::*figure, double share)
{
    std::vector<double> values;
    for (const StartCost &cost : costs)
        values.push_back(cost.*figure);
    std::ranges::sort(values);
    return values[std::size_t(share * double(values.size() - 1) + 0.5)];
}

void printRow(const char *name, const std::vector<StartCost> &own, const std::vector<StartCost> &bare,
              double StartCost::*figure)
{
    const double mine = percentile(own, figure, 0.5), others = percentile(bare, figure, 0.5);
    std::printf("| %s | %.1f | %.1f | %.2f | %.1f | %.1f |\n", name, mine, others, mine / others,
                percentile(own, figure, 0.9), percentile(bare, figure, 0.9));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3 || argc > 4) {
        std::fputs("usage: bench_startup PROGRAM BARE_WINDOW [TURNS]\n", stderr);
        return 2;
    }
    const int turns = argc == 4 ? std::atoi(argv[3]) : usualTurns;
    FirstWindow screen;
    std::vector<StartCost> own, bare;
    for (int turn = -warmUps; turn < turns; ++turn) {
        const auto mine = screen.measure(argv[1]), others = screen.measure(argv[2]);
        if (!mine || !others) {
            std::fputs("a program showed no window\n", stderr);
            return 1;
        }
        if (turn < 0)
            continue;
        own.push_back(*mine);
        bare.push_back(*others);
    }
    std::puts("| | p50 | bare window | ratio | p90 | bare window |\n|---|---|---|---|---|---|");
    printRow("first window, ms", own, bare, &StartCost::milliseconds);
    printRow("resident memory (Rss), MiB", own, bare, &StartCost::residentMiB);
    printRow("proportional share (Pss), MiB", own, bare, &StartCost::shareMiB);
    return 0;
}
