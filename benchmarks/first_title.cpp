// The game up to the first paint of its title page.

#include "FirstPaint.h"
#include "app/qt/Application.h"
#include "platform/qt/QtPictureTransport.h"
#include "platform/qt/QtWindowStore.h"

int main(int argc, char** argv) {
    skylob::sendPicturesInline();
    skylob::QtWindowStore windows;
    skylob::Application application{argc, argv, {}, windows};
    const skylob::QuitAfterFirstPaint once{application};
    return application.run();
}
