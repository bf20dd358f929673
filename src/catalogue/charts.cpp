#include "catalogue/charts.h"

namespace sonotik {

std::string ChartPath(const std::string& app_path, int month, int year) {
  return app_path + "\\history\\" + std::to_string(year) + (month < 10 ? "\\0" : "\\") +
         std::to_string(month) + ".txt";
}

}  // namespace sonotik
