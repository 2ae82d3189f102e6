#include "ui/icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <array>

#include "ui/look.h"

namespace tr7 {
namespace {

// Every picture is drawn on a field of 24 by 24.
constexpr qreal kField = 24;

struct Inks {
  QColor line;
  QColor paper;
  QColor accent;
};

Inks Normal() {
  const look::Palette& colours = look::Colours();
  return {colours.icon_line, colours.icon_paper, colours.link};
}
Inks Disabled() {
  const look::Palette& colours = look::Colours();
  return {colours.icon_off, colours.window, colours.icon_off};
}

void SetInk(QPainter& p, const Inks& inks) {
  p.setPen(QPen(inks.line, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.setBrush(inks.paper);
}

/// A sheet with a folded corner.
void Sheet(QPainter& p, const QRectF& at) {
  constexpr qreal kFold = 5;
  QPainterPath path(at.topLeft());
  path.lineTo(at.right() - kFold, at.top());
  path.lineTo(at.right(), at.top() + kFold);
  path.lineTo(at.bottomRight());
  path.lineTo(at.bottomLeft());
  path.closeSubpath();
  p.drawPath(path);
  p.drawPolyline(QPolygonF({{at.right() - kFold, at.top()},
                            {at.right() - kFold, at.top() + kFold},
                            {at.right(), at.top() + kFold}}));
}

void Lines(QPainter& p, qreal left, qreal right, std::initializer_list<qreal> heights) {
  for (qreal y : heights) p.drawLine(QPointF(left, y), QPointF(right, y));
}

void DrawNew(QPainter& p, const Inks& inks) {
  Sheet(p, {5, 3, 13, 18});
  p.setPen(QPen(inks.accent, 2, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(11.5, 11), QPointF(11.5, 18));
  p.drawLine(QPointF(8, 14.5), QPointF(15, 14.5));
}

void DrawOpen(QPainter& p, const Inks& inks) {
  QPainterPath back(QPointF(3, 19));
  back.lineTo(3, 6);
  back.lineTo(9, 6);
  back.lineTo(11, 8.5);
  back.lineTo(19, 8.5);
  back.lineTo(19, 19);
  back.closeSubpath();
  p.drawPath(back);
  p.setBrush(inks.accent.lighter(175));
  p.drawPolygon(QPolygonF({{3, 19}, {6.5, 11.5}, {22, 11.5}, {19, 19}}));
}

void DrawSave(QPainter& p, const Inks& inks) {
  p.drawPolygon(QPolygonF({{4, 4}, {17, 4}, {20, 7}, {20, 20}, {4, 20}}));
  p.setBrush(inks.accent.lighter(150));
  p.drawRect(QRectF(8, 4, 7.5, 5));
  p.setBrush(Qt::NoBrush);
  p.drawRect(QRectF(7.5, 13, 9, 7));
}

void DrawPrint(QPainter& p, const Inks& inks) {
  p.drawRect(QRectF(7, 3, 10, 6));
  p.setBrush(inks.accent.lighter(175));
  p.drawRoundedRect(QRectF(3, 9, 18, 8), 2, 2);
  p.setBrush(inks.paper);
  p.drawRect(QRectF(7, 14, 10, 7));
  Lines(p, 9, 15, {16.5, 18.7});
}

void DrawCut(QPainter& p, const Inks& inks) {
  p.drawLine(QPointF(7, 3), QPointF(15.3, 16));
  p.drawLine(QPointF(17, 3), QPointF(8.7, 16));
  p.setPen(QPen(inks.accent, 1.8));
  p.setBrush(Qt::NoBrush);
  p.drawEllipse(QPointF(7.3, 18.3), 2.7, 2.7);
  p.drawEllipse(QPointF(16.7, 18.3), 2.7, 2.7);
}

void DrawCopy(QPainter& p, const Inks& inks) {
  Sheet(p, {4, 3, 11, 14});
  p.setBrush(inks.accent.lighter(180));
  Sheet(p, {9, 7, 11, 14});
}

void DrawPaste(QPainter& p, const Inks& inks) {
  p.setBrush(inks.accent.lighter(180));
  p.drawRoundedRect(QRectF(4, 4.5, 15, 17), 1.5, 1.5);
  p.setBrush(inks.paper);
  p.drawRect(QRectF(8.5, 2.5, 6, 4));
  p.drawRect(QRectF(7.5, 9.5, 12.5, 11));
  Lines(p, 10, 17.5, {13, 15.5, 18});
}

void DrawPrgEdit(QPainter& p, const Inks& inks) {
  Sheet(p, {4, 3, 13, 18});
  Lines(p, 7, 11.5, {10, 13, 16});
  p.setBrush(inks.accent);
  p.setPen(QPen(inks.accent, 1));
  p.drawPolygon(QPolygonF({{12, 19}, {12.6, 16.2}, {19.5, 9.3}, {21.7, 11.5}, {14.8, 18.4}}));
}

void DrawPrgExe(QPainter& p, const Inks& inks) {
  Sheet(p, {4, 3, 13, 18});
  p.setBrush(inks.accent);
  p.setPen(QPen(inks.accent, 1));
  p.drawPolygon(QPolygonF({{11, 11}, {21, 16}, {11, 21}}));
}

/// A plug with two prongs and its cable.
void DrawPlug(QPainter& p, const Inks& inks) {
  p.setPen(QPen(inks.accent, 3, Qt::SolidLine, Qt::RoundCap));
  p.setBrush(inks.accent);
  p.drawLine(QPointF(8, 2.5), QPointF(8, 8));
  p.drawLine(QPointF(16, 2.5), QPointF(16, 8));
  p.drawRoundedRect(QRectF(5, 9, 14, 7), 3, 3);
  p.drawLine(QPointF(12, 16), QPointF(12, 22));
}

/// A slide on its rail, four times over in the program's colours.
void DrawProgram(QPainter& p, const Inks& inks) {
  p.setPen(Qt::NoPen);
  p.setBrush(inks.accent.darker(125));
  p.drawRoundedRect(QRectF(1, 1, 22, 22), 4, 4);
  constexpr std::array<qreal, 4> kSlides{6, 13, 9, 15};
  for (std::size_t i = 0; i < kSlides.size(); ++i) {
    const qreal y = 5.5 + 4.4 * static_cast<qreal>(i);
    p.setPen(QPen(QColor(255, 255, 255, 120), 1.2));
    p.drawLine(QPointF(4, y), QPointF(20, y));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xff, 0xd2, 0x4a));
    p.drawRoundedRect(QRectF(kSlides[i] - 2, y - 1.6, 4, 3.2), 0.8, 0.8);
  }
}

void Sign(QPainter& p, const QPainterPath& field, const QColor& colour, const QString& sign) {
  p.setPen(Qt::NoPen);
  p.setBrush(colour);
  p.drawPath(field);
  QFont font = p.font();
  font.setPixelSize(15);
  font.setBold(true);
  p.setFont(font);
  p.setPen(look::Colours().base);
  p.drawText(field.boundingRect(), Qt::AlignCenter, sign);
}

QPainterPath Disc() {
  QPainterPath path;
  path.addEllipse(QRectF(1.5, 1.5, 21, 21));
  return path;
}

void DrawInformation(QPainter& p, const Inks& inks) { Sign(p, Disc(), inks.accent, "i"); }
void DrawQuestion(QPainter& p, const Inks& inks) { Sign(p, Disc(), inks.accent, "?"); }
void DrawError(QPainter& p, const Inks&) { Sign(p, Disc(), look::Colours().alarm, "\u00d7"); }

void DrawWarning(QPainter& p, const Inks&) {
  p.setPen(QPen(look::Colours().caution, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.setBrush(look::Colours().caution);
  p.drawPolygon(QPolygonF({{12, 2.5}, {22.5, 21}, {1.5, 21}}));
  p.setPen(QPen(look::Colours().base, 2.4, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(12, 9), QPointF(12, 14.5));
  p.drawPoint(QPointF(12, 18));
}

using Drawing = void (*)(QPainter&, const Inks&);

class DrawnIcon : public QIconEngine {
 public:
  explicit DrawnIcon(Drawing drawing) : drawing_(drawing) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const Inks inks = mode == QIcon::Disabled ? Disabled() : Normal();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / kField, rect.height() / kField);
    SetInk(*painter, inks);
    drawing_(*painter, inks);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new DrawnIcon(drawing_); }

 private:
  Drawing drawing_;
};

struct Picture {
  const char* key;
  Drawing drawing;
};

constexpr std::array kPictures{
    Picture{"New", DrawNew},     Picture{"Open", DrawOpen},       Picture{"Save", DrawSave},
    Picture{"Print", DrawPrint}, Picture{"Cut", DrawCut},         Picture{"Copy", DrawCopy},
    Picture{"Paste", DrawPaste}, Picture{"PrgEdit", DrawPrgEdit}, Picture{"PrgExe", DrawPrgExe},
};

}  // namespace

QIcon ToolIcon(const std::string& key) {
  for (const Picture& picture : kPictures) {
    if (key == picture.key) return QIcon(new DrawnIcon(picture.drawing));
  }
  return {};
}

QIcon MessageIcon(const std::string& kind) {
  if (kind == "Information") return QIcon(new DrawnIcon(DrawInformation));
  if (kind == "Question") return QIcon(new DrawnIcon(DrawQuestion));
  if (kind == "Warning") return QIcon(new DrawnIcon(DrawWarning));
  return QIcon(new DrawnIcon(DrawError));
}

QIcon ConnectIcon() { return QIcon(new DrawnIcon(DrawPlug)); }

QIcon ProgramIcon() { return QIcon(new DrawnIcon(DrawProgram)); }

}  // namespace tr7
