// Writes the window icon's bitmaps as C++ arrays of premultiplied ARGB
// words, so that the program hands the window manager its icon without
// decoding a PNG at every start.
//
//   icon_pixels OUT.cpp SIZE=IN.png [SIZE=IN.png ...]
//
// The output defines brenko::ui::AppIconPixels() (ui/app_icon_pixels.h).

#include <QImage>
#include <QSaveFile>
#include <QString>
#include <QTextStream>
#include <cstdio>

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs("usage: icon_pixels OUT.cpp SIZE=IN.png [SIZE=IN.png ...]\n",
               stderr);
    return 2;
  }
  QString arrays;
  QString table;
  for (int i = 2; i < argc; ++i) {
    const QString argument = QString::fromLocal8Bit(argv[i]);
    const qsizetype equals = argument.indexOf(QLatin1Char('='));
    bool isNumber = false;
    const int size = argument.left(equals).toInt(&isNumber);
    const QString path = argument.mid(equals + 1);
    if (equals < 0 || !isNumber || size <= 0) {
      std::fprintf(stderr, "icon_pixels: not SIZE=IN.png: %s\n", argv[i]);
      return 2;
    }
    const QImage image =
        QImage(path).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
      std::fprintf(stderr, "icon_pixels: cannot read %s\n", argv[i]);
      return 1;
    }
    if (image.size() != QSize(size, size)) {
      std::fprintf(stderr, "icon_pixels: %s is %dx%d, not %dx%d\n", argv[i],
                   image.width(), image.height(), size, size);
      return 1;
    }
    const QString name = QStringLiteral("kPixels%1").arg(size);
    arrays += QStringLiteral("const std::uint32_t %1[%2] = {")
                  .arg(name)
                  .arg(size * size);
    for (int y = 0; y < size; ++y) {
      const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
      for (int x = 0; x < size; ++x) {
        arrays += (x % 6 == 0) ? QStringLiteral("\n    ") : QStringLiteral(" ");
        arrays += QStringLiteral("0x%1u,").arg(row[x], 8, 16, QLatin1Char('0'));
      }
    }
    arrays += QStringLiteral("\n};\n\n");
    table += QStringLiteral("    {%1, %2},\n").arg(size).arg(name);
  }
  QString text;
  QTextStream out(&text);
  out << "// Made by tools/icon_pixels from data/bitmaps when building.\n"
         "#include \"ui/app_icon_pixels.h\"\n\n"
         "namespace brenko::ui {\nnamespace {\n\n"
      << arrays << "const IconPixels kAll[] = {\n"
      << table
      << "};\n\n}  // namespace\n\n"
         "std::span<const IconPixels> AppIconPixels() { return kAll; }\n\n"
         "}  // namespace brenko::ui\n";
  out.flush();
  // Written whole or not at all: a build stopped halfway leaves no file
  // that looks made.
  const QByteArray bytes = text.toUtf8();
  QSaveFile file(QString::fromLocal8Bit(argv[1]));
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() ||
      !file.commit()) {
    std::fprintf(stderr, "icon_pixels: cannot write %s\n", argv[1]);
    return 1;
  }
  return 0;
}
