// Room on the main thread's stack: Qt paints overlapping sibling widgets
// with one nested call each, and a memory file's windows beyond the
// arrangement's reach lie in one place, up to 32,767 of them.
#include <QApplication>
#include <QImage>
#include <QWidget>
#include <QtTest>

#if !defined(_WIN32)
#include <sys/resource.h>
#endif

#include "os/stack_room.h"

class StackRoomTest : public QObject {
  Q_OBJECT

 private slots:
  void theMainStackMayGrowTo64MiB() {
#if defined(_WIN32)
    QSKIP("the linker sets the stack on Windows");
#else
    rlimit limit{};
    QCOMPARE(getrlimit(RLIMIT_STACK, &limit), 0);
    const auto wanted = static_cast<rlim_t>(brenko::os::kMainStackBytes);
    if (limit.rlim_max != RLIM_INFINITY && limit.rlim_max < wanted) {
      QSKIP("the system's hard limit is lower");
    }
    QVERIFY(limit.rlim_cur == RLIM_INFINITY || limit.rlim_cur >= wanted);
    // Asked again, it stays.
    QVERIFY(brenko::os::MakeStackRoom());
#endif
  }

  // The painting that ended the program with the usual 8 MiB.
  void thirtyTwoThousandSiblingsInOnePlacePaint() {
    QWidget parent;
    parent.resize(200, 100);
    for (int i = 0; i < 32767; ++i) {
      auto* child = new QWidget(&parent);
      child->setGeometry(i % 7, i % 5, 120, 40);
    }
    const QImage image = parent.grab().toImage();
    QCOMPARE(image.size(), QSize(200, 100));
  }
};

int main(int argc, char** argv) {
  // As the program does, before anything else.
  brenko::os::MakeStackRoom();
  QApplication app(argc, argv);
  StackRoomTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "stack_room_test.moc"
