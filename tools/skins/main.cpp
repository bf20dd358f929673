// Draws what is delivered: sonotik-skins FOLDER IMAGES makes FOLDER/Neon and FOLDER/Classic, and in
// IMAGES the pictures that are no skin's.
#include <QGuiApplication>
#include <QLoggingCategory>
#include <cstdio>
#include <exception>

#include "tools/skins/screens.h"

int main(int argc, char** argv) {
  // It paints, but shows nothing, and so runs on machines without a screen.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QLoggingCategory::setFilterRules("default.warning=false");  // of Qt's own, about missing desktops
  const QGuiApplication application(argc, argv);
  if (argc != 3) {
    std::fprintf(stderr, "usage: sonotik-skins FOLDER IMAGES\n");
    return 2;
  }
  try {
    for (const auto* design : {&sonotik::skins::Neon(), &sonotik::skins::Classic()}) {
      sonotik::skins::Make(*design, QString::fromLocal8Bit(argv[1]));
    }
    sonotik::skins::DrawThumbs(QString::fromLocal8Bit(argv[2]));
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "sonotik-skins: %s\n", failure.what());
    return 1;
  }
}
