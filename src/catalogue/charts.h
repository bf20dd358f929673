// The monthly charts.
#ifndef SONOTIK_CATALOGUE_CHARTS_H_
#define SONOTIK_CATALOGUE_CHARTS_H_

#include <string>

namespace sonotik {

// Where the chart of a month lies: history\2024\03.txt. From October on the month's number has two
// digits of its own.
std::string ChartPath(const std::string& app_path, int month, int year);

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_CHARTS_H_
