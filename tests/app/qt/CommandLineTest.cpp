#include <QTest>

#include "app/qt/QtCommandLine.h"

namespace skylob::test {

static CommandLine parse(std::initializer_list<std::string_view> arguments) {
    return parseCommandLine(std::span{arguments.begin(), arguments.size()});
}

class CommandLineTest : public QObject {
    Q_OBJECT

  private slots:
    void takesItsOptionsAndRefusesTheRest() {
        using Request = CommandLine::Request;
        QCOMPARE(parse({}).request, Request::Play);
        QCOMPARE(parse({"--help"}).request, Request::Help);
        QCOMPARE(parse({"--user-data", "-h"}).request, Request::Help);
        QCOMPARE(parse({"--seed", "5", "--version"}).request, Request::Version);
        QCOMPARE(parse({"--seed", "18446744073709551615"}).seed, 18446744073709551615u);
        QCOMPARE(parse({"--data-dir=a=b", "--seed=7"}).seed, 7u);
        QCOMPARE(parse({"--seed=7", "--data-dir=a=b"}).dataDir, "a=b");
        QCOMPARE(parse({"--data-dir", "my f\u00f6lder"}).dataDir, "my f\u00f6lder");
        QVERIFY(parse({"--user-data"}).userData);
        QVERIFY(!parse({}).userData);
        QVERIFY(parse({"--plain", "--seed=5"}).plain);
        QCOMPARE(parse({"--record=a b", "--seed=5"}).record, "a b");
        QCOMPARE(parse({"--plain", "--replay", "-"}).replay, "-");
        QVERIFY(!parse({}).plain);
        QVERIFY(parse({"--reduced-motion"}).reducedMotion);
        for (const int scale : {100, 137, 200})
            QCOMPARE(parse({"--scale", std::to_string(scale)}).scale, scale);
        for (const char* scale : {"", "99", "201", "150%", "1.5", "1e2", "-150", "99999999999"})
            QCOMPARE(parse({"--scale", scale}).request, Request::Refused);
        for (const auto& refused :
             {parse({"--seed"}), parse({"--seed", "-1"}), parse({"--seed", "1x"}),
              parse({"--seed="}), parse({"--data-dir", ""}), parse({"--fast"}), parse({"-seed=1"}),
              parse({"--help=x"}), parse({"--help", "--fast"}), parse({"file"}), parse({""}),
              parse({"--", "-\n"}), parse({"--user-data", "--data-dir", "x"}), parse({"--record="}),
              parse({"--replay=x", "--seed=1"}), parse({"--replay=x", "--record=y"}),
              parse({"\xff"})}) {
            QCOMPARE(refused.request, Request::Refused);
            QVERIFY(!refused.error.empty() && refused.error.find('\n') == std::string::npos);
        }
    }
};

}  // namespace skylob::test

int CommandLineTest_main(int argc, char** argv) {
    skylob::test::CommandLineTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "CommandLineTest.moc"
