#pragma once
// The printer behind the platform's font/line/end-of-document calls: lines
// are collected per document and painted when the document ends, each line
// at the left margin in the chosen fixed-pitch font (the lines arrive padded
// with blanks, so their right ends line up). Without a printer a document is
// dropped silently. For tests the output can go to a PDF file instead, and
// the painted lines are kept for checking.

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

class QPainter;
class QPrinter;

namespace brenko::ui {

class TapePrinter {
 public:
  TapePrinter();
  ~TapePrinter();
  TapePrinter(const TapePrinter&) = delete;
  TapePrinter& operator=(const TapePrinter&) = delete;

  // One painted line, in device pixels of the page.
  struct PaintedLine {
    QString text;
    double left = 0;
    double right = 0;  // left + advance width of the text
    double baseline = 0;
  };
  struct Document {
    QString fontFamily;     // the family asked for ("Courier")
    QString paintedFamily;  // the family the painter actually used
    bool fixedPitch = false;
    double pointSize = 0;
    int pages = 0;
    std::vector<PaintedLine> lines;
  };

  void SetOutputFile(const QString& path) { outputFile_ = path; }
  void SetFont(const QString& family, double points);
  void AddLine(const QString& line) { lines_ << line; }
  // Paints the collected lines as one document; false when there was no
  // printer to paint on. Within a job the document goes to the job's
  // printer, on a new page.
  bool EndDoc();
  // The documents until EndJob go to `printer` (the one the print dialog
  // set up), as one print job.
  void BeginJob(std::unique_ptr<QPrinter> printer);
  void EndJob();

  int DocumentsPrinted() const { return printed_; }
  const Document& LastDocument() const { return last_; }

 private:
  Document Paint(QPrinter& printer, QPainter& painter,
                 const QStringList& lines) const;

  std::unique_ptr<QPrinter> job_;
  std::unique_ptr<QPainter> jobPainter_;
  QString outputFile_;
  QString family_ = QStringLiteral("Courier");
  double points_ = 10;
  QStringList lines_;
  int printed_ = 0;
  Document last_;
};

}  // namespace brenko::ui
