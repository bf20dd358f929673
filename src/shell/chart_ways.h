// What touches do on the screens of what was and is popular: history, Top 20, charts.
#ifndef SONOTIK_SHELL_CHART_WAYS_H_
#define SONOTIK_SHELL_CHART_WAYS_H_

#include <functional>

#include "shell/navigation.h"

namespace sonotik {

class ChartWays {
 public:
  ChartWays(Assembly& house, Menu& menu, Navigation& navigation);

  // Makes a picture for others from the hidden form, which has the names and the cover of the track
  // that starts. Whoever can draw fills it in. What fails in it never keeps a track from starting.
  std::function<void()> form_image = [] {};

 private:
  void WireHistory();
  void WireTop20();
  void WireDecades();
  template <typename Handler>
  void OnClick(Control& control, const char* name, Handler handler);

  // Behind each entry of the history.
  void TellOthers();
  void ChooseTop20(PlayWay way);
  void PlayChartRow(int row);
  void QueueChartRow(int row);
  void ShowPicker(Panel& picker);

  Assembly& house_;
  Navigation& navigation_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_CHART_WAYS_H_
