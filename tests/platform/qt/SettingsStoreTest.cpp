#include <sys/stat.h>

#include <QDir>
#include <QElapsedTimer>
#include <QLockFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/qt/QtScaleFactor.h"
#include "platform/qt/QtSettingsStore.h"
#include "platform/qt/QtWindowStore.h"
#include "tests/support/CapturedErrors.h"
#include "tests/support/ScreenTest.h"

using namespace skylob;
using namespace std::string_literals;

class SettingsStoreTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        qputenv("XDG_CONFIG_HOME", m_folder.path().toLocal8Bit());
        QVERIFY(QDir{m_folder.path()}.mkdir("Skylob"));
    }

    void waitsOnlyOnceForALock() {
        QLockFile lock{m_file + ".lock"};
        QVERIFY(lock.lock());
        const test::CapturedErrors errors;
        QElapsedTimer timer;
        timer.start();
        QtSettingsStore store;
        for (const char* value : {"3", "4", "5", "6", "7"}) store.save("GameSpeed", value);
        QVERIFY2(timer.elapsed() < 2000, "it waits for each");
        QCOMPARE(store.get("GameSpeed", "0"), "7"s);
        expectOneLine(errors.text());
        QVERIFY(!QFile::exists(m_file));
        lock.unlock();
        store.save("WindSetting", "1");
        QFile file{m_file};
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "[Defaults]\nGameSpeed=7\nWindSetting=1\n");
        expectOneLine(errors.text());
        // What belongs to windows never mixes with the settings.
        QtWindowStore windows;
        windows.keep("Volume", "40");
        QCOMPARE(QtWindowStore{}.recall("Volume", "100"), "40"s);
        QCOMPARE(windows.recall("GameSpeed", "none"), "none"s);
        QCOMPARE(store.get("Volume", "none"), "none"s);
    }

    void takesDefaultsWhereThereIsNoFile() {
        const QByteArray name = m_file.toLocal8Bit();
        for (const bool pipe : {true, false}) {
            QFile::remove(m_file);
            QCOMPARE(pipe ? mkfifo(name, 0600) : mkdir(name, 0700), 0);
            const test::CapturedErrors errors;
            QtSettingsStore store;
            QCOMPARE(store.get("GameSpeed", "50"), "50"s);
            store.save("GameSpeed", "8");
            QCOMPARE(store.get("GameSpeed", "50"), "8"s);
            expectOneLine(errors.text());
        }
    }

    void makesTheToolkitLargerOnTopOfTheUsersOwn() {
        constexpr const char* kName = "QT_SCALE_FACTOR";
        for (const auto& [own, factor] : {std::pair{"1.25", "2.5"}, {"wide", "2"}, {"", "2"}}) {
            qputenv(kName, own);
            std::optional<QtScaleFactor> larger{200};
            QCOMPARE(qgetenv(kName), factor);
            larger.reset();
            QCOMPARE(qgetenv(kName), own);
        }
        qunsetenv(kName);
        QtScaleFactor{200};
        QVERIFY(!qEnvironmentVariableIsSet(kName));
    }

  private:
    static void expectOneLine(const QByteArray& errors) {
        QVERIFY2(errors.startsWith("skylob: "), errors);
        QCOMPARE(errors.count('\n'), 1);
    }

    const QTemporaryDir m_folder;
    const QString m_file = m_folder.filePath("Skylob/Skylob.ini");
};

int SettingsStoreTest_main(int argc, char** argv) {
    return skylob::test::runTest<SettingsStoreTest, QCoreApplication>(argc, argv);
}
#include "SettingsStoreTest.moc"
