#pragma once

#include <QApplication>
#include <QTest>

namespace skylob::test {

/// Does what QTEST_MAIN does, for one of several tests in a program; without widgets, which need a
/// QApplication, a QCoreApplication will do. Returns the number of functions that have failed.
template <class Test, class Toolkit = QApplication>
int runTest(int argc, char** argv) {
    const Toolkit application{argc, argv};
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

}  // namespace skylob::test
