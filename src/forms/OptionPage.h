// The settings of one section, laid out in columns of frames, and on further pages where a panel
// is too small for all of them.
#ifndef SONOTIK_FORMS_OPTIONPAGE_H_
#define SONOTIK_FORMS_OPTIONPAGE_H_

#include <memory>
#include <string>
#include <vector>

#include "forms/design.h"
#include "widgets/OptionField.h"

namespace sonotik {

class OptionPage {
 public:
  Panel* panel = nullptr;

  // The frame that the next fields stand in. Its caption's label lives as long as the page.
  Label& AddFrame(const std::string& caption, bool new_column = false);
  // A field, or any control of this height in the forms' design. With a slider on it, that too.
  void Add(Control& control, float height, Slider* slider = nullptr);

  // Whether a control of the page shows from the next laying out on; the others move up while it
  // doesn't.
  void SetShown(const Control& control, bool shown);

  // Lays all out anew: the panel has another size. `foot` is the height kept free below.
  void LayOut(float foot);
  int pages() const { return pages_; }
  int page() const { return page_; }
  void ShowPage(int page);

  // How much larger than in the forms' design all stands on the panel.
  float scale() const;

 private:
  struct Item {
    Control* control;
    float height;
    Slider* slider = nullptr;
    bool heads_frame = false;
    bool new_column = false;
    bool shown = true;
    int page = 0;
  };
  float FrameHeight(size_t first) const;

  std::vector<std::unique_ptr<Label>> headings_;
  std::vector<Item> items_;
  int pages_ = 1;
  int page_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_OPTIONPAGE_H_
