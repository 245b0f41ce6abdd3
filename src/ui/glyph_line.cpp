#include "ui/glyph_line.h"

#include <QGlyphRun>
#include <QPainter>
#include <QPointF>
#include <QRect>
#include <cstdint>

namespace brenko::ui {
namespace {

// The text engine counts in 1/64 pixel and takes a place into that unit
// cutting off what is finer.
constexpr qreal kUnit = 64.0;
constexpr std::int16_t kUnknownPair = INT16_MIN;

std::int64_t ToUnits(qreal pixels) {
  return static_cast<std::int64_t>(pixels * kUnit);
}

}  // namespace

void GlyphLine::Use(const QFont& font) {
  if (ready_ && font_ == font) return;
  font_ = font;
  ready_ = true;
  raw_ = QRawFont::fromFont(font);
  metrics_.emplace(font);
  advance_.fill(-1);
  for (std::vector<std::int16_t>& row : pairs_) row.clear();
}

std::int32_t GlyphLine::Pair(char16_t first, char16_t second) {
  std::vector<std::int16_t>& row = pairs_[first];
  if (row.empty()) row.assign(256, kUnknownPair);
  std::int16_t& kern = row[second];
  if (kern == kUnknownPair) {
    // The kerning of a pair is what shaping the two adds to their advances.
    const QChar both[] = {QChar(first), QChar(second)};
    const QString pair(both, 2);
    kern =
        static_cast<std::int16_t>(ToUnits(metrics_->horizontalAdvance(pair)) -
                                  advance_[first] - advance_[second]);
  }
  return kern;
}

bool GlyphLine::Look(const QString& text, std::int64_t* advance) {
  if (!raw_.isValid()) return false;
  glyphs_.clear();
  advances_.clear();
  std::int64_t sum = 0;
  char16_t previous = 0;
  for (const QChar c : text) {
    const char16_t code = c.unicode();
    if (code >= advance_.size()) return false;
    if (advance_[code] < 0) {
      const QList<quint32> found = raw_.glyphIndexesForString(QString(c));
      const quint32 glyph = found.size() == 1 ? found.front() : 0;
      glyph_[code] = glyph;
      advance_[code] =
          glyph == 0 ? 0
                     : static_cast<std::int32_t>(ToUnits(
                           raw_.advancesForGlyphIndexes(QList<quint32>{glyph})
                               .front()
                               .x()));
    }
    if (glyph_[code] == 0) return false;
    if (!glyphs_.empty()) {
      // Shaping moves the second of a kerned pair by the first's advance.
      const std::int32_t kern = Pair(previous, code);
      advances_.back() += kern;
      sum += kern;
    }
    glyphs_.push_back(glyph_[code]);
    advances_.push_back(advance_[code]);
    sum += advance_[code];
    previous = code;
  }
  *advance = sum;
  return true;
}

std::optional<qreal> GlyphLine::Width(const QFont& font, const QString& text) {
  Use(font);
  std::int64_t advance = 0;
  if (!Look(text, &advance)) return std::nullopt;
  return static_cast<qreal>(advance) / kUnit;
}

bool GlyphLine::Draw(QPainter& painter, const QRect& room, int alignment,
                     const QString& text) {
  Use(painter.font());
  std::int64_t advance = 0;
  if (text.isEmpty() || !Look(text, &advance)) return false;
  const qreal width = static_cast<qreal>(advance) / kUnit;
  const qreal height = raw_.ascent() + raw_.descent();
  if (width > room.width() || height > room.height()) return false;
  // As the text engine places a single line: aligned within the room, the
  // baseline an ascent below the line's top.
  qreal x = room.x();
  if (alignment & Qt::AlignRight) {
    x += room.width() - width;
  } else if (alignment & Qt::AlignHCenter) {
    x += (room.width() - width) / 2;
  }
  qreal y = room.y();
  if (alignment & Qt::AlignBottom) {
    y += room.height() - height;
  } else if (alignment & Qt::AlignVCenter) {
    y += (room.height() - height) / 2;
  }
  std::int64_t pen = ToUnits(x);
  const qreal baseline =
      static_cast<qreal>(ToUnits(y) + ToUnits(raw_.ascent())) / kUnit;
  QList<QPointF> places;
  places.reserve(static_cast<qsizetype>(glyphs_.size()));
  for (const std::int32_t step : advances_) {
    places.append(QPointF(static_cast<qreal>(pen) / kUnit, baseline));
    pen += step;
  }
  QGlyphRun run;
  run.setRawFont(raw_);
  run.setGlyphIndexes(QList<quint32>(glyphs_.begin(), glyphs_.end()));
  run.setPositions(places);
  painter.drawGlyphRun(QPointF(0, 0), run);
  return true;
}

}  // namespace brenko::ui
