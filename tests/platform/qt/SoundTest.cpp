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

namespace {

constexpr int kRate = 44100;

qint64 framesIn(const QString& capture) {
    return QFileInfo{capture}.size() / 2;
}

/// The last captured frame that is louder than silence.
qint64 lastLoudFrame(const QString& capture) {
    QFile file{capture};
    if (!file.open(QIODevice::ReadOnly)) return -1;
    const QByteArray bytes = file.readAll();
    const auto* samples = reinterpret_cast<const qint16*>(bytes.constData());
    qint64 last = bytes.size() / 2 - 1;
    while (last >= 0 && std::abs(samples[last]) < 300) --last;
    return last;
}

}  // namespace

class SoundTest : public QObject {
    Q_OBJECT

  private slots:
    void playsTheCompressedOne() {
        const QTemporaryDir folder;
        const QString capture = captureTo(folder);
        SdlSoundPlayer player;
        player.PlaySound("daffy");
        QTRY_VERIFY(!player.isPlaying());
        const qint64 last = lastLoudFrame(capture);
        QVERIFY2(last > kRate && last < 2 * kRate, qPrintable(QString::number(last)));
    }

    void cutsOffTheSoundThatPlays() {
        const QTemporaryDir folder;
        const QString capture = captureTo(folder);
        SdlSoundPlayer player;
        player.PlaySound("THUNDER3");  // 9.6 s
        QTRY_VERIFY(framesIn(capture) > kRate / 2);
        player.PlaySound("shot");  // 0.5 s
        const qint64 switched = framesIn(capture);
        QVERIFY(switched < 5 * kRate);  // or the thunder would be as good as over
        QTRY_VERIFY(!player.isPlaying());
        QTRY_VERIFY(framesIn(capture) > switched + 4 * kRate);
        const qint64 last = lastLoudFrame(capture);
        QVERIFY2(last < switched + 3 * kRate, qPrintable(QString::number(last - switched)));
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
            QVERIFY2(said.count('\n') <= 1, said.constData());
            QVERIFY(driver != QByteArray{"nonesuch"} || said.startsWith("skylob: no sound: "));
        }
    }

    void playsTheNewestWhenTheSoundSystemAnswersAtLast() {
        const QTemporaryDir folder;
        const QString pipe = captureTo(folder), capture = folder.filePath("heard");
        QCOMPARE(mkfifo(pipe.toLocal8Bit(), 0600), 0);  // opens with its reader
        SdlSoundPlayer player;
        for (const char* sound : {"THUNDER3", "daffy", "shot"}) player.PlaySound(sound);
        QVERIFY(player.isPlaying());
        QProcess reader;
        reader.setStandardOutputFile(capture);
        reader.start("cat", {pipe});
        QTRY_VERIFY(!player.isPlaying());
        QVERIFY(reader.waitForFinished());  // the device is closed after some silence
        const qint64 last = lastLoudFrame(capture);
        QVERIFY2(last > kRate / 3 && last < kRate, qPrintable(QString::number(last)));
    }

    void endsWithoutASoundSystemThatHangs() {
        const QTemporaryDir folder;
        const QString pipe = captureTo(folder);
        QCOMPARE(mkfifo(pipe.toLocal8Bit(), 0600), 0);
        SdlSoundPlayer player;
        player.PlaySound("click");
        QVERIFY(!player.close(std::chrono::milliseconds{1}));
        QProcess reader;
        reader.start("cat", {pipe});
        QVERIFY(player.close(std::chrono::minutes{1}));
        QVERIFY(reader.waitForFinished());
    }

  private:
    /// What would be heard goes into a file, some five times faster than it sounds.
    static QString captureTo(const QTemporaryDir& folder) {
        const QString capture = folder.filePath("capture.raw");
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", capture.toLocal8Bit());
        qputenv("SDL_DISKAUDIODELAY", "5");
        return capture;
    }
};

QTEST_GUILESS_MAIN(SoundTest)
#include "SoundTest.moc"
