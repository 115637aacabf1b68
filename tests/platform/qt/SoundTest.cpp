#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>
#include <csignal>
#include <span>

#include "platform/RunPath.h"
#include "platform/SoundOrders.h"
#include "platform/SoundProcess.h"
#include "platform/qt/QtSoundPlayer.h"
#include "tests/support/CapturedErrors.h"
#include "tests/support/ScreenTest.h"

using namespace skylob;

constexpr qint64 kRate = 44100;

QString program() {
    return QString::fromStdString(foundOnRunPath("skylob-sound"));
}

/// What would be heard goes into a file, some five times faster than it sounds. A sound system that
/// hangs does so until somebody reads what it plays.
class Capture {
  public:
    explicit Capture(bool hangs = false) {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", name.toLocal8Bit());
        qputenv("SDL_DISKAUDIODELAY", "5");
        if (hangs && mkfifo(name.toLocal8Bit(), 0600) != 0) qFatal("no pipe");
    }
    qint64 frames() const { return QFileInfo{name}.size() / 2; }

    /// Ends the hanging.
    void read() {
        const QString pipe = std::exchange(name, folder.filePath("heard"));
        m_reader.setStandardOutputFile(name);
        m_reader.start("cat", {pipe});
    }
    bool isOver() { return m_reader.waitForFinished(); }

    /// The last frame that is louder than silence.
    qint64 lastLoudFrame() const {
        const QList<qint16> heard = samples();
        qint64 last = heard.size() - 1;
        while (last >= 0 && std::abs(heard[last]) < 300) --last;
        return last;
    }

    int loudest() const {
        int most = 0;
        for (const qint16 sample : samples()) most = std::max(most, std::abs(sample));
        return most;
    }

    QList<qint16> samples() const {
        QFile file{name};
        if (!file.open(QIODevice::ReadOnly)) return {};
        const QByteArray bytes = file.readAll();
        const auto* first = reinterpret_cast<const qint16*>(bytes.constData());
        return {first, first + bytes.size() / 2};
    }

    const QTemporaryDir folder;
    QString name = folder.filePath("capture.raw");

  private:
    QProcess m_reader;
};

/// While it lives, each new thread is to have a stack larger than the address space.
class ThreadsTooLarge {
  public:
    ThreadsTooLarge() {
        pthread_getattr_default_np(&m_before);
        pthread_attr_t tooLarge;
        pthread_getattr_default_np(&tooLarge);
        pthread_attr_setstacksize(&tooLarge, std::size_t{1} << 60);
        pthread_setattr_default_np(&tooLarge);
        pthread_attr_destroy(&tooLarge);
    }
    ~ThreadsTooLarge() {
        pthread_setattr_default_np(&m_before);
        pthread_attr_destroy(&m_before);
    }

    ThreadsTooLarge(const ThreadsTooLarge&) = delete;
    ThreadsTooLarge& operator=(const ThreadsTooLarge&) = delete;

  private:
    pthread_attr_t m_before;
};

/// A program of a few lines of shell, which may say which process it is.
struct Script {
    Script(const QString& path, const QString& lines) : name{path}, number{path + ".pid"} {
        QFile script{path};
        if (!script.open(QIODevice::WriteOnly)) qFatal("no script");
        script.write(QStringLiteral("#!/bin/sh\necho $$ >'%1'\n%2\n").arg(number, lines).toUtf8());
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    void crash() const {
        QFile process{number};
        if (!process.open(QIODevice::ReadOnly)) qFatal("it has not been started");
        kill(process.readAll().trimmed().toInt(), SIGKILL);
    }

    QString name, number;
};

class SoundTest : public QObject {
    Q_OBJECT

  private slots:
    void playsTheCompressedOne() {
        const Capture capture;
        QtSoundPlayer player;
        player.PlaySound("daffy");
        QTRY_VERIFY(!player.isPlaying());
        QCOMPARE(capture.lastLoudFrame() / kRate, 1);  // between one second and two
    }

    void onlyAttenuates() {
        int loudest[] = {0, 0, 0};
        const int volumes[] = {100, 50, 0};
        for (int i = 0; i < 3; ++i) {
            const Capture capture;
            QtSoundPlayer player;
            player.setVolume(volumes[i]);
            player.PlaySound("shot");
            QTRY_VERIFY(!player.isPlaying());
            loudest[i] = capture.loudest();
        }
        QCOMPARE_GT(loudest[0], 3000);
        QVERIFY(std::abs(loudest[0] - 2 * loudest[1]) <= 4);
        QCOMPARE(loudest[2], 0);
    }

    void cutsOffTheSoundThatPlays() {
        const Capture capture;
        QtSoundPlayer player;
        player.PlaySound("THUNDER3");  // 9.6 s
        QTRY_VERIFY(capture.frames() > kRate / 2);
        player.PlaySound("shot");  // 0.5 s
        const qint64 switched = capture.frames();
        QCOMPARE_LT(switched, 5 * kRate);  // or the thunder would be as good as over
        QTRY_VERIFY(!player.isPlaying());
        QTRY_VERIFY(capture.frames() > switched + 4 * kRate);
        QCOMPARE_LT(capture.lastLoudFrame(), switched + 3 * kRate);
        QVERIFY_EXCEPTION_THROWN(player.PlaySound("silence"), std::out_of_range);
    }

    void bearsAProgramThatIsMissingOrEnds() {
        for (const QByteArray program : {"/nonesuch", "/bin/false"}) {
            const test::CapturedErrors errors;
            SoundProcess device{program.toStdString()};
            device.open();
            device.open();
            QVERIFY(!device.isOpen());
            const QByteArray said = errors.text();
            QVERIFY2(said.startsWith("skylob: no sound: " + program) && said.count('\n') == 1,
                     said);
        }
    }

    void startsAgainAfterACrash() {
        const Capture capture;
        const test::CapturedErrors errors;
        QFile resource{":/sounds/thunder3.wav"};
        QVERIFY(resource.open(QIODevice::ReadOnly));
        const QByteArray thunder = resource.readAll();
        const Script script{capture.folder.filePath("crashing"),
                            QStringLiteral("exec '%1'").arg(program())};
        SoundProcess device{script.name.toStdString()};
        device.open();
        device.play(std::as_bytes(std::span{thunder}));
        QVERIFY(device.isPlaying());

        script.crash();
        QTRY_VERIFY(!device.isPlaying());
        device.play(std::as_bytes(std::span{thunder}));
        QVERIFY(!device.isOpen());
        device.open();
        device.play(std::as_bytes(std::span{thunder}));
        QVERIFY(device.isPlaying());

        script.crash();
        QTRY_VERIFY(!device.isPlaying());
        device.setVolume(50);
        device.open();
        device.play(std::as_bytes(std::span{thunder}));
        QVERIFY(device.isPlaying());
        QCOMPARE(errors.text(), QByteArray{});
    }

    void waitsInItsThreadForAProgramThatHangs() {
        const QTemporaryDir folder;
        const QString orders = folder.filePath("orders");
        // It says that the device is open, and nothing more.
        const Script script{
            folder.filePath("hanging"),
            QStringLiteral("printf '\\1\\0\\0\\0' >&0\nexec cat >'%1'").arg(orders)};
        QtSoundPlayer player{script.name.toStdString()};
        player.PlaySound("click");
        // The volume, the sound, and whether it plays.
        const qint64 asked =
            QFileInfo{":/sounds/click.wav"}.size() + 3 * qint64{sizeof(SoundOrder)};
        QTRY_VERIFY(QFileInfo{orders}.size() >= asked);
        QVERIFY(player.isPlaying());
        QVERIFY(!player.close(std::chrono::milliseconds{1}));
        script.crash();
        QVERIFY(player.close(std::chrono::minutes{1}));
    }

    void bearsAMissingDeviceWithOneLineAtMost() {
        // The second is a sound system that complains by itself where there is no sound card.
        for (const char* driver : {"nonesuch", "alsa"}) {
            qputenv("SDL_AUDIODRIVER", driver);
            const test::CapturedErrors errors;
            QtSoundPlayer player;
            player.PlaySound("click");
            player.PlaySound("shot");
            QVERIFY(player.close(std::chrono::minutes{1}));
            const QByteArray said = errors.text();
            QVERIFY2(said.count('\n') <= 1, said);
            if (driver == QByteArray{"nonesuch"}) QVERIFY(said.startsWith("skylob: no sound: "));
        }
    }

    void bearsAThreadThatCannotBeMade() {
        const ThreadsTooLarge threads;
        const test::CapturedErrors errors;
        QtSoundPlayer player;
        player.PlaySound("click");
        player.PlaySound("shot");
        QVERIFY(!player.isPlaying());
        QVERIFY(player.close(std::chrono::milliseconds{1}));
        const QByteArray said = errors.text();
        QVERIFY2(said.startsWith("skylob: no sound: ") && said.count('\n') == 1, said);
    }

    void playsTheNewestWhenTheSoundSystemAnswersAtLast() {
        Capture capture{true};
        QtSoundPlayer player;
        for (const char* sound : {"THUNDER3", "daffy", "shot"}) player.PlaySound(sound);
        QVERIFY(player.isPlaying());
        capture.read();
        QTRY_VERIFY(!player.isPlaying());
        QVERIFY(capture.isOver());  // the device is closed after some silence
        QCOMPARE_GT(capture.lastLoudFrame(), kRate / 3);
        QCOMPARE_LT(capture.lastLoudFrame(), kRate);
    }

    void opensNothingForAGameThatHasGone() {
        const Capture capture{true};
        QProcess sounds;
        sounds.setStandardInputFile(QProcess::nullDevice());
        sounds.start(program(), {});
        QVERIFY(sounds.waitForFinished());
        QCOMPARE(sounds.exitStatus(), QProcess::NormalExit);
    }

    void endsWithoutASoundSystemThatHangs() {
        Capture capture{true};
        QtSoundPlayer player;
        player.PlaySound("click");
        QVERIFY(!player.close(std::chrono::milliseconds{1}));
        capture.read();
        QVERIFY(player.close(std::chrono::minutes{1}));
        QVERIFY(capture.isOver());
    }
};

int SoundTest_main(int argc, char** argv) {
    return skylob::test::runTest<SoundTest, QCoreApplication>(argc, argv);
}
#include "SoundTest.moc"
