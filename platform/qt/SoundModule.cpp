#include "platform/qt/SoundModule.h"

#include <dlfcn.h>

#include <cstdio>

namespace skylob {

namespace {

class NoSoundDevice final : public SoundDevice {
  public:
    void open() override {}
    void close() override {}
    bool isOpen() const override { return false; }
    void play(const QByteArray&) override {}
    void setVolume(int) override {}
    bool isPlaying() const override { return false; }
};

}  // namespace

std::unique_ptr<SoundDevice> loadSoundDevice(const char* file) {
    // Found by the search path that the linker has put into the program. It stays loaded: sound
    // systems do not all bear to be taken out.
    void* const library = dlopen(file, RTLD_LAZY);
    void* const maker = library ? dlsym(library, "makeSoundDevice") : nullptr;
    if (!maker) {
        std::fprintf(stderr, "skylob: no sound: %s\n", dlerror());
        return std::make_unique<NoSoundDevice>();
    }
    return std::unique_ptr<SoundDevice>{reinterpret_cast<SoundDevice* (*)()>(maker)()};
}

}  // namespace skylob
