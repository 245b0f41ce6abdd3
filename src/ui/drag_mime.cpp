#include "ui/drag_mime.h"

#include <QByteArray>
#include <QStringList>
#include <cmath>
#include <cstdint>
#include <limits>

namespace brenko::ui {

QString DragSourceText(const DragSource& source) {
  if (source.kind == DragSource::kReadout) return QStringLiteral("readout");
  return QStringLiteral("memory %1").arg(source.memoryNumber);
}

std::optional<DragSource> ParseDragSource(const QString& text) {
  if (text == QLatin1String("readout")) return DragSource{};
  const QStringList words = text.split(QLatin1Char(' '));
  if (words.size() != 2 || words[0] != QLatin1String("memory")) {
    return std::nullopt;
  }
  bool ok = false;
  const int number = words[1].toInt(&ok);
  // Memory numbers are 16-bit and start at 1.
  if (!ok || number < 1 || number > std::numeric_limits<std::int16_t>::max()) {
    return std::nullopt;
  }
  DragSource source;
  source.kind = DragSource::kMemory;
  source.memoryNumber = number;
  return source;
}

std::unique_ptr<QMimeData> MakeDragMime(const DragSource& source) {
  auto mime = std::make_unique<QMimeData>();
  mime->setData(QString::fromLatin1(kDragSourceMimeType),
                DragSourceText(source).toUtf8());
  return mime;
}

std::optional<DragSource> DragSourceOf(const QMimeData* mime) {
  const QString type = QString::fromLatin1(kDragSourceMimeType);
  if (mime == nullptr || !mime->hasFormat(type)) return std::nullopt;
  return ParseDragSource(QString::fromUtf8(mime->data(type)));
}

float DropTwips(float controlPlace, double localPixels, double twipsPerPixel) {
  const double twips = controlPlace + localPixels * twipsPerPixel;
  // A broken screen metric must not turn into a wild coordinate.
  if (!std::isfinite(twips)) return controlPlace;
  return static_cast<float>(twips);
}

}  // namespace brenko::ui
