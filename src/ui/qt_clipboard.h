#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QString>

#include "platform/clipboard.h"

namespace tr7 {

/// The desktop's clipboard. Other programs get lines that end in CR LF, which all of them take; the
/// tool's own rows end in CR alone.
class QtClipboard : public Clipboard {
 public:
  std::string Text() const override {
    return QGuiApplication::clipboard()->text().replace("\r\n", "\r").toStdString();
  }
  /// By the kinds that the owner offers: its text may be long, and the owner slow.
  bool HasText() const override {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText();
  }
  void SetText(const std::string& text) override {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text).replace('\r', "\r\n"));
  }
};

}  // namespace tr7
