#include <gtest/gtest.h>

#include <QApplication>

#include "core/install_views.h"
#include "ui/look.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tr7::look::Apply(*qApp);
  tr7::InstallViews();
  return RUN_ALL_TESTS();
}
