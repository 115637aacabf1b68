#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "platform/qt/SdlSoundPlayer.h"
#include "tests/support/CapturedErrors.h"

using namespace skylob;

constexpr qint64 kRate = 44100;

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
        QFile file{name};
        if (!file.open(QIODevice::ReadOnly)) return -1;
        const QByteArray bytes = file.readAll();
        const auto* samples = reinterpret_cast<const qint16*>(bytes.constData());
        qint64 last = bytes.size() / 2 - 1;
        while (last >= 0 && std::abs(samples[last]) < 300) --last;
        return last;
    }

    const QTemporaryDir folder;
    QString name = folder.filePath("capture.raw");

  private:
    QProcess m_reader;
};

class SoundTest : public QObject {
    Q_OBJECT

  private slots:
    void playsTheCompressedOne() {
        const Capture capture;
        SdlSoundPlayer player;
        player.PlaySound("daffy");
        QTRY_VERIFY(!player.isPlaying());
        QCOMPARE(capture.lastLoudFrame() / kRate, 1);  // between one second and two
    }

    void cutsOffTheSoundThatPlays() {
        const Capture capture;
        SdlSoundPlayer player;
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

    void bearsAMissingDeviceWithOneLineAtMost() {
        // The second is a sound system that complains by itself where there is no sound card.
        for (const char* driver : {"nonesuch", "alsa"}) {
            qputenv("SDL_AUDIODRIVER", driver);
            const test::CapturedErrors errors;
            SdlSoundPlayer player;
            player.PlaySound("click");
            player.PlaySound("shot");
            QVERIFY(player.close(std::chrono::minutes{1}));
            const QByteArray said = errors.text();
            QVERIFY2(said.count('\n') <= 1, said);
            if (driver == QByteArray{"nonesuch"}) QVERIFY(said.startsWith("skylob: no sound: "));
        }
    }

    void playsTheNewestWhenTheSoundSystemAnswersAtLast() {
        Capture capture{true};
        SdlSoundPlayer player;
        for (const char* sound : {"THUNDER3", "daffy", "shot"}) player.PlaySound(sound);
        QVERIFY(player.isPlaying());
        capture.read();
        QTRY_VERIFY(!player.isPlaying());
        QVERIFY(capture.isOver());  // the device is closed after some silence
        QCOMPARE_GT(capture.lastLoudFrame(), kRate / 3);
        QCOMPARE_LT(capture.lastLoudFrame(), kRate);
    }

    void endsWithoutASoundSystemThatHangs() {
        Capture capture{true};
        SdlSoundPlayer player;
        player.PlaySound("click");
        QVERIFY(!player.close(std::chrono::milliseconds{1}));
        capture.read();
        QVERIFY(player.close(std::chrono::minutes{1}));
        QVERIFY(capture.isOver());
    }
};

QTEST_GUILESS_MAIN(SoundTest)
#include "SoundTest.moc"
