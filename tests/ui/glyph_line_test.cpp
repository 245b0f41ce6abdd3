// The readout's line drawn from the font's glyph table: the same pixels as
// the text engine's drawing, the same width as its measure, and the text
// engine's turn for what the table cannot take.
#include "ui/glyph_line.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QtTest>

#include "ui/calculator_client.h"
#include "ui/fit_text.h"

using brenko::ui::CaptionCut;
using brenko::ui::CaptionDrawing;
using brenko::ui::CaptionRoom;
using brenko::ui::FitCaption;
using brenko::ui::GlyphLine;
using brenko::ui::ReadoutLabel;

namespace {

// What the readout shows: lengths, areas, volumes, decimals, the prompt's
// words, and every printable ASCII character.
QStringList ReadoutTexts() {
  QStringList texts = {
      QStringLiteral(" 0"),
      QStringLiteral(" 12'- 7 3/16\""),
      QStringLiteral(" -5'- 1/32\""),
      QStringLiteral(" 1241'- 1188 15/16\" cu."),
      QStringLiteral(" 144 sq."),
      QStringLiteral(" 3.14159265"),
      QStringLiteral(" 123456789"),
      QStringLiteral("Enter the diameter "),
      QStringLiteral(" 7/8\""),
  };
  QString ascii;
  for (char16_t c = 32; c < 127; ++c) ascii.append(QChar(c));
  texts.append(ascii.left(47));
  texts.append(ascii.mid(47));
  return texts;
}

QList<QFont> Fonts() {
  QFont plain = QApplication::font();
  QFont bold = plain;
  bold.setBold(true);
  bold.setPointSizeF(13.5);
  QFont small = bold;
  small.setPointSizeF(10);
  QFont pixels = plain;
  pixels.setPixelSize(17);
  return {plain, bold, small, pixels};
}

QImage Blank(const QSize& size) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  return image;
}

}  // namespace

class GlyphLineTest : public QObject {
  Q_OBJECT

 private slots:
  void theLineIsDrawnAsTheTextEngineDrawsIt() {
    const QList<int> alignments = {int(Qt::AlignRight | Qt::AlignVCenter),
                                   int(Qt::AlignLeft | Qt::AlignVCenter),
                                   int(Qt::AlignHCenter | Qt::AlignTop),
                                   int(Qt::AlignLeft | Qt::AlignBottom)};
    // Odd heights and places put the line between pixels.
    const QList<QRect> rooms = {QRect(3, 3, 660, 24), QRect(2, 5, 701, 31),
                                QRect(0, 0, 760, 27)};
    int drawn = 0;
    for (const QFont& font : Fonts()) {
      GlyphLine line;
      for (const QString& text : ReadoutTexts()) {
        for (const int alignment : alignments) {
          for (const QRect& room : rooms) {
            QImage engine = Blank(QSize(770, 40));
            QImage table = engine;
            {
              QPainter painter(&engine);
              painter.setFont(font);
              painter.setPen(QColor(16, 16, 16));
              painter.drawText(room, alignment, text);
            }
            QPainter painter(&table);
            painter.setFont(font);
            painter.setPen(QColor(16, 16, 16));
            if (!line.Draw(painter, room, alignment, text)) continue;
            painter.end();
            ++drawn;
            QVERIFY2(engine == table,
                     qPrintable(QStringLiteral("%1 in %2, alignment %3")
                                    .arg(text, font.toString())
                                    .arg(alignment)));
          }
        }
      }
    }
    // Every line above fits its room: none was left to the text engine.
    QCOMPARE(drawn, 4 * 11 * 4 * 3);
  }

  void theWidthIsTheTextEnginesMeasure() {
    for (const QFont& font : Fonts()) {
      GlyphLine line;
      const QFontMetricsF metrics(font);
      for (const QString& text : ReadoutTexts()) {
        const std::optional<qreal> width = line.Width(font, text);
        QVERIFY(width.has_value());
        QCOMPARE(*width, metrics.horizontalAdvance(text));
      }
    }
  }

  void whatTheTableCannotTakeIsLeftToTheTextEngine() {
    GlyphLine line;
    const QFont font = QApplication::font();
    // Beyond Latin-1.
    QVERIFY(!line.Width(font, QStringLiteral(" 12\u2026")).has_value());
    QImage image = Blank(QSize(200, 30));
    const QImage before = image;
    QPainter painter(&image);
    painter.setFont(font);
    QVERIFY(!line.Draw(painter, QRect(0, 0, 200, 30), Qt::AlignRight,
                       QStringLiteral("x\u2192y")));
    // Too wide, too high, or nothing to draw.
    QVERIFY(!line.Draw(painter, QRect(0, 0, 5, 30), Qt::AlignRight,
                       QStringLiteral(" 123456")));
    QVERIFY(!line.Draw(painter, QRect(0, 0, 200, 3), Qt::AlignRight,
                       QStringLiteral(" 1")));
    QVERIFY(
        !line.Draw(painter, QRect(0, 0, 200, 30), Qt::AlignRight, QString()));
    painter.end();
    QCOMPARE(image, before);
    // The table still serves the next line.
    QVERIFY(line.Width(font, QStringLiteral(" 12")).has_value());
  }

  // The readout paints what a plain label paints, then its edge: whole,
  // cut with "…" once its caption is too wide even in the smallest font,
  // with a character the glyph table leaves to the text engine, and
  // disabled.
  void theReadoutPaintsAsALabelWithItsEdge() {
    QFont bold = QApplication::font();
    bold.setBold(true);
    bold.setPointSizeF(13.5);
    const QString kinds[] = {
        QStringLiteral(" 12'- 7 3/16\""),
        QStringLiteral(" 1234567890123'- 1188 15/16\" cu. 99999999999"),
        QStringLiteral(" 12 ft\u00b2 \u2248 1.1 m\u00b2"),
        QStringLiteral(" 7/8\"")};
    for (const QString& text : kinds) {
      ReadoutLabel readout;
      QLabel label;
      for (QLabel* l : {static_cast<QLabel*>(&readout), &label}) {
        l->setTextFormat(Qt::PlainText);
        l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        l->setMargin(3);
        l->setAutoFillBackground(true);
        l->resize(180, 30);
        l->setText(text);
        l->setEnabled(text != kinds[3]);
      }
      FitCaption(&readout, bold, CaptionDrawing::kGlyphLine);
      FitCaption(&label, bold);
      QCOMPARE(readout.font(), label.font());
      QCOMPARE(CaptionCut(&readout), CaptionCut(&label));
      QImage expected = label.grab().toImage();
      {
        QPainter painter(&expected);
        ReadoutLabel::DrawSunkenEdge(painter, label.rect());
      }
      QCOMPARE(readout.grab().toImage(), expected);
    }
  }

  // Fitted by the table it is drawn from: a caption that fits is drawn
  // whole in the largest font it fits in.
  void theReadoutFitsByItsOwnMeasure() {
    QFont bold = QApplication::font();
    bold.setBold(true);
    bold.setPointSizeF(13.5);
    ReadoutLabel readout;
    readout.setTextFormat(Qt::PlainText);
    readout.setMargin(3);
    readout.resize(180, 30);
    QString text = QStringLiteral(" ");
    for (int digits = 1; digits <= 40; ++digits) {
      text.append(QLatin1Char('0' + digits % 10));
      readout.setText(text);
      FitCaption(&readout, bold, CaptionDrawing::kGlyphLine);
      const qreal width = QFontMetricsF(readout.font()).horizontalAdvance(text);
      if (readout.font() == bold) {
        QVERIFY(width <= CaptionRoom(&readout));
      } else if (!CaptionCut(&readout)) {
        QVERIFY(width <= CaptionRoom(&readout));
        QVERIFY(QFontMetricsF(bold).horizontalAdvance(text) >
                CaptionRoom(&readout));
      }
    }
    QVERIFY(CaptionCut(&readout));
  }
};

QTEST_MAIN(GlyphLineTest)
#include "glyph_line_test.moc"
