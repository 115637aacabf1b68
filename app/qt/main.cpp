#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/StartScale.h"
#include "app/qt/Application.h"
#include "app/qt/QtCommandLine.h"
#include "app/qt/ReplayProgram.h"
#include "base/Release.h"
#include "battle/record/RecordFile.h"
#include "platform/SpareMemory.h"
#include "platform/qt/QtPictureTransport.h"
#include "platform/qt/QtScaleFactor.h"
#include "platform/qt/QtWindowStore.h"

namespace {

constexpr int kUnusableArguments = 2;

/// Gives descriptors 0 to 2 to /dev/null where they are closed. The next files to be opened would
/// get them, and what is printed or redirected later would go into those.
void fillStandardDescriptors() {
    int descriptor = 0;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) descriptor = open("/dev/null", O_RDWR);
    if (descriptor >= 0) close(descriptor);
}

/// Answers on standard output. Returns the exit status.
int print(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0)
        return EXIT_SUCCESS;
    std::perror("skylob: cannot write to the standard output");
    return EXIT_FAILURE;
}

/// Makes the chosen folder the working directory.
bool enterDataFolder(const skylob::CommandLine& commandLine) {
    if (!commandLine.dataDir && !commandLine.userData) return true;
    const QString folder =
        commandLine.userData
            ? QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Skylob"
            : QString::fromStdString(*commandLine.dataDir);
    if (QDir{}.mkpath(folder) && QDir::setCurrent(folder)) return true;
    std::fprintf(stderr, "skylob: cannot use the folder '%s'\n", qPrintable(folder));
    return false;
}

bool hasDisplay() {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (const char* value = std::getenv(variable); value && *value) return true;
    std::fputs("skylob: there is no display to show the game on\n", stderr);
    return false;
}

/// The toolkit cannot paint on a display that looks its colours up in a table, and goes on all the
/// same.
bool hasColours() {
    constexpr int kFewestBits = 15;
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen || screen->depth() >= kFewestBits) return true;
    std::fputs("skylob: the display has too few colours\n", stderr);
    return false;
}

int refuse(const char* what, const std::string& file, const skylob::RecordError& why) {
    std::fprintf(stderr, "skylob: cannot %s '%s': %s\n", what, file.c_str(), why.what());
    return kUnusableArguments;
}

/// While the toolkit starts: what it has to say is worth a line only when it gives up, and then
/// one line is enough. Where there is no memory for its threads it goes on, and hears of nothing.
void endWhereThereIsNoDisplay(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type != QtFatalMsg && !text.startsWith(QLatin1String{"QThread::start:"})) return;
    std::fputs("skylob: the display cannot be used\n", stderr);
    std::_Exit(EXIT_FAILURE);
}

/// What holds while the toolkit starts, and what has to be said before: how large all is, how
/// pictures go to the display, what memory is kept, and that it says no more than one line.
class ToolkitStart {
  public:
    ToolkitStart(const skylob::CommandLine& commandLine, const skylob::WindowStore& windows)
        : m_scale{skylob::startScale(commandLine, windows)},
          m_usualHandler{qInstallMessageHandler(endWhereThereIsNoDisplay)} {
        skylob::keepLittleSpareMemory();
        skylob::sendPicturesInline();
    }
    ~ToolkitStart() { qInstallMessageHandler(m_usualHandler); }
    Q_DISABLE_COPY_MOVE(ToolkitStart)

  private:
    skylob::QtScaleFactor m_scale;
    QtMessageHandler m_usualHandler;
};

/// Both return the exit status.
int play(char** argv, const skylob::CommandLine& commandLine) {
    std::optional<skylob::RecordFile> recording;
    try {
        if (commandLine.record) recording.emplace(*commandLine.record);
    } catch (const skylob::RecordError& why) {
        return refuse("record", *commandLine.record, why);
    }
    if (!enterDataFolder(commandLine)) return kUnusableArguments;
    if (!hasDisplay()) return EXIT_FAILURE;
    int toolkitArguments = 1;  // the arguments are ours alone
    skylob::QtWindowStore windows;
    std::optional<ToolkitStart> start{std::in_place, commandLine, windows};
    skylob::Application application{toolkitArguments, argv, commandLine, windows};
    start.reset();
    if (!hasColours()) return EXIT_FAILURE;
    if (recording) application.record(*recording);
    return application.run();
}

int replay(char** argv, const skylob::CommandLine& commandLine) try {
    const skylob::BattleRecord record = skylob::readRecordFile(*commandLine.replay);
    if (!hasDisplay()) return EXIT_FAILURE;
    int toolkitArguments = 1;
    skylob::QtWindowStore windows;
    std::optional<ToolkitStart> start{std::in_place, commandLine, windows};
    skylob::ReplayProgram program{toolkitArguments, argv, commandLine, record};
    start.reset();
    if (!hasColours()) return EXIT_FAILURE;
    return program.run();
} catch (const skylob::RecordError& why) {
    return refuse("replay", *commandLine.replay, why);
}

}  // namespace

int main(int argc, char** argv) {
    fillStandardDescriptors();
    using Request = skylob::CommandLine::Request;
    const std::vector<std::string_view> arguments{argv + 1, argv + argc};
    const auto commandLine = skylob::parseCommandLine(arguments);
    switch (commandLine.request) {
        case Request::Help:
            return print(skylob::commandLineHelp());
        case Request::Version:
            return print("Skylob " + std::string{skylob::kVersion} + "\n");
        case Request::Refused:
            std::fprintf(stderr, "skylob: %s\n", commandLine.error.c_str());
            return kUnusableArguments;
        case Request::Play:
            break;
    }
    return commandLine.replay ? replay(argv, commandLine) : play(argv, commandLine);
}
