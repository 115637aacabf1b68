// The game up to the first paint of its title page.

#include "FirstPaint.h"
#include "app/qt/Application.h"
#include "platform/qt/QtPictureTransport.h"

int main(int argc, char** argv) {
    skylob::sendPicturesInline();
    skylob::Application application{argc, argv, {}};
    const skylob::QuitAfterFirstPaint once{application};
    return application.run();
}
