#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QString>

#include "platform/clipboard.h"

namespace tr7 {

/// The desktop's clipboard.
class QtClipboard : public Clipboard {
 public:
  std::string Text() const override { return QGuiApplication::clipboard()->text().toStdString(); }
  void SetText(const std::string& text) override {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
  }
};

}  // namespace tr7
