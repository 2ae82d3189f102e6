#include "ui/look.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <algorithm>
#include <cmath>

namespace tr7 {
namespace {

double Luminance(const QColor& colour) {
  const auto part = [](double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
         0.0722 * part(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const double first = Luminance(a), second = Luminance(b);
  const auto [low, high] = std::minmax(first, second);
  return (high + 0.05) / (low + 0.05);
}

TEST(LookTest, WhatIsReadStandsOutFromItsGroundInBothThemes) {
  for (const look::Theme theme : {look::Theme::Dark, look::Theme::Light}) {
    look::Apply(*qApp, theme);
    const look::Palette& c = look::Colours();
    const std::pair<QColor, QColor> pairs[] = {{c.text, c.window},
                                               {c.text, c.base},
                                               {c.text, c.button},
                                               {c.text, c.header},
                                               {c.text, c.header_selected},
                                               {c.text, c.unused_cell},
                                               {c.text, c.at_work_row},
                                               {c.text, c.marked_cell},
                                               {c.text, c.tip},
                                               {c.faint_text, c.window},
                                               {c.faint_text, c.base},
                                               {c.faint_text, c.header},
                                               {c.faint_text, c.tip},
                                               {c.selected_text, c.selection},
                                               {c.difference, c.base},
                                               {c.difference, c.window},
                                               {c.difference, c.header_selected},
                                               {c.good, c.window},
                                               {c.caution, c.window},
                                               {c.alarm, c.window},
                                               {c.base, c.good},
                                               {c.base, c.caution},
                                               {c.base, c.alarm},
                                               {c.base, c.at_work},
                                               {c.link, c.base},
                                               {c.text, look::Ground(QColor(0xff, 0xff, 0xc0))}};
    for (const auto& [ink, ground] : pairs) {
      EXPECT_GE(Contrast(ink, ground), 4.5)
          << ink.name().toStdString() << " on " << ground.name().toStdString();
    }
  }
}

}  // namespace
}  // namespace tr7
