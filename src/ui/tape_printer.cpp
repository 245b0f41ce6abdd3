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

TapePrinter::TapePrinter() = default;
TapePrinter::~TapePrinter() { EndJob(); }

void TapePrinter::BeginJob(std::unique_ptr<QPrinter> printer) {
  EndJob();
  job_ = std::move(printer);
  job_->setDocName(QStringLiteral("Brenko Calculator tape"));
}

void TapePrinter::EndJob() {
  if (jobPainter_ && jobPainter_->isActive()) jobPainter_->end();
  jobPainter_.reset();
  job_.reset();
}

bool TapePrinter::EndDoc() {
  const QStringList lines = lines_;
  lines_.clear();
  if (job_) {
    // Every document of the job after the first starts a page of its own.
    if (!jobPainter_) {
      jobPainter_ = std::make_unique<QPainter>();
      if (!jobPainter_->begin(job_.get())) {
        jobPainter_.reset();
        job_.reset();
        return false;
      }
    } else if (!job_->newPage()) {
      return false;
    }
    last_ = Paint(*job_, *jobPainter_, lines);
    ++printed_;
    return true;
  }
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
  last_ = Paint(*printer, painter, lines);
  painter.end();
  ++printed_;
  return true;
}

TapePrinter::Document TapePrinter::Paint(QPrinter& printer, QPainter& painter,
                                         const QStringList& lines) const {
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

  const QFontMetricsF metrics(painter.font(), &printer);
  const QRectF page =
      printer.pageLayout().paintRectPixels(printer.resolution());
  const double lineHeight = metrics.lineSpacing();
  double baseline = metrics.ascent();
  for (const QString& line : lines) {
    if (baseline + metrics.descent() > page.height() && baseline > lineHeight) {
      printer.newPage();
      ++doc.pages;
      baseline = metrics.ascent();
    }
    painter.drawText(QPointF(0, baseline), line);
    doc.lines.push_back({line, 0, metrics.horizontalAdvance(line), baseline});
    baseline += lineHeight;
  }
  return doc;
}

}  // namespace brenko::ui
