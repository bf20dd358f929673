#include "forms/Form3.h"

#include <cmath>

namespace sonotik {
namespace {

using namespace design;

// Of a monitor of this height; read from across a room.
constexpr float kDesignHeight = 1080;
constexpr float kDesignWidth = 1920;
constexpr float kTickerHeight = 96;
constexpr float kFactsHeight = 168;
constexpr float kMarkWidth = 24;
constexpr float kPoints = 34;

}  // namespace

Form3::Form3() {
  form.SetTitle("Sonotik - second monitor");
  form.SetBackColor(Rgb(0, 0, 0));
  form.SetVisible(false);
  AddPicture(form, picture, {});
  form.Add(video, {});
  video.SetVisible(false);
  // The facts lie over the ticker: both stand at the bottom.
  AddPanel(form, ticker, {}, kPanel);
  AddLabel(ticker, ticker_caption, {}, kPoints, kAmber, Align::kCenter, true);
  AddPanel(form, facts, {}, kRaised);
  AddPanel(facts, facts_inner, {}, kAmber);
  AddLabel(facts, fact, {}, kPoints, kText, Align::kCenter);
  fact.SetWrap(true);
  ticker.SetVisible(false);
  facts.SetVisible(false);
  Resize(static_cast<int>(kDesignWidth), static_cast<int>(kDesignHeight));
}

void Form3::Resize(int width, int height) {
  const float scale = static_cast<float>(height) / kDesignHeight;
  form.SetPlace({0, 0, static_cast<float>(width), static_cast<float>(height)});
  ticker.SetPlace({0, 0, 0, std::round(kTickerHeight * scale)});
  facts.SetPlace({0, 0, 0, std::round(kFactsHeight * scale)});
  facts_inner.SetPlace({0, 0, std::round(kMarkWidth * scale), 0});
  for (Label* caption : {&ticker_caption, &fact}) {
    Font font = caption->font();
    font.points = kPoints * scale;
    caption->SetFont(font);
  }
  LayOut();
}

void Form3::LayOut() {
  const Rect& inner = form.place();
  for (Panel* bar : {&ticker, &facts}) {
    bar->SetPlace({0, inner.height - bar->place().height, inner.width, bar->place().height});
  }
  const Rect& panel = facts.place();
  const float mark = facts_inner.place().width;
  facts_inner.SetPlace({panel.width - mark, 0, mark, panel.height});
  if (panel.width > mark) fact.SetPlace({0, 0, panel.width - mark, panel.height});
  ticker_caption.SetPlace({0, 0, inner.width, ticker.place().height});
  video.SetPlace({0, 0, inner.width, inner.height});
  picture.SetPlace({0, 0, inner.width, inner.height});
}

}  // namespace sonotik
