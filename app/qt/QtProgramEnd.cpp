#include "app/qt/QtProgramEnd.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <string>

#include "base/MessageBoxes.h"
#include "platform/qt/QtSoundPlayer.h"

namespace skylob {

namespace {

constexpr std::chrono::milliseconds kPause{50}, kPatienceWithSounds{3000},
    kPatienceWithClosing{1000};

}  // namespace

void quitWhenSilent(const QtSoundPlayer& sounds) {
    auto* timer = new QTimer{qApp};
    const QDeadlineTimer deadline{kPatienceWithSounds};
    QObject::connect(timer, &QTimer::timeout, qApp, [&sounds, deadline] {
        if (!sounds.isPlaying() || deadline.hasExpired()) QCoreApplication::quit();
    });
    timer->start(kPause);
}

void closeSounds(QtSoundPlayer& sounds, int status) {
    if (!sounds.close(kPatienceWithClosing)) std::_Exit(status);
}

void endWithError(MessageBoxes& boxes, const char* why) {
    const std::string text = std::string{why} + "\r\n\r\nSkylob ends now.";
    boxes.show({"Run-time error", text, BoxIcon::Critical, BoxButtons::Ok});
    std::_Exit(EXIT_FAILURE);
}

}  // namespace skylob
