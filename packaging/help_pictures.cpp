// Takes the manual's pictures from what a tour has left: qv-tr7-help-pictures TOUR HELP PICTURES.
// A page in HELP names "../pictures/NAME.png"; the tour's picture of it is "NNN-NAME.png".

#include <QDir>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>
#include <algorithm>

namespace {

constexpr int kWidth = 800;
constexpr int kColours = 256;
constexpr int kSteps = 5;  ///< of red, green and blue, between none and all of it

QSet<QString> NamedInPages(const QDir& help) {
  static const QRegularExpression kPicture(R"re(src="\.\./pictures/([^"]+)\.png")re");
  QSet<QString> names;
  for (const QString& language : help.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    const QDir folder(help.filePath(language));
    for (const QString& page : folder.entryList({"*.html"})) {
      QFile file(folder.filePath(page));
      if (!file.open(QIODevice::ReadOnly)) continue;
      auto found = kPicture.globalMatch(QString::fromUtf8(file.readAll()));
      while (found.hasNext()) names.insert(found.next().captured(1));
    }
  }
  return names;
}

/// Without the empty desktop around the windows.
QImage Cropped(const QImage& picture) {
  QRect windows;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) != qRgb(0, 0, 0)) windows |= QRect(x, y, 1, 1);
    }
  }
  return picture.copy(windows);
}

/// The picture in its most frequent colours, since a screen has few, and some of every hue, since a
/// lamp is small.
QImage InFewColours(const QImage& picture) {
  QMap<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y) & 0xfff8f8f8u];
  }
  QList<QRgb> colours = counts.keys();
  std::sort(colours.begin(), colours.end(),
            [&counts](QRgb a, QRgb b) { return counts[a] > counts[b]; });
  colours.resize(std::min<qsizetype>(colours.size(), kColours - kSteps * kSteps * kSteps));
  for (int i = 0; i < kSteps * kSteps * kSteps; ++i) {
    const auto part = [](int step) { return step % kSteps * 255 / (kSteps - 1); };
    colours << qRgb(part(i), part(i / kSteps), part(i / kSteps / kSteps));
  }
  return picture.convertToFormat(QImage::Format_Indexed8, colours,
                                 Qt::ThresholdDither | Qt::AvoidDither);
}

}  // namespace

int main(int argc, char** argv) {
  QTextStream out(stdout);
  if (argc != 4) {
    out << "usage: qv-tr7-help-pictures TOUR HELP PICTURES\n";
    return 2;
  }
  const QDir tour(argv[1]), help(argv[2]), pictures(argv[3]);
  bool all = pictures.mkpath(".");
  for (const QString& name : NamedInPages(help)) {
    const QStringList taken = tour.entryList({"[0-9][0-9][0-9]-" + name + ".png"});
    const QImage picture(taken.isEmpty() ? QString() : tour.filePath(taken.constFirst()));
    if (picture.isNull()) {
      out << "the tour has no picture " << name << "\n";
      all = false;
      continue;
    }
    const QImage small = Cropped(picture.convertToFormat(QImage::Format_RGB32))
                             .scaledToWidth(kWidth, Qt::SmoothTransformation);
    all = InFewColours(small).save(pictures.filePath(name + ".png"), "PNG", 0) && all;
  }
  return all ? 0 : 1;
}
