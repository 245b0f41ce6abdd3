// Placeholder until the calculator window lands: shows the readout.
#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QLabel readout(QStringLiteral("0."));
  readout.setWindowTitle(QStringLiteral("Brenko Calculator"));
  readout.show();
  return app.exec();
}
