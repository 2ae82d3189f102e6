#pragma once

#include <QDesktopServices>
#include <QString>
#include <QUrl>

#include "platform/help_viewer.h"

namespace tr7 {

/// Hands the file to whatever the desktop opens such files with.
class QtHelpViewer : public HelpViewer {
 public:
  bool Open(const std::string& path) override {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
  }
};

}  // namespace tr7
