#pragma once

#include <functional>
#include <string>

/// One figure of the product beside the same figure of a bare program.
struct Comparison {
    std::string name;
    std::string unit;
    double product = 0;
    double bare = 0;
    double ratio = 0; ///< median of the turns' ratios
    double aim = 0;   ///< the ratio that is wanted; 0 where the figure itself is what counts
    bool biggerIsBetter = false;
};

/// Measures both sides in turns, so that whatever else the machine does falls on both alike; which side
/// comes first alternates. Each function measures once and returns the figure. The medians are kept.
Comparison Compare(Comparison what, int turns, const std::function<double()>& product,
                   const std::function<double()>& bare);

/// Prints the heading of the rows that PrintRow prints.
void PrintHeading();
void PrintRow(const Comparison& comparison);
