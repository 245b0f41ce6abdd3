#include "ui/tape_printer.h"

#include <QFont>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <cmath>
#include <memory>

namespace brenko::ui {

void TapePrinter::SetFont(const QString& family, double points) {
  family_ = family;
  // A size the painter cannot use keeps the previous one.
  if (std::isfinite(points) && points > 0 && points < 1000) points_ = points;
}

bool TapePrinter::EndDoc() {
  const QStringList lines = lines_;
  lines_.clear();
  std::unique_ptr<QPrinter> printer;
  if (!outputFile_.isEmpty()) {
    printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(outputFile_);
  } else {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) return false;  // no printer: nothing happens
    printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
  }
  printer->setDocName(QStringLiteral("Brenko Calculator tape"));

  QPainter painter;
  if (!painter.begin(printer.get())) return false;
  QFont font(family_);
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  font.setPointSizeF(points_);
  painter.setFont(font);

  Document doc;
  doc.fontFamily = family_;
  const QFontInfo used(painter.font());
  doc.paintedFamily = used.family();
  doc.fixedPitch = used.fixedPitch();
  doc.pointSize = points_;
  doc.pages = 1;

  const QFontMetricsF metrics(painter.font(), printer.get());
  const QRectF page =
      printer->pageLayout().paintRectPixels(printer->resolution());
  const double lineHeight = metrics.lineSpacing();
  double baseline = metrics.ascent();
  for (const QString& line : lines) {
    if (baseline + metrics.descent() > page.height() && baseline > lineHeight) {
      printer->newPage();
      ++doc.pages;
      baseline = metrics.ascent();
    }
    painter.drawText(QPointF(0, baseline), line);
    doc.lines.push_back({line, 0, metrics.horizontalAdvance(line), baseline});
    baseline += lineHeight;
  }
  painter.end();
  ++printed_;
  last_ = std::move(doc);
  return true;
}

}  // namespace brenko::ui
