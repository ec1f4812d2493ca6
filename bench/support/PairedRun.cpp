#include "support/PairedRun.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

Comparison Compare(Comparison what, int turns, const std::function<double()>& product,
                   const std::function<double()>& bare) {
    std::vector<double> productFigures, bareFigures, ratios;
    for (int turn = 0; turn < turns; ++turn) {
        const bool productFirst = turn % 2 == 0;
        const double first = (productFirst ? product : bare)();
        const double second = (productFirst ? bare : product)();
        productFigures.push_back(productFirst ? first : second);
        bareFigures.push_back(productFirst ? second : first);
        ratios.push_back(productFigures.back() / bareFigures.back());
    }
    what.product = Median(productFigures);
    what.bare = Median(bareFigures);
    what.ratio = Median(ratios);
    return what;
}

void PrintHeading() {
    std::printf("%-34s %-6s %11s %11s %7s   %s\n", "", "", "product", "bare", "ratio", "aim");
}

void PrintRow(const Comparison& comparison) {
    std::printf("%-34s %-6s %11.2f %11.2f %7.2f", comparison.name.c_str(), comparison.unit.c_str(),
                comparison.product, comparison.bare, comparison.ratio);
    const bool met =
        comparison.biggerIsBetter ? comparison.ratio >= comparison.aim : comparison.ratio <= comparison.aim;
    if (comparison.aim > 0)
        std::printf("   %s %.2f%s", comparison.biggerIsBetter ? ">=" : "<=", comparison.aim,
                    met ? "" : "  MISSED");
    std::printf("\n");
    std::fflush(stdout);
}
