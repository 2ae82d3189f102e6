#include "ui/look.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QPalette>
#include <QProxyStyle>
#include <optional>

#include "ui/icons.h"
#include "ui/qt_texts.h"

namespace tr7::look {
namespace {

constexpr qreal kFontPoints = 9.5;
/// Japanese letters fill their field, and their lines are high.
constexpr qreal kJapanesePoints = 9;

QPalette LightPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, kWindow);
  palette.setColor(QPalette::WindowText, kText);
  palette.setColor(QPalette::Base, kBase);
  palette.setColor(QPalette::AlternateBase, QColor(0xf6, 0xf8, 0xfa));
  palette.setColor(QPalette::Text, kText);
  palette.setColor(QPalette::Button, kButton);
  palette.setColor(QPalette::ButtonText, kText);
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::Highlight, kSelection);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, kSelection);
  palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfb, 0xe8));
  palette.setColor(QPalette::ToolTipText, kText);
  palette.setColor(QPalette::PlaceholderText, kFaintText);
  for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, kFaintText);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, kHeaderLine);
  return palette;
}

/// A field that is off looks off also while it is empty.
QPalette FieldPalette() {
  QPalette palette = LightPalette();
  palette.setColor(QPalette::Disabled, QPalette::Base, kWindow);
  return palette;
}

/// The first of the families that is installed; they carry every sign of factory Japanese.
QString JapaneseFamily() {
  const QStringList installed = QFontDatabase::families();
  for (const char* family : {"Noto Sans CJK JP", "Yu Gothic UI", "Meiryo", "Hiragino Sans",
                             "IPAexGothic", "TakaoPGothic", "VL PGothic"}) {
    if (installed.contains(QLatin1String(family))) return QLatin1String(family);
  }
  return {};
}

/// Fusion, with room beside the captions of buttons.
class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle(QStringLiteral("Fusion")) {}

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override {
    constexpr int kBeside = 12;
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_PushButton ? size.expandedTo({contents.width() + 2 * kBeside, 0}) : size;
  }

  /// The wheel scrolls what the mouse is over, and never chooses anything on the way.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_ComboBox_AllowWheelScrolling || hint == SH_TabBar_AllowWheelScrolling) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace

void Apply(QApplication& application) {
  application.setStyle(new Style);
  application.setPalette(LightPalette());
  QApplication::setPalette(FieldPalette(), "QLineEdit");
  QCoreApplication::installTranslator(new QtTexts(&application));
  application.setWindowIcon(ProgramIcon());
  QFont font = application.font();
  font.setPointSizeF(kFontPoints);
  application.setFont(font);
}

void UseLanguage(bool japanese) {
  static const QFont plain = QApplication::font();
  static std::optional<bool> in_use;
  if (in_use == japanese) return;
  in_use = japanese;
  QFont font = plain;
  const QString family = japanese ? JapaneseFamily() : QString();
  if (!family.isEmpty()) {
    font.setFamilies({family, plain.family()});
    font.setPointSizeF(kJapanesePoints);
  }
  QApplication::setFont(font);
}

}  // namespace tr7::look
