// The chart of a month: ten songs, each joined with a track of the catalogue where there is one.
#ifndef SONOTIK_CATALOGUE_CHARTS_H_
#define SONOTIK_CATALOGUE_CHARTS_H_

#include <array>
#include <string>

#include "catalogue/catalogue.h"
#include "catalogue/chart_file.h"
#include "catalogue/cover_picture.h"
#include "catalogue/scan_progress.h"
#include "catalogue/search_results.h"
#include "config/settings.h"
#include "forms/Form1.h"
#include "platform/machine.h"

namespace sonotik {

class Charts {
 public:
  Charts(const std::string& app_path, Machine& machine, const Settings& settings,
         Catalogue& catalogue, const CatalogueCursor& cursor, const CoverFinder& covers,
         SearchResults& results, Form1& form);

  // Shows a chart and finds its tracks: by the resolved chart beside it, else by a scan of the
  // media kind's track file. The first is for the start of the program, the second for the
  // browser; they do the same. A chart cut short shows the lines that are whole, and throws
  // RuntimeFailure.
  void load_history_chart(const std::string& chart_path) { load_history_chart2(chart_path); }
  void load_history_chart2(const std::string& chart_path);

  // The track of a row; empty if it has none. The table is shared: after a search, the rows have
  // the tracks that it found, and that is meant.
  std::string PathOfRow(int row) const;

 private:
  void ClearRows();
  void LoadResolved(const std::string& path);
  void LoadPlain(const std::string& path);
  void ShowLine(int row, const ChartLine& line);
  void FindTracks(const std::array<ChartLine, kChartLines>& lines, ScanProgress& progress);
  void SetUpRow(int row);

  const std::string& app_path_;
  Machine& machine_;
  const Settings& settings_;
  Catalogue& catalogue_;
  const CatalogueCursor& cursor_;
  const CoverFinder& covers_;
  SearchResults& results_;
  Form1& form1_;
  DecadesScreen& screen_;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_CHARTS_H_
