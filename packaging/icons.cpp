// Draws the program's and its files' icons in every size that a desktop asks for.
//   qv-tr7-icons DIR   leaves DIR/SIZExSIZE/apps/qv-tr7.png and .../mimetypes/KIND.png

#include "ui/icons.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <cstdio>

namespace {

constexpr int kSizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

struct FileKind {
  const char* name;
  QColor color;
};

const FileKind kKinds[] = {
    {"positions", QColor(0x1f, 0x6f, 0xb2)}, {"parameters", QColor(0x7a, 0x5b, 0xa8)},
    {"groups", QColor(0x2e, 0x7d, 0x4f)},    {"macros", QColor(0xb0, 0x5c, 0x12)},
    {"program", QColor(0xa8, 0x32, 0x3e)},
};

/// A sheet with a folded corner in the kind's colour, and the program's picture on it.
QPixmap FileIcon(const FileKind& kind, int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  p.scale(size / 64.0, size / 64.0);
  QPainterPath sheet(QPointF(10, 2));
  for (const QPointF corner : {QPointF(40, 2), QPointF(54, 16), QPointF(54, 62), QPointF(10, 62)}) {
    sheet.lineTo(corner);
  }
  sheet.closeSubpath();
  p.setPen(QPen(kind.color, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.setBrush(Qt::white);
  p.drawPath(sheet);
  p.setBrush(kind.color);
  p.drawPolygon(QPolygonF({{40, 2}, {40, 16}, {54, 16}}));
  tr7::ProgramIcon().paint(&p, QRect(17, 22, 30, 30));
  p.fillRect(QRectF(10, 55, 44, 7), kind.color);
  return pixmap;
}

bool Save(const QPixmap& pixmap, const QDir& root, const QString& folder, const QString& name) {
  const QString sized = QString("%1x%1/%2").arg(pixmap.width()).arg(folder);
  return root.mkpath(sized) && pixmap.save(root.filePath(sized + "/" + name + ".png"));
}

bool SaveAll(const QDir& root, int size) {
  QPixmap program(size, size);
  program.fill(Qt::transparent);
  QPainter painter(&program);
  tr7::ProgramIcon().paint(&painter, program.rect());
  painter.end();
  bool good = Save(program, root, "apps", "qv-tr7");
  for (const FileKind& kind : kKinds) {
    good = Save(FileIcon(kind, size), root, "mimetypes",
                QString("application-x-qv-tr7-%1").arg(kind.name)) &&
           good;
  }
  return good;
}

}  // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: qv-tr7-icons DIR\n", stderr);
    return 2;
  }
  for (const int size : kSizes) {
    if (SaveAll(QDir(argv[1]), size)) continue;
    std::fprintf(stderr, "qv-tr7-icons: cannot write to %s\n", argv[1]);
    return 1;
  }
  return 0;
}
